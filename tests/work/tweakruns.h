// SPDX-License-Identifier: GPL-3.0-or-later
// What runs of the tweaks leave behind on a machine, so that they can be compared.

#pragma once

#include "automatizerruns.h"

/** All values at and below a key, but for the program's own records. */
inline QStringList registryState(RegistryStore &registry, const QString &key)
{
    QStringList state;
    const auto id = registry.find(key);
    if (!id || key == settingsKey)
        return state;
    for (const RegistryValue &value : registry.values(*id))
        state.append(key + u'|' + value.name + u'|' + QString::number(int(value.type)) + u'|'
                     + QString::fromLatin1(value.data.toHex()));
    for (const QString &name : registry.subkeys(*id))
        state += registryState(registry, key + u'\\' + name);
    return state;
}

/** The registry and what the tools were asked. */
inline QStringList stateOf(const TestMachine &machine)
{
    RegistryStore &registry = machine.machine().registry();
    return registryState(registry, QStringLiteral("HKEY_LOCAL_MACHINE"))
           + registryState(registry, QStringLiteral("HKEY_CURRENT_USER")) + ToolRuns(machine).next();
}

/** Runs tweaks one by one, given as "S1 S2 G7 W12" for the SSD, gaming and Windows groups. */
inline void runTweaks(WorkThread &worker, const QString &tweaks, bool apply)
{
    for (const QString &tweak : tweaks.split(u' ')) {
        const quint32 id = tweak.sliced(1).toUInt();
        if (tweak.startsWith(u'S'))
            worker.TweakSSD(apply, id);
        else if (tweak.startsWith(u'G'))
            worker.TweakGaming(apply, id);
        else
            worker.TweakWindows(apply, id);
    }
}
