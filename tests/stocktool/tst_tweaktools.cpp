// SPDX-License-Identifier: GPL-3.0-or-later
// powercfg, bcdedit, takeown and icacls, each run as the process it is.

#include "support/suite.h"
#include "support/toolrun.h"

#include "machine/compare/machinediff.h"

#include <QFileInfo>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString powerKey = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Power"_s;
const QString hiberfile = u"C:\\hiberfil.sys"_s;
const QString explorer = u"C:\\Windows\\explorer.exe"_s;
const Variables user{{u"KESTRUNE_ELEVATED"_s, u"1"_s}, {u"USERDOMAIN"_s, u"PC"_s}, {u"USERNAME"_s, u"Kim"_s}};

qint64 sizeOf(SmallMachine &machine, const QString &file)
{
    return QFileInfo::exists(machine->hostPath(file)) ? machine->fileSize(file) : -1;
}

QByteArray hibernateEnabled(SmallMachine &machine)
{
    const auto key = machine->registry().find(powerKey);
    const auto value = key ? machine->registry().value(*key, u"HibernateEnabled"_s) : std::nullopt;
    return value ? value->data : QByteArray();
}

} // namespace

class TestTweakTools : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hibernationOffAndOn();
    void hibernationForTheFirstTime();
    void powercfgRefuses_data();
    void powercfgRefuses();
    void bootOptionIsSetAndDeleted();
    void bcdeditRefuses_data();
    void bcdeditRefuses();
    void ownerAndRights();
    void rightsAreTheOwnersToGive();
    void takeownRefuses_data();
    void takeownRefuses();
    void icaclsRefuses_data();
    void icaclsRefuses();
    void comparisonShowsThem();
    void machineJsonCarriesThem();
};

void TestTweakTools::hibernationOffAndOn()
{
    SmallMachine machine;
    writeFile(machine->hostPath(hiberfile), QByteArray(7000, 'x'));
    const Ended off = runTool(machine, u"powercfg"_s, {u"-h"_s, u"OFF"_s});
    QCOMPARE(off.exitCode, 0);
    QCOMPARE(off.output + off.errors, QByteArray());
    QCOMPARE(sizeOf(machine, hiberfile), -1);
    QCOMPARE(hibernateEnabled(machine), registryDWord(0));
    QCOMPARE(runTool(machine, u"powercfg"_s, {u"/hibernate"_s, u"on"_s}).exitCode, 0);
    QCOMPARE(sizeOf(machine, hiberfile), 7000);
    QCOMPARE(machine->attributes(hiberfile), 0x26u);
    QCOMPARE(hibernateEnabled(machine), registryDWord(1));
}

void TestTweakTools::hibernationForTheFirstTime()
{
    SmallMachine machine;
    machine->setWmiInstances(u"Win32_ComputerSystem"_s, {{{u"TotalPhysicalMemory"_s, u"34290393088"_s}}});
    QCOMPARE(runTool(machine, u"powercfg"_s, {u"-h"_s, u"ON"_s}).exitCode, 0);
    QCOMPARE(sizeOf(machine, hiberfile), 13716160512);
}

void TestTweakTools::powercfgRefuses_data()
{
    addColumns<QStringList, Variables>("arguments", "variables");
    QTest::newRow("nothing") << QStringList() << elevated;
    QTest::newRow("no state") << QStringList{u"-h"_s} << elevated;
    QTest::newRow("another state") << QStringList{u"-h"_s, u"maybe"_s} << elevated;
    QTest::newRow("another option") << QStringList{u"-x"_s, u"off"_s} << elevated;
    QTest::newRow("without rights") << QStringList{u"-h"_s, u"off"_s} << notElevated;
}

void TestTweakTools::powercfgRefuses()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const Variables, variables);
    SmallMachine machine;
    writeFile(machine->hostPath(hiberfile), "x");
    const Ended ended = runTool(machine, u"powercfg"_s, arguments, variables);
    QCOMPARE(ended.exitCode, 1);
    QVERIFY(!ended.errors.isEmpty());
    QCOMPARE(sizeOf(machine, hiberfile), 1);
    QCOMPARE(hibernateEnabled(machine), QByteArray());
}

