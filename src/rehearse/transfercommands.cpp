// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse import and export

#include "console/printable.h"
#include "machine/machine.h"
#include "machine/source/machinesource.h"
#include "machine/source/regfile.h"
#include "progress.h"
#include "subcommands.h"

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

int runImport(const Arguments &arguments)
{
    const std::unique_ptr<Machine> machine = openMachineToChange(arguments.operand(0));
    Progress progress;
    const QStringList made = importFiles(*machine, arguments.operands().mid(1), progress.callback());
    progress.clear();
    for (const QString &line : made)
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

} // namespace

const Subcommand importSubcommand{
    "import"_L1,
    "DIR FILE..."_L1,
    "import .reg files, machine.json, or what 'sc query state= all' or 'schtasks /xml' printed on a PC"_L1,
    {},
    2,
    -1,
    runImport,
};

const Subcommand exportSubcommand{
    "export"_L1, "DIR KEY"_L1, "print a registry key and all below it as a .reg file"_L1, {}, 2, 2, runExport,
};
