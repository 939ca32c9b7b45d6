// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of disabling and enabling services.

#include "joblines.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/command.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString recordsKey = settingsKey + u"\\SVC"_s;
const QString finished = u"page: pgr:SvcStopOrStart=finished"_s;

/** The runs of sc, each as its arguments in one text. */
QStringList scRuns(const TestMachine &machine)
{
    QStringList runs;
    for (const LoggedCommand &command : machine.commands())
        runs.append((command.program == "sc"_L1 ? QString() : command.program + u": "_s)
                    + command.arguments.join(u'|'));
    return runs;
}

QString logLine(const QString &name, int code)
{
    return u"SvcStopOrStart: "_s + name + u", sc process error! exit code : "_s + QString::number(code);
}

} // namespace

class TestServiceState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Command::timeLimit = 30000; }

    void eachCaseHasItsStepsAndLines_data();
    void eachCaseHasItsStepsAndLines();
    void generationIsToldByTheDigits_data();
    void generationIsToldByTheDigits();
    void theLinkTrackingServiceIsMeantInItsExactCase();
    void aServiceThatIsMissingOnWindows10IsWrittenAllTheSame();

    void servicesAreHandledInAlphabeticalOrderWithoutCase();
    void countersGoUpWithEachService();
    void anEmptyListSendsItsTwoLines_data() { addPhasesOfAnEmptyList(finished); }
    void anEmptyListSendsItsTwoLines();
    void namesAreHandledAsTheyAre_data();
    void namesAreHandledAsTheyAre();
    void doNotStartOrStopLeavesTheServiceRunning();
    void theResultIs0();

    void flagsDecideTheSignal_data();
    void flagsDecideTheSignal();
    void outcomeIsToldToTheAutomatizer_data();
    void outcomeIsToldToTheAutomatizer();
    void automatizerLinesOfSeveralServices();

    void exitCodesOfTheToolAreLogged_data();
    void exitCodesOfTheToolAreLogged();
    void realExitCodesOfTheTool_data();
    void realExitCodesOfTheTool();
    void anErrorOfAnEarlierStepIsOverwritten_data();
    void anErrorOfAnEarlierStepIsOverwritten();
    void aFailureDoesNotEndTheRun();
    void alreadyRunningIsAnErrorOnThePage();
    void aFailedDisableIsNotRecordedAndAFailedEnableTakesTheRecordAway();
    void onlyTheNamedRecordIsTakenAway();

    void refusedWriteOnWindows10CountsAsDone_data();
    void refusedWriteOnWindows10CountsAsDone();
    void missingToolCountsAsDone_data();
    void missingToolCountsAsDone();
    void hangingStopIsGivenUpAndTheStartModeIsStillSet();
    void hangingLastStepCountsAsDone_data();
    void hangingLastStepCountsAsDone();
    void nothingIsLoggedUnlessTheLogIsOn();
};

void TestServiceState::eachCaseHasItsStepsAndLines_data()
{
    addColumns<bool, int, bool, QString, QStringList, QList<int>, bool>("ten", "doNotStartOrStop", "enable", "name",
                                                                        "runs", "pauses", "startedOrStopped");

    const auto row = [](bool ten, int setting, bool enable, const QString &name, const QStringList &runs,
                        const QList<int> &pauses, bool startedOrStopped) {
        QTest::addRow("%s, DoNotStartOrStopSvc %d, %s %s", ten ? "10" : "11", setting, enable ? "enable" : "disable",
                      qPrintable(name))
            << ten << setting << enable << name << runs << pauses << startedOrStopped;
    };
    const QString other = u"Spooler"_s;
    const QString links = u"TrkWks"_s;

    for (const int setting : {0, 1}) {
        row(true, setting, false, other, {}, {1020}, false);
        row(true, setting, true, other, {}, {1020}, false);
        row(true, setting, false, links, {u"config|TrkWks|start=disabled"_s}, {1020}, false);
        row(true, setting, true, links, {u"config|TrkWks|start=auto"_s}, {1020}, false);
    }
    for (const QString &name : {other, links}) {
        const QString disable = u"config|"_s + name + u"|start=disabled"_s;
        const QString enable = u"config|"_s + name + u"|start=auto"_s;
        row(false, 0, false, name, {u"stop|"_s + name, disable}, {300, 300}, true);
        row(false, 0, true, name, {enable, u"start|"_s + name}, {300, 300}, true);
        row(false, 1, false, name, {disable}, {300}, false);
        row(false, 1, true, name, {enable}, {300}, false);
    }
}

