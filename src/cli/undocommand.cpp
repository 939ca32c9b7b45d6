// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-cli undo

#include "commands.h"
#include "journal/takeback.h"
#include "machine/machineerror.h"
#include "pc.h"
#include "rehearse/subcommands.h"

using namespace Qt::StringLiterals;

namespace {

int runUndo(const Arguments &arguments)
{
    // The journal is for administrators alone, also to look at.
    const Pc pc(arguments, PcUse::Change);
    return undoBy(*journalInForce(), arguments);
}

QString moreHelp()
{
    return u"Needs administrator rights. Every change that this program and Kestrune's window make is noted in the\n"
           "journal, with what was there before. Without --since, --session or --item everything is taken back.\n"
           "What something else has changed since is left alone and said so. Taking back is a session too, and can\n"
           "be taken back.\n\n"
           "Columns: number, verdict, what it is, how it was before, how it is now, and why where it isn't back.\n"
           "Exit status: 0 everything is as it was; 1 something isn't.\n"_s;
}

} // namespace

const Subcommand undoPcSubcommand{
    "undo"_L1, {}, "take changes back, exactly, by the journal"_L1, undoOptions(), 0, 0, runUndo, moreHelp,
};
