// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the list of packaged applications.

#include "joblines.h"
#include "support/packageplaces.h"
#include "support/suite.h"
#include "work/packages/packages.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList closingLine{u"page: WorkThread::PackageGetList"_s};
const QString oneDriveProgram = u"C:\\Users\\Test\\AppData\\Local\\Microsoft\\OneDrive\\OneDrive.exe"_s;
const QString systemsSetup = u"C:\\Windows\\System32\\OneDriveSetup.exe"_s;
const QString uninstallKey =
    u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\OneDriveSetup.exe"_s;
const QString ending = u"_1.0.0.0_x64__8wekyb3d8bbwe"_s;

const QStringList gameBar{u"Microsoft.XboxGamingOverlay"_s, u"Microsoft.XboxGameOverlay"_s,
                          u"Microsoft.XboxSpeechToTextOverlay"_s};
const QString oldApp = u"Microsoft.XboxApp"_s;
const QStringList xboxApp{u"Microsoft.XboxApp"_s, u"Microsoft.GamingApp"_s, u"Microsoft.GamingServices"_s,
                          u"Microsoft.Xbox.TCUI"_s, u"Microsoft.XboxIdentityProvider"_s};
const QStringList codecs{u"Microsoft.AV1VideoExtension"_s, u"Microsoft.VP9VideoExtensions"_s,
                         u"Microsoft.AVCEncoderVideoExtension"_s, u"Microsoft.HEVCVideoExtension"_s,
                         u"Microsoft.MPEG2VideoExtension"_s};

QStringList namesOf(const QList<PackageRow> &rows)
{
    QStringList names;
    for (const PackageRow &row : rows)
        names.append(row.name);
    return names;
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

/** A row as one text. */
QString text(const PackageRow &row)
{
    return row.name + u'|' + row.displayName + u'|' + row.comment;
}

} // namespace

class TestPackageList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The catalogue of a run
    void catalogueFollowsTheKeepListAndTheWindows_data();
    void catalogueFollowsTheKeepListAndTheWindows();
    void catalogueIsMadeAnewInEachRun();
    void keepStateOtherThan0Keeps();

    // Packages
    void aPackageGivesARow();
    void everyPackageOfTheCatalogueIsFound();
    void switchedOffEntryNeverMatches();
    void familyNameIsComparedExactly_data();
    void familyNameIsComparedExactly();
    void nameWithoutUnderscoreIsPassedOver();
    void oddNamesArePassedOver();
    void oneVersionOfOnePackageStaysOut_data();
    void oneVersionOfOnePackageStaysOut();
    void packageOfSeveralFullNamesHasSeveralRows();
    void rowsComeInTheOrderOfTheRegistry();
    void displayName_data();
    void displayName();
    void displayNameOfASubkeyIsNotThePackages();
    void commentIsLookedUp();
    void missingTreeGivesAnEmptyList();

    // What the last package says
    void onlyTheLastPackageTellsOfFeatures_data();
    void onlyTheLastPackageTellsOfFeatures();
    void packageWithoutUnderscoreTellsNothingOfFeatures();
    void featureIsToldAlsoByAPackageThatIsNotListed();

    // OneDrive
    void oneDriveHasARowOnlyWithASetup_data();
    void oneDriveHasARowOnlyWithASetup();
    void systemsSetupWinsOverTheRegisteredOne();
    void uninstallStringIsCutAtItsProgram_data();
    void uninstallStringIsCutAtItsProgram();
    void oneDriveComesLastWhateverIsKept_data();
    void oneDriveComesLastWhateverIsKept();

    // The job
    void asAJobItSendsOneLine();
    void duringAnalyzeItSendsNone();
    void duringOptimizeTheLineIsSent();
    void aRunEmptiesTheListOfBefore();
    void noToolIsStartedAndNothingIsLogged();
    void thousandsOfPackagesAreListed();
};

void TestPackageList::catalogueFollowsTheKeepListAndTheWindows_data()
{
    addColumns<bool, int, int, int>("eleven", "keepBar", "keepApp", "keepCodecs");
    for (const bool eleven : {false, true}) {
        for (const int bar : {0, 2}) {
            for (const int app : {0, 2}) {
                for (const int codec : {0, 2}) {
                    QTest::addRow("%s, game bar %d, app %d, codecs %d", eleven ? "11" : "10", bar, app, codec)
                        << eleven << bar << app << codec;
                }
            }
        }
    }
}

