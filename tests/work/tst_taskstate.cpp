// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of disabling and enabling scheduled tasks.

#include "joblines.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/command.h"
#include "work/settings.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString recordsKey = settingsKey + u"\\Task"_s;
const QString finished = u"page: pgr:TaskSetState=finished"_s;

/** A row as the window makes it. */
TaskRow row(const QString &path, int disabled)
{
    return {path, {}, path.section(u'\\', -1), {}, disabled};
}

/** Lets schtasks change nothing and say that it did. */
void obey(const TestMachine &machine)
{
    machine.machine().setFault(u"schtasks"_s, {.exitCode = 0});
}

LoggedCommand change(const QString &path, const QString &what, int exitCode = 0)
{
    return {u"schtasks"_s, {u"/CHANGE"_s, u"/TN"_s, path, what}, exitCode};
}

QString doneText(const QString &name)
{
    return u"automatizer: Task: Enable and start "_s + name + u" done"_s;
}

} // namespace

class TestTaskState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Command::timeLimit = 30000; }

    void eachCaseHasItsCommandPauseRecordAndLines_data();
    void eachCaseHasItsCommandPauseRecordAndLines();
    void generationIsToldByTheDigits_data();
    void generationIsToldByTheDigits();
    void onlyOneDisables_data();
    void onlyOneDisables();
    void tasksAreHandledInTheirOrderAndCountedFrom0();
    void anEmptyListSendsItsLines_data() { addPhasesOfAnEmptyList(finished); }
    void anEmptyListSendsItsLines();
    void pathIsHandedOverAsItIs_data();
    void pathIsHandedOverAsItIs();
    void nameAndPathMayDiffer();
    void enableFromThePageWritesAZeroOverTheRecord();
    void restoreLeavesTheRecordsAlone();

    void flagsDecideTheLines_data();
    void flagsDecideTheLines();

    void failingToolGivesNoRecordAndTheRunGoesOn_data();
    void failingToolGivesNoRecordAndTheRunGoesOn();
    void restoreDoesNotAskForTheExitCode();
    void missingToolIsLoggedAndSkipsTheTask_data();
    void missingToolIsLoggedAndSkipsTheTask();
    void hangingToolIsGivenUp();
    void nothingIsLoggedUnlessTheLogIsOn();
};

void TestTaskState::eachCaseHasItsCommandPauseRecordAndLines_data()
{
    addColumns<bool, bool>("ten", "disable");
    QTest::addColumn<int>("running"); // 0 none of the three, 1 analyze, 2 optimize, 3 restore
    QTest::addColumn<bool>("restoreMode");
    const char *const phases[] = {"page", "analyze", "optimize", "restore"};
    for (const bool ten : {false, true}) {
        for (const bool disable : {true, false}) {
            for (int running = 0; running < 4; ++running) {
                for (const bool restoreMode : {false, true}) {
                    QTest::addRow("%s, %s, %s%s", ten ? "10" : "11", disable ? "disable" : "enable", phases[running],
                                  restoreMode ? ", restoring" : "")
                        << ten << disable << running << restoreMode;
                }
            }
        }
    }
}

void TestTaskState::eachCaseHasItsCommandPauseRecordAndLines()
{
    QFETCH(const bool, ten);
    QFETCH(const bool, disable);
    QFETCH(const int, running);
    QFETCH(const bool, restoreMode);

    TestMachine machine(ten ? TestMachine::Windows::Ten : TestMachine::Windows::Eleven);
    machine.logErrors();
    obey(machine);
    WorkerOn worker(ten ? onTen : onEleven);
    worker.analyzeRunning = running == 1 ? 1 : 0;
    worker.optimizeRunning = running == 2 ? 1 : 0;
    worker.restoreRunning = running == 3 ? 1 : 0;
    worker.taskRestoreMode = restoreMode;
    const QString path = u"Microsoft\\Windows\\Maps\\MapsUpdateTask"_s;
    worker.tasksToChange = {row(path, disable ? 1 : 0)};
    JobLines lines(worker);
    QVERIFY(runJob(worker, 4));

    QCOMPARE(machine.commands(), QList<LoggedCommand>{change(path, disable ? u"/DISABLE"_s : u"/ENABLE"_s)});
    QCOMPARE(machine.platform().takePauses(), QList<int>{ten ? 1020 : 300});
    QCOMPARE(recordedNames(u"Task"_s), restoreMode ? QStringList() : QStringList{path});
    QCOMPARE(machine.read(recordsKey, path), restoreMode ? QVariant() : QVariant(disable ? 1 : 0));
    QStringList expected;
    if (running < 2)
        expected += u"page: pgr:max:1"_s;
    if (running == 0)
        expected += {u"page: pgr:value:0"_s, u"page: Task: MapsUpdateTask"_s};
    if (running == 3)
        expected += {doneText(u"MapsUpdateTask"_s), u"automatizer: pgr:value:0"_s};
    QCOMPARE(lines.all(), expected + QStringList{finished});
    QCOMPARE(machine.errorLog(), QStringList());
    // Who asked for it clears the mode.
    QCOMPARE(worker.taskRestoreMode.load(), restoreMode);
}

