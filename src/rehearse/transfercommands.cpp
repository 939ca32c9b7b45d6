// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse import and export

#include "console/console.h"
#include "console/printable.h"
#include "machine/machine.h"
#include "machine/source/machinesource.h"
#include "machine/source/regfile.h"
#include "progress.h"
#include "subcommands.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/** 0 where none is named. */
uint codePageOf(const Arguments &arguments)
{
    if (!arguments.has("code-page"_L1))
        return 0;
    bool isNumber = false;
    const QString text = arguments.value("code-page"_L1);
    const uint page = text.toUInt(&isNumber);
    if (!isNumber || page == 0)
        throw UsageError{u"'%1' isn't the number of a code page"_s.arg(text)};
    if (!textOfCodePage({}, page))
        throw UsageError{u"there is no code page %1 here"_s.arg(page)};
    return page;
}

int runImport(const Arguments &arguments)
{
    const uint codePage = codePageOf(arguments);
    const std::unique_ptr<Machine> machine = openMachineToChange(arguments.operand(0));
    Progress progress;
    const QStringList told = importFiles(*machine, arguments.operands().mid(1), progress.callback(), codePage);
    progress.clear();
    for (const QString &line : told)
        print(printable(line) + u'\n');
    return ExitDone;
}

int runExport(const Arguments &arguments)
{
    const std::unique_ptr<Machine> machine = openMachine(arguments.operand(0));
    const QString key = arguments.operand(1);
    requireKey(machine->registry(), key);
    QStringList leftOut;
    print(writeRegistryScript(machine->registry(), key, &leftOut));
    for (const QString &name : std::as_const(leftOut))
        std::fprintf(stderr, "kestrune-rehearse: left out, since no script can say its name: %s\n",
                     printable(name).toUtf8().constData());
    return ExitDone;
}

// clang-format off
constexpr OptionRow importOptions[] = {
    {"code-page"_L1, "N"_L1, "the code page of the console that 'sc' or 'schtasks' printed in, such as 936 or 1251"_L1,
     "Names the code page of the console that\n.B sc\nor\n.B schtasks\nprinted in:\n.B 936\nfor simplified Chinese,\n"
     ".B 866\nfor Russian.\nWithout it text that isn't UTF-8 is taken for code page 850, as most of Western Europe has it,\n"
     "and a line says so."_L1},
};
// clang-format on

} // namespace

const Subcommand importSubcommand{
    "import"_L1,
    "DIR FILE..."_L1,
    "import .reg files, machine.json, or what 'sc query state= all' or 'schtasks /xml' printed on a PC"_L1,
    importOptions,
    2,
    -1,
    runImport,
};

const Subcommand exportSubcommand{
    "export"_L1, "DIR KEY"_L1, "print a registry key and all below it as a .reg file"_L1, {}, 2, 2, runExport,
};
