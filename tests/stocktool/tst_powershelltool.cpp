// SPDX-License-Identifier: GPL-3.0-or-later
// powershell, run as the process it is.

#include "support/suite.h"
#include "support/toolrun.h"

#include "machine/compare/machinediff.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString userKey = u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\"
                        "CurrentVersion\\AppModel\\Repository\\Packages"_s;
const QString allUsersKey = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Appx\\"
                            "AppxAllUserStore\\Applications"_s;

const QString calculator = u"Microsoft.WindowsCalculator_11.1_x64__8wekyb3d8bbwe"_s;
const QString olderCalculator = u"Microsoft.WindowsCalculator_10.2_x64__8wekyb3d8bbwe"_s;
const QString camera = u"Microsoft.WindowsCamera_1.0_x64__8wekyb3d8bbwe"_s;
const QString alone = u"Microsoft.Alone_1.0_x64__8wekyb3d8bbwe"_s; // the user's, and nobody else's
const QString shown = u"@{Shown?ms-resource://Shown/Name}"_s;      // a reference, as many packages have it

QStringList removal(const QString &name)
{
    return {u"-Command"_s, u"Get-AppxPackage"_s, name, u"| Remove-AppxPackage"_s};
}

QStringList registration(const QString &name)
{
    return {
        u"-Command"_s, u"Get-AppxPackage"_s, u"-allusers"_s, name,
        u" | Foreach {Add-AppxPackage -DisableDevelopmentMode -Register \"$($_.InstallLocation)\\AppXManifest.xml\"}"_s};
}

void setText(SmallMachine &machine, const QString &key, const QString &name, const QString &text)
{
    RegistryStore &store = machine->registry();
    store.setValue(*store.make(key), {name, RegistryType::String, registryText(text)});
}

void addPackages(SmallMachine &machine)
{
    for (const QString &fullName : {calculator, olderCalculator, camera, alone}) {
        const QString root = u"C:\\Program Files\\WindowsApps\\"_s + fullName;
        const QString key = userKey + u'\\' + fullName;
        setText(machine, key, u"DisplayName"_s, shown);
        setText(machine, key, u"PackageID"_s, fullName);
        setText(machine, key, u"PackageRootFolder"_s, root);
        if (fullName == alone)
            continue;
        setText(machine, allUsersKey + u'\\' + fullName, u"Path"_s, root + u"\\AppxManifest.xml"_s);
        setText(machine, allUsersKey + u'\\' + fullName, u"DisplayName"_s, shown);
    }
}

QStringList installed(SmallMachine &machine)
{
    const auto key = machine->registry().find(userKey);
    return key ? QStringList(machine->registry().subkeys(*key)) : QStringList();
}

} // namespace

class TestPowerShellTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void removesAPackage_data();
    void removesAPackage();
    void filesGoWithWhatNobodyElseHas();
    void bringsBackWhatTheMachineHas();
    void bringsBackNothingThatTheUserAloneHad();
    void whatIsThereStaysAsItIs();
    void bringingBackNeedsElevation();
    void unknownNamesChangeNothing_data();
    void unknownNamesChangeNothing();
    void whatIsNoNameFails_data();
    void whatIsNoNameFails();
    void blanksAroundANameAreNone();
    void noNameMeansAllPackages();
    void machineWithoutPackages();
    void otherCommandsAreRefused_data();
    void otherCommandsAreRefused();
};

void TestPowerShellTool::removesAPackage_data()
{
    addColumns<QString, QStringList>("name", "left");
    // clang-format off
    QTest::newRow("one")                << u"Microsoft.WindowsCamera"_s     << QStringList{alone, olderCalculator, calculator};
    QTest::newRow("all of its names")   << u"Microsoft.WindowsCalculator"_s << QStringList{alone, camera};
    QTest::newRow("in another case")    << u"microsoft.windowscamera"_s     << QStringList{alone, olderCalculator, calculator};
    QTest::newRow("wildcard")           << u"*Windows*"_s                   << QStringList{alone};
    QTest::newRow("one character")      << u"Microsoft.?lone"_s             << QStringList{olderCalculator, calculator, camera};
    QTest::newRow("everything")         << u"*"_s                           << QStringList();
    QTest::newRow("a dot is a dot")     << u"Microsoft-WindowsCamera"_s     << QStringList{alone, olderCalculator, calculator, camera};
    QTest::newRow("a part isn't enough") << u"WindowsCamera"_s              << QStringList{alone, olderCalculator, calculator, camera};
    // clang-format on
}

