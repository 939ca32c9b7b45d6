// SPDX-License-Identifier: GPL-3.0-or-later
// The exact copies of the Run values that the program removes. A record keeps a command as a text and ends before an
// "=", and Restore brings back only what stands in double quotes: this is where the rest still is.

#pragma once

#include <QString>

/** Host path of the registry script that holds them, in the order of their removals. */
QString runBackupFile();

/**
 * Adds a Run value with its type and data to the script, unless it is in there.
 * @return false where it can't be kept, and is lost when it is removed
 */
bool backUpRunValue(const QString &key, const QString &name);
