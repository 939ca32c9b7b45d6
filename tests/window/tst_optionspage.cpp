// SPDX-License-Identifier: GPL-3.0-or-later
// The Options page and the About page: what they show, and what they store.

#include "support/suite.h"
#include "support/windowdriver.h"

#include "window/webhost.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QTest>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

enum { Dark, Light, System };

const QString themeLink = u"#ed6e56"_s;

class OptionsDriver : public WindowDriver
{
public:
    OptionsDriver() { window().showPage(7); }

    QComboBox *themes() const { return get<QComboBox>(u"cbOptionsTheme"_s); }
    QString linkColor() const { return QApplication::palette().color(QPalette::Link).name(); }
    /** What the About page's links and headings wear. */
    bool textsWear(const QString &color) const
    {
        return get<QTextBrowser>(u"txtAbout"_s)->toHtml().contains(u"color:"_s + color);
    }
};

/** What a combo box wears when the light theme is chosen on Windows 10, up to what the theme itself adds. */
const QString lightBoxStart =
    u"QComboBox { border-radius: 6px; padding-left: 12px; background: white; color: black; }"_s;

} // namespace

class TestOptionsPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init() { QApplication::setPalette(systemPalette_); }

    // Loading
    void controlShowsItsStoredValue_data();
    void controlShowsItsStoredValue();
    void loadingAPageStoresNothing();
    void beforeTheFirstShowingNothingIsConnected();
    void showingThePageHidesTheReport();

    // Check boxes
    void boxStoresItsState_data();
    void boxStoresItsState();
    void connectionIsMadeOnceHoweverOftenThePageIsShown();

    // Theme
    void themeBoxShowsTheStoredTheme_data();
    void themeBoxShowsTheStoredTheme();
    void darkCantBeChosenOnWindows10();
    void whatCantBeChosenLooksSo();
    void chosenThemeIsStoredAndPutInForce_data();
    void chosenThemeIsStoredAndPutInForce();
    void darkChosenOnWindows10StoresNothing();
    void themesBackAndForthColorTheTexts();
    void lightThemeOnWindows10WhitensTheLists();
    void themeIsChangedOnThePageItself();

    // About
    void aboutTellsVersionAndDay();
    void linksNameTheHostOfTheBuild();

private:
    QPalette systemPalette_; ///< before any theme
};

void TestOptionsPage::initTestCase()
{
    QApplication::setStyle(u"fusion"_s);
    systemPalette_ = QApplication::palette();
}

void TestOptionsPage::controlShowsItsStoredValue_data()
{
    addColumns<QString, QString, QVariant, bool>("key", "box", "stored", "checked");
    const auto add = [](const QString &key, const QString &box, bool fallback) {
        const auto row = [&](const char *what) -> QTestData & {
            return QTest::newRow(qPrintable(key + u", "_s + QLatin1StringView(what))) << key << box;
        };
        row("never stored") << QVariant() << fallback;
        row("1") << QVariant(1) << true;
        row("0") << QVariant(0) << false;
        row("2") << QVariant(2) << false;
    };
    add(u"StartAsAdmin"_s, u"chkOptionsStartAsAdmin"_s, false);
    add(u"CheckUpdate"_s, u"chkOptionsCheckUpdate"_s, false);
    add(u"GetWinSxsSize"_s, u"chkOptionsGetWinSxsSize"_s, true);
    add(u"Monitor"_s, u"chkOptionsMonitor"_s, false);
    add(u"MonitorThreadAndHandle"_s, u"chkOptionsMonitorThreadAndHandle"_s, false);
}

void TestOptionsPage::controlShowsItsStoredValue()
{
    QFETCH(QString, key);
    QFETCH(QString, box);
    QFETCH(QVariant, stored);
    TestMachine pc;
    const OptionsDriver driver;
    driver.window().showPage(8);
    if (stored.isValid())
        pc.write(settingsKey, key, stored);
    driver.window().showPage(7);
    QTEST(driver.get<QCheckBox>(box)->isChecked(), "checked");
}

