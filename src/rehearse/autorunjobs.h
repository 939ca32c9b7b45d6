// SPDX-License-Identifier: GPL-3.0-or-later
// Switching programs that start at logon, as the window's page does.

#pragma once

#include "work/workthread.h"

/** Switches off listed entries by their names, without regard to case. Does nothing without administrator rights. */
void disableAutoruns(WorkThread &worker, const QStringList &names);
/** Switches recorded entries on again and takes them out of the record. Does nothing without administrator rights. */
void enableAutoruns(WorkThread &worker, const QStringList &names);

/** Names that are still listed, or aren't recorded. */
QStringList autorunsNotDisabled(const QStringList &names);
/** Names that aren't listed. */
QStringList autorunsNotEnabled(const QStringList &names);
