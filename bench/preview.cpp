// SPDX-License-Identifier: GPL-3.0-or-later
// What is tried on copies: a preview and a plan of a built-in PC, and a preview of a machine far larger than any PC,
// with all its reports: seconds, and the memory of its largest process.

#include "largemachine.h"
#include "machine/source/machinesource.h"

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

/** Runs a program to its end, again and again. */
void runAgain(benchmark::State &state, const QString &program, const QStringList &arguments)
{
    for (auto _ : state) {
        QProcess process;
        process.start(QCoreApplication::applicationDirPath() + u'/' + program, arguments);
        process.waitForFinished(-1);
        if (process.exitCode() != 0)
            state.SkipWithError(process.readAllStandardError().constData());
    }
}

QString builtInPc(const QTemporaryDir &folder)
{
    const QString machine = folder.filePath(u"machine"_s);
    makeMachine(machine, QCoreApplication::applicationDirPath() + u"/machines/windows11"_s, Existing::Keep);
    return machine;
}

void previewBuiltIn(benchmark::State &state)
{
    const QTemporaryDir folder;
    runAgain(state, u"kestrune-rehearse"_s, {u"preview"_s, builtInPc(folder)});
}

void planBuiltIn(benchmark::State &state)
{
    const QTemporaryDir folder;
    runAgain(state, u"kestrune-cli"_s, {u"plan"_s, u"--machine"_s, builtInPc(folder)});
}

void preview(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString machine = folder.filePath(u"machine"_s);
    makeLargeMachine(machine);
    runAgain(state, u"kestrune-rehearse"_s,
             {u"preview"_s, machine, u"--html"_s, folder.filePath(u"preview.html"_s), u"--json"_s,
              folder.filePath(u"preview.json"_s), u"--undo"_s, folder.filePath(u"preview.reg"_s)});
    state.counters["peakMB"] = peakOfProcesses();
}

} // namespace

BENCHMARK(previewBuiltIn)
    ->Name("Preview of a built-in PC")
    ->UseRealTime()
    ->Iterations(5)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(planBuiltIn)->Name("Plan of a built-in PC")->UseRealTime()->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(preview)
    ->Name("Preview, 5,000 services, 20,000 tasks, 1,000,000 registry values")
    ->UseRealTime()
    ->Iterations(1)
    ->Unit(benchmark::kSecond);
