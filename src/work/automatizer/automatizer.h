// SPDX-License-Identifier: GPL-3.0-or-later
// The Automatizer: Analyze, Optimize and Restore, and what the window does before and after them.

#pragma once

#include "work/workthread.h"

#include <optional>

/** 1 when the last Analyze saw a process of a video encoder that can be switched off. */
extern std::atomic<int> encoderServerFound;

/** Whether that encoder is switched off already; nothing where Analyze would find none. Changes nothing. */
std::optional<bool> isEncoderOff();

/** A run of one of the three on a worker, whose members are its input and its results. Throws JobInterrupted. */
class Automatizer
{
public:
    explicit Automatizer(WorkThread &worker)
        : worker_(worker)
    {
    }

    /** Finds what could be optimized and changes nothing; leaves lists and counts for Optimize. */
    void analyze();
    /** Carries out what Analyze has left, and records what Restore needs. */
    void optimize();
    /** Takes back what was recorded. */
    void restore();

private:
    void analyzeServices();
    void analyzeTasks();
    void analyzePackages();
    void analyzeAutoruns();
    void analyzeProcesses();

    void optimizeServices();
    void optimizeTasks();
    void optimizePackages();
    void optimizeAutoruns();
    void optimizeEncoder();
    void optimizeTweaks();

    void restoreServices();
    void restoreTasks();
    void restoreAutoruns();
    void restorePackages();
    void restoreTweaks();

    void report(const QString &line) { worker_.reportToAutomatizer(line); }
    void reportFinding(int &count, const QString &line);
    void reportPhase(const QString &name);
    void reportMaximum(qsizetype steps);
    void reportStep(qsizetype step);
    /** The empty line at the end of a section. */
    void reportBreak() { report(QString()); }

    WorkThread &worker_;
};

/** Whether an Optimize has run since the last Restore that left the features out. */
bool wasOptimized();
void setOptimized(bool optimized);

/** Notes that an Optimize is under way, so that Restore takes back what one that never came to its end has changed. */
void markOptimizeBegun();
void clearOptimizeBegun();

/** Whether Restore has something to go by: an Optimize that has run, or one that was broken off. */
bool canRestore();

/** Fills servicesToChange and tasksToChange from the records of what was disabled. For the thread that starts the job.
 */
void fillRestoreLists(WorkThread &worker);

/** The recorded programs that aren't in the start-up; after a Restore those that it couldn't bring back. */
QStringList programsNotBroughtBack();

/** After "AutomatizerRestore:finished": forgets the programs taken out of the start-up and the tweaks in force. */
void closeRestore();
