// SPDX-License-Identifier: GPL-3.0-or-later
// What was verified, as text and as JSON.

#pragma once

#include "verify.h"

/** Counts, and then group by group what isn't in force, with its values, before what is. Ends in a line break. */
QString verifyText(const QList<VerifiedItem> &items);
QByteArray verifyJson(const QList<VerifiedItem> &items);
/** Whether everything that is recorded is in force, or gone. */
bool allInForce(const QList<VerifiedItem> &items);
