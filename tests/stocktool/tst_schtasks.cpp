// SPDX-License-Identifier: GPL-3.0-or-later
// schtasks, run as the process it is.

#include "support/suite.h"
#include "support/toolrun.h"

#include "machine/source/toolreport.h"
#include "platform/taskdocument.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString defrag = u"\\Microsoft\\Windows\\Defrag\\ScheduledDefrag"_s;

QString document(const QString &principal, const QString &description = {})
{
    return u"<Task>\n  <RegistrationInfo>\n    <Description>%2</Description>\n  </RegistrationInfo>\n  <Principals>\n"
           "    <Principal id=\"p\">%1</Principal>\n  </Principals>\n  <Settings>\n"
           "    <StopIfGoingOnBatteries>true</StopIfGoingOnBatteries>\n    <Hidden>false</Hidden>\n  </Settings>\n</Task>"_s
               .arg(principal, description);
}

/** A machine with a task of each kind of principal. */
void addTasks(SmallMachine &machine)
{
    machine->setTask({u"\\user's own"_s, document(u"<UserId>S-1-5-21-1-2-3-1001</UserId>"_s, u"Größe – ®"_s)});
    machine->setTask({defrag, document(u"<UserId>S-1-5-18</UserId>"_s)});
    machine->setTask({u"\\highest"_s, document(u"<GroupId>x</GroupId><RunLevel>HighestAvailable</RunLevel>"_s)});
    machine->setTask({u"\\service"_s, document(u"<UserId>S-1-5-19</UserId>"_s)});
}

QStringList pathsIn(const QByteArray &printed)
{
    QStringList paths;
    for (const ScheduledTask &task : parseTaskExport(printed, u"f"_s))
        paths.append(task.path);
    return paths;
}

} // namespace

class TestSchtasks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listIsPrintedByteForByte();
    void listInOneDocument();
    void ownListComesBack();
    void listLeavesOutWhatIsForAdministrators();
    void listOfNoTasks();
    void changeSwitchesTheTask_data();
    void changeSwitchesTheTask();
    void failuresChangeNothing_data();
    void failuresChangeNothing();
    void namesArriveUnchanged_data();
    void namesArriveUnchanged();
    void faultsOfOneVerb();
};

void TestSchtasks::listIsPrintedByteForByte()
{
    SmallMachine machine;
    machine->setTask({u"\\Grün"_s, document(u"<UserId>S-1-5-18</UserId>"_s, u"Größe – ® & 日"_s)});
    const QByteArray expected =
        "\r\n<!-- \\Gr\x81n -->\r\n<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n<Task>\r\n  <RegistrationInfo>\r\n"
        "    <Description>Gr\x94\xe1"
        "e ? \xa9 & ?</Description>\r\n  </RegistrationInfo>\r\n  <Principals>\r\n"
        "    <Principal id=\"p\"><UserId>S-1-5-18</UserId></Principal>\r\n  </Principals>\r\n  <Settings>\r\n"
        "    <StopIfGoingOnBatteries>true</StopIfGoingOnBatteries>\r\n    <Hidden>false</Hidden>\r\n"
        "  </Settings>\r\n</Task>\r\n";
    for (const QStringList &arguments : {QStringList{u"/xml"_s}, QStringList{u"/Query"_s, u"/XML"_s}}) {
        const Ended ended = runTool(machine, u"schtasks"_s, arguments);
        QCOMPARE(ended.exitCode, 0);
        QCOMPARE(ended.output, expected);
        QCOMPARE(ended.errors, QByteArray());
    }
}

void TestSchtasks::listInOneDocument()
{
    SmallMachine machine;
    addTasks(machine);
    const Ended ended = runTool(machine, u"schtasks"_s, {u"/query"_s, u"/xml"_s, u"ONE"_s});
    QVERIFY(ended.output.startsWith("<?xml version=\"1.0\" ?>\r\n<Tasks>\r\n"));
    QVERIFY(ended.output.endsWith("</Task>\r\n\r\n</Tasks>\r\n"));
    QCOMPARE(pathsIn(ended.output).size(), 4);
}

void TestSchtasks::ownListComesBack()
{
    SmallMachine machine;
    addTasks(machine);
    machine->setTask({u"\\user's own"_s, document({}, u"Größe ®"_s)}); // without what the code page lacks
    const QList<ScheduledTask> tasks = machine->tasks();
    QCOMPARE(parseTaskExport(runTool(machine, u"schtasks"_s, {u"/xml"_s}).output, u"f"_s), tasks);
}

void TestSchtasks::listLeavesOutWhatIsForAdministrators()
{
    SmallMachine machine;
    addTasks(machine);
    QCOMPARE(pathsIn(runTool(machine, u"schtasks"_s, {u"/xml"_s}, elevated).output),
             QStringList({u"\\user's own"_s, defrag, u"\\highest"_s, u"\\service"_s}));
    QCOMPARE(pathsIn(runTool(machine, u"schtasks"_s, {u"/xml"_s}, notElevated).output),
             QStringList({u"\\user's own"_s, u"\\service"_s}));
}

void TestSchtasks::listOfNoTasks()
{
    SmallMachine machine;
    const Ended ended = runTool(machine, u"schtasks"_s, {u"/xml"_s});
    QCOMPARE(ended.exitCode, 0);
    QCOMPARE(ended.output, QByteArray());
}

void TestSchtasks::changeSwitchesTheTask_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("with its backslash") << defrag;
    QTest::newRow("without its backslash") << defrag.mid(1);
    QTest::newRow("in another case") << defrag.toUpper();
}

