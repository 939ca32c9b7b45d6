// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of removing packaged applications and bringing them back.

#include "joblines.h"
#include "support/packageplaces.h"
#include "support/suite.h"
#include "work/command.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString startupKey =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\StartupApproved\\Run"_s;
const QString removedAll = u"page:    Uninstall   packages finished  "_s;
const QString installedAll = u"page:    Install   packages finished  "_s;
const QString systemsSetup = u"C:\\Windows\\System32\\OneDriveSetup.exe"_s;
const QString setup32 = u"C:\\Windows\\SysWOW64\\OneDriveSetup.exe"_s;

constexpr int patience = 60000; // milliseconds

PackageRow row(const QString &name, const QString &comment = {})
{
    return {name, {}, comment};
}

LoggedCommand removal(const QString &name, int exitCode = 0)
{
    return {u"powershell"_s, {u"-Command"_s, u"Get-AppxPackage"_s, name, u"| Remove-AppxPackage"_s}, exitCode};
}

LoggedCommand installation(const QString &name, int exitCode = 0)
{
    return {
        u"powershell"_s,
        {u"-Command"_s, u"Get-AppxPackage"_s, u"-allusers"_s, name,
         u" | Foreach {Add-AppxPackage -DisableDevelopmentMode -Register \"$($_.InstallLocation)\\AppXManifest.xml\"}"_s},
        exitCode};
}

QString pageLine(bool install, const QString &text)
{
    return (install ? u"page:    Install   "_s : u"page:    Uninstall   "_s) + text;
}

QString automatizerLine(const QString &text)
{
    return u"automatizer: Windows application: "_s + text;
}

} // namespace

class TestPackageState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Command::timeLimit = 30000; }

    // Commands
    void powershellGetsExactlyTheseArguments_data();
    void powershellGetsExactlyTheseArguments();
    void nameIsHandedOverAsItIs_data();
    void nameIsHandedOverAsItIs();
    void packagesAreHandledInTheirOrder();
    void pathOfPowershellIsFoundAnew();
    void missingPowershellCountsAsDone_data();
    void missingPowershellCountsAsDone();

    // OneDrive
    void oneDrivesUninstallerIsTheRowsComment_data();
    void oneDrivesUninstallerIsTheRowsComment();
    void oneDrivesInstallerIsInTheFolderOf32Bits();
    void installationOfOneDriveWithoutSetupCountsAsDone_data();
    void installationOfOneDriveWithoutSetupCountsAsDone();
    void failingSetupOfOneDriveIsAnError_data();
    void failingSetupOfOneDriveIsAnError();
    void unsignedUninstallerIsRefused_data();
    void unsignedUninstallerIsRefused();
    void startUpValueGoesWithTwoPackages_data();
    void startUpValueGoesWithTwoPackages();

    // Lines and records
    void pageIsToldOfEachPackage_data();
    void pageIsToldOfEachPackage();
    void oldXboxAppHasALineOfItsOwn_data();
    void oldXboxAppHasALineOfItsOwn();
    void automatizerIsToldOfEachPackageAndRecordsIt_data();
    void automatizerIsToldOfEachPackageAndRecordsIt();
    void flagsDecideTheLines_data();
    void flagsDecideTheLines();
    void automatizersInstallationStaysOnRecord();
    void anEmptyListStillEnds_data();
    void anEmptyListStillEnds();

    // Failures
    void failureDoesNotEndTheRun();
    void hangingToolIsGivenUp();
    void toolThatTakesLongerIsLeftRunning_data();
    void toolThatTakesLongerIsLeftRunning();
    void resultIsTheLastExitCode();
    void nothingIsLogged();
};

void TestPackageState::powershellGetsExactlyTheseArguments_data()
{
    QTest::addColumn<bool>("install");
    QTest::newRow("uninstall") << false;
    QTest::newRow("install") << true;
}

