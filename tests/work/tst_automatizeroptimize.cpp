// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of Optimize: its phases, their lines, pauses, commands and records.

#include "joblines.h"
#include "platform/windowsfacts.h"
#include "support/files.h"
#include "support/suite.h"
#include "tweakruns.h"
#include "work/automatizer/automatizer.h"
#include "work/command.h"
#include "work/settings.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList features{u"pgr: Features"_s, u"pgr:max:3"_s,
                           u"pgr:value:0"_s,   u"Features: applies SSD optimizations"_s,
                           u"pgr:value:1"_s,   u"Features: applies Gaming optimizations"_s,
                           u"pgr:value:2"_s,   u"Features: applies Windows optimizations"_s,
                           u"pgr:value:3"_s,   u"tweaksDone"_s};

/** A worker as Analyze leaves it that has found nothing; no tweaks. */
void findNothing(WorkThread &worker)
{
    worker.winName = onEleven;
    worker.automatizerTweak = 0;
    encoderServerFound = 0;
}

} // namespace

class TestAutomatizerOptimize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Command::timeLimit = 30000; }

    void allLinesInTheirOrder();
    void commandsAndPausesInTheirOrder();
    void recordsAndValuesOfAFullRun();
    void aRunUnderWayDoesNothing();
    void withoutFindingsOnlyTheEndIsTold_data();
    void withoutFindingsOnlyTheEndIsTold();

    void withoutServiceFindingsTimeoutAndManualStartStay();
    void anEnableFindingAloneWritesTheTimeout();
    void servicesOfKeptFeaturesComeBackOnceOptimized();
    void aServiceThatWasDisabledIsNotSetToManual();

    void pausesOfTasksGoByTheGeneration_data();
    void pausesOfTasksGoByTheGeneration();
    void aFailedTaskIsToldAndNotRecorded();
    void aHangingTaskToolIsAFailure();
    void tasksOfKeptFeaturesComeBackOnceOptimized_data();
    void tasksOfKeptFeaturesComeBackOnceOptimized();

    void packagesOfKeptFeaturesComeBackOnceOptimized_data();
    void packagesOfKeptFeaturesComeBackOnceOptimized();
    void aPackageThatIsStillListedIsNotInstalled();
    void aSecondRunWithoutAnalyzeRemovesWhatTheFirstInstalled();

    void autorunRecords_data();
    void autorunRecords();
    void aLongerNameThanATasksIsARunValue();
    void withoutProgramsNeitherPackagesNorAutorunsAreTouched();

    void encoderFile_data();
    void encoderFile();
    void encoderFileIsReplacedAsAWhole();
    void encoderFileThatIsReadOnlyIsLeftAlone();
    void theEncoderGoesWithBothBoxesOff();
    void anEncoderFileThatIsGoneSaysNothing();

    void tweaksGoByTheMachine_data();
    void tweaksGoByTheMachine();
    void aBatteryIsTold();
    void featuresStayRunningForTheWindow();
};

void TestAutomatizerOptimize::allLinesInTheirOrder()
{
    AutomatizerMachine machine;
    WorkerOn worker(onEleven);
    const QStringList expected =
        QStringList{
            u"pgr: Services"_s,
            u"pgr:max:2"_s,
            u"pgr:value:0"_s,
            u"Service: disable and stop FontCache done"_s,
            u"pgr:value:1"_s,
            u"Service: disable and stop PcaSvc done"_s,
            u"pgr:value:2"_s,
            u"page: pgr:SvcStopOrStart=finished"_s,
            u"Service: set to manual: StiSvc"_s,
            u"Service: set to manual: Wcmsvc"_s,
            u""_s,
            u"pgr: Tasks"_s,
            u"pgr:max:2"_s,
            u"pgr:value:0"_s,
            u"Task: disable and stop OneDrive Standalone Update Task-S-1-5-21 done"_s,
            u"pgr:value:1"_s,
            u"Task: disable and stop Microsoft\\Windows\\Autochk\\Proxy done"_s,
            u"pgr:value:2"_s,
            u""_s,
            u"pgr: Windows applications"_s,
            u"pgr:max:1"_s,
            u"pgr:value:0"_s,
            u"Windows application: uninstall Microsoft.BingNews done"_s,
            u"pgr:value:1"_s,
            u""_s,
            u"pgr: Autorun"_s,
            u"pgr:max:5"_s,
            u"pgr:value:0"_s,
            u"Autorun program: disable Gone done"_s,
            u"pgr:value:1"_s,
            u"Autorun program: disable Quoted done"_s,
            u"pgr:value:2"_s,
            u"Autorun program: disable Unquoted done"_s,
            u"pgr:value:3"_s,
            u"Autorun program: disable WithEquals done"_s,
            u"pgr:value:4"_s,
            u"Autorun program: disable StartTerminalOnLoginTask.exe done"_s,
            u"pgr:value:5"_s,
            u""_s,
            u"Process: disable EncoderServer done"_s,
            u""_s,
        }
        + features;
    QCOMPARE(optimize(worker), expected);
}

