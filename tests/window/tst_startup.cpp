// SPDX-License-Identifier: GPL-3.0-or-later
// How the window comes up, how it asks for administrator rights, and how it ends.

#include "support/boxes.h"
#include "support/suite.h"
#include "support/windowdriver.h"

#include "window/elevation.h"
#include "work/command.h"
#include "work/settings.h"

#include <QApplication>
#include <QScopeGuard>
#include <QSemaphore>
#include <QSignalSpy>
#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QString currentVersion = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"_s;

void forget(TestMachine &machine, const QString &key, const QString &name)
{
    RegistryStore &registry = machine.machine().registry();
    registry.removeValue(registry.find(key).value(), name);
}

/** The window alone, not yet shown, as main() has it between its building and its showing. */
WorkThread &workerOf(const Kestrune &window)
{
    return *window.findChild<WorkThread *>();
}

/** Runs the event loop as main() does; gives the exit code, or stillRunning where nothing has ended it. */
constexpr int stillRunning = 42;
int runEventLoop()
{
    // Whatever waits for the event loop has had its turn by then.
    constexpr int enoughTurns = 20;
    int turns = 0;
    QTimer everyTurn;
    QObject::connect(&everyTurn, &QTimer::timeout, qApp, [&turns] {
        if (++turns == enoughTurns)
            QCoreApplication::exit(stillRunning);
    });
    everyTurn.start(0);
    return QApplication::exec();
}

} // namespace

class TestStartup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    // Windows' name
    void productNameIsSetRightFromBuild22000On_data();
    void productNameIsSetRightFromBuild22000On();
    void missingProductNameAndBuildAreUnknown();

    // Order
    void windowIsHiddenUntilItIsShown();
    void hasThreeIdleWorkersWithoutLastPage();
    void elevationIsLookedAtInTheEventLoopOnly();
    void windowsNameIsKnownBeforeTheThemeIsChosen_data();
    void windowsNameIsKnownBeforeTheThemeIsChosen();
    void keepListStandsBeforeTheFirstPage();
    void statusNeverShowsTheFormsText();

    // lastPage
    void opensOnTheHomePageWithoutLastPage();
    void lastPageIsUsedAndRemovedOnce();
    void lastPageBeyondTheLastOneStaysOnTheHomePageAndIsRemoved_data();
    void lastPageBeyondTheLastOneStaysOnTheHomePageAndIsRemoved();
    void lastPageOfServicesStartsItsListing();

    // StartAsAdmin
    void startAsAdminTakesThePlaceOfAnUnelevatedInstance_data();
    void startAsAdminTakesThePlaceOfAnUnelevatedInstance();
    void windowIsBuiltInFullBeforeItGivesWay();

    // The offer to start again
    void offerTellsWhatIsNeeded();
    void noChangesNothing();
    void escapeChangesNothing();
    void yesRemembersThePageStartsElevatedAndCloses_data();
    void yesRemembersThePageStartsElevatedAndCloses();
    void thePageIsRememberedBeforeTheElevatedInstanceStarts();
    void windowThatLeftWhileItWasBuiltKeepsThePageForTheElevatedInstance();
    void yesEndsTheEventLoop();

    // The end
    void runningJobsEndWithTheWindow_data();
    void runningJobsEndWithTheWindow();
    void threeRunningWorkersEndWithTheWindow();
    void programThatLeavesBeforeItsEventLoopIsGone();
    void programThatGivesWayBeforeItsEventLoopIsGone();
};

void TestStartup::init()
{
    QGuiApplication::setQuitOnLastWindowClosed(false);
}

