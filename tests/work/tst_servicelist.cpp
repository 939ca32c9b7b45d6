// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the list of services.

#include "fakeplatform.h"
#include "joblines.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/command.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList closingLine{u"page: WorkThread::SvcMakeList"_s};

/** One record of sc's report, as the tool prints it. */
QString record(const QString &name, const QString &state)
{
    return u"\r\nSERVICE_NAME: "_s + name + u"\r\nDISPLAY_NAME: "_s + name
           + u" service\r\n        TYPE               : 20  WIN32_SHARE_PROCESS  \r\n"_s
             u"        STATE              : "_s
           + state
           + u"\r\n        WIN32_EXIT_CODE    : 0  (0x0)\r\n        SERVICE_EXIT_CODE  : 0  (0x0)\r\n"_s
             u"        CHECKPOINT         : 0x0\r\n        WAIT_HINT          : 0x0\r\n"_s;
}

QStringList namesOf(const QList<ServiceRow> &rows)
{
    QStringList names;
    for (const ServiceRow &row : rows)
        names.append(row.name);
    return names;
}

QStringList runningOf(const QList<ServiceRow> &rows)
{
    QStringList names;
    for (const ServiceRow &row : rows) {
        if (row.running)
            names.append(row.name);
    }
    return names;
}

/** A list that is there from an earlier run. */
QList<ServiceRow> oldList()
{
    return {{u"Old"_s, u"Old service"_s, u"from before"_s, u"32"_s, u"2"_s, true}};
}

/** A system that has all tools and lets none of them be started. */
class RefusingSystem : public FakePlatform
{
public:
    QString programFile(const QString &program) const override { return program; }
    std::optional<AdmittedProgram> admitProgram(const QString &, const QStringList &) const override { return {}; }
};

} // namespace

class TestServiceList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { Command::timeLimit = 30000; }

    void scIsAskedOnceForAllServices();
    void aRowHasAllItsFields();
    void servicesAreListedByTheirType_data();
    void servicesAreListedByTheirType();
    void aTypeThatIsTextCountsAsItReads();
    void aServiceWithoutTypeIsLeftOut();
    void startIsTakenAsItReads_data();
    void startIsTakenAsItReads();
    void displayName_data();
    void displayName();
    void description_data();
    void description();
    void rowsComeInTheOrderOfTheRegistry();
    void namesAreTakenAsTheyAre_data();
    void namesAreTakenAsTheyAre();
    void subkeysOfAServiceAreNoServices();

    void reportTellsWhatRuns_data();
    void reportTellsWhatRuns();
    void recordsAreToldApart();
    void whatRunsIsReadFromTheRealTool();

    void missingToolKeepsTheListAndSendsNoLine();
    void missingToolIsNotLoggedUnlessTheLogIsOn();
    void failingToolLooksAsOneThatRuns();
    void refusedToolIsLoggedWithItsCodeAndTheListStays();
    void hangingToolIsGivenUpAndTheListStillFills();
    void whatAHangingToolHasPrintedCounts();
    void tenMegabytesAreRead();
    void aRunEmptiesTheListOfBefore();
    void aRunWithoutServicesGivesAnEmptyList();

    void duringAnalyzeNoClosingLineIsSent();
    void duringOptimizeTheClosingLineIsSent();
    void nothingIsLoggedOfAListingThatWorked();
    void theListingChangesNothingButTheBackup();
};

void TestServiceList::scIsAskedOnceForAllServices()
{
    const TestMachine machine;
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(machine.commands(), (QList<LoggedCommand>{{u"sc"_s, {u"query"_s, u"state="_s, u"all"_s}, 0}}));
    QCOMPARE(machine.platform().takePauses(), QList<int>());
}

