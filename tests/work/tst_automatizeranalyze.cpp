// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of Analyze: what is found, told and left for Optimize.

#include "automatizerruns.h"
#include "machine/compare/machinediff.h"
#include "machine/source/machinesource.h"
#include "support/suite.h"
#include "work/automatizer/automatizer.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString encoderLine = u"Process: can be disable: %1 from Riva Tuner Statistic Server app!\r\nThis process only "
                            "allows screen video capture.Does not affect the monitoring display in any way"_s;
const QStringList nothing{u"pgr:max:5"_s,
                          u"pgr:value:1"_s,
                          u"pgr:value:2"_s,
                          u"pgr:value:3"_s,
                          u"pgr:value:4"_s,
                          u"pgr:value:5"_s,
                          u"AutomatizerAnalyze:finished"_s};

QStringList analyze(WorkThread &worker)
{
    return linesOf(worker, JobAutomatizerAnalyze);
}

QStringList startingWith(const QStringList &lines, const QString &start)
{
    QStringList found;
    for (const QString &line : lines) {
        if (line.startsWith(start))
            found.append(line.sliced(start.size()));
    }
    return found;
}

QStringList servicesFound(WorkThread &worker)
{
    return startingWith(analyze(worker), u"Service: "_s);
}

QStringList tasksFound(WorkThread &worker)
{
    return startingWith(analyze(worker), u"Task: "_s);
}

} // namespace

class TestAutomatizerAnalyze : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allLinesInTheirOrder();
    void linesOfASecondRunWithFeaturesGivenUpAndKept();
    void nothingIsChanged();
    void anEmptyMachineHasOnlyProgress();
    void aRunUnderWayGivesOnlyTheClosingLine();
    void listsAndCountsBeginAnew();

    void aServiceIsSelectedOnlyIfItRunsAndIsNotDisabled_data();
    void aServiceIsSelectedOnlyIfItRunsAndIsNotDisabled();
    void givingAFeatureUpAddsItsServicesAndTakingItBackRemovesThem();
    void enablingIsToldOnlyOnceOptimized();
    void anInstanceOfAKeptServiceIsFoundByItsBeginning();
    void manualStartGoesByTheStartValue_data();
    void manualStartGoesByTheStartValue();

    void disabledTasksOfKeptFeaturesAreToldOnlyOnceOptimized();
    void aTaskIsToldTwiceForTwoReasons();
    void aTaskIsFoundByTheBeginningOfItsName();
    void taskNamesAreComparedWithoutCase();

    void packagesToInstallAreToldOnlyOnceOptimized();
    void theEmptyLineFollowsPackagesToInstallAlone();
    void theOldXboxPackageHasANote();
    void withoutProgramsTheirSectionsAreSkippedAndTheirListsStay();

    void encoders_data();
    void encoders();
    void theEncoderNeedsItsFile();
};

void TestAutomatizerAnalyze::allLinesInTheirOrder()
{
    AutomatizerMachine machine;
    WorkerOn worker(onEleven);
    QCOMPARE(analyze(worker), (QStringList{
                                  u"pgr:max:5"_s,
                                  u"pgr:value:1"_s,
                                  u"Service: can be disable: FontCache"_s,
                                  u"Service: can be disable: PcaSvc"_s,
                                  u"Service: can be set to manual: StiSvc"_s,
                                  u"Service: can be set to manual: Wcmsvc"_s,
                                  u""_s,
                                  u"pgr:value:2"_s,
                                  u"Task: can be disable: OneDrive Standalone Update Task-S-1-5-21"_s,
                                  u"Task: can be disable: Microsoft\\Windows\\Autochk\\Proxy"_s,
                                  u""_s,
                                  u"pgr:value:3"_s,
                                  u"Package: can be uninstalled: Microsoft.BingNews"_s,
                                  u""_s,
                                  u"pgr:value:4"_s,
                                  u"Autorun: can be disabled:  Gone"_s,
                                  u"Autorun: can be disabled:  Quoted"_s,
                                  u"Autorun: can be disabled:  Unquoted"_s,
                                  u"Autorun: can be disabled:  WithEquals"_s,
                                  u"Autorun: can be disabled:  StartTerminalOnLoginTask"_s,
                                  u""_s,
                                  u"pgr:value:5"_s,
                                  QString(encoderLine).replace(u"%1"_s, u"EncoderServer.exe"_s),
                                  u""_s,
                                  u"AutomatizerAnalyze:finished"_s,
                              }));
    QCOMPARE(worker.analyzeServiceCount, 4);
    QCOMPARE(worker.analyzeTaskCount, 2);
    QCOMPARE(worker.analyzePackageCount, 1);
    QCOMPARE(worker.analyzeAutorunCount, 5);
    QCOMPARE(worker.analyzeProcessCount, 1);
    QCOMPARE(worker.automatizerServices.size(), 2);
    QCOMPARE(worker.automatizerTasks.size(), 2);
    QCOMPARE(encoderServerFound, 1);
    QCOMPARE(worker.analyzeRunning, 0);
}

