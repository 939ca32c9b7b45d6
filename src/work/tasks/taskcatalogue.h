// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about scheduled tasks.

#pragma once

#include <QStringList>

/** Tasks that most people don't need, by the part of their path behind the last backslash. */
QStringList nonVitalTaskNames();

/** Beginnings of further such names, for vendors that add an account's number to theirs. Compared without case. */
QStringList nonVitalTaskPrefixes();
