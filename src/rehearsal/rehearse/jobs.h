// SPDX-License-Identifier: GPL-3.0-or-later
// The jobs that kestrune-rehearse can run, one row a job.

#pragma once

#include "work/workthread.h"

#include <span>

struct JobRow
{
    QLatin1StringView name;
    QLatin1StringView operands; ///< for the help
    QLatin1StringView help;
    int job;
    qsizetype fewestOperands;
    qsizetype mostOperands;        ///< -1: any number
    QLatin1StringView closingLine; ///< the job's last line; empty where an empty line closes it
    /** Writes the job's input into the worker. */
    void (*prepare)(WorkThread &worker, const QStringList &operands) = nullptr;
    /** What of the operands didn't come to what was asked for, when the job is over. */
    QStringList (*unreached)(const QStringList &operands) = nullptr;
};

std::span<const JobRow> jobRows();
