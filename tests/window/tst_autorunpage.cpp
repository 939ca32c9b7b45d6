// SPDX-License-Identifier: GPL-3.0-or-later
// The page of programs started at logon: its two views, and switching entries off and on.

#include "support/boxes.h"
#include "support/menus.h"
#include "support/packageplaces.h"
#include "support/suite.h"
#include "support/windowdriver.h"

#include <QApplication>
#include <QHeaderView>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString table = u"tblAutorun"_s;
const QString actionButton = u"btnAutorun"_s;
const QString viewButton = u"btnAutorunViewDisabled"_s;
const QString program = u"C:\\Program Files\\App\\app.exe"_s;
const QString command = u"\"C:\\Program Files\\App\\app.exe\" --quiet"_s;

const QStringList activeView{u"View programs disabled"_s, u"Disable checked programs"_s};
const QStringList disabledView{u"View auto started programs"_s, u"Enable checked programs"_s};

QStringList texts(const WindowDriver &driver)
{
    return {driver.button(viewButton)->text(), driver.button(actionButton)->text()};
}

/** Each row as name, command, and the tool tips of both. */
QList<QStringList> rows(const WindowDriver &driver)
{
    QList<QStringList> result;
    const QTableWidget *widget = driver.table(table);
    for (int row = 0; row < widget->rowCount(); ++row)
        result.append({widget->item(row, 0)->text(), widget->item(row, 1)->text(), widget->item(row, 0)->toolTip(),
                       widget->item(row, 1)->toolTip()});
    return result;
}

void open(const WindowDriver &driver)
{
    driver.window().showPage(3);
}

/** The window with the page open, which lists the programs there and then. */
class AutorunPage : public WindowDriver
{
public:
    AutorunPage() { open(*this); }
};

void keepOnlyChecked(const WindowDriver &driver, const QStringList &names)
{
    QTableWidget *widget = driver.table(table);
    for (int row = 0; row < widget->rowCount(); ++row)
        widget->item(row, 0)->setCheckState(names.contains(widget->item(row, 0)->text()) ? Qt::Checked : Qt::Unchecked);
}

} // namespace

class TestAutorunPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The active view
    void programsMenuListsTheMachinesAutoruns();
    void rowShowsNameAndCommand_data();
    void rowShowsNameAndCommand();
    void toolTipIsNoMarkup();
    void rowsStartCheckedAndCannotBeEdited();
    void rowsComeInTheOrderOfTheList();
    void statusCountsEntriesAndRecords();
    void listingIsDoneWhenTheCallReturns();
    void showingThePageListsAnew();
    void showingThePageWhileAJobRunsIsIgnored();

    // The view of what is switched off
    void secondViewHasItsTexts();
    void secondViewListsTheRecords_data();
    void secondViewListsTheRecords();
    void secondViewOfNothingIsEmpty();
    void secondClickGoesBackToTheActiveView();
    void anyOtherTextOfTheButtonMeansTheSecondView();
    void comingBackByTheMenuGivesTheActiveView();

    // Switching off
    void disableTakesEveryRowThatStaysChecked();
    void disableSwitchesATaskOffAndRecordsIt_data();
    void disableSwitchesATaskOffAndRecordsIt();
    void taskIsToldByItsNameInAnyCase();
    void disableWithNothingCheckedListsAnew();
    void disableOfAnEmptyTableListsAnew();
    void commandWithAnEqualsSignLosesItsTail();
    void commandThatBeginsWithAnEqualsSignIsRecordedByItsPath();
    void oddDataGoesAndComesBackAsFarAsItCan_data();
    void oddDataGoesAndComesBackAsFarAsItCan();
    void twoProgramsOfOneNameShareARecord();
    void textOfTheEndIsNotSeen();
    void disableWithoutRightsOffersThemAndListsAnew();
    void disableStartsNoTool();

    void nameWithASlashIsSwitchedOffAndOn_data();
    void nameWithASlashIsSwitchedOffAndOn();

    // Switching on
    void enableBringsTheCheckedRowsBack();
    void enableSwitchesATaskOn_data();
    void enableSwitchesATaskOn();
    void commandThatCannotComeBackIsDropped_data();
    void commandThatCannotComeBackIsDropped();
    void recordOfAShortenedCommandBringsTheShortOneBack();
    void damagedRecordIsDropped_data();
    void damagedRecordIsDropped();
    void recordOfAnotherPlaceStays_data();
    void recordOfAnotherPlaceStays();
    void anyOtherTextOfTheButtonEnables();

    // Context menu
    void checkAllAndUncheckAll();
    void refreshGoesBackToTheActiveView();
};

