// SPDX-License-Identifier: GPL-3.0-or-later
// The Packages page: its two views, removing packages and bringing them back. PowerShell is a real process on a machine
// of the test.

#include "support/boxes.h"
#include "support/menus.h"
#include "support/packageplaces.h"
#include "support/suite.h"
#include "support/windowdriver.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString table = u"tblPackages"_s;
const QString actionButton = u"btnPackagesUninst"_s;
const QString viewButton = u"btnPackagesViewDisabled"_s;
const QString ending = u"_1.0.0.0_x64__8wekyb3d8bbwe"_s;

void send(const WindowDriver &driver, int job, const QString &line)
{
    driver.worker().job = job;
    driver.window().onWorkThreadValueChanged(line);
}

/** Shows the page without its listing, and fills it with these rows. */
void openWith(const WindowDriver &driver, const QList<PackageRow> &rows)
{
    driver.get<QTabWidget>(u"tabWidget"_s)->setCurrentIndex(4);
    driver.button(actionButton)->setText(u"Uninstall packages"_s);
    driver.button(viewButton)->setText(u"View uninstalled packages"_s);
    driver.worker().packages = rows;
    send(driver, JobPackageGetList, u"WorkThread::PackageGetList"_s);
}

/** The window with the page open: with the machine's packages, or with these rows. */
class PackagesPage : public WindowDriver
{
public:
    PackagesPage()
    {
        if (!openPackages())
            qFatal("the packages aren't listed");
    }
    explicit PackagesPage(const QList<PackageRow> &rows) { openWith(*this, rows); }
};

QList<PackageRow> rowsOf(const QStringList &names)
{
    QList<PackageRow> rows;
    for (const QString &name : names)
        rows.append({name, name + u" shown"_s, name + u" remark"_s});
    return rows;
}

QStringList texts(const WindowDriver &driver)
{
    return {driver.button(viewButton)->text(), driver.button(actionButton)->text()};
}

const QStringList installedView{u"View uninstalled packages"_s, u"Uninstall packages"_s};
const QStringList uninstalledView{u"View installed packages"_s, u"Install packages"_s};

QList<int> widths(const WindowDriver &driver)
{
    return {driver.table(table)->columnWidth(1), driver.table(table)->columnWidth(2)};
}

/** The names that PowerShell was asked to remove or install, in order. */
QStringList changes(const TestMachine &machine)
{
    QStringList names;
    for (const LoggedCommand &command : machine.commands()) {
        const bool install = command.arguments.value(2) == "-allusers"_L1;
        names.append((install ? u"install "_s : u"remove "_s) + command.arguments.value(install ? 3 : 2));
    }
    return names;
}

/** Waits for the end of job 3. */
bool waitForEnd(const WindowDriver &driver)
{
    return QTest::qWaitFor(
        [&driver] { return !driver.worker().isRunning() && driver.status().contains(u"packages finished"_s); },
        patience);
}

void record(TestMachine &machine, const QStringList &names)
{
    for (const QString &name : names)
        machine.write(packageRecordsKey, name, 1);
}

} // namespace

class TestPackagesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The view of installed packages
    void programsMenuListsTheMachinesPackages();
    void rowShowsNameDisplayNameAndComment();
    void rowsStartCheckedAndCannotBeEdited();
    void rowsComeInTheOrderOfTheListAndAreNotSorted();
    void statusCountsRowsAndRecords();
    void anyLineOfTheListingAddsItsRows();
    void showingThePageEmptiesItFirst();
    void emptyListGivesZeros();

    // The view of uninstalled packages
    void secondViewHasItsTextsAndItsWidths();
    void secondViewListsTheRecordsUnchecked();
    void secondViewOfNothingIsEmpty();
    void secondClickGoesBackToTheInstalledPackages();
    void anyOtherTextOfTheButtonMeansTheSecondView();
    void comingBackByTheMenuGivesTheInstalledView();

    // Uninstalling
    void uninstallTakesEveryRowThatStaysChecked();
    void uninstallHandsOverNameAndComment();
    void uninstallAsksNothing();
    void uninstallWithNothingCheckedIsSilent_data();
    void uninstallWithNothingCheckedIsSilent();
    void uninstallOfAnEmptyTableIsSilent();
    void uninstallWhileTheLastOneHasNotEndedIsIgnored();
    void secondUninstallFollowsTheFirst();
    void tableStaysAsItWasAtTheEnd();
    void failedUninstallIsNotRecorded();
    void uninstallOfOneDriveRunsItsUninstaller();
    void oldXboxAppIsRecordedAsItsLineReads();

    // Installing
    void installTakesTheRecordsAway();
    void oldXboxAppComesBackByItsName();
    void installOfNothingIsSilent();
    void failedInstallKeepsTheRecord();
    void directionIsReadFromTheButton_data();
    void directionIsReadFromTheButton();

    // Lines
    void everyLineIsTheStatus_data();
    void everyLineIsTheStatus();
    void linesKeepTheRecord();

    // Context menu
    void checkAllAndUncheckAll();
    void refreshDoesNothing();
};

void TestPackagesPage::programsMenuListsTheMachinesPackages()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.Todos"_s, u"Clipchamp.Clipchamp"_s, u"Vendor.App"_s});
    record(machine, {u"Microsoft.People"_s});
    const WindowDriver driver;
    Menus menus({u"Windows packages installed"_s});
    driver.click(u"btnMenuPackage"_s);
    QVERIFY(driver.waitForList(u"Packages installed:"_s));
    QCOMPARE(driver.window().currentPage(), 4);
    QCOMPARE(driver.column(table, 0), (QStringList{u"Clipchamp.Clipchamp"_s, u"Microsoft.Todos"_s}));
    QCOMPARE(driver.column(table, 1), (QStringList{u"Clipchamp.Clipchamp*"_s, u"Microsoft.Todos*"_s}));
    QCOMPARE(driver.column(table, 2), (QStringList{u"Microsoft video editor"_s, QString()}));
    QCOMPARE(driver.status(), u"Packages installed: 2  |  uninstalled: 1  "_s);
    QCOMPARE(texts(driver), installedView);
    QCOMPARE(widths(driver), (QList<int>{200, 400}));
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
}

void TestPackagesPage::rowShowsNameDisplayNameAndComment()
{
    const WindowOnPc driver;
    openWith(driver, {{u"MS OneDrive"_s, u"OneDrive shown"_s, u"C:\\a.exe"_s}});
    QCOMPARE(driver.table(table)->item(0, 0)->text(), u"MS OneDrive"_s);
    QCOMPARE(driver.table(table)->item(0, 1)->text(), u"OneDrive shown"_s);
    QCOMPARE(driver.table(table)->item(0, 2)->text(), u"C:\\a.exe"_s);
}

void TestPackagesPage::rowsStartCheckedAndCannotBeEdited()
{
    const WindowOnPc driver;
    openWith(driver, rowsOf({u"B"_s, u"A"_s}));
    QCOMPARE(driver.checkedIn(table), (QStringList{u"B"_s, u"A"_s}));
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column) {
            const QTableWidgetItem *item = driver.table(table)->item(row, column);
            QCOMPARE(item->flags(), QTableWidgetItem().flags() & ~Qt::ItemIsEditable);
            QCOMPARE(item->toolTip(), QString());
            QCOMPARE(item->data(Qt::CheckStateRole).isValid(), column == 0);
        }
    }
    WindowDriver::clickCheckBox(driver.table(table), driver.firstCell(table, u"B"_s));
    QCOMPARE(driver.checkedIn(table), QStringList{u"A"_s});
}

void TestPackagesPage::rowsComeInTheOrderOfTheListAndAreNotSorted()
{
    const WindowOnPc driver;
    const QStringList names{u"C"_s, u"a"_s, u"B"_s, u"C"_s, u"A"_s};
    openWith(driver, rowsOf(names));
    QCOMPARE(driver.column(table, 0), names);
    QVERIFY(!driver.table(table)->isSortingEnabled());
}