void TestPackageState::powershellGetsExactlyTheseArguments()
{
    QFETCH(const bool, install);
    PowerShellMachine machine;
    WorkThread worker;
    worker.packagesToChange = {row(u"Microsoft.Todos"_s, u"a remark"_s)};
    worker.packageInstall = install;
    worker.packageJobIdle = false;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 3));
    const QString name = u"Microsoft.Todos"_s;
    QCOMPARE(machine.commands(), QList<LoggedCommand>{install ? installation(name) : removal(name)});
    QCOMPARE(machine.platform().takePauses(), QList<int>{300});
    QCOMPARE(lines.all(), (QStringList{pageLine(install, u"package: Microsoft.Todos: done"_s),
                                       install ? installedAll : removedAll}));
    QCOMPARE(worker.packageJobIdle.load(), true);
    // On the page's behalf the window keeps the record.
    QCOMPARE(machine.names(packageRecordsKey), QStringList());
}

void TestPackageState::nameIsHandedOverAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << u"My own package"_s;
    QTest::newRow("quotes") << u"a \"b\" 'c'"_s;
    QTest::newRow("backslash and quote") << u"a\\\"b\\"_s;
    QTest::newRow("semicolon and pipe") << u"a; b | c & d > e"_s;
    QTest::newRow("substitution") << u"$(Remove-Item C:) `x` $env:TEMP %TEMP%"_s;
    QTest::newRow("asterisk") << u"Microsoft.*"_s;
    QTest::newRow("option") << u"-AllUsers"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("other letters") << u"Überwachung.服务"_s;
    QTest::newRow("percent sign") << u"100%1"_s;
    QTest::newRow("colon") << u"a: done"_s;
}

void TestPackageState::nameIsHandedOverAsItIs()
{
    QFETCH(const QString, name);
    PowerShellMachine machine;
    WorkThread worker;
    JobLines lines(worker);
    worker.PackageSetState({row(name)}, false);
    worker.PackageSetState({row(name)}, true);
    QCOMPARE(machine.commands(), (QList<LoggedCommand>{removal(name), installation(name)}));
    QCOMPARE(lines.all(), (QStringList{pageLine(false, u"package: "_s + name + u": done"_s), removedAll,
                                       pageLine(true, u"package: "_s + name + u": done"_s), installedAll}));
}

void TestPackageState::packagesAreHandledInTheirOrder()
{
    PowerShellMachine machine;
    WorkThread worker;
    JobLines lines(worker);
    worker.PackageSetState({row(u"C"_s), row(u"A"_s), row(u"B"_s), row(u"A"_s)}, false);
    QCOMPARE(machine.commands(),
             (QList<LoggedCommand>{removal(u"C"_s), removal(u"A"_s), removal(u"B"_s), removal(u"A"_s)}));
    QCOMPARE(machine.platform().takePauses(), QList<int>(4, 300));
    QCOMPARE(lines.all(),
             (QStringList{pageLine(false, u"package: C: done"_s), pageLine(false, u"package: A: done"_s),
                          pageLine(false, u"package: B: done"_s), pageLine(false, u"package: A: done"_s), removedAll}));
}

void TestPackageState::pathOfPowershellIsFoundAnew()
{
    PowerShellMachine machine;
    WorkThread worker;
    worker.powerShellPath = u"C:\\elsewhere.exe"_s;
    worker.PackageSetState({row(u"A"_s)}, false);
    QCOMPARE(worker.powerShellPath, u"C:\\Windows/system32/WindowsPowerShell/v1.0/powershell.exe"_s);
    QCOMPARE(machine.commands().size(), 1);
}

void TestPackageState::missingPowershellCountsAsDone_data()
{
    addColumns<int, bool, QStringList>("optimize", "install", "expected");
    QTest::newRow("page, uninstall") << 0 << false << QStringList{pageLine(false, u"package: A: done"_s), removedAll};
    QTest::newRow("page, install") << 0 << true << QStringList{pageLine(true, u"package: A: done"_s), installedAll};
    QTest::newRow("optimize, uninstall") << 1 << false
                                         << QStringList{automatizerLine(u"uninstall A done"_s),
                                                        u"automatizer: pgr:value:1"_s};
    QTest::newRow("optimize, install") << 1 << true
                                       << QStringList{automatizerLine(u"install A done"_s),
                                                      u"automatizer: pgr:value:1"_s};
}

