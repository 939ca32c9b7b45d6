// SPDX-License-Identifier: GPL-3.0-or-later
// Hibernation.

#include "ssdtweaks.h"
#include "tweakcommand.h"

using namespace Qt::StringLiterals;

void setHibernationTweak(bool apply, const QString &winName)
{
    runTweakTool(u"powercfg"_s, {u"-h"_s, apply ? u"OFF"_s : u"ON"_s});
    letSystemSettle(winName);
}
