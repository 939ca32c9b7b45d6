// SPDX-License-Identifier: GPL-3.0-or-later
// Breaking a program off by Ctrl-C, or by whatever else asks it to end. It isn't ended at once: it comes to a place
// where it stops by itself, so that nothing temporary is left behind and nothing is left half done.

#pragma once

/** Thrown where a program that is broken off stops; for main() alone to catch. */
struct Interrupted
{
    int exitCode; ///< what the process ends with: 128 and the number of the signal, as shells have it; 130 by Ctrl-C
};

/**
 * From now on, being asked to end is noted instead of ending the process: on Windows by Ctrl-C, Ctrl-Break, the
 * closing of the console, logging off and shutting down, elsewhere by SIGINT, SIGTERM, SIGHUP and SIGPIPE, but for
 * those that whoever started the process has it ignore. To be called once, first of all.
 */
void watchForInterruption();
/**
 * From now on the end of standard input asks the process to end, too, as Ctrl-C does: a program that has started this
 * one can do so on every system, and it comes by itself where that program is gone.
 */
void watchStandardInput();
/** Whether the process has been asked to end; false forever in one that doesn't watch for it. */
bool isInterrupted();
/** Throws Interrupted if so. Long work of the main thread calls it again and again. */
void stopIfInterrupted();
/** Whether an exit code is that of a program which was broken off. */
constexpr bool tellsInterruption(int exitCode)
{
    return exitCode > 128;
}

/** How long to wait for anything else, in milliseconds, before looking at the interruption again. */
constexpr int interruptionSlice = 20;
