// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of scheduled tasks, packages and autoruns on a real registry, each clicked through its whole story.

#include "platform/platform.h"
#include "support/boxes.h"
#include "support/listpages.h"
#include "support/menus.h"
#include "support/packageplaces.h"
#include "support/suite.h"
#include "windows/standin/standinkeys.h"
#include "windows/trialpc.h"
#include "work/settings.h"

#include <QApplication>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** How long all changes of a list may take together: each has its deliberate pause. In milliseconds. */
constexpr int longPatience = 120000;

const QString uninstallKey =
    u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\OneDriveSetup.exe"_s;

/** The documents of all tasks by their paths, as the stand-in keeps them. */
QMap<QString, QString> taskDocuments()
{
    const auto key = platform().openKey(standInTasks);
    QMap<QString, QString> documents;
    for (const QString &name : key->childKeys()) {
        const QString text = key->value(name).toString();
        documents.insert(text.section(u'\n', 0, 0), text.section(u'\n', 1));
    }
    return documents;
}

/** All values at and below a key. */
QMap<QString, QVariant> valuesOf(const QString &path)
{
    const auto key = platform().openKey(path);
    QMap<QString, QVariant> values;
    for (const QString &name : key->allKeys())
        values.insert(name, key->value(name));
    return values;
}

QString oneDriveHome()
{
    return qEnvironmentVariable("LOCALAPPDATA") + u"\\Microsoft\\OneDrive\\"_s;
}

} // namespace

class TestRealLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void needlessTasksGoAndComeBack();
    void leavesOneTaskDisabled();
    void packagesGoAndComeBack();
    void programsAreSwitchedOffAndOn();

private:
    bool waitForTasks() const;

    std::unique_ptr<TrialPc> pc_;
    std::unique_ptr<WindowDriver> driver_;
};

void TestRealLists::initTestCase()
{
    pc_ = std::make_unique<TrialPc>();
    QVERIFY(platform().isElevated());
    pc_->registerTasks();
    pc_->startProcesses();
    driver_ = std::make_unique<WindowDriver>();
    QVERIFY(QTest::qWaitForWindowExposed(&driver_->window()));
}

void TestRealLists::cleanupTestCase()
{
    driver_.reset();
    pc_.reset();
}

bool TestRealLists::waitForTasks() const
{
    return QTest::qWaitFor([this] { return !driver_->worker().isRunning(); }, longPatience)
           && driver_->waitForList(u"Tasks:"_s);
}

void TestRealLists::needlessTasksGoAndComeBack()
{
    const QString table = u"tblTasks"_s;
    const QMap<QString, QString> before = taskDocuments();
    QVERIFY(before.size() > 100);
    QVERIFY(driver_->openTasks());
    const QStringList listed = driver_->column(table, 0);
    QVERIFY(listed.size() > 60);
    QCOMPARE(driver_->worker().tasks.size(), before.size());
    QCOMPARE(commandsOf(u"schtasks"_s).constLast(), QStringList(u"/xml"_s));
    QVERIFY(QFile::exists(platform().programFolder() + u"/backup_tasks/tasks.xml"_s));
    takePicture(u"tasks"_s);

    // Some of the assistant's choice go: each takes its deliberate pause.
    forgetCommands();
    Boxes boxes({QMessageBox::No});
    driver_->click(u"btnTaskAssist"_s);
    QStringList needless = driver_->checkedIn(table);
    QVERIFY(needless.size() > 8);
    needless.resize(6);
    keepOnlyChecked(*driver_, table, needless);
    driver_->click(u"btnTaskDisable"_s);
    QVERIFY(waitForTasks());
    QStringList left = listed;
    QList<QStringList> commands;
    for (const QString &path : needless) {
        left.removeAll(path);
        commands.append({u"/CHANGE"_s, u"/TN"_s, path, u"/DISABLE"_s});
        QVERIFY2(taskDocuments().value(u'\\' + path).contains("<Enabled>false</Enabled>"_L1), qPrintable(path));
    }
    commands.append({u"/xml"_s});
    QCOMPARE(commandsOf(u"schtasks"_s), commands);
    QCOMPARE(driver_->column(table, 0), left);
    QCOMPARE(sorted(recordedNames(u"Task"_s)), sorted(needless));
    takePicture(u"tasks-disabled"_s);

    // All of it comes back; the records stay.
    boxes.answer(QMessageBox::Yes);
    driver_->click(u"btnTaskRestore"_s);
    QVERIFY(waitForTasks());
    QCOMPARE(driver_->column(table, 0), listed);
    QCOMPARE(taskDocuments(), before);
    QCOMPARE(sorted(recordedNames(u"Task"_s)), sorted(needless));
}