void TestServiceState::eachCaseHasItsStepsAndLines()
{
    QFETCH(const bool, ten);
    QFETCH(const int, doNotStartOrStop);
    QFETCH(const bool, enable);
    QFETCH(const QString, name);
    QFETCH(const QStringList, runs);
    QFETCH(const QList<int>, pauses);
    QFETCH(const bool, startedOrStopped);

    TestMachine machine(ten ? TestMachine::Windows::Ten : TestMachine::Windows::Eleven);
    machine.logErrors();
    machine.add({.name = name, .start = enable ? 4 : 3, .running = !enable});
    machine.write(settingsKey, u"DoNotStartOrStopSvc"_s, doNotStartOrStop);
    if (enable)
        machine.write(recordsKey, name, 1);
    WorkerOn worker(ten ? onTen : onEleven);
    worker.servicesToChange = {name};
    JobLines lines(worker);
    QVERIFY(runJob(worker, enable ? 10 : 9));

    QCOMPARE(scRuns(machine), runs);
    QCOMPARE(machine.platform().takePauses(), pauses);
    QCOMPARE(machine.read(servicesKey + u'\\' + name, u"Start"_s), QVariant(enable ? 2 : 4));
    QCOMPARE(machine.machine().isRunning(name), std::optional<bool>(startedOrStopped == enable));
    QCOMPARE(machine.names(recordsKey), enable ? QStringList() : QStringList{name});
    if (!enable)
        QCOMPARE(machine.read(recordsKey, name), QVariant(1));
    QCOMPARE(lines.all(), (QStringList{u"page: pgr:max:1"_s, u"page: pgr:value:1"_s, u"page: "_s + name, finished}));
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceState::generationIsToldByTheDigits_data()
{
    addColumns<QString, bool>("winName", "ten");
    QTest::newRow("Windows 10") << u"Windows 10 Pro"_s << true;
    QTest::newRow("Windows 11") << u"Windows 11 Pro"_s << false;
    QTest::newRow("both digits elsewhere") << u"Windows Server 2010"_s << true;
    QTest::newRow("11 and 10") << u"Windows 11 (10)"_s << true;
    QTest::newRow("unknown") << u"unknown"_s << false;
    QTest::newRow("empty") << QString() << false;
    QTest::newRow("1 and 0 apart") << u"Windows 1 0"_s << false;
}

void TestServiceState::generationIsToldByTheDigits()
{
    QFETCH(const QString, winName);
    QFETCH(const bool, ten);
    TestMachine machine;
    machine.add({.name = u"Spooler"_s});
    WorkerOn worker(winName);
    worker.SvcStopOrStart({u"Spooler"_s}, false);
    QCOMPARE(scRuns(machine).isEmpty(), ten);
    QCOMPARE(machine.platform().takePauses(), ten ? QList<int>{1020} : QList<int>({300, 300}));
}

void TestServiceState::theLinkTrackingServiceIsMeantInItsExactCase()
{
    TestMachine machine;
    machine.add({.name = u"TrkWks"_s});
    WorkerOn worker(onTen);
    worker.SvcStopOrStart({u"trkwks"_s}, false);
    QCOMPARE(scRuns(machine), QStringList());
    QCOMPARE(machine.read(servicesKey + u"\\TrkWks"_s, u"Start"_s), QVariant(4));
}

void TestServiceState::aServiceThatIsMissingOnWindows10IsWrittenAllTheSame()
{
    const TestMachine machine;
    WorkerOn worker(onTen);
    worker.SvcStopOrStart({u"Missing"_s}, false);
    QCOMPARE(machine.read(servicesKey + u"\\Missing"_s, u"Start"_s), QVariant(4));
    QCOMPARE(machine.names(recordsKey), QStringList{u"Missing"_s});
}

void TestServiceState::servicesAreHandledInAlphabeticalOrderWithoutCase()
{
    TestMachine machine;
    const QStringList names{u"gamma"_s, u"Beta"_s, u"alpha"_s, u"Delta"_s, u"ALPHA2"_s};
    for (const QString &name : names)
        machine.add({.name = name});
    machine.write(settingsKey, u"DoNotStartOrStopSvc"_s, 1);
    WorkerOn worker(onEleven);
    worker.servicesToChange = names;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 9));
    QStringList expectedRuns;
    QStringList expectedLines{u"page: pgr:max:5"_s};
    int counter = 0;
    for (const QString &name : {u"alpha"_s, u"ALPHA2"_s, u"Beta"_s, u"Delta"_s, u"gamma"_s}) {
        expectedRuns.append(u"config|"_s + name + u"|start=disabled"_s);
        expectedLines += {u"page: pgr:value:"_s + QString::number(++counter), u"page: "_s + name};
    }
    QCOMPARE(scRuns(machine), expectedRuns);
    QCOMPARE(lines.all(), expectedLines + QStringList{finished});
    QCOMPARE(worker.servicesToChange, names);
}

