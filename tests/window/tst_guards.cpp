// SPDX-License-Identifier: GPL-3.0-or-later
// What every button of the pages has in common: one that starts or changes something does nothing while a job runs,
// and offers the rights that it needs and doesn't have. A new button has its row in the table.

#include "support/automatizerview.h"
#include "support/boxes.h"
#include "support/packageplaces.h"
#include "support/suite.h"
#include "support/windowdriver.h"

#include "machine/source/regfile.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** All that a button can touch, each under a name. */
using State = QMap<QString, QString>;

struct Guard
{
    const char *button;
    int page;
    void (*prepare)(const WindowDriver &driver); ///< whatever a click needs in order to do something
    bool ignoredWhileBusy = true;
    bool needsRights = true;
    State beforeBusy{};   ///< what a click changes before it looks for a running job
    State beforeRights{}; ///< what it changes before it looks for the rights
};

void checkAll(const WindowDriver &driver, const QString &tableName)
{
    const QTableWidget *table = driver.table(tableName);
    for (int row = 0; row < table->rowCount(); ++row)
        table->item(row, 0)->setCheckState(Qt::Checked);
}

void prepareNothing(const WindowDriver &) {}

void checkServices(const WindowDriver &driver)
{
    checkAll(driver, u"tblSvc"_s);
}

void checkTasks(const WindowDriver &driver)
{
    checkAll(driver, u"tblTasks"_s);
}

void checkPackages(const WindowDriver &driver)
{
    checkAll(driver, u"tblPackages"_s);
}

/** Lists the programs, which are checked from the start. */
void listPrograms(const WindowDriver &driver)
{
    driver.window().showPage(3);
}

void touchFeatures(const WindowDriver &driver)
{
    driver.window().showPage(5);
    for (const QString &box : {u"chkSsd1"_s, u"chkSsd8"_s})
        driver.get<QCheckBox>(box)->click();
}

const State boxesTaken{{u"tweaks"_s, u"0"_s}, {u"programs"_s, u"0"_s}};
const State needlessServiceChecked{{u"tblSvc"_s, u"Alpha, DiagTrack checked"_s}};
const State restoreGivenUp{{u"restores tasks"_s, u"0"_s}};
const State needlessTaskChecked{{u"tblTasks"_s, u"Mine, WinSAT checked"_s}, {u"restores tasks"_s, u"0"_s}};
const State noPackages{{u"packages to change"_s, QString()}};

/** With what is told in a box. */
void preparePreview(const WindowDriver &driver)
{
    driver.window().previewPlace = [] {
        PreviewPlace place;
        place.failure = u"none"_s;
        return place;
    };
}

// clang-format off
const QList<Guard> guards{
    {"btnAutomatizerAnalyze",   0, prepareNothing},
    {"btnAutomatize",           0, prepareNothing, true, true, {}, boxesTaken},
    {"btnAutomatizerRestore",   0, prepareNothing, true, true, {}, boxesTaken},
    {"btnSvcDisable",           1, checkServices},
    {"btnSvcAssist",            1, prepareNothing, false, true, {}, needlessServiceChecked},
    {"btnSvcRestore",           1, prepareNothing},
    {"btnSvcViewDisabled",      1, prepareNothing, true, false},
    {"btnTaskDisable",          2, checkTasks,     true, true, restoreGivenUp, restoreGivenUp},
    {"btnTaskAssist",           2, prepareNothing, true, true, {}, needlessTaskChecked},
    {"btnTaskRestore",          2, prepareNothing},
    {"btnAutorun",              3, listPrograms},
    {"btnAutorunViewDisabled",  3, listPrograms,   true, false},
    {"btnPackagesUninst",       4, checkPackages,  true, true, {}, noPackages},
    {"btnPackagesViewDisabled", 4, prepareNothing, true, false},
    {"btnSsd8",                 5, prepareNothing, false},
    {"btnTweakApply",           5, touchFeatures},
    {"btnOptionsWayBack",       7, prepareNothing, true, false}, // says what it needs the rights for
    {"btnOptionsPreview",       7, preparePreview, true, false},
};
// clang-format on

