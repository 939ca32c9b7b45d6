// SPDX-License-Identifier: GPL-3.0-or-later
// The gaming group.

#include "support/suite.h"
#include "tweaktrial.h"

#include "work/command.h"

using namespace Qt::StringLiterals;

namespace {

const QString interfaces = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces"_s;
const QString video = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Video"_s;
const QString hpet = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Hpet"_s;

const QString priorityControl = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\PriorityControl"_s;
const QString quantum = u"Win32PrioritySeparation"_s;
const QString group = u"chkGaming"_s; // of its boxes

/** Interfaces and adapters of each kind, with some of the values there already. */
void prepare(TestMachine &machine)
{
    machine.write(interfaces + u"\\{dhcp}"_s, u"DhcpIPAddress"_s, u"192.168.1.2"_s);
    machine.write(interfaces + u"\\{dhcp}"_s, u"TCPNoDelay"_s, u"before"_s);
    machine.write(interfaces + u"\\{static}"_s, u"IPAddress"_s, u"10.0.0.1"_s);
    machine.write(interfaces + u"\\{zero}"_s, u"DhcpIPAddress"_s, u"0.0.0.0"_s);
    machine.write(interfaces + u"\\{zero}"_s, u"DhcpNetworkHint"_s, u"0123456789ABCDEF012345"_s);
    machine.write(interfaces + u"\\{short}"_s, u"DhcpNetworkHint"_s, u"0123456789ABCDEF01234"_s);
    machine.write(video + u"\\{A}\\0000"_s, u"EnableUlps"_s, u"before"_s);
    machine.write(video + u"\\{B}\\0000"_s, u"DriverDesc"_s, u"a card"_s);
    machine.write(hpet, u"Start"_s, u"before"_s);
    machine.write(priorityControl, quantum, u"before"_s);
}

QStringList interfaceChanges(const Forms &forms)
{
    const bool ends = forms.last() == 1;
    const QString one = u"dword 1"_s;
    const auto line = [](const QString &key, const QString &name, const QString &before, const QString &after) {
        return registryLine(interfaces + u'\\' + key, name, before, after);
    };
    QStringList changes{line(u"{dhcp}"_s, u"TCPNoDelay"_s, valueBefore(), ends ? one : QString())};
    if (ends) {
        changes += {line(u"{dhcp}"_s, u"TcpAckFrequency"_s, {}, one),
                    line(u"{zero}\\0123456789AB"_s, u"TcpAckFrequency"_s, {}, one),
                    line(u"{zero}\\0123456789AB"_s, u"TCPNoDelay"_s, {}, one)};
    } else {
        // Opening the subkey of the hint makes it.
        changes.append(line(u"{zero}\\0123456789AB"_s, {}, {}, u"key"_s));
    }
    return changes;
}

QStringList adapterChanges(const Forms &forms)
{
    const QString after = forms.last() == 1 ? u"dword 0"_s : u"dword 1"_s;
    QStringList changes;
    for (const QString &adapter : {u"{A}"_s, u"{B}"_s}) {
        for (int instance = 0; instance < 6; ++instance) {
            const QString before = adapter == u"{A}" && instance == 0 ? valueBefore() : QString();
            changes.append(registryLine(video + u'\\' + adapter + u"\\000"_s + QString::number(instance),
                                        u"EnableUlps"_s, before, after));
        }
    }
    return changes;
}

void expectClock(Outcome &result, const Forms &forms, bool isEleven)
{
    for (const quint8 form : forms) {
        if (isEleven)
            result.commands.append(form == 1 ? u"bcdedit /set useplatformclock False"_s
                                             : u"bcdedit /set useplatformclock True"_s);
        result.pauses.append(isEleven ? 30 : 300);
    }
    const bool ends = forms.last() == 1;
    if (isEleven)
        result.changes.append(changeLine(u"boot"_s, u"useplatformclock"_s, {}, ends ? u"No"_s : u"Yes"_s));
    else
        result.changes.append(registryLine(hpet, u"Start"_s, valueBefore(), ends ? u"dword 4"_s : u"dword 2"_s));
    result.needReboot = 1;
}

void expectTick(Outcome &result, const Forms &forms, bool isEleven)
{
    if (!isEleven)
        return;
    for (const quint8 form : forms) {
        result.commands.append(form == 1 ? u"bcdedit /set disabledynamictick Yes"_s
                                         : u"bcdedit /set disabledynamictick No"_s);
        result.pauses.append(30);
    }
    result.changes.append(changeLine(u"boot"_s, u"disabledynamictick"_s, {}, forms.last() == 1 ? u"Yes"_s : u"No"_s));
    result.needReboot = 1;
}

Outcome expected(quint32 id, const Forms &forms, bool isEleven)
{
    Outcome result{.changes = valueChanges(group + QString::number(id), forms)};
    if (id == 5)
        expectClock(result, forms, isEleven);
    if (id == 7)
        expectTick(result, forms, isEleven);
    if (id == 10)
        result.changes += interfaceChanges(forms);
    if (id == 11)
        result.changes.append(
            registryLine(priorityControl, quantum, valueBefore(), forms.last() == 1 ? u"dword 38"_s : QString()));
    if (id == 14)
        result.changes += adapterChanges(forms);
    if (id == 10 || id == 13 || id == 14)
        result.needReboot = 1;
    return result;
}

} // namespace

