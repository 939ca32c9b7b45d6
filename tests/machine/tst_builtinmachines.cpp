// SPDX-License-Identifier: GPL-3.0-or-later
// What the built-in machines have of services, scheduled tasks, packaged applications and programs started at logon.

#include "support/smallmachine.h"
#include "support/suite.h"

#include "machine/registrydisplay.h"
#include "machine/source/machinejson.h"
#include "platform/taskdocument.h"
#include "platform/windowsfacts.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QSet>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString userVersion = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion"_s;
const QString appModel = u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\"
                         "CurrentVersion\\AppModel"_s;

// What a stock Windows 11 24H2 and lists of the defaults of Windows 11 agree on; Windows 10 has the first three too.
// clang-format off
constexpr char automaticServices[] =
    "BFE BrokerInfrastructure CDPSvc CDPUserSvc CoreMessagingRegistrar CryptSvc DcomLaunch Dhcp DiagTrack "
    "DispBrokerDesktopSvc Dnscache DoSvc DPS DusmSvc edgeupdate EventLog EventSystem FontCache gpsvc "
    "iphlpsvc LanmanServer LanmanWorkstation LSM MapsBroker nsi OneSyncSvc PcaSvc Power ProfSvc "
    "RpcEptMapper RpcSs SamSs Schedule SENS ShellHWDetection Spooler sppsvc SysMain SystemEventsBroker "
    "Themes TrkWks UserManager Wcmsvc WinDefend Winmgmt WpnService";
constexpr char manualServices[] =
    "AarSvc ALG AppIDSvc Appinfo AppMgmt AppReadiness AppXSvc AssignedAccessManagerSvc autotimesvc "
    "AxInstSV BcastDVRUserService BDESVC BluetoothUserService BTAGService BthAvctpSvc bthserv "
    "CaptureService CertPropSvc ClipSVC COMSysApp ConsentUxUserSvc CredentialEnrollmentManagerUserSvc "
    "defragsvc DeviceInstall DevicePickerUserSvc DevicesFlowUserSvc DevQueryBroker diagsvc "
    "DisplayEnhancementService DmEnrollmentSvc dmwappushservice dot3svc DsmSvc DsSvc EapHost edgeupdatem "
    "EFS embeddedmode EntAppSvc fdPHost FDResPub fhsvc FrameServer GraphicsPerfSvc hidserv HvHost icssvc "
    "IKEEXT InstallService IpxlatCfgSvc KtmRm lfsvc LicenseManager lltdsvc lmhosts LxpSvc "
    "MessagingService MSiSCSI msiserver NaturalAuthentication NcaSvc NcbService NcdAutoSetup Netlogon "
    "Netman netprofm NetSetupSvc NgcCtnrSvc NgcSvc PeerDistSvc perceptionsimulation PerfHost PhoneSvc "
    "PimIndexMaintenanceSvc pla PlugPlay PolicyAgent PrintNotify PrintWorkflowUserSvc PushToInstall QWAVE "
    "RasAuto RmSvc RpcLocator SCardSvr ScDeviceEnum SCPolicySvc SDRSVC seclogon SEMgrSvc Sense "
    "SensorDataService SensorService SensrSvc SessionEnv SharedAccess smphost SmsRouter SNMPTrap SSDPSRV "
    "SstpSvc svsvc swprv TapiSrv TermService TieringEngineService TimeBrokerSvc TokenBroker "
    "TroubleshootingSvc TrustedInstaller UdkUserSvc UmRdpService UnistoreSvc upnphost UserDataSvc "
    "VaultSvc vds vmicguestinterface vmicheartbeat vmickvpexchange vmicrdv vmicshutdown vmictimesync "
    "vmicvmsession vmicvss VSS WaaSMedicSvc WalletService WarpJITSvc wbengine WbioSrvc WdiSystemHost "
    "WdNisSvc WebClient Wecsvc WEPHOSTSVC wercplsupport WerSvc WFDSConMgrSvc WiaRpc WinHttpAutoProxySvc "
    "wisvc wlidsvc WManSvc wmiApSrv WpcMonSvc WPDBusEnum wuauserv WwanSvc XblAuthManager XblGameSave "
    "XboxGipSvc XboxNetApiSvc";