void TestAutomatizerAnalyze::linesOfASecondRunWithFeaturesGivenUpAndKept()
{
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    machine.add({.name = u"BTAGService"_s, .start = 4});
    machine.add({.name = u"Spooler"_s, .start = 2, .running = true});
    machine.add({.name = u"SSDPSRV"_s, .start = 4});
    machine.add({.name = u"SstpSvc"_s, .start = 3});
    fillTasks(machine);
    installPackage(machine, u"Microsoft.GamingApp"_s);
    installPackage(machine, u"Microsoft.HEVCVideoExtension"_s);
    WorkThread worker;
    worker.keepPrinter = 0;
    worker.keepCodecs = 0;
    QCOMPARE(analyze(worker), (QStringList{
                                  u"pgr:max:5"_s,
                                  u"pgr:value:1"_s,
                                  u"Service: can be enable: BTAGService"_s,
                                  u"Service: can be enable: SSDPSRV"_s,
                                  u"Service: can be disable: Spooler"_s,
                                  u""_s,
                                  u"pgr:value:2"_s,
                                  u"Task: can be disable: OneDrive Standalone Update Task-S-1-5-21"_s,
                                  u"Task: can be disable: Microsoft\\Windows\\Autochk\\Proxy"_s,
                                  u"Task: can be disable: Microsoft\\Windows\\Printing\\EduPrintProv"_s,
                                  u"Task: can be disable: Microsoft\\Windows\\Printing\\PrinterCleanupTask"_s,
                                  u""_s,
                                  u"pgr:value:3"_s,
                                  u"Package: can be uninstalled: Microsoft.HEVCVideoExtension"_s,
                                  u"Package: can be installed: Microsoft.XboxGamingOverlay"_s,
                                  u"Package: can be installed: Microsoft.XboxSpeechToTextOverlay"_s,
                                  u"Package: can be installed: Microsoft.GamingApp"_s,
                                  u"Package: can be installed: Microsoft.GamingServices"_s,
                                  u"Package: can be installed: Microsoft.Xbox.TCUI"_s,
                                  u"Package: can be installed: Microsoft.XboxIdentityProvider"_s,
                                  u""_s,
                                  u"pgr:value:4"_s,
                                  u"pgr:value:5"_s,
                                  u"AutomatizerAnalyze:finished"_s,
                              }));
    QCOMPARE(worker.analyzeServiceCount, 3);
    QCOMPARE(worker.automatizerServices.size(), 1);
    QCOMPARE(worker.analyzePackageCount, 7);
}

