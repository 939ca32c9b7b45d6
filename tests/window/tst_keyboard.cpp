// SPDX-License-Identifier: GPL-3.0-or-later
// The window by the keyboard: its shortcuts, the keyboard's way through a page, and a story told without a mouse.

#include "support/suite.h"
#include "support/windowdriver.h"

#include <QApplication>
#include <QCheckBox>
#include <QFile>
#include <QShortcut>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int pageCount = 9;
const QStringList pageTables{{}, u"tblSvc"_s, u"tblTasks"_s, u"tblAutorun"_s, u"tblPackages"_s, {}, {}, {}, {}};

/** A machine with services and a program that starts at logon. */
class PcWithLists : public TestMachine
{
public:
    explicit PcWithLists(const MachineOptions &options = {})
        : TestMachine(Windows::Eleven, options)
    {
        // The first one is greyed.
        add({.name = u"AppReadiness"_s, .type = 224, .start = 2, .running = true});
        for (const QString &name : {u"Bravo"_s, u"Charlie"_s, u"Delta"_s})
            add({.name = name, .start = 2, .running = true, .description = u"Runs"_s});
        write(u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s, u"App"_s, u"app.exe"_s);
        write(settingsKey, u"lang"_s, u"en"_s);
    }

    int startOf(const QString &service) const { return read(servicesKey + u'\\' + service, u"Start"_s).toInt(); }
};

/** The window, which gets keys as the system sends them: to whatever has the keyboard. */
class KeyDriver : public WindowDriver
{
public:
    KeyDriver()
    {
        if (!QTest::qWaitForWindowActive(&window()))
            qFatal("the window doesn't get the keyboard");
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(window().windowHandle(), key, modifiers);
    }
    void type(const QString &text) const
    {
        for (const QChar letter : text)
            QTest::keyClick(window().windowHandle(), letter.toLatin1());
    }
    /** Presses F6 until the keyboard is where it is wanted. */
    bool walkTo(const QString &name) const
    {
        for (int step = 0; step < 60 && holder() != name; ++step)
            press(Qt::Key_F6);
        return holder() == name;
    }
    /** The name of what has the keyboard; empty where nothing has. */
    QString holder() const
    {
        const QWidget *widget = QApplication::focusWidget();
        return widget != nullptr ? widget->objectName() : QString();
    }
    /** Waits until nothing is under way, and all that was told has arrived. */
    bool settle() const
    {
        const auto isIdle = [this] {
            const QList<WorkThread *> all = workers();
            return std::none_of(all.begin(), all.end(), [](const WorkThread *each) { return each->isRunning(); });
        };
        const bool idle = QTest::qWaitFor(isIdle, patience);
        QCoreApplication::sendPostedEvents();
        return idle;
    }
    bool show(int page) const
    {
        window().showPage(page);
        return settle();
    }
    QString currentText(const QString &name = u"tblSvc"_s) const
    {
        const QTableWidgetItem *cell = table(name)->currentItem();
        return cell != nullptr ? cell->text() : QString();
    }
};

/** Answers the box that comes next by a key of the keyboard. */
class KeyAnswer
{
public:
    explicit KeyAnswer(Qt::Key key)
    {
        QObject::connect(&timer_, &QTimer::timeout, [this, key] {
            QWidget *box = QApplication::activeModalWidget();
            if (box == nullptr || box->windowHandle() == nullptr)
                return;
            timer_.stop();
            came = true;
            QTest::keyClick(box->windowHandle(), key);
        });
        timer_.start(20);
    }

    bool came = false;

private:
    QTimer timer_;
};

} // namespace

class TestKeyboard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void digitsShowThePages();
    void aboutHasAKeyOfItsOwn();
    void noPageIsShownWhileAJobRuns();
    void noShortcutIsTypedByItself();
    void theMenuSaysItsKeys();
    void refreshIsForTheFirstFourPages_data();
    void refreshIsForTheFirstFourPages();
    void theListGetsTheKeyboard_data();
    void theListGetsTheKeyboard();
    void pagesWithoutListHaveNothingToSearch_data();
    void pagesWithoutListHaveNothingToSearch();
    void keysInTheListAreItsOwn();
    void theCurrentRowIsOneThatCanBeChosen();
    void aListFilledAnewBeginsAgain();
    void theKeyboardStaysOnNoOtherPage();
    void theCurrentRowHasAFrame_data();
    void theCurrentRowHasAFrame();
    void theKeyboardGoesThroughThePage();
    void everyControlOfAPageIsReached_data();
    void everyControlOfAPageIsReached();
    void policiesAndSelectionsStay();
    void mainButton_data();
    void mainButton();
    void optimizeIsTheMainButtonWhenThereIsSomething();
    void whatAsksNothingHasNoKey_data();
    void whatAsksNothingHasNoKey();
    void servicesWithoutAMouse();
};