constexpr char disabledServices[] =
    "AppVClient DialogBlockingService NetTcpPortSharing RemoteAccess ssh-agent tzautoupdate "
    "UevAgentService";
constexpr char automaticServicesOf11[] =
    "camsvc StateRepository StorSvc whesvc WSAIFabricSvc";
constexpr char manualServicesOf11[] =
    "ADPSvc ApxSvc BITS CloudBackupRestoreSvc DeviceAssociationService GameInputSvc hpatchmon KeyIso "
    "LocalKdc McmSvc midisrv NlaSvc NPSMSvc P9RdrService PenService PrintDeviceConfigurationService "
    "PrintScanBrokerService RasMan WMPNetworkSvc wuqisvc";

// Tasks below \Microsoft\Windows whose definitions switch them on or off.
constexpr char enabledTasks[] =
    "Management\\Provisioning\\Logon|Work Folders\\Work Folders Logon Synchronization";
constexpr char disabledTasks[] =
    "Clip\\License Validation|DeviceDirectoryClient\\RegisterDevicePeriodic24";
constexpr char enabledTasksOf11[] = "PushToInstall\\Registration";
constexpr char disabledTasksOf11[] =
    "Management\\Provisioning\\Retry|Management\\Provisioning\\RunOnReboot|Clip\\LicenseImdsIntegration|"
    "Management\\Provisioning\\MdmDiagnosticsCleanup|MemoryDiagnostic\\RunFullMemoryDiagnostic|"
    "SoftwareProtectionPlatform\\SvcRestartTaskNetwork|WaaSMedic\\PerformRemediation";
// clang-format on

/** The machine of the running row. */
class BuiltIn
{
public:
    explicit BuiltIn(const QString &name)
    {
        makeMachine(folder_.filePath(u"m"_s), builtProgram(u"machines/"_s + name), Existing::Keep);
        machine_ = Machine::open(folder_.filePath(u"m"_s));
    }
    Machine *operator->() { return machine_.get(); }
    Machine &operator*() { return *machine_; }
    QString text(const QString &key, const QString &name)
    {
        const auto id = machine_->registry().find(key);
        const auto value = id ? machine_->registry().value(*id, name) : std::nullopt;
        return value ? textOf(value->data) : QString();
    }
    QStringList subkeys(const QString &key)
    {
        const auto id = machine_->registry().find(key);
        return id ? QStringList(machine_->registry().subkeys(*id)) : QStringList();
    }
    /** How a service starts; 0 where there is none. */
    int startOf(const QString &service)
    {
        const auto id = machine_->registry().find(WindowsKey::services + u'\\' + service);
        const auto start = id ? machine_->registry().value(*id, u"Start"_s) : std::nullopt;
        return start ? start->data.at(0) : 0;
    }
    QString folder() const { return machine_->folder(); }
    QHash<QString, qint64> sizes() const { return machine_->givenSizes(); }
    bool exists(const QString &windowsPath) { return QFile::exists(machine_->hostPath(windowsPath)); }

private:
    QTemporaryDir folder_;
    std::unique_ptr<Machine> machine_;
};

} // namespace

class TestBuiltInMachines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theySayWhereTheirFactsComeFrom_data() { machines(); }
    void theySayWhereTheirFactsComeFrom();
    void startTypes_data();
    void startTypes();
    void servicesOfWindows11_data();
    void servicesOfWindows11();
    void everyServiceHasWhatItNeeds_data() { machines(); }
    void everyServiceHasWhatItNeeds();
    void theLaptopRefusesWhatWindowsProtects_data() { machines(); }
    void theLaptopRefusesWhatWindowsProtects();
    void taskStates_data();
    void taskStates();
    void tasks_data();
    void tasks();
    void theAutomatizerFindsTasksOfFeaturesAndAnEncoder_data() { machines(); }
    void theAutomatizerFindsTasksOfFeaturesAndAnEncoder();
    void taskReferencesAreResolved_data() { machines(); }
    void taskReferencesAreResolved();
    void packages_data() { machines(); }
    void packages();
    void oneDrive_data() { machines(); }
    void oneDrive();
    void whatTweaksLookFor_data();
    void whatTweaksLookFor();
    void runKeys_data() { machines(); }
    void runKeys();
    void hardware_data() { machines(); }
    void hardware();
    void hardwareDiffersBetweenThem();
    void theirFoldersAreSmall_data() { machines(); }
    void theirFoldersAreSmall();

