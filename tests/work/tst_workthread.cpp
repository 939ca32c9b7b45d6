// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the worker: its job table, its lines, and how a job is ended.

#include "fakeplatform.h"
#include "joblines.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/command.h"
#include "work/sysinfo/systeminfo.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

namespace {

/** How long a wait for a thread lasts at most, in milliseconds. */
constexpr int patience = 60000;

constexpr qint64 gibibyte = 1024LL * 1024 * 1024;

const QStringList winSxsHead{u"page: Status: Getting WinSxS folder size..."_s};
const QStringList winSxsTail{u"page: Status: Getting WinSxS folder size finished!"_s, u"page: "_s};

/** Pauses that nobody waits out. */
const MachineOptions pausesWithoutEnd{.pace = 1e6};

/** A file of a size that it doesn't take on the disk. */
void addLargeFile(TestMachine &machine, const QString &windowsPath, qint64 size)
{
    machine.addFile(windowsPath);
    machine.machine().setFileSize(windowsPath, size);
}

/** A folder that never ends. */
class EndlessWalk : public FakePlatform
{
public:
    void walk(const QString &, const std::function<bool(const WalkEntry &)> &visit) const override
    {
        while (visit({u"file"_s, 1})) {
        }
    }
};

/** A pause that looks at nothing, as a call into the system that doesn't come back before it is let. */
class DeafPause : public FakePlatform
{
public:
    void pause(int) const override
    {
        while (!letBack)
            QThread::msleep(1);
        cameBack = true;
    }

    std::atomic<bool> letBack = false;
    mutable std::atomic<bool> cameBack = false;
};

} // namespace

class TestWorkThread : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Command::timeLimit = 30000; }

    void aNewWorkerHasItsInitialValues();
    void aNumberWithoutJobEndsWithoutALine_data();
    void aNumberWithoutJobEndsWithoutALine();
    void job0ListsTheServices();
    void job9DisablesAndJob10EnablesTheServicesToChange();
    void emptyListOfServicesStillGivesItsTwoLines_data();
    void emptyListOfServicesStillGivesItsTwoLines();
    void servicesToChangeMayBeRebuiltWhileTheJobRuns();

    void job5SendsItsLinesInOrderAndPauses3Seconds();
    void job5WritesGibibytesWithSixDigits_data();
    void job5WritesGibibytesWithSixDigits();
    void job5SumsAllLevelsAndLeavesHiddenEntriesOut();
    void job5OfAMissingFolderGives0();
    void job5OfAFolderThatCantBeReadGives0();
    void job5WithoutWindirWalksWinSxsOnTheDrivesRoot();

    void linesOfAnEarlierRunAreNotDelivered();
    void linesOfAJobThatWasEndedAreNotDelivered();
    void anEndedWorkerRunsTheNextJob();
    void endingAnIdleWorkerIsDoneAtOnce();
    void aWalkIsEndedAndSendsNoLineAfter();
    void aHangingListingIsEndedAndSendsNoLineAfter();
    void aHangingCommandIsEndedAndSendsNoLineAfter();
    void aPauseIsEndedAndSendsNoLineAfter();
    void askingAloneEndsEachKindOfWait_data();
    void askingAloneEndsEachKindOfWait();
    void askingAloneEndsAWalk();
    void aThreadThatDoesNotAnswerIsNotCutOff();
};