void TestServiceList::aRowHasAllItsFields()
{
    TestMachine machine;
    machine.add({.name = u"Spooler"_s,
                 .type = 272,
                 .start = 2,
                 .running = true,
                 .displayName = u"Print Spooler"_s,
                 .description = u"Sends jobs to printers."_s});
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(worker.services.size(), 1);
    const ServiceRow &row = worker.services.at(0);
    QCOMPARE(row.name, u"Spooler"_s);
    QCOMPARE(row.displayName, u"Print Spooler"_s);
    QCOMPARE(row.description, u"Sends jobs to printers."_s);
    QCOMPARE(row.type, u"272"_s);
    QCOMPARE(row.start, u"2"_s);
    QCOMPARE(row.running, true);
}

void TestServiceList::servicesAreListedByTheirType_data()
{
    addColumns<int, bool>("type", "listed");
    for (const int type : {16, 32, 96, 224, 272})
        QTest::addRow("%d", type) << type << true;
    for (const int type : {0, 1, 2, 4, 8, 17, 33, 48, 64, 80, 128, 208, 256, 288, 512, -16, 160})
        QTest::addRow("%d", type) << type << false;
}

void TestServiceList::servicesAreListedByTheirType()
{
    QFETCH(const int, type);
    QFETCH(const bool, listed);
    TestMachine machine;
    machine.add({.name = u"Test"_s, .type = type});
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(namesOf(worker.services), listed ? QStringList{u"Test"_s} : QStringList());
    if (listed)
        QCOMPARE(worker.services.at(0).type, QString::number(type));
}

void TestServiceList::aTypeThatIsTextCountsAsItReads()
{
    TestMachine machine;
    for (const QString &type : {u"32"_s, u"272"_s, u"0x20"_s, u" 32"_s, u"32.0"_s, u"service"_s})
        machine.write(servicesKey + u"\\Of type "_s + type, u"Type"_s, type);
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(namesOf(worker.services), (QStringList{u"Of type 272"_s, u"Of type 32"_s}));
    QCOMPARE(worker.services.at(0).type, u"272"_s);
}

void TestServiceList::aServiceWithoutTypeIsLeftOut()
{
    TestMachine machine;
    machine.write(servicesKey + u"\\Odd"_s, u"Start"_s, 2);
    machine.write(servicesKey + u"\\Odd"_s, u"DisplayName"_s, u"Odd one"_s);
    machine.add({.name = u"Test"_s});
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(namesOf(worker.services), QStringList{u"Test"_s});
}

void TestServiceList::startIsTakenAsItReads_data()
{
    addColumns<QVariant, QString>("start", "text");
    for (const int start : {0, 1, 2, 3, 4, 7})
        QTest::addRow("%d", start) << QVariant(start) << QString::number(start);
    QTest::newRow("none") << QVariant() << QString();
    QTest::newRow("text") << QVariant(u"auto"_s) << u"auto"_s;
}

void TestServiceList::startIsTakenAsItReads()
{
    QFETCH(const QVariant, start);
    QFETCH(const QString, text);
    TestMachine machine;
    machine.write(servicesKey + u"\\Test"_s, u"Type"_s, 16);
    if (start.isValid())
        machine.write(servicesKey + u"\\Test"_s, u"Start"_s, start);
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(worker.services.size(), 1);
    QCOMPARE(worker.services.at(0).start, text);
}

void TestServiceList::displayName_data()
{
    addColumns<QString, QString>("value", "text");
    QTest::newRow("plain") << u"Print Spooler"_s << u"Print Spooler"_s;
    QTest::newRow("missing") << QString() << QString();
    QTest::newRow("reference") << u"@a.dll,-100"_s << u"Text of a"_s;
    QTest::newRow("reference to a missing DLL") << u"@missing.dll,-100"_s << u"no description"_s;
    QTest::newRow("reference with a number that is none") << u"@a.dll,-x"_s << u"no description"_s;
    QTest::newRow("error gives the name") << u"error: not found"_s << u"Test"_s;
    QTest::newRow("error alone gives the name") << u"error"_s << u"Test"_s;
    QTest::newRow("error after a reference gives the name") << u"@a.dll,-105"_s << u"Test"_s;
    QTest::newRow("Error in another case is a text") << u"Error Reporting"_s << u"Error Reporting"_s;
    QTest::newRow("error further on is a text") << u"Windows error reporting"_s << u"Windows error reporting"_s;
}

