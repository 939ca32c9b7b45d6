// SPDX-License-Identifier: GPL-3.0-or-later
// taskkill, run as the process it is.

#include "support/suite.h"
#include "support/toolrun.h"

#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

class TestTaskkill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void endsAllOfAName();
    void endsThemForTheInstrumentationToo();
    void withoutTheTreeItNamesTheProgram();
    void noneOfThatName();
    void badArguments_data();
    void badArguments();
};

void TestTaskkill::endsAllOfAName()
{
    SmallMachine machine;
    machine->setProcesses({u"SearchHost.exe"_s, u"explorer.exe"_s, u"searchhost.EXE"_s});
    const Ended ended = runTool(machine, u"taskkill"_s, {u"/im"_s, u"SearchHost.exe"_s, u"/f"_s, u"/t"_s});
    QCOMPARE(ended.exitCode, 0);
    QCOMPARE(ended.output,
             QByteArray("SUCCESS: The process with PID 1000 (child process of PID 996) has been terminated.\r\n"
                        "SUCCESS: The process with PID 1008 (child process of PID 996) has been terminated.\r\n"));
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(machine->processes(), QStringList(u"explorer.exe"_s));
}

void TestTaskkill::endsThemForTheInstrumentationToo()
{
    SmallMachine machine;
    machine->setProcesses({u"a.exe"_s, u"b.exe"_s});
    machine->setWmiInstances(u"Win32_Process"_s, {{{u"Name"_s, u"A.exe"_s}}, {{u"Name"_s, u"b.exe"_s}}});
    runTool(machine, u"taskkill"_s, {u"/im"_s, u"a.exe"_s, u"/f"_s, u"/t"_s});
    QCOMPARE(machine->wmiInstances(u"Win32_Process"_s), QList<QJsonObject>({{{u"Name"_s, u"b.exe"_s}}}));
}

void TestTaskkill::withoutTheTreeItNamesTheProgram()
{
    SmallMachine machine;
    const Ended ended = runTool(machine, u"taskkill"_s, {u"/F"_s, u"/IM"_s, u"EXPLORER.exe"_s});
    QCOMPARE(ended.output, QByteArray("SUCCESS: The process \"explorer.exe\" with PID 1000 has been terminated.\r\n"));
}

void TestTaskkill::noneOfThatName()
{
    SmallMachine machine;
    const QStringList processes = machine->processes();
    const Ended ended = runTool(machine, u"taskkill"_s, {u"/im"_s, u"Größe; $(x).exe"_s, u"/f"_s, u"/t"_s});
    QCOMPARE(ended.exitCode, 128);
    QCOMPARE(ended.output, QByteArray());
    QCOMPARE(ended.errors, QByteArray("ERROR: The process \"Gr\x94\xe1"
                                      "e; $(x).exe\" not found.\r\n"));
    QCOMPARE(machine->processes(), processes);
    QVERIFY(!machine->hasWmiClass(u"Win32_Process"_s));
}

void TestTaskkill::badArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("none") << QStringList();
    QTest::newRow("no name") << QStringList{u"/f"_s, u"/im"_s};
    QTest::newRow("unknown") << QStringList{u"/im"_s, u"explorer.exe"_s, u"/x"_s};
}

void TestTaskkill::badArguments()
{
    QFETCH(QStringList, arguments);
    SmallMachine machine;
    const Ended ended = runTool(machine, u"taskkill"_s, arguments);
    QCOMPARE(ended.exitCode, 1);
    QVERIFY(ended.errors.startsWith("ERROR: Invalid syntax."));
    QCOMPARE(machine->processes().size(), 2);
}

KESTRUNE_SUITE(TestTaskkill)
#include "tst_taskkill.moc"