private:
    static void machines()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"windows11-pro-laptop", "windows11-25h2", "windows11", "windows10"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
};

void TestBuiltInMachines::theySayWhereTheirFactsComeFrom()
{
    QFETCH(const QString, name);
    const QString path = builtProgram(u"machines/"_s + name) + u"/machine.json"_s;
    const QStringList facts = parseMachineJson(readFile(path), path).facts;
    QVERIFY(facts.size() >= 3);
    // Which PC it is, and where its services and tasks are from.
    QVERIFY(facts.filter(u"uild "_s).size() > 0 && facts.filter(u"ervices"_s).size() > 0);
    QVERIFY(facts.filter(u"upgraded PC"_s).isEmpty() == name.startsWith("windows11-"_L1));
}

void TestBuiltInMachines::startTypes_data()
{
    addColumns<QString, QString, int>("name", "services", "start");
    for (const char *name : {"windows11-25h2", "windows11", "windows10"}) {
        const auto row = [name](const char *kind, const char *services, int start) {
            QTest::addRow("%s, %s", name, kind) << QString::fromLatin1(name) << QString::fromLatin1(services) << start;
        };
        row("automatic", automaticServices, StartAutomatic);
        row("manual", manualServices, StartOnDemand);
        row("disabled", disabledServices, StartDisabled);
        if (qstrcmp(name, "windows10") != 0) {
            row("automatic on 11", automaticServicesOf11, StartAutomatic);
            row("manual on 11", manualServicesOf11, StartOnDemand);
        }
    }
}

void TestBuiltInMachines::startTypes()
{
    QFETCH(const QString, name);
    QFETCH(const QString, services);
    QFETCH(const int, start);
    BuiltIn machine(name);
    for (const QString &service : services.split(u' '))
        QVERIFY2(machine.startOf(service) == start, qUtf8Printable(service));
}

void TestBuiltInMachines::servicesOfWindows11_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"windows11-25h2", "windows11"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestBuiltInMachines::servicesOfWindows11()
{
    QFETCH(const QString, name);
    BuiltIn machine(name);
    for (const auto &[service, group] : {std::pair{u"gpsvc"_s, u"GPSvcGroup"_s},
                                         {u"ProfSvc"_s, u"UserProfileService -p"_s},
                                         {u"NlaSvc"_s, u"netprofm -p"_s},
                                         {u"WinHttpAutoProxySvc"_s, u"LocalServiceHttp -p"_s}})
        QCOMPARE(machine.text(WindowsKey::services + u'\\' + service, u"ImagePath"_s),
                 u"%SystemRoot%\\system32\\svchost.exe -k "_s + group);
    const auto key = machine->registry().find(WindowsKey::services + u"\\NlaSvc"_s);
    QVERIFY(key && !machine->registry().value(*key, u"DependOnService"_s));
    QVERIFY(!machine->registry().find(WindowsKey::services + u"\\P9RdrSvc"_s));
}

void TestBuiltInMachines::everyServiceHasWhatItNeeds()
{
    QFETCH(const QString, name);
    BuiltIn machine(name);
    for (const QString &service : machine.subkeys(WindowsKey::services)) {
        const auto key = machine->registry().find(WindowsKey::services + u'\\' + service);
        const auto needed = machine->registry().value(*key, u"DependOnService"_s);
        for (const QString &other : needed ? textsOf(needed->data) : QStringList())
            QVERIFY2(machine->registry().find(WindowsKey::services + u'\\' + other), qUtf8Printable(service));
    }
}

