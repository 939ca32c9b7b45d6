// SPDX-License-Identifier: GPL-3.0-or-later
// Runs of the Automatizer's jobs in a test.

#pragma once

#include "joblines.h"
#include "support/automatizermachine.h"
#include "work/automatizer/automatizer.h"

/** Runs a job. Its lines; one on the page's signal stands after "page: ". */
inline QStringList linesOf(WorkThread &worker, int job)
{
    JobLines lines(worker);
    if (!runJob(worker, job))
        return {QStringLiteral("no end")};
    QStringList told = lines.all();
    for (QString &line : told) {
        if (line.startsWith(QStringLiteral("automatizer: ")))
            line.remove(0, 13);
    }
    return told;
}

/** An Optimize after an Analyze, with the window's part after it. */
inline QStringList optimize(WorkThread &worker)
{
    linesOf(worker, JobAutomatizerAnalyze);
    const QStringList lines = linesOf(worker, JobAutomatizerOptimize);
    worker.optimizeRunning = 0;
    return lines;
}

/** A Restore as the window's click starts it. */
inline QStringList restore(WorkThread &worker)
{
    fillRestoreLists(worker);
    worker.taskRestoreMode = true;
    worker.restoreRunning = 1;
    return linesOf(worker, JobAutomatizerRestore);
}

/** What the tools were asked since the last call; listings are left out. */
class ToolRuns
{
public:
    explicit ToolRuns(const TestMachine &machine)
        : machine_(machine)
    {
    }
    QStringList next()
    {
        QStringList runs;
        for (const LoggedCommand &command : machine_.commands().mid(seen_)) {
            ++seen_;
            if (command.arguments.value(0) != QStringLiteral("query")
                && command.arguments.value(0) != QStringLiteral("/xml"))
                runs.append(command.program + u'|' + command.arguments.join(u'|'));
        }
        return runs;
    }

private:
    const TestMachine &machine_;
    qsizetype seen_ = 0;
};