void TestServiceState::countersGoUpWithEachService()
{
    const TestMachine machine;
    QStringList names;
    QStringList expected{u"page: pgr:max:12"_s};
    for (int i = 1; i <= 12; ++i) {
        names.append(QString(u'a' + QString(i, u'b')));
        expected += {u"page: pgr:value:"_s + QString::number(i), u"page: "_s + names.last()};
    }
    WorkerOn worker(onTen);
    worker.servicesToChange = names;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 10));
    QCOMPARE(lines.all(), expected + QStringList{finished});
    QCOMPARE(machine.platform().takePauses(), QList<int>(12, 1020));
}

void TestServiceState::anEmptyListSendsItsTwoLines()
{
    QFETCH(const Phases, phases);
    QFETCH(const QStringList, expected);
    const TestMachine machine;
    for (const bool enable : {false, true}) {
        WorkerOn worker(onEleven);
        phases.mark(worker);
        JobLines lines(worker);
        worker.SvcStopOrStart({}, enable);
        QCOMPARE(lines.all(), expected);
    }
    QCOMPARE(scRuns(machine), QStringList());
    QCOMPARE(machine.platform().takePauses(), QList<int>());
}

void TestServiceState::namesAreHandledAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << u"My own service"_s;
    QTest::newRow("quotes") << u"My \"own\" service"_s;
    QTest::newRow("colon") << u"Vendor: Updater"_s;
    QTest::newRow("other letters") << u"Überwachung 服务"_s;
    QTest::newRow("percent sign") << u"100%1"_s;
}

void TestServiceState::namesAreHandledAsTheyAre()
{
    QFETCH(const QString, name);
    TestMachine machine;
    machine.add({.name = name, .start = 2, .running = true});
    WorkerOn worker(onEleven);
    worker.servicesToChange = {name};
    JobLines lines(worker);
    QVERIFY(runJob(worker, 9));
    QCOMPARE(lines.all(), (QStringList{u"page: pgr:max:1"_s, u"page: pgr:value:1"_s, u"page: "_s + name, finished}));
    QCOMPARE(scRuns(machine), (QStringList{u"stop|"_s + name, u"config|"_s + name + u"|start=disabled"_s}));
    QCOMPARE(machine.read(servicesKey + u'\\' + name, u"Start"_s), QVariant(4));
    QCOMPARE(machine.names(recordsKey), QStringList{name});
}

void TestServiceState::doNotStartOrStopLeavesTheServiceRunning()
{
    TestMachine machine;
    machine.add({.name = u"Spooler"_s, .start = 2, .running = true});
    machine.write(settingsKey, u"DoNotStartOrStopSvc"_s, 1);
    WorkerOn worker(onEleven);
    worker.SvcStopOrStart({u"Spooler"_s}, false);
    QCOMPARE(machine.machine().isRunning(u"Spooler"_s), true);
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(4));
}