void TestAutomatizerOptimize::commandsAndPausesInTheirOrder()
{
    AutomatizerMachine machine;
    WorkerOn worker(onEleven);
    worker.automatizerTweak = 0;
    linesOf(worker, JobAutomatizerAnalyze);
    ToolRuns runs(machine);
    runs.next();
    machine.platform().takePauses();
    linesOf(worker, JobAutomatizerOptimize);
    QCOMPARE(runs.next(), (QStringList{
                              u"sc|stop|FontCache"_s,
                              u"sc|config|FontCache|start=disabled"_s,
                              u"sc|stop|PcaSvc"_s,
                              u"sc|config|PcaSvc|start=disabled"_s,
                              // A task of the root folder goes without a backslash.
                              u"schtasks|/CHANGE|/TN|OneDrive Standalone Update Task-S-1-5-21|/DISABLE"_s,
                              u"schtasks|/CHANGE|/TN|\\Microsoft\\Windows\\Autochk\\Proxy|/DISABLE"_s,
                              u"powershell|-Command|Get-AppxPackage|Microsoft.BingNews|| Remove-AppxPackage"_s,
                              u"taskkill|/im|StartTerminalOnLoginTask.exe|/f|/t"_s,
                              u"taskkill|/im|RTSS.exe|/f|/t"_s,
                          }));
    QCOMPARE(machine.platform().takePauses(), (QList<int>{300, 300, 300, 300, 200, 200, 300, 300, 300, 300, 300, 300}));
    QVERIFY(!machine.machine().processes().contains(u"RTSS.exe"_s));
}

void TestAutomatizerOptimize::recordsAndValuesOfAFullRun()
{
    AutomatizerMachine machine;
    WorkerOn worker(onEleven);
    worker.automatizerTweak = 0;
    optimize(worker);
    const QVariant timeout = machine.read(controlKey, u"WaitToKillServiceTimeout"_s);
    QCOMPARE(timeout.typeId(), int(QMetaType::QString));
    QCOMPARE(timeout.toString(), u"3000"_s);
    QCOMPARE(machine.read(servicesKey + u"\\StiSvc"_s, u"Start"_s), QVariant(3));
    QCOMPARE(machine.read(servicesKey + u"\\WerSvc"_s, u"Start"_s), QVariant(2));
    QCOMPARE(machine.names(serviceRecordsKey), (QStringList{u"FontCache"_s, u"PcaSvc"_s}));
    QCOMPARE(recordedNames(u"Task"_s),
             (QStringList{u"Microsoft\\Windows\\Autochk\\Proxy"_s, u"OneDrive Standalone Update Task-S-1-5-21"_s}));
    QCOMPARE(machine.names(packageRecordsKey), QStringList{u"Microsoft.BingNews"_s});
    QCOMPARE(machine.names(userRunKey), QStringList());
    QCOMPARE(machine.read(terminalTaskKey, u"State"_s), QVariant(1));
    QCOMPARE(machine.read(settingsKey, u"optimized"_s), QVariant(1));
    QCOMPARE(worker.optimizeRunning, 0);
}

void TestAutomatizerOptimize::aRunUnderWayDoesNothing()
{
    TestMachine machine;
    WorkThread worker;
    findNothing(worker);
    worker.optimizeRunning = 1;
    QCOMPARE(linesOf(worker, JobAutomatizerOptimize), QStringList());
    QCOMPARE(worker.optimizeRunning, 1);
    QVERIFY(!machine.read(settingsKey, u"optimized"_s).isValid());
}

void TestAutomatizerOptimize::withoutFindingsOnlyTheEndIsTold_data()
{
    addColumns<int, QStringList>("tweak", "lines");
    QTest::newRow("without features") << 0 << QStringList{u"automatizerEnd"_s};
    QTest::newRow("with features") << 1 << features;
}

