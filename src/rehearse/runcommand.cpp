// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse run

#include "jobrunner.h"
#include "jobs.h"
#include "journal/machinejournal.h"
#include "journal/programrecords.h"
#include "progress.h"
#include "stocktool/machinetoolhost.h"
#include "subcommands.h"
#include "verify/past.h"
#include "work/windowsname.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const JobRow &findJob(const Arguments &arguments)
{
    const QString name = arguments.operand(1);
    const qsizetype operands = arguments.operands().size() - 2;
    for (const JobRow &row : jobRows()) {
        if (row.name != name)
            continue;
        if (operands < row.fewestOperands)
            throw UsageError{u"missing operand after '%1'"_s.arg(arguments.operands().last())};
        if (row.mostOperands >= 0 && operands > row.mostOperands)
            throw UsageError{u"extra operand '%1'"_s.arg(arguments.operand(2 + row.mostOperands))};
        if (arguments.operands().indexOf(QString(), 2) >= 0)
            throw UsageError{u"empty operand for '%1'"_s.arg(name)};
        return row;
    }
    QStringList names;
    for (const JobRow &row : jobRows())
        names.append(row.name);
    throw UsageError{u"unknown job '%1'"_s.arg(name) + choicesText(name, u"Jobs"_s, names)};
}

bool isAbout(const ToolRun &run, const QString &operand)
{
    return std::any_of(run.arguments.cbegin(), run.arguments.cend(),
                       [&operand](const QString &argument) { return argument.contains(operand, Qt::CaseInsensitive); });
}

/** Why a job didn't do what was asked for one of its operands; empty where nobody knows. */
QString reasonFor(const JobRow &row, const QString &operand, const QList<ToolRun> &runs)
{
    constexpr int accessDenied = 5;

    const auto failed = std::find_if(runs.crbegin(), runs.crend(), [&operand](const ToolRun &run) {
        return run.exitCode != 0 && isAbout(run, operand);
    });
    const bool isRefused = failed != runs.crend();
    const QString code = isRefused ? u" (%1: %2)"_s.arg(failed->program).arg(failed->exitCode) : QString();
    if (row.isThere != nullptr && !row.isThere(operand))
        return u"there is no such %1"_s.arg(row.thing) + code;
    if (isRefused && failed->exitCode == accessDenied)
        return u"access denied"_s + code;
    if (isRefused)
        return u"refused"_s + code;
    return platform().isElevated() ? QString() : u"administrator rights are needed"_s;
}

/** The operands that a job left as they were, each with the reason, from the tools that it has run. */
QString leftUndone(const JobRow &row, const QStringList &left, const QList<ToolRun> &runs)
{
    QStringList texts;
    for (const QString &operand : left) {
        const QString reason = reasonFor(row, operand, runs);
        texts.append(reason.isEmpty() ? operand : operand + u": "_s + reason);
    }
    return texts.join("; "_L1);
}

double parsePace(const Arguments &arguments)
{
    if (!arguments.has("pace"_L1))
        return 0;
    bool isNumber = false;
    const double pace = arguments.value("pace"_L1).toDouble(&isNumber);
    if (!isNumber || !(pace >= 0 && pace <= 1000))
        throw UsageError{u"invalid argument '%1' for '--pace'"_s.arg(arguments.value("pace"_L1))};
    return pace;
}

/** Whether a job's last line is the one that the row names. */
bool isClosed(const JobRow &row, const std::optional<QString> &lastLine)
{
    return lastLine && (row.closingLine == anyLine || *lastLine == row.closingLine);
}

/** Prints what starts at logon now. */
void printAutorun(WorkThread &worker, LinePrinter &printer)
{
    worker.AutorunGetList();
    for (const AutorunRow &entry : std::as_const(worker.autoruns))
        printer.take("autorun"_L1, entry);
}

/** A tweak reports nothing by itself; what is left for the user to do is printed. */
void runTweak(WorkThread &worker, const TweakRequest &tweak, LinePrinter &printer)
{
    if (const std::optional<int> job = tweak.job())
        runToEnd(worker, *job, printer);
    else
        runToEnd([&] {
            const ChangeSession session(u"Tweaks"_s);
            (worker.*tweak.run)(tweak.apply ? 1 : 0, tweak.id);
        });
    printer.take("tweak"_L1, u"%1 %2 %3"_s.arg(tweak.group).arg(tweak.id).arg(tweak.apply ? "on"_L1 : "off"_L1));
    if (worker.needReboot == 1)
        printer.take("tweak"_L1, u"restart needed"_s);
}

/** Runs a job of the worker and prints what it leaves. A Failure where it didn't come to its end. */
void runOrdinaryJob(WorkThread &worker, const JobRow &row, LinePrinter &printer)
{
    if (!isClosed(row, runToEnd(worker, row.job, printer, row.record)))
        throw Failure{ExitJobFailed, u"the job %1 ended without its closing line"_s.arg(row.name)};
    if (row.results != nullptr) {
        for (const auto &[name, text] : row.results(worker))
            printer.takeResult(name, text);
    }
}

