// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-cli status and verify

#include "commands.h"
#include "journal/takeback.h"

#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

QList<Aim> presentAims(const Arguments &arguments, const Pc &pc)
{
    if (arguments.has(jsonOption.name))
        checkReportFile(arguments.value(jsonOption.name));
    const Profile profile = profileOf(arguments, pc);
    WorkThread worker;
    applyProfile(worker, profile);
    return aimsOf(worker, pc.system(), profile);
}

int runStatus(const Arguments &arguments)
{
    const Pc pc(arguments, PcUse::Look);
    reportAims(u"status"_s, arguments, presentAims(arguments, pc), true);
    if (!pc.otherAccount().isEmpty() && arguments.value(jsonOption.name) != "-"_L1)
        print(u"this runs as %1: what belongs to a user is none of its own, and the way back is the journal\n"_s.arg(
            pc.otherAccount()));
    return ExitDone;
}

int runVerify(const Arguments &arguments)
{
    const Pc pc(arguments, PcUse::Look);
    const QList<Aim> aims = presentAims(arguments, pc);
    reportAims(u"verify"_s, arguments, aims, false);
    return areInForce(aims) ? ExitDone : ExitJobFailed;
}

constexpr OptionRow statusOptions[] = {profileOption, jsonOption};

constexpr OptionRow verifyOptions[] = {
    profileOption,
    jsonOption,
    {"quiet"_L1, {}, "print nothing: the exit status tells"_L1},
};

QString statusHelp()
{
    return u"Changes nothing and needs no administrator rights; what can't be read without them is unknown, and "
           u"scheduled\n"
           "tasks that Windows shows to administrators alone are missing.\n"
           "Columns: state, kind of thing, name, what is asked for, why, and what stops working\n"
           "without it.\n"_s;
}

QString verifyHelp()
{
    return u"Prints what isn't in force, and counts. Changes nothing.\n"
           "Exit status: 0 everything is in force, or isn't needed or there; 1 something isn't.\n"_s;
}

} // namespace

const Subcommand statusSubcommand{
    "status"_L1,   {},         "show the state of everything that Optimize, or a profile, would change"_L1,
    statusOptions, 0,          0,
    runStatus,     statusHelp,
};

const Subcommand verifyPcSubcommand{
    "verify"_L1, {}, "check whether all of it is in force"_L1, verifyOptions, 0, 0, runVerify, verifyHelp,
};
