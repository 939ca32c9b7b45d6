// SPDX-License-Identifier: GPL-3.0-or-later
// The menu on the left, the pages that it opens, and what keeps a busy program on its page.

#include "support/menus.h"
#include "support/suite.h"
#include "support/windowdriver.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPointer>
#include <QScrollArea>
#include <QSemaphore>
#include <QSignalSpy>
#include <QStyle>
#include <QTabBar>
#include <QTest>

#include <numeric>

using namespace Qt::StringLiterals;

namespace {

struct MenuButton
{
    QString name;
    QString image;
    int page; ///< the page a click shows; -1 where a click opens a menu
};

const QList<MenuButton> menuButtons{
    {u"btnMenuHome"_s, u"optimizer"_s, 0},  {u"btnMenuService"_s, u"services"_s, 1},
    {u"btnMenuTask"_s, u"tasks"_s, 2},      {u"btnMenuPackage"_s, u"programs"_s, -1},
    {u"btnMenuTweak"_s, u"features"_s, 5},  {u"btnMenuInfo"_s, u"info"_s, 6},
    {u"btnMenuOptions"_s, u"options"_s, 7}, {u"btnMenuAbout"_s, u"about"_s, 8},
};

const QStringList tabs{u"tabAutomatizer"_s, u"tabService"_s, u"tabTask"_s,    u"tabAutorun"_s, u"tabPackage"_s,
                       u"tabTweak"_s,       u"tabInfo"_s,    u"tabOptions"_s, u"tabAbout"_s};

QString menuButtonOf(int page)
{
    const QStringList names{u"btnMenuHome"_s,    u"btnMenuService"_s, u"btnMenuTask"_s,
                            u"btnMenuPackage"_s, u"btnMenuPackage"_s, u"btnMenuTweak"_s,
                            u"btnMenuInfo"_s,    u"btnMenuOptions"_s, u"btnMenuAbout"_s};
    return names.at(page);
}

QString color(QPalette::ColorRole role)
{
    return QGuiApplication::palette().color(role).name();
}

QString idleStyle(const QString &image)
{
    return u"QPushButton { background-image:url("_s + QCoreApplication::applicationDirPath() + u"/img/"_s + image
           + u"); background-repeat: no-repeat; background-position: left; border-radius: 6px; text-align: center; "
             "margin-left: 12px; color: "_s
           + color(QPalette::Text) + u"; }QPushButton:hover { background-color: "_s + color(QPalette::Mid)
           + u"; color: "_s + color(QPalette::Link) + u";}QPushButton:pressed { color: "_s + color(QPalette::Link)
           + u"; }QPushButton:flat { border: none; }"_s;
}

QString activeStyle(const QString &image)
{
    return u"QPushButton { background-image:url("_s + QCoreApplication::applicationDirPath() + u"/img/"_s + image
           + u"); background-repeat: no-repeat; background-position: left; border-radius: 6px; "
             "margin-left: 12px; color: "_s
           + color(QPalette::Link) + u"; }QPushButton:hover { background-color: "_s + color(QPalette::Mid)
           + u"; color: "_s + color(QPalette::Link) + u";}QPushButton:pressed { color: "_s + color(QPalette::Link)
           + u"; }QPushButton:flat { border: none; }"_s;
}

/** All that a page switch changes. */
struct State
{
    int page;
    QString status;
    bool barHidden;
    QStringList styles;
    QList<QFont> fonts;

    friend bool operator==(const State &, const State &) = default;
};

State stateOf(const WindowDriver &driver)
{
    State state{driver.window().currentPage(), driver.status(), driver.bar()->isHidden(), {}, {}};
    for (const MenuButton &button : menuButtons) {
        state.styles.append(driver.button(button.name)->styleSheet());
        state.fonts.append(driver.button(button.name)->font());
    }
    return state;
}

/** A window on the About page whose status and bar tell whether a page switch has begun. */
void markState(const WindowDriver &driver)
{
    driver.window().showPage(8);
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"untouched"_s);
    driver.bar()->show();
}

