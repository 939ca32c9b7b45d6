// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of what the program knows about services and tasks: each list stands here a second time, as one text. And of
// what it knows to stop working without each of them, and without each package.

#include "support/suite.h"
#include "work/keepfeatures.h"
#include "work/knowledge.h"
#include "work/packages/packages.h"
#include "work/services/services.h"
#include "work/tasks/tasks.h"

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// clang-format off
constexpr auto critical = QLatin1StringView(
    "Appinfo|AudioEndpointBuilder|Audiosrv|BFE|BITS|BrokerInfrastructure|bthserv|CoreMessagingRegistrar|CryptSvc|"
    "DeviceInstall|DcomLaunch|DeviceAssociationService|Dhcp|DoSvc|EventLog|EventSystem|gpsvc|InventorySvc|KeyIso|"
    "LicenseManager|LSM|MDCoreSvc|mpssvc|netprofm|NgcSvc|NgcCtnrSvc|nsi|PlugPlay|ProfSvc|RmSvc|RpcEptMapper|RpcSs|"
    "SamSs|Schedule|seclogon|ShellHWDetection|sppsvc|StateRepository|StorSvc|TrustedInstaller|UsoSvc|VaultSvc|WdNisSvc|"
    "webthreatdefsvc|SensorService|WaaSMedicSvc|WdiSystemHost|WinDefend|Winmgmt|wuauserv");

constexpr auto nonVitalServices = QLatin1StringView(
    "brave|cbdhsvc_5cbba|DcpSvc|diagnosticshub.standardcollector.service|DiagTrack|dmwappushservice|DusmSvc|edgeupdate|"
    "FontCache|iphlpsvc|lfsvc|MapsBroker|NvNetworkService|NvStreamNetworkSvc|NvStreamSvc|NvTelemetryContainer|"
    "NvTelemetryService|PcaSvc|PhoneSvc|RtkBtManServ|SysMain|TabletInputService|TrkWks|tzautoupdate|uhssvc|W32Time|"
    "WerSvc|wercplsupport|WPDBusEnum|WpnService|WSearch");

constexpr auto nonVitalTasks = QLatin1StringView(
    ".NET Framework NGEN v4.0.30319|.NET Framework NGEN v4.0.30319 64|.NET Framework NGEN v4.0.30319 64 Critical|"
    ".NET Framework NGEN v4.0.30319 Critical|AitAgent|AMDRyzenMasterSDKTask|AnalyzeSystem|BthSQM|CreateObjectTask|"
    "Consolidator|Device|Device User|Diagnostics|DmClient|DmClientOnScenarioDownload|FamilySafetyMonitor|"
    "FamilySafetyRefresh|FamilySafetyRefreshTask|FamilySafetyUpload|File History (maintenance mode)|FODCleanupTask|"
    "ForceSynchronizeTime|FreeDownloadManagerHelperService|GatherNetworkInfo|IndexerAutomaticMaintenance|"
    "KernelCeipTask|Microsoft-Windows-DiskDiagnosticDataCollector|Microsoft-Windows-DiskDiagnosticResolver|"
    "MicrosoftEdgeUpdateTaskMachineCore|MicrosoftEdgeUpdateTaskMachineUA|Microsoft Compatibility Appraiser|"
    "MsCtfMonitor|NvTmRepOnLogon_{B2FE1952-0186-46C3-BAEC-A80AA35AC5B8}|NvTmRep_{B2FE1952-0186-46C3-BAEC-A80AA35AC5B8}|"
    "NvTmMon_{B2FE1952-0186-46C3-BAEC-A80AA35AC5B8}|OfficeTelemetryAgentFallBack|OfficeTelemetryAgentLogOn|"
    "OfficeTelemetryAgentFallBack2016|OfficeTelemetryAgentLogOn2016|OneDrive Reporting Task|OneDrive Standalone Update|"
    "PcaPatchDbTask|ProgramDataUpdater|Proxy|QueueReporting|RegIdleBackup|ResPriStaticDbSync|ScheduledDefrag|"
    "Sqm-Tasks|SmartScreenSpecific|SR|StartCN|StartDVR|StartupAppTask|SynchronizeTime|"
    "Synchronize Language Settings|Uploader|"
    "UsbCeip|WinSAT|WsSwapAssessmentTask");

