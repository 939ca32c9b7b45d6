// SPDX-License-Identifier: GPL-3.0-or-later
// How a job ends early: every wait, pause and walk of the logic looks whether its thread is asked to stop.

#pragma once

#include <QString>

#include <functional>

struct WalkEntry;

/**
 * Thrown on a worker thread that is asked to end, and caught by WorkThread::run() alone. It is no std::exception, so
 * that routines that log exceptions and go on don't stop it.
 */
struct JobInterrupted
{
};

/** Throws JobInterrupted if the calling thread is asked to end. */
void endIfInterrupted();
/** A pause that belongs to the pacing between two steps. Throws JobInterrupted. */
void pauseFor(int milliseconds);
/** Visits every entry below a folder, given as a Windows path. Throws JobInterrupted. */
void walkFolder(const QString &windowsPath, const std::function<void(const WalkEntry &)> &visit);
