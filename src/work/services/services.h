// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about services, how they are set to start, and the texts that name them.

#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

/** Services that Windows can't do without; the Services page greys them. Compared with case. */
extern const QStringList criticalServices;

/** Services that most people don't need. */
QStringList nonVitalServiceNames();

/** Services that needn't start by themselves, but aren't disabled: what uses them starts them. */
QStringList manualStartServiceNames();

/** Services that the start-mode backup leaves out. Compared with case. */
QStringList startModeBackupExclusions();

/**
 * Whether a type, the number in the service's key as a text, is one of those that are listed: own and shared processes,
 * per-user services and their instances, and own processes that may show windows. Drivers are of others.
 */
bool isListedServiceType(const QString &type);

/** Host path of the backup, a registry script. */
QString startModeBackupFile();

/**
 * Writes the start modes of all shared-process services to the backup, unless it is there already: it is a snapshot of
 * the system as it was before the program's first run, and that is its whole worth.
 * One that was cut off when it was written is no such snapshot: it is renamed, and a new one is written.
 * @return 0 written; -1 there already, or can't be written; 1 and 2 an exception of the runtime, or of a file
 */
int WriteStartModeBackup();

/** The names of the services that run, in what "sc query" prints. */
QSet<QString> runningServices(const QString &report);

/** Whether the service is there and set to start in another way than on demand or not at all. */
bool startsByItself(const QString &service);
/** Lets the service start on demand. */
void setManualStart(const QString &service);

/** The text that a registry string stands for, which may be a reference into a DLL's string table. Any thread. */
QString expandResourceString(const QString &text);
/** A string of a DLL by its decimal number, or "no description" in the user's language. Any thread. */
QString resourceInDll(const QString &dllPath, const QString &id);
