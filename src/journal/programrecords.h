// SPDX-License-Identifier: GPL-3.0-or-later
// What the journal has to do with the program's own settings and records.

#pragma once

#include "journal.h"

/** The session of what was done before there was a journal. */
inline const QString beforeTheJournal = QStringLiteral("Before the journal, not exact");

/** The session of a profile, which does what Optimize does, or a part of it. */
inline const QString appliedProfile = QStringLiteral("Apply a profile");

/** For JournalOptions::ownPlace. */
OwnPlace placeInProgram(const QString &key, const QString &name);

/**
 * How many days the user wants sessions to be kept, by the setting JournalDays; 0: for ever. Any program of the user
 * can write that, so it is never less than 90 days.
 */
int keptDays(const SystemState &system);

/**
 * A record follows its change, so a program that was ended between the two has left a service, a task or a package
 * that nothing remembers as switched off. Makes such records, for changes that are in force, and writes down what those
 * sessions left. A journal that has just begun gets a first session of what the records tell of earlier times, which is
 * not exact: services automatic and running, tasks enabled, and so on, as a restoration leaves them. Does nothing where
 * the platform in force keeps no journal. To be called once the program has its platform. A journal that can't be used
 * says so when something is to be changed, and not here.
 */
void settleBrokenOff();
