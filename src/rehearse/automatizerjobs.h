// SPDX-License-Identifier: GPL-3.0-or-later
// The Automatizer's three buttons without the window: their guards, their jobs, and what the window does after the
// closing lines.

#pragma once

class LinePrinter;
class WorkThread;

/** What a user would have chosen in the window. */
struct AutomatizerChoice
{
    bool programs = true; ///< packages and what starts at logon
    bool features = true; ///< tweaks
    bool walk = false;    ///< the answer to the question for the walk over all files
};

bool isAutomatizerJob(int job);

/**
 * Analyzes, optimizes what an Analyze before has found, or restores. A Failure where the window would refuse, and where
 * a job didn't come to its end.
 */
void runAutomatizer(WorkThread &worker, int job, const AutomatizerChoice &choice, LinePrinter &printer);