void TestAutomatizerOptimize::withoutFindingsOnlyTheEndIsTold()
{
    QFETCH(const int, tweak);
    QFETCH(const QStringList, lines);
    TestMachine machine;
    fillServices(machine);
    fillTasks(machine);
    fillAutoruns(machine);
    WorkThread worker;
    findNothing(worker);
    worker.automatizerTweak = tweak;
    QCOMPARE(linesOf(worker, JobAutomatizerOptimize), lines);
    QCOMPARE(worker.optimizeRunning, tweak);
    QCOMPARE(machine.names(userRunKey).size(), 3);
    QCOMPARE(machine.read(settingsKey, u"optimized"_s), QVariant(1));
}

void TestAutomatizerOptimize::withoutServiceFindingsTimeoutAndManualStartStay()
{
    TestMachine machine;
    fillServices(machine);
    WorkThread worker;
    findNothing(worker);
    worker.analyzeTaskCount = 1;
    worker.analyzePackageCount = 1;
    worker.analyzeAutorunCount = 1;
    worker.analyzeProcessCount = 1;
    linesOf(worker, JobAutomatizerOptimize);
    QVERIFY(!machine.read(controlKey, u"WaitToKillServiceTimeout"_s).isValid());
    QCOMPARE(machine.read(servicesKey + u"\\StiSvc"_s, u"Start"_s), QVariant(2));
}

void TestAutomatizerOptimize::anEnableFindingAloneWritesTheTimeout()
{
    TestMachine machine;
    machine.add({.name = u"StiSvc"_s, .start = 2});
    WorkThread worker;
    findNothing(worker);
    linesOf(worker, JobAutomatizerAnalyze);
    QCOMPARE(linesOf(worker, JobAutomatizerOptimize),
             (QStringList{u"pgr: Services"_s, u"pgr:max:0"_s, u"pgr:value:0"_s, u"page: pgr:SvcStopOrStart=finished"_s,
                          u"Service: set to manual: StiSvc"_s, u""_s, u"automatizerEnd"_s}));
    QCOMPARE(machine.read(controlKey, u"WaitToKillServiceTimeout"_s), QVariant(u"3000"_s));
}

void TestAutomatizerOptimize::servicesOfKeptFeaturesComeBackOnceOptimized()
{
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    machine.add({.name = u"PcaSvc"_s, .start = 2, .running = true});
    machine.add({.name = u"Spooler"_s, .start = 4});
    machine.add({.name = u"SEMgrSvc"_s, .start = 3});
    machine.add({.name = u"SSDPSRV"_s, .start = 4});
    machine.write(serviceRecordsKey, u"Spooler"_s, 1);
    WorkThread worker;
    findNothing(worker);
    for (std::atomic<int> *keep : {&worker.keepBluetoothAudio, &worker.keepFilesSharing, &worker.keepProxyVpn})
        *keep = 0;
    worker.keepUpnp = 0;
    worker.automatizerProgram = 0;
    linesOf(worker, JobAutomatizerAnalyze);
    machine.platform().takePauses();
    const QStringList lines = linesOf(worker, JobAutomatizerOptimize);
    // Also of a feature of which Analyze has told nothing, and of one whose service isn't there.
    QCOMPARE(lines.mid(6), (QStringList{
                               u"pgr:max:3"_s,
                               u"pgr:value:0"_s,
                               u"Service: enable and start SEMgrSvc done"_s,
                               u"pgr:value:1"_s,
                               u"Service: enable and start Spooler done"_s,
                               u"pgr:value:2"_s,
                               u"Service: enable and start XblAuthManager error"_s,
                               u"pgr:value:3"_s,
                               u"page: pgr:SvcStopOrStart=finished"_s,
                               u""_s,
                               u"automatizerEnd"_s,
                           }));
    QCOMPARE(worker.servicesToChange, (QStringList{u"Spooler"_s, u"SEMgrSvc"_s, u"XblAuthManager"_s}));
    QCOMPARE(machine.platform().takePauses(), QList<int>(2 + 1 + 3 * 2, 300));
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(2));
    QCOMPARE(machine.read(servicesKey + u"\\SSDPSRV"_s, u"Start"_s), QVariant(4));
    QCOMPARE(machine.names(serviceRecordsKey), QStringList{u"PcaSvc"_s});
}

void TestAutomatizerOptimize::aServiceThatWasDisabledIsNotSetToManual()
{
    TestMachine machine;
    machine.add({.name = u"brave"_s, .start = 2, .running = true});
    WorkThread worker;
    findNothing(worker);
    linesOf(worker, JobAutomatizerAnalyze);
    QCOMPARE(worker.analyzeServiceCount, 2);
    linesOf(worker, JobAutomatizerOptimize);
    QCOMPARE(machine.read(servicesKey + u"\\brave"_s, u"Start"_s), QVariant(4));
}

