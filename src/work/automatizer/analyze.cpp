// SPDX-License-Identifier: GPL-3.0-or-later
// Analyze: what could be optimized, a line for each finding.

#include "automatizer.h"
#include "platform/windowsfacts.h"
#include "work/autorun/autorun.h"
#include "work/keepfeatures.h"
#include "work/services/services.h"
#include "work/statusline.h"
#include "work/tasks/tasks.h"

#include <algorithm>

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

void Automatizer::analyze()
{
    constexpr int sections = 5;

    if (worker_.analyzeRunning == 0) {
        worker_.analyzeRunning = 1;
        worker_.automatizerServices.clear();
        worker_.automatizerTasks.clear();
        for (int *count : {&worker_.analyzeServiceCount, &worker_.analyzeTaskCount, &worker_.analyzePackageCount,
                           &worker_.analyzeAutorunCount, &worker_.analyzeProcessCount})
            *count = 0;
        reportMaximum(sections);
        reportStep(1);
        analyzeServices();
        reportStep(2);
        analyzeTasks();
        reportStep(3);
        if (worker_.automatizerProgram == 1)
            analyzePackages();
        reportStep(4);
        if (worker_.automatizerProgram == 1)
            analyzeAutoruns();
        reportStep(5);
        analyzeProcesses();
    }
    report(StatusLine::analyzed);
    worker_.analyzeRunning = 0;
}

void Automatizer::analyzeServices()
{
    int &count = worker_.analyzeServiceCount;
    worker_.SvcMakeList();
    worker_.nonVitalServices = nonVitalServiceNames();
    addServicesOfFeaturesGivenUp(worker_);
    const bool bringBack = wasOptimized();
    for (const ServiceRow &row : std::as_const(worker_.services)) {
        const bool disabled = row.startsAs(StartDisabled);
        if (row.running && !disabled && worker_.nonVitalServices.contains(row.name, Qt::CaseInsensitive)) {
            worker_.automatizerServices.append(row);
            reportFinding(count, WorkThread::tr("Service: can be disable: ") + row.name);
        } else if (bringBack && !row.running && disabled && isOfKeptFeature(worker_, row.name)) {
            // No list takes it: Optimize brings back all that is kept.
            reportFinding(count, WorkThread::tr("Service: can be enable: ") + row.name);
        }
    }
    for (const QString &name : manualStartServiceNames()) {
        if (startsByItself(name))
            reportFinding(count, WorkThread::tr("Service: can be set to manual:") + u' ' + name);
    }
    if (count > 0)
        reportBreak();
}

void Automatizer::analyzeTasks()
{
    int &count = worker_.analyzeTaskCount;
    worker_.TaskMakeList();
    const bool bringBack = wasOptimized();
    for (const TaskRow &task : std::as_const(worker_.tasks)) {
        if (task.disabled == 0) {
            // A task that goes for two reasons is selected and counted twice.
            for (int reasons = reasonsAgainstTask(worker_, task.name); reasons > 0; --reasons) {
                worker_.automatizerTasks.append(task);
                reportFinding(count, WorkThread::tr("Task: can be disable: ") + task.path);
            }
            continue;
        }
        for (const KeepFeature &feature : keepFeatures) {
            if (bringBack && feature.isKept(worker_) && feature.hasTask(task.name))
                reportFinding(count, WorkThread::tr("Task: can be enable: ") + task.path);
        }
    }
    if (count > 0)
        reportBreak();
}

void Automatizer::analyzePackages()
{
    int &count = worker_.analyzePackageCount;
    worker_.PackageGetList();
    for (const PackageRow &row : std::as_const(worker_.packages))
        reportFinding(count, uninstallText(row.name));
    if (wasOptimized()) {
        for (const KeepFeature &feature : keepFeaturesToBringBack()) {
            if (feature.packages.isEmpty() || !feature.isKept(worker_) || worker_.*feature.installed != 0)
                continue;
            for (const QString &name : feature.packagesToBringBack())
                reportFinding(count, WorkThread::tr("Package: can be installed: ") + name);
        }
    }
    if (count > 0)
        reportBreak();
}

void Automatizer::analyzeAutoruns()
{
    int &count = worker_.analyzeAutorunCount;
    worker_.AutorunGetList();
    for (const AutorunRow &row : std::as_const(worker_.autoruns))
        reportFinding(count, WorkThread::tr("Autorun: can be disabled: ") + u' ' + autorunEntry(row).name);
    if (count > 0)
        reportBreak();
}
