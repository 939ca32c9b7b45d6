// SPDX-License-Identifier: GPL-3.0-or-later
// The real PC behind the seam, with its journal.

#pragma once

#include "journal.h"

/** Where the PC has its journal, changes.sqlite; empty where Windows has no folder for the data of programs. */
QString realJournalFolder();

/**
 * The real PC; for an elevated process with its journal. Where that can't be opened, nothing is changed, and
 * takeFailure() says why at once.
 */
std::unique_ptr<Platform> openRealPlatform();
/** The same for a process known to be elevated, with a folder that is or becomes the administrators' alone. */
std::unique_ptr<Journal> openRealJournal(const QString &folder);