void TestAutorunPage::programsMenuListsTheMachinesAutoruns()
{
    TestMachine machine;
    machine.write(userRunKey, u"App"_s, command);
    machine.write(machineRunKey, u"SecurityHealth"_s, u"x.exe"_s);
    machine.write(machineRunKey, u"Tray"_s, u"tray.exe /x"_s);
    machine.write(terminalTaskKey, u"State"_s, 2);
    machine.write(autorunRecordsKey, u"Old"_s, u"old.exe=key\\Old"_s);
    const WindowDriver driver;
    Menus menus({u"Automatically started programs"_s});
    driver.click(u"btnMenuPackage"_s);
    QCOMPARE(driver.window().currentPage(), 3);
    QCOMPARE(rows(driver), (QList<QStringList>{
                               {u"App"_s, command, userRunKey + u"\\App"_s, command},
                               {u"Tray"_s, u"tray.exe /x"_s, machineRunKey + u"\\Tray"_s, u"tray.exe /x"_s},
                               {u"StartTerminalOnLoginTask"_s, terminalTaskKey, terminalTaskKey, terminalTaskKey},
                           }));
    QCOMPARE(driver.status(), u"Autorun: 3  |  disabled: 1  "_s);
    QCOMPARE(texts(driver), activeView);
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(driver.button(u"btnMenuPackage"_s)->font().weight(), QFont::Bold);
}

void TestAutorunPage::rowShowsNameAndCommand_data()
{
    addColumns<QString, QString, QString, QString>("name", "data", "shownName", "shownCommand");
    QTest::addColumn<QString>("path"); // after the key
    const auto row = [](const char *title, const QString &name, const QString &data, const QString &shownName,
                        const QString &shownCommand, const QString &path) {
        QTest::newRow(title) << name << data << shownName << shownCommand << path;
    };
    row("plain", u"My app"_s, u"a.exe /x"_s, u"My app"_s, u"a.exe /x"_s, u"My app"_s);
    row("equals sign", u"A"_s, u"a.exe --x=1 --y=2"_s, u"A"_s, u"a.exe --x"_s, u"A"_s);
    row("equals sign first", u"A"_s, u"=a.exe"_s, u"A"_s, userRunKey + u"\\A"_s, u"A"_s);
    row("empty", u"A"_s, QString(), u"A"_s, userRunKey + u"\\A"_s, u"A"_s);
    row("equals sign in the name", u"A=B"_s, u"a.exe"_s, u"A"_s, u"B"_s, u"A"_s);
    row("blanks", u" A "_s, u"  "_s, u" A "_s, u"  "_s, u" A "_s);
    row("32 kB", u"A"_s, QString(16000, u'x'), u"A"_s, QString(16000, u'x'), u"A"_s);
    row("other letters", u"服务"_s, u"C:\\服务.exe"_s, u"服务"_s, u"C:\\服务.exe"_s, u"服务"_s);
}

void TestAutorunPage::rowShowsNameAndCommand()
{
    QFETCH(const QString, name);
    QFETCH(const QString, data);
    QFETCH(const QString, shownName);
    QFETCH(const QString, shownCommand);
    QFETCH(const QString, path);
    TestMachine machine;
    machine.write(userRunKey, name, data);
    const AutorunPage driver;
    QCOMPARE(rows(driver), (QList<QStringList>{{shownName, shownCommand, userRunKey + u'\\' + path, shownCommand}}));
}

void TestAutorunPage::toolTipIsNoMarkup()
{
    const QString name = u"A<b>"_s;
    const QString text = command + u" <b>x</b> &lt;"_s;
    const auto tip = [](const QString &shown) { return u"<span>"_s + shown.toHtmlEscaped() + u"</span>"_s; };
    const QStringList row{name, text, tip(userRunKey + u'\\' + name), tip(text)};
    TestMachine machine;
    machine.addFile(program);
    machine.write(userRunKey, name, text);
    const AutorunPage driver;
    QCOMPARE(rows(driver), QList<QStringList>{row});
    driver.click(actionButton);
    QCOMPARE(machine.names(userRunKey), QStringList());
    driver.click(viewButton);
    QCOMPARE(rows(driver), QList<QStringList>{row});
    driver.click(actionButton);
    QCOMPARE(machine.read(userRunKey, name), QVariant(text));
}