void TestPackagesPage::statusCountsRowsAndRecords()
{
    TestMachine machine;
    record(machine, {u"X"_s, u"Y"_s, u"Z"_s});
    machine.write(packageRecordsKey, QString(), u"unnamed"_s);
    const PackagesPage driver(rowsOf({u"A"_s, u"B"_s}));
    QCOMPARE(driver.status(), u"Packages installed: 2  |  uninstalled: 3  "_s);
}

void TestPackagesPage::anyLineOfTheListingAddsItsRows()
{
    TestMachine machine;
    const PackagesPage driver(rowsOf({u"A"_s}));
    send(driver, JobPackageGetList, u"package: B: done"_s);
    QCOMPARE(driver.column(table, 0), (QStringList{u"A"_s, u"A"_s}));
    QCOMPARE(driver.status(), u"Packages installed: 2  |  uninstalled: 0  "_s);
    QCOMPARE(machine.names(packageRecordsKey), QStringList());
}

void TestPackagesPage::showingThePageEmptiesItFirst()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.Todos"_s});
    const PackagesPage driver(rowsOf({u"Old"_s, u"Older"_s}));
    driver.window().showPage(4);
    // The list's line hasn't been read yet.
    QCOMPARE(driver.worker().job, int(JobPackageGetList));
    QCOMPARE(driver.table(table)->rowCount(), 0);
    QCOMPARE(driver.status(), QString());
    QVERIFY(driver.waitForList(u"Packages installed:"_s));
    QCOMPARE(driver.column(table, 0), QStringList{u"Microsoft.Todos"_s});
}

void TestPackagesPage::emptyListGivesZeros()
{
    const WindowOnPc driver;
    QVERIFY(driver.openPackages());
    QCOMPARE(driver.table(table)->rowCount(), 0);
    QCOMPARE(driver.status(), u"Packages installed: 0  |  uninstalled: 0  "_s);
}

void TestPackagesPage::secondViewHasItsTextsAndItsWidths()
{
    const WindowOnPc driver;
    QVERIFY(driver.openPackages());
    QCOMPARE(texts(driver), installedView);
    QCOMPARE(widths(driver), (QList<int>{200, 400}));
    driver.click(viewButton);
    QCOMPARE(texts(driver), uninstalledView);
    QCOMPARE(widths(driver), (QList<int>{0, 0}));
}

void TestPackagesPage::secondViewListsTheRecordsUnchecked()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.Todos"_s});
    record(machine, {u"MS OneDrive"_s, u"Microsoft.People"_s});
    machine.write(packageRecordsKey, u"Zero"_s, 0);
    machine.write(packageRecordsKey, QString(), u"unnamed"_s);
    const PackagesPage driver;
    driver.click(viewButton);
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(driver.column(table, 0), (QStringList{u"MS OneDrive"_s, u"Microsoft.People"_s, u"Zero"_s}));
    QCOMPARE(driver.column(table, 1), QStringList(3, QString()));
    QCOMPARE(driver.column(table, 2), QStringList(3, QString()));
    QCOMPARE(driver.checkedIn(table), QStringList());
    QCOMPARE(driver.status(), u"Packages uninstalled: 3  "_s);
    for (int column = 0; column < 3; ++column)
        QVERIFY(!driver.table(table)->item(0, column)->flags().testFlag(Qt::ItemIsEditable));
    WindowDriver::clickCheckBox(driver.table(table), driver.firstCell(table, u"Microsoft.People"_s));
    QCOMPARE(driver.checkedIn(table), QStringList{u"Microsoft.People"_s});
}

void TestPackagesPage::secondViewOfNothingIsEmpty()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.Todos"_s});
    const PackagesPage driver;
    driver.click(viewButton);
    QCOMPARE(driver.table(table)->rowCount(), 0);
    QCOMPARE(driver.status(), u"Packages uninstalled: 0  "_s);
}