void TestServiceState::theResultIs0()
{
    const TestMachine machine;
    WorkerOn worker(onEleven);
    QCOMPARE(worker.SvcStopOrStart({}, false), 0);
    QCOMPARE(worker.SvcStopOrStart({u"Missing"_s}, true), 0);
}

void TestServiceState::flagsDecideTheSignal_data()
{
    addColumns<Phases, QStringList>("phases", "expected");
    const QStringList automatizer{u"automatizer: Service: disable and stop Spooler done"_s,
                                  u"automatizer: pgr:value:1"_s, finished};
    QTest::newRow("page") << Phases{}
                          << QStringList{u"page: pgr:max:1"_s, u"page: pgr:value:1"_s, u"page: Spooler"_s, finished};
    QTest::newRow("analyze") << Phases{1, 0, 0} << QStringList{u"page: pgr:max:1"_s, finished};
    QTest::newRow("optimize") << Phases{0, 1, 0} << automatizer;
    QTest::newRow("restore") << Phases{0, 0, 1} << automatizer;
    QTest::newRow("optimize and restore") << Phases{0, 1, 1} << automatizer;
    QTest::newRow("analyze and optimize") << Phases{1, 1, 0} << automatizer;
}

void TestServiceState::flagsDecideTheSignal()
{
    QFETCH(const Phases, phases);
    QFETCH(const QStringList, expected);
    TestMachine machine;
    machine.add({.name = u"Spooler"_s, .running = true});
    WorkerOn worker(onEleven);
    phases.mark(worker);
    worker.servicesToChange = {u"Spooler"_s};
    JobLines lines(worker);
    QVERIFY(runJob(worker, 9));
    QCOMPARE(lines.all(), expected);
    QCOMPARE(machine.names(recordsKey), QStringList{u"Spooler"_s});
}

void TestServiceState::outcomeIsToldToTheAutomatizer_data()
{
    addColumns<bool, bool>("ten", "enable");
    QTest::addColumn<int>("code"); // of the last command
    QTest::addColumn<QString>("message");
    const auto row = [](const char *title, bool ten, bool enable, int code, const QString &message) {
        QTest::newRow(title) << ten << enable << code << message;
    };
    const QString running = u"Service: enable and start TrkWks, already running!"_s;
    row("11, disable", false, false, 0, u"Service: disable and stop TrkWks done"_s);
    row("11, disable, 5", false, false, 5, u"Service: disable and stop TrkWks error"_s);
    row("11, disable, 1056", false, false, 1056, running);
    row("11, disable, 1060", false, false, 1060, u"Service: disable and stop TrkWks error"_s);
    row("11, enable", false, true, 0, u"Service: enable and start TrkWks done"_s);
    row("11, enable, 5", false, true, 5, u"Service: enable and start TrkWks error"_s);
    row("11, enable, 1056", false, true, 1056, running);
    row("11, enable, 1058", false, true, 1058, u"Service: enable and start TrkWks error"_s);
    row("11, enable, 1060", false, true, 1060, u"Service: enable and start TrkWks error"_s);
    row("10, disable", true, false, 0, u"Service: disable TrkWks done"_s);
    row("10, disable, 5", true, false, 5, u"Service: disable TrkWks error"_s);
    row("10, disable, 1056", true, false, 1056, running);
    row("10, enable", true, true, 0, u"Service: enable TrkWks done"_s);
    row("10, enable, 1060", true, true, 1060, u"Service: enable TrkWks error"_s);
    row("10, enable, 1056", true, true, 1056, running);
}

void TestServiceState::outcomeIsToldToTheAutomatizer()
{
    QFETCH(const bool, ten);
    QFETCH(const bool, enable);
    QFETCH(const int, code);
    QFETCH(const QString, message);
    for (const bool restore : {false, true}) {
        TestMachine machine;
        machine.logErrors();
        machine.machine().setFault(u"sc"_s, {.exitCode = 0});
        machine.machine().setFault(!ten && enable ? u"sc start"_s : u"sc config"_s, {.exitCode = code});
        WorkerOn worker(ten ? onTen : onEleven);
        (restore ? worker.restoreRunning : worker.optimizeRunning) = 1;
        JobLines lines(worker);
        worker.SvcStopOrStart({u"TrkWks"_s}, enable);
        QCOMPARE(lines.all(), (QStringList{u"automatizer: "_s + message, u"automatizer: pgr:value:1"_s, finished}));
        QCOMPARE(machine.errorLog(), code == 0 ? QStringList() : QStringList{logLine(u"TrkWks"_s, code)});
    }
}

