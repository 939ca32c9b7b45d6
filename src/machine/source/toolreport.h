// SPDX-License-Identifier: GPL-3.0-or-later
// What the system's own tools print on a PC: "sc query state= all" and "schtasks /xml".

#pragma once

#include "machine/machine.h"
#include "platform/systemreader.h"

/** What a tool printed. */
struct ToolText
{
    QString text;
    bool isGuess = false; ///< read as code page 850 for want of anything better
};

/**
 * Reads UTF-16 with its mark, text of the code page that is named, or, where none is (0), UTF-8, or else text of a
 * console in Western Europe. Throws MachineError for an unknown code page.
 */
ToolText readToolText(const QByteArray &bytes, uint codePage = 0);

/** Whether a text looks like what "sc query state= all" prints, in any language. */
bool isServiceReport(const QString &text);
/** Reads it. Throws MachineError with "file:line: reason". */
QList<ServiceReport> parseServiceReport(const QString &text, const QString &fileName);

/** Whether a file is a list of scheduled tasks as "schtasks /xml" prints it, by its name or its beginning. */
bool isTaskExport(const QString &fileName, const QByteArray &bytes);
/**
 * Reads documents one after another, or within <Tasks>, each after a comment that names its path, and a declaration. A
 * document without such a comment is named by its own URI. The bytes may be UTF-16 with its mark, UTF-8, or text of a
 * console. Throws MachineError with "file:line: reason".
 */
QList<ScheduledTask> parseTaskExport(const QByteArray &bytes, const QString &fileName);
/** The same of what readToolText() has read. */
QList<ScheduledTask> parseTaskExport(const QString &text, const QString &fileName);

/** The task's document after its comment and declaration, lines ended by LF. */
QString taskExportText(const ScheduledTask &task);
