// SPDX-License-Identifier: GPL-3.0-or-later
// Listing packaged applications and programs started at logon.

#include "benchmachine.h"
#include "work/workthread.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void countEach(benchmark::State &state)
{
    state.counters["each"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void listPackages(benchmark::State &state)
{
    BenchMachine machine;
    machine.addPackages(static_cast<int>(state.range(0)));
    WorkThread worker;
    for (auto _ : state)
        worker.PackageGetList();
    // Every second one can be removed.
    if (worker.packages.size() != state.range(0) / 2)
        state.SkipWithError("the list is not complete");
    countEach(state);
}

void listAutoruns(benchmark::State &state)
{
    BenchMachine machine;
    machine.addPackages(2000);
    machine.addAutoruns(static_cast<int>(state.range(0)));
    WorkThread worker;
    for (auto _ : state)
        worker.AutorunGetList();
    if (worker.autoruns.size() != state.range(0))
        state.SkipWithError("the list is not complete");
    countEach(state);
}

} // namespace

BENCHMARK(listPackages)
    ->Name("PackageGetList")
    ->Arg(200)
    ->Arg(2000)
    ->Arg(20000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(listAutoruns)
    ->Name("AutorunGetList, with 2,000 packages")
    ->Arg(20)
    ->Arg(200)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
