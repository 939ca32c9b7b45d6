// SPDX-License-Identifier: GPL-3.0-or-later
// Restore: takes back what was recorded. No mirror of Optimize: what wasn't recorded stays, and some steps differ.

#include "platform/platform.h"
#include "work/interruption.h"
#include "work/settings.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

void WorkThread::AutomatizerRestore()
{
    if (!servicesToChange.isEmpty())
        restoreServices();
    if (!tasksToChange.isEmpty())
        restoreTasks();
    if (automatizerProgram != 0) {
        restoreAutoruns();
        restorePackages();
    }
    if (automatizerTweak != 0) {
        // restoreRunning stays set, and what follows counts as a Restore until the program ends.
        restoreFeatures();
        return;
    }
    reportToAutomatizer(u"AutomatizerRestore:finished"_s);
    restoreRunning = 0;
}

void WorkThread::restoreServices()
{
    // Not what was there before Optimize, and not a text as that was.
    constexpr int timeout = 2000;

    platform()
        .openKey(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control"_s)
        ->setValue(u"WaitToKillServiceTimeout"_s, timeout);
    reportPhase(tr("Services"));
    reportMaximum(servicesToChange.size());
    SvcStopOrStart(servicesToChange, true);
    reportBreak();
}

void WorkThread::restoreTasks()
{
    reportPhase(tr("Tasks"));
    reportMaximum(tasksToChange.size());
    TaskStopOrStart(tasksToChange);
    reportBreak();
}

void WorkThread::restorePackages()
{
    packagesToChange.clear();
    for (const QString &name : recordedNames(u"Packages"_s))
        packagesToChange.append({name, {}, u""_s});
    if (packagesToChange.isEmpty())
        return;
    reportPhase(tr("Windows applications"));
    reportStep(0);
    reportMaximum(packagesToChange.size());
    PackageSetState(packagesToChange, true);
    reportBreak();
}

void WorkThread::restoreFeatures()
{
    constexpr int settleDelay = 10;
    const bool onWindows11 = winName.contains("11"_L1);

    reportPhase(tr("Features"));
    reportMaximum(3);
    reportStep(0);
    reportToAutomatizer(tr("Features: reset SSD optimizations"));
    for (quint32 id = 1; id <= 9; ++id) {
        // Optimize has applied 9 everywhere, and never 7.
        if (id != 8 && (id != 9 || onWindows11))
            TweakSSD(0, id);
        pauseFor(settleDelay);
    }
    reportStep(1);
    reportToAutomatizer(tr("Features: reset Gaming optimizations"));
    for (quint32 id = 1; id <= 13; ++id) {
        if (id != 8 || onWindows11)
            TweakGaming(0, id);
        pauseFor(settleDelay);
    }
    reportStep(2);
    reportToAutomatizer(tr("Features: reset Windows optimizations"));
    for (quint32 id = 1; id <= 10; ++id) {
        if (id != 5 || onWindows11)
            TweakWindows(0, id);
        pauseFor(settleDelay);
    }
    reportStep(3);
    reportToAutomatizer(u"tweaksDone"_s);
}