void TestBuiltInMachines::theLaptopRefusesWhatWindowsProtects()
{
    QFETCH(const QString, name);
    BuiltIn machine(name);
    const auto service = machine->fault(u"sc"_s, {u"config"_s, u"WinDefend"_s, u"start=disabled"_s});
    const QString guarded = u"Microsoft\\Windows\\UpdateOrchestrator\\Schedule Scan"_s;
    const auto task = machine->fault(u"schtasks"_s, {u"/CHANGE"_s, u"/TN"_s, guarded, u"/DISABLE"_s});
    const auto package = machine->fault(
        u"powershell"_s, {u"-Command"_s, u"Get-AppxPackage"_s, u"Microsoft.LockApp"_s, u"| Remove-AppxPackage"_s});
    if (name != "windows11-pro-laptop"_L1) {
        QVERIFY(!service && !task && !package);
        return;
    }
    QVERIFY(service && service->exitCode == 5);
    QVERIFY(task && task->exitCode == 1);
    QVERIFY(package && package->exitCode == 1);
    // What isn't protected can be changed.
    QVERIFY(!machine->fault(u"sc"_s, {u"config"_s, u"DiagTrack"_s, u"start=disabled"_s}));
}

void TestBuiltInMachines::taskStates_data()
{
    addColumns<QString, QString, bool>("name", "tasks", "enabled");
    for (const char *name : {"windows11-25h2", "windows11", "windows10"}) {
        const auto row = [name](const char *kind, const char *tasks, bool enabled) {
            QTest::addRow("%s, %s", name, kind) << QString::fromLatin1(name) << QString::fromLatin1(tasks) << enabled;
        };
        row("on", enabledTasks, true);
        row("off", disabledTasks, false);
        if (qstrcmp(name, "windows10") != 0) {
            row("on on 11", enabledTasksOf11, true);
            row("off on 11", disabledTasksOf11, false);
        }
    }
}

void TestBuiltInMachines::taskStates()
{
    QFETCH(const QString, name);
    QFETCH(const QString, tasks);
    QFETCH(const bool, enabled);
    BuiltIn machine(name);
    for (const QString &path : tasks.split(u'|')) {
        const auto task = machine->task(u"\\Microsoft\\Windows\\"_s + path);
        QVERIFY2(task && taskFacts(task->document).enabled == enabled, qUtf8Printable(path));
    }
}

void TestBuiltInMachines::tasks_data()
{
    addColumns<QString, qsizetype, QString>("name", "fewest", "ofTheVendor");
    QTest::newRow("windows11-pro-laptop")
        << u"windows11-pro-laptop"_s << qsizetype(244) << u"\\NvTmRep_{B2FE1952-0186-46C3-BAEC-A80AA35AC5B8}"_s;
    QTest::newRow("windows11-25h2") << u"windows11-25h2"_s << qsizetype(244)
                                    << u"\\NvTmRep_{B2FE1952-0186-46C3-BAEC-A80AA35AC5B8}"_s;
    QTest::newRow("windows11") << u"windows11"_s << qsizetype(180)
                               << u"\\NvTmRep_{B2FE1952-0186-46C3-BAEC-A80AA35AC5B8}"_s;
    QTest::newRow("windows10") << u"windows10"_s << qsizetype(145) << u"\\AMDRyzenMasterSDKTask"_s;
}

void TestBuiltInMachines::tasks()
{
    QFETCH(QString, name);
    QFETCH(QString, ofTheVendor);
    BuiltIn machine(name);
    const QList<ScheduledTask> tasks = machine->tasks();
    QFETCH(qsizetype, fewest);
    QVERIFY(tasks.size() >= fewest);
    QVERIFY(machine->task(ofTheVendor));
    QVERIFY(machine->task(u"\\Microsoft\\Windows\\Ras\\MobilityManager"_s));

    int off = 0, onlyInATrigger = 0, undescribed = 0, described = 0, references = 0, forAdministrators = 0;
    for (const ScheduledTask &task : tasks) {
        const TaskFacts facts = taskFacts(task.document);
        QCOMPARE(facts.uri, task.path);
        off += facts.enabled ? 0 : 1;
        onlyInATrigger += facts.enabled && task.document.contains("<Enabled>"_L1);
        undescribed += facts.description.isEmpty();
        references += facts.description.startsWith("$(@"_L1);
        described += !facts.description.isEmpty() && !facts.description.startsWith("$(@"_L1);
        forAdministrators += facts.forAdministrators;
    }
    for (const int kind : {off, onlyInATrigger, undescribed, described, references, forAdministrators})
        QVERIFY(kind > 0 && kind < tasks.size());
}

