// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs.h"

#include "jobrunner.h"
#include "platform/platform.h"
#include "subcommands.h"
#include "work/automatizer/automatizer.h"
#include "work/automatizer/records.h"
#include "work/statusline.h"
#include "work/tweaks/tweakcatalogue.h"

using namespace Qt::StringLiterals;

namespace {

/** Runs a job that has to end by the given line. */
void runUpTo(const QString &closingLine, WorkThread &worker, int job, LineTaker &lines)
{
    if (runToEnd(worker, job, lines) != closingLine)
        throw Failure{ExitJobFailed, u"the job ended without its closing line"_s};
}

void analyze(WorkThread &worker, LineTaker &lines)
{
    runUpTo(StatusLine::analyzed, worker, JobAutomatizerAnalyze, lines);
}

/** After "tweaksDone": the record, and the walk, if it is asked for. */
void closeTweaks(WorkThread &worker, bool walk, LineTaker &lines)
{
    recordTweaksOfAutomatizer(worker, worker.win32PrioritySeparationIndex);
    // Optimize isn't over before the walk, which reports its end by that.
    if (walk)
        runUpTo(worker.optimizeRunning == 1 ? StatusLine::attributesSetByOptimize : StatusLine::attributesSet, worker,
                JobTweakApply, lines);
    worker.optimizeRunning = 0;
}

void optimize(WorkThread &worker, const AutomatizerChoice &choice, LineTaker &lines)
{
    analyze(worker, lines);
    const int found = worker.analyzeServiceCount + worker.analyzeTaskCount + worker.analyzePackageCount
                      + worker.analyzeAutorunCount + worker.analyzeProcessCount;
    if (found == 0)
        throw Failure{ExitJobFailed, u"no optimizations found"_s};
    runUpTo(choice.tweaks ? StatusLine::tweaksDone : StatusLine::optimizedWithoutTweaks, worker, JobAutomatizerOptimize,
            lines);
    if (choice.tweaks)
        closeTweaks(worker, choice.walk, lines);
}

void restore(WorkThread &worker, const AutomatizerChoice &choice, LineTaker &lines)
{
    if (!canRestore())
        throw Failure{ExitJobFailed, u"cannot restore what has not yet been optimized"_s};
    for (const QString &record : distrustedRecords())
        lines.takeResult(u"passed over"_s, record);
    fillRestoreLists(worker);
    worker.taskRestoreMode = true;
    worker.restoreRunning = 1;
    runUpTo(choice.tweaks ? StatusLine::tweaksDone : StatusLine::restoredWithoutTweaks, worker, JobAutomatizerRestore,
            lines);
    const QStringList notBroughtBack = programsNotBroughtBack(); // while they are recorded
    if (choice.tweaks)
        closeTweaks(worker, choice.walk, lines);
    else
        closeRestore();
    for (const QString &name : notBroughtBack)
        lines.takeResult(u"not brought back"_s, name);
}

} // namespace

bool isAutomatizerJob(int job)
{
    return job == JobAutomatizerAnalyze || job == JobAutomatizerOptimize || job == JobAutomatizerRestore;
}

void runAutomatizer(WorkThread &worker, int job, const AutomatizerChoice &choice, LineTaker &lines)
{
    if (!platform().isElevated())
        throw Failure{ExitJobFailed, u"the Automatizer needs administrator rights"_s};
    worker.automatizerProgram = choice.programs ? 1 : 0;
    worker.automatizerTweak = choice.tweaks ? 1 : 0;
    if (job == JobAutomatizerAnalyze) {
        analyze(worker, lines);
        return;
    }
    const ChangeSession session(job == JobAutomatizerOptimize ? u"Optimize"_s : u"Restore"_s);
    if (job == JobAutomatizerOptimize)
        optimize(worker, choice, lines);
    else
        restore(worker, choice, lines);
}