void TestAutomatizerOptimize::pausesOfTasksGoByTheGeneration_data()
{
    addColumns<QString, int>("winName", "pause");
    QTest::newRow("Windows 11") << onEleven << 200;
    QTest::newRow("Windows 10") << onTen << 1020;
    QTest::newRow("unknown") << u"unknown"_s << 200;
}

void TestAutomatizerOptimize::pausesOfTasksGoByTheGeneration()
{
    QFETCH(const QString, winName);
    QFETCH(const int, pause);
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    fillTasks(machine);
    WorkThread worker;
    findNothing(worker);
    worker.winName = winName;
    worker.automatizerTasks = {{u"Vendor\\Useful"_s, {}, u"Useful"_s, {}, 0}};
    worker.analyzeTaskCount = 1;
    linesOf(worker, JobAutomatizerOptimize);
    QCOMPARE(machine.platform().takePauses(), QList<int>(1 + 4, pause));
}

void TestAutomatizerOptimize::aFailedTaskIsToldAndNotRecorded()
{
    TestMachine machine;
    addTask(machine, u"\\B"_s);
    WorkThread worker;
    findNothing(worker);
    worker.automatizerTasks = {{u"Gone\\A"_s, {}, u"A"_s, {}, 0}, {u"B"_s, {}, u"B"_s, {}, 0}};
    worker.analyzeTaskCount = 2;
    QCOMPARE(linesOf(worker, JobAutomatizerOptimize).mid(3),
             (QStringList{u"Task: disable and stop Gone\\A error"_s, u"pgr:value:1"_s,
                          u"Task: disable and stop B done"_s, u"pgr:value:2"_s, u""_s, u"automatizerEnd"_s}));
    QCOMPARE(recordedNames(u"Task"_s), QStringList{u"B"_s});
    QCOMPARE(machine.read(taskRecordsKey, u"B"_s), QVariant(1));
}

void TestAutomatizerOptimize::aHangingTaskToolIsAFailure()
{
    TestMachine machine;
    machine.machine().setFault(u"schtasks"_s, {.hang = true});
    Command::timeLimit = 300;
    WorkThread worker;
    findNothing(worker);
    worker.automatizerTasks = {{u"B"_s, {}, u"B"_s, {}, 0}};
    worker.analyzeTaskCount = 1;
    QVERIFY(linesOf(worker, JobAutomatizerOptimize).contains(u"Task: disable and stop B error"_s));
    QCOMPARE(recordedNames(u"Task"_s), QStringList());
}

void TestAutomatizerOptimize::tasksOfKeptFeaturesComeBackOnceOptimized_data()
{
    addColumns<int, int, QStringList>("printer", "vpn", "paths");
    const QString printing = u"\\Microsoft\\Windows\\Printing\\"_s;
    const QStringList printers{printing + u"EduPrintProv"_s, printing + u"PrinterCleanupTask"_s,
                               printing + u"PrintJobCleanupTask"_s};
    const QString mobility = u"\\Microsoft\\Windows\\Ras\\MobilityManager"_s;
    QTest::newRow("both") << 2 << 2 << printers + QStringList{mobility};
    QTest::newRow("printer") << 2 << 0 << printers;
    QTest::newRow("VPN") << 0 << 2 << QStringList{mobility};
    QTest::newRow("neither") << 0 << 0 << QStringList();
}

void TestAutomatizerOptimize::tasksOfKeptFeaturesComeBackOnceOptimized()
{
    QFETCH(const int, printer);
    QFETCH(const int, vpn);
    QFETCH(const QStringList, paths);
    TestMachine machine;
    // One of the tasks isn't there, which nothing tells.
    addTask(machine, u"\\Microsoft\\Windows\\Printing\\EduPrintProv"_s, false);
    addTask(machine, u"\\B"_s);
    machine.write(settingsKey, u"optimized"_s, 1);
    WorkThread worker;
    findNothing(worker);
    worker.keepPrinter = printer;
    worker.keepProxyVpn = vpn;
    worker.automatizerTasks = {{u"B"_s, {}, u"B"_s, {}, 0}};
    worker.analyzeTaskCount = 1;
    QStringList expected;
    QStringList commands{u"schtasks|/CHANGE|/TN|B|/DISABLE"_s};
    for (const QString &path : paths) {
        expected << u"Task: Enable and start "_s + path + u" done"_s << u"pgr:value:2"_s;
        commands << u"schtasks|/CHANGE|/TN|"_s + path + u"|/ENABLE"_s;
    }
    expected << u""_s << u"automatizerEnd"_s;
    QCOMPARE(linesOf(worker, JobAutomatizerOptimize).mid(5), expected);
    QCOMPARE(ToolRuns(machine).next(), commands);
    QCOMPARE(recordedNames(u"Task"_s), QStringList{u"B"_s});
    const QString document = machine.machine().task(u"\\Microsoft\\Windows\\Printing\\EduPrintProv"_s)->document;
    QCOMPARE(document.contains("<Enabled>false"_L1), printer == 0);
}