void TestPackageList::catalogueFollowsTheKeepListAndTheWindows()
{
    QFETCH(const bool, eleven);
    QFETCH(const int, keepBar);
    QFETCH(const int, keepApp);
    QFETCH(const int, keepCodecs);
    TestMachine machine;
    addPackages(machine, gameBar + xboxApp + codecs);
    WorkerOn worker(eleven ? u"Windows 11 Home"_s : u"Windows 10 Home"_s);
    worker.keepXboxGameBar = keepBar;
    worker.keepXboxApp = keepApp;
    worker.keepCodecs = keepCodecs;
    worker.PackageGetList();

    QStringList offered;
    if (keepBar == 0)
        offered += gameBar;
    if (keepApp == 0)
        offered += xboxApp;
    else if (eleven)
        offered += oldApp;
    if (keepCodecs == 0)
        offered += codecs;
    QCOMPARE(worker.nonVitalPackages, removablePackageNames() + offered);
    QCOMPARE(namesOf(worker.packages), sorted(offered));
}

void TestPackageList::catalogueIsMadeAnewInEachRun()
{
    TestMachine machine;
    WorkerOn worker(onEleven);
    QCOMPARE(worker.nonVitalPackages, QStringList{QString()});
    worker.keepXboxApp = 0;
    worker.keepCodecs = 0;
    worker.PackageGetList();
    worker.PackageGetList();
    QCOMPARE(worker.nonVitalPackages, removablePackageNames() + xboxApp + codecs);
    worker.keepXboxApp = 2;
    worker.keepCodecs = 2;
    worker.PackageGetList();
    QCOMPARE(worker.nonVitalPackages, removablePackageNames() + QStringList{oldApp});
}

void TestPackageList::keepStateOtherThan0Keeps()
{
    TestMachine machine;
    WorkerOn worker(onTen);
    worker.keepXboxGameBar = worker.keepXboxApp = worker.keepCodecs = 1;
    worker.PackageGetList();
    QCOMPARE(worker.nonVitalPackages, removablePackageNames());
}

void TestPackageList::aPackageGivesARow()
{
    TestMachine machine;
    addPackage(machine, u"Microsoft.BingNews_4.55.62231.0_x64__8wekyb3d8bbwe"_s, u"News"_s);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(worker.packages.size(), 1);
    QCOMPARE(text(worker.packages.at(0)), u"Microsoft.BingNews|News|"_s);
}

void TestPackageList::everyPackageOfTheCatalogueIsFound()
{
    TestMachine machine;
    QStringList names = removablePackageNames();
    names.removeAll(u"!Microsoft.MicrosoftEdge.Stable"_s);
    addPackages(machine, names);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(worker.packages.size(), 50);
    QCOMPARE(sorted(namesOf(worker.packages)), sorted(names));
    for (const PackageRow &row : worker.packages)
        QCOMPARE(row.displayName, row.name + u'*');
}

void TestPackageList::switchedOffEntryNeverMatches()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.MicrosoftEdge.Stable"_s});
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(namesOf(worker.packages), QStringList());
    QVERIFY(worker.nonVitalPackages.contains(u"!Microsoft.MicrosoftEdge.Stable"_s));
}

void TestPackageList::familyNameIsComparedExactly_data()
{
    addColumns<QString, bool>("name", "listed");
    const auto row = [](const QString &name, bool listed) { QTest::addRow("%s", qPrintable(name)) << name << listed; };
    row(u"Microsoft.Getstarted"_s, true);
    row(u"Microsoft.GetStarted"_s, false);
    row(u"microsoft.getstarted"_s, false);
    row(u"Microsoft.Getstarted2"_s, false);
    row(u"Vendor.Microsoft.Getstarted"_s, false);
    row(u"Microsoft"_s, false);
    row(u"microsoft.windowscommunicationsapps"_s, true);
    row(u"Microsoft.windowscommunicationsapps"_s, false);
    row(u"microsoft.microsoftskydrive"_s, true);
    row(u"Microsoft.MicrosoftSkyDrive"_s, false);
    row(u"MSTeams"_s, true);
    row(u"Microsoft.WindowsStore"_s, false);
}

void TestPackageList::familyNameIsComparedExactly()
{
    QFETCH(const QString, name);
    QFETCH(const bool, listed);
    TestMachine machine;
    addPackages(machine, {name});
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(namesOf(worker.packages), listed ? QStringList{name} : QStringList());
}

