// SPDX-License-Identifier: GPL-3.0-or-later
// Analyze: what could be optimized. Changes nothing; leaves lists and counts for Optimize, and a line for each finding.

#include "restorelists.h"
#include "work/autorun/autorun.h"
#include "work/keepfeatures.h"
#include "work/statusline.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

QString uninstallText(const QString &package)
{
    const QString text = WorkThread::tr("Package: can be uninstalled: ") + package;
    if (package != "Microsoft.XboxApp"_L1)
        return text;
    return text + u" ("_s + WorkThread::tr("Old Xbox App, no longer supported!") + u')';
}

} // namespace

void WorkThread::AutomatizerAnalyze()
{
    constexpr int sections = 5;

    if (analyzeRunning == 0) {
        analyzeRunning = 1;
        automatizerServices.clear();
        automatizerTasks.clear();
        for (int *count : {&analyzeServiceCount, &analyzeTaskCount, &analyzePackageCount, &analyzeAutorunCount,
                           &analyzeProcessCount})
            *count = 0;
        reportMaximum(sections);
        reportStep(1);
        analyzeServices();
        reportStep(2);
        analyzeTasks();
        reportStep(3);
        if (automatizerProgram == 1)
            analyzePackages();
        reportStep(4);
        if (automatizerProgram == 1)
            analyzeAutoruns();
        reportStep(5);
        analyzeProcesses();
    }
    reportToAutomatizer(StatusLine::analyzed);
    analyzeRunning = 0;
}

void WorkThread::analyzePackages()
{
    PackageGetList();
    for (const PackageRow &row : std::as_const(packages))
        reportFinding(analyzePackageCount, uninstallText(row.name));
    if (wasOptimized()) {
        for (const KeepFeature &feature : keepFeaturesToBringBack()) {
            if (!feature.isKept(*this) || feature.packages.isEmpty() || this->*feature.installed != 0)
                continue;
            for (const QString &name : feature.packagesToBringBack())
                reportFinding(analyzePackageCount, tr("Package: can be installed: ") + name);
        }
    }
    if (analyzePackageCount > 0)
        reportBreak();
}

void WorkThread::analyzeAutoruns()
{
    AutorunGetList();
    for (const AutorunRow &row : std::as_const(autoruns))
        reportFinding(analyzeAutorunCount, tr("Autorun: can be disabled: ") + u' ' + autorunEntry(row).name);
    if (analyzeAutorunCount > 0)
        reportBreak();
}

void WorkThread::reportFinding(int &count, const QString &line)
{
    ++count;
    reportToAutomatizer(line);
}

void WorkThread::reportMaximum(qsizetype steps)
{
    reportToAutomatizer(StatusLine::maximum(steps));
}

void WorkThread::reportStep(qsizetype step)
{
    reportToAutomatizer(StatusLine::step(step));
}
