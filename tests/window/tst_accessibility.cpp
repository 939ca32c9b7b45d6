// SPDX-License-Identifier: GPL-3.0-or-later
// What screen readers are given of each page and each box, and a story told through nothing else. The dialogs of the
// way back and of the preview are looked at in suites of their own.
//
// All of it goes through the toolkit's interface for screen readers within the process. How Narrator reads it can only
// be heard on a real Windows.

#include "support/accessibletree.h"
#include "support/boxes.h"
#include "support/suite.h"
#include "support/windowdriver.h"
#include "window/messagebox.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

constexpr int pageCount = 9;

/** A machine with something to show on each page, some of it without its texts. */
class PcToShow : public TestMachine
{
public:
    PcToShow()
    {
        write(settingsKey, u"lang"_s, u"en"_s); // the window itself leaves the language alone
        add({.name = u"Alpha"_s, .start = 2, .running = true, .displayName = u"First"_s, .description = u"Begins"_s});
        add({.name = u"Bare"_s, .start = 0, .running = true});
        add({.name = u"DcomLaunch"_s, .start = 2, .running = true});
        add({.name = u"Off"_s, .start = 4});
        write(u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s, u"App"_s, u"app.exe"_s);
    }
};

QString nameOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

QString descriptionOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
}

bool settle(const WindowDriver &driver)
{
    return QTest::qWaitFor([&driver] { return !driver.worker().isRunning(); }, patience);
}

/** Looks at the box that comes next, and closes it. */
class BoxLook
{
public:
    BoxLook()
    {
        QObject::connect(&timer_, &QTimer::timeout, [this] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (box == nullptr)
                return;
            unnamed = unnamedIn(box);
            ++looks;
            box->reject();
        });
        timer_.start(20);
    }

    QStringList unnamed;
    int looks = 0;

private:
    QTimer timer_;
};

/** Presses a button of a window by its name; false where the tree has none. */
bool pressAccessible(QWidget *window, const QString &name)
{
    QAccessibleInterface *button = findAccessible(window, QAccessible::PushButton, name);
    if (button == nullptr || button->actionInterface() == nullptr)
        return false;
    button->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    return true;
}

/** Presses a button of the box that comes next. */
class BoxPress
{
public:
    explicit BoxPress(const QString &name)
    {
        QObject::connect(&timer_, &QTimer::timeout, [this, name] {
            if (QWidget *box = QApplication::activeModalWidget(); box != nullptr && pressAccessible(box, name)) {
                timer_.stop();
                done = true;
            }
        });
        timer_.start(20);
    }

    bool done = false;

private:
    QTimer timer_;
};

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everythingHasAName_data();
    void everythingHasAName();
    void everythingOnALargeMachineHasAName_data();
    void everythingOnALargeMachineHasAName();
    void boxesHaveNames();
    void listsAreNamedAndExplained_data();
    void listsAreNamedAndExplained();
    void choicesAreNamed_data();
    void choicesAreNamed();
    void labelsBelongToWhatTheyName_data();
    void labelsBelongToWhatTheyName();
    void explanationsAreNoMarkup();
    void greyedRowsSayWhy();
    void emptyCellsSayTheirColumn();
    void servicesByTheInterfaceAlone();

private:
    static void languages();
};

void TestAccessibility::languages()
{
    QTest::addColumn<QString>("file");
    const QDir folder(QCoreApplication::applicationDirPath() + u"/Translations"_s);
    for (const QString &file : folder.entryList({u"lang_*.qm"_s}))
        QTest::newRow(qPrintable(file)) << folder.filePath(file);
}

void TestAccessibility::everythingHasAName_data()
{
    languages();
}

void TestAccessibility::everythingHasAName()
{
    QFETCH(const QString, file);
    QTranslator translator;
    QVERIFY(translator.load(file));
    QCoreApplication::installTranslator(&translator);
    const PcToShow pc;
    const WindowDriver driver;
    for (int page = 0; page < pageCount; ++page) {
        driver.window().showPage(page);
        QVERIFY(settle(driver));
        driver.bar()->show();
        QCOMPARE(driver.window().currentPage(), page);
        QCOMPARE(unnamedIn(&driver.window()).join(u'\n'), QString());
    }
    driver.window().showPage(1);
    QVERIFY(settle(driver));
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(unnamedIn(&driver.window()).join(u'\n'), QString());
}

