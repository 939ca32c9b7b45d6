// SPDX-License-Identifier: GPL-3.0-or-later
// The Tasks page: its list, and disabling, the assistant and restoring. schtasks is a real process on a machine of the
// test.

#include "support/boxes.h"
#include "support/menus.h"
#include "support/suite.h"
#include "support/taskexport.h"
#include "support/windowdriver.h"
#include "work/settings.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QTest>
#include <QTranslator>

using namespace Qt::StringLiterals;

namespace {

const QString recordsKey = settingsKey + u"\\Task"_s;
const QString table = u"tblTasks"_s;

TaskRow task(const QString &path, int disabled = 0)
{
    return {path, u"What "_s + path + u" is for"_s, path.section(u'\\', -1), {}, disabled};
}

QList<TaskRow> tasksOf(const QStringList &paths)
{
    QList<TaskRow> rows;
    for (const QString &path : paths)
        rows.append(task(path));
    return rows;
}

void send(const WindowDriver &driver, int job, const QString &line)
{
    driver.worker().job = job;
    driver.window().onWorkThreadValueChanged(line);
}

/** Fills the table with these rows, as the closing line of a listing does. */
void list(const WindowDriver &driver, const QList<TaskRow> &rows)
{
    driver.table(table)->setSortingEnabled(false);
    driver.table(table)->setRowCount(0);
    driver.worker().tasks = rows;
    send(driver, JobTaskMakeList, u"WorkThread::TaskMakeList"_s);
}

/** Shows the page without its listing, and fills it with these rows. */
void openWith(const WindowDriver &driver, const QList<TaskRow> &rows)
{
    driver.get<QTabWidget>(u"tabWidget"_s)->setCurrentIndex(2);
    list(driver, rows);
}

/** The window with the page open and these rows in it. */
class TasksPage : public WindowDriver
{
public:
    explicit TasksPage(const QList<TaskRow> &rows) { openWith(*this, rows); }
};

/** A machine whose schtasks lists these tasks and obeys. */
class TaskMachine : public TestMachine
{
public:
    explicit TaskMachine(const QList<ExportedTask> &tasks, MachineOptions options = {})
        : TestMachine(Windows::Eleven, std::move(options))
    {
        QDir().mkpath(platform().hostPath(u"C:\\Users\\Test\\AppData\\Local\\Temp"_s));
        machine().setFault(u"schtasks"_s, {.exitCode = 0});
        machine().setFault(u"schtasks /xml"_s, {.output = listOfDocuments(tasks)});
    }
};

/** What schtasks was asked to change. */
QStringList changes(const TestMachine &machine)
{
    QStringList runs;
    for (const LoggedCommand &command : machine.commands()) {
        if (command.program == "schtasks"_L1 && command.arguments.value(0) != "/xml"_L1)
            runs.append(command.arguments.join(u'|'));
    }
    return runs;
}

void check(const WindowDriver &driver, const QStringList &paths)
{
    for (const QString &path : paths)
        driver.firstCell(table, path)->setCheckState(Qt::Checked);
}

/** Says every text of the window's in another way. */
class OtherLanguage : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QByteArrayView(context) == "Kestrune" ? u"~"_s + QString::fromUtf8(source) : QString();
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class TestTasksPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Rows
    void enabledTasksAloneHaveRows();
    void emptyListGivesZeros();
    void rowShowsPathAndDescription();
    void toolTipHoldsPathAndDescription_data();
    void toolTipHoldsPathAndDescription();
    void toolTipIsNoMarkup();
    void assistantKnowsATaskBelowAFolderThatLooksLikeMarkup();
    void noCellCanBeEditedAndNoRowIsChecked();
    void rowsAreSortedByPathUpwards();
    void rowsStayWholeWithSortingOn_data();
    void rowsStayWholeWithSortingOn();
    void secondFillHasTheSameRows();
    void usersOwnSortOrderIsKept();
    void anyLineOfTheListingAddsItsRows();

    // Showing the page
    void menuButtonListsTheMachinesTasks();
    void showingThePageEmptiesItFirst();
    void failedListingLeavesThePageEmpty();
    void withoutRightsEveryShowingAsks();
    void withoutRightsNoListsWhatCanBeSeen();
    void withoutRightsYesStartsTheProgramAnew();
    void questionComesBeforeTheListing();
    void contextMenusRefreshListsAgain();

    // Lines
    void maximumLineSetsTheMaximumAndShowsTheBar();
    void valueLineChangesOnlyTheBar();
    void numberThatDoesNotParseSetsZero_data();
    void numberThatDoesNotParseSetsZero();
    void otherLineIsTheStatus();
    void unknownBarLineShowsTheBarAlone();
    void finishedTellsWhatWasDone_data();
    void finishedTellsWhatWasDone();
    void finishedListsThePageAgain();

    // Disabling
    void disableWithNothingCheckedIsSilent_data();
    void disableWithNothingCheckedIsSilent();
    void disableHandsOverTheCheckedRows();
    void disableRunsRecordsAndListsAgain();
    void disableThatFailsLooksAsOneThatWorked();

    // The assistant
    void assistantChecksTheKnownNames_data();
    void assistantChecksTheKnownNames();
    void assistantTakesTasksOfAFeatureGivenUp_data();
    void assistantTakesTasksOfAFeatureGivenUp();
    void assistantLeavesTheUsersChecks();
    void assistantWithNothingToDoSaysSo_data();
    void assistantWithNothingToDoSaysSo();
    void assistantReadsTheNameFromTheToolTip();
    void assistantAsks();
    void assistantsNoStaysInEveryLanguage();
    void assistantsNoKeepsTheChecks();
    void assistantsYesDisablesAllCheckedRows();

