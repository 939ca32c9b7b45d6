// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the list of programs started at logon.

#include "joblines.h"
#include "support/packageplaces.h"
#include "support/suite.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QStringList listed()
{
    WorkThread worker;
    worker.AutorunGetList();
    return worker.autoruns;
}

} // namespace

class TestAutorunList : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threeKeysAndTwoTasksInTheirOrder();
    void rowsOfAKeyComeInTheOrderOfTheRegistry();
    void unnamedValueIsNeverListed();
    void subkeysAreNotListed();
    void securityHealthIsHiddenInTheMachinesKeyAlone_data();
    void securityHealthIsHiddenInTheMachinesKeyAlone();
    void dataIsTakenAsItIs_data();
    void dataIsTakenAsItIs();
    void dataIsNotExpanded();
    void nameIsTakenAsItIs_data();
    void nameIsTakenAsItIs();
    void taskIsListedWhileItsStateIs2_data();
    void taskIsListedWhileItsStateIs2();
    void nothingGivesAnEmptyList();
    void aRunEmptiesTheListOfBefore();
    void noLineIsSent();
    void nothingIsChanged();
};

void TestAutorunList::threeKeysAndTwoTasksInTheirOrder()
{
    TestMachine machine;
    machine.write(xboxTaskKey, u"State"_s, 2);
    machine.write(terminalTaskKey, u"State"_s, 2);
    machine.write(machineRunKey32, u"C"_s, u"c.exe"_s);
    machine.write(machineRunKey, u"B"_s, u"b.exe /x"_s);
    machine.write(userRunKey, u"A"_s, u"\"C:\\a b.exe\" /y"_s);
    QCOMPARE(listed(), (QStringList{userRunKey + u"\\A=\"C:\\a b.exe\" /y"_s, machineRunKey + u"\\B=b.exe /x"_s,
                                    machineRunKey32 + u"\\C=c.exe"_s, terminalTaskKey + u'=', xboxTaskKey + u'='}));
}

void TestAutorunList::rowsOfAKeyComeInTheOrderOfTheRegistry()
{
    TestMachine machine;
    for (const QString &name : {u"beta"_s, u"Zeta"_s, u"alpha"_s})
        machine.write(machineRunKey, name, u"x"_s);
    QCOMPARE(listed(), (QStringList{machineRunKey + u"\\Zeta=x"_s, machineRunKey + u"\\alpha=x"_s,
                                    machineRunKey + u"\\beta=x"_s}));
}

void TestAutorunList::unnamedValueIsNeverListed()
{
    TestMachine machine;
    for (const QString &key : {userRunKey, machineRunKey, machineRunKey32}) {
        machine.write(key, QString(), u"C:\\unnamed.exe"_s);
        machine.write(key, u"A"_s, u"a.exe"_s);
    }
    QCOMPARE(listed(), (QStringList{userRunKey + u"\\A=a.exe"_s, machineRunKey + u"\\A=a.exe"_s,
                                    machineRunKey32 + u"\\A=a.exe"_s}));
}

void TestAutorunList::subkeysAreNotListed()
{
    TestMachine machine;
    machine.write(userRunKey + u"\\AutorunsDisabled"_s, u"A"_s, u"a.exe"_s);
    machine.write(userRunKey + u"Once"_s, u"B"_s, u"b.exe"_s);
    QCOMPARE(listed(), QStringList());
}

void TestAutorunList::securityHealthIsHiddenInTheMachinesKeyAlone_data()
{
    addColumns<QString, bool>("name", "hidden");
    QTest::newRow("name") << u"SecurityHealth"_s << true;
    QTest::newRow("in another case") << u"SECURITYhealth"_s << true;
    QTest::newRow("within a name") << u"My SecurityHealthSystray 2"_s << true;
    QTest::newRow("cut apart") << u"Security Health"_s << false;
}

void TestAutorunList::securityHealthIsHiddenInTheMachinesKeyAlone()
{
    QFETCH(const QString, name);
    QFETCH(const bool, hidden);
    TestMachine machine;
    QStringList expected;
    for (const QString &key : {userRunKey, machineRunKey, machineRunKey32}) {
        machine.write(key, name, u"SecurityHealth.exe"_s);
        if (!hidden || key != machineRunKey)
            expected.append(key + u'\\' + name + u"=SecurityHealth.exe"_s);
    }
    QCOMPARE(listed(), expected);
    // What a command says doesn't hide its entry.
    machine.write(machineRunKey, u"Other"_s, u"SecurityHealth.exe"_s);
    QVERIFY(listed().contains(machineRunKey + u"\\Other=SecurityHealth.exe"_s));
}

