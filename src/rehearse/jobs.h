// SPDX-License-Identifier: GPL-3.0-or-later
// The jobs that kestrune-rehearse can run, one row a job, and what those do that aren't one
// job of the worker.

#pragma once

#include "work/workthread.h"

#include <span>
#include <utility>

class LineTaker;

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
    /** The operands for which the job, now over, didn't do what was asked. */
    QStringList (*unreached)(const WorkThread &worker, const QStringList &operands) = nullptr;
    /** Takes each line of valueChanged, as the window does for its records. */
    void (*record)(const QString &line) = nullptr;
    /** What is printed after the lines. */
    JobResults (*results)(const WorkThread &worker) = nullptr;
    /** What the operands name, such as "service", and whether there is one of that name. */
    QLatin1StringView thing{};
    bool (*isThere)(const QString &operand) = nullptr;
    QLatin1StringView manual{}; ///< in the markup of the manual page, where that says more than the help
};

/** Closes a job whose last line is never the same. */
constexpr QLatin1StringView anyLine("*");

/** What starts at logon is listed and switched without a job: on the main thread, and the list follows. */
constexpr int jobAutorun = -1;
/** Tweaks run without a job, too, but for the one that the window starts as a job. */
constexpr int jobTweak = -2;

std::span<const JobRow> jobRows();

// The Automatizer's three buttons without the window: their guards, their jobs, and what the window does after the
// closing lines.

/** What a user would have chosen in the window. */
struct AutomatizerChoice
{
    bool programs = true; ///< packages and what starts at logon
    bool tweaks = true;
    bool walk = false; ///< the answer to the question for the walk over all files
};

bool isAutomatizerJob(int job);

/**
 * Analyzes, optimizes what an earlier Analyze has found, or restores. A Failure where the window would refuse, and
 * where a job didn't come to its end.
 */
void runAutomatizer(WorkThread &worker, int job, const AutomatizerChoice &choice, LineTaker &lines);

// Tweaks.

/** One tweak, in one of its two forms. */
struct TweakRequest
{
    void (WorkThread::*run)(quint8 apply, quint32 id);
    QString group;
    quint32 id;
    bool apply;

    /** The job that the window runs it by, if it is one. */
    std::optional<int> job() const;
};

/** Reads "ssd 8 on". Throws UsageError. */
TweakRequest parseTweak(const QStringList &operands);
/** The operands of every tweak and what it does, a line each. */
QString tweaksInWords();

// Switching programs that start at logon, as the window's page does.

/** Switches off listed entries by their names, without regard to case. Does nothing without administrator rights. */
void disableAutoruns(WorkThread &worker, const QStringList &names);
/** Switches recorded entries on again and takes them out of the record. Does nothing without administrator rights. */
void enableAutoruns(WorkThread &worker, const QStringList &names);

/** Names that are still listed, or aren't recorded. */
QStringList autorunsNotDisabled(const WorkThread &worker, const QStringList &names);
/** Names that aren't listed. */
QStringList autorunsNotEnabled(const WorkThread &worker, const QStringList &names);
/** Whether an entry of that name starts at logon, or is recorded as one that did. */
bool isKnownAutorun(const QString &name);

// Which features a job keeps: what the machine's Keep list has stored, and the option --keep on top of it.

/** A feature's check state for this run. */
struct KeepChoice
{
    std::atomic<int> WorkThread::*feature;
    int state;
};

/** Reads "printer=0,nfc=2". Throws UsageError. */
QList<KeepChoice> parseKeep(const QString &text);

/** Sets the worker's members as the window does at its start, and then as was chosen. Stores nothing. */
void applyKeep(WorkThread &worker, const QList<KeepChoice> &choices);

/** The features' names, for the help. */
QString keepNames();