    // Restoring
    void restoreAsks();
    void restoresCancelChangesNothing_data();
    void restoresCancelChangesNothing();
    void restoreHandsOverTheRecords();
    void restoreEnablesAndKeepsTheRecords();
    void restoreOfNothingStillRuns();
};

void TestTasksPage::enabledTasksAloneHaveRows()
{
    const WindowOnPc driver;
    list(driver, {task(u"A"_s), task(u"B"_s, 1), task(u"Folder\\C"_s), task(u"D"_s, 1), task(u"E"_s, 1)});
    QCOMPARE(driver.column(table, 0), (QStringList{u"A"_s, u"Folder\\C"_s}));
    QCOMPARE(driver.status(), u"Tasks: 5  |  enabled: 2  |  disabled: 3  "_s);
}

void TestTasksPage::emptyListGivesZeros()
{
    const WindowOnPc driver;
    list(driver, {});
    QCOMPARE(driver.table(table)->rowCount(), 0);
    QCOMPARE(driver.status(), u"Tasks: 0  |  enabled: 0  |  disabled: 0  "_s);
}

void TestTasksPage::rowShowsPathAndDescription()
{
    const WindowOnPc driver;
    list(driver, {{u"Folder\\A"_s, u"Does it."_s, u"Name"_s, {}, 0}});
    QCOMPARE(driver.table(table)->item(0, 0)->text(), u"Folder\\A"_s);
    QCOMPARE(driver.table(table)->item(0, 1)->text(), u"Does it."_s);
    QVERIFY(driver.table(table)->item(0, 2) == nullptr);
    QCOMPARE(driver.table(table)->columnWidth(2), 0);
}

void TestTasksPage::toolTipHoldsPathAndDescription_data()
{
    QTest::addColumn<int>("length");
    for (const int length : {0, 1, 100, 101, 5000})
        QTest::addRow("%d", length) << length;
}

void TestTasksPage::toolTipHoldsPathAndDescription()
{
    QFETCH(const int, length);
    const WindowOnPc driver;
    const QString text(length, u'd');
    const QString shown = length > 100 ? u"<span>"_s + text + u"</span>"_s : text;
    list(driver, {{u"Folder\\A"_s, text, u"A"_s, {}, 0}});
    QCOMPARE(driver.table(table)->item(0, 0)->toolTip(), u"Folder\\A:<br><br>"_s + shown);
    QCOMPARE(driver.table(table)->item(0, 1)->toolTip(), shown);
}

void TestTasksPage::toolTipIsNoMarkup()
{
    const WindowOnPc driver;
    list(driver, {{u"<img src=x>\\A"_s, u"<img src=\"x\"> &lt;"_s, u"A"_s, {}, 0}});
    QCOMPARE(driver.table(table)->item(0, 0)->text(), u"<img src=x>\\A"_s);
    QCOMPARE(driver.table(table)->item(0, 0)->toolTip(),
             u"<span>&lt;img src=x&gt;\\A</span>:<br><br>&lt;img src=\"x\"> &lt;"_s);
    QCOMPARE(driver.table(table)->item(0, 1)->text(), u"<img src=\"x\"> &lt;"_s);
    QCOMPARE(driver.table(table)->item(0, 1)->toolTip(), u"&lt;img src=\"x\"> &lt;"_s);
}

void TestTasksPage::assistantKnowsATaskBelowAFolderThatLooksLikeMarkup()
{
    const WindowOnPc driver;
    list(driver, {{u"<b>\\EduPrintProv"_s, u"d"_s, u"EduPrintProv"_s, {}, 0}});
    driver.get<QTabWidget>(u"tabWidget"_s)->setCurrentIndex(2);
    driver.worker().keepPrinter = 0;
    Boxes boxes({QMessageBox::No});
    driver.click(u"btnTaskAssist"_s);
    QCOMPARE(driver.checkedIn(table), QStringList(u"<b>\\EduPrintProv"_s));
}

void TestTasksPage::noCellCanBeEditedAndNoRowIsChecked()
{
    const WindowOnPc driver;
    list(driver, {task(u"A"_s), task(u"B"_s)});
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column)
            QCOMPARE(driver.table(table)->item(row, column)->flags(), QTableWidgetItem().flags() & ~Qt::ItemIsEditable);
        QCOMPARE(driver.table(table)->item(row, 0)->data(Qt::CheckStateRole), QVariant(int(Qt::Unchecked)));
        QVERIFY(!driver.table(table)->item(row, 1)->data(Qt::CheckStateRole).isValid());
    }
    QTableWidget *rows = driver.table(table);
    driver.get<QTabWidget>(u"tabWidget"_s)->setCurrentIndex(2);
    WindowDriver::clickCheckBox(rows, rows->item(1, 0));
    QCOMPARE(driver.checkedIn(table), QStringList{u"B"_s});
}

