// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about services: which matter, and which don't.

#pragma once

#include <QStringList>

/** Services that Windows can't do without; the Services page greys them. Compared with case. */
extern const QStringList criticalServices;

/** Services that most people don't need. */
QStringList nonVitalServiceNames();

/** Services that needn't start by themselves, but aren't disabled: what uses them starts them. */
QStringList manualStartServiceNames();

/** Services that the start-mode backup leaves out. Compared with case. */
QStringList startModeBackupExclusions();