void TestServiceList::displayName()
{
    QFETCH(const QString, value);
    QFETCH(const QString, text);
    TestMachine machine;
    machine.addFile(u"C:\\Windows\\System32\\a.dll"_s);
    machine.machine().setDllStrings(u"C:\\Windows\\System32\\a.dll"_s, {{100, u"Text of a"_s}, {105, u"error 5"_s}});
    machine.add({.name = u"Test"_s, .displayName = value});
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(worker.services.at(0).displayName, text);
}

void TestServiceList::description_data()
{
    addColumns<QVariant, QString>("value", "text");
    const QString none = u"no description"_s;
    QTest::newRow("plain") << QVariant(u"Sends jobs."_s) << u"Sends jobs."_s;
    QTest::newRow("none") << QVariant() << none;
    QTest::newRow("empty") << QVariant(u""_s) << none;
    QTest::newRow("reference") << QVariant(u"@a.dll,-100"_s) << u"Text of a"_s;
    QTest::newRow("reference to a missing DLL") << QVariant(u"@missing.dll,-100"_s) << none;
    QTest::newRow("reference to an empty string") << QVariant(u"@a.dll,-101"_s) << none;
    QTest::newRow("error") << QVariant(u"error 2"_s) << none;
    QTest::newRow("error after a reference") << QVariant(u"@a.dll,-105"_s) << none;
    QTest::newRow("Error in another case") << QVariant(u"Error 2"_s) << u"Error 2"_s;
}

void TestServiceList::description()
{
    QFETCH(const QVariant, value);
    QFETCH(const QString, text);
    TestMachine machine;
    machine.addFile(u"C:\\Windows\\System32\\a.dll"_s);
    machine.machine().setDllStrings(u"C:\\Windows\\System32\\a.dll"_s,
                                    {{100, u"Text of a"_s}, {101, QString(u""_s)}, {105, u"error 5"_s}});
    machine.add({.name = u"Test"_s});
    if (value.isValid())
        machine.write(servicesKey + u"\\Test"_s, u"Description"_s, value);
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(worker.services.at(0).description, text);
}

void TestServiceList::rowsComeInTheOrderOfTheRegistry()
{
    TestMachine machine;
    for (const QString &name : {u"beta"_s, u"Zeta"_s, u"alpha"_s, u"Alpha2"_s, u"_x"_s, u"9"_s})
        machine.add({.name = name});
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(namesOf(worker.services), (QStringList{u"9"_s, u"Alpha2"_s, u"Zeta"_s, u"_x"_s, u"alpha"_s, u"beta"_s}));
}

void TestServiceList::namesAreTakenAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << u"My own service"_s;
    QTest::newRow("quotes") << u"My \"own\" 'service'"_s;
    QTest::newRow("colon") << u"Vendor: 4 Updater"_s;
    QTest::newRow("colon at the end") << u"Vendor:"_s;
    QTest::newRow("percent sign") << u"100%1 service"_s;
    QTest::newRow("suffix of a user") << u"cbdhsvc_5cbba"_s;
    QTest::newRow("other letters") << u"Überwachung 服务"_s;
}

void TestServiceList::namesAreTakenAsTheyAre()
{
    QFETCH(const QString, name);
    TestMachine machine;
    machine.add({.name = name, .running = true});
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(namesOf(worker.services), QStringList{name});
    QCOMPARE(runningOf(worker.services), QStringList{name});
}

void TestServiceList::subkeysOfAServiceAreNoServices()
{
    TestMachine machine;
    machine.add({.name = u"Test"_s});
    machine.write(servicesKey + u"\\Test\\Parameters"_s, u"Type"_s, 32);
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(namesOf(worker.services), QStringList{u"Test"_s});
}

