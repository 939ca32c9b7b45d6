// SPDX-License-Identifier: GPL-3.0-or-later

#include "machinereader.h"

KeyContent MachineReader::key(const QString &path) const
{
    const RegistryStore &store = machine_.registry();
    const auto key = store.find(path);
    if (!key)
        return {};
    return {true, false, store.values(*key), store.subkeys(*key)};
}

std::optional<QList<ServiceReport>> MachineReader::serviceReports() const
{
    QList<ServiceReport> services;
    const QMap<QString, bool> states = machine_.runStates();
    for (auto it = states.begin(); it != states.end(); ++it)
        services.append({it.key(), it.value()});
    return services;
}