void TestAutorunPage::rowsStartCheckedAndCannotBeEdited()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    machine.write(userRunKey, u"B"_s, u"b.exe"_s);
    machine.write(autorunRecordsKey, u"C"_s, u"c.exe=k\\C"_s);
    const AutorunPage driver;
    for (const int count : {2, 1}) {
        QCOMPARE(driver.table(table)->rowCount(), count);
        QCOMPARE(driver.checkedIn(table).size(), count);
        for (int column = 0; column < 2; ++column) {
            const QTableWidgetItem *item = driver.table(table)->item(0, column);
            QCOMPARE(item->flags(), QTableWidgetItem().flags() & ~Qt::ItemIsEditable);
            QCOMPARE(item->data(Qt::CheckStateRole).isValid(), column == 0);
        }
        if (count == 2) {
            WindowDriver::clickCheckBox(driver.table(table), driver.firstCell(table, u"A"_s));
            QCOMPARE(driver.checkedIn(table), QStringList{u"B"_s});
            driver.click(viewButton);
        }
    }
    QCOMPARE(driver.table(table)->rowHeight(0), driver.table(table)->verticalHeader()->defaultSectionSize());
}

void TestAutorunPage::rowsComeInTheOrderOfTheList()
{
    TestMachine machine;
    machine.write(machineRunKey32, u"A"_s, u"a.exe"_s);
    machine.write(machineRunKey, u"C"_s, u"c.exe"_s);
    machine.write(userRunKey, u"Z"_s, u"z.exe"_s);
    machine.write(userRunKey, u"B"_s, u"b.exe"_s);
    const AutorunPage driver;
    QCOMPARE(driver.column(table, 0), (QStringList{u"B"_s, u"Z"_s, u"C"_s, u"A"_s}));
    QVERIFY(!driver.table(table)->isSortingEnabled());
}

void TestAutorunPage::statusCountsEntriesAndRecords()
{
    TestMachine machine;
    const AutorunPage driver;
    QCOMPARE(driver.status(), u"Autorun: 0  |  disabled: 0  "_s);
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    for (const QString &name : {u"X"_s, u"Y"_s, QString()})
        machine.write(autorunRecordsKey, name, u"x=y"_s);
    open(driver);
    QCOMPARE(driver.status(), u"Autorun: 1  |  disabled: 2  "_s);
}

void TestAutorunPage::listingIsDoneWhenTheCallReturns()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    const WindowDriver driver;
    driver.worker().job = JobPackageGetList;
    QStringList lines;
    connect(&driver.worker(), &WorkThread::valueChanged, this, [&lines](const QString &line) { lines.append(line); });
    open(driver);
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
    QCOMPARE(driver.worker().job, int(JobPackageGetList));
    QCoreApplication::processEvents();
    QCOMPARE(lines, QStringList());
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
}

void TestAutorunPage::showingThePageListsAnew()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    const AutorunPage driver;
    machine.platform().openKey(userRunKey)->remove(u"A"_s);
    machine.write(userRunKey, u"B"_s, u"b.exe"_s);
    open(driver);
    QCOMPARE(driver.column(table, 0), QStringList{u"B"_s});
}

void TestAutorunPage::showingThePageWhileAJobRunsIsIgnored()
{
    TestMachine machine(TestMachine::Windows::Eleven, endlessPauses());
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    const WindowDriver driver;
    driver.worker().startJob(JobWinSxsSize);
    open(driver);
    QCOMPARE(driver.window().currentPage(), 0);
    QCOMPARE(driver.table(table)->rowCount(), 0);
    QVERIFY(driver.endJob());
}

void TestAutorunPage::secondViewHasItsTexts()
{
    const WindowOnPc driver;
    open(driver);
    QCOMPARE(texts(driver), activeView);
    driver.click(viewButton);
    QCOMPARE(texts(driver), disabledView);
}