void TestStartup::productNameIsSetRightFromBuild22000On_data()
{
    addColumns<QString, QString, QString>("product", "build", "winName");
    QTest::newRow("22631") << u"Windows 10 Pro"_s << u"22631"_s << u"Windows 11 Pro"_s;
    QTest::newRow("19045") << u"Windows 10 Pro"_s << u"19045"_s << u"Windows 10 Pro"_s;
    QTest::newRow("first build of Windows 11") << u"Windows 10 Home"_s << u"22000"_s << u"Windows 11 Home"_s;
    QTest::newRow("one before it") << u"Windows 10 Home"_s << u"21999"_s << u"Windows 10 Home"_s;
    QTest::newRow("called 11 already") << u"Windows 11 Pro"_s << u"26100"_s << u"Windows 11 Pro"_s;
    QTest::newRow("another product") << u"Windows Server 2025"_s << u"26100"_s << u"Windows Server 2025"_s;
    QTest::newRow("build isn't a number") << u"Windows 10 Pro"_s << u"26100 preview"_s << u"Windows 10 Pro"_s;
}

void TestStartup::productNameIsSetRightFromBuild22000On()
{
    QFETCH(const QString, product);
    QFETCH(const QString, build);
    TestMachine machine;
    machine.write(currentVersion, u"ProductName"_s, product);
    machine.write(currentVersion, u"CurrentBuild"_s, build);
    const Kestrune window;
    QTEST(workerOf(window).winName, "winName");
    QCOMPARE(workerOf(window).winBuild, build);
}

void TestStartup::missingProductNameAndBuildAreUnknown()
{
    TestMachine machine;
    forget(machine, currentVersion, u"ProductName"_s);
    forget(machine, currentVersion, u"CurrentBuild"_s);
    const Kestrune window;
    QCOMPARE(workerOf(window).winName, u"unknown"_s);
    QCOMPARE(workerOf(window).winBuild, u"unknown"_s);
}

void TestStartup::windowIsHiddenUntilItIsShown()
{
    TestMachine machine;
    const Kestrune window;
    QVERIFY(!window.isVisible());
    QTRY_VERIFY(window.isVisible());
}

void TestStartup::hasThreeIdleWorkersWithoutLastPage()
{
    TestMachine machine;
    const WindowDriver driver;
    QCOMPARE(driver.workers().size(), 3);
    for (const WorkThread *worker : driver.workers())
        QVERIFY(!worker->isRunning());
    QCOMPARE(driver.worker().winName, u"Windows 11 Home"_s);
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
}

void TestStartup::elevationIsLookedAtInTheEventLoopOnly()
{
    TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    machine.write(settingsKey, u"StartAsAdmin"_s, 1);
    Kestrune window;
    QVERIFY(machine.shellStarts().isEmpty());
    QVERIFY(!window.hasLeft());
    window.show();
    QCOMPARE(runEventLoop(), 0);
    QCOMPARE(machine.shellStarts().size(), 1);
}

void TestStartup::windowsNameIsKnownBeforeTheThemeIsChosen_data()
{
    addColumns<TestMachine::Windows, QString>("windows", "palette");
    QTest::newRow("Windows 10") << TestMachine::Windows::Ten << u"light"_s;
    QTest::newRow("Windows 11") << TestMachine::Windows::Eleven << u"dark"_s;
}

void TestStartup::windowsNameIsKnownBeforeTheThemeIsChosen()
{
    // Both call themselves Windows 10 in the registry; the first start chooses the theme by what they really are.
    QFETCH(const TestMachine::Windows, windows);
    TestMachine machine(windows);
    const Kestrune window;
    QTEST(machine.read(settingsKey, u"palette"_s).toString(), "palette");
}

void TestStartup::keepListStandsBeforeTheFirstPage()
{
    TestMachine machine;
    machine.write(settingsKey, u"Keep_3"_s, 0);
    const WindowDriver driver;
    QCOMPARE(driver.get<QComboBox>(u"cbSvcFeatures"_s)->count(), 10);
    QCOMPARE(driver.get<QComboBox>(u"cbAutorunFeatures"_s)->count(), 10);
    QCOMPARE(driver.worker().keepFilesSharing.load(), 0);
}

void TestStartup::statusNeverShowsTheFormsText()
{
    const WindowOnPc driver;
    QCOMPARE(driver.status(), QString());
    QVERIFY(driver.bar()->isHidden());
}

void TestStartup::opensOnTheHomePageWithoutLastPage()
{
    TestMachine machine;
    const Kestrune window;
    QCOMPARE(window.currentPage(), 0);
    QVERIFY(!machine.names(settingsKey).contains(u"lastPage"_s));
}