void TestOptionsPage::loadingAPageStoresNothing()
{
    TestMachine pc;
    const OptionsDriver driver;
    driver.window().showPage(8);
    pc.write(settingsKey, u"StartAsAdmin"_s, 3);
    pc.write(settingsKey, u"CheckUpdate"_s, 1);
    pc.write(settingsKey, u"GetWinSxsSize"_s, 0);
    pc.write(settingsKey, u"MonitorInterval"_s, 5);
    pc.write(settingsKey, u"palette"_s, u"light"_s);
    driver.window().showPage(7);
    QCOMPARE(driver.get<QComboBox>(u"cbOptionsMonitorInterval"_s)->currentIndex(), 5);
    QCOMPARE(driver.themes()->currentIndex(), int(Light));
    // The slots would have written 0 for the 3, checked for an update and put the theme in force.
    QCOMPARE(pc.read(settingsKey, u"StartAsAdmin"_s).toInt(), 3);
    QVERIFY(!pc.read(settingsKey, u"LastCheckUpdate"_s).isValid());
    QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(35, 35, 35));
}

void TestOptionsPage::beforeTheFirstShowingNothingIsConnected()
{
    const TestMachine pc;
    const WindowDriver driver;
    driver.get<QCheckBox>(u"chkOptionsStartAsAdmin"_s)->setChecked(true);
    driver.get<QComboBox>(u"cbOptionsTheme"_s)->setCurrentIndex(Light);
    QVERIFY(!pc.read(settingsKey, u"StartAsAdmin"_s).isValid());
    QCOMPARE(pc.read(settingsKey, u"palette"_s).toString(), u"dark"_s);
}

void TestOptionsPage::showingThePageHidesTheReport()
{
    const TestMachine pc;
    const OptionsDriver driver;
    QVERIFY(driver.get<QWidget>(u"wgtInfo"_s)->isHidden());
}

void TestOptionsPage::boxStoresItsState_data()
{
    addColumns<QString, QString>("box", "key");
    QTest::newRow("administrator rights") << u"chkOptionsStartAsAdmin"_s << u"StartAsAdmin"_s;
    QTest::newRow("update check") << u"chkOptionsCheckUpdate"_s << u"CheckUpdate"_s;
    QTest::newRow("WinSxS size") << u"chkOptionsGetWinSxsSize"_s << u"GetWinSxsSize"_s;
}

void TestOptionsPage::boxStoresItsState()
{
    QFETCH(QString, box);
    QFETCH(QString, key);
    TestMachine pc;
    // No check is due.
    pc.write(settingsKey, u"LastCheckUpdate"_s, QDate::currentDate().toString(u"dd.MM.yyyy"_s));
    pc.write(settingsKey, key, 0);
    const OptionsDriver driver;
    auto *shown = driver.get<QCheckBox>(box);
    shown->click();
    QCOMPARE(pc.read(settingsKey, key).toInt(), 1);
    shown->click();
    QCOMPARE(pc.read(settingsKey, key).toInt(), 0);
    QCOMPARE(pc.read(settingsKey, key).userType(), int(QMetaType::Int));
}

void TestOptionsPage::connectionIsMadeOnceHoweverOftenThePageIsShown()
{
    TestMachine pc;
    const OptionsDriver driver;
    driver.window().showPage(7);
    driver.window().showPage(7);
    auto *box = driver.get<QCheckBox>(u"chkOptionsStartAsAdmin"_s);
    QVERIFY(QObject::disconnect(box, nullptr, &driver.window(), nullptr));
    box->click();
    QVERIFY(!pc.read(settingsKey, u"StartAsAdmin"_s).isValid());
    // A showing connects it again.
    driver.window().showPage(7);
    box->setChecked(true);
    QCOMPARE(pc.read(settingsKey, u"StartAsAdmin"_s).toInt(), 1);
}