void TestPackagesPage::secondClickGoesBackToTheInstalledPackages()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.Todos"_s});
    record(machine, {u"Microsoft.People"_s});
    const PackagesPage driver;
    driver.click(viewButton);
    driver.click(viewButton);
    QVERIFY(driver.waitForList(u"Packages installed:"_s));
    QCOMPARE(texts(driver), installedView);
    QCOMPARE(widths(driver), (QList<int>{200, 400}));
    QCOMPARE(driver.column(table, 0), QStringList{u"Microsoft.Todos"_s});
    QCOMPARE(driver.checkedIn(table), QStringList{u"Microsoft.Todos"_s});
}

void TestPackagesPage::anyOtherTextOfTheButtonMeansTheSecondView()
{
    const WindowOnPc driver;
    QVERIFY(driver.openPackages());
    driver.button(viewButton)->setText(u"neither"_s);
    driver.click(viewButton);
    QVERIFY(driver.waitForList(u"Packages installed:"_s));
    QCOMPARE(texts(driver), installedView);
}

void TestPackagesPage::comingBackByTheMenuGivesTheInstalledView()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.Todos"_s});
    const PackagesPage driver;
    driver.click(viewButton);
    driver.window().showPage(0);
    QVERIFY(driver.openPackages());
    QCOMPARE(texts(driver), installedView);
    QCOMPARE(widths(driver), (QList<int>{200, 400}));
    QCOMPARE(driver.checkedIn(table), QStringList{u"Microsoft.Todos"_s});
}

void TestPackagesPage::uninstallTakesEveryRowThatStaysChecked()
{
    PowerShellMachine machine;
    addPackages(machine, {u"Microsoft.Todos"_s, u"Microsoft.People"_s, u"MSTeams"_s});
    const PackagesPage driver;
    WindowDriver::clickCheckBox(driver.table(table), driver.firstCell(table, u"Microsoft.People"_s));
    driver.click(actionButton);
    QVERIFY(waitForEnd(driver));
    QCOMPARE(changes(machine), (QStringList{u"remove MSTeams"_s, u"remove Microsoft.Todos"_s}));
    QCOMPARE(machine.names(packageRecordsKey), (QStringList{u"MSTeams"_s, u"Microsoft.Todos"_s}));
    QCOMPARE(machine.read(packageRecordsKey, u"MSTeams"_s), QVariant(1));
    QCOMPARE(driver.status(), u"   Uninstall   packages finished    "_s);
}

void TestPackagesPage::uninstallHandsOverNameAndComment()
{
    PowerShellMachine machine;
    const PackagesPage driver(rowsOf({u"B"_s, u"A"_s, u"C"_s}));
    driver.firstCell(table, u"A"_s)->setCheckState(Qt::Unchecked);
    driver.worker().packagesToChange = rowsOf({u"before"_s});
    driver.click(actionButton);
    QCOMPARE(driver.worker().job, int(JobPackageSetState));
    QVERIFY(!driver.worker().packageInstall);
    const QList<PackageRow> rows = driver.worker().packagesToChange;
    QCOMPARE(rows.size(), 2);
    QCOMPARE(rows.at(0).name, u"B"_s);
    QCOMPARE(rows.at(0).displayName, QString());
    QCOMPARE(rows.at(0).comment, u"B remark"_s);
    QCOMPARE(rows.at(1).name, u"C"_s);
    QVERIFY(waitForEnd(driver));
}

void TestPackagesPage::uninstallAsksNothing()
{
    PowerShellMachine machine;
    const PackagesPage driver(rowsOf({u"A"_s, u"B"_s, u"C"_s}));
    const Boxes noBox;
    driver.click(actionButton);
    QVERIFY(waitForEnd(driver));
    QCOMPARE(changes(machine).size(), 3);
}

void TestPackagesPage::uninstallWithNothingCheckedIsSilent_data()
{
    QTest::addColumn<bool>("elevated");
    QTest::newRow("with rights") << true;
    QTest::newRow("without rights") << false;
}

