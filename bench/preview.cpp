// SPDX-License-Identifier: GPL-3.0-or-later
// A preview of a machine far larger than any PC, with all its reports: seconds, and the memory of its largest process.

#include "largemachine.h"

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

/** The most memory that any process had which this one has started, and which they have. Mebibytes. */
double peakOfProcesses()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024;
}

void preview(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString machine = folder.filePath(u"machine"_s);
    makeLargeMachine(machine);
    const QStringList arguments{u"preview"_s, machine,
                                u"--html"_s,  folder.filePath(u"preview.html"_s),
                                u"--json"_s,  folder.filePath(u"preview.json"_s),
                                u"--undo"_s,  folder.filePath(u"preview.reg"_s)};
    for (auto _ : state) {
        QProcess process;
        process.start(QCoreApplication::applicationDirPath() + u"/kestrune-rehearse"_s, arguments);
        process.waitForFinished(-1);
        if (process.exitCode() != 0)
            state.SkipWithError(process.readAllStandardError().constData());
    }
    state.counters["peakMB"] = peakOfProcesses();
}

} // namespace

BENCHMARK(preview)
    ->Name("Preview, 5,000 services, 20,000 tasks, 1,000,000 registry values")
    ->UseRealTime()
    ->Iterations(1)
    ->Unit(benchmark::kSecond);
