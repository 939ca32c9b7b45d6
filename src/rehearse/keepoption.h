// SPDX-License-Identifier: GPL-3.0-or-later
// Which features a job keeps: what the machine's Keep list has stored, and the option --keep on top of it.

#pragma once

#include "work/workthread.h"

#include <QList>

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
