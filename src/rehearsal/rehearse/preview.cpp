// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse preview

#include "platform/simulated/machine.h"
#include "progress.h"
#include "rehearsal/machinecopy.h"
#include "rehearsal/preview/previewreport.h"
#include "rehearsal/preview/undo.h"
#include "subcommands.h"

#include <QCoreApplication>
#include <QProcess>
#include <QSaveFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/**
 * Runs a job of the Automatizer on a copy, in a process of its own: a process has one machine. False where there is
 * nothing to optimize, and so nothing to restore.
 */
bool runOnCopy(const QString &copy, const QString &job, const QStringList &options)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), QStringList{u"run"_s, copy, job} + options);
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit)
        throw Failure{ExitJobFailed, u"%1: %2"_s.arg(job, process.errorString())};
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

void writeReport(const QString &path, const QByteArray &report)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(report) < 0 || !file.commit())
        throw Failure{ExitJobFailed, u"%1: %2"_s.arg(path, file.errorString())};
}

/** The machine and its two copies. */
struct Copies
{
    explicit Copies(const QString &folder)
        : machine(openMachine(folder))
    {
        if (!work.isValid())
            throw Failure{ExitJobFailed, work.errorString()};
    }

    const QTemporaryDir work;
    std::unique_ptr<Machine> machine;
    std::unique_ptr<Machine> optimized;
    std::unique_ptr<Machine> restored;
};

void makeCopies(Copies &copies, const QStringList &options, Progress &progress)
{
    constexpr int steps = 5;
    const QString optimized = copies.work.filePath(u"optimized"_s);
    const QString restored = copies.work.filePath(u"restored"_s);
    progress.show(u"copying the machine"_s, 0, steps);
    copyMachine(*copies.machine, optimized);
    progress.show(u"Optimize"_s, 1, steps);
    const bool anyFound = runOnCopy(optimized, u"optimize"_s, options);
    copies.optimized = Machine::open(optimized);
    progress.show(u"copying the optimized machine"_s, 2, steps);
    copyMachine(*copies.optimized, restored);
    progress.show(u"Restore"_s, 3, steps);
    if (anyFound)
        runOnCopy(restored, u"restore"_s, options);
    copies.restored = Machine::open(restored);
    progress.show(u"comparing"_s, 4, steps);
}

int runPreview(const Arguments &arguments)
{
    Progress progress;
    Copies copies(arguments.operand(0));
    makeCopies(copies, automatizerOptions(arguments), progress);
    const QList<PreviewItem> items = previewItems(*copies.machine, *copies.optimized, *copies.restored);
    progress.clear();

    if (arguments.has("undo"_L1)) {
        for (const QString &file :
             writeUndo(*copies.machine, *copies.optimized, absoluteFolder(arguments.value("undo"_L1))))
            print(file + u'\n');
    }
    if (arguments.has("html"_L1))
        writeReport(arguments.value("html"_L1), previewHtml(items, copies.machine->name()).toUtf8());
    if (arguments.has("json"_L1))
        writeReport(arguments.value("json"_L1), previewJson(items));
    if (!arguments.has("html"_L1) && !arguments.has("json"_L1) && !arguments.has("undo"_L1))
        print(previewText(items));
    return ExitDone;
}

// clang-format off
constexpr OptionRow options[] = {
    {"keep"_L1,        "FEATURE=STATE,..."_L1, "say which features are kept, as 'run' does"_L1},
    {"no-programs"_L1, {},                     "let the Automatizer leave packages and programs at logon alone"_L1},
    {"no-features"_L1, {},                     "let the Automatizer leave the tweaks alone"_L1},
    {"html"_L1,        "FILE"_L1,              "write a web page"_L1},
    {"json"_L1,        "FILE"_L1,              "write JSON"_L1},
    {"undo"_L1,        "FILE"_L1,              "write the way back: a .reg file, and the commands beside it"_L1},
};
// clang-format on

} // namespace

const Subcommand previewSubcommand{
    "preview"_L1, "DIR"_L1, "show what Optimize would change, and what Restore would bring back"_L1, options, 1, 1,
    runPreview,
};
