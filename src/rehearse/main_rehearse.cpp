// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse: makes rehearsal machines, runs the logic on them, shows what it changes.

#include "machine/workfolder.h"
#include "subcommands.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationVersion(QStringLiteral(KESTRUNE_VERSION));
    const Program program{
        .name = "kestrune-rehearse"_L1,
        .summary = "Rehearse changes to Windows on a copy: a rehearsal machine, which is a folder. Nothing that a "
                   "command does\n"
                   "leaves that folder, and no program of this computer is started for it.\n"_L1,
        .subcommands = allSubcommands(),
        .examples = allExamples(),
        .start = "  %1 new pc --from windows11\n"
                 "      make a Windows 11 PC in the folder pc\n"
                 "  %1 preview pc --html preview.html\n"
                 "      see what an optimization would change on it, and what would come back\n"
                 "  %1 gui pc\n"
                 "      try whatever you like in the window\n"_L1,
        .exitStatus = "0 done, 1 the job reported a failure, 2 bad arguments, 3 the machine can't be read,\n"
                      "130 interrupted by Ctrl-C.\n"_L1,
        .begin = [] { removeLeftovers(); },
    };
    return runProgram(program, argc, argv);
}