void TestAutorunPage::secondViewListsTheRecords_data()
{
    addColumns<QString, QString, QString>("value", "shown", "path");
    const auto row = [](const char *title, const QString &value, const QString &shown, const QString &path) {
        QTest::newRow(title) << value << shown << path;
    };
    const QString path = userRunKey + u"\\A"_s;
    row("Run value", command + u'=' + path, command, path);
    row("task", terminalTaskKey + u'=', terminalTaskKey, terminalTaskKey);
    row("no equals sign", u"a.exe"_s, u"a.exe"_s, u"a.exe"_s);
    row("empty", QString(), QString(), QString());
    row("equals sign alone", u"="_s, QString(), QString());
    row("nothing before the equals sign", u"="_s + path, QString(), path);
    row("two equals signs", u"a.exe --x=1="_s + path, u"a.exe --x"_s, u"1"_s);
    row("two equals signs in a row", u"a.exe=="_s + path, u"a.exe"_s, u"a.exe"_s);
}

void TestAutorunPage::secondViewListsTheRecords()
{
    QFETCH(const QString, value);
    QFETCH(const QString, shown);
    QFETCH(const QString, path);
    TestMachine machine;
    machine.write(autorunRecordsKey, u"My app"_s, value);
    machine.write(autorunRecordsKey, QString(), u"unnamed"_s);
    const AutorunPage driver;
    driver.click(viewButton);
    QCOMPARE(rows(driver), (QList<QStringList>{{u"My app"_s, shown, path, shown}}));
    QCOMPARE(driver.checkedIn(table), QStringList{u"My app"_s});
    QCOMPARE(driver.status(), u"Auto started programs disabled: 1  "_s);
}

void TestAutorunPage::secondViewOfNothingIsEmpty()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    const AutorunPage driver;
    driver.click(viewButton);
    QCOMPARE(driver.table(table)->rowCount(), 0);
    QCOMPARE(driver.status(), u"Auto started programs disabled: 0  "_s);
}

void TestAutorunPage::secondClickGoesBackToTheActiveView()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    machine.write(autorunRecordsKey, u"B"_s, u"b.exe=k\\B"_s);
    const AutorunPage driver;
    driver.click(viewButton);
    QCOMPARE(driver.column(table, 0), QStringList{u"B"_s});
    driver.click(viewButton);
    QCOMPARE(texts(driver), activeView);
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
    QCOMPARE(driver.status(), u"Autorun: 1  |  disabled: 1  "_s);
}

void TestAutorunPage::anyOtherTextOfTheButtonMeansTheSecondView()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    const AutorunPage driver;
    driver.button(viewButton)->setText(u"neither"_s);
    driver.click(viewButton);
    QCOMPARE(texts(driver), activeView);
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
}

void TestAutorunPage::comingBackByTheMenuGivesTheActiveView()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    const AutorunPage driver;
    driver.click(viewButton);
    driver.window().showPage(0);
    open(driver);
    QCOMPARE(texts(driver), activeView);
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
}

void TestAutorunPage::disableTakesEveryRowThatStaysChecked()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe /x"_s);
    machine.write(machineRunKey, u"B"_s, command);
    machine.write(machineRunKey32, u"C"_s, u"c.exe"_s);
    const AutorunPage driver;
    WindowDriver::clickCheckBox(driver.table(table), driver.firstCell(table, u"A"_s));
    const Boxes noBox;
    driver.click(actionButton);
    QCOMPARE(machine.names(userRunKey), QStringList{u"A"_s});
    QCOMPARE(machine.names(machineRunKey) + machine.names(machineRunKey32), QStringList());
    QCOMPARE(machine.names(autorunRecordsKey), (QStringList{u"B"_s, u"C"_s}));
    QCOMPARE(machine.read(autorunRecordsKey, u"B"_s), QVariant(command + u'=' + machineRunKey + u"\\B"_s));
    QCOMPARE(machine.read(autorunRecordsKey, u"C"_s), QVariant(u"c.exe="_s + machineRunKey32 + u"\\C"_s));
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
    QCOMPARE(driver.status(), u"Autorun: 1  |  disabled: 2  "_s);
}

void TestAutorunPage::disableSwitchesATaskOffAndRecordsIt_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("Terminal") << terminalTaskKey;
    QTest::newRow("Xbox") << xboxTaskKey;
}

