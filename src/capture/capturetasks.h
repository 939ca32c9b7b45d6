// SPDX-License-Identifier: GPL-3.0-or-later
// What only the system's own tools tell of a PC.

#pragma once

#include "machine/machine.h"

/** A part of a PC that could not be read, and why. */
struct NotRead
{
    QString what;
    QString reason;
};

/** Scheduled tasks as schtasks prints them, without who made them and what they are given: it isn't needed. */
QList<ScheduledTask> captureTasks(QList<NotRead> &notRead);
/** The options of the boot configuration that the program changes. */
QMap<QString, QString> captureBootOptions(QList<NotRead> &notRead);
