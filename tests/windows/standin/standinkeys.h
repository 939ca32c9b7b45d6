// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests and the stand-ins of the stock tools tell each other, by way of the registry.

#pragma once

#include <QString>

/** One value for each service that was ever started: 1 runs, 0 doesn't. */
inline const QString standInStates = QStringLiteral("HKEY_CURRENT_USER\\Software\\KestruneTest\\Running");
/** How many commands were run; and one value for each, by its number from 1: the tool and its arguments. */
inline const QString standInCommands = QStringLiteral("HKEY_CURRENT_USER\\Software\\KestruneTest\\Commands");
inline const QString standInCount = QStringLiteral("Count");
/** What the tools last saw around them: a value with all variables for each tool, and one with the current folder. */
inline const QString standInSurroundings = QStringLiteral("HKEY_CURRENT_USER\\Software\\KestruneTest\\Surroundings");
inline const QString standInFolder = QStringLiteral("CurrentFolder");
/** One value for each scheduled task, in order: its path, a line feed and its document. */
inline const QString standInTasks = QStringLiteral("HKEY_CURRENT_USER\\Software\\KestruneTest\\Tasks");
/** One value for each option of the boot configuration. */
inline const QString standInBootOptions = QStringLiteral("HKEY_CURRENT_USER\\Software\\KestruneTest\\BootOptions");
/** One value for each file whose owner or rights were changed: the owner, a line feed and the rights. */
inline const QString standInSecurity = QStringLiteral("HKEY_CURRENT_USER\\Software\\KestruneTest\\Security");
/** The value "Names": the names of the processes. */
inline const QString standInProcesses = QStringLiteral("HKEY_CURRENT_USER\\Software\\KestruneTest\\Processes");

/** Rights and arguments of programs of the tests that somebody started, each by its name. */
inline const QString startedPrograms = QStringLiteral("HKEY_CURRENT_USER\\Software\\KestruneTest\\Started");

/** The name of a task's value, with zeros in front, which keep the order where names are sorted. */
inline QString standInTaskName(qsizetype place)
{
    return QStringLiteral("%1").arg(place, 6, 10, QChar(u'0'));
}