constexpr auto backupExclusions = QLatin1StringView(
    "DPS|DcomLaunch|RpcSs|SamSs|TrkWks|WdiServiceHost|WdiSystemHost|gpsvc|wscsvc");
// clang-format on

QStringList listOf(QLatin1StringView text)
{
    return QString(text).split(u'|');
}

} // namespace

class TestServiceCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachListHasExactlyItsNames_data();
    void eachListHasExactlyItsNames();
    void eachListHasItsShape_data();
    void eachListHasItsShape();
    void aNewWorkerHasTheLists();
    void prefixesOfTasks();
    void aCriticalServiceIsMeantInItsExactCase();
    void theLinkTrackingServiceStandsInBothLists();
    void featuresHaveTheirServicesInOrder();
    void keptFeaturesAddNothing();
    void aFeatureThatIsGivenUpAddsItsServices_data();
    void aFeatureThatIsGivenUpAddsItsServices();
    void gameBarAndCodecsHoldNoService();
    void aPartlyCheckedFeatureIsKept();
    void allFeaturesAddTheirServicesInOrder();
    void addingAgainGrowsTheListWithDuplicates();
    void givingUpAFeatureAddsNothingByItself();
    void eachNameIsKnownAndNoOther_data();
    void eachNameIsKnownAndNoOther();
    void taskIsKnownByItsPath();
    void ofOthersNothingIsKnown();
};

void TestServiceCatalogue::eachListHasExactlyItsNames_data()
{
    addColumns<QStringList, QStringList>("list", "names");
    QTest::newRow("critical services") << criticalServices << listOf(critical);
    QTest::newRow("services that aren't vital") << nonVitalServiceNames() << listOf(nonVitalServices);
    QTest::newRow("tasks that aren't vital") << nonVitalTaskNames() << listOf(nonVitalTasks);
    QTest::newRow("services that the backup leaves out") << startModeBackupExclusions() << listOf(backupExclusions);
}

void TestServiceCatalogue::eachListHasExactlyItsNames()
{
    QFETCH(const QStringList, list);
    QFETCH(const QStringList, names);
    QCOMPARE(list, names);
}

void TestServiceCatalogue::eachListHasItsShape_data()
{
    addColumns<QStringList, int>("list", "size");
    QTest::newRow("critical services") << criticalServices << 50;
    QTest::newRow("services that aren't vital") << nonVitalServiceNames() << 31;
    QTest::newRow("tasks that aren't vital") << nonVitalTaskNames() << 60;
    QTest::newRow("services that the backup leaves out") << startModeBackupExclusions() << 9;
}

void TestServiceCatalogue::eachListHasItsShape()
{
    QFETCH(const QStringList, list);
    QFETCH(const int, size);
    QCOMPARE(list.size(), size);
    QSet<QString> folded;
    for (const QString &name : list) {
        QVERIFY(!name.isEmpty());
        QCOMPARE(name, name.trimmed());
        folded.insert(name.toCaseFolded());
    }
    QCOMPARE(folded.size(), size); // no name twice, in whatever case
}

void TestServiceCatalogue::aNewWorkerHasTheLists()
{
    const WorkThread worker;
    QCOMPARE(worker.nonVitalServices, listOf(nonVitalServices));
    QCOMPARE(worker.nonVitalTasks, listOf(nonVitalTasks));
}

void TestServiceCatalogue::prefixesOfTasks()
{
    QCOMPARE(nonVitalTaskPrefixes(), (QStringList{u"OneDrive"_s, u"MicrosoftEdgeUpdateTaskMachine"_s}));
}

void TestServiceCatalogue::aCriticalServiceIsMeantInItsExactCase()
{
    QVERIFY(criticalServices.contains(u"EventLog"_s));
    QVERIFY(!criticalServices.contains(u"eventlog"_s));
    QVERIFY(!criticalServices.contains(u"Eventlog"_s));
}

void TestServiceCatalogue::theLinkTrackingServiceStandsInBothLists()
{
    QVERIFY(nonVitalServiceNames().contains(u"TrkWks"_s));
    QVERIFY(startModeBackupExclusions().contains(u"TrkWks"_s));
}