void TestStartup::lastPageIsUsedAndRemovedOnce()
{
    TestMachine machine;
    machine.write(settingsKey, u"lastPage"_s, 7);
    {
        const Kestrune window;
        QCOMPARE(window.currentPage(), 7);
        QVERIFY(!machine.names(settingsKey).contains(u"lastPage"_s));
    }
    const Kestrune window;
    QCOMPARE(window.currentPage(), 0);
}

void TestStartup::lastPageBeyondTheLastOneStaysOnTheHomePageAndIsRemoved_data()
{
    QTest::addColumn<QVariant>("lastPage");
    QTest::newRow("9") << QVariant(9);
    QTest::newRow("-1") << QVariant(-1);
    QTest::newRow("huge") << QVariant(0x7fffffff);
}

void TestStartup::lastPageBeyondTheLastOneStaysOnTheHomePageAndIsRemoved()
{
    QFETCH(const QVariant, lastPage);
    TestMachine machine;
    machine.write(settingsKey, u"lastPage"_s, lastPage);
    const WindowDriver driver;
    QCOMPARE(driver.window().currentPage(), 0);
    QCOMPARE(driver.status(), QString());
    QVERIFY(!machine.names(settingsKey).contains(u"lastPage"_s));
}

void TestStartup::lastPageOfServicesStartsItsListing()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .running = true});
    machine.write(settingsKey, u"lastPage"_s, 1);
    const WindowDriver driver;
    QCOMPARE(driver.window().currentPage(), 1);
    // The lines of the job wait for the event loop.
    QCOMPARE(driver.services()->rowCount(), 0);
    QVERIFY(driver.waitForList());
    QCOMPARE(driver.listed(), QStringList(u"Alpha"_s));
}

void TestStartup::startAsAdminTakesThePlaceOfAnUnelevatedInstance_data()
{
    addColumns<QString, QVariant, bool, bool>("name", "value", "elevated", "givesWay");
    QTest::newRow("as the reader spells it") << u"startAsAdmin"_s << QVariant(1) << false << true;
    QTest::newRow("as the Options page spells it") << u"StartAsAdmin"_s << QVariant(1) << false << true;
    QTest::newRow("elevated already") << u"StartAsAdmin"_s << QVariant(1) << true << false;
    QTest::newRow("not wished") << u"StartAsAdmin"_s << QVariant(0) << false << false;
    QTest::newRow("another number") << u"StartAsAdmin"_s << QVariant(2) << false << false;
    QTest::newRow("not set") << QString() << QVariant() << false << false;
}

void TestStartup::startAsAdminTakesThePlaceOfAnUnelevatedInstance()
{
    QFETCH(const QString, name);
    QFETCH(const QVariant, value);
    QFETCH(const bool, elevated);
    QFETCH(const bool, givesWay);
    MachineOptions options;
    options.elevated = elevated;
    TestMachine machine(TestMachine::Windows::Eleven, options);
    if (!name.isEmpty())
        machine.write(settingsKey, name, value);

    Kestrune window;
    window.show();
    QCOMPARE(runEventLoop(), givesWay ? 0 : stillRunning);

    QCOMPARE(machine.shellStarts().size(), givesWay ? 1 : 0);
    if (givesWay) {
        const ShellStart start = machine.shellStarts().at(0);
        QCOMPARE(start.verb, u"runas"_s);
        QCOMPARE(start.file, QCoreApplication::applicationFilePath());
        QCOMPARE(start.parameters, QString());
    }
    QVERIFY(window.isVisible());
    // The record of the page belongs to the offer, not to this way.
    QVERIFY(!machine.names(settingsKey).contains(u"lastPage"_s));
}

void TestStartup::windowIsBuiltInFullBeforeItGivesWay()
{
    TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    machine.write(settingsKey, u"StartAsAdmin"_s, 1);
    machine.write(settingsKey, u"lastPage"_s, 1);
    const Kestrune window;
    QCOMPARE(window.currentPage(), 1);
    QVERIFY(!machine.names(settingsKey).contains(u"lastPage"_s));
    QCOMPARE(workerOf(window).job, int(JobSvcMakeList));
    QCOMPARE(runEventLoop(), 0);
}