void TestRealLists::leavesOneTaskDisabled()
{
    const QString table = u"tblTasks"_s;
    const QString path = u"Microsoft\\Windows\\Application Experience\\Microsoft Compatibility Appraiser"_s;
    emptyKey(recordKey(u"Task"_s));
    QVERIFY(driver_->openTasks());
    WindowDriver::clickCheckBox(driver_->table(table), driver_->firstCell(table, path));
    QCOMPARE(driver_->checkedIn(table), QStringList{path});
    driver_->click(u"btnTaskDisable"_s);
    QVERIFY(waitForTasks());
    QVERIFY(driver_->firstCell(table, path) == nullptr);
    QCOMPARE(recordedNames(u"Task"_s), QStringList{path});
}

void TestRealLists::packagesGoAndComeBack()
{
    const QString table = u"tblPackages"_s;
    // One PC has OneDrive's setup from the system, the other from its own installation.
    const QString setup = isWindows11Pc() ? qEnvironmentVariable("WINDIR") + u"\\System32\\OneDriveSetup.exe"_s
                                          : oneDriveHome() + u"25.149.0803.0003\\OneDriveSetup.exe"_s;
    layStandIn(setup);
    layStandIn(oneDriveHome() + u"25.149.0803.0003\\OneDriveSetup.exe"_s);
    layFile(oneDriveHome() + u"OneDrive.exe"_s);
    const auto state = [] { return QList{valuesOf(repositoryKey), valuesOf(uninstallKey), valuesOf(userRunKey)}; };
    const auto before = state();
    QVERIFY(before.at(0).size() > 200 && !before.at(1).isEmpty() && before.at(2).contains(u"OneDrive"_s));

    QVERIFY(driver_->openPackages());
    const QStringList listed = driver_->column(table, 0);
    QVERIFY(listed.size() > 15);
    QCOMPARE(listed.constLast(), u"MS OneDrive"_s);
    QCOMPARE(driver_->table(table)->item(driver_->table(table)->rowCount() - 1, 2)->text().toLower(), setup.toLower());
    QCOMPARE(driver_->checkedIn(table), listed);
    takePicture(u"packages"_s);

    // Three are to go. Outside the system's folders a setup must be signed by Microsoft, and a stand-in isn't.
    const QStringList chosen{u"MS OneDrive"_s, u"Microsoft.BingNews"_s, u"Microsoft.BingWeather"_s};
    const bool admitted = isWindows11Pc();
    const QStringList gone = admitted ? chosen : chosen.mid(1);
    keepOnlyChecked(*driver_, table, chosen);
    forgetCommands();
    const Boxes noBox;
    driver_->click(u"btnPackagesUninst"_s);
    QVERIFY(waitForPackageJob(*driver_));
    // A package that is there under two full names has two rows, and is asked to go twice.
    QList<QStringList> commands;
    for (const QString &name : driver_->checkedIn(table).mid(0, driver_->checkedIn(table).size() - 1))
        commands.append({u"-Command"_s, u"Get-AppxPackage"_s, name, u"| Remove-AppxPackage"_s});
    QCOMPARE(commandsOf(u"powershell"_s), commands);
    QCOMPARE(commandsOf(u"onedrivesetup"_s), QList<QStringList>(admitted ? 1 : 0, {u"/uninstall"_s}));
    QCOMPARE(sorted(recordedNames(u"Packages"_s)), gone);
    QCOMPARE(valuesOf(uninstallKey).isEmpty(), admitted);
    QCOMPARE(valuesOf(userRunKey).contains(u"OneDrive"_s), !admitted);
    QCOMPARE(QFile::exists(oneDriveHome() + u"OneDrive.exe"_s), !admitted);
    for (const auto [path, value] : valuesOf(repositoryKey).asKeyValueRange())
        QVERIFY2(!path.startsWith("Microsoft.BingNews_"_L1) && !path.startsWith("Microsoft.BingWeather_"_L1),
                 qPrintable(path));
    QVERIFY(driver_->openPackages());
    QStringList left = listed;
    for (const QString &name : gone)
        left.removeAll(name);
    QCOMPARE(driver_->column(table, 0), left);

    // They are seen among what is gone, and brought back.
    forgetCommands();
    driver_->click(u"btnPackagesViewDisabled"_s);
    QCOMPARE(driver_->column(table, 0), gone);
    takePicture(u"packages-uninstalled"_s);
    for (const QString &name : gone)
        WindowDriver::clickCheckBox(driver_->table(table), driver_->firstCell(table, name));
    driver_->click(u"btnPackagesUninst"_s);
    QVERIFY(waitForPackageJob(*driver_));
    const QString registration = u" | Foreach {Add-AppxPackage -DisableDevelopmentMode -Register "
                                 "\"$($_.InstallLocation)\\AppXManifest.xml\"}"_s;
    commands.clear();
    for (const QString &name : {chosen.at(1), chosen.at(2)})
        commands.append({u"-Command"_s, u"Get-AppxPackage"_s, u"-allusers"_s, name, registration});
    QCOMPARE(commandsOf(u"powershell"_s), commands);
    QCOMPARE(commandsOf(u"onedrivesetup"_s), QList<QStringList>(admitted ? 1 : 0, {u"/silent"_s}));
    QCOMPARE(recordedNames(u"Packages"_s), QStringList());
    QCOMPARE(state(), before);
    driver_->click(u"btnPackagesViewDisabled"_s);
    QVERIFY(driver_->waitForList(u"Packages installed:"_s));
    QCOMPARE(driver_->column(table, 0), listed);
}