void TestPackageState::missingPowershellCountsAsDone()
{
    QFETCH(const int, optimize);
    QFETCH(const bool, install);
    QFETCH(const QStringList, expected);
    const TestMachine machine;
    WorkThread worker;
    worker.optimizeRunning = optimize;
    JobLines lines(worker);
    QCOMPARE(worker.PackageSetState({row(u"A"_s)}, install), 0);
    QCOMPARE(lines.all(), expected);
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
    QCOMPARE(machine.platform().takePauses(), QList<int>{300});
    QCOMPARE(machine.names(packageRecordsKey), optimize == 1 ? QStringList{u"A"_s} : QStringList());
}

void TestPackageState::oneDrivesUninstallerIsTheRowsComment_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("the system's") << systemsSetup;
    QTest::newRow("blanks") << u"C:\\Users\\Test User\\One Drive\\OneDriveSetup.exe"_s;
}

void TestPackageState::oneDrivesUninstallerIsTheRowsComment()
{
    QFETCH(const QString, program);
    PowerShellMachine machine;
    machine.addFile(program);
    machine.machine().setFault(u"onedrivesetup"_s, {.exitCode = 0});
    machine.write(startupKey, u"OneDrive"_s, u"x"_s);
    WorkThread worker;
    JobLines lines(worker);
    QCOMPARE(worker.PackageSetState({row(u"MS OneDrive"_s, program)}, false), 0);
    QCOMPARE(machine.commands(), (QList<LoggedCommand>{{u"onedrivesetup"_s, {u"/uninstall"_s}, 0}}));
    QCOMPARE(lines.all(), (QStringList{pageLine(false, u"package: MS OneDrive: done"_s), removedAll}));
    QCOMPARE(machine.names(startupKey), QStringList{u"OneDrive"_s});
    QCOMPARE(machine.platform().takePauses(), QList<int>{300});
}

void TestPackageState::oneDrivesInstallerIsInTheFolderOf32Bits()
{
    PowerShellMachine machine;
    machine.addFile(setup32);
    machine.machine().setFault(u"onedrivesetup"_s, {.exitCode = 0});
    machine.write(startupKey, u"OneDrive"_s, u"x"_s);
    WorkThread worker;
    JobLines lines(worker);
    // Whatever uninstalled it.
    QCOMPARE(worker.PackageSetState({row(u"MS OneDrive"_s, u"C:\\missing.exe"_s)}, true), 0);
    QCOMPARE(machine.commands(), (QList<LoggedCommand>{{u"onedrivesetup"_s, {u"/silent"_s}, 0}}));
    QCOMPARE(lines.all(), (QStringList{pageLine(true, u"package: MS OneDrive: done"_s), installedAll}));
    QCOMPARE(machine.names(startupKey), QStringList{u"OneDrive"_s});
}

void TestPackageState::installationOfOneDriveWithoutSetupCountsAsDone_data()
{
    QTest::addColumn<int>("restore");
    QTest::newRow("page") << 0;
    QTest::newRow("restore") << 1;
}

void TestPackageState::installationOfOneDriveWithoutSetupCountsAsDone()
{
    QFETCH(const int, restore);
    TestMachine machine;
    machine.addFile(systemsSetup); // isn't asked
    WorkThread worker;
    worker.restoreRunning = restore;
    JobLines lines(worker);
    QCOMPARE(worker.PackageSetState({row(u"MS OneDrive"_s, systemsSetup)}, true), 0);
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
    QCOMPARE(lines.all().first(), restore == 1 ? automatizerLine(u"install MS OneDrive done"_s)
                                               : pageLine(true, u"package: MS OneDrive: done"_s));
    QCOMPARE(machine.platform().takePauses(), QList<int>{300});
}

void TestPackageState::failingSetupOfOneDriveIsAnError_data()
{
    QTest::addColumn<bool>("install");
    QTest::newRow("uninstall") << false;
    QTest::newRow("install") << true;
}