void TestAutorunPage::disableSwitchesATaskOffAndRecordsIt()
{
    QFETCH(const QString, key);
    TestMachine machine;
    machine.write(key, u"State"_s, 2);
    const AutorunPage driver;
    driver.click(actionButton);
    QCOMPARE(machine.read(key, u"State"_s), QVariant(1));
    const QString name = key.section(u'\\', -1);
    QCOMPARE(machine.names(autorunRecordsKey), QStringList{name});
    QCOMPARE(machine.read(autorunRecordsKey, name), QVariant(key + u'='));
    QCOMPARE(driver.table(table)->rowCount(), 0);
    QCOMPARE(driver.status(), u"Autorun: 0  |  disabled: 1  "_s);
}

void TestAutorunPage::taskIsToldByItsNameInAnyCase()
{
    TestMachine machine;
    machine.write(userRunKey, u"my xbox.app.tasks.fulltrustcomponent"_s, u"a.exe"_s);
    const AutorunPage driver;
    driver.click(actionButton);
    // Taken for a task, whose key is made of the value's path; the value stays.
    QCOMPARE(machine.names(userRunKey), QStringList{u"my xbox.app.tasks.fulltrustcomponent"_s});
    QCOMPARE(machine.read(userRunKey + u"\\my xbox.app.tasks.fulltrustcomponent"_s, u"State"_s), QVariant(1));
    QCOMPARE(machine.names(autorunRecordsKey), QStringList{u"my xbox.app.tasks.fulltrustcomponent"_s});
}

void TestAutorunPage::disableWithNothingCheckedListsAnew()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    const AutorunPage driver;
    keepOnlyChecked(driver, {});
    machine.write(userRunKey, u"B"_s, u"b.exe"_s);
    driver.click(actionButton);
    QCOMPARE(driver.column(table, 0), (QStringList{u"A"_s, u"B"_s}));
    QCOMPARE(driver.checkedIn(table), (QStringList{u"A"_s, u"B"_s}));
    QCOMPARE(machine.names(autorunRecordsKey), QStringList());
}

void TestAutorunPage::disableOfAnEmptyTableListsAnew()
{
    TestMachine machine;
    const AutorunPage driver;
    machine.write(userRunKey, u"B"_s, u"b.exe"_s);
    driver.click(actionButton);
    QCOMPARE(driver.column(table, 0), QStringList{u"B"_s});
    QCOMPARE(machine.names(userRunKey), QStringList{u"B"_s});
}

void TestAutorunPage::commandWithAnEqualsSignLosesItsTail()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"\"C:\\Program Files\\App\\app.exe\" --mode=quiet"_s);
    const AutorunPage driver;
    driver.click(actionButton);
    QCOMPARE(machine.read(autorunRecordsKey, u"A"_s),
             QVariant(u"\"C:\\Program Files\\App\\app.exe\" --mode="_s + userRunKey + u"\\A"_s));
}

void TestAutorunPage::commandThatBeginsWithAnEqualsSignIsRecordedByItsPath()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"=a.exe"_s);
    const AutorunPage driver;
    driver.click(actionButton);
    const QString path = userRunKey + u"\\A"_s;
    QCOMPARE(machine.names(userRunKey), QStringList());
    QCOMPARE(machine.read(autorunRecordsKey, u"A"_s), QVariant(path + u'=' + path));
}

void TestAutorunPage::oddDataGoesAndComesBackAsFarAsItCan_data()
{
    addColumns<RegistryType, QString>("type", "data");
    QTest::addColumn<QString>("record"); // what stands there before the path
    QTest::addColumn<bool>("comesBack");
    const QString path = userRunKey + u"\\A"_s;
    const QString variable = command + u" %TEMP%"_s;
    const QString variablePath = u"\"%ProgramFiles%\\App\\app.exe\""_s;
    const QString longest = command + QString(16000, u'x');
    QTest::newRow("expandable text") << RegistryType::ExpandString << variable << variable << true;
    QTest::newRow("expandable path") << RegistryType::ExpandString << variablePath << variablePath << false;
    QTest::newRow("empty") << RegistryType::String << QString() << path << false;
    QTest::newRow("equals sign first") << RegistryType::String << u"=a.exe"_s << path << false;
    QTest::newRow("32 kB") << RegistryType::String << longest << longest << true;
}

