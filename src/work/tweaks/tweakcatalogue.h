// SPDX-License-Identifier: GPL-3.0-or-later
// The tweaks with their boxes on the Features page, when each of them runs, and what is stored of them.

#pragma once

#include "work/workthread.h"

#include <QMap>

#include <span>

/** On which machine, and in which setting, something holds of a tweak. */
enum class When {
    Always,
    Never,
    Windows11,
    NoBattery,
    BarGivenUp,           ///< the Xbox game bar isn't kept
    BarGivenUpOrRestored, ///< the same, and in any case when a Restore runs or has run with the tweaks
    BatteryOrAmd,         ///< with a battery in any case, else where the first graphics card is one of AMD
    AsJob,                ///< not in its turn: after a question, as job 11 or 12
};

/** Whether it holds now. Asks WMI for the graphics card where that decides. Any thread. */
bool holds(When when, const WorkThread &worker);

/** TweakSSD, TweakGaming or TweakWindows. */
using TweakRoutine = void (WorkThread::*)(quint8 apply, quint32 id);

/** A tweak. Its box is checked while it is in force. */
struct TweakBox
{
    QLatin1StringView name;            ///< of the box, and of the value that stores its state
    TweakRoutine tweak;                ///< of its group
    quint32 id;                        ///< in its group
    When reboot;                       ///< it takes effect, and ends, at a restart
    When check;                        ///< Check all checks the box
    When apply;                        ///< the Apply button runs it, if the user touched its box
    When optimize;                     ///< Optimize puts it in force
    When restore;                      ///< Restore takes it back
    When record;                       ///< a run of the Automatizer is recorded in its box
    TweakRoutine inOptimize = nullptr; ///< another group's tweak of its number that Optimize runs in its place
};

/** All tweaks, in the order of the Apply button. */
std::span<const TweakBox> tweakBoxes();

/** The tweak of that number in a group; nullptr where there is none. */
const TweakBox *findTweak(TweakRoutine group, quint32 id);
/** Whether it takes effect at a restart only. */
bool needsReboot(TweakRoutine group, quint32 id, const WorkThread &worker);

/**
 * A run of the Automatizer through one group: by one column, the numbers 1 to @p last in their order, with a pause
 * after each, also after one that doesn't run or isn't there. Throws JobInterrupted.
 */
void optimizeGroup(WorkThread &worker, TweakRoutine group, quint32 last);
void restoreGroup(WorkThread &worker, TweakRoutine group, quint32 last);

// The stored state of the Features page. The system is never asked: what is stored here is what the page shows.

/** What the Features page shows. */
struct TweakState
{
    QMap<QString, bool> boxes; ///< by the names of tweakBoxes()
    int priorityIndex = 3;     ///< of the combo box beside chkGaming11
};

/** The stored state with all boxes; what isn't stored is unchecked. */
TweakState storedTweaks();

/** Stores the index and the boxes that @p state has; what is stored of others stays. */
void storeTweaks(const TweakState &state);

/**
 * Stores the outcome of a run of the Automatizer: the boxes that it stands for as checked after Optimize, as
 * unchecked after Restore. Goes by the worker's name of Windows, battery, Keep list and restoreRunning.
 * @param priorityIndex of the combo box beside chkGaming11
 */
void recordTweaksOfAutomatizer(const WorkThread &worker, int priorityIndex);