/** Keeps the worker for ordinary jobs busy, in a pause. */
bool keepBusy(const WindowDriver &driver)
{
    QSignalSpy lines(&driver.worker(), &WorkThread::valueChanged);
    driver.worker().startJob(JobWinSxsSize);
    return QTest::qWaitFor([&lines] { return lines.size() == 3; }, patience) && driver.worker().isRunning();
}

} // namespace

class TestNavigation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Pages and marks
    void pageHasTheTabOfItsNumber();
    void menuButtonShowsItsPage_data();
    void menuButtonShowsItsPage();
    void imagesAreThereInTheirOwnSizeAndTwiceIt();
    void shownPagesButtonAloneIsBoldAndActive_data();
    void shownPagesButtonAloneIsBoldAndActive();
    void showingAPageEmptiesTheStatusAndHidesTheBar_data();
    void showingAPageEmptiesTheStatusAndHidesTheBar();
    void homePageStartsNoJobAndKeepsTheAutomatizersText();
    void numberOfNoPageDoesTheHeadAlone_data();
    void numberOfNoPageDoesTheHeadAlone();

    // Guards
    void runningJobKeepsThePage_data();
    void runningJobKeepsThePage();
    void cursorTellsOfAJob();
    void buttonsTellWhatCantBeSeen();
    void formStaysOnAScreenThatHasRoomForIt();
    void pageScrollsOnASmallScreen_data();
    void pageScrollsOnASmallScreen();
    void wideWindowShowsWhatIsCutElsewhere_data();
    void wideWindowShowsWhatIsCutElsewhere();
    void automatizerPhaseKeepsThePage_data();
    void automatizerPhaseKeepsThePage();
    void restoringDoesNotKeepThePage();
    void monitorDoesNotKeepThePage();

    // WinSxS
    void switchingThePageEndsTheWinSxsCount_data();
    void switchingThePageEndsTheWinSxsCount();
    void aCountThatDoesNotAnswerGivesWayToTheNext();
    void guardedSwitchLeavesTheWinSxsCountAlone();

    // Refresh
    void refreshShowsThePagesZeroToThreeAlone_data();
    void refreshShowsThePagesZeroToThreeAlone();

    // Programs menu
    void programsMenuOffersTwoPages_data();
    void programsMenuOffersTwoPages();
    void programsMenuLeftByEscapeShowsNoPage();
    void programsMenuIsStyledByThePaletteSetting_data();
    void programsMenuIsStyledByThePaletteSetting();

    // The form
    void formIsPrepared();
    void formPreparedAgainConnectsTheContextMenusOnce();
    void formPreparedAgainPutsWidthsBack();
};

void TestNavigation::pageHasTheTabOfItsNumber()
{
    const WindowOnPc driver;
    auto *pages = driver.get<QTabWidget>(u"tabWidget"_s);
    QCOMPARE(pages->count(), 9);
    for (int page = 0; page < 9; ++page)
        QCOMPARE(pages->widget(page)->objectName(), tabs.at(page));
}

void TestNavigation::menuButtonShowsItsPage_data()
{
    addColumns<QString, int>("button", "page");
    for (const MenuButton &button : menuButtons) {
        if (button.page >= 0)
            QTest::newRow(qPrintable(button.name)) << button.name << button.page;
    }
}

void TestNavigation::menuButtonShowsItsPage()
{
    QFETCH(const QString, button);
    QFETCH(const int, page);
    const WindowOnPc driver;
    driver.window().showPage(page == 8 ? 0 : 8);
    QVERIFY(driver.window().currentPage() != page);
    driver.click(button);
    QCOMPARE(driver.window().currentPage(), page);
    QCOMPARE(driver.get<QTabWidget>(u"tabWidget"_s)->currentWidget()->objectName(), tabs.at(page));
}