void TestPackagesPage::uninstallWithNothingCheckedIsSilent()
{
    QFETCH(const bool, elevated);
    TestMachine machine(TestMachine::Windows::Eleven, elevated ? MachineOptions() : notElevated());
    const PackagesPage driver(rowsOf({u"A"_s}));
    driver.firstCell(table, u"A"_s)->setCheckState(Qt::Unchecked);
    const QString status = driver.status();
    driver.worker().packagesToChange = rowsOf({u"before"_s});
    const Boxes noBox;
    driver.click(actionButton);
    QVERIFY(!driver.worker().isRunning());
    QVERIFY(driver.worker().packageJobIdle);
    QCOMPARE(driver.status(), status);
    QCOMPARE(driver.worker().job, int(JobPackageGetList));
    QVERIFY(driver.worker().packagesToChange.isEmpty()); // emptied before anything is looked at
}

void TestPackagesPage::uninstallOfAnEmptyTableIsSilent()
{
    const WindowOnPc driver(notElevated());
    openWith(driver, {});
    driver.worker().packagesToChange = rowsOf({u"before"_s});
    const Boxes noBox;
    driver.click(actionButton);
    QVERIFY(!driver.worker().isRunning());
    QVERIFY(driver.worker().packagesToChange.isEmpty());
}

void TestPackagesPage::uninstallWhileTheLastOneHasNotEndedIsIgnored()
{
    PowerShellMachine machine;
    const PackagesPage driver(rowsOf({u"A"_s}));
    driver.worker().packageJobIdle = false;
    driver.worker().packagesToChange = rowsOf({u"before"_s});
    const Boxes noBox;
    driver.click(actionButton);
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(driver.worker().packagesToChange.at(0).name, u"before"_s);

    driver.worker().packageJobIdle = true;
    machine.machine().setFault(u"powershell"_s, {.hang = true});
    driver.click(actionButton);
    QVERIFY(driver.worker().isRunning());
    QVERIFY(!driver.worker().packageJobIdle);
    driver.firstCell(table, u"A"_s)->setText(u"B"_s);
    driver.click(actionButton);
    QCOMPARE(driver.worker().packagesToChange.at(0).name, u"A"_s);
    QVERIFY(driver.endJob());
}

void TestPackagesPage::secondUninstallFollowsTheFirst()
{
    PowerShellMachine machine;
    const PackagesPage driver(rowsOf({u"A"_s}));
    for (int run = 1; run <= 5; ++run) {
        driver.click(actionButton);
        QVERIFY(waitForEnd(driver));
        QVERIFY(driver.worker().packageJobIdle);
        QCOMPARE(changes(machine).size(), run);
        driver.get<QLabel>(u"lblStatus"_s)->clear();
    }
}

void TestPackagesPage::tableStaysAsItWasAtTheEnd()
{
    PowerShellMachine machine;
    const PackagesPage driver(rowsOf({u"B"_s, u"A"_s}));
    driver.firstCell(table, u"B"_s)->setCheckState(Qt::Unchecked);
    driver.click(actionButton);
    QVERIFY(waitForEnd(driver));
    QCOMPARE(driver.column(table, 0), (QStringList{u"B"_s, u"A"_s}));
    QCOMPARE(driver.checkedIn(table), QStringList{u"A"_s});
    QCOMPARE(driver.worker().job, int(JobPackageSetState));
}

void TestPackagesPage::failedUninstallIsNotRecorded()
{
    PowerShellMachine machine;
    machine.machine().setFault(u"powershell -Command Get-AppxPackage B"_s, {.exitCode = 1});
    const PackagesPage driver(rowsOf({u"A"_s, u"B"_s, u"C"_s}));
    QStringList statuses;
    connect(&driver.worker(), &WorkThread::valueChanged, this, [&] { statuses.append(driver.status()); });
    driver.click(actionButton);
    QVERIFY(waitForEnd(driver));
    QCOMPARE(machine.names(packageRecordsKey), (QStringList{u"A"_s, u"C"_s}));
    QCOMPARE(statuses,
             (QStringList{u"   Uninstall   package: A: done  "_s, u"   Uninstall   package: B: error  "_s,
                          u"   Uninstall   package: C: done  "_s, u"   Uninstall   packages finished    "_s}));
}

