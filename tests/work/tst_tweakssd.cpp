// SPDX-License-Identifier: GPL-3.0-or-later
// The SSD group, but for the walk.

#include "support/suite.h"
#include "tweaktrial.h"

#include "fakeplatform.h"
#include "work/command.h"

using namespace Qt::StringLiterals;

namespace {

const QString powerKey = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Power"_s;
const QString memoryKey =
    u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management"_s;
const QString limitName = u"IoPageLockLimit"_s;

const QString group = u"chkSsd"_s; // of its boxes

/** A machine with the means of all tweaks: hibernation, files and a known size of memory. */
void prepare(TestMachine &machine)
{
    machine.write(memoryKey, limitName, u"before"_s);
    machine.write(powerKey, u"HibernateEnabled"_s, 1);
    machine.addFile(u"C:\\hiberfil.sys"_s);
    machine.machine().setFileSize(u"C:\\hiberfil.sys"_s, 5000);
    machine.machine().setAttributes(u"C:\\hiberfil.sys"_s, 0x26);
    machine.addFile(u"C:\\Data\\file.txt"_s);
    machine.addFile(u"C:\\Data\\left out before.txt"_s);
    machine.machine().setAttributes(u"C:\\Data\\left out before.txt"_s, 0x2020);
    machine.machine().setWmiInstances(u"Win32_ComputerSystem"_s, {{{u"TotalPhysicalMemory"_s, u"17098522624"_s}}});
}

void setMemory(const TestMachine &machine, const QString &bytes)
{
    machine.machine().setWmiInstances(u"Win32_ComputerSystem"_s, {{{u"TotalPhysicalMemory"_s, bytes}}});
}

Outcome expected(quint32 id, const Forms &forms, TestMachine::Windows windows)
{
    Outcome result{.changes = valueChanges(group + QString::number(id), forms), .needReboot = id == 9 ? 1 : 0};
    for (const quint8 form : forms) {
        if (id == 7) {
            result.commands.append(form == 1 ? u"powercfg -h OFF"_s : u"powercfg -h ON"_s);
            result.pauses.append(windows == TestMachine::Windows::Eleven ? 30 : 300);
        }
        if (id == 8)
            result.lines.append(u"page: WorkThread::TweakSSD::RemoveIndexedAttrib"_s);
    }
    if (id == 7 && forms == applyAlone) {
        result.changes += {registryLine(powerKey, u"HibernateEnabled"_s, u"dword 1"_s, u"dword 0"_s),
                           changeLine(u"file"_s, u"C:\\hiberfil.sys"_s, u"5000 bytes"_s, {})};
    }
    if (id == 8 && forms == applyAlone) {
        result.changes += {changeLine(u"attribute"_s, u"C:\\Data"_s, u"plain"_s, u"not-indexed"_s),
                           changeLine(u"attribute"_s, u"C:\\Data\\file.txt"_s, u"archive"_s, u"archive not-indexed"_s)};
    } else if (id == 8) {
        // What had the attribute before loses it all the same.
        result.changes.append(
            changeLine(u"attribute"_s, u"C:\\Data\\left out before.txt"_s, u"archive not-indexed"_s, u"archive"_s));
    }
    if (id == 9)
        result.changes.append(
            registryLine(memoryKey, limitName, valueBefore(), forms.last() == 1 ? u"dword 10000000"_s : QString()));
    return result;
}

class ThrowingWmi : public FakePlatform
{
public:
    WmiAnswer queryWmi(const QString &, const QStringList &) const override { throw std::runtime_error("no"); }
};

} // namespace

class TestTweakSsd : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachAlone_data() { eachTweak(9); }
    void eachAlone();
    void anyFlagButOneResets();
    void hibernationComesBackAtItsSize();
    void powercfgThatFailsGoesUnnoticed_data();
    void powercfgThatFailsGoesUnnoticed();
    void ioPageLockLimitByMemory_data();
    void ioPageLockLimitByMemory();
    void memoryThatCantBeTold_data();
    void memoryThatCantBeTold();
    void memoryThatThrowsIsUnknown();
    void resetOfTheLimitKeepsTheReportsMemory();
    void refusedWritesAreSilent();
};

void TestTweakSsd::eachAlone()
{
    QFETCH(const TestMachine::Windows, windows);
    QFETCH(const quint32, id);
    QFETCH(const Forms, forms);
    TweakTrial trial(windows, group);
    prepare(trial.machine);
    trial.begin();
    trial.run(&WorkThread::TweakSSD, id, forms);
    COMPARE_OUTCOMES(trial.outcome(), expected(id, forms, windows));
    QCOMPARE(trial.worker.memTotal, id == 9 && forms.first() == 1 ? u"16 Go"_s : QString());
}

void TestTweakSsd::anyFlagButOneResets()
{
    TweakTrial trial(TestMachine::Windows::Eleven, group);
    trial.begin();
    trial.run(&WorkThread::TweakSSD, 1, {2});
    COMPARE_OUTCOMES(trial.outcome(), Outcome{.changes = valueChanges(group + u"1"_s, resetAlone)});
}

void TestTweakSsd::hibernationComesBackAtItsSize()
{
    TweakTrial trial(TestMachine::Windows::Ten);
    prepare(trial.machine);
    const QString file = trial.machine.machine().hostPath(u"C:\\hiberfil.sys"_s);
    trial.run(&WorkThread::TweakSSD, 7, applyAlone);
    QVERIFY(!QFile::exists(file));
    trial.run(&WorkThread::TweakSSD, 7, resetAlone);
    QCOMPARE(trial.machine.machine().fileSize(file), 5000);
    QCOMPARE(trial.machine.machine().attributes(file), 0x26u);
}

