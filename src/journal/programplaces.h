// SPDX-License-Identifier: GPL-3.0-or-later
// What of the program's own settings the journal takes for records.

#pragma once

#include "journal.h"

/** For JournalOptions::ownPlace. */
OwnPlace placeInProgram(const QString &key, const QString &name);

/**
 * How many days the user wants sessions to be kept, by the setting JournalDays; 0: for ever. Any program of the user
 * can write that, so it is never less than 90 days.
 */
int keptDays(const SystemState &system);
