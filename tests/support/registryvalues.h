// SPDX-License-Identifier: GPL-3.0-or-later
// Writes values into a machine's registry, with the keys above them.

#pragma once

#include "machine/machine.h"

inline void setValue(Machine &machine, const QString &key, const RegistryValue &value)
{
    machine.registry().setValue(*machine.registry().make(key), value);
}

inline void setNumber(Machine &machine, const QString &key, const QString &name, quint32 value)
{
    setValue(machine, key, {name, RegistryType::DWord, registryDWord(value)});
}

inline void setText(Machine &machine, const QString &key, const QString &name, const QString &value)
{
    setValue(machine, key, {name, RegistryType::String, registryText(value)});
}
