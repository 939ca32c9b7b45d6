// SPDX-License-Identifier: GPL-3.0-or-later
// What differs between two rehearsal machines.

#pragma once

#include "machine/source/machinesource.h"

#include <QList>

/** Kinds of things that can differ, in the order in which they are told. */
enum class DiffKind { Service, Task, Registry, File, Attribute, Security, BootOption };

/** One thing that differs. Its text is empty on a side that doesn't have it, and never empty elsewhere. */
struct DiffRow
{
    DiffKind kind = DiffKind::Service;
    QString path; ///< service, task, key, file or boot option
    QString name; ///< of a value
    QString before;
    QString after;

    friend bool operator==(const DiffRow &, const DiffRow &) = default;
};

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
