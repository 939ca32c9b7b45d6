// SPDX-License-Identifier: GPL-3.0-or-later
// OneDriveSetup, run as the process it is.

#include "support/suite.h"
#include "support/toolrun.h"

#include "machine/compare/machinediff.h"
#include "machine/source/regfile.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString program = u"C:\\Users\\Alex\\AppData\\Local\\Microsoft\\OneDrive\\OneDrive.exe"_s;
const Variables variables{{u"LOCALAPPDATA"_s, u"C:\\Users\\Alex\\AppData\\Local"_s}};
const QString currentVersion = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion"_s;

} // namespace

class TestOneDriveSetup : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void installs();
    void uninstallsAndBringsBackTheSame();
    void uninstallWithoutOneDrive();
    void otherArgumentsDoNothing_data();
    void otherArgumentsDoNothing();
};

void TestOneDriveSetup::installs()
{
    SmallMachine machine;
    const Ended ended = runTool(machine, u"onedrivesetup"_s, {u"/silent"_s}, variables);
    QCOMPARE(ended.exitCode, 0);
    QVERIFY(QFile::exists(machine->hostPath(program)));
    const QString script = writeRegistryScript(machine->registry(), currentVersion);
    QVERIFY(script.contains(
        u"\\Run]\n\"OneDrive\"=\"\\\"%1\\\" /background\"\n"_s.arg(QString(program).replace(u"\\"_s, u"\\\\"_s))));
    QVERIFY(script.contains("\\Uninstall\\OneDriveSetup.exe]\n"_L1));
    QVERIFY(script.contains("\\\\OneDriveSetup.exe\\\"  /uninstall \"\n"_L1));
}

void TestOneDriveSetup::uninstallsAndBringsBackTheSame()
{
    SmallMachine before;
    SmallMachine machine;
    machine->setProcesses({u"OneDrive.exe"_s, u"explorer.exe"_s});
    for (SmallMachine *each : {&before, &machine})
        runTool(*each, u"onedrivesetup"_s, {u"/silent"_s}, variables);
    QCOMPARE(compareMachines(*before, *machine), QList<DiffRow>());

    QCOMPARE(runTool(machine, u"onedrivesetup"_s, {u"/uninstall"_s}, variables).exitCode, 0);
    QVERIFY(!QFile::exists(machine->hostPath(program)));
    QVERIFY(!machine->registry().find(currentVersion + u"\\Uninstall\\OneDriveSetup.exe"_s));
    QVERIFY(machine->registry().valueNames(*machine->registry().find(currentVersion + u"\\Run"_s)).isEmpty());
    QCOMPARE(machine->processes(), QStringList(u"explorer.exe"_s));

    QCOMPARE(runTool(machine, u"onedrivesetup"_s, {u"/silent"_s}, variables).exitCode, 0);
    QCOMPARE(compareMachines(*before, *machine), QList<DiffRow>());
}

void TestOneDriveSetup::uninstallWithoutOneDrive()
{
    SmallMachine machine;
    QCOMPARE(runTool(machine, u"onedrivesetup"_s, {u"/uninstall"_s}, variables).exitCode, 0);
}

void TestOneDriveSetup::otherArgumentsDoNothing_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("none") << QStringList();
    QTest::newRow("unknown") << QStringList{u"/allusers"_s};
    QTest::newRow("both") << QStringList{u"/silent"_s, u"/uninstall"_s};
}

void TestOneDriveSetup::otherArgumentsDoNothing()
{
    QFETCH(QStringList, arguments);
    SmallMachine before;
    SmallMachine machine;
    QCOMPARE(runTool(machine, u"onedrivesetup"_s, arguments, variables).exitCode, 1);
    QCOMPARE(compareMachines(*before, *machine), QList<DiffRow>());
}

KESTRUNE_SUITE(TestOneDriveSetup)
#include "tst_onedrivesetup.moc"