void TestTaskState::generationIsToldByTheDigits_data()
{
    addColumns<QString, int>("winName", "pause");
    QTest::newRow("Windows 10") << u"Windows 10 Pro"_s << 1020;
    QTest::newRow("Windows 11") << u"Windows 11 Pro"_s << 300;
    QTest::newRow("unknown") << u"unknown"_s << 300;
    QTest::newRow("empty") << QString() << 300;
    QTest::newRow("1 and 0 apart") << u"Windows 1 0"_s << 300;
}

void TestTaskState::generationIsToldByTheDigits()
{
    QFETCH(const QString, winName);
    QFETCH(const int, pause);
    const TestMachine machine;
    obey(machine);
    WorkerOn worker(winName);
    worker.TaskStopOrStart({row(u"A"_s, 1), row(u"B"_s, 0)});
    QCOMPARE(machine.platform().takePauses(), (QList<int>{pause, pause}));
}

void TestTaskState::onlyOneDisables_data()
{
    QTest::addColumn<int>("disabled");
    for (const int disabled : {-1, 0, 1, 2})
        QTest::addRow("%d", disabled) << disabled;
}

void TestTaskState::onlyOneDisables()
{
    QFETCH(const int, disabled);
    const TestMachine machine;
    obey(machine);
    WorkThread worker;
    worker.TaskStopOrStart({row(u"A"_s, disabled)});
    QCOMPARE(machine.commands(), QList<LoggedCommand>{change(u"A"_s, disabled == 1 ? u"/DISABLE"_s : u"/ENABLE"_s)});
    QCOMPARE(machine.read(recordsKey, u"A"_s), QVariant(disabled));
}

void TestTaskState::tasksAreHandledInTheirOrderAndCountedFrom0()
{
    const TestMachine machine;
    obey(machine);
    WorkerOn worker(onEleven);
    QStringList expected{u"page: pgr:max:12"_s};
    QList<LoggedCommand> commands;
    for (int i = 0; i < 12; ++i) {
        const QString name = u"Task %1"_s.arg(12 - i);
        const bool disable = i % 3 != 0;
        worker.tasksToChange.append(row(u"Folder\\"_s + name, disable ? 1 : 0));
        commands.append(change(u"Folder\\"_s + name, disable ? u"/DISABLE"_s : u"/ENABLE"_s));
        expected += {u"page: pgr:value:"_s + QString::number(i), u"page: Task: "_s + name};
    }
    JobLines lines(worker);
    QVERIFY(runJob(worker, 4));
    QCOMPARE(lines.all(), expected + QStringList{finished});
    QCOMPARE(machine.commands(), commands);
    QCOMPARE(machine.platform().takePauses(), QList<int>(12, 300));
    QCOMPARE(recordedNames(u"Task"_s).size(), 12);
}

void TestTaskState::anEmptyListSendsItsLines()
{
    QFETCH(const Phases, phases);
    QFETCH(const QStringList, expected);
    const TestMachine machine;
    WorkerOn worker(onTen);
    phases.mark(worker);
    JobLines lines(worker);
    QVERIFY(runJob(worker, 4));
    QCOMPARE(lines.all(), expected);
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
    QCOMPARE(machine.platform().takePauses(), QList<int>());
}

