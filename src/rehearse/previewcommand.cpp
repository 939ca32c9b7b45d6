// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse preview

#include "console/programinterruption.h"
#include "machine/machine.h"
#include "machine/workfolder.h"
#include "platform/processground.h"
#include "preview/preview.h"
#include "progress.h"
#include "stocktool/machinetoolhost.h"
#include "subcommands.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

/**
 * Runs a job of the Automatizer on a copy, in a process of its own: a process has one machine. False where there is
 * nothing to optimize, and so nothing to restore.
 */
bool runOnCopy(const QString &copy, const QString &job, const QStringList &options)
{
    QProcess process;
    carryToolsOutWithin(process);
    process.start(QCoreApplication::applicationFilePath(), QStringList{u"run"_s, copy, job} + options);
    if (!waitForEnd(process))
        throw Failure{ExitJobFailed, u"%1: %2"_s.arg(job, process.errorString())};
    if (tellsInterruption(process.exitCode()))
        throw Interrupted{process.exitCode()};
    const QString errors = QString::fromUtf8(process.readAllStandardError()).trimmed();
    if (errors.endsWith("no optimizations found"_L1))
        return false;
    if (process.exitCode() != ExitDone)
        throw Failure{static_cast<ExitCode>(process.exitCode()), errors.section(u": "_s, 1)};
    return true;
}

/** The options of a run that a preview takes too. */
QStringList automatizerOptions(const Arguments &arguments)
{
    QStringList options;
    if (arguments.has("keep"_L1))
        options << u"--keep"_s << arguments.value("keep"_L1);
    for (const QLatin1StringView name : {"no-programs"_L1, "no-features"_L1}) {
        if (arguments.has(name))
            options << u"--"_s + name;
    }
    return options;
}

/**
 * A machine as it was at one moment, and what became of it. The machine itself isn't among them: other processes may go
 * on working on it.
 */
struct Copies
{
    Copies()
    {
        if (!work.isValid())
            throw Failure{ExitJobFailed, work.errorString()};
    }

    const WorkFolder work;
    std::unique_ptr<Machine> before{};
    std::unique_ptr<Machine> optimized{};
    std::unique_ptr<Machine> restored{};
};

/** Opening would make the folder anew, and a preview without the PC's files would look right and be wrong. */
void checkFiles(const QString &folder)
{
    const QString place = absoluteFolder(folder);
    if (QFileInfo::exists(place + u"/machine.sqlite"_s) && !QFileInfo(place + u"/drive_c"_s).isDir())
        throw Failure{ExitMachineUnreadable, u"%1: its files are missing: there is no folder drive_c"_s.arg(folder)};
}

/** What would be brought back must be what the PC has. */
void checkNames(const QString &folder)
{
    if (openMachine(folder)->hasReplacedNames()) {
        throw Failure{ExitBadArguments,
                      u"%1: this machine was captured without real names, so --undo would write placeholders; "
                      "capture it with --with-names"_s.arg(folder)};
    }
}

std::unique_ptr<Machine> copyOf(const Machine &machine, const QString &folder)
{
    copyMachine(machine, folder);
    return Machine::open(folder, Origin::Checked);
}

void makeCopies(Copies &copies, const QString &folder, const QStringList &options, Progress &progress)
{
    constexpr int steps = 5;
    progress.show(u"copying the machine"_s, 0, steps);
    copies.before = copyOf(*openMachine(folder), copies.work.filePath(u"before"_s));
    copies.optimized = copyOf(*copies.before, copies.work.filePath(u"optimized"_s));
    progress.show(u"Optimize"_s, 1, steps);
    const bool anyFound = runOnCopy(copies.optimized->folder(), u"optimize"_s, options);
    progress.show(u"copying the optimized machine"_s, 2, steps);
    copies.restored = copyOf(*copies.optimized, copies.work.filePath(u"restored"_s));
    progress.show(u"Restore"_s, 3, steps);
    if (anyFound)
        runOnCopy(copies.restored->folder(), u"restore"_s, options);
    progress.show(u"comparing"_s, 4, steps);
}

/** The PC, and how it was optimized where that isn't the usual way. */
QString describedPc(const Machine &machine, const QStringList &options)
{
    return options.isEmpty() ? machine.name() : u"%1 (Optimize run with %2)"_s.arg(machine.name(), options.join(u' '));
}

