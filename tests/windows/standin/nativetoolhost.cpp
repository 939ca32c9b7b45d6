// SPDX-License-Identifier: GPL-3.0-or-later

#include "nativetoolhost.h"

#include "standinkeys.h"

#include "platform/windows/nativekey.h"

std::unique_ptr<RegistryKey> NativeToolHost::openKey(const QString &path) const
{
    return std::make_unique<NativeKey>(path);
}

std::unique_ptr<RegistryKey> NativeToolHost::states() const
{
    return openKey(standInStates);
}

std::optional<bool> NativeToolHost::isRunning(const QString &service) const
{
    const QVariant state = states()->value(service);
    return state.isValid() ? std::optional(state.toInt() != 0) : std::nullopt;
}

void NativeToolHost::setRunning(const QString &service, bool running)
{
    states()->setValue(service, running ? 1 : 0);
}

QStringList NativeToolHost::runningServices() const
{
    const auto key = states();
    QStringList names = key->childKeys();
    names.removeIf([&key](const QString &name) { return key->value(name).toInt() == 0; });
    return names;
}