void TestTaskState::pathIsHandedOverAsItIs_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("blanks") << u"My folder\\My own task"_s;
    QTest::newRow("blanks at the ends") << u"  Task "_s;
    QTest::newRow("quotes") << u"A \"quoted\" 'task'"_s;
    QTest::newRow("quote at the end and a backslash") << u"Folder\\\"Task\\"_s;
    QTest::newRow("semicolon and ampersand") << u"a; b & c | d > e"_s;
    QTest::newRow("substitution") << u"$(Remove-Item C:) `x` %TEMP% $env:TEMP"_s;
    QTest::newRow("option") << u"-DELETE"_s;
    QTest::newRow("braces") << u"NvTmRep_{B2FE1952-0186-46C3-BAEC-A80AA35AC5B8}"_s;
    QTest::newRow("other letters") << u"Überwachung\\服务"_s;
    QTest::newRow("percent sign") << u"100%1"_s;
    QTest::newRow("entity") << u"A &amp; B"_s;
}

void TestTaskState::pathIsHandedOverAsItIs()
{
    QFETCH(const QString, path);
    const TestMachine machine;
    obey(machine);
    WorkerOn worker(onEleven);
    worker.restoreRunning = 1;
    const TaskRow task = row(path, 1);
    worker.tasksToChange = {task};
    JobLines lines(worker);
    QVERIFY(runJob(worker, 4));
    QCOMPARE(machine.commands(), QList<LoggedCommand>{change(path, u"/DISABLE"_s)});
    QCOMPARE(recordedNames(u"Task"_s), QStringList{path});
    QCOMPARE(lines.all(), (QStringList{doneText(task.name), u"automatizer: pgr:value:0"_s, finished}));
}

void TestTaskState::nameAndPathMayDiffer()
{
    const TestMachine machine;
    obey(machine);
    WorkThread worker;
    JobLines lines(worker);
    worker.TaskStopOrStart({{u"Folder\\A"_s, u"text"_s, u"Shown"_s, u"more"_s, 1}});
    QCOMPARE(machine.commands(), QList<LoggedCommand>{change(u"Folder\\A"_s, u"/DISABLE"_s)});
    QCOMPARE(lines.all().value(2), u"page: Task: Shown"_s);
    QCOMPARE(recordedNames(u"Task"_s), QStringList{u"Folder\\A"_s});
}

void TestTaskState::enableFromThePageWritesAZeroOverTheRecord()
{
    TestMachine machine;
    obey(machine);
    machine.write(recordsKey, u"A"_s, 1);
    WorkThread worker;
    worker.TaskStopOrStart({row(u"A"_s, 0)});
    QCOMPARE(recordedNames(u"Task"_s), QStringList{u"A"_s});
    QCOMPARE(machine.read(recordsKey, u"A"_s), QVariant(0));
}

void TestTaskState::restoreLeavesTheRecordsAlone()
{
    TestMachine machine;
    obey(machine);
    machine.write(recordsKey, u"A"_s, 1);
    machine.write(recordsKey, u"Backup"_s, 1);
    WorkThread worker;
    worker.taskRestoreMode = true;
    worker.TaskStopOrStart({row(u"A"_s, 0), row(u"B"_s, 0), row(u"C"_s, 1)});
    QCOMPARE(recordedNames(u"Task"_s), (QStringList{u"A"_s, u"Backup"_s}));
    QCOMPARE(machine.read(recordsKey, u"A"_s), QVariant(1));
    QCOMPARE(machine.commands(), (QList<LoggedCommand>{change(u"A"_s, u"/ENABLE"_s), change(u"B"_s, u"/ENABLE"_s),
                                                       change(u"C"_s, u"/DISABLE"_s)}));
}

void TestTaskState::flagsDecideTheLines_data()
{
    addColumns<Phases, QStringList>("phases", "expected");
    const QStringList restore{doneText(u"A"_s), u"automatizer: pgr:value:0"_s, finished};
    QTest::newRow("optimize and restore") << Phases{0, 1, 1} << restore;
    QTest::newRow("analyze and restore") << Phases{1, 0, 1} << restore;
    QTest::newRow("analyze and optimize") << Phases{1, 1, 0} << QStringList{finished};
    QTest::newRow("all") << Phases{1, 1, 1} << restore;
}

void TestTaskState::flagsDecideTheLines()
{
    QFETCH(const Phases, phases);
    QFETCH(const QStringList, expected);
    const TestMachine machine;
    obey(machine);
    WorkThread worker;
    phases.mark(worker);
    JobLines lines(worker);
    worker.TaskStopOrStart({row(u"Folder\\A"_s, 0)});
    QCOMPARE(lines.all(), expected);
}

void TestTaskState::failingToolGivesNoRecordAndTheRunGoesOn_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {1, 5, 256, -2147024894})
        QTest::addRow("%d", code) << code;
}

