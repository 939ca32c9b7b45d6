// SPDX-License-Identifier: GPL-3.0-or-later
// Which records may be acted upon. Every program of the user can write them, and what goes by them has more rights than
// those: a record decides nothing that the program itself wouldn't have recorded.

#pragma once

#include <QStringList>

/** The records of services but those that name a driver, or a key elsewhere. A name that isn't there is one of them. */
QStringList trustedServices();

/**
 * The records of programs whose path is a Run key's, with the record's own name, or a packaged task's; and those
 * without any path, which say nothing.
 */
QStringList trustedAutoruns();

/** The records of packages whose name is one, and not a piece of a command. */
QStringList trustedPackages();

/** All others: "Autorun\name". */
QStringList distrustedRecords();