void TestAutomatizerAnalyze::nothingIsChanged()
{
    TestMachine machine(u"windows11"_s);
    QTemporaryDir folder;
    makeMachine(folder.filePath(u"fresh"_s), QCoreApplication::applicationDirPath() + u"/machines/windows11"_s,
                Existing::Keep);
    WorkerOn worker(onEleven);
    analyze(worker);
    QVERIFY(worker.analyzeServiceCount > 0 && worker.analyzeTaskCount > 0 && worker.analyzePackageCount > 0);
    QStringList changed;
    for (const DiffRow &row : compareMachines(*Machine::open(folder.filePath(u"fresh"_s)), machine.machine()))
        changed.append(row.path.section(u'\\', -1).section(u'/', -1)
                       + (row.name.isEmpty() ? u""_s : u" | "_s + row.name));
    changed.sort();
    // The two exports of the tasks and the backup of start modes. Of the registry not even an empty key.
    QCOMPARE(changed, (QStringList{u"Ondrevale"_s, u"StartMode.reg"_s, u"tasks.xml"_s, u"tasks.xml"_s}));
}

void TestAutomatizerAnalyze::anEmptyMachineHasOnlyProgress()
{
    const TestMachine machine;
    WorkThread worker;
    QCOMPARE(analyze(worker), nothing);
    for (const int count : {worker.analyzeServiceCount, worker.analyzeTaskCount, worker.analyzePackageCount,
                            worker.analyzeAutorunCount, worker.analyzeProcessCount})
        QCOMPARE(count, 0);
}

void TestAutomatizerAnalyze::aRunUnderWayGivesOnlyTheClosingLine()
{
    TestMachine machine;
    fillServices(machine);
    WorkThread worker;
    worker.analyzeRunning = 1;
    worker.analyzeServiceCount = 7;
    QCOMPARE(analyze(worker), QStringList{u"AutomatizerAnalyze:finished"_s});
    QCOMPARE(worker.analyzeServiceCount, 7);
    QCOMPARE(worker.analyzeRunning, 0);
}

void TestAutomatizerAnalyze::listsAndCountsBeginAnew()
{
    AutomatizerMachine machine;
    WorkThread worker;
    const QStringList first = analyze(worker);
    const QStringList names = worker.nonVitalServices;
    QCOMPARE(analyze(worker), first);
    QCOMPARE(worker.automatizerServices.size(), 2);
    QCOMPARE(worker.automatizerTasks.size(), 2);
    QCOMPARE(worker.analyzeAutorunCount, 5);
    QCOMPARE(worker.nonVitalServices, names);
}

void TestAutomatizerAnalyze::aServiceIsSelectedOnlyIfItRunsAndIsNotDisabled_data()
{
    addColumns<QString, int, bool, bool>("name", "start", "running", "selected");
    QTest::newRow("automatic, running") << u"PcaSvc"_s << 2 << true << true;
    QTest::newRow("in another case") << u"PCASVC"_s << 2 << true << true;
    QTest::newRow("manual, running") << u"PcaSvc"_s << 3 << true << true;
    QTest::newRow("automatic, stopped") << u"PcaSvc"_s << 2 << false << false;
    QTest::newRow("disabled, running") << u"PcaSvc"_s << 4 << true << false;
    QTest::newRow("not on the list") << u"PcaSvc2"_s << 2 << true << false;
}

void TestAutomatizerAnalyze::aServiceIsSelectedOnlyIfItRunsAndIsNotDisabled()
{
    QFETCH(const QString, name);
    QFETCH(const int, start);
    QFETCH(const bool, running);
    QFETCH(const bool, selected);
    TestMachine machine;
    machine.add({.name = name, .start = start, .running = running});
    WorkThread worker;
    const QStringList found = servicesFound(worker);
    QCOMPARE(found, selected ? QStringList{u"can be disable: "_s + name} : QStringList());
    QCOMPARE(worker.automatizerServices.size(), selected ? 1 : 0);
}

