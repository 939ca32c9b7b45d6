// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine behind the seam, with its journal.

#pragma once

#include "journal.h"
#include "machine/seam/machineplatform.h"

/** Where a machine has its journal, by the machine's folder. */
QString journalFile(const QString &machineFolder);

/**
 * Gives a copy of a machine the journal that the machine has, as it is at this moment; one that is damaged is left out,
 * as it is where a machine is opened. Folders of machines. Throws MachineError.
 */
void copyMachineJournal(const QString &machineFolder, const QString &copyFolder);

/**
 * Opens a machine, with its journal where the options are for an elevated process; the others keep none. Throws
 * MachineError.
 */
std::unique_ptr<Platform> openMachinePlatform(const QString &machineFolder, const MachineOptions &options);

/** The same of an elevated process that works with the journal itself. */
std::unique_ptr<Journal> openMachineJournal(const QString &machineFolder, MachineOptions options = {});

/** The machine behind the platform in force, which one of these functions has opened. */
const Machine &machineInForce();