void TestAccessibility::everythingOnALargeMachineHasAName_data()
{
    QTest::addColumn<int>("page");
    for (const int page : {1, 2, 3, 4})
        QTest::addRow("page %d", page) << page;
}

void TestAccessibility::everythingOnALargeMachineHasAName()
{
    QFETCH(const int, page);
    const TestMachine pc(u"windows11"_s);
    const WindowDriver driver;
    driver.window().showPage(page);
    QVERIFY(settle(driver));
    QTRY_VERIFY(driver.table(QStringList{u"tblSvc"_s, u"tblTasks"_s, u"tblAutorun"_s, u"tblPackages"_s}.at(page - 1))
                    ->rowCount()
                > 0);
    QCOMPARE(unnamedIn(&driver.window()).join(u'\n'), QString());
}

void TestAccessibility::boxesHaveNames()
{
    const PcToShow pc;
    BoxLook look;
    ask({.text = u"What"_s, .informativeText = u"Why"_s, .buttons = QMessageBox::Yes | QMessageBox::Cancel});
    QCOMPARE(look.unnamed, QStringList());
    tell(u"So it is"_s);
    QCOMPARE(look.unnamed, QStringList());
    QCOMPARE(look.looks, 2);
}

void TestAccessibility::listsAreNamedAndExplained_data()
{
    addColumns<QString, QString, QString>("list", "name", "explanation");
    QTest::newRow("services") << u"tblSvc"_s << u"Services  (Experienced users)"_s << u"List of currently started"_s;
    QTest::newRow("tasks") << u"tblTasks"_s << u"Scheduled tasks"_s << u"List of enabled scheduled tasks."_s;
    QTest::newRow("programs") << u"tblAutorun"_s << u"Programs started automatically"_s << u"List of programs"_s;
    QTest::newRow("packages") << u"tblPackages"_s << u"Packages"_s << u"List of Windows packages"_s;
    QTest::newRow("features") << u"scrollArea"_s << u"Features"_s << u"Internal system features"_s;
    QTest::newRow("log") << u"txtAutomatizer"_s << u"Optimizer"_s << u"Analyze and optimize"_s;
}

void TestAccessibility::listsAreNamedAndExplained()
{
    QFETCH(const QString, list);
    QFETCH(const QString, name);
    QFETCH(const QString, explanation);
    const PcToShow pc;
    const WindowDriver driver;
    auto *widget = driver.get<QWidget>(list);
    QCOMPARE(nameOf(widget), name);
    QVERIFY2(descriptionOf(widget).startsWith(explanation), qPrintable(descriptionOf(widget)));
}

void TestAccessibility::choicesAreNamed_data()
{
    addColumns<QString, QString>("box", "name");
    QTest::newRow("language") << u"cbOptionsLang"_s << u"Interface language:"_s;
    QTest::newRow("theme") << u"cbOptionsTheme"_s << u"Theme:"_s;
    QTest::newRow("interval") << u"cbOptionsMonitorInterval"_s << u"interval in seconds:"_s;
    QTest::newRow("keep") << u"cbAutorunFeatures"_s << u"Keep features"_s;
    QTest::newRow("keep services") << u"cbSvcFeatures"_s << u"Keep features"_s;
    QTest::newRow("priorities") << u"cbWin32PrioritySeparation"_s
                                << u"Win32PrioritySeparation:   Processor time allocated to applications."_s;
}

/** On Linux the interface gives what is chosen as the name of a box, so that its property is asked. */
void TestAccessibility::choicesAreNamed()
{
    QFETCH(const QString, box);
    QFETCH(const QString, name);
    const PcToShow pc;
    const WindowDriver driver;
    QCOMPARE(driver.get<QComboBox>(box)->accessibleName(), name);
}

void TestAccessibility::labelsBelongToWhatTheyName_data()
{
    languages();
}

