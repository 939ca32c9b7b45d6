// SPDX-License-Identifier: GPL-3.0-or-later

#include "servicedatabase.h"

#include <QVariant>

using namespace Qt::StringLiterals;

namespace {

bool isNumber(const QVariant &value)
{
    return value.typeId() == QMetaType::Int;
}

} // namespace

ServiceDatabase::ServiceDatabase(ToolHost &host)
    : host_(host)
    , key_(host.openKey(WindowsKey::services))
{
    for (const QString &name : key_->childGroups())
        names_.insert(name.toCaseFolded(), name);
}

QList<Service> ServiceDatabase::all() const
{
    QList<Service> services;
    for (const QString &name : names_) {
        if (const std::optional<Service> service = read(name))
            services.append(*service);
    }
    return services;
}

std::optional<Service> ServiceDatabase::find(const QString &name) const
{
    const auto it = names_.find(name.toCaseFolded());
    return it == names_.end() ? std::nullopt : read(*it);
}

std::optional<Service> ServiceDatabase::read(const QString &name) const
{
    const QVariant type = key_->value(name + u"/Type"_s);
    const QVariant start = key_->value(name + u"/Start"_s);
    if (!isNumber(type) || !isNumber(start))
        return std::nullopt;
    return Service{name, static_cast<quint32>(type.toInt()), static_cast<StartMode>(start.toInt())};
}

QString ServiceDatabase::text(const Service &service, const QString &value) const
{
    return key_->value(service.name + u'/' + value).toString();
}

quint32 ServiceDatabase::number(const Service &service, const QString &value) const
{
    return static_cast<quint32>(key_->value(service.name + u'/' + value).toInt());
}

QStringList ServiceDatabase::dependencies(const Service &service) const
{
    QStringList names = key_->value(service.name + u"/DependOnService"_s).toStringList();
    names.removeAll(QString());
    return names;
}

QString ServiceDatabase::displayName(const Service &service) const
{
    const QString name = host_.resolveText(text(service, u"DisplayName"_s));
    return name.isEmpty() ? service.name : name;
}

ServiceError ServiceDatabase::start(const Service &service)
{
    if (isRunning(service))
        return AlreadyRunning;
    if (service.start == StartDisabled)
        return ServiceDisabled;
    QStringList visiting;
    QStringList toStart;
    if (const ServiceError error = plan(service, visiting, toStart); error != NoError)
        return error;
    for (const QString &name : std::as_const(toStart))
        host_.setRunning(name, true);
    return NoError;
}

/** Adds to @p toStart what must be started for the service to run, itself last. */
ServiceError ServiceDatabase::plan(const Service &service, QStringList &visiting, QStringList &toStart) const
{
    if (visiting.contains(service.name))
        return CircularDependency;
    visiting.append(service.name);
    for (const QString &name : dependencies(service)) {
        const std::optional<Service> needed = find(name);
        if (!needed)
            return DependencyFailed;
        // Drivers are taken to run: a rehearsal machine has no hardware that would refuse them.
        if (!needed->isWin32() || isRunning(*needed) || toStart.contains(needed->name))
            continue;
        if (needed->start == StartDisabled)
            return DependencyFailed;
        if (const ServiceError error = plan(*needed, visiting, toStart); error != NoError)
            return error;
    }
    visiting.removeLast();
    toStart.append(service.name);
    return NoError;
}

ServiceError ServiceDatabase::stop(const Service &service)
{
    if (!isRunning(service))
        return NotStarted;
    for (const QString &name : host_.runningServices()) {
        const std::optional<Service> other = find(name);
        if (other && dependencies(*other).contains(service.name, Qt::CaseInsensitive))
            return DependentServicesRunning;
    }
    host_.setRunning(service.name, false);
    return NoError;
}

ServiceError ServiceDatabase::setStartMode(const Service &service, StartMode mode, bool delayed)
{
    // Only drivers are started that early.
    if (service.isWin32() && (mode == StartAtBoot || mode == StartBySystem))
        return InvalidParameter;
    key_->setValue(service.name + u"/Start"_s, static_cast<int>(mode));
    const QString delayedStart = service.name + u"/DelayedAutostart"_s;
    if (delayed)
        key_->setValue(delayedStart, 1);
    else if (mode == StartAutomatic && key_->value(delayedStart).toInt() != 0)
        key_->setValue(delayedStart, 0);
    return NoError;
}