void TestServiceList::reportTellsWhatRuns_data()
{
    addColumns<QString, bool>("report", "running");
    const auto row = [](const char *title, const QString &report, bool running) {
        QTest::newRow(title) << report << running;
    };
    const QString head = u"\r\nSERVICE_NAME: Spooler\r\n"_s;
    const QString state = u"        STATE              : "_s;

    row("running", record(u"Spooler"_s, u"4  RUNNING "_s), true);
    row("stopped", record(u"Spooler"_s, u"1  STOPPED "_s), false);
    row("starting", record(u"Spooler"_s, u"2  START_PENDING "_s), false);
    row("stopping", record(u"Spooler"_s, u"3  STOP_PENDING "_s), false);
    row("continuing", record(u"Spooler"_s, u"5  CONTINUE_PENDING "_s), false);
    row("paused", record(u"Spooler"_s, u"7  PAUSED "_s), false);
    row("4 with another language's word", record(u"Spooler"_s, u"4  WIRD AUSGEFÜHRT "_s), true);
    row("4 with any text", record(u"Spooler"_s, u"4-no matter"_s), true);
    row("4 alone", record(u"Spooler"_s, u"4"_s), true);
    row("4 as the first of two digits", record(u"Spooler"_s, u"42"_s), true);
    row("4 as the second of two digits", record(u"Spooler"_s, u"14"_s), false);
    row("4 after another blank", record(u"Spooler"_s, u" 4  RUNNING"_s), false);

    row("nothing", u""_s, false);
    row("no records", u"There are no services.\r\n"_s, false);
    row("a state without any name", u"Spooler\r\n"_s + state + u"4  RUNNING \r\n"_s, false);
    row("names in another case", u"\r\nService_Name: Spooler\r\n"_s + state + u"4  RUNNING \r\n"_s, false);
    row("names in another language", u"\r\nDIENSTNAME: Spooler\r\n"_s + state + u"4  RUNNING \r\n"_s, false);
    row("names without a blank", u"\r\nSERVICE_NAME:Spooler\r\n"_s + state + u"4  RUNNING \r\n"_s, false);
    row("states in another language", head + u"        STATUS             : 4  RUNNING \r\n"_s, false);
    row("states in another case", head + u"        State              : 4  RUNNING \r\n"_s, false);
    row("another label before the state", head + u"        TYP : 4\r\n"_s + state + u"1  STOPPED \r\n"_s, false);

    row("cut off in the name", u"\r\nSERVICE_NAME: Spo"_s, false);
    row("cut off after the name", head, false);
    row("cut off in the label", head + u"        STA"_s, false);
    row("cut off after the label", head + u"        STATE "_s, false);
    row("cut off before the digit", head + state, false);
    row("cut off after the digit", head + state + u"4"_s, true);

    row("another service's name", record(u"Spooler2"_s, u"4  RUNNING "_s), false);
    row("the name in another case", record(u"SPOOLER"_s, u"4  RUNNING "_s), false);
    row("a blank after the name", record(u"Spooler "_s, u"4  RUNNING "_s), false);
    row("lines ended by LF alone", record(u"Spooler"_s, u"4  RUNNING "_s).remove(u'\r'), false);
    row("record that doesn't begin a line", u"x SERVICE_NAME: Spooler\r\n STATE : 4"_s, true);
    row("the first state of a record counts", head + state + u"1 STOPPED\r\n"_s + state + u"4 RUNNING\r\n"_s, false);
    row("the same service twice", record(u"Spooler"_s, u"1"_s) + record(u"Spooler"_s, u"4"_s), true);
    row("noise around", QString(5000, u'#') + record(u"Spooler"_s, u"4"_s) + QString(5000, u'\xfffd'), true);
}