void TestPackageState::failingSetupOfOneDriveIsAnError()
{
    QFETCH(const bool, install);
    TestMachine machine;
    machine.addFile(systemsSetup);
    machine.addFile(setup32);
    machine.machine().setFault(u"onedrivesetup"_s, {.exitCode = -2147219823});
    WorkThread worker;
    JobLines lines(worker);
    QCOMPARE(worker.PackageSetState({row(u"MS OneDrive"_s, systemsSetup)}, install), -2147219823);
    QCOMPARE(lines.all().first(), pageLine(install, u"package: MS OneDrive: error"_s));
}

void TestPackageState::unsignedUninstallerIsRefused_data()
{
    QTest::addColumn<bool>("optimize");
    QTest::addColumn<bool>("elevated");
    QTest::addColumn<QString>("line");
    QTest::newRow("page") << false << true << pageLine(false, u"package: MS OneDrive: error"_s);
    QTest::newRow("optimize") << true << true << automatizerLine(u"ERROR uninstall MS OneDrive: Unknown error"_s);
    // With the user's own rights it is the user's affair.
    QTest::newRow("not elevated") << false << false << pageLine(false, u"package: MS OneDrive: done"_s);
}

/** Any program of the user can put it there, and name it in the registry. */
void TestPackageState::unsignedUninstallerIsRefused()
{
    QFETCH(const bool, optimize);
    QFETCH(const bool, elevated);
    QFETCH(const QString, line);
    const QString program = u"C:\\Users\\Test User\\One Drive\\OneDriveSetup.exe"_s;
    MachineOptions options;
    options.elevated = elevated;
    TestMachine machine(TestMachine::Windows::Eleven, options);
    machine.addFile(program);
    machine.machine().setFault(u"onedrivesetup"_s, {.exitCode = 0});
    machine.machine().setUnsigned(u"c:/users/test user/One Drive/onedrivesetup.exe"_s, true);
    WorkThread worker;
    worker.optimizeRunning = optimize ? 1 : 0;
    JobLines lines(worker);
    QCOMPARE(worker.PackageSetState({row(u"MS OneDrive"_s, program)}, false), elevated ? 5 : 0);
    QCOMPARE(lines.all().first(), line);
    QCOMPARE(machine.commands().size(), elevated ? 0 : 1);
    QCOMPARE(machine.platform().takePauses(), QList<int>{300});
    QCOMPARE(machine.names(packageRecordsKey), QStringList());

    machine.machine().setUnsigned(program, false);
    QCOMPARE(worker.PackageSetState({row(u"MS OneDrive"_s, program)}, false), 0);
}

void TestPackageState::startUpValueGoesWithTwoPackages_data()
{
    addColumns<QString, bool>("name", "goes");
    QTest::newRow("app") << u"Microsoft.OneDrive"_s << true;
    QTest::newRow("old app") << u"microsoft.microsoftskydrive"_s << true;
    QTest::newRow("app in another case") << u"microsoft.onedrive"_s << false;
    QTest::newRow("old app in another case") << u"Microsoft.MicrosoftSkyDrive"_s << false;
    QTest::newRow("synchronization") << u"Microsoft.OneDriveSync"_s << false;
    QTest::newRow("installer") << u"MS OneDrive"_s << false;
    QTest::newRow("another") << u"Microsoft.Todos"_s << false;
}

void TestPackageState::startUpValueGoesWithTwoPackages()
{
    QFETCH(const QString, name);
    QFETCH(const bool, goes);
    for (const bool install : {false, true}) {
        for (const int exitCode : {0, 1}) {
            TestMachine machine;
            addPowerShell(machine, exitCode);
            machine.write(startupKey, u"OneDrive"_s, u"x"_s);
            machine.write(startupKey, u"OneDrive2"_s, u"x"_s);
            WorkThread worker;
            worker.PackageSetState({row(name)}, install);
            QCOMPARE(machine.names(startupKey),
                     goes ? QStringList{u"OneDrive2"_s} : (QStringList{u"OneDrive"_s, u"OneDrive2"_s}));
        }
    }
}

