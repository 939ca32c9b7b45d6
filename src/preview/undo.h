// SPDX-License-Identifier: GPL-3.0-or-later
// An exact way back from what a machine has become, with nothing but the system's own tools.

#pragma once

#include "wayback/waybackscript.h"

class Machine;

/**
 * The edits that make the registry of @p after that of @p before, to the last value and type: old values are set, new
 * ones removed, new keys removed with all below them.
 */
QList<RegistryEdit> registryUndo(const RegistryStore &before, const RegistryStore &after);

/**
 * What makes @p after as @p before was, but for the program's own files. Packages come back by commands: what the
 * registry says of them is the system's own record. Changes nothing in either. Throws MachineError.
 * @param filesFolder how the commands call the folder of the files
 */
WayBackScript undoOf(Machine &before, Machine &after, const QString &filesFolder);
/**
 * Writes that as WayBackScript::write() does. Throws MachineError.
 */
WrittenWayBack writeUndo(Machine &before, Machine &after, const QString &file);