void TestTasksPage::rowsAreSortedByPathUpwards()
{
    const WindowOnPc driver;
    list(driver, tasksOf({u"Beta"_s, u"Alpha\\Zeta"_s, u"Gamma"_s, u"Alpha\\Eta"_s}));
    QCOMPARE(driver.column(table, 0), (QStringList{u"Alpha\\Eta"_s, u"Alpha\\Zeta"_s, u"Beta"_s, u"Gamma"_s}));
    QVERIFY(driver.table(table)->isSortingEnabled());
    QCOMPARE(driver.table(table)->horizontalHeader()->sortIndicatorSection(), 0);
    QCOMPARE(driver.table(table)->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
}

void TestTasksPage::rowsStayWholeWithSortingOn_data()
{
    addColumns<int, int, Qt::SortOrder>("count", "sortedBy", "order");
    QTest::newRow("by path upwards") << 2000 << 0 << Qt::AscendingOrder;
    QTest::newRow("by path downwards") << 2000 << 0 << Qt::DescendingOrder;
    QTest::newRow("by description upwards") << 2000 << 1 << Qt::AscendingOrder;
    QTest::newRow("by description downwards") << 2000 << 1 << Qt::DescendingOrder;
    QTest::newRow("18,000 rows") << 18000 << 0 << Qt::AscendingOrder;
}

void TestTasksPage::rowsStayWholeWithSortingOn()
{
    QFETCH(const int, count);
    QFETCH(const int, sortedBy);
    QFETCH(const Qt::SortOrder, order);
    const WindowOnPc driver;
    QTableWidget *rows = driver.table(table);
    rows->horizontalHeader()->setSortIndicator(sortedBy, order);
    // Paths and descriptions in orders of their own.
    QList<TaskRow> tasks;
    for (int i = 0; i < count; ++i) {
        const int number = i * 7919 % count;
        tasks.append({u"Folder\\Task %1"_s.arg(number, 6, 10, QLatin1Char('0')),
                      u"%1 is for task %2"_s.arg(number * 17 % count, 6, 10, QLatin1Char('0'))
                          .arg(number, 6, 10, QLatin1Char('0')),
                      {},
                      {},
                      0});
    }
    list(driver, tasks);

    QCOMPARE(rows->rowCount(), count);
    for (int row = 0; row < count; ++row) {
        const QString path = rows->item(row, 0)->text();
        const QString description = rows->item(row, 1)->text();
        QCOMPARE(description.right(6), path.right(6));
        QCOMPARE(rows->item(row, 0)->toolTip(), path + u":<br><br>"_s + description);
        QCOMPARE(rows->item(row, 1)->toolTip(), description);
    }
    QStringList sorted = driver.column(table, sortedBy);
    std::sort(sorted.begin(), sorted.end());
    if (order == Qt::DescendingOrder)
        std::reverse(sorted.begin(), sorted.end());
    QCOMPARE(driver.column(table, sortedBy), sorted);
    QCOMPARE(rows->horizontalHeader()->sortIndicatorSection(), sortedBy);
    QCOMPARE(rows->horizontalHeader()->sortIndicatorOrder(), order);
}

void TestTasksPage::secondFillHasTheSameRows()
{
    const TaskMachine machine(
        {{u"\\B"_s, u"b"_s}, {u"\\A"_s, u"a"_s}, {u"\\C"_s, u"c"_s, u"<Enabled>false</Enabled>"_s}});
    const WindowDriver driver;
    for (int showing = 0; showing < 3; ++showing) {
        QVERIFY(driver.openTasks());
        QCOMPARE(driver.column(table, 0), (QStringList{u"A"_s, u"B"_s}));
        QCOMPARE(driver.column(table, 1), (QStringList{u"a"_s, u"b"_s}));
        QCOMPARE(driver.status(), u"Tasks: 3  |  enabled: 2  |  disabled: 1  "_s);
    }
}

void TestTasksPage::usersOwnSortOrderIsKept()
{
    const TaskMachine machine({{u"\\A"_s, u"2"_s}, {u"\\B"_s, u"1"_s}, {u"\\C"_s, u"3"_s}});
    const WindowDriver driver;
    QVERIFY(driver.openTasks());
    QHeaderView *header = driver.table(table)->horizontalHeader();
    const auto clickOnHeader = [&](int section) {
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(section) + 20, header->height() / 2));
    };
    clickOnHeader(1);
    QCOMPARE(driver.column(table, 0), (QStringList{u"B"_s, u"A"_s, u"C"_s}));
    QVERIFY(driver.openTasks());
    QCOMPARE(driver.column(table, 0), (QStringList{u"B"_s, u"A"_s, u"C"_s}));
    clickOnHeader(1);
    QCOMPARE(driver.column(table, 0), (QStringList{u"C"_s, u"A"_s, u"B"_s}));
    QVERIFY(driver.openTasks());
    QCOMPARE(driver.column(table, 0), (QStringList{u"C"_s, u"A"_s, u"B"_s}));
    QCOMPARE(header->sortIndicatorSection(), 1);
    QCOMPARE(header->sortIndicatorOrder(), Qt::DescendingOrder);
}

void TestTasksPage::anyLineOfTheListingAddsItsRows()
{
    const WindowOnPc driver;
    list(driver, tasksOf({u"A"_s}));
    send(driver, JobTaskMakeList, u"no matter what"_s);
    QCOMPARE(driver.column(table, 0), (QStringList{u"A"_s, u"A"_s}));
    QCOMPARE(driver.status(), u"Tasks: 1  |  enabled: 2  |  disabled: 0  "_s);
}

void TestTasksPage::menuButtonListsTheMachinesTasks()
{
    const TaskMachine machine({{u"\\B\\One"_s, u"b"_s}, {u"\\A"_s}, {u"\\C"_s, {}, u"<Enabled>true</Enabled>"_s}});
    const WindowDriver driver;
    const Boxes noBox;
    QVERIFY(driver.openTasks());
    QCOMPARE(driver.window().currentPage(), 2);
    QCOMPARE(driver.column(table, 0), (QStringList{u"A"_s, u"B\\One"_s}));
    QCOMPARE(driver.column(table, 1), (QStringList{u"no description"_s, u"b"_s}));
    QCOMPARE(driver.status(), u"Tasks: 3  |  enabled: 2  |  disabled: 1  "_s);
    QVERIFY(driver.bar()->isHidden());
    QCOMPARE(machine.commands(), (QList<LoggedCommand>{{u"schtasks"_s, {u"/xml"_s}, 0}}));
}

