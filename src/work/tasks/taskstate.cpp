// SPDX-License-Identifier: GPL-3.0-or-later
// Disabling and enabling scheduled tasks.

#include "work/command.h"
#include "work/interruption.h"
#include "work/settings.h"
#include "work/statusline.h"
#include "work/windowsname.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

void WorkThread::TaskStopOrStart(const QList<TaskRow> &list)
{
    if (optimizeRunning == 0 && restoreRunning == 0)
        report(StatusLine::maximum(list.size()));
    const int settleDelay = isWindows10(winName) ? 1020 : 300;

    for (qsizetype i = 0; i < list.size(); ++i) {
        const TaskRow &task = list.at(i);
        Command schtasks;
        if (!startLogged(schtasks, u"TaskStopOrStart"_s, u"schtasks"_s,
                         {u"/CHANGE"_s, u"/TN"_s, task.path, task.disabled == 1 ? u"/DISABLE"_s : u"/ENABLE"_s}))
            continue;
        schtasks.waitForFinished();
        // Before the pause: nothing would remember the task if the run ended there.
        if (!taskRestoreMode && schtasks.exitCode() == 0)
            record(u"Task"_s, task.path, task.disabled);
        pauseFor(settleDelay);

        // The count begins at 0, so that the bar is full only when the closing line comes.
        const QString progress = StatusLine::step(i);
        if (optimizeRunning == 0 && restoreRunning == 0 && analyzeRunning == 0) {
            report(progress);
            report(tr("Task:") + u' ' + task.name);
        } else if (restoreRunning == 1) {
            reportToAutomatizer(tr("Task: Enable and start %1 done").replace(u"%1"_s, task.name));
            reportToAutomatizer(progress);
        }
    }
    report(StatusLine::tasksChanged);
}