void TestWorkThread::aNewWorkerHasItsInitialValues()
{
    const WorkThread worker;
    QCOMPARE(worker.job, 0);
    QVERIFY(worker.services.isEmpty());
    QVERIFY(worker.servicesToChange.isEmpty());
    const std::initializer_list<const std::atomic<int> *> keeps{
        &worker.keepPrinter, &worker.keepBluetoothAudio, &worker.keepFilesSharing,
        &worker.keepXboxApp, &worker.keepUpnp,           &worker.keepProxyVpn,
        &worker.keepNfc,     &worker.keepXboxGameBar,    &worker.keepCodecs};
    for (const std::atomic<int> *keep : keeps)
        QCOMPARE(keep->load(), 2);
    QCOMPARE(worker.nonVitalServices.size(), 31);
    QVERIFY(worker.tasks.isEmpty());
    QVERIFY(worker.tasksToChange.isEmpty());
    QCOMPARE(worker.taskRestoreMode.load(), false);
    QCOMPARE(worker.nonVitalTasks.size(), 60);
    QVERIFY(worker.packages.isEmpty());
    QVERIFY(worker.packagesToChange.isEmpty());
    QCOMPARE(worker.packageInstall, false);
    QCOMPARE(worker.packageJobIdle.load(), true);
    QCOMPARE(worker.nonVitalPackages, QStringList{QString()});
    QCOMPARE(worker.hasXboxGameBar, 0);
    QCOMPARE(worker.hasXboxApp, 0);
    QCOMPARE(worker.hasCodecs, 0);
    QVERIFY(worker.autoruns.isEmpty());
    QCOMPARE(worker.win32PrioritySeparationIndex, 3);
    QCOMPARE(worker.needReboot, 0);
    QCOMPARE(worker.analyzeRunning.load(), 0);
    QCOMPARE(worker.optimizeRunning.load(), 0);
    QCOMPARE(worker.restoreRunning.load(), 0);
    QVERIFY(worker.automatizerServices.isEmpty());
    QVERIFY(worker.automatizerTasks.isEmpty());
    QCOMPARE(worker.analyzeServiceCount, 0);
    QCOMPARE(worker.analyzeTaskCount, 0);
    QCOMPARE(worker.analyzePackageCount, 0);
    QCOMPARE(worker.analyzeAutorunCount, 0);
    QCOMPARE(worker.analyzeProcessCount, 0);
    QCOMPARE(worker.automatizerTweak, 1);
    QCOMPARE(worker.automatizerProgram, 1);
    QCOMPARE(reportTexts().size(), std::size_t(33));
    for (const ReportText &text : reportTexts())
        QCOMPARE(worker.*text.text, QString());
    QCOMPARE(worker.monitorThreadAndHandle.load(), 0);
    QCOMPARE(worker.monitorEnabled.load(), 0);
    QCOMPARE(worker.monitorStorageAge, 10);
    QCOMPARE(worker.batteryCharge, u"-1"_s);
    QCOMPARE(worker.powerShellPath, QString());
}

void TestWorkThread::aNumberWithoutJobEndsWithoutALine_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {6, 16, 17, 1000, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QTest::addRow("%d", number) << number;
}

void TestWorkThread::aNumberWithoutJobEndsWithoutALine()
{
    QFETCH(const int, number);
    const TestMachine machine;
    WorkThread worker;
    worker.servicesToChange = {u"Spooler"_s};
    JobLines lines(worker);
    QVERIFY(runJob(worker, number));
    QCOMPARE(lines.all(), QStringList());
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
    QCOMPARE(worker.job, number);
}

void TestWorkThread::job0ListsTheServices()
{
    TestMachine machine;
    machine.add({.name = u"Spooler"_s});
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 0));
    QCOMPARE(lines.all(), QStringList{u"page: WorkThread::SvcMakeList"_s});
    QCOMPARE(worker.services.size(), 1);
    QCOMPARE(worker.services.at(0).name, u"Spooler"_s);
}

void TestWorkThread::job9DisablesAndJob10EnablesTheServicesToChange()
{
    TestMachine machine;
    machine.add({.name = u"Spooler"_s, .start = 3, .running = true});
    WorkerOn worker(onEleven);
    worker.servicesToChange = {u"Spooler"_s};

    QVERIFY(runJob(worker, 9));
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(4));
    QCOMPARE(machine.machine().isRunning(u"Spooler"_s), false);

    QVERIFY(runJob(worker, 10));
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(2));
    QCOMPARE(machine.machine().isRunning(u"Spooler"_s), true);
}

void TestWorkThread::emptyListOfServicesStillGivesItsTwoLines_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("disable") << 9;
    QTest::newRow("enable") << 10;
}

void TestWorkThread::emptyListOfServicesStillGivesItsTwoLines()
{
    QFETCH(const int, number);
    const TestMachine machine;
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, number));
    QCOMPARE(lines.all(), (QStringList{u"page: pgr:max:0"_s, u"page: pgr:SvcStopOrStart=finished"_s}));
}

void TestWorkThread::servicesToChangeMayBeRebuiltWhileTheJobRuns()
{
    TestMachine machine(TestMachine::Windows::Ten, {.pace = 0.1});
    machine.add({.name = u"One"_s});
    machine.add({.name = u"Two"_s});
    WorkerOn worker(onTen);
    worker.servicesToChange = {u"One"_s, u"Two"_s};
    JobLines lines(worker);
    worker.startJob(9);
    QTRY_VERIFY(lines.all().contains(u"page: pgr:max:2"_s));
    worker.servicesToChange = {u"Three"_s};
    QVERIFY(worker.wait(30000));
    QCOMPARE(machine.names(settingsKey + u"\\SVC"_s), (QStringList{u"One"_s, u"Two"_s}));
}

void TestWorkThread::job5SendsItsLinesInOrderAndPauses3Seconds()
{
    TestMachine machine;
    addLargeFile(machine, u"C:\\Windows\\WinSxS\\a.bin"_s, gibibyte / 2);
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 5));
    QCOMPARE(lines.all(), winSxsHead + QStringList{u"page: 0.5"_s} + winSxsTail);
    QCOMPARE(machine.platform().takePauses(), QList<int>{3000});
}