void TestTasksPage::showingThePageEmptiesItFirst()
{
    const TaskMachine machine({{u"\\A"_s}});
    const TasksPage driver(tasksOf({u"Old"_s, u"Older"_s}) + QList<TaskRow>{task(u"Oldest"_s, 1)});
    QVERIFY(driver.table(table)->isSortingEnabled());
    machine.machine().setFault(u"schtasks /xml"_s, {.hang = true});
    driver.click(u"btnMenuTask"_s);
    QCOMPARE(driver.worker().job, int(JobTaskMakeList));
    QVERIFY(driver.worker().isRunning());
    QCOMPARE(driver.table(table)->rowCount(), 0);
    QVERIFY(!driver.table(table)->isSortingEnabled());
    QCOMPARE(driver.status(), QString());
    QVERIFY(driver.endJob());
}

void TestTasksPage::failedListingLeavesThePageEmpty()
{
    const TaskMachine machine({{u"\\A"_s}});
    const WindowDriver driver;
    QVERIFY(driver.openTasks());
    machine.machine().setFault(u"schtasks /xml"_s, {.exitCode = 1});
    driver.click(u"btnMenuTask"_s);
    QTRY_VERIFY_WITH_TIMEOUT(!driver.worker().isRunning(), patience);
    QCoreApplication::processEvents();
    QCOMPARE(driver.table(table)->rowCount(), 0);
    QCOMPARE(driver.status(), QString());
}

void TestTasksPage::withoutRightsEveryShowingAsks()
{
    const TaskMachine machine({{u"\\A"_s}}, notElevated());
    const WindowDriver driver;
    Boxes boxes;
    for (int showing = 1; showing <= 3; ++showing) {
        boxes.answer(showing == 2 ? QMessageBox::NoButton : QMessageBox::No);
        QVERIFY(driver.openTasks());
        QCOMPARE(boxes.shown().size(), showing);
    }
    const ShownBox &box = boxes.shown().at(0);
    QCOMPARE(box.text, u"You should launch this app with Admin rights!\r\n"
                       "Otherwise some scheduled tasks will not be detected!"_s);
    QCOMPARE(box.informativeText, u"Do you want to start this app with Admin rights?"_s);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.buttonTexts, (QStringList{u"Yes"_s, u"No"_s}));
    QCOMPARE(box.icon, QMessageBox::Information);
    QVERIFY(box.modal);
    QVERIFY(!box.hasParent);
}

void TestTasksPage::withoutRightsNoListsWhatCanBeSeen()
{
    TaskMachine machine({{u"\\A"_s}}, notElevated());
    const WindowDriver driver;
    Boxes boxes({QMessageBox::No});
    QVERIFY(driver.openTasks());
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
    QVERIFY(machine.shellStarts().isEmpty());
    QVERIFY(!machine.read(settingsKey, u"lastPage"_s).isValid());
    QVERIFY(driver.window().isVisible());
    QVERIFY(!QFileInfo::exists(machine.platform().programFolder() + u"/backup_tasks"_s));
}

void TestTasksPage::withoutRightsYesStartsTheProgramAnew()
{
    TaskMachine machine({{u"\\A"_s}}, notElevated());
    const WindowDriver driver;
    Boxes boxes({QMessageBox::Yes});
    // What was asked for goes on.
    QVERIFY(driver.openTasks());
    QCOMPARE(machine.read(settingsKey, u"lastPage"_s), QVariant(2));
    QCOMPARE(machine.shellStarts().size(), 1);
    QCOMPARE(machine.shellStarts().at(0).verb, u"runas"_s);
    QCOMPARE(machine.shellStarts().at(0).file, QCoreApplication::applicationFilePath());
    QCOMPARE(machine.shellStarts().at(0).parameters, QString());
    QVERIFY(!driver.window().isVisible());
    QVERIFY(driver.window().hasLeft());
}

void TestTasksPage::questionComesBeforeTheListing()
{
    TaskMachine machine({{u"\\A"_s}}, notElevated());
    const WindowDriver driver;
    driver.worker().tasks = tasksOf({u"Old"_s});
    driver.table(table)->setRowCount(3);
    QPushButton *menuButton = driver.button(u"btnMenuTask"_s);
    const QString idleStyle = menuButton->styleSheet();

    bool asked = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box == nullptr)
            return;
        asked = true;
        QCOMPARE(driver.window().currentPage(), 2);
        QCOMPARE(menuButton->font().weight(), QFont::Bold);
        QCOMPARE(menuButton->styleSheet(), idleStyle);
        QVERIFY(!driver.table(table)->isSortingEnabled());
        QCOMPARE(driver.table(table)->rowCount(), 3);
        QCOMPARE(driver.worker().tasks.size(), 1);
        QVERIFY(!driver.worker().isRunning());
        QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
    });
    timer.start(5);
    driver.click(u"btnMenuTask"_s);
    QVERIFY(asked);
    QVERIFY(menuButton->styleSheet() != idleStyle);
    QVERIFY(driver.waitForList(u"Tasks:"_s));
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
}

void TestTasksPage::contextMenusRefreshListsAgain()
{
    const TaskMachine machine({{u"\\A"_s}});
    const WindowDriver driver;
    QVERIFY(driver.openTasks());
    machine.machine().setFault(u"schtasks /xml"_s, {.output = listOfDocuments({{u"\\B"_s}})});
    Menus menus({u"Refresh"_s});
    Q_EMIT driver.table(table)->customContextMenuRequested({});
    QVERIFY(driver.waitForList(u"Tasks:"_s));
    QCOMPARE(driver.column(table, 0), QStringList{u"B"_s});
}

void TestTasksPage::maximumLineSetsTheMaximumAndShowsTheBar()
{
    const WindowOnPc driver;
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"before"_s);
    send(driver, JobTaskStopOrStart, u"pgr:max:12"_s);
    QCOMPARE(driver.bar()->maximum(), 12);
    QVERIFY(!driver.bar()->isHidden());
    QCOMPARE(driver.status(), u"before"_s);
}

