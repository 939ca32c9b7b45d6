// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes of the Features page and the tweaks behind them.

#pragma once

#include "work/workthread.h"

#include <span>

/** When the Apply button runs the tweak of a box that the user touched. */
enum class TweakApply {
    Always,
    Windows11,
    AsJob, ///< the walk over all files: after a question, as job 11 or 12
};

/** Whether a run of the Automatizer is recorded in a box. */
enum class TweakRecord {
    Always,
    Windows11,
    WithoutBattery,
    GameBarGivenUp, ///< Optimize leaves the game bar alone where it is kept; Restore doesn't ask
    Never,
};

/** A box: checked while its tweak is in force. */
struct TweakBox
{
    QLatin1StringView name; ///< of the object, and of the value that stores the box
    void (WorkThread::*tweak)(quint8 apply, quint32 id);
    quint32 id;
    TweakApply applied;
    TweakRecord recorded;
};

/** All boxes, in the order in which the Apply button takes them. */
std::span<const TweakBox> tweakBoxes();