void TestAutomatizerAnalyze::givingAFeatureUpAddsItsServicesAndTakingItBackRemovesThem()
{
    TestMachine machine;
    machine.add({.name = u"LanmanServer"_s, .start = 2, .running = true});
    machine.add({.name = u"lmhosts"_s, .start = 3, .running = true});
    WorkThread worker;
    QCOMPARE(servicesFound(worker), QStringList());
    worker.keepFilesSharing = 0;
    QCOMPARE(servicesFound(worker), (QStringList{u"can be disable: LanmanServer"_s, u"can be disable: lmhosts"_s}));
    QCOMPARE(worker.nonVitalServices.size(), 31 + 4);
    worker.keepFilesSharing = 2;
    QCOMPARE(servicesFound(worker), QStringList());
    QCOMPARE(worker.nonVitalServices.size(), 31);
    // These have no service.
    worker.keepXboxGameBar = 0;
    worker.keepCodecs = 0;
    QCOMPARE(servicesFound(worker), QStringList());
    QCOMPARE(worker.nonVitalServices.size(), 31);
}

void TestAutomatizerAnalyze::enablingIsToldOnlyOnceOptimized()
{
    const QStringList features{u"Spooler"_s, u"BTAGService"_s, u"FDResPub"_s,      u"SSDPSRV"_s,
                               u"SstpSvc"_s, u"SEMgrSvc"_s,    u"XblAuthManager"_s};
    TestMachine machine;
    for (const QString &name : features)
        machine.add({.name = name, .start = 4});
    machine.add({.name = u"BthAvctpSvc"_s, .start = 4, .running = true});
    machine.add({.name = u"RasMan"_s, .start = 3});
    WorkThread worker;
    QCOMPARE(servicesFound(worker), QStringList());
    machine.write(settingsKey, u"optimized"_s, 1);
    QCOMPARE(servicesFound(worker).size(), features.size());
    QCOMPARE(worker.analyzeServiceCount, int(features.size()));
    QVERIFY(worker.automatizerServices.isEmpty());
    for (std::atomic<int> *keep : {&worker.keepPrinter, &worker.keepBluetoothAudio, &worker.keepFilesSharing,
                                   &worker.keepUpnp, &worker.keepProxyVpn, &worker.keepNfc, &worker.keepXboxApp}) {
        *keep = 0;
        QCOMPARE(servicesFound(worker).size(), features.size() - 1);
        *keep = 2;
    }
}

void TestAutomatizerAnalyze::anInstanceOfAKeptServiceIsFoundByItsBeginning()
{
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    machine.add({.name = u"bthavctpsvc_5cbba"_s, .start = 4});
    WorkThread worker;
    QCOMPARE(servicesFound(worker), QStringList{u"can be enable: bthavctpsvc_5cbba"_s});
}

void TestAutomatizerAnalyze::manualStartGoesByTheStartValue_data()
{
    addColumns<int, bool>("start", "found");
    for (const int start : {0, 3, 4})
        QTest::addRow("%d stays", start) << start << false;
    for (const int start : {-1, 1, 2, 5})
        QTest::addRow("%d is told", start) << start << true;
}

void TestAutomatizerAnalyze::manualStartGoesByTheStartValue()
{
    QFETCH(const int, start);
    QFETCH(const bool, found);
    TestMachine machine;
    machine.add({.name = u"NvContainer"_s, .start = start});
    machine.add({.name = u"brave"_s, .start = start});
    WorkThread worker;
    const QStringList told{u"can be set to manual: brave"_s, u"can be set to manual: NvContainer"_s};
    QCOMPARE(servicesFound(worker), found ? told : QStringList());
    QCOMPARE(worker.analyzeServiceCount, found ? 2 : 0);
    QVERIFY(worker.automatizerServices.isEmpty());
    // A service that isn't there is none to be made.
    QVERIFY(!machine.machine().registry().find(servicesKey + u"\\edgeupdate"_s));
}