/** A machine with something to do for every button. */
class GuardedMachine : public TestMachine
{
public:
    explicit GuardedMachine(const MachineOptions &options)
        : TestMachine(Windows::Eleven, options)
    {
        add({.name = u"Alpha"_s, .start = 2, .running = true});
        add({.name = u"DiagTrack"_s, .start = 2, .running = true});
        addPowerShell(*this);
        write(userRunKey, u"App"_s, u"app.exe"_s);
        write(settingsKey, u"optimized"_s, 1);
        write(settingsKey, u"GetWinSxsSize"_s, 0);
        write(settingsKey + u"\\SVC"_s, u"Alpha"_s, 1);
        write(settingsKey + u"\\Task"_s, u"Mine"_s, 1);
        write(autorunRecordsKey, u"Other"_s, u"other.exe"_s);
        write(packageRecordsKey, u"Gone"_s, 1);
    }
};

/** Fills the tables as listings do, puts something into all that a click may change, and shows the button's page. */
void fill(const WindowDriver &driver, const Guard &guard)
{
    WorkThread &worker = driver.worker();
    driver.list({{u"Alpha"_s, u"Alpha"_s, {}, u"32"_s, u"2"_s, true},
                 {u"DiagTrack"_s, u"DiagTrack"_s, {}, u"32"_s, u"2"_s, true}});
    worker.tasks = {{u"Mine"_s, {}, u"Mine"_s, {}, 0}, {u"WinSAT"_s, {}, u"WinSAT"_s, {}, 0}};
    worker.job = JobTaskMakeList;
    driver.window().onWorkThreadValueChanged(u"WorkThread::TaskMakeList"_s);
    worker.packages = {{u"News"_s, u"News"_s, {}}};
    worker.job = JobPackageGetList;
    driver.window().onWorkThreadValueChanged(u"WorkThread::PackageGetList"_s);

    for (const QString &box : {u"chkAutomatizerTweak"_s, u"chkAutomatizerProgram"_s})
        driver.get<QCheckBox>(box)->setChecked(false);
    driver.get<QTextBrowser>(u"txtAutomatizer"_s)->setPlainText(u"before"_s);
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"before"_s);
    worker.analyzeServiceCount = 1;
    worker.servicesToChange = {u"before"_s};
    worker.tasksToChange = {{u"before"_s, {}, {}, {}, 1}};
    worker.packagesToChange = {{u"before"_s, {}, {}}};
    worker.taskRestoreMode = true;
    driver.get<QTabWidget>(u"tabWidget"_s)->setCurrentIndex(guard.page);
    guard.prepare(driver);
}

QString rowsOf(const QTableWidget *table)
{
    QStringList rows;
    for (int row = 0; row < table->rowCount(); ++row) {
        const QTableWidgetItem *item = table->item(row, 0);
        rows.append(item->text() + (item->checkState() == Qt::Checked ? u" checked"_s : QString()));
    }
    rows.sort();
    return rows.join(u", "_s);
}

template<typename Rows, typename Name>
QString namesOf(const Rows &rows, Name name)
{
    QStringList names;
    for (const auto &row : rows)
        names.append(row.*name);
    return names.join(u", "_s);
}

State stateOf(const TestMachine &machine, const WindowDriver &driver)
{
    const WorkThread &worker = driver.worker();
    State state{
        {u"page"_s, QString::number(driver.window().currentPage())},
        {u"status"_s, driver.status()},
        {u"log"_s, driver.get<QTextBrowser>(u"txtAutomatizer"_s)->toPlainText()},
        {u"job"_s, QString::number(worker.job)},
        {u"services to change"_s, worker.servicesToChange.join(u", "_s)},
        {u"tasks to change"_s, namesOf(worker.tasksToChange, &TaskRow::path)},
        {u"packages to change"_s, namesOf(worker.packagesToChange, &PackageRow::name)},
        {u"package job idle"_s, QString::number(worker.packageJobIdle)},
        {u"restores tasks"_s, QString::number(worker.taskRestoreMode ? 1 : 0)},
        {u"restores"_s, QString::number(worker.restoreRunning)},
        {u"tweaks"_s, QString::number(worker.automatizerTweak)},
        {u"programs"_s, QString::number(worker.automatizerProgram)},
        {u"tools run"_s, QString::number(machine.commands().size())},
        {u"registry"_s, writeRegistryScript(machine.machine().registry(), u"HKEY_CURRENT_USER"_s)
                            + writeRegistryScript(machine.machine().registry(), u"HKEY_LOCAL_MACHINE"_s)},
    };
    for (const QTableWidget *table : driver.window().findChildren<QTableWidget *>())
        state[table->objectName()] = rowsOf(table);
    for (const QPushButton *button : driver.window().findChildren<QPushButton *>())
        state[button->objectName()] = button->text();
    return state;
}