class TestTweakGaming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachAlone_data() { eachTweak(14); }
    void eachAlone();
    void otherGenerationsHaveTheShortPause();
    void bcdeditThatFailsGoesUnnoticed_data();
    void bcdeditThatFailsGoesUnnoticed();
    void valueBelowNoBraceMeansTheKeyOfAllInterfaces();
    void interfaceNamesAreToldByTheirCase();
    void quantumByItsPlace_data();
    void quantumByItsPlace();
    void noAdapterAtAll();
    void withoutRightsTheUsersValuesAreWrittenAlone();
};

void TestTweakGaming::eachAlone()
{
    QFETCH(const TestMachine::Windows, windows);
    QFETCH(const quint32, id);
    QFETCH(const Forms, forms);
    TweakTrial trial(windows, group);
    prepare(trial.machine);
    trial.begin();
    trial.run(&WorkThread::TweakGaming, id, forms);
    COMPARE_OUTCOMES(trial.outcome(), expected(id, forms, windows == TestMachine::Windows::Eleven));
}

void TestTweakGaming::otherGenerationsHaveTheShortPause()
{
    TweakTrial trial(TestMachine::Windows::Ten);
    trial.worker.winName = u"unknown"_s;
    trial.run(&WorkThread::TweakGaming, 5, applyAlone);
    QCOMPARE(trial.machine.platform().takePauses(), QList<int>{30});
    QCOMPARE(trial.machine.read(hpet, u"Start"_s), QVariant(4));
    QCOMPARE(trial.machine.commands(), QList<LoggedCommand>());
}

void TestTweakGaming::bcdeditThatFailsGoesUnnoticed_data()
{
    QTest::addColumn<ToolFault>("fault");
    QTest::newRow("missing") << ToolFault{.missing = true};
    QTest::newRow("failing") << ToolFault{.exitCode = 1};
    QTest::newRow("hanging") << ToolFault{.hang = true};
}

void TestTweakGaming::bcdeditThatFailsGoesUnnoticed()
{
    QFETCH(const ToolFault, fault);
    Command::timeLimit = 300;
    TweakTrial trial(TestMachine::Windows::Eleven, group);
    trial.machine.machine().setFault(u"bcdedit"_s, fault);
    trial.begin();
    trial.run(&WorkThread::TweakGaming, 7, applyAlone);
    Command::timeLimit = 30000;
    Outcome expected{.pauses = {30}, .needReboot = 1};
    if (fault.exitCode)
        expected.commands = QStringList(u"bcdedit /set disabledynamictick Yes"_s);
    COMPARE_OUTCOMES(trial.outcome(), expected);
}

