// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse diff

#include "machine/compare/machinediff.h"
#include "machine/machine.h"
#include "progress.h"
#include "subcommands.h"

using namespace Qt::StringLiterals;

namespace {

int runDiff(const Arguments &arguments)
{
    if (arguments.has("json"_L1) && arguments.has("html"_L1))
        throw UsageError{u"--json and --html can't be given together"_s};
    if (arguments.has("html"_L1))
        checkReportFile(arguments.value("html"_L1));
    const std::unique_ptr<Machine> before = openMachine(arguments.operand(0));
    const std::unique_ptr<Machine> after = openMachine(arguments.operand(1));
    Progress progress;
    const QList<DiffRow> rows = compareMachines(*before, *after, progress.callback());
    progress.clear();
    if (arguments.has("html"_L1))
        writeReportFile(arguments.value("html"_L1), diffHtml(rows, before->folder(), after->folder()).toUtf8());
    else if (arguments.has("json"_L1))
        print(diffJson(rows));
    else
        print(diffText(rows));
    return ExitDone;
}

// clang-format off
constexpr OptionRow options[] = {
    {"json"_L1, {},        "print JSON"_L1},
    {"html"_L1, "FILE"_L1, "write a web page"_L1},
};
// clang-format on

} // namespace

const Subcommand diffSubcommand{
    "diff"_L1, "A B"_L1, "show what differs between two machines"_L1, options, 2, 2, runDiff,
};