void TestNavigation::imagesAreThereInTheirOwnSizeAndTwiceIt()
{
    const QDir folder(QCoreApplication::applicationDirPath() + u"/img"_s);
    QStringList names{u"dropdown"_s};
    for (const MenuButton &button : menuButtons)
        names << button.image << button.image + u"-w"_s;
    for (const QString &name : names) {
        const QImage image(folder.filePath(name + u".png"_s));
        QVERIFY2(!image.isNull(), qPrintable(name));
        // Which Qt takes where the screen is scaled
        QCOMPARE(QImage(folder.filePath(name + u"@2x.png"_s)).size(), 2 * image.size());
    }
    QCOMPARE(folder.entryList(QDir::Files).size(), 2 * names.size());
}

void TestNavigation::shownPagesButtonAloneIsBoldAndActive_data()
{
    addColumns<QString, int, QString>("theme", "page", "imageEnd");
    for (const char *theme : {"dark", "light", "system"}) {
        for (int page = 0; page < 9; ++page) {
            QTest::addRow("%s, page %d", theme, page)
                << QString::fromLatin1(theme) << page << (QByteArray(theme) == "dark" ? u"-w.png"_s : u".png"_s);
        }
    }
}

void TestNavigation::shownPagesButtonAloneIsBoldAndActive()
{
    QFETCH(const QString, theme);
    QFETCH(const int, page);
    QFETCH(const QString, imageEnd);
    TestMachine machine;
    machine.write(settingsKey, u"palette"_s, theme);
    const WindowDriver driver;
    driver.window().showPage(page);
    for (const MenuButton &button : menuButtons) {
        const bool active = button.name == menuButtonOf(page);
        const QString image = button.image + imageEnd;
        QPushButton *shown = driver.button(button.name);
        QCOMPARE(shown->styleSheet(), active ? activeStyle(image) : idleStyle(image));
        QCOMPARE(shown->font().family(), u"Segoe UI"_s);
        QCOMPARE(shown->font().pointSize(), 11);
        QCOMPARE(shown->font().weight(), active ? QFont::Bold : QFont::Normal);
        QVERIFY(!shown->font().italic());
    }
}

void TestNavigation::showingAPageEmptiesTheStatusAndHidesTheBar_data()
{
    QTest::addColumn<int>("page");
    for (const int page : {0, 7, 8})
        QTest::addRow("page %d", page) << page;
}

void TestNavigation::showingAPageEmptiesTheStatusAndHidesTheBar()
{
    QFETCH(const int, page);
    const WindowOnPc driver;
    markState(driver);
    driver.window().showPage(page);
    QCOMPARE(driver.status(), QString());
    QVERIFY(driver.bar()->isHidden());
}

void TestNavigation::homePageStartsNoJobAndKeepsTheAutomatizersText()
{
    const WindowOnPc driver;
    auto *text = driver.get<QTextEdit>(u"txtAutomatizer"_s);
    text->setPlainText(u"as it was"_s);
    driver.window().showPage(8);
    driver.click(u"btnMenuHome"_s);
    QCOMPARE(text->toPlainText(), u"as it was"_s);
    for (const WorkThread *worker : driver.workers())
        QVERIFY(!worker->isRunning());
}

void TestNavigation::numberOfNoPageDoesTheHeadAlone_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("one too many") << 9;
    QTest::newRow("far too many") << 1000;
    QTest::newRow("below the first") << -1;
}

void TestNavigation::numberOfNoPageDoesTheHeadAlone()
{
    QFETCH(const int, page);
    const WindowOnPc driver;
    markState(driver);
    const State before = stateOf(driver);
    driver.window().showPage(page);
    const State after = stateOf(driver);
    QCOMPARE(after.status, QString());
    QVERIFY(after.barHidden);
    QCOMPARE(after.page, before.page);
    QCOMPARE(after.styles, before.styles);
    QCOMPARE(after.fonts, before.fonts);
}

void TestNavigation::runningJobKeepsThePage_data()
{
    menuButtonShowsItsPage_data();
}

