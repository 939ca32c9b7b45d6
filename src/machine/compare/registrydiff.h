// SPDX-License-Identifier: GPL-3.0-or-later
// What differs between the registries of two machines.

#pragma once

#include "diffrow.h"
#include "machine/registrystore.h"

#include <functional>

/** A key that one machine lacks, or a value that differs. */
struct RegistryDifference
{
    QString key;
    bool ofKey = false; ///< the key itself, which is told before its values
    bool empty = false; ///< of a key: it holds nothing
    bool keyWasThere = false;
    std::optional<RegistryValue> before{}; ///< of a value; nothing where it is absent
    std::optional<RegistryValue> after{};
};

/** Visits all differences, keys sorted by their path. HKEY_CLASSES_ROOT is told as the key it is a view of. */
void eachRegistryDifference(const RegistryStore &before, const RegistryStore &after,
                            const std::function<void(const RegistryDifference &)> &visit);

/** The rows of a comparison: a key has one only where it is empty. */
void compareRegistries(const RegistryStore &before, const RegistryStore &after, QList<DiffRow> &rows);