void TestOptionsPage::themeBoxShowsTheStoredTheme_data()
{
    addColumns<bool, QString, int>("windows10", "stored", "index");
    QTest::newRow("dark, 11") << false << u"dark"_s << int(Dark);
    QTest::newRow("light, 11") << false << u"light"_s << int(Light);
    QTest::newRow("system, 11") << false << u"system"_s << int(System);
    QTest::newRow("light, 10") << true << u"light"_s << int(Light);
    QTest::newRow("system, 10") << true << u"system"_s << int(System);
    // It stays where it was, which is on System here.
    QTest::newRow("dark, 10") << true << u"dark"_s << int(System);
    QTest::newRow("unknown, 11") << false << u"blue"_s << int(System);
}

void TestOptionsPage::themeBoxShowsTheStoredTheme()
{
    QFETCH(bool, windows10);
    QFETCH(QString, stored);
    TestMachine pc(windows10 ? TestMachine::Windows::Ten : TestMachine::Windows::Eleven);
    pc.write(settingsKey, u"palette"_s, u"system"_s);
    const OptionsDriver driver;
    QCOMPARE(driver.themes()->currentIndex(), int(System));
    pc.write(settingsKey, u"palette"_s, stored);
    driver.window().showPage(7);
    QTEST(driver.themes()->currentIndex(), "index");
}

void TestOptionsPage::darkCantBeChosenOnWindows10()
{
    const auto isEnabled = [](const OptionsDriver &driver, int row) {
        return driver.themes()->model()->index(row, 0).flags().testFlag(Qt::ItemIsEnabled);
    };
    {
        const TestMachine pc(TestMachine::Windows::Ten);
        const OptionsDriver driver;
        QVERIFY(!isEnabled(driver, Dark));
        QVERIFY(isEnabled(driver, Light));
        QVERIFY(isEnabled(driver, System));
    }
    const TestMachine pc;
    const OptionsDriver driver;
    QVERIFY(isEnabled(driver, Dark));
}

/** Style sheets draw the list of the box. */
void TestOptionsPage::whatCantBeChosenLooksSo()
{
    const TestMachine pc(TestMachine::Windows::Ten);
    const OptionsDriver driver;
    driver.themes()->showPopup();
    const QAbstractItemView *list = driver.themes()->view();
    const QImage image = list->viewport()->grab().toImage();
    const auto darkest = [&](int row) {
        const QRect place = list->visualRect(list->model()->index(row, 0));
        int lightness = 255;
        for (int y = place.top(); y <= place.bottom(); ++y) {
            for (int x = place.left(); x <= place.right(); ++x) {
                if (image.valid(x, y))
                    lightness = std::min(lightness, qGray(image.pixel(x, y)));
            }
        }
        return lightness;
    };
    const int disabled = darkest(Dark);
    const int enabled = darkest(System);
    driver.themes()->hidePopup();
    QVERIFY2(enabled < 60, qPrintable(QString::number(enabled)));
    QVERIFY2(disabled > 120, qPrintable(QString::number(disabled)));
}

void TestOptionsPage::chosenThemeIsStoredAndPutInForce_data()
{
    addColumns<bool, int, QString, QColor>("windows10", "index", "stored", "window");
    const QColor system = systemPalette_.color(QPalette::Window);
    QTest::newRow("light, 11") << false << int(Light) << u"light"_s << QColor(230, 230, 230);
    QTest::newRow("system, 11") << false << int(System) << u"system"_s << system;
    QTest::newRow("system, 10") << true << int(System) << u"system"_s << system;
}

void TestOptionsPage::chosenThemeIsStoredAndPutInForce()
{
    QFETCH(bool, windows10);
    QFETCH(int, index);
    const TestMachine pc(windows10 ? TestMachine::Windows::Ten : TestMachine::Windows::Eleven);
    const OptionsDriver driver;
    driver.themes()->setCurrentIndex(index);
    QTEST(pc.read(settingsKey, u"palette"_s).toString(), "stored");
    QTEST(QApplication::palette().color(QPalette::Window), "window");
    QCOMPARE(driver.window().currentPage(), 7);
    QCOMPARE(driver.themes()->currentIndex(), index);
}

void TestOptionsPage::darkChosenOnWindows10StoresNothing()
{
    const TestMachine pc(TestMachine::Windows::Ten);
    const OptionsDriver driver;
    driver.themes()->setCurrentIndex(Dark);
    QCOMPARE(pc.read(settingsKey, u"palette"_s).toString(), u"light"_s);
    // The page shows what is stored again.
    QCOMPARE(driver.themes()->currentIndex(), int(Light));
}