void TestAutomatizerOptimize::packagesOfKeptFeaturesComeBackOnceOptimized_data()
{
    addColumns<std::atomic<int> WorkThread::*, QStringList>("keep", "names");
    const auto row = [](const char *name, std::atomic<int> WorkThread::*keep, const QStringList &names) {
        QTest::newRow(name) << keep << names;
    };
    row("game bar", &WorkThread::keepXboxGameBar,
        {u"Microsoft.XboxGamingOverlay"_s, u"Microsoft.XboxSpeechToTextOverlay"_s});
    row("Xbox app", &WorkThread::keepXboxApp,
        {u"Microsoft.GamingApp"_s, u"Microsoft.GamingServices"_s, u"Microsoft.Xbox.TCUI"_s,
         u"Microsoft.XboxIdentityProvider"_s});
    row("codecs", &WorkThread::keepCodecs,
        {u"Microsoft.AV1VideoExtension"_s, u"Microsoft.VP9VideoExtensions"_s, u"Microsoft.AVCEncoderVideoExtension"_s,
         u"Microsoft.HEVCVideoExtension"_s, u"Microsoft.MPEG2VideoExtension"_s});
}

void TestAutomatizerOptimize::packagesOfKeptFeaturesComeBackOnceOptimized()
{
    QFETCH(std::atomic<int> WorkThread::*const, keep);
    QFETCH(const QStringList, names);
    PowerShellMachine machine;
    WorkThread worker;
    findNothing(worker);
    for (std::atomic<int> *each : {&worker.keepXboxGameBar, &worker.keepXboxApp, &worker.keepCodecs})
        *each = 0;
    worker.*keep = 2;
    worker.analyzePackageCount = 1;
    worker.packages = {{u"A"_s, u"A"_s, {}}};
    linesOf(worker, JobAutomatizerOptimize);
    QCOMPARE(worker.packages.size(), 1);

    machine.write(settingsKey, u"optimized"_s, 1);
    QStringList expected{u"pgr: Windows applications"_s, u"pgr:max:1"_s, u"pgr:value:0"_s,
                         u"Windows application: uninstall A done"_s, u"pgr:value:1"_s};
    int counter = 1;
    for (const QString &name : names)
        expected << u"Windows application: install "_s + name + u" done"_s
                 << u"pgr:value:"_s + QString::number(counter++);
    expected << u""_s << u"automatizerEnd"_s;
    QCOMPARE(linesOf(worker, JobAutomatizerOptimize), expected);
    QStringList left;
    for (const PackageRow &row : worker.packages) {
        left.append(row.name);
        QVERIFY(row.displayName.isEmpty() && row.comment.isEmpty());
    }
    QCOMPARE(left, names);
}

void TestAutomatizerOptimize::aPackageThatIsStillListedIsNotInstalled()
{
    PowerShellMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    WorkThread worker;
    findNothing(worker);
    worker.keepXboxApp = 0;
    worker.keepCodecs = 0;
    // The box was set between Analyze and Optimize.
    worker.packages = {{u"Microsoft.XboxGamingOverlay"_s, {}, {}}};
    worker.analyzePackageCount = 1;
    QVERIFY(linesOf(worker, JobAutomatizerOptimize).filter(u": install "_s).isEmpty());
}

void TestAutomatizerOptimize::aSecondRunWithoutAnalyzeRemovesWhatTheFirstInstalled()
{
    PowerShellMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    WorkThread worker;
    findNothing(worker);
    worker.packages = {{u"A"_s, {}, {}}};
    worker.analyzePackageCount = 1;
    linesOf(worker, JobAutomatizerOptimize);
    const QStringList lines = linesOf(worker, JobAutomatizerOptimize);
    QCOMPARE(lines.filter(u": uninstall "_s).size(), 5);
    QVERIFY(lines.contains(u"Windows application: uninstall Microsoft.AV1VideoExtension done"_s));
    // The codecs that it has just removed are in the list, which the step of the game bar replaces.
    QCOMPARE(lines.filter(u": install "_s).size(), 2 + 4 + 5);
}

