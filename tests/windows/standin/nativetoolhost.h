// SPDX-License-Identifier: GPL-3.0-or-later
// The Windows that this program runs on, for stand-ins of the stock tools.

#pragma once

#include "stocktool/toolhost.h"

/**
 * Acts on the real registry. Which services run, which tasks there are and which processes are kept in keys of the
 * tests: nothing of the system is started, stopped or changed.
 */
class NativeToolHost final : public ToolHost
{
public:
    bool isElevated() const override { return true; }
    std::unique_ptr<RegistryKey> openKey(const QString &path) const override;
    void writeText(const QString &path, const QString &name, const QString &text) override;
    QString resolveText(const QString &text) const override { return text; }
    QString hostPath(const QString &windowsPath) const override { return windowsPath; }
    bool makeFile(const QString &path, qint64 size) override;
    void removeFolder(const QString &path) override;
    std::optional<bool> isRunning(const QString &service) const override;
    void setRunning(const QString &service, bool running) override;
    QStringList runningServices() const override;
    QList<ScheduledTask> tasks() const override;
    std::optional<ScheduledTask> task(const QString &path) const override;
    void setTask(const ScheduledTask &task) override;
    QStringList processes() const override;
    void endProcesses(const QString &name) override;
    bool setHiberfile(bool) override { return true; }
    QMap<QString, QString> bootOptions() const override;
    void setBootOption(const QString &name, const std::optional<QString> &value) override;
    FileSecurity security(const QString &file) const override;
    void setSecurity(const QString &file, const FileSecurity &security) override;

private:
    std::unique_ptr<RegistryKey> states() const;
};