void TestKeyboard::digitsShowThePages()
{
    const PcWithLists pc;
    const KeyDriver driver;
    for (int page = pageCount - 1; page >= 0; --page) {
        driver.press(static_cast<Qt::Key>(Qt::Key_1 + page), Qt::ControlModifier);
        QCOMPARE(driver.window().currentPage(), page);
        QVERIFY(driver.settle());
    }
}

void TestKeyboard::aboutHasAKeyOfItsOwn()
{
    const PcWithLists pc;
    const KeyDriver driver;
    driver.press(Qt::Key_F1);
    QCOMPARE(driver.window().currentPage(), 8);
}

void TestKeyboard::noPageIsShownWhileAJobRuns()
{
    const PcWithLists pc(endlessPauses());
    const KeyDriver driver;
    driver.worker().analyzeRunning = 1;
    driver.press(Qt::Key_2, Qt::ControlModifier);
    driver.press(Qt::Key_F1);
    QCOMPARE(driver.window().currentPage(), 0);
    driver.worker().analyzeRunning = 0;
    driver.press(Qt::Key_F1);
    QCOMPARE(driver.window().currentPage(), 8);
}

/** A bare letter, an arrow or the space bar would be taken from lists and boxes. */
void TestKeyboard::noShortcutIsTypedByItself()
{
    const PcWithLists pc;
    const KeyDriver driver;
    int count = 0;
    for (const QShortcut *shortcut : driver.window().findChildren<QShortcut *>()) {
        for (const QKeySequence &sequence : shortcut->keys()) {
            ++count;
            QCOMPARE(sequence.count(), 1);
            const bool withControl = sequence[0].keyboardModifiers().testFlag(Qt::ControlModifier);
            const bool isFunctionKey = sequence[0].key() >= Qt::Key_F1 && sequence[0].key() <= Qt::Key_F12;
            QVERIFY2(withControl || isFunctionKey, qPrintable(sequence.toString()));
        }
    }
    QCOMPARE(count, 16);
}

void TestKeyboard::theMenuSaysItsKeys()
{
    const PcWithLists pc;
    const KeyDriver driver;
    QCOMPARE(driver.button(u"btnMenuHome"_s)->toolTip(), u"Ctrl+1"_s);
    QCOMPARE(driver.button(u"btnMenuPackage"_s)->toolTip(), u"Ctrl+4; Ctrl+5"_s);
    QCOMPARE(driver.button(u"btnMenuTweak"_s)->toolTip(), u"Ctrl+6"_s);
    QCOMPARE(driver.button(u"btnMenuAbout"_s)->toolTip(), u"Ctrl+9; F1"_s);
}

void TestKeyboard::refreshIsForTheFirstFourPages_data()
{
    addColumns<int, bool>("page", "refreshed");
    for (int page = 0; page < pageCount; ++page)
        QTest::addRow("page %d", page) << page << (page <= 3);
}

void TestKeyboard::refreshIsForTheFirstFourPages()
{
    QFETCH(const int, page);
    QFETCH(const bool, refreshed);
    const PcWithLists pc;
    const KeyDriver driver;
    QVERIFY(driver.show(page));
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"untouched"_s);
    driver.press(Qt::Key_F5);
    QCOMPARE(driver.status() != "untouched"_L1, refreshed);
    QVERIFY(driver.settle());
}

void TestKeyboard::theListGetsTheKeyboard_data()
{
    addColumns<int, Qt::Key, Qt::KeyboardModifiers>("page", "key", "modifiers");
    for (int page = 1; page <= 4; ++page) {
        QTest::addRow("F6 on page %d", page) << page << Qt::Key_F6 << Qt::KeyboardModifiers();
        QTest::addRow("Ctrl+F on page %d", page) << page << Qt::Key_F << Qt::KeyboardModifiers(Qt::ControlModifier);
    }
}