void TestNavigation::runningJobKeepsThePage()
{
    QFETCH(const QString, button);
    const WindowOnPc driver(endlessPauses());
    markState(driver);
    if (button == "btnMenuAbout"_L1) {
        driver.window().showPage(0);
        driver.get<QLabel>(u"lblStatus"_s)->setText(u"untouched"_s);
    }
    QVERIFY(keepBusy(driver));
    const State before = stateOf(driver);
    driver.click(button);
    QVERIFY(driver.worker().isRunning());
    QVERIFY(stateOf(driver) == before);
}

void TestNavigation::cursorTellsOfAJob()
{
    const WindowOnPc driver(endlessPauses());
    QCOMPARE(driver.window().cursor().shape(), Qt::ArrowCursor);
    QVERIFY(keepBusy(driver));
    QTRY_COMPARE_WITH_TIMEOUT(driver.window().cursor().shape(), Qt::BusyCursor, patience);
    QVERIFY(driver.endJob());
    QTRY_COMPARE_WITH_TIMEOUT(driver.window().cursor().shape(), Qt::ArrowCursor, patience);
}

/** What the window doesn't ask first is said before the click, in the language of the moment. */
void TestNavigation::buttonsTellWhatCantBeSeen()
{
    TestMachine machine;
    machine.write(settingsKey, u"lang"_s, u"en"_s);
    const WindowDriver driver;
    QVERIFY(driver.button(u"btnAutomatize"_s)->toolTip().contains(u"close the window"_s));
    for (const QString &name : {u"btnAutomatize"_s, u"btnPackagesUninst"_s})
        QVERIFY(Qt::mightBeRichText(driver.button(name)->toolTip())); // which wraps
    QVERIFY(driver.button(u"btnPackagesUninst"_s)->toolTip().contains(u"without asking"_s));
    driver.window().showPage(7);
    driver.get<QComboBox>(u"cbOptionsLang"_s)->setCurrentIndex(1);
    QVERIFY(driver.button(u"btnAutomatize"_s)->toolTip().contains(u"fermez la fenêtre"_s));
    QVERIFY(driver.button(u"btnPackagesUninst"_s)->toolTip().contains(u"sans poser de question"_s));
}

void TestNavigation::formStaysOnAScreenThatHasRoomForIt()
{
    const WindowOnPc driver;
    driver.window().fitToScreen({1366, 728});
    QCOMPARE(driver.window().minimumSize(), QSize(800, 640));
    QVERIFY(driver.window().findChild<QScrollArea *>(u"pageArea"_s) == nullptr);
}

/** 1366 x 768 at 125 %, and 1920 x 1080 at 200 %, without the taskbar. */
void TestNavigation::pageScrollsOnASmallScreen_data()
{
    addColumns<QSize>("available");
    QTest::newRow("125 %") << QSize(1093, 574);
    QTest::newRow("200 %") << QSize(960, 500);
    QTest::newRow("narrow, too") << QSize(700, 500);
}

void TestNavigation::pageScrollsOnASmallScreen()
{
    QFETCH(const QSize, available);
    const WindowOnPc driver;
    Kestrune &window = driver.window();
    window.fitToScreen(available);
    const int titleBar = window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    QTRY_VERIFY(window.height() + titleBar <= available.height() && window.width() <= available.width());
    auto *area = driver.get<QScrollArea>(u"pageArea"_s);
    QVERIFY(area->widget() == driver.get<QTabWidget>(u"tabWidget"_s));
    // Nothing is lower than the form has it.
    const QSize form(800 - 180, 640 - 24);
    QVERIFY(area->widget()->height() <= form.height() && area->widget()->height() > form.height() - 60);
    for (const auto &[page, name] : {std::pair(0, u"btnAutomatize"_s), {7, u"chkOptionsMonitor"_s}}) {
        window.showPage(page);
        auto *last = driver.get<QWidget>(name);
        // The layout may still be on its way.
        const auto isSeen = [&] {
            area->ensureWidgetVisible(last);
            return last->visibleRegion().boundingRect().height() == last->height();
        };
        QVERIFY(QTest::qWaitFor(isSeen, patience));
    }
}

