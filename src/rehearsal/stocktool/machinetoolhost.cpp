// SPDX-License-Identifier: GPL-3.0-or-later

#include "machinetoolhost.h"

#include "platform/simulated/machine.h"
#include "platform/simulated/simulatedkey.h"
#include "rehearsal/resourcetext.h"

MachineToolHost::MachineToolHost(Machine &machine, bool elevated)
    : machine_(machine)
    , elevated_(elevated)
{
}

std::unique_ptr<RegistryKey> MachineToolHost::openKey(const QString &path) const
{
    // The key itself instead of the whole platform behind it: a tool must start in no time.
    return std::make_unique<SimulatedKey>(machine_.registry(), path, elevated_);
}

QString MachineToolHost::resolveText(const QString &text) const
{
    return resolveResourceText(machine_, text);
}

QString MachineToolHost::hostPath(const QString &windowsPath) const
{
    return machine_.hostPath(windowsPath);
}

std::optional<bool> MachineToolHost::isRunning(const QString &service) const
{
    return machine_.isRunning(service);
}

void MachineToolHost::setRunning(const QString &service, bool running)
{
    machine_.setRunning(service, running);
}

QStringList MachineToolHost::runningServices() const
{
    const QMap<QString, bool> states = machine_.runStates();
    return states.keys(true);
}
