// SPDX-License-Identifier: GPL-3.0-or-later
// What the journal costs: the same work with and without it, in one run.

#include "journal/machinejournal.h"
#include "machine/source/machinesource.h"
#include "work/settings.h"
#include "work/workthread.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

/** A machine in force as long as the object. */
class Pc
{
public:
    Pc(bool builtIn, bool journal)
    {
        makeMachine(folder(), builtIn ? QCoreApplication::applicationDirPath() + u"/machines/windows11"_s : QString(),
                    Existing::Keep);
        if (journal)
            setPlatform(openMachineJournal(folder(), MachineOptions{}));
        else
            setPlatform(std::make_unique<MachinePlatform>(folder(), MachineOptions{}));
    }
    ~Pc() { setPlatform(nullptr); }
    Q_DISABLE_COPY_MOVE(Pc)

    QString folder() const { return folder_.filePath(u"machine"_s); }

private:
    QTemporaryDir folder_;
};

void runToEnd(WorkThread &worker, int job)
{
    worker.startJob(job);
    worker.wait();
}

qint64 optimizeOnce(bool journal)
{
    const Pc pc(true, journal);
    WorkThread worker;
    worker.winName = u"Windows 11 Home"_s;
    runToEnd(worker, JobAutomatizerAnalyze);
    QElapsedTimer timer;
    timer.start();
    runToEnd(worker, JobAutomatizerOptimize);
    return timer.nsecsElapsed();
}

qint64 walkOnce(bool journal)
{
    constexpr int folders = 1000;
    constexpr int filesInFolder = 100;

    const Pc pc(false, journal);
    for (int folder = 0; folder < folders; ++folder) {
        const QString path = pc.folder() + u"/drive_c/Folder%1"_s.arg(folder);
        QDir().mkpath(path);
        for (int file = 0; file < filesInFolder; ++file) {
            QFile(path + u"/file%1.txt"_s.arg(file)).open(QIODevice::WriteOnly);
        }
    }
    WorkThread worker;
    QElapsedTimer timer;
    timer.start();
    worker.TweakSSD(1, 8);
    return timer.nsecsElapsed();
}

/** A thousand values, each for the first time: a value that is noted already costs nothing more. */
qint64 writeOnce(bool journal)
{
    constexpr int values = 1000;

    const Pc pc(false, journal);
    const auto key = platform().openKey(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Bench"_s);
    const ChangeSession session(u"Bench"_s);
    QElapsedTimer timer;
    timer.start();
    for (int value = 0; value < values; ++value)
        key->setValue(u"value%1"_s.arg(value), value);
    return timer.nsecsElapsed() / values;
}

/** Takes turns, so that what else the computer does meets both alike. */
void compare(benchmark::State &state, qint64 (*once)(bool journal))
{
    qint64 with = 0;
    qint64 without = 0;
    for (auto _ : state) {
        without += once(false);
        with += once(true);
    }
    const auto times = static_cast<double>(state.iterations());
    state.counters["ratio"] = static_cast<double>(with) / static_cast<double>(without);
    state.counters["ms on top"] = static_cast<double>(with - without) / times / 1e6;
}

} // namespace

BENCHMARK_CAPTURE(compare, optimize, optimizeOnce)
    ->Name("Optimize with a journal, against without")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(compare, walk, walkOnce)
    ->Name("Attribute walk with a journal, 100,000 files, against without")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(compare, write, writeOnce)
    ->Name("A registry write with a journal, against without")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