void TestPackageState::pageIsToldOfEachPackage_data()
{
    addColumns<bool, int, QStringList>("install", "exitCode", "expected");
    QTest::newRow("removed") << false << 0 << QStringList{u"page:    Uninstall   package: A.B: done"_s, removedAll};
    QTest::newRow("not removed") << false << 1
                                 << QStringList{u"page:    Uninstall   package: A.B: error"_s, removedAll};
    QTest::newRow("installed") << true << 0 << QStringList{u"page:    Install   package: A.B: done"_s, installedAll};
    QTest::newRow("not installed") << true << -1
                                   << QStringList{u"page:    Install   package: A.B: error"_s, installedAll};
}

void TestPackageState::pageIsToldOfEachPackage()
{
    QFETCH(const bool, install);
    QFETCH(const int, exitCode);
    QFETCH(const QStringList, expected);
    TestMachine machine;
    addPowerShell(machine, exitCode);
    WorkThread worker;
    worker.packagesToChange = {row(u"A.B"_s)};
    worker.packageInstall = install;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 3));
    QCOMPARE(lines.all(), expected);
    QCOMPARE(machine.commands(),
             QList<LoggedCommand>{install ? installation(u"A.B"_s, exitCode) : removal(u"A.B"_s, exitCode)});
    QCOMPARE(machine.names(packageRecordsKey), QStringList());
}

void TestPackageState::oldXboxAppHasALineOfItsOwn_data()
{
    addColumns<QString, int, int, QString>("name", "exitCode", "optimize", "text");
    const QString app = u"Microsoft.XboxApp"_s;
    QTest::newRow("done") << app << 0 << 0
                          << u"package: Microsoft.XboxApp (Old Xbox App, no longer supported!) : done"_s;
    QTest::newRow("error") << app << 1 << 0 << u"package: Microsoft.XboxApp: error"_s;
    QTest::newRow("another case") << u"microsoft.xboxapp"_s << 0 << 0 << u"package: microsoft.xboxapp: done"_s;
    QTest::newRow("optimize") << app << 0 << 1 << QString();
}

void TestPackageState::oldXboxAppHasALineOfItsOwn()
{
    QFETCH(const QString, name);
    QFETCH(const int, exitCode);
    QFETCH(const int, optimize);
    QFETCH(const QString, text);
    TestMachine machine;
    addPowerShell(machine, exitCode);
    for (const bool install : {false, true}) {
        WorkThread worker;
        worker.optimizeRunning = optimize;
        JobLines lines(worker);
        worker.PackageSetState({row(name)}, install);
        const QString word = install ? u"install "_s : u"uninstall "_s;
        QCOMPARE(lines.all().first(),
                 optimize == 1 ? automatizerLine(word + name + u" done"_s) : pageLine(install, text));
    }
}

void TestPackageState::automatizerIsToldOfEachPackageAndRecordsIt_data()
{
    addColumns<bool, bool, int, QString>("restore", "install", "exitCode", "text");
    for (const bool restore : {false, true}) {
        const char *phase = restore ? "restore" : "optimize";
        QTest::addRow("%s, removed", phase) << restore << false << 0 << u"uninstall Microsoft.Todos done"_s;
        QTest::addRow("%s, not removed", phase)
            << restore << false << 1 << u"ERROR uninstall Microsoft.Todos: Unknown error"_s;
        QTest::addRow("%s, installed", phase) << restore << true << 0 << u"install Microsoft.Todos done"_s;
        QTest::addRow("%s, not installed", phase)
            << restore << true << -5 << u"ERROR install Microsoft.Todos: Unknown error"_s;
    }
}