void TestAutorunPage::oddDataGoesAndComesBackAsFarAsItCan()
{
    QFETCH(const RegistryType, type);
    QFETCH(const QString, data);
    QFETCH(const QString, record);
    QFETCH(const bool, comesBack);
    TestMachine machine;
    machine.addFile(program);
    RegistryStore &registry = machine.machine().registry();
    const RegistryStore::KeyId key = *registry.make(userRunKey);
    registry.setValue(key, {u"A"_s, type, registryText(data)});
    const AutorunPage driver;
    driver.click(actionButton);
    QCOMPARE(machine.names(userRunKey), QStringList());
    QCOMPARE(machine.read(autorunRecordsKey, u"A"_s), QVariant(record + u'=' + userRunKey + u"\\A"_s));

    driver.click(viewButton);
    driver.click(actionButton);
    QCOMPARE(machine.names(autorunRecordsKey), QStringList());
    const auto value = registry.value(key, u"A"_s);
    QCOMPARE(value.has_value(), comesBack);
    // What was to be expanded comes back as plain text.
    if (comesBack)
        QCOMPARE(*value, (RegistryValue{u"A"_s, RegistryType::String, registryText(data)}));
}

void TestAutorunPage::twoProgramsOfOneNameShareARecord()
{
    TestMachine machine;
    machine.write(userRunKey, u"App"_s, u"first.exe"_s);
    machine.write(machineRunKey, u"App"_s, u"second.exe"_s);
    const AutorunPage driver;
    driver.click(actionButton);
    QCOMPARE(machine.names(autorunRecordsKey), QStringList{u"App"_s});
    QCOMPARE(machine.read(autorunRecordsKey, u"App"_s), QVariant(u"second.exe="_s + machineRunKey + u"\\App"_s));
    QCOMPARE(driver.status(), u"Autorun: 0  |  disabled: 1  "_s);
}

void TestAutorunPage::textOfTheEndIsNotSeen()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    const AutorunPage driver;
    driver.click(actionButton);
    QCOMPARE(driver.status(), u"Autorun: 0  |  disabled: 1  "_s);
    // Where the page can't be shown, it stays up.
    machine.write(userRunKey, u"B"_s, u"b.exe"_s);
    open(driver);
    driver.worker().analyzeRunning = 1;
    driver.click(actionButton);
    QCOMPARE(driver.status(), u"Configure auto started programs done!  "_s);
    keepOnlyChecked(driver, {});
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"before"_s);
    driver.click(actionButton);
    QCOMPARE(driver.status(), u"before"_s); // nothing was handled
    driver.worker().analyzeRunning = 0;
}

void TestAutorunPage::nameWithASlashIsSwitchedOffAndOn_data()
{
    addColumns<QString, QString, QString>("exact", "shown", "path");
    QTest::newRow("slash") << u"ATI/AMD Tray"_s << u"AMD Tray"_s << u"ATI\\AMD Tray"_s;
    QTest::newRow("a slash alone") << u"/"_s << QString() << u"\\"_s;
    QTest::newRow("backslash") << u"a\\b"_s << u"a/b"_s << u"a/b"_s;
    QTest::newRow("a backslash alone") << u"\\"_s << u"/"_s << u"/"_s;
    QTest::newRow("a task's name") << u"x/StartTerminalOnLoginTask"_s << u"StartTerminalOnLoginTask"_s
                                   << u"x\\StartTerminalOnLoginTask"_s;
}

void TestAutorunPage::nameWithASlashIsSwitchedOffAndOn()
{
    QFETCH(const QString, exact);
    QFETCH(const QString, shown);
    QFETCH(const QString, path);
    TestMachine machine;
    machine.addFile(program);
    machine.write(userRunKey, u"Other"_s, u"other.exe"_s);
    RegistryStore &registry = machine.machine().registry();
    const auto key = registry.make(userRunKey).value();
    registry.setValue(key, {exact, RegistryType::String, registryText(command)});
    const QList<RegistryValue> before = registry.values(key);
    const AutorunPage driver;
    const QStringList row{shown, command, userRunKey + u'\\' + path, command};
    QVERIFY(rows(driver).contains(row));
    keepOnlyChecked(driver, {shown});
    driver.click(actionButton);
    QCOMPARE(machine.names(userRunKey), QStringList(u"Other"_s));
    QCOMPARE(registry.subkeys(key), QStringList());
    QVERIFY(registry.value(autorunRecordsKey, exact));
    driver.click(viewButton);
    QCOMPARE(rows(driver), QList<QStringList>{row});
    driver.click(actionButton);
    QCOMPARE(registry.values(key), before);
    QVERIFY(!registry.value(autorunRecordsKey, exact));
}