void TestAutomatizerAnalyze::disabledTasksOfKeptFeaturesAreToldOnlyOnceOptimized()
{
    TestMachine machine;
    for (const char *name : {"Printing\\EduPrintProv", "Ras\\MobilityManager", "Autochk\\Proxy"})
        addTask(machine, u"\\Microsoft\\Windows\\"_s + QString::fromLatin1(name), false);
    WorkThread worker;
    QCOMPARE(tasksFound(worker), QStringList());
    machine.write(settingsKey, u"optimized"_s, 1);
    QCOMPARE(tasksFound(worker), (QStringList{u"can be enable: Microsoft\\Windows\\Printing\\EduPrintProv"_s,
                                              u"can be enable: Microsoft\\Windows\\Ras\\MobilityManager"_s}));
    QCOMPARE(worker.analyzeTaskCount, 2);
    QVERIFY(worker.automatizerTasks.isEmpty());
    worker.keepPrinter = 0;
    worker.keepProxyVpn = 0;
    QCOMPARE(tasksFound(worker), QStringList());
}

void TestAutomatizerAnalyze::aTaskIsToldTwiceForTwoReasons()
{
    TestMachine machine;
    addTask(machine, u"\\Vendor\\OneDrive MobilityManager"_s);
    WorkThread worker;
    const QString line = u"can be disable: Vendor\\OneDrive MobilityManager"_s;
    QCOMPARE(tasksFound(worker), QStringList{line});
    worker.keepProxyVpn = 0;
    QCOMPARE(tasksFound(worker), (QStringList{line, line}));
    QCOMPARE(worker.analyzeTaskCount, 2);
    QCOMPARE(worker.automatizerTasks.size(), 2);
    // One that is named by the list, too.
    worker.nonVitalTasks.append(u"MobilityManager"_s);
    machine.machine().removeTask(u"\\Vendor\\OneDrive MobilityManager"_s);
    addTask(machine, u"\\Microsoft\\Windows\\Ras\\MobilityManager"_s);
    QCOMPARE(tasksFound(worker).size(), 2);
}

void TestAutomatizerAnalyze::aTaskIsFoundByTheBeginningOfItsName()
{
    TestMachine machine;
    for (const char *path :
         {"\\onedrive x", "\\Vendor\\MicrosoftEdgeUpdateTaskMachineX", "\\OneDrive\\Other", "\\My OneDrive"})
        addTask(machine, QString::fromLatin1(path));
    WorkThread worker;
    QCOMPARE(tasksFound(worker), (QStringList{u"can be disable: onedrive x"_s,
                                              u"can be disable: Vendor\\MicrosoftEdgeUpdateTaskMachineX"_s}));
}

void TestAutomatizerAnalyze::taskNamesAreComparedWithoutCase()
{
    TestMachine machine;
    for (const char *path : {"\\A\\PROXY", "\\A\\My eduprintprov"})
        addTask(machine, QString::fromLatin1(path));
    WorkThread worker;
    worker.keepPrinter = 0;
    QCOMPARE(tasksFound(worker), (QStringList{u"can be disable: A\\PROXY"_s, u"can be disable: A\\My eduprintprov"_s}));
}

void TestAutomatizerAnalyze::packagesToInstallAreToldOnlyOnceOptimized()
{
    TestMachine machine;
    installPackage(machine, u"Vendor.Useful"_s);
    WorkThread worker;
    const auto found = [&worker] { return startingWith(analyze(worker), u"Package: can be installed: "_s); };
    QCOMPARE(found(), QStringList());
    machine.write(settingsKey, u"optimized"_s, 1);
    QCOMPARE(found().size(), 2 + 4 + 5);
    worker.keepXboxGameBar = 0;
    QCOMPARE(found().size(), 4 + 5);
    worker.keepXboxApp = 0;
    QCOMPARE(found(), (QStringList{u"Microsoft.AV1VideoExtension"_s, u"Microsoft.VP9VideoExtensions"_s,
                                   u"Microsoft.AVCEncoderVideoExtension"_s, u"Microsoft.HEVCVideoExtension"_s,
                                   u"Microsoft.MPEG2VideoExtension"_s}));
    QCOMPARE(worker.analyzePackageCount, 5);
    worker.keepCodecs = 0;
    QCOMPARE(found(), QStringList());
}