/** The state of the window's boxes and the answers to its questions. */
AutomatizerChoice automatizerChoice(const Arguments &arguments)
{
    return {.programs = !arguments.has("no-programs"_L1),
            .tweaks = !arguments.has("no-features"_L1),
            .walk = arguments.has("yes"_L1) && !arguments.has("no-walk"_L1)};
}

/** Of the buttons Optimize, Restore and Apply. */
bool isForOneAtATime(int job)
{
    return job == JobAutomatizerOptimize || job == JobAutomatizerRestore || job == jobTweak;
}

/** Runs what the row says on a worker that has its input. */
void runRow(WorkThread &worker, const JobRow &row, const Arguments &arguments)
{
    const std::shared_ptr<void> lock = isForOneAtATime(row.job) ? platform().lockOthersOut() : nullptr;
    if (isForOneAtATime(row.job) && !lock)
        throw Failure{ExitJobFailed, u"another instance is changing this machine"_s};
    Progress progress;
    progress.show(u"running %1 ..."_s.arg(row.name), 0, 0);
    LinePrinter printer(arguments.has("json"_L1), progress);
    if (row.job == jobAutorun)
        printAutorun(worker, printer);
    else if (row.job == jobTweak)
        runTweak(worker, parseTweak(arguments.operands().mid(2)), printer);
    else if (isAutomatizerJob(row.job))
        runAutomatizer(worker, row.job, automatizerChoice(arguments), printer);
    else
        runOrdinaryJob(worker, row, printer);
}

int runJob(const Arguments &arguments)
{
    const JobRow &row = findJob(arguments);
    const QStringList operands = arguments.operands().mid(2);
    if (row.job == jobTweak && parseTweak(operands).job() && !automatizerChoice(arguments).walk)
        throw UsageError{
            u"'%1' walks over all files of the partition: say --yes to that"_s.arg(operands.first(2).join(u' '))};
    MachineOptions machineOptions;
    machineOptions.elevated = !arguments.has("not-elevated"_L1);
    machineOptions.pace = parsePace(arguments);
    machineOptions.tools = toolsWithin();
    const QList<KeepChoice> keep = parseKeep(arguments.value("keep"_L1));

    const QString folder = openMachineToChange(arguments.operand(0))->folder();
    setPlatform(openMachinePlatform(folder, machineOptions));
    settleBrokenOff();
    const qsizetype earlierRuns = readToolLog(machineInForce()).size();
    WorkThread worker;
    applyKeep(worker, keep);
    setWindowsName(worker);
    if (row.prepare != nullptr)
        row.prepare(worker, operands);

    runRow(worker, row, arguments);
    if (const QString failure = platform().takeFailure(); !failure.isEmpty())
        throw Failure{ExitJobFailed, u"not everything was done: "_s + failure};
    if (row.unreached != nullptr) {
        if (const QStringList left = row.unreached(worker, operands); !left.isEmpty())
            throw Failure{ExitJobFailed,
                          u"%1 failed for %2"_s.arg(
                              row.name, leftUndone(row, left, readToolLog(machineInForce()).mid(earlierRuns)))};
    }
    return ExitDone;
}

QString moreHelp()
{
    QString text = u"Jobs:\n"_s;
    for (const JobRow &row : jobRows())
        text += u"  "_s + (QString(row.name) + u' ' + row.operands).leftJustified(28) + row.help + u'\n';
    text += u"\nTweaks, by their group and ID:\n"_s + tweaksInWords();
    return text
           + u"\nFeatures for --keep, each with 2 to keep it or 0 to give it up (default: as in the machine's Keep "
             u"list):\n"
             "  %1.\n"_s.arg(keepNames());
}

// clang-format off
constexpr OptionRow options[] = {
    {"not-elevated"_L1, {},                   "run it as a user without administrator rights"_L1,
     "Runs the job as a user without administrator rights."_L1},
    {"pace"_L1,         "FACTOR"_L1,          "multiply the job's pauses by FACTOR (default 0: no pauses)"_L1,
     "Multiplies the job's deliberate pauses by FACTOR.\nThe default is 0: no pauses."_L1},
    {"keep"_L1,         "FEATURE=STATE,..."_L1, "keep or give up features, for this run alone"_L1,
     "Keeps a feature (2) or gives it up (0), for this run alone; see\n.BR \"FEATURES TO KEEP\" ."_L1},
    {"no-programs"_L1,  {},                   "let the Automatizer leave packages and programs at logon alone"_L1},
    {"no-features"_L1,  {},                   "let the Automatizer leave the tweaks alone"_L1},
    {"yes"_L1,          {},                   "answer Yes to the window's question for a walk over all files"_L1,
     "Answers Yes to the question that the window asks before it walks over all files."_L1},
    {"no-walk"_L1,      {},                   "answer No to it (default)"_L1,
     "Answers No to it, which is the default."_L1},
    {"json"_L1,         {},                   "print each line as a JSON object"_L1},
};
// clang-format on

} // namespace

const Subcommand runSubcommand{
    "run"_L1, "DIR JOB [ARG]..."_L1, "run a job without a window and print its lines"_L1, options, 2, -1, runJob,
    moreHelp,
};