void TestTweakTools::bootOptionIsSetAndDeleted()
{
    SmallMachine machine;
    const auto set = [&machine](const QString &value) {
        return runTool(machine, u"bcdedit"_s, {u"/set"_s, u"UsePlatformClock"_s, value});
    };
    const Ended ended = set(u"False"_s);
    QCOMPARE(ended.exitCode, 0);
    QCOMPARE(ended.output, QByteArray("The operation completed successfully.\r\n"));
    const QString name = u"useplatformclock"_s;
    QCOMPARE(machine->bootOptions(), (QMap<QString, QString>{{name, u"No"_s}}));
    QCOMPARE(set(u"yes"_s).exitCode, 0);
    QCOMPARE(machine->bootOptions(), (QMap<QString, QString>{{name, u"Yes"_s}}));
    const QByteArray listed = runTool(machine, u"bcdedit"_s, {u"/enum"_s, u"{current}"_s}).output;
    QVERIFY2(listed.contains("\r\nuseplatformclock        Yes\r\n"), listed);
    QCOMPARE(runTool(machine, u"bcdedit"_s, {u"/enum"_s, u"{other}"_s}).exitCode, 1);
    QCOMPARE(runTool(machine, u"bcdedit"_s, {u"/deletevalue"_s, name}).exitCode, 0);
    QVERIFY(machine->bootOptions().isEmpty());
    QCOMPARE(runTool(machine, u"bcdedit"_s, {u"/deletevalue"_s, name}).exitCode, 1);
}

void TestTweakTools::bcdeditRefuses_data()
{
    addColumns<QStringList, Variables>("arguments", "variables");
    QTest::newRow("nothing") << QStringList() << elevated;
    QTest::newRow("no value") << QStringList{u"/set"_s, u"useplatformclock"_s} << elevated;
    QTest::newRow("no state") << QStringList{u"/set"_s, u"useplatformclock"_s, u"maybe"_s} << elevated;
    QTest::newRow("no option") << QStringList{u"/set"_s, u"colour"_s, u"Yes"_s} << elevated;
    QTest::newRow("another verb") << QStringList{u"/paint"_s} << elevated;
    QTest::newRow("without rights") << QStringList{u"/set"_s, u"useplatformclock"_s, u"Yes"_s} << notElevated;
}

void TestTweakTools::bcdeditRefuses()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const Variables, variables);
    SmallMachine machine;
    const Ended ended = runTool(machine, u"bcdedit"_s, arguments, variables);
    QCOMPARE(ended.exitCode, 1);
    QVERIFY(!ended.output.isEmpty());
    QVERIFY(machine->bootOptions().isEmpty());
}

void TestTweakTools::ownerAndRights()
{
    SmallMachine machine;
    const Ended owned = runTool(machine, u"takeown"_s, {u"/f"_s, explorer}, user);
    QCOMPARE(owned.exitCode, 0);
    QCOMPARE(owned.output,
             QByteArray("\r\nSUCCESS: The file (or folder): \"C:\\Windows\\explorer.exe\" now owned by user "
                        "\"PC\\Kim\".\r\n"));
    const Ended granted = runTool(machine, u"icacls"_s, {explorer, u"/grant:r"_s, u"PC\\Kim:F"_s, u"/L"_s}, user);
    QCOMPARE(granted.exitCode, 0);
    QCOMPARE(granted.output, QByteArray("processed file: C:\\Windows\\explorer.exe\r\n"
                                        "Successfully processed 1 files; Failed processing 0 files\r\n"));
    QCOMPARE(machine->security(explorer.toUpper()), (FileSecurity{u"PC\\Kim"_s, u"PC\\Kim:F"_s}));
    QCOMPARE(runTool(machine, u"icacls"_s, {explorer, u"/reset"_s}, user).exitCode, 0);
    // The owner stays.
    QCOMPARE(machine->security(explorer), (FileSecurity{u"PC\\Kim"_s, {}}));
}

