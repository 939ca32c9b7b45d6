// SPDX-License-Identifier: GPL-3.0-or-later
// Optimize's phase of tweaks: which of the three groups' numbers are put in force on which machine.

#include "work/displayadapter.h"
#include "work/interruption.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int settleDelay = 30;

bool hasBattery(const WorkThread &worker)
{
    return worker.batteryCharge != "-1"_L1;
}

bool isWindows11(const WorkThread &worker)
{
    return worker.winName.contains("11"_L1);
}

bool isFirstCardOfAmd()
{
    return firstDisplayAdapter().value_or(QString()).contains("AMD"_L1, Qt::CaseInsensitive);
}

void applySsd(WorkThread &worker, quint32 id)
{
    // 7 is another group's here: the SSD tweak of that number is never applied. 8 is the walk that the user is asked
    // about in the end.
    if (id == 7) {
        if (!hasBattery(worker))
            worker.TweakGaming(1, id);
    } else if (id != 8) {
        worker.TweakSSD(1, id);
    }
}

void applyGaming(WorkThread &worker, quint32 id)
{
    const auto fits = [&] {
        switch (id) {
        case 2:
        case 7:
            return !hasBattery(worker);
        case 6:
            return worker.keepXboxGameBar == 0;
        case 8:
            return isWindows11(worker);
        case 13:
            // AMD's own tweak is 14, which the Automatizer never applies; it is 13 that goes by the card.
            return hasBattery(worker) || isFirstCardOfAmd();
        default:
            return true;
        }
    };
    if (fits())
        worker.TweakGaming(1, id);
}

void applyWindows(WorkThread &worker, quint32 id)
{
    const bool needs11 = id == 5 || id == 9;
    const bool none = id == 11;
    if (!none && (!needs11 || isWindows11(worker)))
        worker.TweakWindows(1, id);
}

/** A pause follows each number, also one that doesn't fit. */
void applyEach(WorkThread &worker, quint32 last, void (*apply)(WorkThread &, quint32))
{
    for (quint32 id = 1; id <= last; ++id) {
        apply(worker, id);
        pauseFor(settleDelay);
    }
}

} // namespace

void WorkThread::optimizeFeatures()
{
    reportPhase(tr("Features"));
    reportMaximum(3);
    reportStep(0);
    if (hasBattery(*this))
        reportToAutomatizer(
            tr("Features: Battery detected! Some optimizations will not be applied to maintain battery life"));
    reportToAutomatizer(tr("Features: applies SSD optimizations"));
    applyEach(*this, 9, applySsd);
    reportStep(1);
    reportToAutomatizer(tr("Features: applies Gaming optimizations"));
    applyEach(*this, 13, applyGaming);
    reportStep(2);
    reportToAutomatizer(tr("Features: applies Windows optimizations"));
    applyEach(*this, 11, applyWindows);
    reportStep(3);
    reportToAutomatizer(u"tweaksDone"_s);
}