void TestTasksPage::valueLineChangesOnlyTheBar()
{
    const WindowOnPc driver;
    openWith(driver, tasksOf({u"A"_s}));
    const QString status = driver.status();
    send(driver, JobTaskStopOrStart, u"pgr:max:12"_s);
    send(driver, JobTaskStopOrStart, u"pgr:value:3"_s);
    QCOMPARE(driver.bar()->value(), 3);
    QCOMPARE(driver.bar()->maximum(), 12);
    QVERIFY(!driver.bar()->isHidden());
    QCOMPARE(driver.status(), status);
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
}

void TestTasksPage::numberThatDoesNotParseSetsZero_data()
{
    QTest::addColumn<QString>("number");
    QTest::newRow("a word") << u"many"_s;
    QTest::newRow("nothing") << QString();
    QTest::newRow("too big") << u"99999999999999999999"_s;
}

void TestTasksPage::numberThatDoesNotParseSetsZero()
{
    QFETCH(const QString, number);
    const WindowOnPc driver;
    send(driver, JobTaskStopOrStart, u"pgr:max:12"_s);
    send(driver, JobTaskStopOrStart, u"pgr:value:3"_s);
    send(driver, JobTaskStopOrStart, u"pgr:value:"_s + number);
    QCOMPARE(driver.bar()->value(), 0);
    send(driver, JobTaskStopOrStart, u"pgr:max:"_s + number);
    QCOMPARE(driver.bar()->maximum(), 0);
}

void TestTasksPage::otherLineIsTheStatus()
{
    const WindowOnPc driver;
    for (const QString &line : {u"Task: A"_s, u"finished"_s, u" pgr:max:9"_s, QString()}) {
        send(driver, JobTaskStopOrStart, line);
        QCOMPARE(driver.status(), line);
        QVERIFY(driver.bar()->isHidden());
    }
}

void TestTasksPage::unknownBarLineShowsTheBarAlone()
{
    const WindowOnPc driver;
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"before"_s);
    driver.worker().taskRestoreMode = true;
    send(driver, JobTaskStopOrStart, u"pgr:other"_s);
    QVERIFY(!driver.bar()->isHidden());
    QCOMPARE(driver.status(), u"before"_s);
    QVERIFY(driver.worker().taskRestoreMode);
}

void TestTasksPage::finishedTellsWhatWasDone_data()
{
    addColumns<bool, QString>("restore", "text");
    QTest::newRow("disable") << false << u"Disable scheduled tasks completed successfully  "_s;
    QTest::newRow("restore") << true << u"Restore scheduled tasks completed successfully  "_s;
}

void TestTasksPage::finishedTellsWhatWasDone()
{
    QFETCH(const bool, restore);
    QFETCH(const QString, text);
    const WindowOnPc driver;
    openWith(driver, tasksOf({u"A"_s}));
    driver.worker().taskRestoreMode = restore;
    driver.worker().analyzeRunning = 1; // nothing can be refreshed now
    send(driver, JobTaskStopOrStart, u"pgr:TaskSetState=finished"_s);
    QCOMPARE(driver.status(), text);
    QVERIFY(!driver.worker().taskRestoreMode);
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
    driver.worker().analyzeRunning = 0;
}

void TestTasksPage::finishedListsThePageAgain()
{
    const TaskMachine machine({{u"\\B"_s}});
    const TasksPage driver(tasksOf({u"A"_s}));
    driver.worker().taskRestoreMode = true;
    send(driver, JobTaskStopOrStart, u"pgr:TaskSetState=finished"_s);
    QVERIFY(!driver.worker().taskRestoreMode);
    QVERIFY(driver.waitForList(u"Tasks:"_s));
    QCOMPARE(driver.column(table, 0), QStringList{u"B"_s});
    QVERIFY(driver.bar()->isHidden());
}

void TestTasksPage::disableWithNothingCheckedIsSilent_data()
{
    QTest::addColumn<bool>("elevated");
    QTest::newRow("with rights") << true;
    QTest::newRow("without rights") << false;
}

void TestTasksPage::disableWithNothingCheckedIsSilent()
{
    QFETCH(const bool, elevated);
    const TaskMachine machine({}, elevated ? MachineOptions() : notElevated());
    const TasksPage driver(tasksOf({u"A"_s}));
    driver.worker().tasksToChange = tasksOf({u"before"_s});
    driver.worker().taskRestoreMode = true;
    const QString status = driver.status();
    const Boxes noBox;
    driver.click(u"btnTaskDisable"_s);
    QVERIFY(!driver.worker().isRunning());
    QVERIFY(!driver.worker().taskRestoreMode);
    QCOMPARE(driver.status(), status);
    QCOMPARE(driver.worker().tasksToChange.size(), 1);
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
}

void TestTasksPage::disableHandsOverTheCheckedRows()
{
    const TaskMachine machine({});
    const TasksPage driver(tasksOf({u"Folder\\Sub\\C"_s, u"B"_s, u"A: x"_s, u"D"_s}));
    check(driver, {u"Folder\\Sub\\C"_s, u"B"_s, u"A: x"_s});
    driver.worker().tasksToChange = tasksOf({u"before"_s});
    driver.click(u"btnTaskDisable"_s);
    QCOMPARE(driver.worker().job, int(JobTaskStopOrStart));
    const QList<TaskRow> rows = driver.worker().tasksToChange;
    QCOMPARE(rows.size(), 3);
    const QStringList paths{u"A: x"_s, u"B"_s, u"Folder\\Sub\\C"_s};
    const QStringList names{u"A: x"_s, u"B"_s, u"C"_s};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(rows.at(i).path, paths.at(i));
        QCOMPARE(rows.at(i).name, names.at(i));
        QCOMPARE(rows.at(i).description, QString());
        QCOMPARE(rows.at(i).extra, QString());
        QCOMPARE(rows.at(i).disabled, 1);
    }
    QVERIFY(driver.waitForList(u"Tasks:"_s));
}