void TestWorkThread::job5WritesGibibytesWithSixDigits_data()
{
    addColumns<qint64, QString>("bytes", "text");
    QTest::newRow("nothing") << 0LL << u"0"_s;
    QTest::newRow("one byte") << 1LL << u"9.31323e-10"_s;
    QTest::newRow("three mebibytes") << 3 * gibibyte / 1024 << u"0.00292969"_s;
    QTest::newRow("one gibibyte") << gibibyte << u"1"_s;
    QTest::newRow("more than 32 bits") << 5 * gibibyte << u"5"_s;
    QTest::newRow("rounded to six digits") << 12345678901LL << u"11.4978"_s;
    QTest::newRow("no zeros at the end") << gibibyte * 9 / 4 << u"2.25"_s;
    QTest::newRow("over a tebibyte") << 1536 * gibibyte << u"1536"_s;
}

void TestWorkThread::job5WritesGibibytesWithSixDigits()
{
    QFETCH(const qint64, bytes);
    QFETCH(const QString, text);
    TestMachine machine;
    addLargeFile(machine, u"C:\\Windows\\WinSxS\\a.bin"_s, bytes);
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 5));
    QCOMPARE(lines.all(), winSxsHead + QStringList{u"page: "_s + text} + winSxsTail);
}

void TestWorkThread::job5SumsAllLevelsAndLeavesHiddenEntriesOut()
{
    TestMachine machine;
    addLargeFile(machine, u"C:\\Windows\\WinSxS\\a.bin"_s, gibibyte);
    addLargeFile(machine, u"C:\\Windows\\WinSxS\\one\\b.bin"_s, gibibyte);
    addLargeFile(machine, u"C:\\Windows\\WinSxS\\one\\two\\three\\.c.bin"_s, gibibyte);
    addLargeFile(machine, u"C:\\Windows\\WinSxS\\hidden.bin"_s, gibibyte);
    machine.machine().setAttributes(u"C:\\Windows\\WinSxS\\hidden.bin"_s, 0x22);
    addLargeFile(machine, u"C:\\Windows\\elsewhere.bin"_s, gibibyte);
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 5));
    QCOMPARE(lines.all().value(1), u"page: 3"_s);
}

void TestWorkThread::job5OfAMissingFolderGives0()
{
    const TestMachine machine;
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 5));
    QCOMPARE(lines.all(), winSxsHead + QStringList{u"page: 0"_s} + winSxsTail);
}

void TestWorkThread::job5OfAFolderThatCantBeReadGives0()
{
    // The administrator may read every folder: a file in its place is what nobody can list.
    TestMachine machine;
    machine.addFile(u"C:\\Windows\\WinSxS"_s, "no folder");
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 5));
    QCOMPARE(lines.all(), winSxsHead + QStringList{u"page: 0"_s} + winSxsTail);
}

void TestWorkThread::job5WithoutWindirWalksWinSxsOnTheDrivesRoot()
{
    TestMachine machine;
    addLargeFile(machine, u"C:\\WinSxS\\a.bin"_s, 2 * gibibyte);
    addLargeFile(machine, u"C:\\Windows\\WinSxS\\b.bin"_s, 5 * gibibyte);
    qunsetenv("windir");
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 5));
    QCOMPARE(lines.all(), winSxsHead + QStringList{u"page: 2"_s} + winSxsTail);
}

void TestWorkThread::linesOfAnEarlierRunAreNotDelivered()
{
    const TestMachine machine;
    WorkThread worker;
    JobLines lines(worker);
    worker.startJob(5);
    QVERIFY(worker.wait(30000));
    // Its five lines are on their way now, and the next job begins before they arrive.
    worker.startJob(9);
    QVERIFY(worker.wait(30000));
    QCOMPARE(lines.all(), (QStringList{u"page: pgr:max:0"_s, u"page: pgr:SvcStopOrStart=finished"_s}));
}

void TestWorkThread::linesOfAJobThatWasEndedAreNotDelivered()
{
    const TestMachine machine;
    WorkThread worker;
    JobLines lines(worker);
    worker.startJob(5);
    QVERIFY(worker.wait(30000));
    QVERIFY(worker.endJob());
    QCOMPARE(lines.all(), QStringList());
}

void TestWorkThread::anEndedWorkerRunsTheNextJob()
{
    const TestMachine machine(TestMachine::Windows::Eleven, pausesWithoutEnd);
    WorkThread worker;
    JobLines lines(worker);
    worker.startJob(5);
    QTRY_COMPARE(lines.all().size(), 3);
    worker.endJob();
    QVERIFY(worker.wait(patience));
    QVERIFY(runJob(worker, 9));
    QCOMPARE(lines.all().sliced(3), (QStringList{u"page: pgr:max:0"_s, u"page: pgr:SvcStopOrStart=finished"_s}));
}

