// SPDX-License-Identifier: GPL-3.0-or-later
// What the stock tools act on.

#pragma once

#include "machine/machine.h"
#include "platform/registrykey.h"

#include <QStringList>

#include <memory>
#include <optional>

/** A Windows for the stock tools: its registry, its files, and what of it is in neither. */
class ToolHost
{
public:
    ToolHost() = default;
    virtual ~ToolHost() = default;
    Q_DISABLE_COPY_MOVE(ToolHost)

    virtual bool isElevated() const = 0;
    /** Opens a key by its full path; see Platform::openKey. */
    virtual std::unique_ptr<RegistryKey> openKey(const QString &path) const = 0;
    /** Writes a text as it is, making the key: an opened key doubles an "@" at the text's beginning. */
    virtual void writeText(const QString &path, const QString &name, const QString &text) = 0;
    /** The string behind a registry text that may be a reference into a DLL. */
    virtual QString resolveText(const QString &text) const = 0;
    /** The file on this computer behind a Windows path. */
    virtual QString hostPath(const QString &windowsPath) const = 0;

    /** Makes a file of that size, with its folder, that nobody reads; by its Windows path. False where it can't be. */
    virtual bool makeFile(const QString &path, qint64 size) = 0;
    /** Removes a folder with all that is in it, by its Windows path; links go, and not what they lead to. */
    virtual void removeFolder(const QString &path) = 0;

    /** Whether a service runs; empty for one that was never started. */
    virtual std::optional<bool> isRunning(const QString &service) const = 0;
    virtual void setRunning(const QString &service, bool running) = 0;
    virtual QStringList runningServices() const = 0;

    /** Scheduled tasks in the order in which they were registered; see Machine::tasks. */
    virtual QList<ScheduledTask> tasks() const = 0;
    virtual std::optional<ScheduledTask> task(const QString &path) const = 0;
    virtual void setTask(const ScheduledTask &task) = 0;

    /** Names of the processes, each as often as it runs. */
    virtual QStringList processes() const = 0;
    /** Ends all processes of a name, given without regard to case. */
    virtual void endProcesses(const QString &name) = 0;

    /** Takes the file of hibernation away, or makes it. False where that can't be done. */
    virtual bool setHiberfile(bool present) = 0;

    /** Options of the boot configuration by their lower-case name; see Machine::setBootOption. */
    virtual QMap<QString, QString> bootOptions() const = 0;
    virtual void setBootOption(const QString &name, const std::optional<QString> &value) = 0;

    /** Owner and rights of a file, by its Windows path; see Machine::security. */
    virtual FileSecurity security(const QString &file) const = 0;
    virtual void setSecurity(const QString &file, const FileSecurity &security) = 0;
};
