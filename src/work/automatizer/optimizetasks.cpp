// SPDX-License-Identifier: GPL-3.0-or-later
// Optimize's phase of scheduled tasks.

#include "restorelists.h"
#include "work/command.h"
#include "work/interruption.h"
#include "work/keepfeatures.h"
#include "work/settings.h"
#include "work/windowsname.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

/** The path of a task as schtasks takes it; one in the root folder needs no backslash. */
QString schtasksPath(const QString &path)
{
    return path.contains(u'\\') ? u'\\' + path : path;
}

/** The exit code of schtasks. */
int changeTask(const QString &path, const QString &change)
{
    return runTool(u"schtasks"_s, {u"/CHANGE"_s, u"/TN"_s, path, change});
}

} // namespace

void WorkThread::optimizeTasks()
{
    const int settleDelay = isWindows10(winName) ? 1020 : 200;

    reportPhase(tr("Tasks"));
    reportMaximum(automatizerTasks.size());
    reportStep(0);
    int counter = 1;
    for (const TaskRow &task : std::as_const(automatizerTasks)) {
        const bool done = changeTask(schtasksPath(task.path), u"/DISABLE"_s) == 0;
        if (done)
            openRecords(u"Task"_s)->setValue(task.path, 1);
        reportToAutomatizer(tr("Task: disable and stop %1").replace(u"%1"_s, task.path) + u' '
                            + (done ? tr("done") : tr("error")));
        reportStep(counter);
        pauseFor(settleDelay);
        ++counter;
    }
    if (wasOptimized()) {
        for (const KeepFeature &feature : keepFeatures) {
            if (!feature.isKept(*this))
                continue;
            for (const QString &name : feature.tasks) {
                const QString path = feature.taskFolder + name;
                // Told as done, whether it was or not, and neither recorded nor counted.
                changeTask(path, u"/ENABLE"_s);
                reportToAutomatizer(tr("Task: Enable and start %1 done").replace(u"%1"_s, path));
                reportStep(counter);
                pauseFor(settleDelay);
            }
        }
    }
    reportBreak();
}