void TestPowerShellTool::removesAPackage()
{
    QFETCH(QString, name);
    QFETCH(QStringList, left);
    SmallMachine machine;
    addPackages(machine);
    const Ended ended = runTool(machine, u"powershell"_s, removal(name), notElevated);
    QCOMPARE(ended.exitCode, 0);
    QCOMPARE(ended.output + ended.errors, QByteArray());
    QCOMPARE(installed(machine), left);
    QCOMPARE(machine->registry().subkeys(*machine->registry().find(allUsersKey)).size(), 3);
}

void TestPowerShellTool::filesGoWithWhatNobodyElseHas()
{
    SmallMachine machine;
    addPackages(machine);
    const QString apps = machine->driveFolder() + u"/Program Files/WindowsApps/"_s;
    const QString elsewhere = machine->driveFolder() + u"/Users/kept.txt"_s;
    QVERIFY(QDir().mkpath(machine->driveFolder() + u"/Users"_s));
    writeFile(elsewhere, "kept");
    for (const QString &fullName : {camera, alone}) {
        QVERIFY(QDir().mkpath(apps + fullName + u"/Assets"_s));
        writeFile(apps + fullName + u"/AppxManifest.xml"_s, "<Package/>");
    }
    // One whose folder isn't its own keeps it.
    const QString odd = u"Microsoft.Odd_1.0_x64__8wekyb3d8bbwe"_s;
    setText(machine, userKey + u'\\' + odd, u"PackageRootFolder"_s, u"C:\\Users"_s);
    QCOMPARE(runTool(machine, u"powershell"_s, removal(u"*"_s)).exitCode, 0);
    QCOMPARE(installed(machine), QStringList());
    QVERIFY(QFileInfo::exists(apps + camera + u"/AppxManifest.xml"_s));
    QVERIFY(!QFileInfo::exists(apps + alone));
    QCOMPARE(readFile(elsewhere), QByteArray("kept"));
    QCOMPARE(runTool(machine, u"powershell"_s, registration(u"Microsoft.Alone"_s)).exitCode, 0);
    QCOMPARE(installed(machine), QStringList());
}

void TestPowerShellTool::bringsBackWhatTheMachineHas()
{
    SmallMachine before;
    SmallMachine machine;
    addPackages(before);
    addPackages(machine);
    runTool(machine, u"powershell"_s, removal(u"Microsoft.Windows*"_s));
    QCOMPARE(installed(machine), QStringList(alone));
    for (const QString &name : {u"Microsoft.WindowsCalculator"_s, u"microsoft.windowscamera"_s})
        QCOMPARE(runTool(machine, u"powershell"_s, registration(name)).exitCode, 0);
    QCOMPARE(compareMachines(*before, *machine), QList<DiffRow>());
}

void TestPowerShellTool::bringsBackNothingThatTheUserAloneHad()
{
    SmallMachine machine;
    addPackages(machine);
    runTool(machine, u"powershell"_s, removal(u"Microsoft.Alone"_s));
    QCOMPARE(runTool(machine, u"powershell"_s, registration(u"Microsoft.Alone"_s)).exitCode, 0);
    QVERIFY(!installed(machine).contains(alone));
}

void TestPowerShellTool::whatIsThereStaysAsItIs()
{
    SmallMachine machine;
    addPackages(machine);
    setText(machine, userKey + u'\\' + camera, u"DisplayName"_s, u"Own name"_s);
    runTool(machine, u"powershell"_s, registration(u"Microsoft.WindowsCamera"_s));
    const auto value = machine->registry().value(*machine->registry().find(userKey + u'\\' + camera), u"DisplayName"_s);
    QCOMPARE(textOf(value->data), u"Own name"_s);
}

void TestPowerShellTool::bringingBackNeedsElevation()
{
    SmallMachine machine;
    addPackages(machine);
    runTool(machine, u"powershell"_s, removal(u"Microsoft.WindowsCamera"_s));
    const Ended ended = runTool(machine, u"powershell"_s, registration(u"Microsoft.WindowsCamera"_s), notElevated);
    QCOMPARE(ended.exitCode, 1);
    QCOMPARE(ended.errors, QByteArray("Get-AppxPackage : Access is denied.\r\n"));
    QVERIFY(!installed(machine).contains(camera));
}

