// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about scheduled tasks, and the list of those that are there.

#pragma once

#include "work/rows.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <optional>

class WorkThread;

/** Tasks that most people don't need, by the part of their path after the last backslash. */
QStringList nonVitalTaskNames();

/** Beginnings of further such names, for vendors that add an account's number to theirs. Compared without case. */
QStringList nonVitalTaskPrefixes();

/**
 * How many reasons there are to switch a task off, by the part of its path after the last backslash: each feature that
 * is given up and has it, and that most people don't need it.
 */
int reasonsAgainstTask(const WorkThread &worker, const QString &name);

/** What schtasks prints of all tasks. */
struct TaskExport
{
    QByteArray bytes;
    bool isWhole = false; ///< it has ended by itself
};

/** Asks schtasks, and leaves nothing anywhere; nothing where it fails, which is in the log then. */
std::optional<TaskExport> exportedTasks();
QList<TaskRow> tasksOf(const TaskExport &exported);
/** The tasks in the text that schtasks prints, in its order. Throws JobInterrupted on a worker that is asked to end. */
QList<TaskRow> tasksOf(const QString &exported);