void TestServiceState::automatizerLinesOfSeveralServices()
{
    TestMachine machine;
    machine.add({.name = u"A"_s});
    machine.add({.name = u"B"_s});
    WorkerOn worker(onTen);
    worker.optimizeRunning = 1;
    worker.servicesToChange = {u"B"_s, u"A"_s};
    JobLines lines(worker);
    QVERIFY(runJob(worker, 9));
    QCOMPARE(lines.all(),
             (QStringList{u"automatizer: Service: disable A done"_s, u"automatizer: pgr:value:1"_s,
                          u"automatizer: Service: disable B done"_s, u"automatizer: pgr:value:2"_s, finished}));
}

void TestServiceState::exitCodesOfTheToolAreLogged_data()
{
    addColumns<int, bool>("code", "enable");
    for (const int code : {1, 5, 1051, 1056, 1058, 1060, 1072, -1}) {
        QTest::addRow("disable, %d", code) << code << false;
        QTest::addRow("enable, %d", code) << code << true;
    }
}

void TestServiceState::exitCodesOfTheToolAreLogged()
{
    QFETCH(const int, code);
    QFETCH(const bool, enable);
    LoggingMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = code});
    WorkerOn worker(onEleven);
    JobLines lines(worker);
    worker.SvcStopOrStart({u"Spooler"_s}, enable);
    QCOMPARE(machine.errorLog(), QStringList{logLine(u"Spooler"_s, code)});
    // The page isn't told.
    QCOMPARE(lines.all(), (QStringList{u"page: pgr:max:1"_s, u"page: pgr:value:1"_s, u"page: Spooler"_s, finished}));
    QCOMPARE(machine.names(recordsKey), QStringList());
}

void TestServiceState::realExitCodesOfTheTool_data()
{
    addColumns<bool, QString, bool, int>("elevated", "name", "enable", "code");
    QTest::newRow("access denied, disable") << false << u"Spooler"_s << false << 5;
    QTest::newRow("access denied, enable") << false << u"Spooler"_s << true << 5;
    QTest::newRow("no such service, disable") << true << u"Missing"_s << false << 1060;
    QTest::newRow("no such service, enable") << true << u"Missing"_s << true << 1060;
    QTest::newRow("already running") << true << u"Spooler"_s << true << 1056;
}

void TestServiceState::realExitCodesOfTheTool()
{
    QFETCH(const bool, elevated);
    QFETCH(const QString, name);
    QFETCH(const bool, enable);
    QFETCH(const int, code);
    TestMachine machine(TestMachine::Windows::Eleven, {.elevated = elevated});
    machine.logErrors();
    machine.add({.name = u"Spooler"_s, .running = true});
    WorkerOn worker(onEleven);
    worker.SvcStopOrStart({name}, enable);
    QCOMPARE(machine.commands().size(), 2);
    QCOMPARE(machine.commands().last().exitCode, code);
    QCOMPARE(machine.errorLog(), QStringList{logLine(name, code)});
    QCOMPARE(machine.names(recordsKey), QStringList());
}

void TestServiceState::anErrorOfAnEarlierStepIsOverwritten_data()
{
    addColumns<bool, QString>("enable", "first");
    QTest::newRow("stopping a stopped service") << false << u"sc stop"_s;
    QTest::newRow("configuring fails and starting works") << true << u"sc config"_s;
}

void TestServiceState::anErrorOfAnEarlierStepIsOverwritten()
{
    QFETCH(const bool, enable);
    QFETCH(const QString, first);
    LoggingMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = 0});
    machine.machine().setFault(first, {.exitCode = 1062});
    WorkerOn worker(onEleven);
    worker.optimizeRunning = 1;
    JobLines lines(worker);
    worker.SvcStopOrStart({u"Spooler"_s}, enable);
    QCOMPARE(machine.commands().size(), 2);
    QCOMPARE(machine.commands().first().exitCode, 1062);
    QCOMPARE(machine.errorLog(), QStringList());
    QCOMPARE(machine.names(recordsKey), enable ? QStringList() : QStringList{u"Spooler"_s});
    QVERIFY(lines.all().first().endsWith(u" done"_s));
}