void TestAutomatizerOptimize::autorunRecords_data()
{
    addColumns<QString, QString, QString>("row", "name", "record");
    const auto path = [](const char *name) { return userRunKey + u'\\' + QString::fromLatin1(name); };
    QTest::newRow("plain") << path("A") + u"=a.exe -x"_s << u"A"_s << u"a.exe -x="_s + path("A");
    QTest::newRow("cut at its first =") << path("A") + u"=\"a.exe\" --mode=tray --lang=en"_s << u"A"_s
                                        << u"\"a.exe\" --mode="_s + path("A");
    QTest::newRow("empty command") << path("A") + u'=' << u"A"_s << u'=' + path("A");
    QTest::newRow("Terminal") << terminalTaskKey + u'=' << u"StartTerminalOnLoginTask"_s << terminalTaskKey + u'=';
    QTest::newRow("Xbox") << xboxTaskKey + u'=' << u"Xbox.App.Tasks.FullTrustComponent"_s << xboxTaskKey + u'=';
}

void TestAutomatizerOptimize::autorunRecords()
{
    QFETCH(const QString, row);
    QFETCH(const QString, name);
    QFETCH(const QString, record);
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    machine.write(userRunKey, u"B"_s, u"b.exe"_s);
    WorkThread worker;
    findNothing(worker);
    worker.autoruns = {row};
    worker.analyzeAutorunCount = 1;
    const QStringList lines = linesOf(worker, JobAutomatizerOptimize);
    const bool isTask = name != "A"_L1;
    QVERIFY(lines.contains(u"Autorun program: disable "_s + name + (isTask ? u".exe done"_s : u" done"_s)));
    QCOMPARE(machine.read(autorunRecordsKey, name), QVariant(record));
    QCOMPARE(machine.names(userRunKey), isTask ? (QStringList{u"A"_s, u"B"_s}) : QStringList{u"B"_s});
    if (isTask)
        QCOMPARE(machine.read(record.chopped(1), u"State"_s), QVariant(1));
    QCOMPARE(ToolRuns(machine).next().size(), isTask ? 1 : 0);
}

void TestAutomatizerOptimize::aLongerNameThanATasksIsARunValue()
{
    TestMachine machine;
    const QString name = u"My StartTerminalOnLoginTask"_s;
    machine.write(userRunKey, name, u"a.exe"_s);
    WorkThread worker;
    findNothing(worker);
    linesOf(worker, JobAutomatizerAnalyze);
    linesOf(worker, JobAutomatizerOptimize);
    QCOMPARE(machine.names(userRunKey), QStringList());
    QCOMPARE(machine.read(autorunRecordsKey, name), QVariant(u"a.exe="_s + userRunKey + u'\\' + name));
}

void TestAutomatizerOptimize::withoutProgramsNeitherPackagesNorAutorunsAreTouched()
{
    AutomatizerMachine machine;
    WorkThread worker;
    findNothing(worker);
    linesOf(worker, JobAutomatizerAnalyze);
    worker.automatizerProgram = 0;
    const QStringList lines = linesOf(worker, JobAutomatizerOptimize);
    QVERIFY(lines.contains(u"pgr: Tasks"_s));
    QVERIFY(!lines.contains(u"pgr: Autorun"_s) && !lines.contains(u"pgr: Windows applications"_s));
    QCOMPARE(machine.names(userRunKey).size(), 3);
    QCOMPARE(machine.names(packageRecordsKey), QStringList());
}

void TestAutomatizerOptimize::encoderFile_data()
{
    addColumns<QByteArray, QByteArray>("before", "after");
    const auto row = [](const char *name, const QByteArray &before, const QByteArray &after) {
        QTest::newRow(name) << before << after;
    };
    row("switched on", "[RTSS]\r\nEnableEncoderServer=1\r\nA=1\r\n", "[RTSS]\r\nEnableEncoderServer=0\r\nA=1\r\n");
    row("twice", "EnableEncoderServer=1\nEnableEncoderServer=1", "EnableEncoderServer=0\nEnableEncoderServer=0");
    row("off already", "EnableEncoderServer=0\r\n", "EnableEncoderServer=0\r\n");
    row("in another case", "enableencoderserver=1\r\n", "enableencoderserver=1\r\n");
    row("missing", "[RTSS]\r\nA=1\r\n", "[RTSS]\r\nA=1\r\nEnableEncoderServer=0");
    row("missing, no line end", "A=1", "A=1EnableEncoderServer=0");
    row("empty", "", "EnableEncoderServer=0");
    row("bytes that are no text", "\xff\xfe\x80 EnableEncoderServer=1", "\xff\xfe\x80 EnableEncoderServer=0");
}

