// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about scheduled tasks.

#pragma once

#include "work/workthread.h"

#include <span>

/** Tasks that most people don't need, by the part of their path behind the last backslash. */
QStringList nonVitalTaskNames();

/** Beginnings of further such names, for vendors that add an account's number to theirs. Compared without case. */
QStringList nonVitalTaskPrefixes();

/** A feature of the Keep list with the tasks that go with it, by the end of their names. Compared without case. */
struct KeepFeatureTasks
{
    std::atomic<int> WorkThread::*keep; ///< 0 when the feature is given up
    QStringList nameEndings;
    QString folder; ///< where Windows has them, from backslash to backslash
};
std::span<const KeepFeatureTasks> keepFeatureTasks();