void TestServiceList::reportTellsWhatRuns()
{
    QFETCH(const QString, report);
    QFETCH(const bool, running);
    LoggingMachine machine;
    machine.add({.name = u"Spooler"_s});
    machine.add({.name = u"Other"_s});
    machine.machine().setFault(u"sc query"_s, {.output = report});
    WorkThread worker;
    JobLines lines(worker);
    worker.SvcMakeList();
    QCOMPARE(namesOf(worker.services), (QStringList{u"Other"_s, u"Spooler"_s}));
    QCOMPARE(runningOf(worker.services), running ? QStringList{u"Spooler"_s} : QStringList());
    QCOMPARE(lines.all(), closingLine);
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceList::recordsAreToldApart()
{
    TestMachine machine;
    QString report;
    for (const QString &name : {u"A"_s, u"B"_s, u"C"_s, u"D"_s})
        machine.add({.name = name});
    report += record(u"A"_s, u"4  RUNNING "_s);
    report += u"\r\nSERVICE_NAME: B\r\nDISPLAY_NAME: a record without its state\r\n"_s;
    report += record(u"C"_s, u"1  STOPPED "_s) + record(u"D"_s, u"4  RUNNING "_s);
    machine.machine().setFault(u"sc query"_s, {.output = report});
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(runningOf(worker.services), (QStringList{u"A"_s, u"D"_s}));
}

void TestServiceList::whatRunsIsReadFromTheRealTool()
{
    TestMachine machine;
    machine.add({.name = u"Runs"_s, .type = 16, .running = true});
    machine.add({.name = u"RunsToo"_s, .type = 224, .running = true});
    machine.add({.name = u"Stopped"_s, .type = 32, .running = false});
    machine.write(servicesKey + u"\\NeverRan"_s, u"Type"_s, 32);
    machine.write(servicesKey + u"\\NeverRan"_s, u"Start"_s, 3);
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(worker.services.size(), 4);
    QCOMPARE(runningOf(worker.services), (QStringList{u"Runs"_s, u"RunsToo"_s}));
}

void TestServiceList::missingToolKeepsTheListAndSendsNoLine()
{
    LoggingMachine machine;
    machine.add({.name = u"Spooler"_s});
    machine.machine().setFault(u"sc"_s, {.missing = true});
    WorkThread worker;
    worker.services = oldList();
    JobLines lines(worker);
    QVERIFY(runJob(worker, 0));
    QCOMPARE(lines.all(), QStringList());
    QCOMPARE(namesOf(worker.services), QStringList{u"Old"_s});
    QCOMPARE(machine.errorLog(), QStringList{u"SvcMakeList: sc process error: Process failed to start: "
                                             u"The system cannot find the file specified."_s});
}

void TestServiceList::missingToolIsNotLoggedUnlessTheLogIsOn()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.missing = true});
    WorkThread worker;
    worker.SvcMakeList();
    QVERIFY(!QFile::exists(machine.platform().programFolder() + u"/log.txt"_s));
}

void TestServiceList::refusedToolIsLoggedWithItsCodeAndTheListStays()
{
    const PlatformInForce<RefusingSystem> refusing;
    WorkThread worker;
    worker.services = oldList();
    JobLines lines(worker);
    QVERIFY(runJob(worker, 0));
    QCOMPARE(lines.all(), QStringList());
    QCOMPARE(namesOf(worker.services), QStringList{u"Old"_s});
    QCOMPARE(refusing->errorLog(), QStringList{u"SvcMakeList: sc process error, exitCode: 5"_s});
}

void TestServiceList::failingToolLooksAsOneThatRuns()
{
    // The exit code is read when the tool has only just begun, so that it is 0 then.
    LoggingMachine machine;
    machine.add({.name = u"Spooler"_s, .running = true});
    machine.machine().setFault(u"sc"_s, {.exitCode = 5});
    WorkThread worker;
    worker.services = oldList();
    JobLines lines(worker);
    QVERIFY(runJob(worker, 0));
    QCOMPARE(machine.commands().value(0).exitCode, 5);
    QCOMPARE(lines.all(), closingLine);
    QCOMPARE(namesOf(worker.services), QStringList{u"Spooler"_s});
    QCOMPARE(runningOf(worker.services), QStringList());
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceList::hangingToolIsGivenUpAndTheListStillFills()
{
    LoggingMachine machine;
    machine.add({.name = u"Spooler"_s, .running = true});
    machine.machine().setFault(u"sc"_s, {.hang = true});
    Command::timeLimit = 200;
    WorkThread worker;
    JobLines lines(worker);
    QElapsedTimer timer;
    timer.start();
    QVERIFY(runJob(worker, 0));
    QVERIFY(timer.elapsed() >= 400); // once for its end and once for its output
    QCOMPARE(lines.all(), closingLine);
    QCOMPARE(namesOf(worker.services), QStringList{u"Spooler"_s});
    QCOMPARE(runningOf(worker.services), QStringList());
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceList::whatAHangingToolHasPrintedCounts()
{
    TestMachine machine;
    machine.add({.name = u"Runs"_s});
    machine.add({.name = u"Spooler"_s});
    machine.machine().setFault(u"sc"_s,
                               {.hang = true, .output = record(u"Runs"_s, u"4"_s) + u"\r\nSERVICE_NAME: Spo"_s});
    Command::timeLimit = 500;
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 0));
    QCOMPARE(lines.all(), closingLine);
    QCOMPARE(runningOf(worker.services), QStringList{u"Runs"_s});
}