void TestOptionsPage::themesBackAndForthColorTheTexts()
{
    const QString systemLink = systemPalette_.color(QPalette::Link).name();
    QVERIFY(systemLink != themeLink);
    const TestMachine pc;
    const OptionsDriver driver;
    for (const int index : {Light, System, Dark, System, Light, Dark}) {
        driver.themes()->setCurrentIndex(index);
        const QString link = index == System ? systemLink : themeLink;
        QCOMPARE(driver.linkColor(), link);
        QVERIFY(driver.textsWear(link));
        QVERIFY(!driver.textsWear(link == themeLink ? systemLink : themeLink));
    }
}

void TestOptionsPage::lightThemeOnWindows10WhitensTheLists()
{
    const TestMachine pc(TestMachine::Windows::Ten);
    const OptionsDriver driver;
    driver.themes()->setCurrentIndex(System);
    QCOMPARE(driver.themes()->styleSheet(), QString());
    QCOMPARE(driver.themes()->view()->styleSheet(), QString());
    driver.themes()->setCurrentIndex(Light);
    QVERIFY(driver.themes()->styleSheet().startsWith(lightBoxStart));
    QCOMPARE(driver.themes()->view()->styleSheet(), u"background-color: #FFFFFF; color: black; "_s);
    driver.themes()->setCurrentIndex(System);
    QCOMPARE(driver.themes()->view()->styleSheet(), QString());
}

void TestOptionsPage::themeIsChangedOnThePageItself()
{
    const TestMachine pc;
    const OptionsDriver driver;
    auto *language = driver.get<QComboBox>(u"cbOptionsLang"_s);
    driver.themes()->setCurrentIndex(Light);
    QVERIFY(language->styleSheet().startsWith(lightBoxStart));
    // The dark theme leaves the boxes alone: the change has to undress them.
    driver.themes()->setCurrentIndex(Dark);
    QCOMPARE(language->styleSheet(), QString());
    QCOMPARE(language->view()->styleSheet(), QString());
    QVERIFY(driver.button(u"btnMenuOptions"_s)->styleSheet().contains(u"options-w.png"_s));
    driver.themes()->setCurrentIndex(Light);
    QVERIFY(driver.button(u"btnMenuOptions"_s)->styleSheet().contains(u"options.png"_s));
}

void TestOptionsPage::aboutTellsVersionAndDay()
{
    QCoreApplication::setApplicationVersion(u"0.3.14"_s);
    const TestMachine pc;
    const OptionsDriver driver;
    const auto *about = driver.get<QTextBrowser>(u"txtAbout"_s);
    QVERIFY(about->toPlainText().contains(u"%version"_s));
    driver.window().showPage(8);
    QVERIFY(about->toPlainText().contains(u" beta 0.3.14\n"_s));
    QVERIFY(about->toPlainText().contains(u" 03.11.2025\n"_s));
    QVERIFY(!about->toPlainText().contains(u'%'));
}

void TestOptionsPage::linksNameTheHostOfTheBuild()
{
    const QString form = u"<a href=\"https://kestrune.example/\">mail contact@kestrune.example</a>"_s;
    QCOMPARE(withWebHost(form, u"example.org"_s), u"<a href=\"https://example.org/\">mail contact@example.org</a>"_s);
    QCOMPARE(withWebHost(u"https://learn.microsoft.com/"_s, u"example.org"_s), u"https://learn.microsoft.com/"_s);

    const TestMachine pc;
    const OptionsDriver driver;
    QVERIFY(driver.get<QTextBrowser>(u"txtAbout"_s)->toHtml().contains(u"https://"_s + webHost() + u'/'));
    QVERIFY(driver.get<QTextBrowser>(u"txtGaming12"_s)
                ->toHtml()
                .contains(u"https://"_s + webHost() + u"/optimization.html"_s));
}

KESTRUNE_WINDOW_SUITE(TestOptionsPage)
#include "tst_optionspage.moc"