void TestStartup::offerTellsWhatIsNeeded()
{
    const WindowOnPc driver(notElevated());
    Boxes boxes({QMessageBox::No});
    showAdminRequiredDialog(&driver.window());
    QCOMPARE(boxes.shown().size(), 1);
    const ShownBox box = boxes.shown().at(0);
    QCOMPARE(box.title, u"Kestrune"_s);
    QCOMPARE(box.text, u"You must launch this app with Admin rights!"_s);
    QCOMPARE(box.informativeText, u"Do you want to start this app with Admin rights?"_s);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.buttonTexts, QStringList({u"Yes"_s, u"No"_s}));
    QCOMPARE(box.icon, QMessageBox::Information);
    QVERIFY(box.modal);
    QVERIFY(!box.hasParent);
}

void TestStartup::noChangesNothing()
{
    TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    const WindowDriver driver;
    driver.window().showPage(8);
    Boxes boxes({QMessageBox::No});
    showAdminRequiredDialog(&driver.window());
    QVERIFY(machine.shellStarts().isEmpty());
    QVERIFY(!machine.names(settingsKey).contains(u"lastPage"_s));
    QVERIFY(driver.window().isVisible());
    QVERIFY(!driver.window().hasLeft());
    QCOMPARE(driver.window().currentPage(), 8);
}

void TestStartup::escapeChangesNothing()
{
    TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    const WindowDriver driver;
    Boxes boxes({QMessageBox::NoButton});
    showAdminRequiredDialog(&driver.window());
    QVERIFY(machine.shellStarts().isEmpty());
    QVERIFY(driver.window().isVisible());
}

void TestStartup::yesRemembersThePageStartsElevatedAndCloses_data()
{
    QTest::addColumn<int>("page");
    QTest::newRow("home") << 0;
    QTest::newRow("features") << 5;
    QTest::newRow("about") << 8;
}

void TestStartup::yesRemembersThePageStartsElevatedAndCloses()
{
    QFETCH(const int, page);
    TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    const WindowDriver driver;
    driver.window().showPage(page);
    Boxes boxes({QMessageBox::Yes});
    showAdminRequiredDialog(&driver.window());

    const QVariant lastPage = machine.read(settingsKey, u"lastPage"_s);
    QCOMPARE(lastPage.typeId(), int(QMetaType::Int));
    QCOMPARE(lastPage.toInt(), page);
    QCOMPARE(machine.shellStarts().size(), 1);
    QCOMPARE(machine.shellStarts().at(0).verb, u"runas"_s);
    QCOMPARE(machine.shellStarts().at(0).file, QCoreApplication::applicationFilePath());
    QCOMPARE(machine.shellStarts().at(0).parameters, QString());
    QVERIFY(!driver.window().isVisible());
}

void TestStartup::thePageIsRememberedBeforeTheElevatedInstanceStarts()
{
    // It may be quick.
    QVariant found;
    MachineOptions options = notElevated();
    options.launcher = [&found](const ShellStart &) { found = openSettings()->value(u"lastPage"_s, QVariant()); };
    const WindowOnPc driver(options);
    driver.window().showPage(5);
    Boxes boxes({QMessageBox::Yes});
    showAdminRequiredDialog(&driver.window());
    QCOMPARE(found, QVariant(5));
}

void TestStartup::windowThatLeftWhileItWasBuiltKeepsThePageForTheElevatedInstance()
{
    // The Tasks page asks as soon as it is shown, which is before the constructor is done. The value isn't its own
    // then.
    TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    machine.write(settingsKey, u"lastPage"_s, 2);
    Boxes boxes({QMessageBox::Yes});
    const Kestrune window;
    QVERIFY(window.hasLeft());
    QCOMPARE(machine.shellStarts().size(), 1);
    QCOMPARE(machine.read(settingsKey, u"lastPage"_s), QVariant(2));
}

