// SPDX-License-Identifier: GPL-3.0-or-later
// Files that reports are written to.

#pragma once

#include <QString>

/** Tells, before long work, that a report can't be written. Leaves nothing there. Throws Failure. */
void checkReportFile(const QString &path);
/** The same for a report of several files, which no device or pipe can take. */
void checkReportFiles(const QString &path);
/**
 * Writes a report as a whole, or leaves what was there. A device or a pipe is written to, and never replaced. Throws
 * Failure.
 */
void writeReportFile(const QString &path, const QByteArray &report);