void TestPowerShellTool::unknownNamesChangeNothing_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"Microsoft.None", "with blanks", "Microsoft.WindowsCamera Vendor", "\"quoted\"", "[M]*",
                             "Microsoft.Windows\\Camera", "Gr\u00f6\u00dfe"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void TestPowerShellTool::unknownNamesChangeNothing()
{
    QFETCH(QString, name);
    SmallMachine before;
    SmallMachine machine;
    addPackages(before);
    addPackages(machine);
    for (const QStringList &arguments : {removal(name), registration(name)}) {
        QCOMPARE(runTool(machine, u"powershell"_s, arguments).exitCode, 0);
        const QByteArray log = readFile(machine.folder() + u"/commands.log"_s).trimmed();
        const QJsonObject line = QJsonDocument::fromJson(log.mid(log.lastIndexOf('\n') + 1)).object();
        QCOMPARE(line.value("arguments"_L1).toArray(), QJsonArray::fromStringList(arguments));
    }
    QCOMPARE(compareMachines(*before, *machine), QList<DiffRow>());
}

void TestPowerShellTool::whatIsNoNameFails_data()
{
    QTest::addColumn<QString>("name");
    // Joined with the rest of the command and read as one text
    for (const char *name : {"three words here", "a;b", "Microsoft.WindowsCamera; Remove-Item", "$(calc)",
                             "(Microsoft.+)", "Microsoft.XboxApp (Old Xbox App, no longer supported!) ", "a,b", "a|b",
                             "{a}", "a&b", "a>b", "-Publisher", "a -b", "@a", "`a"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void TestPowerShellTool::whatIsNoNameFails()
{
    QFETCH(QString, name);
    SmallMachine before;
    SmallMachine machine;
    addPackages(before);
    addPackages(machine);
    for (const QStringList &arguments : {removal(name), registration(name)}) {
        const Ended ended = runTool(machine, u"powershell"_s, arguments);
        QCOMPARE(ended.exitCode, 1);
        QVERIFY(!ended.errors.isEmpty());
    }
    QCOMPARE(compareMachines(*before, *machine), QList<DiffRow>());
}

void TestPowerShellTool::blanksAroundANameAreNone()
{
    SmallMachine machine;
    addPackages(machine);
    QCOMPARE(runTool(machine, u"powershell"_s, removal(u" Microsoft.WindowsCamera  "_s)).exitCode, 0);
    QVERIFY(!installed(machine).contains(camera));
    QCOMPARE(runTool(machine, u"powershell"_s, registration(u" Microsoft.WindowsCamera  "_s)).exitCode, 0);
    QVERIFY(installed(machine).contains(camera));
}

void TestPowerShellTool::noNameMeansAllPackages()
{
    SmallMachine machine;
    addPackages(machine);
    QCOMPARE(runTool(machine, u"powershell"_s, removal(QString())).exitCode, 0);
    QCOMPARE(installed(machine), QStringList());
}

void TestPowerShellTool::machineWithoutPackages()
{
    SmallMachine before;
    SmallMachine machine;
    QCOMPARE(runTool(machine, u"powershell"_s, removal(u"*"_s)).exitCode, 0);
    QCOMPARE(runTool(machine, u"powershell"_s, registration(u"*"_s)).exitCode, 0);
    // Looking for them makes no keys.
    QVERIFY(!machine->registry().find(userKey));
    QVERIFY(!machine->registry().find(allUsersKey));
}

void TestPowerShellTool::otherCommandsAreRefused_data()
{
    QTest::addColumn<QStringList>("arguments");
    QStringList bare = registration(u"Microsoft.WindowsCamera"_s);
    bare.last() = u" | Foreach {Remove-AppxPackage}"_s;
    QTest::newRow("none") << QStringList();
    QTest::newRow("another command") << QStringList{u"-Command"_s, u"Get-Process"_s, u"x"_s, u"| Remove-AppxPackage"_s};
    QTest::newRow("list alone") << removal(u"Microsoft.WindowsCamera"_s).mid(0, 3);
    QTest::newRow("as one text") << QStringList{u"-Command"_s, removal(u"Microsoft.WindowsCamera"_s).mid(1).join(u' ')};
    QTest::newRow("another pipeline") << bare;
    QTest::newRow("all users removed") << QStringList{u"-Command"_s, u"Get-AppxPackage"_s, u"-allusers"_s,
                                                      u"Microsoft.WindowsCamera"_s, u"| Remove-AppxPackage"_s};
}

void TestPowerShellTool::otherCommandsAreRefused()
{
    QFETCH(QStringList, arguments);
    SmallMachine machine;
    addPackages(machine);
    const Ended ended = runTool(machine, u"powershell"_s, arguments);
    QCOMPARE(ended.exitCode, 1);
    QVERIFY(!ended.errors.isEmpty());
    QCOMPARE(installed(machine).size(), 4);
}

KESTRUNE_SUITE(TestPowerShellTool)
#include "tst_powershelltool.moc"