void TestServiceCatalogue::featuresHaveTheirServicesInOrder()
{
    struct Row
    {
        std::atomic<int> WorkThread::*keep;
        QStringList services;
    };
    const QList<Row> rows{
        {&WorkThread::keepPrinter, {u"Spooler"_s}},
        {&WorkThread::keepBluetoothAudio, {u"BthAvctpSvc"_s, u"BTAGService"_s}},
        {&WorkThread::keepFilesSharing, {u"LanmanWorkstation"_s, u"LanmanServer"_s, u"lmhosts"_s, u"FDResPub"_s}},
        {&WorkThread::keepXboxApp, {u"XblAuthManager"_s}},
        {&WorkThread::keepUpnp, {u"SSDPSRV"_s}},
        {&WorkThread::keepProxyVpn, {u"RasMan"_s, u"SstpSvc"_s}},
        {&WorkThread::keepNfc, {u"SEMgrSvc"_s}},
    };
    QList<KeepFeature> features(keepFeatures.begin(), keepFeatures.end());
    features.removeIf([](const KeepFeature &feature) { return feature.services.isEmpty(); });
    QCOMPARE(features.size(), rows.size());
    for (qsizetype i = 0; i < rows.size(); ++i) {
        const KeepFeature &feature = features.at(i);
        QVERIFY(feature.keep == rows.at(i).keep);
        QCOMPARE(feature.services, rows.at(i).services);
    }
}

void TestServiceCatalogue::keptFeaturesAddNothing()
{
    WorkThread worker;
    addServicesOfFeaturesGivenUp(worker);
    QCOMPARE(worker.nonVitalServices, listOf(nonVitalServices));
}

void TestServiceCatalogue::aFeatureThatIsGivenUpAddsItsServices_data()
{
    addColumns<int, QStringList>("feature", "services");
    QTest::newRow("printer") << 0 << QStringList{u"Spooler"_s};
    QTest::newRow("bluetooth audio") << 1 << QStringList{u"BthAvctpSvc"_s, u"BTAGService"_s};
    QTest::newRow("files sharing") << 2
                                   << QStringList{u"LanmanWorkstation"_s, u"LanmanServer"_s, u"lmhosts"_s,
                                                  u"FDResPub"_s};
    QTest::newRow("xbox app") << 3 << QStringList{u"XblAuthManager"_s};
    QTest::newRow("upnp") << 4 << QStringList{u"SSDPSRV"_s};
    QTest::newRow("proxy and vpn") << 5 << QStringList{u"RasMan"_s, u"SstpSvc"_s};
    QTest::newRow("nfc") << 6 << QStringList{u"SEMgrSvc"_s};
}

void TestServiceCatalogue::aFeatureThatIsGivenUpAddsItsServices()
{
    QFETCH(const int, feature);
    QFETCH(const QStringList, services);
    WorkThread worker;
    const std::array members{&worker.keepPrinter, &worker.keepBluetoothAudio, &worker.keepFilesSharing,
                             &worker.keepXboxApp, &worker.keepUpnp,           &worker.keepProxyVpn,
                             &worker.keepNfc};
    *members.at(std::size_t(feature)) = 0;
    addServicesOfFeaturesGivenUp(worker);
    QCOMPARE(worker.nonVitalServices, listOf(nonVitalServices) + services);
}

void TestServiceCatalogue::gameBarAndCodecsHoldNoService()
{
    WorkThread worker;
    worker.keepXboxGameBar = 0;
    worker.keepCodecs = 0;
    addServicesOfFeaturesGivenUp(worker);
    QCOMPARE(worker.nonVitalServices, listOf(nonVitalServices));
}

void TestServiceCatalogue::aPartlyCheckedFeatureIsKept()
{
    WorkThread worker;
    worker.keepPrinter = 1;
    addServicesOfFeaturesGivenUp(worker);
    QCOMPARE(worker.nonVitalServices, listOf(nonVitalServices));
}

void TestServiceCatalogue::allFeaturesAddTheirServicesInOrder()
{
    WorkThread worker;
    for (const KeepFeature &feature : keepFeatures)
        worker.*feature.keep = 0;
    addServicesOfFeaturesGivenUp(worker);
    QCOMPARE(worker.nonVitalServices.sliced(31),
             (QStringList{u"Spooler"_s, u"BthAvctpSvc"_s, u"BTAGService"_s, u"LanmanWorkstation"_s, u"LanmanServer"_s,
                          u"lmhosts"_s, u"FDResPub"_s, u"XblAuthManager"_s, u"SSDPSRV"_s, u"RasMan"_s, u"SstpSvc"_s,
                          u"SEMgrSvc"_s}));
}

