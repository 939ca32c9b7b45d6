// SPDX-License-Identifier: GPL-3.0-or-later
// Optimize's phase of tweaks.

#include "work/statusline.h"
#include "work/tweaks/tweakcatalogue.h"

using namespace Qt::StringLiterals;

void WorkThread::optimizeFeatures()
{
    reportPhase(tr("Features"));
    reportMaximum(3);
    reportStep(0);
    if (hasBattery())
        reportToAutomatizer(
            tr("Features: Battery detected! Some optimizations will not be applied to maintain battery life"));
    reportToAutomatizer(tr("Features: applies SSD optimizations"));
    optimizeTweaks(*this, &WorkThread::TweakSSD, 9);
    reportStep(1);
    reportToAutomatizer(tr("Features: applies Gaming optimizations"));
    optimizeTweaks(*this, &WorkThread::TweakGaming, 13);
    reportStep(2);
    reportToAutomatizer(tr("Features: applies Windows optimizations"));
    // There is no 11, which has its pause all the same.
    optimizeTweaks(*this, &WorkThread::TweakWindows, 11);
    reportStep(3);
    reportToAutomatizer(StatusLine::tweaksDone);
}