void TestBuiltInMachines::theAutomatizerFindsTasksOfFeaturesAndAnEncoder()
{
    QFETCH(QString, name);
    BuiltIn machine(name);
    int on = 0, off = 0;
    for (const ScheduledTask &task : machine->tasks()) {
        if (task.path.contains("\\Printing\\"_L1))
            ++(taskFacts(task.document).enabled ? on : off);
    }
    QVERIFY(on > 0 && off > 0);
    QCOMPARE(taskFacts(machine->task(u"\\Microsoft\\Windows\\Ras\\MobilityManager"_s)->document).enabled,
             name != u"windows10");
    const QStringList encoders = machine->processes().filter(u"EncoderServer"_s);
    QCOMPARE(encoders, QStringList{name == u"windows10" ? u"EncoderServer.exe"_s : u"EncoderServer64.exe"_s});
    QVERIFY(machine->processes().contains(u"RTSS.exe"_s));
    QVERIFY(machine.exists(u"C:\\Program Files (x86)\\RivaTuner Statistics Server\\Profiles\\config"_s));
}

void TestBuiltInMachines::taskReferencesAreResolved()
{
    QFETCH(QString, name);
    BuiltIn machine(name);
    for (const ScheduledTask &task : machine->tasks()) {
        const QString description = taskFacts(task.document).description;
        if (!description.startsWith("$(@"_L1))
            continue;
        const QString reference = description.sliced(2).chopped(1);
        QVERIFY2(resolveResourceText(*machine, reference) != reference, qUtf8Printable(task.path));
    }
}

void TestBuiltInMachines::packages()
{
    QFETCH(QString, name);
    BuiltIn machine(name);
    const QString key = appModel + u"\\Repository\\Packages"_s;
    const QStringList fullNames = machine.subkeys(key);
    QVERIFY(fullNames.size() >= (name.startsWith("windows11-"_L1) ? 70 : 85));
    QSet<QString> families;
    int plain = 0, resources = 0, references = 0;
    for (const QString &fullName : fullNames) {
        families.insert(fullName.section(u'_', 0, 0));
        QCOMPARE(fullName.count(u'_'), 4);
        const QString shown = machine.text(key + u'\\' + fullName, u"DisplayName"_s);
        resources += shown.startsWith("ms-resource:"_L1);
        references += shown.startsWith("@{"_L1 + fullName + u'?');
        plain += !shown.isEmpty() && !shown.startsWith("ms-resource:"_L1) && !shown.startsWith(u'@');
        QCOMPARE(machine.text(key + u'\\' + fullName, u"PackageID"_s), fullName);
    }
    QCOMPARE(plain + resources + references, int(fullNames.size()));
    QVERIFY(plain > 0 && resources > 0 && references > 0);
    QVERIFY(families.size() < fullNames.size());
    QStringList staged = fullNames;
    if (name == "windows11-pro-laptop"_L1) // an application that its user alone has doesn't come back
        staged.removeIf([](const QString &fullName) { return fullName.startsWith("SpotifyAB."_L1); });
    QCOMPARE(staged.size() < fullNames.size(), name == "windows11-pro-laptop"_L1);
    QCOMPARE(machine.subkeys(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Appx\\"
                             "AppxAllUserStore\\Applications"_s),
             staged);
}

void TestBuiltInMachines::oneDrive()
{
    QFETCH(QString, name);
    BuiltIn machine(name);
    const QString home = machine->environment().value(u"LOCALAPPDATA"_s);
    QVERIFY(machine.exists(home + u"\\Microsoft\\OneDrive\\OneDrive.exe"_s));
    // Windows 11 24H2 has a setup of 64 bits alone, Windows 10 one of 32 bits alone.
    QCOMPARE(machine.exists(u"C:\\Windows\\SysWOW64\\OneDriveSetup.exe"_s), name == "windows10"_L1);
    QCOMPARE(machine.exists(u"C:\\Windows\\System32\\OneDriveSetup.exe"_s), name != "windows10"_L1);
    const QString command = machine.text(userVersion + u"\\Uninstall\\OneDriveSetup.exe"_s, u"UninstallString"_s);
    QVERIFY(command.startsWith(u'"') && command.endsWith("\"  /uninstall "_L1));
    QVERIFY(machine.exists(command.split(u'"').at(1)));
    QVERIFY(machine.exists(machine->environment().value(u"TEMP"_s)));
    QVERIFY(machine.exists(u"C:\\Windows\\system32\\WindowsPowerShell\\v1.0\\powershell.exe"_s));
}

