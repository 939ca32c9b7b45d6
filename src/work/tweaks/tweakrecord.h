// SPDX-License-Identifier: GPL-3.0-or-later
// The stored state of the Features page. The system is never asked: what is stored here is what the page shows.

#pragma once

#include <QMap>
#include <QString>

class WorkThread;

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