void TestPackagesPage::uninstallOfOneDriveRunsItsUninstaller()
{
    TestMachine machine;
    machine.addFile(u"C:\\Windows\\System32\\OneDriveSetup.exe"_s);
    machine.addFile(u"C:\\Users\\Test\\AppData\\Local\\Microsoft\\OneDrive\\OneDrive.exe"_s);
    machine.machine().setFault(u"onedrivesetup"_s, {.exitCode = 0});
    const PackagesPage driver;
    QCOMPARE(driver.column(table, 2), QStringList{u"C:\\Windows\\System32\\OneDriveSetup.exe"_s});
    driver.click(actionButton);
    QVERIFY(waitForEnd(driver));
    QCOMPARE(machine.commands(), (QList<LoggedCommand>{{u"onedrivesetup"_s, {u"/uninstall"_s}, 0}}));
    QCOMPARE(machine.names(packageRecordsKey), QStringList{u"MS OneDrive"_s});
}

void TestPackagesPage::oldXboxAppIsRecordedAsItsLineReads()
{
    PowerShellMachine machine;
    const PackagesPage driver(rowsOf({u"Microsoft.XboxApp"_s}));
    driver.click(actionButton);
    QVERIFY(waitForEnd(driver));
    QCOMPARE(machine.names(packageRecordsKey),
             QStringList{u"Microsoft.XboxApp (Old Xbox App, no longer supported!) "_s});
}

void TestPackagesPage::installTakesTheRecordsAway()
{
    PowerShellMachine machine;
    record(machine, {u"A"_s, u"B"_s, u"C"_s});
    const PackagesPage driver;
    driver.click(viewButton);
    WindowDriver::clickCheckBox(driver.table(table), driver.firstCell(table, u"A"_s));
    WindowDriver::clickCheckBox(driver.table(table), driver.firstCell(table, u"C"_s));
    const Boxes noBox;
    driver.click(actionButton);
    QVERIFY(driver.worker().packageInstall);
    QVERIFY(waitForEnd(driver));
    QCOMPARE(changes(machine), (QStringList{u"install A"_s, u"install C"_s}));
    QCOMPARE(machine.names(packageRecordsKey), QStringList{u"B"_s});
    QCOMPARE(driver.status(), u"   Install   packages finished    "_s);
    // Not redrawn either.
    QCOMPARE(driver.column(table, 0), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    QCOMPARE(texts(driver), uninstalledView);
}

void TestPackagesPage::oldXboxAppComesBackByItsName()
{
    PowerShellMachine machine;
    record(machine, {u"Microsoft.XboxApp (Old Xbox App, no longer supported!) "_s});
    const PackagesPage driver;
    driver.click(viewButton);
    QCOMPARE(driver.column(table, 0), QStringList{u"Microsoft.XboxApp (Old Xbox App, no longer supported!) "_s});
    driver.table(table)->item(0, 0)->setCheckState(Qt::Checked);
    driver.click(actionButton);
    QVERIFY(waitForEnd(driver));
    QCOMPARE(changes(machine), QStringList{u"install Microsoft.XboxApp"_s});
    QCOMPARE(machine.names(packageRecordsKey), QStringList());
}

void TestPackagesPage::installOfNothingIsSilent()
{
    PowerShellMachine machine;
    const PackagesPage driver;
    driver.click(viewButton);
    const Boxes noBox;
    driver.click(actionButton);
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(driver.status(), u"Packages uninstalled: 0  "_s);
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
}

void TestPackagesPage::failedInstallKeepsTheRecord()
{
    TestMachine machine;
    addPowerShell(machine, 1);
    record(machine, {u"A"_s});
    const PackagesPage driver;
    driver.click(viewButton);
    driver.firstCell(table, u"A"_s)->setCheckState(Qt::Checked);
    driver.click(actionButton);
    QVERIFY(waitForEnd(driver));
    QCOMPARE(machine.names(packageRecordsKey), QStringList{u"A"_s});
}

void TestPackagesPage::directionIsReadFromTheButton_data()
{
    addColumns<QString, bool>("text", "install");
    QTest::newRow("install") << u"Install packages"_s << true;
    QTest::newRow("uninstall") << u"Uninstall packages"_s << false;
    QTest::newRow("neither") << u"install packages"_s << false;
}

void TestPackagesPage::directionIsReadFromTheButton()
{
    QFETCH(const QString, text);
    QFETCH(const bool, install);
    PowerShellMachine machine;
    const PackagesPage driver(rowsOf({u"A"_s}));
    driver.worker().packageInstall = !install;
    driver.button(actionButton)->setText(text);
    driver.click(actionButton);
    QCOMPARE(driver.worker().packageInstall, install);
    QVERIFY(waitForEnd(driver));
}

void TestPackagesPage::everyLineIsTheStatus_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("package") << u"   Uninstall   package: A: done"_s;
    QTest::newRow("end") << u"   Install   packages finished  "_s;
    QTest::newRow("bar") << u"pgr:value:3"_s;
    QTest::newRow("other") << u"anything"_s;
    QTest::newRow("empty") << QString();
}

