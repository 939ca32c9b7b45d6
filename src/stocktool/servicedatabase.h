// SPDX-License-Identifier: GPL-3.0-or-later
// The services of a Windows as its service manager sees them.

#pragma once

#include "platform/windowsfacts.h"
#include "toolhost.h"

#include <QMap>

/** Win32 errors that sc gives as its exit code. */
enum ServiceError : int {
    NoError = 0,
    AccessDenied = 5,
    InvalidParameter = 87,
    DependentServicesRunning = 1051,
    AlreadyRunning = 1056,
    ServiceDisabled = 1058,
    CircularDependency = 1059,
    NoSuchService = 1060,
    NotStarted = 1062,
    DependencyFailed = 1068,
    NeverStarted = 1077,
    InvalidCommandLine = 1639,
};

/** A service or driver that the registry holds. */
struct Service
{
    QString name; ///< as its key is written
    quint32 type = 0;
    StartMode start = StartOnDemand;

    bool isWin32() const { return (type & 0x30) != 0; }
};

class ServiceDatabase
{
public:
    explicit ServiceDatabase(ToolHost &host);

    /** All services and drivers, by name without regard to case. A key without type or start mode is none. */
    QList<Service> all() const;
    std::optional<Service> find(const QString &name) const;
    bool isRunning(const Service &service) const { return host_.isRunning(service.name).value_or(false); }
    bool everRan(const Service &service) const { return host_.isRunning(service.name).has_value(); }

    QString text(const Service &service, const QString &value) const;
    quint32 number(const Service &service, const QString &value) const;
    QStringList dependencies(const Service &service) const;
    QString displayName(const Service &service) const;

    /** Starts a service and all it depends on, or nothing. */
    ServiceError start(const Service &service);
    /** Stops a service that no running service depends on. */
    ServiceError stop(const Service &service);
    ServiceError setStartMode(const Service &service, StartMode mode, bool delayed);

private:
    std::optional<Service> read(const QString &name) const;
    ServiceError plan(const Service &service, QStringList &visiting, QStringList &toStart) const;

    ToolHost &host_;
    std::unique_ptr<RegistryKey> key_;
    QMap<QString, QString> names_; ///< of keys, by their case-folded form
};
