// SPDX-License-Identifier: GPL-3.0-or-later
// Optimize: carries out what Analyze has left, in six phases.

#include "automatizer.h"
#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "work/autorun/autorun.h"
#include "work/command.h"
#include "work/interruption.h"
#include "work/keepfeatures.h"
#include "work/services/services.h"
#include "work/settings.h"
#include "work/statusline.h"
#include "work/tweaks/tweakcatalogue.h"
#include "work/windowsname.h"

#include <algorithm>

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

/** Switches what starts at logon off and records it. Gives the name by which it is reported. */
QString switchOff(const AutorunEntry &entry)
{
    if (!isPackagedTaskExactly(entry.name) || hasPartedName(entry.path)) {
        disableRunValue(entry);
        return entry.name;
    }
    disablePackagedTask(entry);
    // The process would have to be named like the task.
    const QString program = QString(entry.name).remove(u".exe"_s) + u".exe"_s;
    runTool(u"taskkill"_s, {u"/im"_s, program, u"/f"_s, u"/t"_s});
    return program;
}

} // namespace

void Automatizer::optimize()
{
    if (worker_.optimizeRunning != 0)
        return;
    worker_.optimizeRunning = 1;
    markOptimizeBegun();
    if (worker_.analyzeServiceCount > 0)
        optimizeServices();
    if (worker_.analyzeTaskCount > 0)
        optimizeTasks();
    if (worker_.automatizerProgram == 1 && worker_.analyzePackageCount > 0)
        optimizePackages();
    if (worker_.automatizerProgram == 1 && worker_.analyzeAutorunCount > 0)
        optimizeAutoruns();
    if (encoderServerFound == 1)
        optimizeEncoder();
    if (worker_.automatizerTweak == 1) {
        // Still running: the window ends it, when it has recorded the tweaks and asked its question.
        optimizeTweaks();
    } else {
        report(StatusLine::optimizedWithoutTweaks);
        worker_.optimizeRunning = 0;
    }
    // Whatever failed: from now on Optimize also brings back what is kept.
    setOptimized(true);
    clearOptimizeBegun();
}

void Automatizer::optimizeServices()
{
    constexpr int settleDelay = 300;

    platform().openKey(WindowsKey::control)->setValue(u"WaitToKillServiceTimeout"_s, u"3000"_s);
    reportPhase(WorkThread::tr("Services"));
    QStringList &names = worker_.servicesToChange;
    names.clear();
    for (const ServiceRow &row : std::as_const(worker_.automatizerServices))
        names.append(row.name);
    reportMaximum(names.size());
    reportStep(0);
    worker_.SvcStopOrStart(names, false);
    if (wasOptimized()) {
        pauseFor(settleDelay);
        names.clear();
        for (const KeepFeature &feature : keepFeaturesToBringBack()) {
            if (feature.isKept(worker_))
                names += feature.services;
        }
        reportMaximum(names.size());
        reportStep(0);
        worker_.SvcStopOrStart(names, true);
    }
    for (const QString &name : manualStartServiceNames()) {
        if (!startsByItself(name))
            continue;
        setManualStart(name);
        report(WorkThread::tr("Service: set to manual:") + u' ' + name);
    }
    reportBreak();
}

void Automatizer::optimizeTasks()
{
    const int settleDelay = isWindows10(worker_.winName) ? 1020 : 200;

    reportPhase(WorkThread::tr("Tasks"));
    reportMaximum(worker_.automatizerTasks.size());
    reportStep(0);
    int counter = 1;
    for (const TaskRow &task : std::as_const(worker_.automatizerTasks)) {
        const bool done = changeTask(schtasksPath(task.path), u"/DISABLE"_s) == 0;
        if (done)
            record(u"Task"_s, task.path, 1);
        report(WorkThread::tr("Task: disable and stop %1").replace(u"%1"_s, task.path) + u' '
               + (done ? WorkThread::tr("done") : WorkThread::tr("error")));
        reportStep(counter);
        pauseFor(settleDelay);
        ++counter;
    }
    if (wasOptimized()) {
        for (const KeepFeature &feature : keepFeatures) {
            if (!feature.isKept(worker_))
                continue;
            for (const QString &name : feature.tasks) {
                const QString path = feature.taskFolder + name;
                // Reported as done, whether it was or not, and neither recorded nor counted.
                changeTask(path, u"/ENABLE"_s);
                report(WorkThread::tr("Task: Enable and start %1 done").replace(u"%1"_s, path));
                reportStep(counter);
                pauseFor(settleDelay);
            }
        }
    }
    reportBreak();
}

void Automatizer::optimizePackages()
{
    QList<PackageRow> &packages = worker_.packages;
    reportPhase(WorkThread::tr("Windows applications"));
    reportMaximum(packages.size());
    reportStep(0);
    worker_.PackageSetState(packages, false);
    if (wasOptimized()) {
        for (const KeepFeature &feature : keepFeaturesToBringBack()) {
            const QStringList names = feature.packagesToBringBack();
            if (names.isEmpty() || !feature.isKept(worker_))
                continue;
            const auto isFirst = [&names](const PackageRow &row) { return row.name == names.first(); };
            // The list is that of Analyze, or of the feature before: it names these only where the box was set since.
            if (std::any_of(packages.cbegin(), packages.cend(), isFirst))
                continue;
            packages.clear();
            for (const QString &name : names)
                packages.append({name, {}, {}});
            worker_.PackageSetState(packages, true);
        }
    }
    reportBreak();
}

void Automatizer::optimizeAutoruns()
{
    constexpr int settleDelay = 300;

    reportPhase(WorkThread::tr("Autorun"));
    reportMaximum(worker_.autoruns.size());
    reportStep(0);
    int counter = 1;
    for (const AutorunRow &row : std::as_const(worker_.autoruns)) {
        const QString name = switchOff(autorunEntry(row));
        pauseFor(settleDelay);
        report(WorkThread::tr("Autorun program: disable %1 done").replace(u"%1"_s, name));
        reportStep(counter);
        ++counter;
    }
    reportBreak();
}

void Automatizer::optimizeTweaks()
{
    reportPhase(WorkThread::tr("Features"));
    reportMaximum(3);
    reportStep(0);
    if (worker_.hasBattery())
        report(WorkThread::tr(
            "Features: Battery detected! Some optimizations will not be applied to maintain battery life"));
    report(WorkThread::tr("Features: applies SSD optimizations"));
    optimizeGroup(worker_, &WorkThread::TweakSSD, 9);
    reportStep(1);
    report(WorkThread::tr("Features: applies Gaming optimizations"));
    optimizeGroup(worker_, &WorkThread::TweakGaming, 13);
    reportStep(2);
    report(WorkThread::tr("Features: applies Windows optimizations"));
    // There is no 11, which has its pause all the same.
    optimizeGroup(worker_, &WorkThread::TweakWindows, 11);
    reportStep(3);
    report(StatusLine::tweaksDone);
}
