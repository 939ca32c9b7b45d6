// SPDX-License-Identifier: GPL-3.0-or-later
// How soon a job is over that is asked to end, in each of its waits.

#include "benchmachine.h"
#include "work/fakeplatform.h"
#include "work/workthread.h"

#include <QElapsedTimer>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

/** Folders that never end, and pauses that end when they are asked to. */
class EndlessWaits : public FakePlatform
{
public:
    void walk(const QString &, const std::function<bool(const WalkEntry &)> &visit) const override
    {
        while (walks && visit({u"file"_s, 1})) {
        }
    }
    void pause(int) const override
    {
        while (!QThread::currentThread()->isInterruptionRequested())
            QThread::msleep(10);
    }

    bool walks = true;
};

void end(benchmark::State &state, int job)
{
    constexpr int untilItWaits = 200; // milliseconds

    WorkThread worker;
    QElapsedTimer timer;
    for (auto _ : state) {
        worker.startJob(job);
        QThread::msleep(untilItWaits);
        timer.start();
        worker.endJob();
        worker.wait();
        state.SetIterationTime(static_cast<double>(timer.nsecsElapsed()) / 1e9);
    }
}

void endOfAWalk(benchmark::State &state)
{
    const PlatformInForce<EndlessWaits> platform;
    end(state, JobWinSxsSize);
}

void endOfAPause(benchmark::State &state)
{
    const PlatformInForce<EndlessWaits> platform;
    platform->walks = false;
    end(state, JobWinSxsSize);
}

void endOfACommand(benchmark::State &state)
{
    BenchMachine machine;
    machine.machine().setFault(u"sc"_s, {.hang = true});
    end(state, JobSvcMakeList);
}

BENCHMARK(endOfAWalk)
    ->Name("job asked to end, in a walk")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(20);
BENCHMARK(endOfAPause)
    ->Name("job asked to end, in a pause")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(20);
BENCHMARK(endOfACommand)
    ->Name("job asked to end, in a command")
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(20);

} // namespace