void TestTaskState::failingToolGivesNoRecordAndTheRunGoesOn()
{
    QFETCH(const int, code);
    LoggingMachine machine;
    obey(machine);
    machine.machine().setFault(u"schtasks /CHANGE /TN B"_s, {.exitCode = code});
    WorkerOn worker(onEleven);
    worker.tasksToChange = {row(u"A"_s, 1), row(u"B"_s, 1), row(u"C"_s, 1)};
    JobLines lines(worker);
    QVERIFY(runJob(worker, 4));
    QCOMPARE(machine.commands().value(1), change(u"B"_s, u"/DISABLE"_s, code));
    QCOMPARE(recordedNames(u"Task"_s), (QStringList{u"A"_s, u"C"_s}));
    // The page isn't told.
    QCOMPARE(lines.all(),
             (QStringList{u"page: pgr:max:3"_s, u"page: pgr:value:0"_s, u"page: Task: A"_s, u"page: pgr:value:1"_s,
                          u"page: Task: B"_s, u"page: pgr:value:2"_s, u"page: Task: C"_s, finished}));
    QCOMPARE(machine.platform().takePauses(), QList<int>(3, 300));
    // An exit code that comes after the start is ignored.
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestTaskState::restoreDoesNotAskForTheExitCode()
{
    const TestMachine machine;
    machine.machine().setFault(u"schtasks"_s, {.exitCode = 1});
    WorkThread worker;
    worker.restoreRunning = 1;
    worker.taskRestoreMode = true;
    JobLines lines(worker);
    worker.TaskStopOrStart({row(u"A"_s, 0)});
    QCOMPARE(lines.all(), (QStringList{doneText(u"A"_s), u"automatizer: pgr:value:0"_s, finished}));
    QCOMPARE(recordedNames(u"Task"_s), QStringList());
}

void TestTaskState::missingToolIsLoggedAndSkipsTheTask_data()
{
    QTest::addColumn<bool>("restore");
    QTest::newRow("page") << false;
    QTest::newRow("restore") << true;
}

void TestTaskState::missingToolIsLoggedAndSkipsTheTask()
{
    QFETCH(const bool, restore);
    LoggingMachine machine;
    machine.machine().setFault(u"schtasks"_s, {.missing = true});
    WorkerOn worker(onTen);
    worker.restoreRunning = restore ? 1 : 0;
    worker.tasksToChange = {row(u"A"_s, 1), row(u"B"_s, 0)};
    JobLines lines(worker);
    QVERIFY(runJob(worker, 4));
    QCOMPARE(lines.all(), restore ? QStringList{finished} : (QStringList{u"page: pgr:max:2"_s, finished}));
    QCOMPARE(recordedNames(u"Task"_s), QStringList());
    QCOMPARE(machine.platform().takePauses(), QList<int>());
    const QString logged = u"TaskStopOrStart: schtasks process error: Process failed to start: "
                           u"The system cannot find the file specified."_s;
    QCOMPARE(machine.errorLog(), (QStringList{logged, logged}));
}

void TestTaskState::hangingToolIsGivenUp()
{
    LoggingMachine machine;
    machine.machine().setFault(u"schtasks"_s, {.hang = true});
    Command::timeLimit = 200;
    WorkerOn worker(onEleven);
    worker.tasksToChange = {row(u"A"_s, 1), row(u"B"_s, 1)};
    JobLines lines(worker);
    QVERIFY(runJob(worker, 4));
    QCOMPARE(lines.all(), (QStringList{u"page: pgr:max:2"_s, u"page: pgr:value:0"_s, u"page: Task: A"_s,
                                       u"page: pgr:value:1"_s, u"page: Task: B"_s, finished}));
    // A tool that hasn't ended reads 0, and is taken for one that did its work.
    QCOMPARE(recordedNames(u"Task"_s), (QStringList{u"A"_s, u"B"_s}));
    QCOMPARE(machine.errorLog(), QStringList());
    QCOMPARE(machine.commands(), QList<LoggedCommand>()); // ended before it could write its line
}

void TestTaskState::nothingIsLoggedUnlessTheLogIsOn()
{
    const TestMachine machine;
    machine.machine().setFault(u"schtasks"_s, {.missing = true});
    WorkThread worker;
    worker.TaskStopOrStart({row(u"A"_s, 1)});
    QVERIFY(!QFile::exists(machine.platform().programFolder() + u"/log.txt"_s));
}

KESTRUNE_SUITE(TestTaskState)
#include "tst_taskstate.moc"