int runPreview(const Arguments &arguments)
{
    // Nothing that lies in a machine, which may come from anybody, is handled with an administrator's rights.
    if (const auto code = runWithoutRights())
        return *code;
    if (arguments.has("profile"_L1) || arguments.has("all"_L1))
        return previewProfile(arguments);
    if (arguments.operands().isEmpty())
        throw UsageError{u"missing operand: the folder of a rehearsal machine"_s};
    const QStringList choice = automatizerOptions(arguments);
    for (const QLatin1StringView report : {"html"_L1, "json"_L1}) {
        if (arguments.has(report))
            checkReportFile(arguments.value(report));
    }
    checkFiles(arguments.operand(0));
    if (arguments.has("undo"_L1)) {
        checkReportFiles(arguments.value("undo"_L1));
        checkNames(arguments.operand(0));
    }
    Progress progress(isSteered(arguments));
    Copies copies;
    makeCopies(copies, arguments.operand(0), choice, progress);
    const QList<PreviewItem> items = previewItems(*copies.before, *copies.optimized, *copies.restored);
    progress.clear();

    if (arguments.has("undo"_L1)) {
        printWritten(writeUndo(*copies.before, *copies.optimized, absoluteFolder(arguments.value("undo"_L1))));
    }
    if (arguments.has("html"_L1)) {
        const bool offersUndo = !arguments.has("undo"_L1) && !copies.before->hasReplacedNames();
        writePage(arguments,
                  previewHtml(items, describedPc(*copies.before, choice), PreviewWay::OptimizeAndRestore, offersUndo));
    }
    if (arguments.has("json"_L1))
        writeReportFile(arguments.value("json"_L1), previewJson(items));
    if (!arguments.has("html"_L1) && !arguments.has("json"_L1) && !arguments.has("undo"_L1))
        print(previewText(items));
    return ExitDone;
}

// clang-format off
constexpr OptionRow options[] = {
    {"keep"_L1,        "FEATURE=STATE,..."_L1, "say which features are kept, as 'run' does"_L1,
     "Keeps features or gives them up, as\n.B run\ndoes."_L1},
    {"no-programs"_L1, {},                     "let the Automatizer leave packages and programs at logon alone"_L1},
    {"no-features"_L1, {},                     "let the Automatizer leave the tweaks alone"_L1},
    {"profile"_L1,     "FILE"_L1,              "try 'kestrune-cli apply' and 'undo' with a profile instead"_L1,
     "Tries the profile\n.I FILE\non a copy instead, as\n.B kestrune\\-cli apply\nand\n.B undo\nwould, and reports as\n"
     ".B kestrune\\-cli plan\ndoes."_L1},
    {"all"_L1,         "FOLDER"_L1,            "try it on each machine in FOLDER: a table, a line for each"_L1,
     "Tries it on each rehearsal machine in\n.IR FOLDER ,\nand prints a table with a line for each: how many things of each "
     "kind would change, how many would be refused, and what\nwouldn't come back. Without\n.B \\-\\-profile\nit is what "
     "Optimize does."_L1},
    {"html"_L1,        "FILE"_L1,              "write a web page"_L1,
     "Writes a web page: one file, without anything from outside, that can be searched and printed."_L1},
    {"json"_L1,        "FILE"_L1,              "write JSON"_L1},
    {"undo"_L1,        "FILE"_L1,              "write the way back: a .reg file, and the commands beside it"_L1,
     "Writes an exact way back.\n"
     ".I FILE\n"
     "is a registry script that sets every value which Optimize would change to what it is now, and removes those that "
     "aren't there\nnow.\n"
     "Beside it come a list of commands for what isn't in the registry, and the files that Optimize would change.\n"
     "It can be applied in Safe Mode with nothing but the system's own tools.\n"
     "What has a name that would say something else in a script or a command, by a control character, a quotation mark or "
     "a percent\nsign, is left out, and the output names it.\n"
     "The PC must have been captured with its real names, and should have been captured by an administrator: anything that "
     "could not\nbe read is treated as absent."_L1},
    steeredOption,
};
// clang-format on

} // namespace

const Subcommand previewSubcommand{
    "preview"_L1, "[DIR]"_L1, "show what Optimize would change, and what Restore would bring back"_L1, options, 0, 1,
    runPreview,
};