void TestKeyboard::theListGetsTheKeyboard()
{
    QFETCH(const int, page);
    QFETCH(const Qt::Key, key);
    QFETCH(const Qt::KeyboardModifiers, modifiers);
    const PcWithLists pc;
    const KeyDriver driver;
    QVERIFY(driver.show(page));
    QVERIFY(driver.holder() != pageTables.at(page));
    driver.press(key, modifiers);
    QCOMPARE(driver.holder(), pageTables.at(page));
    driver.press(Qt::Key_Escape);
    QCOMPARE(driver.holder(), QString());
    QVERIFY(driver.window().isVisible());
}

void TestKeyboard::pagesWithoutListHaveNothingToSearch_data()
{
    QTest::addColumn<int>("page");
    for (const int page : {0, 5, 6, 7, 8})
        QTest::addRow("page %d", page) << page;
}

void TestKeyboard::pagesWithoutListHaveNothingToSearch()
{
    QFETCH(const int, page);
    const PcWithLists pc;
    const KeyDriver driver;
    QVERIFY(driver.show(page));
    const QString before = driver.holder();
    driver.press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(driver.holder(), before);
}

void TestKeyboard::keysInTheListAreItsOwn()
{
    const PcWithLists pc;
    KeyDriver driver;
    QVERIFY(driver.openServices());
    driver.press(Qt::Key_F6);
    QCOMPARE(driver.currentText(), u"Bravo"_s);
    driver.press(Qt::Key_Down);
    QCOMPARE(driver.currentText(), u"Charlie"_s);
    driver.press(Qt::Key_Space);
    QCOMPARE(driver.checked(), QStringList{u"Charlie"_s});
    driver.type(u"de"_s);
    QCOMPARE(driver.currentText(), u"Delta"_s);
    driver.press(Qt::Key_Space);
    driver.press(Qt::Key_Up);
    driver.press(Qt::Key_Space);
    QCOMPARE(driver.checked(), QStringList{u"Delta"_s});
    driver.press(Qt::Key_Right);
    QCOMPARE(driver.services()->currentColumn(), 1);
    driver.press(Qt::Key_Home);
    QCOMPARE(driver.services()->currentColumn(), 0);
    QCOMPARE(driver.window().currentPage(), 1);
}

void TestKeyboard::theCurrentRowIsOneThatCanBeChosen()
{
    const PcWithLists pc;
    KeyDriver driver;
    QVERIFY(driver.openServices());
    QCOMPARE(driver.listed().first(), u"AppReadiness"_s);
    driver.press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(driver.currentText(), u"Bravo"_s);
    driver.press(Qt::Key_Down);
    driver.press(Qt::Key_F, Qt::ControlModifier); // the keyboard is there already
    QCOMPARE(driver.currentText(), u"Charlie"_s);
}

void TestKeyboard::aListFilledAnewBeginsAgain()
{
    const PcWithLists pc;
    KeyDriver driver;
    QVERIFY(driver.openServices());
    driver.press(Qt::Key_F6);
    driver.press(Qt::Key_Down);
    driver.press(Qt::Key_F5);
    QVERIFY(driver.waitForList());
    QCOMPARE(driver.holder(), u"tblSvc"_s);
    QCOMPARE(driver.currentText(), QString());
    driver.press(Qt::Key_Down);
    QCOMPARE(driver.currentText(), u"Bravo"_s);
    driver.press(Qt::Key_Down);
    QCOMPARE(driver.currentText(), u"Charlie"_s);
}

void TestKeyboard::theKeyboardStaysOnNoOtherPage()
{
    const PcWithLists pc;
    KeyDriver driver;
    QVERIFY(driver.openServices());
    driver.press(Qt::Key_F6);
    driver.press(Qt::Key_8, Qt::ControlModifier);
    QCOMPARE(driver.holder(), QString());
}

void TestKeyboard::theCurrentRowHasAFrame_data()
{
    QTest::addColumn<QString>("theme");
    for (const QString &theme : {u"light"_s, u"dark"_s, u"system"_s})
        QTest::newRow(qPrintable(theme)) << theme;
}

