// SPDX-License-Identifier: GPL-3.0-or-later
// The scheduled tasks that Analyze finds.

#include "restorelists.h"
#include "work/keepfeatures.h"
#include "work/tasks/taskcatalogue.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

void WorkThread::analyzeTasks()
{
    TaskMakeList();
    const bool bringBack = wasOptimized();
    for (const TaskRow &task : std::as_const(tasks)) {
        if (task.disabled == 0) {
            analyzeTask(task);
            continue;
        }
        for (const KeepFeature &feature : keepFeatures) {
            if (bringBack && feature.isKept(*this) && feature.hasTask(task.name))
                reportFinding(analyzeTaskCount, tr("Task: can be enable: ") + task.path);
        }
    }
    if (analyzeTaskCount > 0)
        reportBreak();
}

void WorkThread::analyzeTask(const TaskRow &task)
{
    // A task that goes for two reasons is selected and counted twice.
    for (int reasons = reasonsAgainstTask(*this, task.name); reasons > 0; --reasons) {
        automatizerTasks.append(task);
        reportFinding(analyzeTaskCount, tr("Task: can be disable: ") + task.path);
    }
}
