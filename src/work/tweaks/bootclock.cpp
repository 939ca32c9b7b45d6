// SPDX-License-Identifier: GPL-3.0-or-later
// The timers of the boot configuration.

#include "gamingtweaks.h"
#include "platform/platform.h"
#include "tweakcommand.h"
#include "work/interruption.h"

using namespace Qt::StringLiterals;

void setPlatformClockTweak(bool apply, const QString &winName)
{
    constexpr int startAutomatic = 2;
    constexpr int startDisabled = 4;

    if (winName.contains("11"_L1)) {
        runTweakTool(u"bcdedit"_s, {u"/set"_s, u"useplatformclock"_s, apply ? u"False"_s : u"True"_s});
    } else {
        platform()
            .openKey(u"HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services\\Hpet"_s)
            ->setValue(u"Start"_s, apply ? startDisabled : startAutomatic);
    }
    // Unlike behind other tools it is Windows 10 that is asked for: any other system gets the short pause.
    pauseFor(winName.contains("10"_L1) ? 300 : 30);
}

void setDynamicTickTweak(bool apply)
{
    runTweakTool(u"bcdedit"_s, {u"/set"_s, u"disabledynamictick"_s, apply ? u"Yes"_s : u"No"_s});
    pauseFor(30);
}