void TestAutorunList::dataIsTakenAsItIs_data()
{
    addColumns<QVariant, QString>("data", "text");
    const auto row = [](const char *title, const QString &text) { QTest::newRow(title) << QVariant(text) << text; };
    row("quotes", u"\"C:\\Program Files\\a.exe\" --start \"x y\""_s);
    row("equals sign", u"a.exe --mode=quiet -x=1"_s);
    row("equals sign first", u"=a.exe"_s);
    row("empty", u""_s);
    row("blanks", u"  a.exe  "_s);
    row("variable", u"%windir%\\a.exe"_s);
    row("other letters", u"C:\\Программы\\服务.exe"_s);
    row("32 kB", u"\"C:\\a.exe\" "_s + QString(16000, u'x'));
    QTest::newRow("number") << QVariant(5) << u"5"_s;
}

void TestAutorunList::dataIsTakenAsItIs()
{
    QFETCH(const QVariant, data);
    QFETCH(const QString, text);
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, data);
    QCOMPARE(listed(), QStringList{userRunKey + u"\\A="_s + text});
}

void TestAutorunList::dataIsNotExpanded()
{
    TestMachine machine;
    RegistryStore &registry = machine.machine().registry();
    registry.setValue(*registry.make(machineRunKey),
                      {u"A"_s, RegistryType::ExpandString, registryText(u"%windir%\\system32\\a.exe"_s)});
    QCOMPARE(listed(), QStringList{machineRunKey + u"\\A=%windir%\\system32\\a.exe"_s});
}

void TestAutorunList::nameIsTakenAsItIs_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << u"My own program"_s;
    QTest::newRow("equals sign") << u"a=b"_s;
    QTest::newRow("other letters") << u"Überwachung 服务"_s;
    QTest::newRow("braces") << u"{0228e555}_x"_s;
    QTest::newRow("the name of a task") << u"StartTerminalOnLoginTask"_s;
}

void TestAutorunList::nameIsTakenAsItIs()
{
    QFETCH(const QString, name);
    TestMachine machine;
    machine.write(userRunKey, name, u"a.exe"_s);
    QCOMPARE(listed(), QStringList{userRunKey + u'\\' + name + u"=a.exe"_s});
}

void TestAutorunList::taskIsListedWhileItsStateIs2_data()
{
    addColumns<QVariant, bool>("state", "listed");
    for (const int state : {-1, 0, 1, 2, 3, 4, 22})
        QTest::addRow("%d", state) << QVariant(state) << (state == 2);
    QTest::newRow("none") << QVariant() << false;
    QTest::newRow("text 2") << QVariant(u"2"_s) << true;
    QTest::newRow("text") << QVariant(u"on"_s) << false;
}

void TestAutorunList::taskIsListedWhileItsStateIs2()
{
    QFETCH(const QVariant, state);
    QFETCH(const bool, listed);
    for (const QString &task : {terminalTaskKey, xboxTaskKey}) {
        TestMachine machine;
        machine.write(task, u"LastDisabledTime"_s, 0);
        if (state.isValid())
            machine.write(task, u"State"_s, state);
        QCOMPARE(::listed(), listed ? QStringList{task + u'='} : QStringList());
    }
}

void TestAutorunList::nothingGivesAnEmptyList()
{
    const TestMachine machine;
    QCOMPARE(listed(), QStringList());
}

void TestAutorunList::aRunEmptiesTheListOfBefore()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    WorkThread worker;
    worker.autoruns = {u"old=old"_s};
    worker.AutorunGetList();
    worker.AutorunGetList();
    QCOMPARE(worker.autoruns, QStringList{userRunKey + u"\\A=a.exe"_s});
}

void TestAutorunList::noLineIsSent()
{
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    WorkThread worker;
    JobLines lines(worker);
    worker.AutorunGetList();
    worker.analyzeRunning = 1;
    worker.AutorunGetList();
    QCOMPARE(lines.all(), QStringList());
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
}

void TestAutorunList::nothingIsChanged()
{
    TestMachine machine;
    machine.write(terminalTaskKey, u"State"_s, 2);
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    listed();
    QCOMPARE(machine.names(userRunKey), QStringList{u"A"_s});
    QCOMPARE(machine.read(terminalTaskKey, u"State"_s), QVariant(2));
    QCOMPARE(machine.names(autorunRecordsKey), QStringList());
}

KESTRUNE_SUITE(TestAutorunList)
#include "tst_autorunlist.moc"