void TestTasksPage::disableRunsRecordsAndListsAgain()
{
    TaskMachine machine({{u"\\Folder\\A b"_s}, {u"\\B"_s}, {u"\\C"_s}});
    const WindowDriver driver;
    QVERIFY(driver.openTasks());
    WindowDriver::clickCheckBox(driver.table(table), driver.firstCell(table, u"Folder\\A b"_s));
    WindowDriver::clickCheckBox(driver.table(table), driver.firstCell(table, u"B"_s));
    machine.machine().setFault(u"schtasks /xml"_s, {.output = listOfDocuments({{u"\\C"_s}})});
    const Boxes noBox;
    driver.click(u"btnTaskDisable"_s);
    QVERIFY(driver.waitForList(u"Tasks:"_s));
    QCOMPARE(changes(machine), (QStringList{u"/CHANGE|/TN|B|/DISABLE"_s, u"/CHANGE|/TN|Folder\\A b|/DISABLE"_s}));
    QCOMPARE(recordedNames(u"Task"_s), (QStringList{u"B"_s, u"Folder\\A b"_s}));
    QCOMPARE(machine.read(recordsKey, u"Folder\\A b"_s), QVariant(1));
    QCOMPARE(driver.column(table, 0), QStringList{u"C"_s});
    QCOMPARE(driver.status(), u"Tasks: 1  |  enabled: 1  |  disabled: 0  "_s);
}

void TestTasksPage::disableThatFailsLooksAsOneThatWorked()
{
    const TaskMachine machine({{u"\\A"_s}});
    machine.machine().setFault(u"schtasks /CHANGE"_s, {.exitCode = 1});
    const WindowDriver driver;
    QVERIFY(driver.openTasks());
    check(driver, {u"A"_s});
    QStringList statuses;
    connect(&driver.worker(), &WorkThread::valueChanged, this, [&](const QString &line) {
        // After the window, whose text of the end is gone again with the refresh.
        if (line.startsWith("Task:"_L1))
            statuses.append(driver.status());
    });
    const Boxes noBox;
    driver.click(u"btnTaskDisable"_s);
    QVERIFY(driver.waitForList(u"Tasks:"_s));
    QCOMPARE(statuses, QStringList{u"Task: A"_s});
    QCOMPARE(recordedNames(u"Task"_s), QStringList());
    QCOMPARE(driver.column(table, 0), QStringList{u"A"_s});
    QCOMPARE(driver.checkedIn(table), QStringList());
}

void TestTasksPage::assistantChecksTheKnownNames_data()
{
    addColumns<QString, bool>("path", "checked");
    const auto row = [](const QString &path, bool checked) {
        QTest::addRow("%s", qPrintable(path)) << path << checked;
    };
    row(u"Microsoft\\Windows\\Maintenance\\WinSAT"_s, true);
    row(u"WinSAT"_s, true);
    row(u"winsat"_s, true);
    row(u"Folder\\WINSAT"_s, true);
    row(u"WinSAT\\Other"_s, false);
    row(u"WinSAT2"_s, false);
    row(u"My WinSAT"_s, false);
    row(u"Microsoft\\Windows\\.NET Framework\\.NET Framework NGEN v4.0.30319 64 Critical"_s, true);
    row(u"NvTmRep_{B2FE1952-0186-46C3-BAEC-A80AA35AC5B8}"_s, true);
    row(u"OneDrive Per-Machine Standalone Update Task"_s, true);
    row(u"Vendor\\onedrive reporting task-S-1-5-21-1001"_s, true);
    row(u"My OneDrive"_s, false);
    row(u"OneDrive\\Other"_s, false);
    row(u"MicrosoftEdgeUpdateTaskMachineCore{123}"_s, true);
    row(u"MICROSOFTEDGEUPDATETASKMACHINEXYZ"_s, true);
    row(u"MicrosoftEdgeUpdate"_s, false);
    row(u"Device"_s, true);
    row(u"Devices"_s, false);
    row(u"Microsoft\\Windows\\Printing\\EduPrintProv"_s, false);
    row(u"Microsoft\\Windows\\Ras\\MobilityManager"_s, false);
}

void TestTasksPage::assistantChecksTheKnownNames()
{
    QFETCH(const QString, path);
    QFETCH(const bool, checked);
    const TaskMachine machine({});
    const TasksPage driver(tasksOf({path, u"AAA other"_s, u"zzz other"_s}));
    driver.worker().taskRestoreMode = true;
    Boxes boxes;
    if (checked)
        boxes.answer(QMessageBox::No);
    driver.click(u"btnTaskAssist"_s);
    QCOMPARE(driver.checkedIn(table), checked ? QStringList{path} : QStringList());
    QVERIFY(!driver.worker().taskRestoreMode);
    if (!checked)
        QCOMPARE(driver.status(), u"Assistant - no tasks to deactivate"_s);
}

void TestTasksPage::assistantTakesTasksOfAFeatureGivenUp_data()
{
    addColumns<QString, int, int, bool>("path", "keepPrinter", "keepProxyVpn", "checked");
    for (const QString &name :
         {u"EduPrintProv"_s, u"PrinterCleanupTask"_s, u"PrintJobCleanupTask"_s, u"MobilityManager"_s}) {
        const bool printer = name != "MobilityManager"_L1;
        for (const int keepPrinter : {0, 2}) {
            for (const int keepProxyVpn : {0, 2}) {
                for (const QString &path : {u"Folder\\"_s + name, u"Folder\\My "_s + name.toUpper(), name + u" 2"_s}) {
                    QTest::addRow("%s, printer %d, VPN %d", qPrintable(path), keepPrinter, keepProxyVpn)
                        << path << keepPrinter << keepProxyVpn
                        << (!path.endsWith(u'2') && (printer ? keepPrinter : keepProxyVpn) == 0);
                }
            }
        }
    }
}

