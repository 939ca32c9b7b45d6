// SPDX-License-Identifier: GPL-3.0-or-later
// The ground that a process of ours stands on: what it was started with by whomever, and may not go by.

#pragma once

#include <QString>

/**
 * First thing in main(), before the application object and any thread. On Windows DLLs come from the system's folder
 * alone then, which is the current folder too. In an elevated process the variables by which the system, its programs
 * and the user are found are those of the system itself, since every program of the user can set them for all processes
 * to come; variables that make a process load somebody's code are gone. What the process starts inherits all of this.
 * Elsewhere it does nothing.
 */
void prepareProcess();

/** A path as it was given to the program, made absolute by the folder that the program was started in. */
QString absolutePath(const QString &path);