void TestServiceState::aFailureDoesNotEndTheRun()
{
    LoggingMachine machine;
    machine.add({.name = u"A"_s, .start = 2});
    machine.add({.name = u"C"_s, .start = 2});
    WorkerOn worker(onEleven);
    JobLines lines(worker);
    worker.SvcStopOrStart({u"A"_s, u"B"_s, u"C"_s}, false);
    QCOMPARE(machine.names(recordsKey), (QStringList{u"A"_s, u"C"_s}));
    QCOMPARE(machine.errorLog(), QStringList{logLine(u"B"_s, 1060)});
    QCOMPARE(lines.all(),
             (QStringList{u"page: pgr:max:3"_s, u"page: pgr:value:1"_s, u"page: A"_s, u"page: pgr:value:2"_s,
                          u"page: B"_s, u"page: pgr:value:3"_s, u"page: C"_s, finished}));
    QCOMPARE(machine.platform().takePauses(), QList<int>(6, 300));
}

void TestServiceState::alreadyRunningIsAnErrorOnThePage()
{
    LoggingMachine machine;
    machine.add({.name = u"Spooler"_s, .start = 4, .running = true});
    machine.write(recordsKey, u"Spooler"_s, 1);
    WorkerOn worker(onEleven);
    JobLines lines(worker);
    worker.SvcStopOrStart({u"Spooler"_s}, true);
    QCOMPARE(machine.errorLog(), QStringList{logLine(u"Spooler"_s, 1056)});
    QCOMPARE(lines.all(), (QStringList{u"page: pgr:max:1"_s, u"page: pgr:value:1"_s, u"page: Spooler"_s, finished}));
    QCOMPARE(machine.names(recordsKey), QStringList());
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(2));
}

void TestServiceState::aFailedDisableIsNotRecordedAndAFailedEnableTakesTheRecordAway()
{
    TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = 5});
    WorkerOn worker(onEleven);
    worker.SvcStopOrStart({u"Spooler"_s}, false);
    QCOMPARE(machine.names(recordsKey), QStringList());
    machine.write(recordsKey, u"Spooler"_s, 1);
    worker.SvcStopOrStart({u"Spooler"_s}, true);
    QCOMPARE(machine.names(recordsKey), QStringList());
}

void TestServiceState::onlyTheNamedRecordIsTakenAway()
{
    TestMachine machine;
    machine.write(recordsKey, u"Spooler"_s, 1);
    machine.write(recordsKey, u"Spooler2"_s, 1);
    WorkerOn worker(onTen);
    worker.SvcStopOrStart({u"spooler"_s, u"NeverRecorded"_s}, true);
    QCOMPARE(machine.names(recordsKey), QStringList{u"Spooler2"_s});
}

void TestServiceState::refusedWriteOnWindows10CountsAsDone_data()
{
    QTest::addColumn<bool>("enable");
    QTest::newRow("disable") << false;
    QTest::newRow("enable") << true;
}

void TestServiceState::refusedWriteOnWindows10CountsAsDone()
{
    QFETCH(const bool, enable);
    TestMachine machine(TestMachine::Windows::Ten, {.elevated = false});
    machine.logErrors();
    machine.add({.name = u"Spooler"_s, .start = 3});
    if (enable)
        machine.write(recordsKey, u"Spooler"_s, 1);
    WorkerOn worker(onTen);
    worker.optimizeRunning = 1;
    JobLines lines(worker);
    worker.SvcStopOrStart({u"Spooler"_s}, enable);
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(3)); // as it was
    QCOMPARE(machine.names(recordsKey), enable ? QStringList() : QStringList{u"Spooler"_s});
    QCOMPARE(lines.all().first(),
             enable ? u"automatizer: Service: enable Spooler done"_s : u"automatizer: Service: disable Spooler done"_s);
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceState::missingToolCountsAsDone_data()
{
    addColumns<bool, bool, QString>("ten", "enable", "message");
    QTest::newRow("11, disable") << false << false << u"automatizer: Service: disable and stop TrkWks done"_s;
    QTest::newRow("11, enable") << false << true << u"automatizer: Service: enable and start TrkWks done"_s;
    QTest::newRow("10, disable") << true << false << u"automatizer: Service: disable TrkWks done"_s;
    QTest::newRow("10, enable") << true << true << u"automatizer: Service: enable TrkWks done"_s;
}

