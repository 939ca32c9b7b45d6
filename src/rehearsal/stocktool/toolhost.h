// SPDX-License-Identifier: GPL-3.0-or-later
// What the stock tools act on.

#pragma once

#include "platform/registrykey.h"

#include <QStringList>

#include <memory>
#include <optional>

/** A Windows for the stock tools: its registry, and what of its services isn't in the registry. */
class ToolHost
{
public:
    ToolHost() = default;
    virtual ~ToolHost() = default;
    Q_DISABLE_COPY_MOVE(ToolHost)

    virtual bool isElevated() const = 0;
    /** Opens a key by its full path; see Platform::openKey. */
    virtual std::unique_ptr<RegistryKey> openKey(const QString &path) const = 0;
    /** The string behind a registry text that may be a reference into a DLL. */
    virtual QString resolveText(const QString &text) const = 0;
    /** The file on this computer behind a Windows path. */
    virtual QString hostPath(const QString &windowsPath) const = 0;

    /** Whether a service runs; empty for one that was never started. */
    virtual std::optional<bool> isRunning(const QString &service) const = 0;
    virtual void setRunning(const QString &service, bool running) = 0;
    virtual QStringList runningServices() const = 0;
};