/** The state once a click has come as far as the guard. */
QStringList upTo(State state, const State &changes)
{
    state.insert(changes);
    QStringList lines;
    for (auto it = state.cbegin(); it != state.cend(); ++it)
        lines.append(it.key() + u": "_s + it.value());
    return lines;
}

QStringList linesOf(const State &state)
{
    return upTo(state, {});
}

} // namespace

class TestGuards : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyButtonHasARow();
    void clickWhileAJobRunsIsIgnored_data();
    void clickWhileAJobRunsIsIgnored();
    void withoutRightsTheyAreOffered_data();
    void withoutRightsTheyAreOffered();
};

void TestGuards::everyButtonHasARow()
{
    const WindowOnPc driver;
    QStringList buttons;
    for (const QPushButton *button : driver.window().findChildren<QPushButton *>()) {
        // One is seen after a break only.
        if (!button->objectName().startsWith("btnMenu"_L1) && !button->isHidden())
            buttons.append(button->objectName());
    }
    QStringList rows;
    for (const Guard &guard : guards)
        rows.append(QString::fromLatin1(guard.button));
    buttons.sort();
    rows.sort();
    QCOMPARE(buttons, rows);
}

void TestGuards::clickWhileAJobRunsIsIgnored_data()
{
    QTest::addColumn<Guard>("guard");
    for (const Guard &guard : guards) {
        if (guard.ignoredWhileBusy)
            QTest::newRow(guard.button) << guard;
    }
}

void TestGuards::clickWhileAJobRunsIsIgnored()
{
    QFETCH(const Guard, guard);
    const GuardedMachine machine(endlessPauses());
    const WindowDriver driver;
    fill(driver, guard);
    const Starts starts(driver.worker());
    driver.worker().startJob(JobWinSxsSize);
    QVERIFY(QTest::qWaitFor([&machine] { return !machine.platform().takePauses().isEmpty(); }));
    const State before = stateOf(machine, driver);
    const Boxes noBox;
    driver.click(QString::fromLatin1(guard.button));
    QCOMPARE(linesOf(stateOf(machine, driver)), upTo(before, guard.beforeBusy));
    QVERIFY(driver.worker().isRunning());
    QVERIFY(machine.shellStarts().isEmpty());
    QVERIFY(driver.endJob());
    QCOMPARE(starts.count(), 1);
}

void TestGuards::withoutRightsTheyAreOffered_data()
{
    addColumns<Guard, QMessageBox::StandardButton>("guard", "answer");
    for (const Guard &guard : guards) {
        if (!guard.needsRights)
            continue;
        QTest::addRow("%s, No", guard.button) << guard << QMessageBox::No;
        QTest::addRow("%s, Yes", guard.button) << guard << QMessageBox::Yes;
    }
}

void TestGuards::withoutRightsTheyAreOffered()
{
    QFETCH(const Guard, guard);
    QFETCH(const QMessageBox::StandardButton, answer);
    const bool accepted = answer == QMessageBox::Yes;
    const GuardedMachine machine(notElevated());
    const WindowDriver driver;
    fill(driver, guard);
    const Starts starts(driver.worker());
    const State before = stateOf(machine, driver);
    Boxes boxes({answer});
    driver.click(QString::fromLatin1(guard.button));
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.shown().at(0).text, u"You must launch this app with Admin rights!"_s);
    QCOMPARE(machine.shellStarts().size(), accepted ? 1 : 0);
    QCOMPARE(driver.window().hasLeft(), accepted);
    // The elevated instance comes back to the page; nothing else is left behind.
    QCOMPARE(machine.read(settingsKey, u"lastPage"_s), accepted ? QVariant(guard.page) : QVariant());
    machine.platform().openKey(settingsKey)->remove(u"lastPage"_s);
    QCOMPARE(linesOf(stateOf(machine, driver)), upTo(before, guard.beforeRights));
    QCOMPARE(starts.count(), 0);
}

KESTRUNE_WINDOW_SUITE(TestGuards)
#include "tst_guards.moc"
