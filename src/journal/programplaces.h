// SPDX-License-Identifier: GPL-3.0-or-later
// What of the program's own settings the journal takes for records.

#pragma once

#include "journal.h"

/** For JournalOptions::ownPlace. */
OwnPlace placeInProgram(const QString &key, const QString &name);