void TestBuiltInMachines::whatTweaksLookFor_data()
{
    addColumns<QString, QString, QString, QString, QList<qsizetype>>("name", "search", "cloudService", "vendor",
                                                                     "hints");
    QTest::newRow("windows11-pro-laptop")
        << u"windows11-pro-laptop"_s << u"MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost.exe"_s
        << u"CloudBackupRestoreSvc_7a3c0"_s << u"NVIDIA"_s << QList<qsizetype>{0, 0, 22};
    QTest::newRow("windows11-25h2") << u"windows11-25h2"_s
                                    << u"MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost.exe"_s
                                    << u"CloudBackupRestoreSvc_4e5b1"_s << u"NVIDIA"_s << QList<qsizetype>{0, 0, 22};
    QTest::newRow("windows11") << u"windows11"_s << u"MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost.exe"_s
                               << u"CloudBackupRestoreSvc_5cbba"_s << u"NVIDIA"_s << QList<qsizetype>{0, 0, 22};
    QTest::newRow("windows10") << u"windows10"_s << u"Microsoft.Windows.Search_cw5n1h2txyewy\\SearchApp.exe"_s
                               << u"CloudBackupRestoreSvc_3f1a2"_s << u"Advanced Micro Devices, Inc."_s
                               << QList<qsizetype>{0, 21, 22};
}

void TestBuiltInMachines::whatTweaksLookFor()
{
    QFETCH(const QString, name);
    QFETCH(const QString, search);
    QFETCH(const QString, cloudService);
    BuiltIn machine(name);
    const QString control = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\"_s;

    const QString interfaces = control + u"Services\\Tcpip\\Parameters\\Interfaces"_s;
    QList<qsizetype> hints;
    for (const QString &each : machine.subkeys(interfaces)) {
        const QString hint = machine.text(interfaces + u'\\' + each, u"DhcpNetworkHint"_s);
        hints.append(hint.size());
        if (hint.size() == 22)
            QCOMPARE(machine.subkeys(interfaces + u'\\' + each), QStringList(hint.first(12)));
    }
    std::sort(hints.begin(), hints.end());
    QTEST(hints, "hints");

    const QString video = control + u"Control\\Video"_s;
    const QStringList adapters = machine.subkeys(video);
    QCOMPARE(adapters.size(), 2);
    QTEST(machine.text(video + u'\\' + adapters.first() + u"\\0000"_s, u"ProviderName"_s), "vendor");

    QVERIFY(machine.exists(u"C:\\Windows\\SystemApps\\"_s + search));
    QVERIFY(machine.exists(u"C:\\hiberfil.sys"_s));
    QVERIFY(machine->task(u"\\Microsoft\\Windows\\CloudRestore\\Backup"_s));
    QVERIFY(machine->task(u"\\Microsoft\\Windows\\CloudRestore\\Restore"_s));
    const auto service = machine->registry().find(control + u"Services\\"_s + cloudService);
    QVERIFY(service);
    // On one of them nothing sorts after Type, on the others something does.
    QCOMPARE(machine->registry().valueNames(*service).constLast(),
             name == u"windows11" ? u"Type"_s : u"UserServiceFlags"_s);
    QCOMPARE(machine->registry().find(control + u"Services\\Hpet"_s).has_value(), name == u"windows10");
}

void TestBuiltInMachines::runKeys()
{
    QFETCH(QString, name);
    BuiltIn machine(name);
    const QString wow = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
    const QString machineRun = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
    int quoted = 0, unquoted = 0, withEquals = 0, missing = 0, unnamed = 0;
    for (const QString &key : {userVersion + u"\\Run"_s, machineRun, wow}) {
        const auto id = machine->registry().find(key);
        QVERIFY(id);
        for (const RegistryValue &value : machine->registry().values(*id)) {
            const QString command = textOf(value.data);
            unnamed += value.name.isEmpty();
            withEquals += command.contains(u'=');
            unquoted += !command.startsWith(u'"');
            quoted += command.startsWith(u'"');
            missing += !value.name.isEmpty() && command.startsWith(u'"') && !machine.exists(command.split(u'"').at(1));
        }
    }
    QVERIFY(quoted > 2 && unquoted > 1 && withEquals > 0);
    QCOMPARE(missing, 1);
    QCOMPARE(unnamed, 1);
    QVERIFY(!machine.text(machineRun, u"SecurityHealth"_s).isEmpty());
}