void TestPackageState::automatizerIsToldOfEachPackageAndRecordsIt()
{
    QFETCH(const bool, restore);
    QFETCH(const bool, install);
    QFETCH(const int, exitCode);
    QFETCH(const QString, text);
    TestMachine machine;
    addPowerShell(machine, exitCode);
    WorkThread worker;
    worker.packageJobIdle = false;
    (restore ? worker.restoreRunning : worker.optimizeRunning) = 1;
    JobLines lines(worker);
    QCOMPARE(worker.PackageSetState({row(u"Microsoft.Todos"_s)}, install), exitCode);
    QStringList expected{automatizerLine(text), u"automatizer: pgr:value:1"_s};
    if (restore)
        expected += install ? installedAll : removedAll;
    QCOMPARE(lines.all(), expected);
    QCOMPARE(machine.names(packageRecordsKey), exitCode == 0 ? QStringList{u"Microsoft.Todos"_s} : QStringList());
    if (exitCode == 0)
        QCOMPARE(machine.read(packageRecordsKey, u"Microsoft.Todos"_s), QVariant(1));
    QCOMPARE(worker.packageJobIdle.load(), true);
}

void TestPackageState::flagsDecideTheLines_data()
{
    addColumns<Phases, QStringList>("phases", "expected");
    const QStringList automatizer{automatizerLine(u"uninstall A done"_s), u"automatizer: pgr:value:1"_s,
                                  automatizerLine(u"uninstall B done"_s), u"automatizer: pgr:value:2"_s};
    const QStringList page{pageLine(false, u"package: A: done"_s), pageLine(false, u"package: B: done"_s), removedAll};
    QTest::newRow("page") << Phases{0, 0, 0} << page;
    QTest::newRow("analyze") << Phases{1, 0, 0} << page;
    QTest::newRow("optimize") << Phases{0, 1, 0} << automatizer;
    QTest::newRow("restore") << Phases{0, 0, 1} << automatizer + QStringList{removedAll};
    QTest::newRow("optimize and restore") << Phases{0, 1, 1} << automatizer;
}

void TestPackageState::flagsDecideTheLines()
{
    QFETCH(const Phases, phases);
    QFETCH(const QStringList, expected);
    PowerShellMachine machine;
    WorkThread worker;
    phases.mark(worker);
    JobLines lines(worker);
    worker.PackageSetState({row(u"A"_s), row(u"B"_s)}, false);
    QCOMPARE(lines.all(), expected);
}

void TestPackageState::automatizersInstallationStaysOnRecord()
{
    PowerShellMachine machine;
    machine.write(packageRecordsKey, u"Before"_s, 1);
    WorkThread worker;
    worker.restoreRunning = 1;
    worker.PackageSetState({row(u"Before"_s), row(u"Other"_s)}, true);
    QCOMPARE(machine.names(packageRecordsKey), (QStringList{u"Before"_s, u"Other"_s}));
}

void TestPackageState::anEmptyListStillEnds_data()
{
    addColumns<int, int, bool>("optimize", "restore", "ends");
    QTest::newRow("page") << 0 << 0 << true;
    QTest::newRow("restore") << 0 << 1 << true;
    QTest::newRow("optimize") << 1 << 0 << false;
}

void TestPackageState::anEmptyListStillEnds()
{
    QFETCH(const int, optimize);
    QFETCH(const int, restore);
    QFETCH(const bool, ends);
    const TestMachine machine;
    for (const bool install : {false, true}) {
        WorkThread worker;
        worker.optimizeRunning = optimize;
        worker.restoreRunning = restore;
        worker.packageJobIdle = false;
        JobLines lines(worker);
        QCOMPARE(worker.PackageSetState({}, install), -1);
        QCOMPARE(lines.all(), ends ? QStringList{install ? installedAll : removedAll} : QStringList());
        QCOMPARE(worker.packageJobIdle.load(), true);
    }
    QCOMPARE(machine.platform().takePauses(), QList<int>());
}