void TestStartup::yesEndsTheEventLoop()
{
    TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    const WindowDriver driver;
    QGuiApplication::setQuitOnLastWindowClosed(true);
    Boxes boxes({QMessageBox::Yes});
    QTimer::singleShot(0, &driver.window(), [&driver] { showAdminRequiredDialog(&driver.window()); });
    QCOMPARE(QApplication::exec(), 0);
    QCOMPARE(machine.shellStarts().size(), 1);
}

void TestStartup::runningJobsEndWithTheWindow_data()
{
    addColumns<int, int>("worker", "job");
    QTest::newRow("listing, sc hangs") << 0 << int(JobSvcMakeList);
    QTest::newRow("disabling, sc hangs") << 0 << int(JobSvcDisable);
    QTest::newRow("WinSxS, in its pause") << 1 << int(JobWinSxsSize);
    QTest::newRow("monitor's worker") << 2 << int(JobWinSxsSize);
}

void TestStartup::runningJobsEndWithTheWindow()
{
    QFETCH(const int, worker);
    QFETCH(const int, job);
    TestMachine machine(TestMachine::Windows::Eleven, endlessPauses());
    ToolFault hanging;
    hanging.hang = true;
    machine.machine().setFault(u"sc"_s, hanging);
    Command::timeLimit = std::numeric_limits<int>::max();
    const auto usualLimit = qScopeGuard([] { Command::timeLimit = 30000; });
    WindowDriver driver;
    WorkThread &thread = *driver.workers().at(worker);
    int lines = 0;
    connect(&thread, &WorkThread::valueChanged, this, [&lines] { ++lines; });
    thread.servicesToChange = {u"Alpha"_s};
    thread.startJob(job);
    // The WinSxS job pauses after its third line.
    const int linesToWaitFor = job == JobWinSxsSize ? 3 : job == JobSvcDisable ? 1 : 0;
    QTRY_COMPARE(lines, linesToWaitFor);
    QVERIFY(thread.isRunning());

    QSemaphore ended;
    connect(&thread, &QThread::finished, [&ended] { ended.release(); });
    driver.end();
    QVERIFY(ended.tryAcquire(1, patience));
    QCoreApplication::processEvents();
    QCOMPARE(lines, linesToWaitFor);
}

void TestStartup::threeRunningWorkersEndWithTheWindow()
{
    TestMachine machine(TestMachine::Windows::Eleven, endlessPauses());
    WindowDriver driver;
    int lines = 0;
    for (WorkThread *worker : driver.workers()) {
        connect(worker, &WorkThread::valueChanged, this, [&lines] { ++lines; });
        worker->startJob(JobWinSxsSize);
    }
    QTRY_COMPARE(lines, 9);
    QSemaphore ended;
    for (WorkThread *worker : driver.workers()) {
        QVERIFY(worker->isRunning());
        connect(worker, &QThread::finished, [&ended] { ended.release(); });
    }
    driver.end();
    QVERIFY(ended.tryAcquire(3, patience));
}

void TestStartup::programThatLeavesBeforeItsEventLoopIsGone()
{
    // A page that opens first may show the offer while the window is still being built, before there is an event loop
    // that closing the window could end.
    TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    Kestrune window;
    QVERIFY(!window.hasLeft());
    Boxes boxes({QMessageBox::Yes});
    showAdminRequiredDialog(&window);
    QVERIFY(window.hasLeft());
    QCOMPARE(machine.shellStarts().size(), 1);
}

void TestStartup::programThatGivesWayBeforeItsEventLoopIsGone()
{
    // Such a box runs an event loop of its own, in which the wish to start elevated may be carried out.
    TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    machine.write(settingsKey, u"StartAsAdmin"_s, 1);
    const Kestrune window;
    QCoreApplication::processEvents();
    QVERIFY(window.hasLeft());
    QCOMPARE(machine.shellStarts().size(), 1);
    // Without this the application would still remember that it was to end.
    QCOMPARE(runEventLoop(), stillRunning);
}

KESTRUNE_WINDOW_SUITE(TestStartup)
#include "tst_startup.moc"
