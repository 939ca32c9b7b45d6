// SPDX-License-Identifier: GPL-3.0-or-later
// What differs between two rehearsal machines.

#pragma once

#include "console/progresscallback.h"
#include "diffrow.h"

#include <QList>

class Machine;

/** "service", "task", "registry", "file", "attribute", "rights", "boot" */
QString kindName(DiffKind kind);

/**
 * Every registry key and value (by type and bytes), run state of a service, scheduled task (its switch, and the rest of
 * its document), file and folder of the drives and of the program folder (size, and content up to 1 MiB) file
 * attribute, owner and rights of a file, and option of the boot configuration that differs; sorted by kind and path. A
 * key or folder has a row of its own only where it is empty. Changes nothing in either. Throws
 * MachineError and Interrupted.
 */
QList<DiffRow> compareMachines(Machine &before, Machine &after, const ProgressCallback &progress = {});
/** The same but for the registry, which is most of the work. */
QList<DiffRow> compareBesidesRegistry(Machine &before, Machine &after);
