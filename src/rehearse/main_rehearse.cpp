// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse: makes rehearsal machines, runs the logic on them, shows what it changes.

#include "machine/workfolder.h"
#include "subcommands.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

// They can be tried from the top to the bottom.
// clang-format off
constexpr ExampleRow examples[] = {
    {"new"_L1,     "new before --from windows11"_L1,
                   "make a Windows 11 PC in the folder before"_L1},
    {"new"_L1,     "new after --from windows11"_L1,
                   "and another one like it, to try things on"_L1},
    {"capture"_L1, "capture my-pc"_L1,
                   "make a copy of this PC in the folder my-pc"_L1},
    {"list"_L1,    "list after services"_L1,
                   "its services: name, how it starts, whether it runs"_L1},
    {"list"_L1,    "list after registry \"HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Run\""_L1,
                   "the values of a registry key and all below it"_L1},
    {"run"_L1,     "run after svc-disable DiagTrack Spooler"_L1,
                   "disable two services, as the Services page does"_L1},
    {"run"_L1,     "run after svc-enable Spooler"_L1,
                   "and bring one of them back"_L1},
    {"run"_L1,     "run after tweak gaming 3 on"_L1,
                   "apply the third of the tweaks for games"_L1},
    {"run"_L1,     "run after optimize --keep printer=0,nfc=0 --no-features"_L1,
                   "optimize without printing and NFC, and without tweaks"_L1},
    {"run"_L1,     "run after restore"_L1,
                   "undo what was recorded"_L1},
    {"undo"_L1,    "undo after --list"_L1,
                   "all that was done to it: when, what, how many changes"_L1},
    {"undo"_L1,    "undo after"_L1,
                   "take all of it back, to the last value"_L1},
    {"preview"_L1, "preview before"_L1,
                   "print what Optimize would change, and what would come back"_L1},
    {"preview"_L1, "preview before --html preview.html --undo undo.reg"_L1,
                   "a web page of it, and an exact way back"_L1},
    {"preview"_L1, "preview --all . --html pcs.html"_L1,
                   "of each machine in this folder: how much would change, and what wouldn't come back"_L1},
    {"verify"_L1,  "verify before after"_L1,
                   "after a change: print what of it is in force"_L1},
    {"diff"_L1,    "diff before after"_L1,
                   "every value, service, task and file that isn't the same on both"_L1},
    {"diff"_L1,    "diff before after --html changes.html"_L1,
                   "the same as a web page"_L1},
    {"gui"_L1,     "gui after --not-elevated"_L1,
                   "open the window as a user without administrator rights sees it"_L1},
    {"tour"_L1,    "tour before --out pictures"_L1,
                   "pictures of all nine pages, dark and light"_L1},
    {"export"_L1,  "export after \"HKCU\\Software\\Kestrune\" > records.reg"_L1,
                   "save what the program has recorded"_L1},
    {"import"_L1,  "import after records.reg"_L1,
                   "import what 'export' has saved"_L1},
    {"pack"_L1,    "pack after after.zip"_L1,
                   "one small file, to share it"_L1},
    {"unpack"_L1,  "unpack after.zip again"_L1,
                   "and a machine again, in the folder again"_L1},
};
// clang-format on

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationVersion(QStringLiteral(KESTRUNE_VERSION));
    const Program program{
        .name = "kestrune-rehearse"_L1,
        .summary = "Rehearse changes to Windows on a copy: a rehearsal machine, which is a folder. Nothing that a "
                   "command does\n"
                   "leaves that folder, and no program of this computer is started for it.\n"_L1,
        .subcommands = allSubcommands(),
        .examples = examples,
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