void TestPackageList::nameWithoutUnderscoreIsPassedOver()
{
    TestMachine machine;
    addPackage(machine, u"Microsoft.BingNews"_s, u"News"_s);
    addPackage(machine, u"Microsoft.Todos_"_s, u"To do"_s);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(namesOf(worker.packages), QStringList{u"Microsoft.Todos"_s});
}

void TestPackageList::oddNamesArePassedOver()
{
    TestMachine machine;
    for (const QString &name :
         {u"_1.0.0.0_x64__abc"_s, u"_"_s, u"____"_s, u"服务_1.0.0.0_x64__abc"_s, u"Überwachung_1_neutral"_s,
          u"Microsoft.BingNews 2_1.0_x64"_s, QString(200, u'x') + u'_'})
        addPackage(machine, name, u"Shown"_s);
    addPackage(machine, u"Microsoft.BingNews_服务"_s, u"Наука 服务"_s);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(worker.packages.size(), 1);
    QCOMPARE(text(worker.packages.at(0)), u"Microsoft.BingNews|Наука 服务|"_s);
}

void TestPackageList::oneVersionOfOnePackageStaysOut_data()
{
    addColumns<QString, bool>("fullName", "listed");
    const auto row = [](const QString &name, bool listed) { QTest::addRow("%s", qPrintable(name)) << name << listed; };
    row(u"Microsoft.YourPhone_0.24112.110.0_neutral_~_8wekyb3d8bbwe"_s, false);
    row(u"Microsoft.YourPhone_0.24112.110.0_neutral"_s, false);
    row(u"Microsoft.YourPhone_0.24112.110.0_NEUTRAL__8wekyb3d8bbwe"_s, false);
    row(u"Microsoft.YourPhone_0.24112.110.0_x64__8wekyb3d8bbwe"_s, true);
    row(u"Microsoft.YourPhone_0.24112.111.0_neutral__8wekyb3d8bbwe"_s, true);
    row(u"Microsoft.YourPhone_1.24112.110.0_x64__8wekyb3d8bbwe"_s, true);
}

void TestPackageList::oneVersionOfOnePackageStaysOut()
{
    QFETCH(const QString, fullName);
    QFETCH(const bool, listed);
    TestMachine machine;
    addPackage(machine, fullName, u"Phone"_s);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(worker.packages.size(), listed ? 1 : 0);
    if (listed)
        QCOMPARE(text(worker.packages.at(0)), u"Microsoft.YourPhone|Phone|Phone link"_s);
}

void TestPackageList::packageOfSeveralFullNamesHasSeveralRows()
{
    TestMachine machine;
    addPackage(machine, u"Microsoft.ZuneMusic_11.2_x64__8wekyb3d8bbwe"_s, u"Player 2"_s);
    addPackage(machine, u"Microsoft.ZuneMusic_11.1_neutral_split.scale-100_8wekyb3d8bbwe"_s, u"Player 1"_s);
    addPackage(machine, u"Microsoft.ZuneMusic_11.2_neutral_~_8wekyb3d8bbwe"_s);
    WorkThread worker;
    worker.PackageGetList();
    QStringList rows;
    for (const PackageRow &row : worker.packages)
        rows.append(text(row));
    QCOMPARE(rows, (QStringList{u"Microsoft.ZuneMusic|Player 1|"_s, u"Microsoft.ZuneMusic|Microsoft.ZuneMusic|"_s,
                                u"Microsoft.ZuneMusic|Player 2|"_s}));
}

void TestPackageList::rowsComeInTheOrderOfTheRegistry()
{
    TestMachine machine;
    addPackages(machine, {u"microsoft.windowscommunicationsapps"_s, u"SpotifyAB.SpotifyMusic"_s, u"Microsoft.Todos"_s,
                          u"Clipchamp.Clipchamp"_s, u"MSTeams"_s});
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(namesOf(worker.packages),
             (QStringList{u"Clipchamp.Clipchamp"_s, u"MSTeams"_s, u"Microsoft.Todos"_s, u"SpotifyAB.SpotifyMusic"_s,
                          u"microsoft.windowscommunicationsapps"_s}));
}