void TestAutomatizerOptimize::encoderFile()
{
    QFETCH(const QByteArray, before);
    QFETCH(const QByteArray, after);
    TestMachine machine;
    const QString file = machine.addFile(encoderConfig, before);
    WorkThread worker;
    findNothing(worker);
    encoderServerFound = 1;
    QCOMPARE(linesOf(worker, JobAutomatizerOptimize),
             (QStringList{u"Process: disable EncoderServer done"_s, u""_s, u"automatizerEnd"_s}));
    QCOMPARE(readFile(file), after);
}

void TestAutomatizerOptimize::encoderFileIsReplacedAsAWhole()
{
#ifdef Q_OS_WIN
    QSKIP("there a file that someone reads can't be replaced");
#endif
    const QFile::Permissions rights = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
    TestMachine machine;
    const QString file = machine.addFile(encoderConfig, "EnableEncoderServer=1\r\n");
    QVERIFY(QFile::setPermissions(file, rights));
    // Who has it open goes on with the old one, as a whole.
    QFile reader(file);
    QVERIFY(reader.open(QIODevice::ReadOnly | QIODevice::Unbuffered));
    WorkThread worker;
    findNothing(worker);
    encoderServerFound = 1;
    linesOf(worker, JobAutomatizerOptimize);
    QCOMPARE(reader.readAll(), "EnableEncoderServer=1\r\n"_ba);
    QCOMPARE(readFile(file), "EnableEncoderServer=0\r\n"_ba);
    QCOMPARE(QFile::permissions(file) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther),
             QFile::Permissions(QFile::ReadGroup));
    QCOMPARE(QFileInfo(file).dir().entryList(QDir::Files), QStringList{u"config"_s});
}

void TestAutomatizerOptimize::encoderFileThatIsReadOnlyIsLeftAlone()
{
    TestMachine machine;
    const QByteArray config = "EnableEncoderServer=1\r\n";
    const QString file = machine.addFile(encoderConfig, config);
    machine.machine().setAttributes(encoderConfig, AttributeReadOnly | AttributeArchive);
    WorkThread worker;
    findNothing(worker);
    encoderServerFound = 1;
    QCOMPARE(linesOf(worker, JobAutomatizerOptimize), QStringList{u"automatizerEnd"_s});
    QCOMPARE(ToolRuns(machine).next(), QStringList());
    QCOMPARE(readFile(file), config);
}

void TestAutomatizerOptimize::theEncoderGoesWithBothBoxesOff()
{
    TestMachine machine;
    fillEncoder(machine);
    WorkThread worker;
    worker.automatizerTweak = 0;
    worker.automatizerProgram = 0;
    QVERIFY(optimize(worker).contains(u"Process: disable EncoderServer done"_s));
    QCOMPARE(ToolRuns(machine).next(), QStringList{u"taskkill|/im|RTSS.exe|/f|/t"_s});
}

void TestAutomatizerOptimize::anEncoderFileThatIsGoneSaysNothing()
{
    TestMachine machine;
    WorkThread worker;
    findNothing(worker);
    encoderServerFound = 1;
    QCOMPARE(linesOf(worker, JobAutomatizerOptimize), QStringList{u"automatizerEnd"_s});
    QCOMPARE(ToolRuns(machine).next(), QStringList());
    QVERIFY(!QFile::exists(machine.platform().hostPath(encoderConfig)));
}