void TestTweakGaming::valueBelowNoBraceMeansTheKeyOfAllInterfaces()
{
    TweakTrial trial(TestMachine::Windows::Eleven);
    trial.machine.write(interfaces, u"DhcpIPAddress"_s, u"10.0.0.7"_s);
    trial.machine.write(interfaces + u"\\plain"_s, u"DhcpIPAddress"_s, u"10.0.0.8"_s);
    trial.begin();
    trial.run(&WorkThread::TweakGaming, 10, applyAlone);
    COMPARE_OUTCOMES(trial.outcome(),
                     (Outcome{.changes = {registryLine(interfaces, u"TcpAckFrequency"_s, {}, u"dword 1"_s),
                                          registryLine(interfaces, u"TCPNoDelay"_s, {}, u"dword 1"_s)},
                              .needReboot = 1}));
}

void TestTweakGaming::interfaceNamesAreToldByTheirCase()
{
    TweakTrial trial(TestMachine::Windows::Eleven);
    // Both are one key to the registry, which keeps the first spelling.
    trial.machine.write(interfaces + u"\\{a}"_s, u"DhcpIPAddress"_s, u"10.0.0.7"_s);
    trial.machine.write(interfaces + u"\\{A}"_s, u"Lease"_s, 1);
    trial.begin();
    trial.run(&WorkThread::TweakGaming, 10, applyAlone);
    QCOMPARE(trial.outcome().changes.size(), 2);
}

void TestTweakGaming::quantumByItsPlace_data()
{
    addColumns<int, QVariant>("index", "value");
    const QList<int> values{22, 21, 20, 38, 37, 36, 24, 40};
    for (int index = 0; index < values.size(); ++index)
        QTest::addRow("%d", index) << index << QVariant(values.at(index));
    for (const int index : {-1, 8, 1000})
        QTest::addRow("%d", index) << index << QVariant(u"older"_s);
}

void TestTweakGaming::quantumByItsPlace()
{
    QFETCH(const int, index);
    TweakTrial trial(TestMachine::Windows::Eleven);
    trial.machine.write(priorityControl, quantum, u"older"_s);
    trial.worker.win32PrioritySeparationIndex = index;
    trial.run(&WorkThread::TweakGaming, 11, applyAlone);
    QTEST(trial.machine.read(priorityControl, quantum), "value");
    trial.run(&WorkThread::TweakGaming, 11, resetAlone);
    QCOMPARE(trial.machine.read(priorityControl, quantum), QVariant());
    QCOMPARE(trial.worker.needReboot, 0);
}

void TestTweakGaming::noAdapterAtAll()
{
    TweakTrial trial(TestMachine::Windows::Eleven);
    trial.run(&WorkThread::TweakGaming, 14, applyAlone);
    QCOMPARE(trial.machine.names(video), QStringList());
    QCOMPARE(trial.worker.needReboot, 1);
}

void TestTweakGaming::withoutRightsTheUsersValuesAreWrittenAlone()
{
    TweakTrial trial(TestMachine::Windows::Ten, group, {.elevated = false});
    prepare(trial.machine);
    trial.begin();
    QStringList changes;
    for (quint32 id = 1; id <= 14; ++id) {
        trial.run(&WorkThread::TweakGaming, id, applyAlone);
        if (id == 3 || id == 6 || id == 8 || id == 9)
            changes += valueChanges(group + QString::number(id), applyAlone);
    }
    COMPARE_OUTCOMES(trial.outcome(), (Outcome{.changes = changes, .pauses = {300}, .needReboot = 1}));
}

KESTRUNE_SUITE(TestTweakGaming)
#include "tst_tweakgaming.moc"