void TestPackageList::displayName_data()
{
    addColumns<QVariant, QString>("value", "shown");
    const QString family = u"Microsoft.Todos"_s;
    QTest::newRow("plain") << QVariant(u"To Do: lists"_s) << u"To Do: lists"_s;
    QTest::newRow("missing") << QVariant() << family;
    QTest::newRow("resource") << QVariant(u"ms-resource:app_name"_s) << family;
    QTest::newRow("resource with a path") << QVariant(u"ms-resource://Microsoft.Todos/x"_s) << family;
    QTest::newRow("resource in a package") << QVariant(u"@{Microsoft.Todos_1?ms-resource://x}"_s) << family;
    QTest::newRow("bare beginning of a resource") << QVariant(u"@{"_s) << family;
    QTest::newRow("resource in capitals") << QVariant(u"MS-RESOURCE:x"_s) << u"MS-RESOURCE:x"_s;
    QTest::newRow("resource after a blank") << QVariant(u" ms-resource:x"_s) << u" ms-resource:x"_s;
    QTest::newRow("resource further on") << QVariant(u"x ms-resource:x @{"_s) << u"x ms-resource:x @{"_s;
    QTest::newRow("another reference") << QVariant(u"@a.dll,-1"_s) << u"@a.dll,-1"_s;
    QTest::newRow("empty") << QVariant(u""_s) << QString();
    QTest::newRow("number") << QVariant(42) << u"42"_s;
}

void TestPackageList::displayName()
{
    QFETCH(const QVariant, value);
    QFETCH(const QString, shown);
    TestMachine machine;
    addPackage(machine, u"Microsoft.Todos"_s + ending, value);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(worker.packages.size(), 1);
    QCOMPARE(worker.packages.at(0).displayName, shown);
}

void TestPackageList::displayNameOfASubkeyIsNotThePackages()
{
    TestMachine machine;
    machine.write(repositoryKey + u"\\Microsoft.Todos"_s + ending + u"\\App"_s, u"DisplayName"_s, u"Inner"_s);
    machine.write(repositoryKey + u"\\Microsoft.Todos"_s + ending + u"\\Microsoft.People_1_x"_s, u"DisplayName"_s,
                  u"Inner"_s);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(worker.packages.size(), 1);
    QCOMPARE(text(worker.packages.at(0)), u"Microsoft.Todos|Microsoft.Todos|"_s);
}

void TestPackageList::commentIsLookedUp()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.ScreenSketch"_s, oldApp, u"microsoft.windowscommunicationsapps"_s});
    WorkerOn worker(onEleven);
    worker.PackageGetList();
    QCOMPARE(worker.packages.size(), 3);
    QCOMPARE(worker.packages.at(0).comment, u"Screenshot tool"_s);
    QCOMPARE(worker.packages.at(1).comment, u"Old Xbox App, no longer supported!"_s);
    QCOMPARE(worker.packages.at(2).comment, u"Mail & Calendar"_s);
}

void TestPackageList::missingTreeGivesAnEmptyList()
{
    LoggingMachine machine;
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 2));
    QCOMPARE(namesOf(worker.packages), QStringList());
    QCOMPARE(lines.all(), closingLine);
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestPackageList::onlyTheLastPackageTellsOfFeatures_data()
{
    QTest::addColumn<QStringList>("names");   // in the registry's order
    QTest::addColumn<QList<int>>("expected"); // game bar, app, codecs
    const auto row = [](const char *title, const QStringList &names, const QList<int> &expected) {
        QTest::newRow(title) << names << expected;
    };
    row("game bar", {u"Microsoft.XboxGamingOverlay"_s}, {1, 0, 0});
    row("app", {u"Microsoft.GamingApp"_s}, {0, 1, 0});
    row("codecs", {u"Microsoft.AV1VideoExtension"_s}, {0, 0, 1});
    row("another one after it", {u"Microsoft.GamingApp"_s, u"Microsoft.Todos"_s}, {0, 0, 0});
    row("all three", {u"Microsoft.AV1VideoExtension"_s, u"Microsoft.GamingApp"_s, u"Microsoft.XboxGamingOverlay"_s},
        {1, 0, 0});
    row("in another case", {u"microsoft.xboxgamingoverlay"_s}, {1, 0, 0});
    row("within a name", {u"Vendor.Microsoft.GamingApp.Beta"_s}, {0, 1, 0});
    row("other packages of the features", {u"Microsoft.XboxGameOverlay"_s}, {0, 0, 0});
    row("the old app", {oldApp}, {0, 0, 0});
    row("two in one name", {u"Microsoft.GamingApp.Microsoft.AV1VideoExtension"_s}, {0, 1, 1});
}

void TestPackageList::onlyTheLastPackageTellsOfFeatures()
{
    QFETCH(const QStringList, names);
    QFETCH(const QList<int>, expected);
    TestMachine machine;
    addPackages(machine, names);
    WorkThread worker;
    worker.hasXboxGameBar = worker.hasXboxApp = worker.hasCodecs = 1; // of an earlier run
    worker.PackageGetList();
    QCOMPARE((QList<int>{worker.hasXboxGameBar, worker.hasXboxApp, worker.hasCodecs}), expected);
}

