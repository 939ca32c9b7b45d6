// SPDX-License-Identifier: GPL-3.0-or-later
// The way back from what a machine's registry has become to what it was.

#pragma once

#include "machine/source/regfile.h"

/**
 * The edits that make the registry of @p after that of @p before, to the last value and type: old values are set, new
 * ones removed, new keys removed with all below them.
 */
QList<RegistryEdit> registryUndo(const RegistryStore &before, const RegistryStore &after);
