// SPDX-License-Identifier: GPL-3.0-or-later
// Reads what of a PC's registry the program reads or writes.

#pragma once

#include "machine/source/regfile.h"
#include "platform/systemreader.h"

struct CapturedRegistry
{
    QList<RegistryEdit> edits;
    QStringList serviceTexts; ///< names and descriptions of services, which may be references into DLLs
    QStringList commands;     ///< of programs that start at logon, or did
    QStringList refused;      ///< keys that may not be read
};

/** @param withNames leaves addresses and networks' names as they are */
CapturedRegistry captureRegistry(const SystemReader &system, bool withNames);

/** A text of the registry; empty where there is none. */
QString registryTextOf(const SystemReader &system, const QString &key, const QString &name);
