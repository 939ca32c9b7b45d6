// SPDX-License-Identifier: GPL-3.0-or-later
// Reading an export of scheduled tasks, and filling their table.

#include "work/tasks/tasks.h"
#include "benchmachine.h"
#include "window/kestrune.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QXmlStreamReader>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

QString exportOf(int count)
{
    QString text = u"<?xml version=\"1.0\" ?>\n<Tasks>\n"_s;
    for (int i = 0; i < count; ++i) {
        const QString path = u"\\Vendor\\Folder\\Task %1"_s.arg(i);
        text += u"\n<!-- %1 -->\n%2\n"_s.arg(path, vendorsTask(path));
    }
    return text + u"</Tasks>\n"_s;
}

/** The same facts by a parser; the number of tasks. */
qsizetype readByParser(const QString &text, QList<TaskRow> &rows)
{
    rows.clear();
    QXmlStreamReader reader(text);
    TaskRow row;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            if (reader.name() == u"URI") {
                row.path = reader.readElementText().mid(1);
                row.name = row.path.mid(row.path.lastIndexOf(u'\\') + 1);
            } else if (reader.name() == u"Description") {
                row.description = reader.readElementText();
            } else if (reader.name() == u"Enabled") {
                row.disabled = 1;
            }
        } else if (reader.isEndElement() && reader.name() == u"Task") {
            rows.append(row);
            row = {};
        }
    }
    return reader.hasError() ? -1 : rows.size();
}

void countEach(benchmark::State &state)
{
    state.counters["each"] =
        benchmark::Counter(static_cast<double>(state.range(0)),
                           benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void readTasks(benchmark::State &state)
{
    BenchMachine machine;
    const QString text = exportOf(static_cast<int>(state.range(0)));
    QList<TaskRow> tasks;
    QList<TaskRow> parsed;
    qint64 ours = 0;
    qint64 parsers = 0;
    QElapsedTimer timer;
    for (auto _ : state) {
        timer.start();
        tasks = tasksOf(text);
        ours += timer.nsecsElapsed();
        state.PauseTiming();
        timer.start();
        if (readByParser(text, parsed) != state.range(0) || tasks.size() != parsed.size()
            || tasks.constLast().path != parsed.constLast().path)
            state.SkipWithError("the list is not complete");
        parsers += timer.nsecsElapsed();
        state.ResumeTiming();
    }
    countEach(state);
    state.counters["ratio"] = static_cast<double>(ours) / static_cast<double>(parsers);
}

void fillTaskTable(benchmark::State &state)
{
    BenchMachine machine;
    Kestrune window;
    WorkThread *worker = window.findChildren<WorkThread *>().constFirst();
    auto *table = window.findChild<QTableWidget *>(u"tblTasks"_s);
    worker->job = JobTaskMakeList;
    const int count = static_cast<int>(state.range(0));
    for (int i = 0; i < count; ++i) {
        const QString name = u"Task %1"_s.arg(static_cast<qint64>(i) * 7919 % count);
        worker->tasks.append(
            {u"Vendor\\Folder\\"_s + name, u"Does what it is there for, and nothing else."_s, name, {}, 0});
    }
    for (auto _ : state) {
        state.PauseTiming();
        table->setSortingEnabled(false);
        table->setRowCount(0);
        state.ResumeTiming();
        window.onWorkThreadValueChanged(u"WorkThread::TaskMakeList"_s);
    }
    if (table->rowCount() != count || !table->isSortingEnabled())
        state.SkipWithError("the table is not complete");
    countEach(state);
}

} // namespace

BENCHMARK(readTasks)
    ->Name("Tasks of an export, against QXmlStreamReader")
    ->Arg(180)
    ->Arg(1800)
    ->Arg(18000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fillTaskTable)
    ->Name("fillTaskTable")
    ->Arg(180)
    ->Arg(1800)
    ->Arg(18000)
    ->UseRealTime()
    ->Unit(benchmark::kMillisecond);
