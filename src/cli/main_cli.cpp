// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-cli: what the window does, on the PC that it runs on, from a command line or a profile.

#include "commands.h"
#include "machine/workfolder.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationVersion(QStringLiteral(KESTRUNE_VERSION));
    static const Subcommand *const subcommands[] = {
        &statusSubcommand, &planSubcommand,    &applySubcommand, &verifyPcSubcommand,
        &undoPcSubcommand, &profileSubcommand, &whySubcommand,   &dscSubcommand,
    };
    // clang-format off
    static constexpr ExampleRow examples[] = {
        {"status"_L1,  "status"_L1,                                  "the state of everything that Optimize would change"_L1},
        {"profile"_L1, "profile new office.json"_L1,                 "a profile to change as you like"_L1},
        {"profile"_L1, "profile check office.json"_L1,               "find the mistakes in it"_L1},
        {"plan"_L1,    "plan --profile office.json"_L1,              "what it would do here, and what would come back"_L1},
        {"apply"_L1,   "apply --profile office.json"_L1,             "carry it out"_L1},
        {"verify"_L1,  "verify --profile office.json"_L1,            "check whether all of it is in force; the exit status says so, too"_L1},
        {"why"_L1,     "why bluetooth"_L1,                           "which changes have to do with Bluetooth, and how to take each back"_L1},
        {"dsc"_L1,     "dsc export"_L1,                              "what is in force here, as a resource for a configuration"_L1},
        {"undo"_L1,    "undo --list"_L1,                             "all that was done: when, what, how many changes"_L1},
        {"undo"_L1,    "undo"_L1,                                    "take all of it back, to the last value"_L1},
    };
    // clang-format on
    const Program program{
        .name = "kestrune-cli"_L1,
        .summary =
            "Does on this PC what Kestrune's window does, without a window: switches off what the PC doesn't need,\n"
            "sets options, shows what is in force, and takes it back.\n"_L1,
        .subcommands = subcommands,
        .examples = examples,
        .start = "  %1 status\n"
                 "      see the state of everything; nothing is changed\n"
                 "  %1 plan\n"
                 "      see what an apply would do; nothing is changed\n"
                 "  %1 apply\n"
                 "      carry it out, as an administrator\n"
                 "  %1 undo\n"
                 "      take all of it back\n"_L1,
        .exitStatus = "0 done, or as wished; 1 something isn't as wished; 2 bad arguments or profile; 3 the PC\n"
                      "can't be read; 5 administrator rights are needed; 3010 done, restart wanted; 130 interrupted\n"
                      "by Ctrl-C.\n"_L1,
        .begin = [] { removeLeftovers(); },
        .options = pcOptions(),
    };
    return runProgram(program, argc, argv);
}
