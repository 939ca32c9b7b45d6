// SPDX-License-Identifier: GPL-3.0-or-later
// Writes values into a machine's registry, with the keys above them.

#pragma once

#include "machine/machine.h"

inline void setNumber(Machine &machine, const QString &key, const QString &name, quint32 value)
{
    RegistryStore &store = machine.registry();
    store.setValue(*store.make(key), {name, RegistryType::DWord, registryDWord(value)});
}

inline void setText(Machine &machine, const QString &key, const QString &name, const QString &value)
{
    RegistryStore &store = machine.registry();
    store.setValue(*store.make(key), {name, RegistryType::String, registryText(value)});
}