void TestTweakTools::rightsAreTheOwnersToGive()
{
    SmallMachine machine;
    for (const QStringList &arguments : {QStringList{explorer, u"/grant:r"_s, u"PC\\Kim:F"_s, u"/L"_s},
                                         QStringList{explorer.toUpper(), u"/reset"_s}}) {
        const Ended refused = runTool(machine, u"icacls"_s, arguments, user);
        QCOMPARE(refused.exitCode, 5);
        QVERIFY(refused.errors.endsWith(": Access is denied.\r\n"));
    }
    QVERIFY(machine->changedSecurity().isEmpty());
    // Who is given a file of the system needn't have asked for it, and what isn't the system's is anybody's.
    QCOMPARE(runTool(machine, u"icacls"_s, {explorer, u"/setowner"_s, u"PC\\Kim"_s}, user).exitCode, 0);
    writeFile(machine->hostPath(u"C:\\x"_s), "x");
    QCOMPARE(runTool(machine, u"icacls"_s, {u"C:\\x"_s, u"/reset"_s}, user).exitCode, 0);
}

void TestTweakTools::takeownRefuses_data()
{
    addColumns<QStringList, Variables>("arguments", "variables");
    QTest::newRow("nothing") << QStringList() << elevated;
    QTest::newRow("no such file") << QStringList{u"/f"_s, u"C:\\none"_s} << elevated;
    QTest::newRow("without rights") << QStringList{u"/f"_s, explorer} << notElevated;
}

void TestTweakTools::takeownRefuses()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const Variables, variables);
    SmallMachine machine;
    const Ended ended = runTool(machine, u"takeown"_s, arguments, variables);
    QCOMPARE(ended.exitCode, 1);
    QVERIFY(ended.errors.startsWith("ERROR: "));
    QVERIFY(machine->changedSecurity().isEmpty());
}

void TestTweakTools::icaclsRefuses_data()
{
    addColumns<QStringList, Variables, int>("arguments", "variables", "exitCode");
    QTest::newRow("nothing") << QStringList() << elevated << 87;
    QTest::newRow("no verb") << QStringList{explorer} << elevated << 87;
    QTest::newRow("two verbs") << QStringList{explorer, u"/reset"_s, u"/reset"_s} << elevated << 87;
    QTest::newRow("no rights named") << QStringList{explorer, u"/grant:r"_s, u"PC"_s} << elevated << 87;
    QTest::newRow("no such file") << QStringList{u"C:\\none"_s, u"/reset"_s} << elevated << 2;
    QTest::newRow("without rights") << QStringList{explorer, u"/reset"_s} << notElevated << 5;
}

void TestTweakTools::icaclsRefuses()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const Variables, variables);
    SmallMachine machine;
    const Ended ended = runTool(machine, u"icacls"_s, arguments, variables);
    QTEST(ended.exitCode, "exitCode");
    QVERIFY(!ended.errors.isEmpty());
    QVERIFY(machine->changedSecurity().isEmpty());
}

void TestTweakTools::comparisonShowsThem()
{
    SmallMachine before;
    SmallMachine after;
    after->setSecurity(explorer, {u"PC\\Kim"_s, {}});
    after->setBootOption(u"useplatformclock"_s, u"No"_s);
    const QList<DiffRow> expected{
        {DiffKind::Security, explorer, {}, u"as installed"_s, u"owner PC\\Kim"_s},
        {DiffKind::BootOption, u"useplatformclock"_s, {}, {}, u"No"_s},
    };
    QCOMPARE(compareMachines(*before, *after), expected);
}

void TestTweakTools::machineJsonCarriesThem()
{
    SmallMachine machine;
    const QString file = machine.beside(u"machine.json"_s);
    writeFile(file, R"({ "formatVersion": 1, "bootOptions": { "useplatformclock": "No" },
                         "files": [{ "path": "C:\\x", "owner": "PC\\Kim", "rights": "PC\\Kim:F",
                                     "attributes": ["not-indexed"] }] })");
    importFile(*machine, file);
    QCOMPARE(machine->bootOptions(), (QMap<QString, QString>{{u"useplatformclock"_s, u"No"_s}}));
    QCOMPARE(machine->security(u"C:\\x"_s), (FileSecurity{u"PC\\Kim"_s, u"PC\\Kim:F"_s}));
    QCOMPARE(machine->attributes(u"C:\\x"_s), 0x2020u);
}

KESTRUNE_SUITE(TestTweakTools)
#include "tst_tweaktools.moc"
