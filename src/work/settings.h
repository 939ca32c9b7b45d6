// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own settings and records, and its error log.

#pragma once

#include "platform/registrykey.h"

#include <memory>

/** The program's own key, which holds its settings. */
inline const QString programKey = QStringLiteral("HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale");
/** The key below it that holds a group of records: SVC, Task, Autorun, Packages or Tweak. */
QString recordKey(const QString &group);

std::unique_ptr<RegistryKey> openSettings();
std::unique_ptr<RegistryKey> openRecords(const QString &group);
/** Writes a record, which is on the disk when this returns. */
void record(const QString &group, const QString &name, const QVariant &value);
/** The names in a group of records, in order; the key's unnamed value is none. */
QStringList recordedNames(const QString &group);

/**
 * Appends a line with date and time to log.txt in the program folder, if the setting LogError is 1; nobody but the user
 * sets it, by hand in the registry. Any thread. A log that can't be written is passed over in silence.
 */
void LogError(const QString &message);
