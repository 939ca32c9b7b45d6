// SPDX-License-Identifier: GPL-3.0-or-later
// The ground that a process of ours stands on: what it was started with by whomever, and may not go by.

#pragma once

#include <QString>

#include <optional>

/**
 * First thing in main(), before the application object and any thread. On Windows DLLs come from the system's folder
 * alone then, which is the current folder too. In an elevated process the variables by which the system, its programs
 * and the user are found are those of the system itself, since every program of the user can set them for all processes
 * to come; variables that make a process load somebody's code are gone. What the process starts inherits all of this.
 * Elsewhere it does nothing.
 */
void prepareProcess();

/**
 * Runs this program once more with its arguments, its standard streams and the user's rights alone, and waits for its
 * end: what a process with administrator rights calls before it does what needs none. Where this process ends first,
 * the other one is ended. Gives its exit code, or 1 where Windows doesn't start it, which is said on the standard
 * error; nothing where this process has no such rights, and goes on itself.
 */
std::optional<int> runWithoutRights();

/** A path as it was given to the program, made absolute by the folder that the program was started in. */
QString absolutePath(const QString &path);