void TestKeyboard::theCurrentRowHasAFrame()
{
    QFETCH(const QString, theme);
    PcWithLists pc;
    pc.write(settingsKey, u"palette"_s, theme);
    const KeyDriver driver;
    QVERIFY(driver.show(3));
    QTableWidget *list = driver.table(u"tblAutorun"_s);
    const QColor text = list->palette().color(QPalette::Text);
    // In the last cell of the row, which isn't the current one, and clear of its text
    const QRect cell = list->visualItemRect(list->item(0, 1));
    const int x = std::min(cell.right(), list->viewport()->width()) - 3;
    const auto colors = [&] {
        const QImage image = list->viewport()->grab().toImage();
        return std::pair(image.pixelColor(x, cell.top()), image.pixelColor(x, cell.bottom()));
    };
    const auto before = colors();
    QVERIFY(before.first != text && before.second != text);
    driver.press(Qt::Key_F6);
    QCOMPARE(list->currentColumn(), 0);
    QTRY_COMPARE(colors(), std::pair(text, text));
    driver.press(Qt::Key_Escape);
    QTRY_COMPARE(colors(), before);
}

void TestKeyboard::theKeyboardGoesThroughThePage()
{
    const PcWithLists pc;
    KeyDriver driver;
    QVERIFY(driver.openServices());
    QStringList order;
    for (int step = 0; step < 7; ++step) {
        driver.press(Qt::Key_F6);
        order.append(driver.holder());
    }
    QCOMPARE(order, QStringList({u"tblSvc"_s, u"btnSvcViewDisabled"_s, u"btnSvcRestore"_s, u"btnSvcAssist"_s,
                                 u"cbSvcFeatures"_s, u"btnSvcDisable"_s, u"tblSvc"_s}));
    driver.press(Qt::Key_F6, Qt::ShiftModifier);
    QCOMPARE(driver.holder(), u"btnSvcDisable"_s);
    driver.press(Qt::Key_Escape);
    driver.press(Qt::Key_F6, Qt::ShiftModifier);
    QCOMPARE(driver.holder(), u"btnSvcDisable"_s);
    QVERIFY(driver.walkTo(u"btnSvcViewDisabled"_s));
    driver.press(Qt::Key_Space);
    QCOMPARE(driver.button(u"btnSvcDisable"_s)->text(), u"ENABLE checked services"_s);
}

void TestKeyboard::everyControlOfAPageIsReached_data()
{
    QTest::addColumn<int>("page");
    for (int page = 0; page < pageCount; ++page)
        QTest::addRow("page %d", page) << page;
}

/** With nothing but the keyboard a box that isn't reached can't be checked. */
void TestKeyboard::everyControlOfAPageIsReached()
{
    QFETCH(const int, page);
    const PcWithLists pc;
    const KeyDriver driver;
    QVERIFY(driver.show(page));
    const QWidget *shown = driver.get<QTabWidget>(u"tabWidget"_s)->currentWidget();
    QSet<const QWidget *> wanted;
    for (const QAbstractButton *button : shown->findChildren<QAbstractButton *>()) {
        if (button->isVisible() && button->isEnabled() && !button->objectName().isEmpty())
            wanted.insert(button);
    }
    QSet<const QWidget *> reached;
    for (int step = 0; step < 60; ++step) {
        driver.press(Qt::Key_F6);
        reached.insert(QApplication::focusWidget());
        if (const QWidget *holder = QApplication::focusWidget(); qobject_cast<const QAbstractButton *>(holder))
            QVERIFY(holder->visibleRegion().boundingRect().height() > 0); // scrolled to
    }
    QCOMPARE(reached & wanted, wanted);
}

void TestKeyboard::policiesAndSelectionsStay()
{
    const PcWithLists pc;
    const KeyDriver driver;
    for (const QAbstractButton *button : driver.window().findChildren<QAbstractButton *>()) {
        if (button->objectName().startsWith("btn"_L1) || button->objectName().startsWith("chk"_L1))
            QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    }
    for (const QString &name : pageTables.mid(1, 4)) {
        QCOMPARE(driver.table(name)->focusPolicy(), Qt::NoFocus);
        QCOMPARE(driver.table(name)->selectionMode(),
                 name == "tblSvc"_L1 ? QAbstractItemView::SingleSelection : QAbstractItemView::NoSelection);
    }
}

