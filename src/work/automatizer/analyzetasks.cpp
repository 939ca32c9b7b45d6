// SPDX-License-Identifier: GPL-3.0-or-later
// The scheduled tasks that Analyze finds.

#include "restorelists.h"
#include "work/tasks/taskcatalogue.h"
#include "work/workthread.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool endsWithAny(const QString &name, const QStringList &endings)
{
    return std::any_of(endings.cbegin(), endings.cend(),
                       [&name](const QString &ending) { return name.endsWith(ending, Qt::CaseInsensitive); });
}

bool startsWithAny(const QString &name, const QStringList &prefixes)
{
    return std::any_of(prefixes.cbegin(), prefixes.cend(),
                       [&name](const QString &prefix) { return name.startsWith(prefix, Qt::CaseInsensitive); });
}

} // namespace

void WorkThread::analyzeTasks()
{
    TaskMakeList();
    const bool bringBack = wasOptimized();
    for (const TaskRow &task : std::as_const(tasks)) {
        if (task.disabled == 0) {
            analyzeTask(task);
            continue;
        }
        for (const KeepFeatureTasks &feature : keepFeatureTasks()) {
            if (bringBack && this->*feature.keep != 0 && endsWithAny(task.name, feature.nameEndings))
                reportFinding(analyzeTaskCount, tr("Task: can be enable: ") + task.path);
        }
    }
    if (analyzeTaskCount > 0)
        reportBreak();
}

void WorkThread::analyzeTask(const TaskRow &task)
{
    const auto select = [&] {
        automatizerTasks.append(task);
        reportFinding(analyzeTaskCount, tr("Task: can be disable: ") + task.path);
    };
    // A task that goes for two reasons is selected and counted twice.
    for (const KeepFeatureTasks &feature : keepFeatureTasks()) {
        if (this->*feature.keep == 0 && endsWithAny(task.name, feature.nameEndings))
            select();
    }
    if (nonVitalTasks.contains(task.name, Qt::CaseInsensitive) || startsWithAny(task.name, nonVitalTaskPrefixes()))
        select();
}