void TestTweakSsd::powercfgThatFailsGoesUnnoticed_data()
{
    QTest::addColumn<ToolFault>("fault");
    QTest::newRow("missing") << ToolFault{.missing = true};
    QTest::newRow("failing") << ToolFault{.exitCode = 1};
    QTest::newRow("hanging") << ToolFault{.hang = true};
}

void TestTweakSsd::powercfgThatFailsGoesUnnoticed()
{
    QFETCH(const ToolFault, fault);
    Command::timeLimit = 300;
    TweakTrial trial(TestMachine::Windows::Eleven, group);
    prepare(trial.machine);
    trial.machine.machine().setFault(u"powercfg"_s, fault);
    trial.begin();
    trial.run(&WorkThread::TweakSSD, 7, applyAlone);
    Command::timeLimit = 30000;
    Outcome expected{.pauses = {30}};
    if (fault.exitCode)
        expected.commands = QStringList(u"powercfg -h OFF"_s);
    COMPARE_OUTCOMES(trial.outcome(), expected);
}

void TestTweakSsd::ioPageLockLimitByMemory_data()
{
    addColumns<QString, QString, QVariant>("bytes", "memTotal", "limit");
    const QVariant untouched = u"older"_s;
    const auto row = [](const char *name, const QString &bytes, const QString &memTotal, const QVariant &limit) {
        QTest::newRow(name) << bytes << memTotal << limit;
    };
    row("4 GiB", u"4294967296"_s, u"4 Go"_s, 4000000);
    row("8 GiB", u"8589934592"_s, u"8 Go"_s, 8000000);
    row("12 GiB", u"12884901888"_s, u"12 Go"_s, untouched);
    row("16 GiB", u"17179869184"_s, u"16 Go"_s, 10000000);
    row("32 GiB", u"34359738368"_s, u"32 Go"_s, 10000000);
    row("64 GiB", u"68719476736"_s, u"64 Go"_s, untouched);
    row("256 GiB", u"274877906944"_s, u"257 Go"_s, untouched);
    row("8500000000 bytes", u"8500000000"_s, u"7 Go"_s, untouched);
    row("one byte less than 8", u"8543999999"_s, u"7 Go"_s, untouched);
    row("exactly 8", u"8544000000"_s, u"8 Go"_s, 8000000);
    row("no number", u"much"_s, u"0 Go"_s, untouched);
    row("less than one", u"1067999999"_s, u"0 Go"_s, untouched);
}

void TestTweakSsd::ioPageLockLimitByMemory()
{
    QFETCH(const QString, bytes);
    TweakTrial trial(TestMachine::Windows::Eleven);
    trial.machine.write(memoryKey, limitName, u"older"_s);
    setMemory(trial.machine, bytes);
    trial.run(&WorkThread::TweakSSD, 9, applyAlone);
    QTEST(trial.machine.read(memoryKey, limitName), "limit");
    QTEST(trial.worker.memTotal, "memTotal");
    QCOMPARE(trial.worker.needReboot, 1);
}

void TestTweakSsd::memoryThatCantBeTold_data()
{
    QTest::addColumn<QList<QJsonObject>>("instances");
    QTest::newRow("no instance") << QList<QJsonObject>();
    QTest::newRow("two of them") << QList<QJsonObject>(2, {{u"TotalPhysicalMemory"_s, u"8589934592"_s}});
}

void TestTweakSsd::memoryThatCantBeTold()
{
    QFETCH(const QList<QJsonObject>, instances);
    TweakTrial trial(TestMachine::Windows::Eleven, group);
    trial.machine.write(memoryKey, limitName, u"before"_s);
    trial.machine.machine().setWmiInstances(u"Win32_ComputerSystem"_s, instances);
    trial.begin();
    trial.run(&WorkThread::TweakSSD, 9, applyAlone);
    COMPARE_OUTCOMES(trial.outcome(), Outcome{.needReboot = 1});
    QCOMPARE(trial.worker.memTotal, u"0 Go"_s);
}

void TestTweakSsd::memoryThatThrowsIsUnknown()
{
    const PlatformInForce<ThrowingWmi> platform;
    WorkThread worker;
    worker.memTotal = u"16 Go"_s;
    worker.TweakSSD(1, 9);
    QCOMPARE(worker.memTotal, u"unknown"_s);
    QCOMPARE(worker.needReboot, 1);
}

void TestTweakSsd::resetOfTheLimitKeepsTheReportsMemory()
{
    TweakTrial trial(TestMachine::Windows::Eleven);
    prepare(trial.machine);
    trial.worker.memTotal = u"of the report"_s;
    trial.run(&WorkThread::TweakSSD, 9, resetAlone);
    QCOMPARE(trial.worker.memTotal, u"of the report"_s);
}

void TestTweakSsd::refusedWritesAreSilent()
{
    TweakTrial trial(TestMachine::Windows::Eleven, group, {.elevated = false});
    prepare(trial.machine);
    trial.begin();
    for (const quint32 id : {1u, 2u, 3u, 4u, 5u, 6u, 9u})
        trial.run(&WorkThread::TweakSSD, id, applyThenReset);
    COMPARE_OUTCOMES(trial.outcome(), Outcome{.needReboot = 1});
}

KESTRUNE_SUITE(TestTweakSsd)
#include "tst_tweakssd.moc"