void TestPackageList::packageWithoutUnderscoreTellsNothingOfFeatures()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.GamingApp"_s});
    addPackage(machine, u"Zeta"_s);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(worker.hasXboxApp, 1);
}

void TestPackageList::featureIsToldAlsoByAPackageThatIsNotListed()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.GamingApp"_s});
    WorkerOn worker(onTen);
    worker.PackageGetList();
    QCOMPARE(namesOf(worker.packages), QStringList());
    QCOMPARE(worker.hasXboxApp, 1);
}

void TestPackageList::oneDriveHasARowOnlyWithASetup_data()
{
    addColumns<bool, bool, bool>("program", "systemSetup", "registered");
    QTest::addColumn<QString>("comment"); // empty: no row
    const QString own = u"C:\\OneDrive\\OneDriveSetup.exe"_s;
    for (const bool registered : {false, true}) {
        for (const bool systemSetup : {false, true}) {
            for (const bool program : {false, true}) {
                const QString found = systemSetup ? systemsSetup : registered ? own : QString();
                QTest::addRow("%s, %s, %s", program ? "program" : "no program", systemSetup ? "setup" : "no setup",
                              registered ? "registered" : "not registered")
                    << program << systemSetup << registered << (program ? found : QString());
            }
        }
    }
}

void TestPackageList::oneDriveHasARowOnlyWithASetup()
{
    QFETCH(const bool, program);
    QFETCH(const bool, systemSetup);
    QFETCH(const bool, registered);
    QFETCH(const QString, comment);
    TestMachine machine;
    machine.addFile(u"C:\\OneDrive\\OneDriveSetup.exe"_s);
    if (program)
        machine.addFile(oneDriveProgram);
    if (systemSetup)
        machine.addFile(systemsSetup);
    if (registered)
        machine.write(uninstallKey, u"UninstallString"_s, u"\"C:\\OneDrive\\OneDriveSetup.exe\" /uninstall"_s);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(worker.packages.size(), comment.isEmpty() ? 0 : 1);
    if (!comment.isEmpty())
        QCOMPARE(text(worker.packages.at(0)), u"MS OneDrive|MS OneDrive|"_s + comment);
}

void TestPackageList::systemsSetupWinsOverTheRegisteredOne()
{
    TestMachine machine;
    machine.addFile(oneDriveProgram);
    machine.addFile(systemsSetup);
    machine.addFile(u"C:\\a.exe"_s);
    machine.write(uninstallKey, u"UninstallString"_s, u"C:\\a.exe /uninstall"_s);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(worker.packages.size(), 1);
    QCOMPARE(worker.packages.at(0).comment, systemsSetup);
}

void TestPackageList::uninstallStringIsCutAtItsProgram_data()
{
    QTest::addColumn<QVariant>("command");
    QTest::addColumn<QString>("file");    // the one that is there
    QTest::addColumn<QString>("comment"); // empty: no row
    const auto row = [](const char *title, const QVariant &command, const QString &file, const QString &comment) {
        QTest::newRow(title) << command << file << comment;
    };
    const QString path = u"C:\\One Drive\\Setup.exe"_s;
    row("path alone", path, path, path);
    row("quotes", u"\"C:\\One Drive\\Setup.exe\""_s, path, path);
    row("quotes and arguments", u"\"C:\\One Drive\\Setup.exe\"  /uninstall /allusers"_s, path, path);
    row("arguments without quotes", u"C:\\One Drive\\Setup.exe /uninstall"_s, path, path);
    row("quotes within", u"C:\\\"One Drive\"\\Setup.exe"_s, path, path);
    row("quotes that don't end", u"\"C:\\One Drive\\Setup.exe /uninstall"_s, path, path);
    row("many quotes", u"\"\"\"C:\\One Drive\\Setup\".exe\"\""_s, path, path);
    row("two programs", u"\"C:\\One Drive\\Setup.exe\" \"C:\\b.exe\""_s, path, path);
    row("program in capitals", u"C:\\One Drive\\SETUP.EXE /uninstall"_s, path, {});
    row("program in capitals, nothing else", u"C:\\One Drive\\Setup.EXE"_s, u"C:\\One Drive\\Setup.EXE.exe"_s,
        u"C:\\One Drive\\Setup.EXE.exe"_s);
    row("file is missing", u"C:\\Other\\Setup.exe /uninstall"_s, path, {});
    row("no program", u"rundll32 C:\\a.dll"_s, path, {});
    row("ending alone", u".exe"_s, path, {});
    row("quotes alone", u"\"\".exe"_s, path, {});
    row("empty", u""_s, path, {});
    row("missing", QVariant(), path, {});
    row("number", 5, path, {});
    row("variable", u"%ProgramFiles%\\Setup.exe"_s, u"C:\\Program Files\\Setup.exe"_s, {});
}