void TestBuiltInMachines::hardware()
{
    QFETCH(QString, name);
    BuiltIn machine(name);
    // As many processes for WMI as there are.
    QCOMPARE(machine->wmiInstances(u"win32_process"_s).size(), machine->processes().size());
    for (const QJsonObject &process : machine->wmiInstances(u"win32_process"_s))
        QVERIFY(process.value(u"HandleCount"_s).toInt(-1) >= 0);
    for (const QString &single :
         {u"Win32_ComputerSystem"_s, u"Win32_OperatingSystem"_s, u"Win32_PageFileUsage"_s, u"Win32_Processor"_s})
        QCOMPARE(machine->wmiInstances(single).size(), 1);
    const QJsonObject hardware = machine->hardware();
    const QString freeMemory =
        machine->wmiInstances(u"Win32_OperatingSystem"_s).first().value(u"FreePhysicalMemory"_s).toString();
    QCOMPARE(hardware.value(u"freeMemory"_s).toInteger(), freeMemory.toLongLong() * 1024);
    QVERIFY(hardware.value(u"threads"_s).toInt() > machine->processes().size());
    const QJsonObject drive = hardware.value(u"volumes"_s).toObject().value(u"C:"_s).toObject();
    QVERIFY(drive.value(u"seekPenalty"_s).isBool() && drive.value(u"freeBytes"_s).toInteger() > 0);
    const QJsonArray steps = hardware.value(u"processorTimes"_s).toArray();
    // An odd number, since a run of the monitor takes two: so all of them are seen.
    QVERIFY(steps.size() > 5 && steps.size() % 2 == 1);
    for (const QJsonValue step : steps)
        QVERIFY(step[u"kernel"_s].toInteger() >= step[u"idle"_s].toInteger()); // which it contains
}

void TestBuiltInMachines::hardwareDiffersBetweenThem()
{
    BuiltIn eleven(u"windows11"_s);
    BuiltIn ten(u"windows10"_s);
    for (const QString &className : {u"Win32_PhysicalMemory"_s, u"Win32_DiskDrive"_s, u"Win32_VideoController"_s}) {
        QCOMPARE(eleven->wmiInstances(className).size(), 1);
        QCOMPARE(ten->wmiInstances(className).size(), 2);
    }
    const auto cache = [](BuiltIn &machine) {
        return machine->wmiInstances(u"Win32_Processor"_s).first().value(u"L2CacheSize"_s).toInt();
    };
    QVERIFY(cache(eleven) >= 1024 && cache(ten) > 0 && cache(ten) < 1024);
    const QString radeon = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\ATI Technologies\\Install"_s;
    QVERIFY(!ten.text(radeon, u"RadeonSoftwareVersion"_s).isEmpty());
    QVERIFY(ten.exists(ten.text(radeon, u"InstallDir"_s) + u"\\Bin64\\AMDSoftwareInstaller.exe"_s));
    QVERIFY(!eleven->registry().find(radeon));
}

/** As whatever copies them finds them: no hole, no link. */
void TestBuiltInMachines::theirFoldersAreSmall()
{
    constexpr qint64 mebibyte = qint64{1024} * 1024;

    QFETCH(QString, name);
    const BuiltIn machine(name);
    qint64 onDisk = 0;
    QDirIterator files(machine.folder(), QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        files.next();
        onDisk += files.fileInfo().size();
    }
    qint64 told = 0;
    for (const qint64 size : machine.sizes())
        told += size;
    QVERIFY2(onDisk < 5 * mebibyte, qPrintable(QString::number(onDisk)));
    QVERIFY(told > 10000 * mebibyte);
}

KESTRUNE_SUITE(TestBuiltInMachines)
#include "tst_builtinmachines.moc"
