// SPDX-License-Identifier: GPL-3.0-or-later

#include "machinesystem.h"

#include "machine/machine.h"
#include "platform/taskdocument.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr char separator = '\n'; // in no name of a user

FileSecurity securityOf(const QByteArray &security)
{
    const qsizetype end = security.indexOf(separator);
    return {QString::fromUtf8(security.first(end)), QString::fromUtf8(security.sliced(end + 1))};
}

} // namespace

KeyContent MachineSystem::key(const QString &path) const
{
    const RegistryStore &store = machine_.registry();
    const auto key = store.find(path);
    if (!key)
        return {};
    return {true, false, store.values(*key), store.subkeys(*key)};
}

std::optional<QList<ServiceReport>> MachineSystem::serviceReports() const
{
    QList<ServiceReport> services;
    const QMap<QString, bool> states = machine_.runStates();
    for (auto it = states.begin(); it != states.end(); ++it)
        services.append({it.key(), it.value()});
    return services;
}

bool MachineSystem::hasKey(const QString &path) const
{
    return machine_.registry().find(path).has_value();
}

std::optional<RegistryValue> MachineSystem::value(const QString &key, const QString &name) const
{
    return machine_.registry().value(key, name);
}

std::optional<bool> MachineSystem::isTaskEnabled(const QString &path) const
{
    const std::optional<ScheduledTask> task = machine_.task(path);
    return task ? std::optional(taskFacts(task->document).enabled) : std::nullopt;
}

std::optional<QMap<QString, QString>> MachineSystem::bootOptions() const
{
    return machine_.bootOptions();
}

std::optional<QByteArray> MachineSystem::fileSecurity(const QString &windowsPath) const
{
    if (!QFileInfo::exists(machine_.hostPath(windowsPath)))
        return std::nullopt;
    const FileSecurity security = machine_.security(windowsPath);
    return security.owner.toUtf8() + separator + security.rights.toUtf8();
}

SecurityWords MachineSystem::securityWords(const QByteArray &security) const
{
    const FileSecurity parts = securityOf(security);
    return {parts.owner.isEmpty() ? QString(installationOwner) : parts.owner, parts.rights, {}};
}

QString MachineSystem::windowsPath(const QString &hostPath) const
{
    return machine_.windowsPath(hostPath);
}

bool MachineSystem::setValue(const QString &key, const RegistryValue &value)
{
    const auto made = machine_.registry().make(key);
    if (made)
        machine_.registry().setValue(*made, value);
    return made.has_value();
}

bool MachineSystem::removeValue(const QString &key, const QString &name)
{
    if (const auto found = machine_.registry().find(key))
        machine_.registry().removeValue(*found, name);
    return true;
}

bool MachineSystem::makeKey(const QString &path)
{
    return machine_.registry().make(path).has_value();
}

bool MachineSystem::removeEmptyKey(const QString &path)
{
    RegistryStore &store = machine_.registry();
    const auto key = store.find(path);
    if (!key)
        return true;
    if (!store.valueNames(*key).isEmpty() || !store.subkeys(*key).isEmpty())
        return false;
    store.removeKey(*key);
    return true;
}

bool MachineSystem::setFileSecurity(const QString &windowsPath, const QByteArray &security)
{
    if (!security.contains(separator) || !QFileInfo::exists(machine_.hostPath(windowsPath)))
        return false;
    machine_.setSecurity(windowsPath, securityOf(security));
    return true;
}