void TestNavigation::wideWindowShowsWhatIsCutElsewhere_data()
{
    addColumns<QString, int, QList<int>>("table", "growing", "widths");
    QTest::newRow("services") << u"tblSvc"_s << 2 << QList{240, 100, 1400};
    QTest::newRow("tasks") << u"tblTasks"_s << 1 << QList{400, 400, 0};
    QTest::newRow("packages") << u"tblPackages"_s << 0 << QList{200, 200, 400};
    QTest::newRow("startup") << u"tblAutorun"_s << 1 << QList{200, 460};
}

void TestNavigation::wideWindowShowsWhatIsCutElsewhere()
{
    QFETCH(const QString, table);
    QFETCH(const int, growing);
    QFETCH(QList<int>, widths);
    const WindowOnPc driver;
    const QTableWidget *list = driver.table(table);
    const auto columns = [list, &widths] {
        QList<int> shown;
        for (int column = 0; column < widths.size(); ++column)
            shown.append(list->columnWidth(column));
        return shown;
    };
    auto *pages = driver.get<QTabWidget>(u"tabWidget"_s);
    for (int page = 0; page < pages->count(); ++page) {
        if (pages->widget(page)->isAncestorOf(list))
            pages->setCurrentIndex(page);
    }
    QCOMPARE(columns(), widths);
    driver.window().resize(2400, 900);
    QTRY_VERIFY(list->viewport()->width() > 2000);
    const QList<int> form = widths;
    const int others = std::accumulate(form.cbegin(), form.cend(), 0) - form.at(growing);
    widths[growing] = list->viewport()->width() - others;
    QCOMPARE(columns(), widths);
    driver.window().resize(800, 640);
    QTRY_COMPARE(columns(), form);
}

void TestNavigation::automatizerPhaseKeepsThePage_data()
{
    addColumns<int, int>("analyze", "optimize");
    QTest::newRow("Analyze") << 1 << 0;
    QTest::newRow("Optimize") << 0 << 1;
    QTest::newRow("both") << 1 << 1;
}

void TestNavigation::automatizerPhaseKeepsThePage()
{
    QFETCH(const int, analyze);
    QFETCH(const int, optimize);
    const WindowOnPc driver;
    markState(driver);
    driver.worker().analyzeRunning = analyze;
    driver.worker().optimizeRunning = optimize;
    const State before = stateOf(driver);
    for (int page = 0; page < 9; ++page) {
        driver.window().showPage(page);
        QVERIFY(stateOf(driver) == before);
    }
    driver.click(u"btnMenuHome"_s);
    QVERIFY(stateOf(driver) == before);

    driver.worker().analyzeRunning = 0;
    driver.worker().optimizeRunning = 0;
    driver.click(u"btnMenuHome"_s);
    QCOMPARE(driver.window().currentPage(), 0);
}

void TestNavigation::restoringDoesNotKeepThePage()
{
    // After a restore with features the mark stays until the program ends; the pages must stay within reach.
    const WindowOnPc driver;
    driver.worker().restoreRunning = 1;
    driver.click(u"btnMenuAbout"_s);
    QCOMPARE(driver.window().currentPage(), 8);
}

void TestNavigation::monitorDoesNotKeepThePage()
{
    const WindowOnPc driver(endlessPauses());
    WorkThread &monitor = *driver.workers().at(2);
    QSignalSpy lines(&monitor, &WorkThread::valueChanged);
    monitor.startJob(JobWinSxsSize);
    QTRY_COMPARE(lines.size(), 3);
    driver.click(u"btnMenuAbout"_s);
    QCOMPARE(driver.window().currentPage(), 8);
    QVERIFY(monitor.isRunning());
}

void TestNavigation::switchingThePageEndsTheWinSxsCount_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("another page") << 0;
    QTest::newRow("the Features page again") << 5;
    QTest::newRow("no page") << 99;
}