void TestAutomatizerOptimize::tweaksGoByTheMachine_data()
{
    addColumns<QString, QString, int, QStringList, QString>("winName", "battery", "gameBar", "cards", "tweaks");
    const QString none = u"-1"_s;
    const QStringList amdFirst{u"AMD Radeon RX 7800 XT"_s, u"NVIDIA GeForce"_s};
    const QStringList amdSecond{u"NVIDIA GeForce"_s, u"AMD Radeon"_s};
    // clang-format off
    QTest::newRow("11, no battery, no AMD") << onEleven << none << 2 << amdSecond
        << u"S1 S2 S3 S4 S5 S6 G7 S9 G1 G2 G3 G4 G5 G7 G8 G9 G10 G11 G12 W1 W2 W3 W4 W5 W6 W7 W8 W9 W10"_s;
    QTest::newRow("11, no battery, AMD") << onEleven << none << 2 << amdFirst
        << u"S1 S2 S3 S4 S5 S6 G7 S9 G1 G2 G3 G4 G5 G7 G8 G9 G10 G11 G12 G13 W1 W2 W3 W4 W5 W6 W7 W8 W9 W10"_s;
    QTest::newRow("11, no battery, AMD in small letters") << onEleven << none << 2 << QStringList{u"amd radeon"_s}
        << u"S1 S2 S3 S4 S5 S6 G7 S9 G1 G2 G3 G4 G5 G7 G8 G9 G10 G11 G12 G13 W1 W2 W3 W4 W5 W6 W7 W8 W9 W10"_s;
    QTest::newRow("11, no card") << onEleven << none << 2 << QStringList()
        << u"S1 S2 S3 S4 S5 S6 G7 S9 G1 G2 G3 G4 G5 G7 G8 G9 G10 G11 G12 W1 W2 W3 W4 W5 W6 W7 W8 W9 W10"_s;
    QTest::newRow("11, game bar given up") << onEleven << none << 0 << amdSecond
        << u"S1 S2 S3 S4 S5 S6 G7 S9 G1 G2 G3 G4 G5 G6 G7 G8 G9 G10 G11 G12 W1 W2 W3 W4 W5 W6 W7 W8 W9 W10"_s;
    QTest::newRow("11, battery") << onEleven << u"80"_s << 2 << amdSecond
        << u"S1 S2 S3 S4 S5 S6 S9 G1 G3 G4 G5 G8 G9 G10 G11 G12 G13 W1 W2 W3 W4 W5 W6 W7 W8 W9 W10"_s;
    QTest::newRow("10, no battery") << onTen << none << 2 << amdSecond
        << u"S1 S2 S3 S4 S5 S6 G7 S9 G1 G2 G3 G4 G5 G7 G9 G10 G11 G12 W1 W2 W3 W4 W6 W7 W8 W10"_s;
    // clang-format on
}

void TestAutomatizerOptimize::tweaksGoByTheMachine()
{
    QFETCH(const QString, winName);
    QFETCH(const QString, battery);
    QFETCH(const int, gameBar);
    QFETCH(const QStringList, cards);
    QFETCH(const QString, tweaks);
    const auto leftBy = [&](const std::function<void(WorkThread &)> &run) {
        TestMachine machine(winName == onTen ? TestMachine::Windows::Ten : TestMachine::Windows::Eleven);
        QList<QJsonObject> adapters;
        for (const QString &card : cards)
            adapters.append(QJsonObject{{u"Caption"_s, card}});
        machine.machine().setWmiInstances(u"Win32_VideoController"_s, adapters);
        WorkThread worker;
        findNothing(worker);
        worker.winName = winName;
        worker.batteryCharge = battery;
        worker.keepXboxGameBar = gameBar;
        worker.automatizerTweak = 1;
        run(worker);
        return stateOf(machine);
    };
    const auto takePauses = [] { return static_cast<MachinePlatform &>(platform()).takePauses(); };
    QList<int> pauses, pausesOfTweaks;
    const QStringList optimized = leftBy([&](WorkThread &worker) {
        linesOf(worker, JobAutomatizerOptimize);
        pauses = takePauses();
    });
    QCOMPARE(optimized, leftBy([&](WorkThread &worker) {
                 runTweaks(worker, tweaks, true);
                 pausesOfTweaks = takePauses();
             }));
    // After each number, also one that isn't applied; some tweaks pause by themselves.
    QCOMPARE(pauses.count(30) - pausesOfTweaks.count(30), 9 + 13 + 11);
    QCOMPARE(pauses.size() - pausesOfTweaks.size(), 9 + 13 + 11);
}

void TestAutomatizerOptimize::aBatteryIsTold()
{
    const TestMachine machine;
    WorkThread worker;
    findNothing(worker);
    worker.automatizerTweak = 1;
    worker.batteryCharge = u"80"_s;
    QStringList expected = features;
    expected.insert(3,
                    u"Features: Battery detected! Some optimizations will not be applied to maintain battery life"_s);
    QCOMPARE(linesOf(worker, JobAutomatizerOptimize), expected);
}

void TestAutomatizerOptimize::featuresStayRunningForTheWindow()
{
    const TestMachine machine;
    WorkThread worker;
    findNothing(worker);
    worker.automatizerTweak = 1;
    linesOf(worker, JobAutomatizerOptimize);
    QCOMPARE(worker.optimizeRunning, 1);
    QCOMPARE(linesOf(worker, JobAutomatizerOptimize), QStringList());
}

KESTRUNE_SUITE(TestAutomatizerOptimize)
#include "tst_automatizeroptimize.moc"