void TestAutorunPage::disableWithoutRightsOffersThemAndListsAnew()
{
    TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    const AutorunPage driver;
    machine.write(userRunKey, u"B"_s, u"b.exe"_s);
    Boxes boxes({QMessageBox::No});
    driver.click(actionButton);
    QCOMPARE(boxes.shown().at(0).text, u"You must launch this app with Admin rights!"_s);
    QCOMPARE(machine.names(userRunKey), (QStringList{u"A"_s, u"B"_s}));
    QCOMPARE(machine.names(autorunRecordsKey), QStringList());
    QCOMPARE(driver.column(table, 0), (QStringList{u"A"_s, u"B"_s}));

    // Also with nothing to do: the rights are asked for first.
    keepOnlyChecked(driver, {});
    boxes.answer(QMessageBox::No);
    driver.click(actionButton);
    QCOMPARE(boxes.shown().size(), 2);
}

void TestAutorunPage::disableStartsNoTool()
{
    TestMachine machine;
    machine.machine().setProcesses({u"StartTerminalOnLoginTask.exe"_s, u"A.exe"_s});
    machine.write(userRunKey, u"A"_s, u"A.exe"_s);
    machine.write(terminalTaskKey, u"State"_s, 2);
    const AutorunPage driver;
    driver.click(actionButton);
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
    QCOMPARE(machine.machine().processes().size(), 2);
}

void TestAutorunPage::enableBringsTheCheckedRowsBack()
{
    TestMachine machine;
    machine.addFile(program);
    for (const QString &key : {userRunKey, machineRunKey, machineRunKey32})
        machine.write(autorunRecordsKey, u"App "_s + key.at(5) + QString::number(key.size()),
                      command + u'=' + key + u"\\App "_s + key.at(5) + QString::number(key.size()));
    const QStringList names = machine.names(autorunRecordsKey);
    QCOMPARE(names.size(), 3);
    const AutorunPage driver;
    driver.click(viewButton);
    keepOnlyChecked(driver, {names.at(0), names.at(1)});
    driver.click(actionButton);
    QCOMPARE(machine.names(autorunRecordsKey), QStringList{names.at(2)});
    QCOMPARE(texts(driver), activeView);
    QStringList back = driver.column(table, 0);
    back.sort();
    QCOMPARE(back, (QStringList{names.at(0), names.at(1)}));
    QCOMPARE(driver.column(table, 1), (QStringList{command, command}));
    QCOMPARE(driver.status(), u"Autorun: 2  |  disabled: 1  "_s);
}

void TestAutorunPage::enableSwitchesATaskOn_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("Terminal") << terminalTaskKey;
    QTest::newRow("Xbox") << xboxTaskKey;
}

void TestAutorunPage::enableSwitchesATaskOn()
{
    QFETCH(const QString, key);
    TestMachine machine;
    machine.write(key, u"State"_s, 2);
    const AutorunPage driver;
    driver.click(actionButton);
    driver.click(viewButton);
    driver.click(actionButton);
    QCOMPARE(machine.read(key, u"State"_s), QVariant(2));
    QCOMPARE(machine.names(autorunRecordsKey), QStringList());
    QCOMPARE(driver.column(table, 0), QStringList{key.section(u'\\', -1)});
    QCOMPARE(driver.status(), u"Autorun: 1  |  disabled: 0  "_s);
}

void TestAutorunPage::commandThatCannotComeBackIsDropped_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("no quotes") << program;
    QTest::newRow("program is gone") << u"\"C:\\gone.exe\" -x"_s;
    QTest::newRow("quotes after the program") << program + u" \"x\""_s;
    QTest::newRow("nothing in the quotes") << u"\"\" "_s + program;
    QTest::newRow("empty") << QString();
}

