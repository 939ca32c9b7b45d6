// SPDX-License-Identifier: GPL-3.0-or-later
// How services are set to start: the one-time backup, and those that needn't start by themselves.

#pragma once

#include <QString>

/** Host path of the backup, a registry script. */
QString startModeBackupFile();

/**
 * Writes the start modes of all shared-process services to the backup, unless it is there already: it is a snapshot of
 * the system as it was before the program's first run, and that is its whole worth.
 * @return 0 written; -1 there already, or can't be opened; 1 and 2 an exception of the runtime, or of a file
 */
int WriteStartModeBackup();

/** Whether the service is there and set to start in another way than on demand or not at all. */
bool startsByItself(const QString &service);
/** Lets the service start on demand. */
void setManualStart(const QString &service);