void TestSchtasks::changeSwitchesTheTask()
{
    QFETCH(QString, path);
    SmallMachine machine;
    addTasks(machine);
    const QList<ScheduledTask> before = machine->tasks();
    const QByteArray success =
        "SUCCESS: The parameters of scheduled task \"" + path.toUtf8() + "\" have been changed.\r\n";

    // Doing it twice is doing it once.
    for (int i = 0; i < 2; ++i) {
        const Ended ended = runTool(machine, u"schtasks"_s, {u"/CHANGE"_s, u"/TN"_s, path, u"/DISABLE"_s});
        QCOMPARE(ended.exitCode, 0);
        QCOMPARE(ended.output, success);
        QCOMPARE(ended.errors, QByteArray());
        QCOMPARE(machine->task(defrag)->document.count("\n    <Enabled>false</Enabled>\n    <Hidden>"_L1), 1);
        QCOMPARE(machine->task(defrag)->document.count("Enabled"_L1), 2);
    }
    QVERIFY(!taskFacts(machine->task(defrag)->document).enabled);
    const Ended ended = runTool(machine, u"schtasks"_s, {u"/change"_s, u"/enable"_s, u"/tn"_s, path});
    QCOMPARE(ended.exitCode, 0);
    QCOMPARE(machine->tasks(), before);
}

void TestSchtasks::failuresChangeNothing_data()
{
    addColumns<QStringList, bool, QByteArray>("arguments", "isElevated", "errors");
    const QStringList change{u"/CHANGE"_s, u"/TN"_s};
    // clang-format off
    QTest::newRow("no such task")       << change + QStringList{u"none"_s, u"/DISABLE"_s} << true
                                        << QByteArray("ERROR: The specified task name \"none\" does not exist in the system.\r\n");
    QTest::newRow("folder")             << change + QStringList{u"\\Microsoft\\Windows\\Defrag"_s, u"/DISABLE"_s} << true
                                        << QByteArray("ERROR: The specified task name \"\\Microsoft\\Windows\\Defrag\" does not exist in the system.\r\n");
    QTest::newRow("not elevated")       << change + QStringList{defrag, u"/DISABLE"_s} << false << QByteArray("ERROR: Access is denied.\r\n");
    QTest::newRow("nothing")            << QStringList() << true << QByteArray("ERROR: Invalid syntax. ");
    QTest::newRow("unknown verb")       << QStringList{u"/delete"_s} << true << QByteArray("ERROR: Invalid syntax. Invalid argument/option - '/delete'.\r\nType \"SCHTASKS /?\" for usage.\r\n");
    QTest::newRow("no name")            << QStringList{u"/CHANGE"_s, u"/DISABLE"_s} << true << QByteArray("ERROR: Invalid syntax. ");
    QTest::newRow("name missing")       << change << true << QByteArray("ERROR: Invalid syntax. Value expected for '/tn'.\r\n");
    QTest::newRow("no change")          << change + QStringList{defrag} << true << QByteArray("ERROR: Invalid syntax. ");
    QTest::newRow("both")               << change + QStringList{defrag, u"/ENABLE"_s, u"/DISABLE"_s} << true << QByteArray("ERROR: Invalid syntax. ");
    QTest::newRow("query of a table")   << QStringList{u"/query"_s} << true << QByteArray("ERROR: Invalid syntax. ");
    // clang-format on
}

void TestSchtasks::failuresChangeNothing()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, isElevated);
    QFETCH(QByteArray, errors);
    SmallMachine machine;
    addTasks(machine);
    const QList<ScheduledTask> before = machine->tasks();
    const Ended ended = runTool(machine, u"schtasks"_s, arguments, isElevated ? elevated : notElevated);
    QCOMPARE(ended.exitCode, 1);
    QCOMPARE(ended.output, QByteArray());
    QVERIFY2(ended.errors.startsWith(errors), ended.errors.constData());
    QCOMPARE(machine->tasks(), before);
}

void TestSchtasks::namesArriveUnchanged_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"with blanks ", "\"quoted\"", "a;b", "$(calc)", "%TEMP%", "a & b | c", "Gr\u00f6\u00dfe"})
        QTest::newRow(name) << QString::fromUtf8(name);
}

void TestSchtasks::namesArriveUnchanged()
{
    QFETCH(QString, name);
    SmallMachine machine;
    machine->setTask({u'\\' + name, document({})});
    const QStringList arguments{u"/CHANGE"_s, u"/TN"_s, name, u"/DISABLE"_s};
    QCOMPARE(runTool(machine, u"schtasks"_s, arguments).exitCode, 0);
    const QJsonObject line = QJsonDocument::fromJson(readFile(machine.folder() + u"/commands.log"_s)).object();
    QCOMPARE(line.value("arguments"_L1).toArray(), QJsonArray::fromStringList(arguments));
    QVERIFY(!taskFacts(machine->task(u'\\' + name)->document).enabled);
}

void TestSchtasks::faultsOfOneVerb()
{
    SmallMachine machine;
    addTasks(machine);
    ToolFault fault;
    fault.exitCode = 1;
    machine->setFault(u"schtasks /CHANGE"_s, fault);
    QCOMPARE(runTool(machine, u"schtasks"_s, {u"/CHANGE"_s, u"/TN"_s, defrag, u"/DISABLE"_s}).exitCode, 1);
    QVERIFY(taskFacts(machine->task(defrag)->document).enabled);
    QCOMPARE(runTool(machine, u"schtasks"_s, {u"/xml"_s}).exitCode, 0);
}

KESTRUNE_SUITE(TestSchtasks)
#include "tst_schtasks.moc"