void TestServiceState::missingToolCountsAsDone()
{
    QFETCH(const bool, ten);
    QFETCH(const bool, enable);
    QFETCH(const QString, message);
    LoggingMachine machine;
    machine.add({.name = u"TrkWks"_s, .start = 3});
    machine.machine().setFault(u"sc"_s, {.missing = true});
    WorkerOn worker(ten ? onTen : onEleven);
    worker.optimizeRunning = 1;
    JobLines lines(worker);
    worker.SvcStopOrStart({u"TrkWks"_s}, enable);
    QCOMPARE(lines.all(), (QStringList{message, u"automatizer: pgr:value:1"_s, finished}));
    QCOMPARE(machine.read(servicesKey + u"\\TrkWks"_s, u"Start"_s), QVariant(3)); // nothing has changed it
    QCOMPARE(machine.names(recordsKey), enable ? QStringList() : QStringList{u"TrkWks"_s});
    QCOMPARE(machine.platform().takePauses(), ten ? QList<int>{1020} : QList<int>({300, 300}));
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceState::hangingStopIsGivenUpAndTheStartModeIsStillSet()
{
    LoggingMachine machine;
    machine.add({.name = u"Spooler"_s, .start = 2, .running = true});
    machine.machine().setFault(u"sc stop"_s, {.hang = true});
    // Time enough for the second command on a computer that is busy.
    Command::timeLimit = 2000;
    WorkerOn worker(onEleven);
    worker.servicesToChange = {u"Spooler"_s};
    JobLines lines(worker);
    QVERIFY(runJob(worker, 9));
    QCOMPARE(scRuns(machine), QStringList{u"config|Spooler|start=disabled"_s}); // what hangs writes no line
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(4));
    QCOMPARE(machine.machine().isRunning(u"Spooler"_s), true);
    QCOMPARE(machine.names(recordsKey), QStringList{u"Spooler"_s});
    QCOMPARE(machine.platform().takePauses(), (QList<int>{300, 300}));
    QCOMPARE(lines.all(), (QStringList{u"page: pgr:max:1"_s, u"page: pgr:value:1"_s, u"page: Spooler"_s, finished}));
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceState::hangingLastStepCountsAsDone_data()
{
    addColumns<bool, QString>("enable", "last");
    QTest::newRow("disable") << false << u"sc config"_s;
    QTest::newRow("enable") << true << u"sc start"_s;
}

void TestServiceState::hangingLastStepCountsAsDone()
{
    // Its exit code is read before it is closed.
    QFETCH(const bool, enable);
    QFETCH(const QString, last);
    LoggingMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = 1062});
    machine.machine().setFault(last, {.hang = true});
    Command::timeLimit = 200;
    WorkerOn worker(onEleven);
    worker.restoreRunning = 1;
    JobLines lines(worker);
    worker.SvcStopOrStart({u"Spooler"_s}, enable);
    QCOMPARE(lines.all().first(), enable ? u"automatizer: Service: enable and start Spooler done"_s
                                         : u"automatizer: Service: disable and stop Spooler done"_s);
    QCOMPARE(machine.names(recordsKey), enable ? QStringList() : QStringList{u"Spooler"_s});
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceState::nothingIsLoggedUnlessTheLogIsOn()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = 5});
    WorkerOn worker(onEleven);
    worker.SvcStopOrStart({u"Spooler"_s}, false);
    QVERIFY(!QFile::exists(machine.platform().programFolder() + u"/log.txt"_s));
}

KESTRUNE_SUITE(TestServiceState)
#include "tst_servicestate.moc"