void TestTasksPage::assistantTakesTasksOfAFeatureGivenUp()
{
    QFETCH(const QString, path);
    QFETCH(const int, keepPrinter);
    QFETCH(const int, keepProxyVpn);
    QFETCH(const bool, checked);
    const TaskMachine machine({});
    const TasksPage driver(tasksOf({path, u"Other"_s}));
    driver.worker().keepPrinter = keepPrinter;
    driver.worker().keepProxyVpn = keepProxyVpn;
    Boxes boxes;
    if (checked)
        boxes.answer(QMessageBox::No);
    driver.click(u"btnTaskAssist"_s);
    QCOMPARE(driver.checkedIn(table), checked ? QStringList{path} : QStringList());
}

void TestTasksPage::assistantLeavesTheUsersChecks()
{
    const TaskMachine machine({});
    const TasksPage driver(tasksOf({u"Mine"_s, u"WinSAT"_s, u"Other"_s}));
    check(driver, {u"Mine"_s});
    Boxes boxes({QMessageBox::No});
    driver.click(u"btnTaskAssist"_s);
    QCOMPARE(driver.checkedIn(table), (QStringList{u"Mine"_s, u"WinSAT"_s}));
}

void TestTasksPage::assistantWithNothingToDoSaysSo_data()
{
    addColumns<bool, QStringList>("elevated", "paths");
    QTest::newRow("nothing known") << true << QStringList{u"Mine"_s, u"Other"_s};
    QTest::newRow("nothing known, without rights") << false << QStringList{u"Mine"_s, u"Other"_s};
    QTest::newRow("empty table") << true << QStringList();
}

void TestTasksPage::assistantWithNothingToDoSaysSo()
{
    QFETCH(const bool, elevated);
    QFETCH(const QStringList, paths);
    const TaskMachine machine({}, elevated ? MachineOptions() : notElevated());
    const TasksPage driver(tasksOf(paths));
    check(driver, paths.first(paths.isEmpty() ? 0 : 1));
    const Boxes noBox;
    driver.click(u"btnTaskAssist"_s);
    QCOMPARE(driver.status(), u"Assistant - no tasks to deactivate"_s);
    QCOMPARE(driver.checkedIn(table), paths.first(paths.isEmpty() ? 0 : 1));
    QVERIFY(!driver.worker().isRunning());
}

void TestTasksPage::assistantReadsTheNameFromTheToolTip()
{
    const TaskMachine machine({});
    const WindowDriver driver;
    // What stands after a colon isn't seen; what the cell shows counts for nothing.
    openWith(driver, tasksOf({u"A: b\\WinSAT"_s, u"WinSAT: c"_s, u"Other"_s}));
    driver.firstCell(table, u"Other"_s)->setToolTip(u"Folder\\Sqm-Tasks"_s);
    Boxes boxes({QMessageBox::No});
    driver.click(u"btnTaskAssist"_s);
    QCOMPARE(driver.checkedIn(table), (QStringList{u"Other"_s, u"WinSAT: c"_s}));
}

void TestTasksPage::assistantAsks()
{
    const TaskMachine machine({});
    const TasksPage driver(tasksOf({u"WinSAT"_s}));
    Boxes boxes({QMessageBox::No});
    driver.click(u"btnTaskAssist"_s);
    const ShownBox &box = boxes.shown().at(0);
    QCOMPARE(box.text, u"Disable scheduled tasks"_s);
    QCOMPARE(box.informativeText, u"Are you sure to disable all checked tasks?"_s);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.buttonTexts, (QStringList{u"Yes"_s, u"No"_s}));
    QCOMPARE(box.defaultButtonText, QString()); // the one asked for isn't there
    QCOMPARE(box.icon, QMessageBox::Information);
    QVERIFY(box.modal);
    QVERIFY(!box.hasParent);
}

void TestTasksPage::assistantsNoStaysInEveryLanguage()
{
    const TaskMachine machine({});
    const TasksPage driver(tasksOf({u"WinSAT"_s}));
    OtherLanguage language;
    QCoreApplication::installTranslator(&language);
    Boxes boxes({QMessageBox::No});
    driver.click(u"btnTaskAssist"_s);
    boxes.answer(QMessageBox::Cancel);
    driver.click(u"btnTaskRestore"_s);
    QCoreApplication::removeTranslator(&language);
    QCOMPARE(boxes.shown().at(0).text, u"~Disable scheduled tasks"_s);
    QCOMPARE(boxes.shown().at(0).informativeText, u"~Are you sure to disable all checked tasks?"_s);
    QCOMPARE(boxes.shown().at(0).buttonTexts, (QStringList{u"~Yes"_s, u"No"_s}));
    QCOMPARE(boxes.shown().at(1).buttonTexts, (QStringList{u"~Yes"_s, u"~Cancel"_s}));
}

void TestTasksPage::assistantsNoKeepsTheChecks()
{
    const TaskMachine machine({});
    const TasksPage driver(tasksOf({u"WinSAT"_s}));
    Boxes boxes({QMessageBox::No});
    driver.click(u"btnTaskAssist"_s);
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(driver.checkedIn(table), QStringList{u"WinSAT"_s});
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
}