void TestPackageList::uninstallStringIsCutAtItsProgram()
{
    QFETCH(const QVariant, command);
    QFETCH(const QString, file);
    QFETCH(const QString, comment);
    TestMachine machine;
    machine.addFile(oneDriveProgram);
    machine.addFile(file);
    if (command.isValid())
        machine.write(uninstallKey, u"UninstallString"_s, command);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(worker.packages.size(), comment.isEmpty() ? 0 : 1);
    if (!comment.isEmpty())
        QCOMPARE(text(worker.packages.at(0)), u"MS OneDrive|MS OneDrive|"_s + comment);
}

void TestPackageList::oneDriveComesLastWhateverIsKept_data()
{
    QTest::addColumn<int>("keep");
    QTest::newRow("kept") << 2;
    QTest::newRow("given up") << 0;
}

void TestPackageList::oneDriveComesLastWhateverIsKept()
{
    QFETCH(const int, keep);
    TestMachine machine;
    machine.addFile(oneDriveProgram);
    machine.addFile(systemsSetup);
    addPackages(machine,
                {u"SpotifyAB.SpotifyMusic"_s, u"microsoft.windowscommunicationsapps"_s, u"Microsoft.OneDrive"_s});
    WorkThread worker;
    worker.keepXboxApp = worker.keepXboxGameBar = worker.keepCodecs = keep;
    worker.keepPrinter = worker.keepUpnp = worker.keepNfc = keep;
    worker.PackageGetList();
    QCOMPARE(namesOf(worker.packages), (QStringList{u"Microsoft.OneDrive"_s, u"SpotifyAB.SpotifyMusic"_s,
                                                    u"microsoft.windowscommunicationsapps"_s, u"MS OneDrive"_s}));
}

void TestPackageList::asAJobItSendsOneLine()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.Todos"_s, u"Microsoft.People"_s});
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 2));
    QCOMPARE(lines.all(), closingLine);
    QCOMPARE(worker.packages.size(), 2);
    QCOMPARE(machine.platform().takePauses(), QList<int>());
}

void TestPackageList::duringAnalyzeItSendsNone()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.Todos"_s});
    WorkThread worker;
    worker.analyzeRunning = 1;
    JobLines lines(worker);
    worker.PackageGetList();
    QCOMPARE(lines.all(), QStringList());
    QCOMPARE(worker.packages.size(), 1);
}

void TestPackageList::duringOptimizeTheLineIsSent()
{
    const TestMachine machine;
    WorkThread worker;
    worker.optimizeRunning = 1;
    worker.restoreRunning = 1;
    JobLines lines(worker);
    worker.PackageGetList();
    QCOMPARE(lines.all(), closingLine);
}

void TestPackageList::aRunEmptiesTheListOfBefore()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.Todos"_s});
    WorkThread worker;
    worker.packages = {{u"Old"_s, u"Old"_s, {}}};
    worker.PackageGetList();
    worker.PackageGetList();
    QCOMPARE(namesOf(worker.packages), QStringList{u"Microsoft.Todos"_s});
}

void TestPackageList::noToolIsStartedAndNothingIsLogged()
{
    LoggingMachine machine;
    machine.addFile(oneDriveProgram);
    addPackages(machine, {u"Microsoft.Todos"_s});
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
    QCOMPARE(machine.errorLog(), QStringList());
    QCOMPARE(machine.names(packageRecordsKey), QStringList());
}

void TestPackageList::thousandsOfPackagesAreListed()
{
    TestMachine machine;
    QStringList names;
    for (int i = 0; i < 1000; ++i)
        names += {u"Microsoft.Todos"_s, u"Vendor.App%1"_s.arg(i)};
    addPackages(machine, names);
    WorkThread worker;
    worker.PackageGetList();
    QCOMPARE(namesOf(worker.packages), QStringList(1000, u"Microsoft.Todos"_s));
}

KESTRUNE_SUITE(TestPackageList)
#include "tst_packagelist.moc"