void TestAccessibility::labelsBelongToWhatTheyName()
{
    QFETCH(const QString, file);
    QTranslator translator;
    QVERIFY(translator.load(file));
    QCoreApplication::installTranslator(&translator);
    const PcToShow pc;
    const WindowDriver driver;
    int count = 0;
    for (const QLabel *label : driver.window().findChildren<QLabel *>()) {
        if (label->buddy() == nullptr)
            continue;
        ++count;
        QCOMPARE(label->buddy()->accessibleName(), label->text());
        // Which a label with a buddy would take for the mark of a letter.
        QVERIFY(!label->text().contains(u'&'));
    }
    QCOMPARE(count, 11);
}

void TestAccessibility::explanationsAreNoMarkup()
{
    const PcToShow pc;
    const WindowDriver driver;
    driver.window().showPage(5);
    for (QWidget *widget : driver.window().findChildren<QWidget *>())
        QVERIFY2(!Qt::mightBeRichText(descriptionOf(widget)), qPrintable(widget->objectName()));
    QCOMPARE(descriptionOf(driver.get<QCheckBox>(u"chkSsd9"_s)), u"No known effect since Windows XP."_s);
    QVERIFY(descriptionOf(driver.button(u"btnAutomatize"_s)).contains(u"If you close the window meanwhile"_s));
}

void TestAccessibility::greyedRowsSayWhy()
{
    const PcToShow pc;
    ServicesPage driver;
    QCOMPARE(driver.cell(u"Alpha"_s)->data(Qt::AccessibleDescriptionRole), QVariant());
    for (const int column : {0, 1, 2})
        QCOMPARE(driver.cell(u"DcomLaunch"_s, column)->data(Qt::AccessibleDescriptionRole).toString(),
                 u"Grayed out services are considered necessary or critical"_s);
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(driver.cell(u"Off"_s)->data(Qt::AccessibleDescriptionRole).toString(),
             u"Grayed out services refer to those disabled outside this tab"_s);
}

void TestAccessibility::emptyCellsSayTheirColumn()
{
    const PcToShow pc;
    const ServicesPage driver;
    QCOMPARE(driver.cell(u"Bare"_s, 1)->text(), QString());
    QVERIFY(findAccessible(&driver.window(), QAccessible::Cell, u"Start mode: \u2013"_s) != nullptr);
    QVERIFY(findAccessible(&driver.window(), QAccessible::Cell, u"First"_s) != nullptr);
}

/**
 * Has needless services found, checked and disabled, and brings them back, by what the tree offers and nothing else. A
 * single row is checked by its key in the list: the toolkit's own action of a cell selects it.
 */
void TestAccessibility::servicesByTheInterfaceAlone()
{
    TestMachine pc;
    pc.add({.name = u"DiagTrack"_s, .start = 2, .running = true, .displayName = u"Telemetry"_s});
    pc.add({.name = u"Beta"_s, .start = 2, .running = true});
    const WindowDriver driver;
    QWidget *const window = &driver.window();
    const auto start = [&pc](const QString &service) {
        return pc.read(servicesKey + u'\\' + service, u"Start"_s).toInt();
    };
    const auto telemetry = [window] { return findAccessible(window, QAccessible::Cell, u"Telemetry"_s); };

    QVERIFY(pressAccessible(window, u"Services"_s));
    QTRY_VERIFY_WITH_TIMEOUT(telemetry() != nullptr, patience);
    QVERIFY(settle(driver));
    QVERIFY(telemetry()->state().checkable && !telemetry()->state().checked);
    {
        const BoxPress yes(u"Yes"_s);
        QVERIFY(pressAccessible(window, u"ASSISTANT - disable a list of non vital services"_s));
        QTRY_VERIFY_WITH_TIMEOUT(yes.done, patience);
    }
    QTRY_VERIFY_WITH_TIMEOUT(telemetry() == nullptr, patience);
    QVERIFY(settle(driver));
    QCOMPARE(start(u"DiagTrack"_s), 4);
    QCOMPARE(start(u"Beta"_s), 2);
    {
        const BoxPress no(u"No"_s);
        QVERIFY(pressAccessible(window, u"RESTORE disabled services"_s));
        QTRY_VERIFY_WITH_TIMEOUT(no.done, patience);
    }
    QTRY_VERIFY_WITH_TIMEOUT(telemetry() != nullptr, patience);
    QVERIFY(settle(driver));
    QCOMPARE(start(u"DiagTrack"_s), 2);
}

KESTRUNE_WINDOW_SUITE(TestAccessibility)
#include "tst_accessibility.moc"
