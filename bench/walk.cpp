// SPDX-License-Identifier: GPL-3.0-or-later
// The walk that sums up the WinSxS folder, against a bare walk of the same tree.

#include "benchmachine.h"
#include "platform/platform.h"
#include "work/interruption.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <benchmark/benchmark.h>

#include <fts.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int folders = 1000;
constexpr int filesInFolder = 100;

void makeTree(const QString &root)
{
    for (int folder = 0; folder < folders; ++folder) {
        const QString path = root + u"/component%1"_s.arg(folder);
        QDir().mkpath(path);
        for (int file = 0; file < filesInFolder; ++file) {
            QFile(path + u"/file%1.dll"_s.arg(file)).open(QIODevice::WriteOnly);
        }
    }
}

qint64 bareWalk(const QString &root)
{
    QByteArray path = QFile::encodeName(root);
    char *paths[] = {path.data(), nullptr};
    FTS *walk = fts_open(paths, FTS_PHYSICAL | FTS_NOCHDIR, nullptr);
    qint64 bytes = 0;
    while (const FTSENT *entry = fts_read(walk)) {
        if (entry->fts_info == FTS_F)
            bytes += entry->fts_statp->st_size;
    }
    fts_close(walk);
    return bytes;
}

void walk(benchmark::State &state)
{
    BenchMachine machine;
    const QString root = machine.machine().hostPath(u"C:\\Windows\\WinSxS"_s);
    makeTree(root);
    qint64 ours = 0;
    qint64 bare = 0;
    qint64 visited = 0;
    QElapsedTimer timer;
    for (auto _ : state) {
        timer.start();
        walkFolder(u"C:\\Windows\\WinSxS"_s, [&visited](const WalkEntry &entry) { visited += entry.size + 1; });
        ours += timer.nsecsElapsed();
        timer.start();
        benchmark::DoNotOptimize(bareWalk(root));
        bare += timer.nsecsElapsed();
    }
    if (visited < static_cast<qint64>(state.iterations()) * folders * filesInFolder)
        state.SkipWithError("the walk is not complete");
    state.counters["ratio"] = static_cast<double>(ours) / static_cast<double>(bare);
}

} // namespace

BENCHMARK(walk)->Name("WinSxS walk, 100,000 files, against fts")->UseRealTime()->Unit(benchmark::kMillisecond);
