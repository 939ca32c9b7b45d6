// SPDX-License-Identifier: GPL-3.0-or-later
// From the start of the program until the first page is painted, against a program with an empty window.

#include "benchmachine.h"
#include "machine/source/machinesource.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

qint64 timeOf(const QStringList &arguments)
{
    QProcess program;
    QElapsedTimer timer;
    timer.start();
    program.start(QCoreApplication::applicationDirPath() + u"/kestrune-bench-window"_s, arguments);
    if (!program.waitForReadyRead())
        qFatal("kestrune-bench-window doesn't say that it has painted");
    const qint64 time = timer.nsecsElapsed();
    program.waitForFinished();
    return time;
}

void start(benchmark::State &state)
{
    QTemporaryDir folder;
    const QString machine = folder.path() + u"/machine"_s;
    makeMachine(machine, QCoreApplication::applicationDirPath() + u"/machines/windows11"_s, Existing::Keep);
    timeOf({machine}); // The first start finds nothing in the caches, and stores the theme.
    timeOf({});
    qint64 ours = 0;
    qint64 empty = 0;
    for (auto _ : state) {
        ours += timeOf({machine});
        empty += timeOf({});
    }
    state.counters["ratio"] = static_cast<double>(ours) / static_cast<double>(empty);
}

} // namespace

BENCHMARK(start)
    ->Name("Start to the first page, against an empty window")
    ->UseRealTime()
    ->Iterations(10)
    ->Unit(benchmark::kMillisecond);
