// SPDX-License-Identifier: GPL-3.0-or-later
// What a console program asks of the operating system.

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/** Makes standard output and standard error carry bytes as they are written. */
void useBinaryOutput();
/** The same, and a console shows them as UTF-8 as long as the program runs. */
void useUtf8Output();
/** Whether someone may be reading standard error as it is written. */
bool errorsGoToTerminal();
/** Whether the program that started this one has gone; false where that is unknown. */
bool starterIsGone();
/** What a tool printed, in the code page of this console; where there is none, in that of a rehearsal machine. */
QString consoleText(const QByteArray &bytes);
/** Text in a code page of Windows, by its number; bytes that are none become U+FFFD. Nothing for one that is unknown
 * here. */
std::optional<QString> textOfCodePage(const QByteArray &bytes, uint codePage);

// Code page 850, which the consoles of most PCs in Western Europe have, and those of rehearsal machines.

/** The text as tools print it; a character that the code page lacks becomes "?". */
QByteArray toConsoleBytes(QStringView text);
QString fromConsoleBytes(const QByteArray &bytes);