void TestServiceList::tenMegabytesAreRead()
{
    TestMachine machine;
    machine.add({.name = u"Spooler"_s});
    machine.add({.name = u"Other"_s});
    const QString one = record(u"Spooler"_s, u"4  RUNNING "_s) + record(u"Other"_s, u"1  STOPPED "_s);
    machine.machine().setFault(u"sc"_s, {.output = one, .repeat = int(10 * 1024 * 1024 / one.size() + 1)});
    WorkThread worker;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 0));
    QCOMPARE(lines.all(), closingLine);
    QCOMPARE(namesOf(worker.services), (QStringList{u"Other"_s, u"Spooler"_s}));
    QCOMPARE(runningOf(worker.services), QStringList{u"Spooler"_s});
}

void TestServiceList::aRunEmptiesTheListOfBefore()
{
    TestMachine machine;
    machine.add({.name = u"Spooler"_s});
    WorkThread worker;
    worker.services = oldList();
    QVERIFY(runJob(worker, 0));
    QVERIFY(runJob(worker, 0));
    QCOMPARE(namesOf(worker.services), QStringList{u"Spooler"_s});
}

void TestServiceList::aRunWithoutServicesGivesAnEmptyList()
{
    const TestMachine machine;
    WorkThread worker;
    worker.services = oldList();
    JobLines lines(worker);
    QVERIFY(runJob(worker, 0));
    QVERIFY(worker.services.isEmpty());
    QCOMPARE(lines.all(), closingLine);
}

void TestServiceList::duringAnalyzeNoClosingLineIsSent()
{
    TestMachine machine;
    machine.add({.name = u"Spooler"_s});
    WorkThread worker;
    worker.analyzeRunning = 1;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 0));
    QCOMPARE(lines.all(), QStringList());
    QCOMPARE(namesOf(worker.services), QStringList{u"Spooler"_s});
}

void TestServiceList::duringOptimizeTheClosingLineIsSent()
{
    const TestMachine machine;
    WorkThread worker;
    worker.optimizeRunning = 1;
    worker.restoreRunning = 1;
    JobLines lines(worker);
    QVERIFY(runJob(worker, 0));
    QCOMPARE(lines.all(), closingLine);
}

void TestServiceList::nothingIsLoggedOfAListingThatWorked()
{
    LoggingMachine machine;
    machine.add({.name = u"Spooler"_s, .description = u"@missing.dll,-1"_s});
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestServiceList::theListingChangesNothingButTheBackup()
{
    TestMachine machine;
    machine.add({.name = u"Spooler"_s, .start = 3, .running = true});
    WorkThread worker;
    worker.SvcMakeList();
    QCOMPARE(machine.names(servicesKey + u"\\Spooler"_s), (QStringList{u"Start"_s, u"Type"_s}));
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(3));
    QCOMPARE(machine.machine().isRunning(u"Spooler"_s), true);
    QCOMPARE(machine.names(settingsKey), QStringList());
    QVERIFY(QFile::exists(machine.platform().programFolder() + u"/backup_svc/StartMode.reg"_s));
}

KESTRUNE_SUITE(TestServiceList)
#include "tst_servicelist.moc"
