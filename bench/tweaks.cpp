// SPDX-License-Identifier: GPL-3.0-or-later
// The walk over the partition's attributes, against a bare walk that reads and writes the same attribute in a store of
// its own; and the telemetry values.

#include "benchmachine.h"
#include "machine/database.h"
#include "work/workthread.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <benchmark/benchmark.h>

#include <fts.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int folders = 1000;
constexpr int filesInFolder = 100;

void makeTree(const QString &root)
{
    for (int folder = 0; folder < folders; ++folder) {
        const QString path = root + u"/Folder%1"_s.arg(folder);
        QDir().mkpath(path);
        for (int file = 0; file < filesInFolder; ++file) {
            QFile(path + u"/file%1.txt"_s.arg(file)).open(QIODevice::WriteOnly);
        }
    }
}

/** Reads and writes the word of each entry, past the seam and in one transaction. */
void bareWalk(Machine &machine, bool clear)
{
    QByteArray path = QFile::encodeName(machine.driveFolder());
    char *paths[] = {path.data(), nullptr};
    FTS *walk = fts_open(paths, FTS_PHYSICAL | FTS_NOCHDIR, nullptr);
    Database::Transaction transaction(machine.database());
    while (const FTSENT *entry = fts_read(walk)) {
        if (entry->fts_level == 0 || (entry->fts_info != FTS_F && entry->fts_info != FTS_D))
            continue;
        const QString file = QFile::decodeName(entry->fts_path);
        const quint32 word = machine.attributesOfFile(file).value_or(0);
        machine.setAttributes(file, clear ? word & ~0x2000u : word | 0x2000u);
    }
    transaction.commit();
    fts_close(walk);
}

void walkAttributes(benchmark::State &state)
{
    BenchMachine machine;
    makeTree(machine.machine().driveFolder());
    bareWalk(machine.machine(), true); // so that every word has its place
    WorkThread worker;
    qint64 ours = 0;
    qint64 bare = 0;
    QElapsedTimer timer;
    for (auto _ : state) {
        for (const bool apply : {true, false}) {
            timer.start();
            worker.TweakSSD(apply ? 1 : 0, 8);
            ours += timer.nsecsElapsed();
            timer.start();
            bareWalk(machine.machine(), apply); // what was just done is undone
            bare += timer.nsecsElapsed();
        }
    }
    worker.TweakSSD(1, 8);
    if (machine.machine().pathsWithAttribute(0x2000).size() != folders * filesInFolder + folders)
        state.SkipWithError("the walk is not complete");
    state.counters["ratio"] = static_cast<double>(ours) / static_cast<double>(bare);
}

void telemetry(benchmark::State &state)
{
    BenchMachine machine;
    WorkThread worker;
    for (auto _ : state)
        worker.TweakWindows(state.range(0) == 1 ? 1 : 0, 7);
}

} // namespace

BENCHMARK(walkAttributes)
    ->Name("Attribute walk and back, 100,000 files, against fts")
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(telemetry)
    ->Name("Telemetry values, 1 applied, 0 reset")
    ->Arg(1)
    ->Arg(0)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