void TestPackageState::failureDoesNotEndTheRun()
{
    PowerShellMachine machine;
    machine.machine().setFault(u"powershell -Command Get-AppxPackage B"_s, {.exitCode = 1});
    WorkThread worker;
    worker.optimizeRunning = 1;
    JobLines lines(worker);
    QCOMPARE(worker.PackageSetState({row(u"A"_s), row(u"B"_s), row(u"C"_s)}, false), 0);
    QCOMPARE(lines.all(),
             (QStringList{automatizerLine(u"uninstall A done"_s), u"automatizer: pgr:value:1"_s,
                          automatizerLine(u"ERROR uninstall B: Unknown error"_s), u"automatizer: pgr:value:2"_s,
                          automatizerLine(u"uninstall C done"_s), u"automatizer: pgr:value:3"_s}));
    QCOMPARE(machine.names(packageRecordsKey), (QStringList{u"A"_s, u"C"_s}));
    QCOMPARE(machine.platform().takePauses(), QList<int>(3, 300));
}

void TestPackageState::hangingToolIsGivenUp()
{
    PowerShellMachine machine;
    machine.machine().setFault(u"powershell -Command Get-AppxPackage A"_s, {.hang = true});
    Command::timeLimit = 200;
    WorkThread worker;
    worker.packagesToChange = {row(u"A"_s), row(u"B"_s)};
    JobLines lines(worker);
    QVERIFY(runJob(worker, 3));
    // A tool that hasn't ended reads 0.
    QCOMPARE(lines.all(),
             (QStringList{pageLine(false, u"package: A: done"_s), pageLine(false, u"package: B: done"_s), removedAll}));
    QCOMPARE(machine.platform().takePauses(), QList<int>(2, 300));
    machine.machine().clearFault(u"powershell -Command Get-AppxPackage A"_s);
    QTRY_COMPARE_WITH_TIMEOUT(machine.commands().size(), 2, patience);
}

void TestPackageState::toolThatTakesLongerIsLeftRunning_data()
{
    QTest::addColumn<bool>("optimize");
    QTest::newRow("page") << false;
    QTest::newRow("Optimize") << true;
}

void TestPackageState::toolThatTakesLongerIsLeftRunning()
{
    QFETCH(const bool, optimize);
    PowerShellMachine machine;
    machine.logErrors();
    machine.machine().setFault(u"powershell -Command Get-AppxPackage A"_s, {.hang = true});
    Command::timeLimit = 4000; // which the second tool doesn't need, however busy the computer is
    WorkThread worker;
    worker.optimizeRunning = optimize ? 1 : 0;
    worker.packagesToChange = {row(u"A"_s), row(u"B"_s)};
    QVERIFY(runJob(worker, 3));
    // The next row had its turn. Then the first one's tool comes to its own end, which it notes.
    QCOMPARE(machine.commands(), QList<LoggedCommand>{removal(u"B"_s)});
    QCOMPARE(machine.errorLog(), QStringList{u"PackageSetState: A, still running"_s});
    machine.machine().clearFault(u"powershell -Command Get-AppxPackage A"_s);
    QTRY_COMPARE_WITH_TIMEOUT(machine.commands(), (QList<LoggedCommand>{removal(u"B"_s), removal(u"A"_s)}), patience);
}

void TestPackageState::resultIsTheLastExitCode()
{
    TestMachine machine;
    addPowerShell(machine, 7);
    machine.machine().setFault(u"powershell -Command Get-AppxPackage B"_s, {.exitCode = 3});
    WorkThread worker;
    QCOMPARE(worker.PackageSetState({row(u"A"_s), row(u"B"_s)}, false), 3);
    QCOMPARE(worker.PackageSetState({row(u"B"_s), row(u"A"_s)}, false), 7);
}

void TestPackageState::nothingIsLogged()
{
    LoggingMachine machine;
    addPowerShell(machine, 1);
    WorkThread worker;
    worker.PackageSetState({row(u"A"_s), row(u"MS OneDrive"_s, u"C:\\missing.exe"_s)}, false);
    machine.machine().setFault(u"powershell"_s, {.missing = true});
    worker.PackageSetState({row(u"A"_s)}, true);
    QCOMPARE(machine.errorLog(), QStringList());
}

KESTRUNE_SUITE(TestPackageState)
#include "tst_packagestate.moc"