void TestPackagesPage::everyLineIsTheStatus()
{
    QFETCH(const QString, line);
    const WindowOnPc driver;
    driver.bar()->setValue(7);
    send(driver, JobPackageSetState, line);
    QCOMPARE(driver.status(), line + u"  "_s);
    QVERIFY(driver.bar()->isHidden());
    QCOMPARE(driver.bar()->value(), 7);
}

void TestPackagesPage::linesKeepTheRecord()
{
    TestMachine machine;
    record(machine, {u"Before"_s});
    const WindowDriver driver;
    driver.worker().packageInstall = false;
    send(driver, JobPackageSetState, u"   Uninstall   package: A.B: done"_s);
    send(driver, JobPackageSetState, u"   Uninstall   package: C: error"_s);
    send(driver, JobPackageSetState, u"   Uninstall   packages finished  "_s);
    QCOMPARE(machine.names(packageRecordsKey), (QStringList{u"A.B"_s, u"Before"_s}));
    driver.worker().packageInstall = true;
    send(driver, JobPackageSetState, u"   Install   package: Before: error"_s);
    send(driver, JobPackageSetState, u"   Install   package: A.B: done"_s);
    QCOMPARE(machine.names(packageRecordsKey), QStringList{u"Before"_s});
    // During another job such a line is none of a package.
    send(driver, JobTaskStopOrStart, u"   Install   package: Before: done"_s);
    QCOMPARE(machine.names(packageRecordsKey), QStringList{u"Before"_s});
}

void TestPackagesPage::checkAllAndUncheckAll()
{
    const WindowOnPc driver;
    openWith(driver, rowsOf({u"A"_s, u"B"_s, u"C"_s}));
    driver.firstCell(table, u"B"_s)->setCheckState(Qt::Unchecked);
    Menus menus({u"Uncheck all"_s});
    Q_EMIT driver.table(table)->customContextMenuRequested({});
    QCOMPARE(driver.checkedIn(table), QStringList());
    menus.choose(u"Check all"_s);
    Q_EMIT driver.table(table)->customContextMenuRequested({});
    QCOMPARE(driver.checkedIn(table), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    QCOMPARE(menus.shown().at(0).actions, (QStringList{u"Refresh"_s, u"Uncheck all"_s, u"Check all"_s}));
}

void TestPackagesPage::refreshDoesNothing()
{
    TestMachine machine;
    addPackages(machine, {u"Microsoft.Todos"_s});
    const PackagesPage driver(rowsOf({u"A"_s}));
    Menus menus({u"Refresh"_s});
    Q_EMIT driver.table(table)->customContextMenuRequested({});
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
    QCOMPARE(driver.status(), u"Packages installed: 1  |  uninstalled: 0  "_s);
}

KESTRUNE_WINDOW_SUITE(TestPackagesPage)
#include "tst_packagespage.moc"