void TestKeyboard::mainButton_data()
{
    addColumns<int, QString>("page", "button");
    QTest::newRow("Optimizer") << 0 << u"btnAutomatizerAnalyze"_s;
    QTest::newRow("Services") << 1 << u"btnSvcDisable"_s;
    QTest::newRow("Tasks") << 2 << u"btnTaskDisable"_s;
    QTest::newRow("Features") << 5 << u"btnTweakApply"_s;
    for (const int page : {3, 4, 6, 7, 8})
        QTest::addRow("page %d", page) << page << QString();
}

void TestKeyboard::mainButton()
{
    QFETCH(const int, page);
    QFETCH(const QString, button);
    const PcWithLists pc;
    const KeyDriver driver;
    QVERIFY(driver.show(page));
    QStringList clicked;
    for (const QPushButton *each : driver.window().findChildren<QPushButton *>()) {
        QObject::disconnect(each, &QPushButton::clicked, &driver.window(), nullptr);
        QObject::connect(each, &QPushButton::clicked, each, [&clicked, each] { clicked.append(each->objectName()); });
    }
    driver.press(Qt::Key_Return, Qt::ControlModifier);
    driver.press(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
    QCOMPARE(clicked, button.isEmpty() ? QStringList() : QStringList({button, button}));
}

void TestKeyboard::optimizeIsTheMainButtonWhenThereIsSomething()
{
    const PcWithLists pc;
    const KeyDriver driver;
    driver.worker().analyzeServiceCount = 1;
    QStringList clicked;
    for (const QString &name : {u"btnAutomatizerAnalyze"_s, u"btnAutomatize"_s}) {
        QPushButton *button = driver.button(name);
        QObject::disconnect(button, &QPushButton::clicked, &driver.window(), nullptr);
        QObject::connect(button, &QPushButton::clicked, button, [&clicked, name] { clicked.append(name); });
    }
    driver.press(Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(clicked, QStringList{u"btnAutomatize"_s});
}

void TestKeyboard::whatAsksNothingHasNoKey_data()
{
    addColumns<int, QString>("page", "key");
    QTest::newRow("programs") << 3 << u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
}

/** All its rows are checked from the beginning. */
void TestKeyboard::whatAsksNothingHasNoKey()
{
    QFETCH(const int, page);
    QFETCH(const QString, key);
    const PcWithLists pc;
    const KeyDriver driver;
    QVERIFY(driver.show(page));
    driver.press(Qt::Key_F6);
    driver.press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(driver.settle());
    QCOMPARE(pc.names(key), QStringList{u"App"_s});
}

/** Finds a service by its name, checks it, disables it, and brings it back, by nothing but keys. */
void TestKeyboard::servicesWithoutAMouse()
{
    const TestMachine pc(u"windows11"_s);
    const QString spooler = servicesKey + u"\\Spooler"_s;
    KeyDriver driver;
    QCOMPARE(pc.read(spooler, u"Start"_s).toInt(), 2);

    driver.press(Qt::Key_2, Qt::ControlModifier);
    QVERIFY(driver.waitForList());
    driver.press(Qt::Key_F, Qt::ControlModifier);
    driver.type(u"print"_s);
    QCOMPARE(driver.currentText(), u"Print Spooler"_s);
    driver.press(Qt::Key_Space);
    QCOMPARE(driver.checked(), QStringList{u"Spooler"_s});
    driver.press(Qt::Key_Return, Qt::ControlModifier);
    QVERIFY(driver.waitForList());
    QCOMPARE(pc.read(spooler, u"Start"_s).toInt(), 4);
    QVERIFY(!driver.listed().contains(u"Spooler"_s));

    QVERIFY(driver.walkTo(u"btnSvcRestore"_s));
    // There is a backup of all start modes, and the default is to restore what was disabled here alone.
    KeyAnswer answer(Qt::Key_Return);
    driver.press(Qt::Key_Space);
    QVERIFY(answer.came);
    QVERIFY(driver.waitForList());
    QCOMPARE(pc.read(spooler, u"Start"_s).toInt(), 2);
    QVERIFY(driver.listed().contains(u"Spooler"_s));
}

KESTRUNE_WINDOW_SUITE(TestKeyboard)
#include "tst_keyboard.moc"