void TestNavigation::switchingThePageEndsTheWinSxsCount()
{
    QFETCH(const int, page);
    const WindowOnPc driver(endlessPauses());
    driver.window().showPage(5);
    WorkThread &counter = driver.winSxsWorker();
    counter.endJob();
    QSignalSpy lines(&counter, &WorkThread::valueChanged);
    counter.startJob(JobWinSxsSize);
    QTRY_COMPARE(lines.size(), 3);
    QVERIFY(counter.isRunning());
    QSignalSpy finished(&counter, &QThread::finished);
    driver.window().showPage(page);
    QTRY_VERIFY(finished.size() > 0);
    // The count's own closing line, an empty one, didn't come any more.
    for (const QList<QVariant> &line : lines.mid(3))
        QVERIFY(!line.at(0).toString().isEmpty());
}

void TestNavigation::aCountThatDoesNotAnswerGivesWayToTheNext()
{
    TestMachine machine;
    QVERIFY(QFile::resize(machine.addFile(u"C:\\Windows\\WinSxS\\a.bin"_s), 3LL << 29));
    const WindowDriver driver;
    // Waits on the worker's own thread, as a call into the system that doesn't come back before it is let.
    const QPointer<WorkThread> deaf = &driver.winSxsWorker();
    QSemaphore answer;
    bool cameBack = false;
    QObject::connect(deaf, &QThread::started, [&] {
        answer.acquire();
        cameBack = true;
    });
    driver.window().showPage(5);
    QVERIFY(deaf->isRunning());

    driver.window().showPage(5);
    const QPushButton *size = driver.button(u"btnSsd8"_s);
    QTRY_VERIFY_WITH_TIMEOUT(size->text().endsWith(u"(current size: 1.5 GB)"_s), patience);
    answer.release();
    QTRY_VERIFY_WITH_TIMEOUT(deaf.isNull(), patience);
    QVERIFY(cameBack);
}

void TestNavigation::guardedSwitchLeavesTheWinSxsCountAlone()
{
    const WindowOnPc driver(endlessPauses());
    QSignalSpy lines(&driver.winSxsWorker(), &WorkThread::valueChanged);
    driver.winSxsWorker().startJob(JobWinSxsSize);
    QTRY_COMPARE(lines.size(), 3);
    driver.worker().analyzeRunning = 1;
    driver.window().showPage(0);
    QVERIFY(driver.winSxsWorker().isRunning());
}

void TestNavigation::refreshShowsThePagesZeroToThreeAlone_data()
{
    addColumns<int, bool>("page", "refreshes");
    for (int page = 0; page < 9; ++page)
        QTest::addRow("page %d", page) << page << (page <= 3);
}

void TestNavigation::refreshShowsThePagesZeroToThreeAlone()
{
    QFETCH(const int, page);
    QFETCH(const bool, refreshes);
    const WindowOnPc driver;
    driver.window().showPage(page);
    QTRY_VERIFY(!driver.worker().isRunning() && !driver.winSxsWorker().isRunning());
    QCoreApplication::processEvents();
    driver.bar()->show();
    driver.call("refreshPage");
    QCOMPARE(driver.window().currentPage(), page);
    QCOMPARE(driver.bar()->isHidden(), refreshes);
}

void TestNavigation::programsMenuOffersTwoPages_data()
{
    addColumns<QString, int>("choice", "page");
    QTest::newRow("autorun") << u"Automatically started programs"_s << 3;
    QTest::newRow("packages") << u"Windows packages installed"_s << 4;
}

void TestNavigation::programsMenuOffersTwoPages()
{
    QFETCH(const QString, choice);
    QFETCH(const int, page);
    const WindowOnPc driver;
    Menus menus({choice});
    driver.click(u"btnMenuPackage"_s);
    QCOMPARE(menus.shown().size(), 1);
    QCOMPARE(menus.shown().at(0).actions,
             QStringList({u"Automatically started programs"_s, u"Windows packages installed"_s}));
    QVERIFY(!menus.shown().at(0).hasParent);
    QCOMPARE(driver.window().currentPage(), page);
}