void TestAutomatizerAnalyze::theEmptyLineFollowsPackagesToInstallAlone()
{
    TestMachine machine;
    installPackage(machine, u"Vendor.Useful"_s);
    machine.write(settingsKey, u"optimized"_s, 1);
    WorkThread worker;
    const QStringList lines = analyze(worker);
    QCOMPARE(startingWith(lines, u"Package: can be uninstalled: "_s), QStringList());
    const qsizetype last = lines.lastIndexOf(u"Package: can be installed: Microsoft.MPEG2VideoExtension"_s);
    QVERIFY(last > 0);
    QCOMPARE(lines.mid(last + 1, 2), (QStringList{u""_s, u"pgr:value:4"_s}));
}

void TestAutomatizerAnalyze::theOldXboxPackageHasANote()
{
    TestMachine machine;
    installPackage(machine, u"Microsoft.XboxApp"_s);
    WorkerOn worker(onEleven);
    QVERIFY(analyze(worker).contains(
        u"Package: can be uninstalled: Microsoft.XboxApp (Old Xbox App, no longer supported!)"_s));
}

void TestAutomatizerAnalyze::withoutProgramsTheirSectionsAreSkippedAndTheirListsStay()
{
    TestMachine machine;
    fillPackages(machine);
    fillAutoruns(machine);
    fillEncoder(machine);
    WorkThread worker;
    worker.automatizerProgram = 0;
    worker.packages = {{u"Earlier"_s, {}, {}}};
    worker.autoruns = {u"Earlier=x"_s};
    QStringList expected = nothing;
    expected.insert(6, QString(encoderLine).replace(u"%1"_s, u"EncoderServer.exe"_s));
    expected.insert(7, u""_s);
    QCOMPARE(analyze(worker), expected);
    QCOMPARE(worker.packages.size(), 1);
    QCOMPARE(worker.autoruns.size(), 1);
    QCOMPARE(worker.analyzePackageCount, 0);
    QCOMPARE(worker.analyzeAutorunCount, 0);
    QCOMPARE(worker.analyzeProcessCount, 1);
}

void TestAutomatizerAnalyze::encoders_data()
{
    addColumns<QStringList, QStringList>("processes", "found");
    const QString short_ = u"EncoderServer.exe"_s;
    const QString long_ = u"EncoderServer64.exe"_s;
    QTest::newRow("none") << QStringList{u"RTSS.exe"_s} << QStringList();
    QTest::newRow("one") << QStringList{u"a.exe"_s, long_} << QStringList{long_};
    QTest::newRow("both") << QStringList{long_, short_} << QStringList{long_, short_};
    QTest::newRow("in another case") << QStringList{short_.toLower()} << QStringList();
    QTest::newRow("a longer name") << QStringList{u"MyEncoderServer.exe"_s} << QStringList();
}

void TestAutomatizerAnalyze::encoders()
{
    QFETCH(const QStringList, processes);
    QFETCH(const QStringList, found);
    TestMachine machine;
    fillEncoder(machine);
    machine.machine().setProcesses(processes);
    WorkThread worker;
    encoderServerFound = found.isEmpty() ? 1 : 0;
    QStringList expected;
    for (const QString &name : found)
        expected << QString(encoderLine).replace(u"%1"_s, name) << u""_s;
    expected << u"AutomatizerAnalyze:finished"_s;
    QCOMPARE(analyze(worker).mid(6), expected);
    QCOMPARE(worker.analyzeProcessCount, int(found.size()));
    QCOMPARE(encoderServerFound, found.isEmpty() ? 0 : 1);
}

void TestAutomatizerAnalyze::theEncoderNeedsItsFile()
{
    TestMachine machine;
    machine.machine().setProcesses({u"EncoderServer.exe"_s});
    WorkThread worker;
    QCOMPARE(analyze(worker), nothing);
    QCOMPARE(encoderServerFound, 0);
}

KESTRUNE_SUITE(TestAutomatizerAnalyze)
#include "tst_automatizeranalyze.moc"
