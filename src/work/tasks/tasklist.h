// SPDX-License-Identifier: GPL-3.0-or-later
// The list of scheduled tasks, cut out of the export that schtasks prints.

#pragma once

#include "work/rows.h"

#include <QList>

/** The tasks in the text that schtasks prints, in its order. Throws JobInterrupted on a worker that is asked to end. */
QList<TaskRow> tasksOf(const QString &exported);
