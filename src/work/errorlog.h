// SPDX-License-Identifier: GPL-3.0-or-later
// The error log.

#pragma once

#include <QString>

/**
 * Appends a line with date and time to log.txt in the program folder, if the setting LogError is 1; nobody but the user
 * sets it, by hand in the registry. Any thread. A log that can't be written is passed over in silence.
 */
void LogError(const QString &message);
