// SPDX-License-Identifier: GPL-3.0-or-later
// The jobs that kestrune-rehearse can run, one row a job.

#pragma once

#include "work/workthread.h"

#include <span>
#include <utility>

/** Texts that a job leaves in the worker, each with its name. */
using JobResults = QList<std::pair<QString, QString>>;

struct JobRow
{
    QLatin1StringView name;
    QLatin1StringView operands; ///< for the help
    QLatin1StringView help;
    int job; ///< of WorkThread, or jobAutorun
    qsizetype fewestOperands;
    qsizetype mostOperands; ///< -1: any number
    /** The job's last line, or anyLine; empty where an empty line closes it. The Automatizer's depend on its options.
     */
    QLatin1StringView closingLine;
    /** Writes the job's input into the worker; of jobAutorun, does the work. */
    void (*prepare)(WorkThread &worker, const QStringList &operands) = nullptr;
    /** What of the operands didn't come to what was asked for, when the job is over. */
    QStringList (*unreached)(const QStringList &operands) = nullptr;
    /** Takes each line of valueChanged, as the window does for its records. */
    void (*record)(const QString &line) = nullptr;
    /** What is printed behind the lines. */
    JobResults (*results)(const WorkThread &worker) = nullptr;
};

/** Closes a job whose last line is never the same. */
constexpr QLatin1StringView anyLine("*");

/** What starts at logon is listed and switched without a job: on the main thread, and the list follows. */
constexpr int jobAutorun = -1;
/** Tweaks run without a job, too, but for the one that the window starts as a job. */
constexpr int jobTweak = -2;

std::span<const JobRow> jobRows();