void TestWorkThread::endingAnIdleWorkerIsDoneAtOnce()
{
    const TestMachine machine;
    WorkThread worker;
    QVERIFY(worker.endJob());
    QVERIFY(runJob(worker, 6));
    QVERIFY(worker.endJob());
}

void TestWorkThread::aWalkIsEndedAndSendsNoLineAfter()
{
    const PlatformInForce<EndlessWalk> platform;
    WorkThread worker;
    JobLines lines(worker);
    worker.startJob(5);
    QTRY_COMPARE(lines.all().size(), 1);
    worker.endJob();
    QVERIFY(worker.wait(patience));
    QCOMPARE(lines.all(), winSxsHead);
}

void TestWorkThread::aHangingListingIsEndedAndSendsNoLineAfter()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.hang = true});
    Command::timeLimit = std::numeric_limits<int>::max();
    WorkThread worker;
    JobLines lines(worker);
    worker.startJob(0);
    // The backup is made right before the listing begins.
    QTRY_VERIFY(QFile::exists(machine.platform().programFolder() + u"/backup_svc/StartMode.reg"_s));
    QVERIFY(!worker.wait(50));
    worker.endJob();
    QVERIFY(worker.wait(patience));
    QCOMPARE(lines.all(), QStringList());
    QVERIFY(worker.services.isEmpty());
}

void TestWorkThread::aHangingCommandIsEndedAndSendsNoLineAfter()
{
    TestMachine machine;
    machine.add({.name = u"Spooler"_s, .running = true});
    machine.machine().setFault(u"sc stop"_s, {.hang = true});
    Command::timeLimit = std::numeric_limits<int>::max();
    WorkerOn worker(onEleven);
    worker.servicesToChange = {u"Spooler"_s};
    JobLines lines(worker);
    worker.startJob(9);
    QTRY_COMPARE(lines.all().size(), 1);
    QVERIFY(!worker.wait(50));
    worker.endJob();
    QVERIFY(worker.wait(patience));
    QCOMPARE(lines.all(), QStringList{u"page: pgr:max:1"_s});
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(3));
    QCOMPARE(machine.names(settingsKey + u"\\SVC"_s), QStringList());
}

void TestWorkThread::aPauseIsEndedAndSendsNoLineAfter()
{
    const TestMachine machine(TestMachine::Windows::Eleven, pausesWithoutEnd);
    WorkThread worker;
    JobLines lines(worker);
    worker.startJob(5);
    QTRY_COMPARE(lines.all().size(), 3); // the empty line comes after the pause
    worker.endJob();
    QVERIFY(worker.wait(patience));
    QCOMPARE(lines.all().size(), 3);
    QVERIFY(!lines.all().contains(u"page: "_s));
}

void TestWorkThread::askingAloneEndsEachKindOfWait_data()
{
    addColumns<int, QString>("number", "hanging");
    QTest::newRow("a command whose output is awaited") << 0 << u"sc query"_s;
    QTest::newRow("a command whose end is awaited") << 9 << u"sc stop"_s;
    QTest::newRow("a pause") << 5 << QString();
}

void TestWorkThread::askingAloneEndsEachKindOfWait()
{
    QFETCH(const int, number);
    QFETCH(const QString, hanging);
    const TestMachine machine(TestMachine::Windows::Eleven, pausesWithoutEnd);
    Command::timeLimit = std::numeric_limits<int>::max();
    if (!hanging.isEmpty())
        machine.machine().setFault(hanging, {.hang = true});
    WorkThread worker;
    worker.servicesToChange = {u"Spooler"_s};
    worker.startJob(number);
    QVERIFY(!worker.wait(150));
    worker.requestInterruption();
    QVERIFY(worker.wait(patience));
}

void TestWorkThread::askingAloneEndsAWalk()
{
    const PlatformInForce<EndlessWalk> platform;
    WorkThread worker;
    worker.startJob(5);
    QVERIFY(!worker.wait(50));
    worker.requestInterruption();
    QVERIFY(worker.wait(patience));
}

void TestWorkThread::aThreadThatDoesNotAnswerIsNotCutOff()
{
    const PlatformInForce<DeafPause> platform;
    WorkThread worker;
    JobLines lines(worker);
    worker.startJob(5);
    QTRY_COMPARE(lines.all().size(), 3);
    QVERIFY(!worker.endJob());
    QVERIFY(worker.isRunning());
    platform->letBack = true;
    QVERIFY(worker.wait(patience));
    // What it held is given back, and none of its lines comes any more.
    QVERIFY(platform->cameBack);
    QCOMPARE(lines.all().size(), 3);
}

KESTRUNE_SUITE(TestWorkThread)
#include "tst_workthread.moc"
