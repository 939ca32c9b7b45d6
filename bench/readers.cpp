// SPDX-License-Identifier: GPL-3.0-or-later
// Inputs made to take a reader's time, of 1, 4 and 16 MB: what is linear takes four times as long for four times as
// much.

#include "machine/source/regfile.h"
#include "machine/source/toolreport.h"
#include "platform/registrykey.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray repeated(const QByteArray &part, benchmark::State &state)
{
    return part.repeated(static_cast<qsizetype>(state.range(0)) * 1024 * 1024 / part.size());
}

/** A bench of a reader; it gives whether it has read all of its input. */
template<typename Read>
void measure(benchmark::State &state, Read read)
{
    for (auto _ : state) {
        if (!read())
            state.SkipWithError("it isn't read");
    }
    state.SetBytesProcessed(state.iterations() * state.range(0) * 1024 * 1024);
}

void readTexts(benchmark::State &state)
{
    const QByteArray letters = repeated(registryText(u"a"_s), state);
    measure(state, [&] { return textsOf(letters).size() == letters.size() / 4; });
}

void readTasksInComments(benchmark::State &state)
{
    const QByteArray task = "<!-- \\a -->\n<Task><!-- " + repeated("</Task>", state) + " --></Task>";
    measure(state, [&] { return parseTaskExport(task, u"f"_s).size() == 1; });
}

void readTasksInATask(benchmark::State &state)
{
    const QByteArray task = "<!-- \\a -->\n<Task>" + repeated("<Task></Task>", state) + "</Task>";
    measure(state, [&] { return parseTaskExport(task, u"f"_s).size() == 1; });
}

void readDeepKeys(benchmark::State &state)
{
    const QByteArray key = "[HKEY_CURRENT_USER" + QByteArray("\\a").repeated(511) + "]\n";
    const QByteArray script = "Windows Registry Editor Version 5.00\n" + repeated(key, state);
    measure(state, [&] { return parseRegistryScript(script, u"f"_s).size() == script.count('['); });
}

void readBlankReport(benchmark::State &state)
{
    const QString report = QString::fromLatin1(repeated("\n", state));
    measure(state, [&] { return !isServiceReport(report); });
}

void addSizes(benchmark::internal::Benchmark *row)
{
    row->Arg(1)->Arg(4)->Arg(16)->Unit(benchmark::kMillisecond);
}

} // namespace

BENCHMARK(readTexts)->Name("Single letters of a list of texts, MB")->Apply(addSizes);
BENCHMARK(readTasksInComments)->Name("End tags in a task's comment, MB")->Apply(addSizes);
BENCHMARK(readTasksInATask)->Name("Tasks within a task, MB")->Apply(addSizes);
BENCHMARK(readDeepKeys)->Name("Deep keys of a script, MB")->Apply(addSizes);
BENCHMARK(readBlankReport)->Name("Blank lines instead of services, MB")->Apply(addSizes);
