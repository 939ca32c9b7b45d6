// SPDX-License-Identifier: GPL-3.0-or-later
// Keys and values of the real registry as they are stored, by its own functions: looking makes nothing.

#pragma once

#include "platform/registrykey.h"
#include "systemobjects.h"

#include <optional>
#include <utility>

/** Opens a key that is there, by its full path; in the view of 64 bits. The key is null where that fails. */
std::pair<Key, LSTATUS> openExisting(const QString &path, REGSAM rights);

/** A value with type and bytes; nothing where there is none. */
std::optional<RegistryValue> storedValue(HKEY key, const QString &name);
/** Stores a value as it is; says whether it was done. */
bool storeValue(HKEY key, const RegistryValue &value);