void TestRealLists::programsAreSwitchedOffAndOn()
{
    const QString table = u"tblAutorun"_s;
    const QStringList uninstalled{u"Old Player"_s, u"Notes"_s}; // on one PC each
    for (const QString &key : {userRunKey, machineRunKey, machineRunKey32}) {
        for (const auto [name, command] : valuesOf(key).asKeyValueRange()) {
            const QString program = command.toString().section(u'"', 1, 1);
            if (!program.isEmpty() && !uninstalled.contains(name))
                layFile(program);
        }
    }
    Menus menus({u"Automatically started programs"_s});
    driver_->click(u"btnMenuPackage"_s);
    const QStringList listed = driver_->column(table, 0);
    QVERIFY(listed.size() > 5 && listed.contains(u"OneDrive"_s)
            && listed.contains(u"Xbox.App.Tasks.FullTrustComponent"_s));
    QVERIFY(!listed.contains(u"SecurityHealth"_s) && !listed.contains(QString()));
    takePicture(u"autorun"_s);
    // What can come back: the tasks, and commands in quotes of a program that is there.
    QMap<QString, QString> commands;
    QStringList expected;
    for (int row = 0; row < listed.size(); ++row) {
        const QString name = listed.at(row);
        const QString path = driver_->table(table)->item(row, 0)->toolTip();
        commands[path] = driver_->table(table)->item(row, 1)->text();
        if (commands[path] == path || (commands[path].contains(u'"') && !uninstalled.contains(name)))
            expected.append(name);
    }
    QVERIFY(expected.size() > 3 && expected.size() < listed.size() - 1);

    // All of them go, and what hides from the list stays.
    driver_->click(u"btnAutorun"_s);
    QCOMPARE(driver_->table(table)->rowCount(), 0);
    QCOMPARE(driver_->status(), u"Autorun: 0  |  disabled: %1  "_s.arg(listed.size()));
    QCOMPARE(sorted(recordedNames(u"Autorun"_s)), sorted(listed));
    QCOMPARE(platform().openKey(machineRunKey)->childKeys(), QStringList(u"SecurityHealth"_s));
    QCOMPARE(platform().openKey(machineRunKey32)->childKeys(), QStringList());
    QCOMPARE(platform().openKey(xboxTaskKey)->value(u"State"_s).toInt(), 1);

    driver_->click(u"btnAutorunViewDisabled"_s);
    QCOMPARE(sorted(driver_->column(table, 0)), sorted(listed));
    takePicture(u"autorun-disabled"_s);
    driver_->click(u"btnAutorun"_s);
    QCOMPARE(sorted(driver_->column(table, 0)), sorted(expected));
    for (int row = 0; row < expected.size(); ++row) {
        const QString path = driver_->table(table)->item(row, 0)->toolTip();
        QCOMPARE(driver_->table(table)->item(row, 1)->text(), commands.value(path));
    }
    QCOMPARE(recordedNames(u"Autorun"_s), QStringList());
    QCOMPARE(platform().openKey(xboxTaskKey)->value(u"State"_s).toInt(), 2);
    // It is Optimize that ends what runs; the page only keeps it from starting.
    QCOMPARE(commandsOf(u"taskkill"_s), QList<QStringList>());
}

KESTRUNE_WINDOW_SUITE(TestRealLists)
#include "tst_reallists.moc"
