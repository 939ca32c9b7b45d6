// SPDX-License-Identifier: GPL-3.0-or-later
// Analyze and Optimize on the built-in Windows 11 PC, tools included.

#include "machine/seam/machineplatform.h"
#include "machine/source/machinesource.h"
#include "work/workthread.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

/** A copy of the built-in PC, in force as long as the object. */
class BuiltInPc
{
public:
    BuiltInPc()
    {
        const QString folder = folder_.filePath(u"machine"_s);
        makeMachine(folder, QCoreApplication::applicationDirPath() + u"/machines/windows11"_s, Existing::Keep);
        setPlatform(std::make_unique<MachinePlatform>(folder, MachineOptions{}));
    }
    ~BuiltInPc() { setPlatform(nullptr); }
    Q_DISABLE_COPY_MOVE(BuiltInPc)

private:
    QTemporaryDir folder_;
};

void runToEnd(WorkThread &worker, int job)
{
    worker.startJob(job);
    worker.wait();
}

void analyze(benchmark::State &state)
{
    const BuiltInPc pc;
    WorkThread worker;
    worker.winName = u"Windows 11 Home"_s;
    qint64 whole = 0;
    qint64 tools = 0;
    QElapsedTimer timer;
    for (auto _ : state) {
        timer.start();
        runToEnd(worker, JobAutomatizerAnalyze);
        whole += timer.nsecsElapsed();
        state.PauseTiming();
        // What the two listings by tools take of it; the rest is our own.
        timer.start();
        QProcess tool;
        tool.start(platform().programFile(u"sc"_s), {u"query"_s, u"state="_s, u"all"_s});
        tool.waitForFinished();
        tool.start(platform().programFile(u"schtasks"_s), {u"/xml"_s});
        tool.waitForFinished();
        tools += timer.nsecsElapsed();
        state.ResumeTiming();
    }
    if (worker.analyzeServiceCount == 0 || worker.analyzeTaskCount == 0 || worker.analyzePackageCount == 0)
        state.SkipWithError("nothing is found");
    state.counters["own share"] = 1 - static_cast<double>(tools) / static_cast<double>(whole);
}

void optimize(benchmark::State &state)
{
    qsizetype steps = 0;
    for (auto _ : state) {
        state.PauseTiming();
        auto pc = std::make_unique<BuiltInPc>();
        WorkThread worker;
        worker.winName = u"Windows 11 Home"_s;
        runToEnd(worker, JobAutomatizerAnalyze);
        steps += worker.automatizerServices.size() + worker.automatizerTasks.size() + worker.packages.size()
                 + worker.autoruns.size();
        state.ResumeTiming();
        runToEnd(worker, JobAutomatizerOptimize);
        state.PauseTiming();
        pc.reset();
        state.ResumeTiming();
    }
    if (steps == 0)
        state.SkipWithError("nothing is optimized");
    state.counters["each"] =
        benchmark::Counter(static_cast<double>(steps), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

} // namespace

BENCHMARK(analyze)->Name("Analyze, with its tools")->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(optimize)->Name("Optimize, without its pauses")->Iterations(3)->UseRealTime()->Unit(benchmark::kMillisecond);
