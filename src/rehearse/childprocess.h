// SPDX-License-Identifier: GPL-3.0-or-later
// Programs that a subcommand starts and waits for.

#pragma once

class QProcess;

/**
 * Waits for a program that was started, however long it takes. Where this program is broken off, or the other one was,
 * it is ended with all that it runs, and Interrupted is thrown. False where it didn't start, or didn't end by itself.
 */
bool waitForEnd(QProcess &process);
