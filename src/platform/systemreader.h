// SPDX-License-Identifier: GPL-3.0-or-later
// Reads what a description of a whole PC needs and the logic doesn't.

#pragma once

#include "registrykey.h"

#include <QList>
#include <QStringList>

#include <optional>

/** What a registry key holds itself. */
struct KeyContent
{
    bool isThere = false;
    bool isRefused = false; ///< it is there, and may not be read
    QList<RegistryValue> values{};
    QStringList subkeys{};
};

/** What is told of a service. */
struct ServiceReport
{
    QString name;
    bool running = false;
    bool everRan = true; ///< false for one that was never started since the PC was
    quint32 type = 0;    ///< as its value Type has it; 0 where that isn't told
    QString displayName{};
};

/** Changes nothing, unlike RegistryKey, whose keys are made when they are opened. */
class SystemReader
{
public:
    SystemReader() = default;
    virtual ~SystemReader() = default;
    Q_DISABLE_COPY_MOVE(SystemReader)

    /** A key by its full path, hive name first, with types and bytes as they are; in the registry's order. */
    virtual KeyContent key(const QString &path) const = 0;
    /** The states of all services that are no drivers; nothing where they are unknown. */
    virtual std::optional<QList<ServiceReport>> serviceReports() const = 0;
    /** What the system calls who is logged on, beside the account: a full name, an address. Those that it knows. */
    virtual QStringList namesOfUser() const = 0;
};