void TestAutorunPage::commandThatCannotComeBackIsDropped()
{
    QFETCH(const QString, text);
    TestMachine machine;
    machine.addFile(program);
    machine.write(autorunRecordsKey, u"A"_s, text + u'=' + userRunKey + u"\\A"_s);
    const AutorunPage driver;
    driver.click(viewButton);
    driver.click(actionButton);
    QCOMPARE(machine.names(userRunKey), QStringList());
    QCOMPARE(machine.names(autorunRecordsKey), QStringList());
    QCOMPARE(driver.status(), u"Autorun: 0  |  disabled: 0  "_s);
}

void TestAutorunPage::recordOfAShortenedCommandBringsTheShortOneBack()
{
    TestMachine machine;
    machine.addFile(program);
    machine.write(userRunKey, u"A"_s, command + u" --mode=quiet"_s);
    const AutorunPage driver;
    driver.click(actionButton);
    driver.click(viewButton);
    driver.click(actionButton);
    QCOMPARE(machine.read(userRunKey, u"A"_s), QVariant(command + u" --mode"_s));
    QCOMPARE(machine.names(autorunRecordsKey), QStringList());
}

void TestAutorunPage::damagedRecordIsDropped_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("empty") << QString();
    QTest::newRow("no equals sign") << u"a.exe"_s;
}

void TestAutorunPage::damagedRecordIsDropped()
{
    QFETCH(const QString, value);
    TestMachine machine;
    machine.addFile(program);
    machine.write(autorunRecordsKey, u"A"_s, value);
    const AutorunPage driver;
    driver.click(viewButton);
    driver.click(actionButton);
    QCOMPARE(machine.names(autorunRecordsKey), QStringList());
    QCOMPARE(driver.table(table)->rowCount(), 0);
    QCOMPARE(machine.names(userRunKey), QStringList());
}

void TestAutorunPage::recordOfAnotherPlaceStays_data()
{
    QTest::addColumn<QString>("value");
    QTest::newRow("equals signs alone") << u"=="_s;
    QTest::newRow("a path that is none") << command + u"=nowhere"_s;
    QTest::newRow("a key elsewhere") << command + u"=HKEY_LOCAL_MACHINE\\SOFTWARE\\Other\\A"_s;
    QTest::newRow("a task elsewhere") << u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Other="_s;
}

void TestAutorunPage::recordOfAnotherPlaceStays()
{
    QFETCH(const QString, value);
    TestMachine machine;
    machine.addFile(program);
    machine.write(autorunRecordsKey, u"A"_s, value);
    const AutorunPage driver;
    driver.click(viewButton);
    driver.click(actionButton);
    QCOMPARE(machine.read(autorunRecordsKey, u"A"_s), QVariant(value));
    QVERIFY(!machine.machine().registry().find(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Other"_s));
}

void TestAutorunPage::anyOtherTextOfTheButtonEnables()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    machine.write(autorunRecordsKey, u"A"_s, u"old="_s + userRunKey + u"\\A"_s);
    const AutorunPage driver;
    driver.button(actionButton)->setText(u"neither"_s);
    driver.click(actionButton);
    QCOMPARE(machine.names(userRunKey), QStringList{u"A"_s});
    QCOMPARE(machine.names(autorunRecordsKey), QStringList());
}

void TestAutorunPage::checkAllAndUncheckAll()
{
    TestMachine machine;
    for (const QString &name : {u"A"_s, u"B"_s, u"C"_s})
        machine.write(userRunKey, name, u"x.exe"_s);
    const AutorunPage driver;
    keepOnlyChecked(driver, {u"B"_s});
    Menus menus({u"Uncheck all"_s});
    Q_EMIT driver.table(table)->customContextMenuRequested({});
    QCOMPARE(driver.checkedIn(table), QStringList());
    menus.choose(u"Check all"_s);
    Q_EMIT driver.table(table)->customContextMenuRequested({});
    QCOMPARE(driver.checkedIn(table), (QStringList{u"A"_s, u"B"_s, u"C"_s}));
    QCOMPARE(menus.shown().at(0).actions, (QStringList{u"Refresh"_s, u"Uncheck all"_s, u"Check all"_s}));
}

void TestAutorunPage::refreshGoesBackToTheActiveView()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    const AutorunPage driver;
    driver.click(viewButton);
    Menus menus({u"Refresh"_s});
    Q_EMIT driver.table(table)->customContextMenuRequested({});
    QCOMPARE(texts(driver), activeView);
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
}

KESTRUNE_WINDOW_SUITE(TestAutorunPage)
#include "tst_autorunpage.moc"