void TestTasksPage::assistantsYesDisablesAllCheckedRows()
{
    const TaskMachine machine({{u"\\Other"_s}});
    const TasksPage driver(tasksOf({u"Mine"_s, u"Folder\\WinSAT"_s, u"Other"_s}));
    check(driver, {u"Mine"_s});
    Boxes boxes({QMessageBox::Yes});
    driver.click(u"btnTaskAssist"_s);
    QVERIFY(driver.waitForList(u"Tasks:"_s));
    QCOMPARE(changes(machine), (QStringList{u"/CHANGE|/TN|Folder\\WinSAT|/DISABLE"_s, u"/CHANGE|/TN|Mine|/DISABLE"_s}));
    QCOMPARE(recordedNames(u"Task"_s), (QStringList{u"Folder\\WinSAT"_s, u"Mine"_s}));
    QCOMPARE(boxes.shown().size(), 1);
}

void TestTasksPage::restoreAsks()
{
    const TaskMachine machine({});
    const TasksPage driver({});
    Boxes boxes({QMessageBox::Cancel});
    driver.click(u"btnTaskRestore"_s);
    const ShownBox &box = boxes.shown().at(0);
    QCOMPARE(box.text, u"Restoring scheduled tasks"_s);
    QCOMPARE(box.informativeText, u"Are you sure you want to restore the startup of all scheduled tasks?"_s);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::Cancel);
    QCOMPARE(box.buttonTexts, (QStringList{u"Yes"_s, u"Cancel"_s}));
    QCOMPARE(box.defaultButtonText, u"Cancel"_s);
    QCOMPARE(box.icon, QMessageBox::Information);
    QVERIFY(box.width >= 400);
    QVERIFY(box.modal);
    QVERIFY(!box.hasParent);
}

void TestTasksPage::restoresCancelChangesNothing_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("Cancel") << QMessageBox::Cancel;
    QTest::newRow("Escape") << QMessageBox::NoButton;
}

void TestTasksPage::restoresCancelChangesNothing()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    TaskMachine machine({});
    machine.write(recordsKey, u"A"_s, 1);
    const TasksPage driver(tasksOf({u"B"_s}));
    driver.worker().tasksToChange = tasksOf({u"before"_s, u"before too"_s});
    const QString status = driver.status();
    Boxes boxes({answer});
    driver.click(u"btnTaskRestore"_s);
    QCOMPARE(driver.status(), status);
    QCOMPARE(driver.worker().tasksToChange.size(), 2);
    QVERIFY(!driver.worker().taskRestoreMode);
    QVERIFY(!driver.worker().isRunning());
}

void TestTasksPage::restoreHandsOverTheRecords()
{
    TaskMachine machine({});
    const auto records = openRecords(u"Task"_s);
    for (const QString &path :
         {u"Folder\\Sub\\B c"_s, u"A"_s, u"Backup"_s, u"Backup of it"_s, u"BackupTask\\X"_s, u"My Backup"_s, u"."_s})
        records->setValue(path, path == "A"_L1 ? 0 : 1);
    const TasksPage driver(tasksOf({u"D"_s}));
    driver.worker().tasksToChange = tasksOf({u"before"_s});
    Boxes boxes({QMessageBox::Yes});
    driver.click(u"btnTaskRestore"_s);
    // No line has arrived yet.
    QCOMPARE(driver.status(), u"Restoring scheduled tasks..."_s);
    QVERIFY(driver.worker().taskRestoreMode);
    QCOMPARE(driver.worker().job, int(JobTaskStopOrStart));
    const QList<TaskRow> rows = driver.worker().tasksToChange;
    const QStringList paths{u"A"_s, u"Folder\\Sub\\B c"_s, u"My Backup"_s};
    const QStringList names{u"A"_s, u"B c"_s, u"My Backup"_s};
    QCOMPARE(rows.size(), 3);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(rows.at(i).path, paths.at(i));
        QCOMPARE(rows.at(i).name, names.at(i));
        QCOMPARE(rows.at(i).description, QString());
        QCOMPARE(rows.at(i).disabled, 0);
    }
    QVERIFY(driver.waitForList(u"Tasks:"_s));
}

void TestTasksPage::restoreEnablesAndKeepsTheRecords()
{
    TaskMachine machine({{u"\\Folder\\A b"_s}, {u"\\B"_s}});
    const auto records = openRecords(u"Task"_s);
    records->setValue(u"Folder\\A b"_s, 1);
    records->setValue(u"B"_s, 1);
    records->setValue(u"Backup"_s, 1);
    const WindowDriver driver;
    QVERIFY(driver.openTasks());
    Boxes boxes({QMessageBox::Yes});
    driver.click(u"btnTaskRestore"_s);
    QVERIFY(driver.waitForList(u"Tasks:"_s));
    QCOMPARE(changes(machine), (QStringList{u"/CHANGE|/TN|B|/ENABLE"_s, u"/CHANGE|/TN|Folder\\A b|/ENABLE"_s}));
    QCOMPARE(recordedNames(u"Task"_s), (QStringList{u"B"_s, u"Backup"_s, u"Folder\\A b"_s}));
    QCOMPARE(machine.read(recordsKey, u"B"_s), QVariant(1));
    QVERIFY(!driver.worker().taskRestoreMode);
    QVERIFY(driver.bar()->isHidden());
}

void TestTasksPage::restoreOfNothingStillRuns()
{
    const TaskMachine machine({{u"\\A"_s}});
    const TasksPage driver({});
    QStringList lines;
    connect(&driver.worker(), &WorkThread::valueChanged, this, [&lines](const QString &line) { lines.append(line); });
    Boxes boxes({QMessageBox::Yes});
    driver.click(u"btnTaskRestore"_s);
    QVERIFY(driver.waitForList(u"Tasks:"_s));
    QCOMPARE(lines, (QStringList{u"pgr:max:0"_s, u"pgr:TaskSetState=finished"_s, u"WorkThread::TaskMakeList"_s}));
    QVERIFY(changes(machine).isEmpty());
}

KESTRUNE_WINDOW_SUITE(TestTasksPage)
#include "tst_taskspage.moc"
