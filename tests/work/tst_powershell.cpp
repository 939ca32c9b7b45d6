// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of where PowerShell is looked for.

#include "support/suite.h"
#include "support/testmachine.h"
#include "work/command.h"
#include "work/workthread.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TestPowerShell : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsFoundBelowTheWindowsFolder();
    void itIsFoundInAnyCase();
    void aMissingOneGivesAnEmptyProgramAndKeepsThePath();
    void anEmptyProgramFailsToStartAndReads0();
    void withoutWindirThePathStartsAtTheRoot();
};

namespace {

const QString path = u"C:\\Windows/system32/WindowsPowerShell/v1.0/powershell.exe"_s;

} // namespace

void TestPowerShell::itIsFoundBelowTheWindowsFolder()
{
    TestMachine machine;
    machine.addFile(u"C:\\Windows\\system32\\WindowsPowerShell\\v1.0\\powershell.exe"_s);
    WorkThread worker;
    QCOMPARE(worker.powerShellProgram(), path);
    QCOMPARE(worker.powerShellPath, path);
}

void TestPowerShell::itIsFoundInAnyCase()
{
    TestMachine machine;
    machine.addFile(u"C:\\Windows\\System32\\WINDOWSPOWERSHELL\\V1.0\\PowerShell.EXE"_s);
    WorkThread worker;
    QCOMPARE(worker.powerShellProgram(), path);
}

void TestPowerShell::aMissingOneGivesAnEmptyProgramAndKeepsThePath()
{
    const TestMachine machine;
    WorkThread worker;
    QCOMPARE(worker.powerShellProgram(), QString());
    QCOMPARE(worker.powerShellPath, path);
}

void TestPowerShell::anEmptyProgramFailsToStartAndReads0()
{
    LoggingMachine machine;
    WorkThread worker;
    Command command;
    command.start(worker.powerShellProgram(), {u"-Command"_s});
    command.waitForFinished();
    QVERIFY(command.failedToStart());
    QCOMPARE(command.exitCode(), 0);
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestPowerShell::withoutWindirThePathStartsAtTheRoot()
{
    TestMachine machine;
    machine.addFile(u"C:\\Windows\\system32\\WindowsPowerShell\\v1.0\\powershell.exe"_s);
    qunsetenv("windir");
    WorkThread worker;
    QCOMPARE(worker.powerShellProgram(), QString());
    QCOMPARE(worker.powerShellPath, u"/system32/WindowsPowerShell/v1.0/powershell.exe"_s);
}

KESTRUNE_SUITE(TestPowerShell)
#include "tst_powershell.moc"
