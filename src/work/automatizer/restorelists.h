// SPDX-License-Identifier: GPL-3.0-or-later
// What a Restore takes in before its job starts, and what is done behind its closing line.

#pragma once

class WorkThread;

/** Whether an Optimize has run since the last Restore that left the features out. */
bool wasOptimized();
void setOptimized(bool optimized);

/** Fills servicesToChange and tasksToChange from the records of what was disabled. For the thread that starts the job.
 */
void fillRestoreLists(WorkThread &worker);

/** Behind "AutomatizerRestore:finished": forgets the programs taken out of the start-up and the tweaks in force. */
void closeRestore();
