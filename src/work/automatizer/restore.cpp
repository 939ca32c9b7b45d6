// SPDX-License-Identifier: GPL-3.0-or-later
// Restore: takes back what was recorded. No mirror of Optimize: what wasn't recorded stays, and some steps differ.

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "work/settings.h"
#include "work/statusline.h"
#include "work/tweaks/tweakcatalogue.h"

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
    reportToAutomatizer(StatusLine::restoredWithoutTweaks);
    restoreRunning = 0;
}

void WorkThread::restoreServices()
{
    // Not what was there before Optimize, and not a text as that was.
    constexpr int timeout = 2000;

    platform().openKey(WindowsKey::control)->setValue(u"WaitToKillServiceTimeout"_s, timeout);
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
    reportPhase(tr("Features"));
    reportMaximum(3);
    reportStep(0);
    reportToAutomatizer(tr("Features: reset SSD optimizations"));
    restoreTweaks(*this, &WorkThread::TweakSSD, 9);
    reportStep(1);
    reportToAutomatizer(tr("Features: reset Gaming optimizations"));
    restoreTweaks(*this, &WorkThread::TweakGaming, 13);
    reportStep(2);
    reportToAutomatizer(tr("Features: reset Windows optimizations"));
    restoreTweaks(*this, &WorkThread::TweakWindows, 10);
    reportStep(3);
    reportToAutomatizer(StatusLine::tweaksDone);
}
