// SPDX-License-Identifier: GPL-3.0-or-later
// Makes rehearsal machines from text that people can read, and imports such text into them.

#pragma once

#include "console/progresscallback.h"
#include "machine/machine.h"
#include "machinejson.h"
#include "regfile.h"
#include "toolreport.h"

#include <functional>

/** Whether making a machine may take the place of one that is there. */
enum class Existing { Keep, Replace };

/** What a machine is filled with, already read. */
struct MachineContents
{
    MachineDescription description;
    QList<RegistryEdit> registry{};
    QList<ServiceReport> services{};
    QList<ScheduledTask> tasks{};
};

/**
 * Lets @p make make the folder of a machine beside its place, under another name, and puts it there. A machine comes to
 * be as a whole or not at all. Throws what @p make throws, and MachineError, also where @p folder holds something that
 * may not be replaced: only a machine ever is.
 */
void placeMachine(const QString &folder, Existing existing, const std::function<void(const QString &made)> &make);
/**
 * The same of one that is made empty and filled by @p fill. Throws Interrupted and MachineError.
 */
void makeMachine(const QString &folder, Existing existing, const std::function<void(Machine &)> &fill);
/**
 * Makes a machine from a folder of sources: all its .reg files in the order of their names, then its tasks.xml and
 * its machine.json. An empty @p sources makes an empty machine.
 */
void makeMachine(const QString &folder, const QString &sources, Existing existing,
                 const ProgressCallback &progress = {});

/**
 * Imports a registry script, a machine.json, or what "sc query state= all" or "schtasks /xml" printed on a PC, told
 * apart by their content. What the file names is set, the rest stays. Throws MachineError and Interrupted, and leaves
 * the machine as it was then.
 */
void importFile(Machine &machine, const QString &file, const ProgressCallback &progress = {});
/**
 * Imports several, together or not at all. A service of sc's that has no key then gets one, with what sc says of it.
 * @param codePage of what tools have printed, where it has no mark; 0: UTF-8, or else a guess
 * @return what was guessed, and made up for the services, a line each
 */
QStringList importFiles(Machine &machine, const QStringList &files, const ProgressCallback &progress = {},
                        uint codePage = 0);
/** Takes over what was read, together or not at all. */
void importContents(Machine &machine, const MachineContents &contents, const ProgressCallback &progress = {});
