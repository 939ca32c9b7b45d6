// SPDX-License-Identifier: GPL-3.0-or-later
// Listing services, and filling their table.

#include "benchmachine.h"
#include "window/kestrune.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void listServices(benchmark::State &state)
{
    // Tools that do nothing, so that only the program's own work is measured.
    BenchMachine machine({.stockTool = u"/bin/true"_s});
    machine.addServices(static_cast<int>(state.range(0)));
    WorkThread worker;
    worker.SvcMakeList(); // The start-mode backup belongs to the first listing only.
    for (auto _ : state)
        worker.SvcMakeList();
    if (worker.services.size() != state.range(0))
        state.SkipWithError("the list is not complete");
    state.counters["each"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void fillServiceTable(benchmark::State &state)
{
    BenchMachine machine;
    Kestrune window;
    WorkThread *worker = window.findChildren<WorkThread *>().constFirst();
    worker->job = JobSvcMakeList;
    for (int i = 0; i < state.range(0); ++i) {
        const QString number = QString::number(i * 7919 % static_cast<int>(state.range(0)));
        worker->services.append({u"Service"_s + number, u"A service, number "_s + number,
                                 u"Does what it is there for, and nothing else."_s, u"32"_s, u"2"_s, true});
    }
    auto *table = window.findChild<QTableWidget *>(u"tblSvc"_s);
    for (auto _ : state) {
        // As the page does when it is shown.
        table->setSortingEnabled(false);
        window.onWorkThreadValueChanged(u"WorkThread::SvcMakeList"_s);
    }
    state.counters["each"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

} // namespace

BENCHMARK(listServices)
    ->Name("SvcMakeList")
    ->Arg(300)
    ->Arg(3000)
    ->Arg(30000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillServiceTable)
    ->Name("fillServiceTable")
    ->Arg(300)
    ->Arg(3000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