void TestServiceCatalogue::addingAgainGrowsTheListWithDuplicates()
{
    WorkThread worker;
    worker.keepPrinter = 0;
    addServicesOfFeaturesGivenUp(worker);
    addServicesOfFeaturesGivenUp(worker);
    QCOMPARE(worker.nonVitalServices, listOf(nonVitalServices) + QStringList(2, u"Spooler"_s));
}

void TestServiceCatalogue::givingUpAFeatureAddsNothingByItself()
{
    WorkThread worker;
    worker.keepPrinter = 0;
    QVERIFY(!worker.nonVitalServices.contains(u"Spooler"_s));
}

void TestServiceCatalogue::eachNameIsKnownAndNoOther_data()
{
    addColumns<QString, QStringList>("part", "names");
    QStringList services =
        criticalServices + nonVitalServiceNames() + manualStartServiceNames() + startModeBackupExclusions();
    QStringList tasks = nonVitalTaskNames();
    for (const QString &prefix : nonVitalTaskPrefixes())
        tasks.append(prefix + u'*');
    QStringList packages = removablePackageNames() << oneDriveName;
    for (QString &name : packages)
        name.remove(u'!'); // people may still name one that the list leaves out
    for (const KeepFeature &feature : keepFeatures) {
        services += feature.services;
        tasks += feature.tasks;
        packages += feature.packages;
    }
    QTest::newRow("services") << u"services"_s << services;
    QTest::newRow("tasks") << u"tasks"_s << tasks;
    QTest::newRow("packages") << u"packages"_s << packages;
}

void TestServiceCatalogue::eachNameIsKnownAndNoOther()
{
    QFETCH(const QString, part);
    QFETCH(const QStringList, names);
    QFile file(QStringLiteral(KESTRUNE_KNOWLEDGE));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject known = QJsonDocument::fromJson(file.readAll())[part].toObject();
    const QStringList knownNames = known.keys();
    QCOMPARE(QSet(knownNames.cbegin(), knownNames.cend()), QSet(names.cbegin(), names.cend()));
    QSet<QString> sentences;
    for (const QString &name : names) {
        const QString sentence = known.value(name).toString();
        QVERIFY2(sentence.endsWith(u'.') && sentence == sentence.simplified(), qPrintable(name));
        sentences.insert(sentence);
        QCOMPARE(part == "services"_L1 ? withoutService(name)
                 : part == "tasks"_L1  ? withoutTask(name)
                                       : withoutPackage(name),
                 sentence);
    }
    QCOMPARE(sentences.size(), known.size()); // one that stands for two things tells of neither
}

void TestServiceCatalogue::taskIsKnownByItsPath()
{
    QCOMPARE(withoutTask(u"\\Microsoft\\Windows\\Defrag\\SCHEDULEDDEFRAG"_s), withoutTask(u"ScheduledDefrag"_s));
    const QString update = u"MicrosoftEdgeUpdateTaskMachine"_s;
    QCOMPARE(withoutTask(u'\\' + update + u"Core"_s), withoutTask(update + u"Core"_s));
    QCOMPARE(withoutTask(u'\\' + update + u"Core{5-1}"_s), withoutTask(update + u'*'));
    QCOMPARE(withoutTask(u"\\OneDrive Startup Task-S-1-5-21"_s), withoutTask(u"OneDrive*"_s));
}

void TestServiceCatalogue::ofOthersNothingIsKnown()
{
    QCOMPARE(withoutService(u"ScheduledDefrag"_s), QString());
    QCOMPARE(withoutService(QString()), QString());
    QCOMPARE(withoutTask(u"\\Vendor\\My OneDrive"_s), QString());
    QCOMPARE(withoutPackage(u"Microsoft.Paint"_s), QString());
    QCOMPARE(withoutService(u"SPOOLER"_s), withoutService(u"Spooler"_s));
}

KESTRUNE_SUITE(TestServiceCatalogue)
#include "tst_servicecatalogue.moc"
