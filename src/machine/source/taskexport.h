// SPDX-License-Identifier: GPL-3.0-or-later
// Reads and writes scheduled tasks in the form that "schtasks /xml" prints.

#pragma once

#include "machine/machine.h"

/** Whether a file is such a list, by its name or its beginning. */
bool isTaskExport(const QString &fileName, const QByteArray &bytes);
/**
 * Reads documents one after another, or within <Tasks>, each behind a comment that names its path, and a declaration. A
 * document without such a comment is named by its own URI. The bytes may be UTF-16 with its mark, UTF-8, or text of a
 * console. Throws MachineError with "file:line: reason".
 */
QList<ScheduledTask> parseTaskExport(const QByteArray &bytes, const QString &fileName);

/** The task's document behind its comment and declaration, lines ended by LF. */
QString taskExportText(const ScheduledTask &task);
