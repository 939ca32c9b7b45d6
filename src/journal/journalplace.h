// SPDX-License-Identifier: GPL-3.0-or-later
// Where a journal lies, and what becomes of something else that lies there.

#pragma once

#include "journalstore.h"

/** Whether a file that is there may be another's; see isForeign() of Windows. */
using ForeignRule = bool (*)(const QString &file);

/**
 * Gives a file or folder, or a link itself, another name: the first free one with a word and a number after it. The
 * files that SQLite keeps beside a database go along.
 * @return its new path; throws MachineError where it stays, or nothing is there
 */
QString putAside(const QString &path, const QString &word);

/**
 * Opens a journal, or makes it. A folder or file that is a link, or something else than it should be, or foreign, and a
 * file that is damaged are put aside before, and nothing is lost. Throws MachineError.
 * @param isForeign may be null
 * @param told gets a sentence in English for each that was put aside
 */
std::unique_ptr<JournalStore> openStore(const QString &file, Durability durability, ForeignRule isForeign,
                                        QStringList &told);

/** The sentence for what wasn't the program's own. */
QString foreignText(const QString &path, const QString &newPath);
