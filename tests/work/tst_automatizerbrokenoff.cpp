// SPDX-License-Identifier: GPL-3.0-or-later
// An Optimize that is ended before its end: whatever it has taken away is recorded by then, and Restore takes it back.

#include "automatizerruns.h"
#include "support/suite.h"

#include "platform/forwardingplatform.h"
#include "work/autorun/autorun.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** Asks the job to end at one of its pauses, counted from 1 since the last arming; never while it is 0. */
class EndingPlatform final : public ForwardingPlatform
{
public:
    EndingPlatform(std::unique_ptr<Platform> inner, Machine &machine)
        : ForwardingPlatform(std::move(inner))
        , machine_(machine)
    {
    }

    Machine &machine() const { return machine_; }
    void arm(int pause) { left_ = pause; }
    void pause(int) const override
    {
        if (left_ > 0 && --left_ == 0)
            QThread::currentThread()->requestInterruption();
    }

private:
    Machine &machine_;
    mutable std::atomic<int> left_ = 0;
};

/** Puts such a platform in the place of a TestMachine's own, which must not be asked from then on. */
EndingPlatform &takeOver(const TestMachine &machine)
{
    setPlatform(nullptr); // one at a time
    auto onMachine = std::make_unique<MachinePlatform>(machine.folder(), MachineOptions());
    Machine &same = onMachine->machine();
    auto ending = std::make_unique<EndingPlatform>(std::move(onMachine), same);
    EndingPlatform &platform = *ending;
    setPlatform(std::move(ending));
    return platform;
}

/** A service that was stopped and not yet disabled needs no record: it starts with Windows again. */
bool startsWithWindows(const QString &service)
{
    return platform().openKey(servicesKey)->value(service + u"/Start"_s).toInt() == 2;
}

/** What Restore should have brought back. */
QStringList stillChanged(Machine &machine)
{
    QStringList changed;
    for (const QString &service : {u"FontCache"_s, u"PcaSvc"_s}) {
        if (!startsWithWindows(service))
            changed.append(service);
    }
    for (const QString &path :
         {u"\\Microsoft\\Windows\\Autochk\\Proxy"_s, u"\\OneDrive Standalone Update Task-S-1-5-21"_s}) {
        if (!taskFacts(machine.task(path)->document).enabled)
            changed.append(path);
    }
    if (!machine.registry().find(repositoryKey + u"\\Microsoft.BingNews_1.0.0.0_x64__8wekyb3d8bbwe"_s))
        changed.append(u"Microsoft.BingNews"_s);
    return changed;
}

} // namespace

class TestAutomatizerBrokenOff : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atEachPauseAllIsRecordedAndComesBack();
    void restoreIsRefusedOnceAllIsBack();
    void aFinishedRunLeavesNoMark();
    void aProgramThatCannotBeRecordedStays();
    void aRecordOfAProgramThatStaysDoesNotShortenIt();
};

void TestAutomatizerBrokenOff::atEachPauseAllIsRecordedAndComesBack()
{
    // Of the tweaks' own pauses, which nothing is recorded between, some stand for all.
    constexpr int ofRecords = 4 + 2 + 1 + 5;
    int moments = 0;
    for (bool finished = false; !finished; moments += moments < ofRecords ? 1 : 6) {
        const AutomatizerMachine pc;
        EndingPlatform &ending = takeOver(pc);
        Machine &machine = ending.machine();
        {
            WorkerOn worker(onEleven);
            worker.automatizerTweak = 1;
            worker.automatizerProgram = 1;
            linesOf(worker, JobAutomatizerAnalyze);
            ending.arm(moments + 1);
            linesOf(worker, JobAutomatizerOptimize);
            ending.arm(0);
        }
        finished = wasOptimized();
        QStringList missing = unaccounted(machine);
        missing.removeIf(startsWithWindows);
        QCOMPARE(missing, QStringList());
        QVERIFY2(canRestore(), qPrintable(QString::number(moments)));

        WorkerOn worker(onEleven);
        worker.automatizerTweak = 1;
        worker.automatizerProgram = 1;
        restore(worker);
        QCOMPARE(stillChanged(machine), QStringList());
        QCOMPARE(openSettings()->contains(u"optimizeBegun"_s), false);
    }
    // Two services pause twice, two tasks, a package and five programs once, and each number of the tweaks.
    QVERIFY(moments > ofRecords + 9 + 13 + 11);
}

void TestAutomatizerBrokenOff::restoreIsRefusedOnceAllIsBack()
{
    const AutomatizerMachine pc;
    EndingPlatform &ending = takeOver(pc);
    QVERIFY(!canRestore());
    WorkerOn worker(onEleven);
    linesOf(worker, JobAutomatizerAnalyze);
    ending.arm(1);
    linesOf(worker, JobAutomatizerOptimize);
    QVERIFY(canRestore());
    WorkerOn restorer(onEleven);
    restore(restorer);
    QVERIFY(!canRestore());
}

void TestAutomatizerBrokenOff::aFinishedRunLeavesNoMark()
{
    const AutomatizerMachine pc;
    WorkerOn worker(onEleven);
    optimize(worker);
    QCOMPARE(pc.read(settingsKey, u"optimized"_s), QVariant(1));
    QVERIFY(!pc.names(settingsKey).contains(u"optimizeBegun"_s));
}

void TestAutomatizerBrokenOff::aProgramThatCannotBeRecordedStays()
{
    // A record whose name has a slash would lie in a key of its own, and a key of that name is in the way here.
    MachineOptions options;
    TestMachine pc(TestMachine::Windows::Eleven, options);
    pc.write(machineRunKey, u"App"_s, u"app.exe"_s);
    class Refusing final : public ForwardingPlatform
    {
    public:
        using ForwardingPlatform::ForwardingPlatform;
        std::unique_ptr<RegistryKey> openKey(const QString &path) const override
        {
            // Somebody has taken the right to write to the records.
            return ForwardingPlatform::openKey(path.endsWith("\\Autorun"_L1) ? u"no hive"_s : path);
        }
    };
    setPlatform(nullptr);
    setPlatform(std::make_unique<Refusing>(std::make_unique<MachinePlatform>(pc.folder(), options)));
    disableAutorun(autorunEntry(machineRunKey + u"\\App=app.exe"_s));
    QCOMPARE(platform().openKey(machineRunKey)->value(u"App"_s), QVariant(u"app.exe"_s));
}

void TestAutomatizerBrokenOff::aRecordOfAProgramThatStaysDoesNotShortenIt()
{
    TestMachine pc;
    pc.addFile(u"C:\\Tools\\a.exe"_s);
    const QString whole = u"\"C:\\Tools\\a.exe\" --mode=tray"_s;
    pc.write(machineRunKey, u"App"_s, whole);
    // Ended between the record and the removal.
    enableRunValue({machineRunKey, u"App"_s}, u"\"C:\\Tools\\a.exe\" --mode"_s);
    QCOMPARE(pc.read(machineRunKey, u"App"_s), QVariant(whole));
    // Another command of that name gives way, as ever.
    pc.write(machineRunKey, u"App"_s, u"other.exe"_s);
    enableRunValue({machineRunKey, u"App"_s}, u"\"C:\\Tools\\a.exe\" --mode"_s);
    QCOMPARE(pc.read(machineRunKey, u"App"_s), QVariant(u"\"C:\\Tools\\a.exe\" --mode"_s));
}

KESTRUNE_SUITE(TestAutomatizerBrokenOff)
#include "tst_automatizerbrokenoff.moc"
