// SPDX-License-Identifier: GPL-3.0-or-later
// The steps in which the texts of the system report are collected, each of a part of the report.

#pragma once

#include "platform/registrykey.h"
#include "work/workthread.h"

/** Names of boards, cards and processors are cut to this many characters, which is what a column of the report holds.
 */
constexpr qsizetype longestName = 36;

/** A value of the registry as a text, or "unknown" in the user's language. */
inline QString textOrUnknown(const RegistryKey &key, const QString &name)
{
    return key.value(name, WorkThread::tr("unknown")).toString();
}

void collectWindows(WorkThread &worker);
void collectMotherboard(WorkThread &worker);
void collectGraphics(WorkThread &worker);
void collectDisks(WorkThread &worker);
void collectMemory(WorkThread &worker);
void collectProcessor(WorkThread &worker);