void TestNavigation::programsMenuLeftByEscapeShowsNoPage()
{
    const WindowOnPc driver;
    markState(driver);
    const State before = stateOf(driver);
    Menus menus({QString()});
    driver.click(u"btnMenuPackage"_s);
    QVERIFY(stateOf(driver) == before);
}

void TestNavigation::programsMenuIsStyledByThePaletteSetting_data()
{
    addColumns<QString, QStringList>("stored", "colors");
    const QStringList dark{u"#323232"_s, u"#464646"_s, u"#3c3c3c"_s};
    QTest::newRow("dark") << u"dark"_s << dark;
    QTest::newRow("hint") << u"possible values: 'light' or 'dark' or 'system'"_s << dark;
    QTest::newRow("light") << u"light"_s << QStringList{u"#f8f8f8"_s, u"#e0e0e0"_s, u"#e6e6e6"_s};
    QTest::newRow("unknown") << u"blue"_s << QStringList();
    QTest::newRow("system") << u"system"_s << QStringList();
}

void TestNavigation::programsMenuIsStyledByThePaletteSetting()
{
    QFETCH(const QString, stored);
    QFETCH(const QStringList, colors);
    TestMachine machine;
    const WindowDriver driver;
    // The start may have written another one.
    machine.write(settingsKey, u"palette"_s, stored);
    Menus menus({QString()});
    driver.click(u"btnMenuPackage"_s);
    QCOMPARE(menus.shown().at(0).styleSheet, menuStyle(colors));
}

void TestNavigation::formIsPrepared()
{
    const WindowOnPc driver;
    QVERIFY(driver.get<QTabWidget>(u"tabWidget"_s)->tabBar()->isHidden());
    QVERIFY(driver.bar()->isHidden());
    const QList<std::pair<QString, QList<int>>> widths{
        {u"tblSvc"_s, {240, 100, 1400}},
        {u"tblTasks"_s, {400, 400, 0}},
        {u"tblPackages"_s, {200, 200, 400}},
        {u"tblAutorun"_s, {200, 460}},
    };
    for (const auto &[name, columns] : widths) {
        auto *table = driver.get<QTableWidget>(name);
        for (int column = 0; column < columns.size(); ++column)
            QCOMPARE(table->columnWidth(column), columns.at(column));
        QCOMPARE(table->contextMenuPolicy(), Qt::CustomContextMenu);
    }
    QCOMPARE(driver.get<QScrollArea>(u"scrollArea"_s)->contextMenuPolicy(), Qt::CustomContextMenu);
}

void TestNavigation::formPreparedAgainConnectsTheContextMenusOnce()
{
    const WindowOnPc driver;
    driver.window().prepareForm();
    driver.window().prepareForm();
    driver.window().showPage(5);
    QTRY_VERIFY(!driver.worker().isRunning());
    for (const char *name : {"tblSvc", "tblTasks", "tblPackages", "tblAutorun", "scrollArea"}) {
        Menus menus({QString()});
        auto *list = driver.get<QWidget>(QString::fromLatin1(name));
        Q_EMIT list->customContextMenuRequested(QPoint());
        QCOMPARE(menus.shown().size(), 1);
    }
}

void TestNavigation::formPreparedAgainPutsWidthsBack()
{
    const WindowOnPc driver;
    driver.services()->setColumnWidth(0, 10);
    driver.get<QTableWidget>(u"tblTasks"_s)->setColumnWidth(2, 10);
    driver.bar()->show();
    driver.get<QTabWidget>(u"tabWidget"_s)->tabBar()->show();
    driver.window().prepareForm();
    QCOMPARE(driver.services()->columnWidth(0), 240);
    QCOMPARE(driver.get<QTableWidget>(u"tblTasks"_s)->columnWidth(2), 0);
    QVERIFY(driver.bar()->isHidden());
    QVERIFY(driver.get<QTabWidget>(u"tabWidget"_s)->tabBar()->isHidden());
}

KESTRUNE_WINDOW_SUITE(TestNavigation)
#include "tst_navigation.moc"
