// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine for the stock tools.

#pragma once

#include "platform/platform.h"
#include "toolhost.h"
#include "tools.h"

class QProcess;

class MachineToolHost final : public ToolHost
{
public:
    MachineToolHost(Machine &machine, bool elevated);

    bool isElevated() const override { return elevated_; }
    std::unique_ptr<RegistryKey> openKey(const QString &path) const override;
    void writeText(const QString &path, const QString &name, const QString &text) override;
    QString resolveText(const QString &text) const override;
    QString hostPath(const QString &windowsPath) const override;
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
    bool setHiberfile(bool present) override;
    QMap<QString, QString> bootOptions() const override;
    void setBootOption(const QString &name, const std::optional<QString> &value) override;
    FileSecurity security(const QString &file) const override { return machine_.security(file); }
    void setSecurity(const QString &file, const FileSecurity &security) override;

private:
    qint64 hiberfileSize() const;

    Machine &machine_;
    bool elevated_;
};

/** Answers as the tool of that name on the machine, whose log has the command then. Throws MachineError. */
ToolResult runToolOn(Machine &machine, const QString &name, const QStringList &arguments, bool elevated);

/**
 * Has the programs that the process starts carry tools out themselves, for trials on a copy: a process for each tool
 * takes most of the time of such a trial.
 */
void carryToolsOutWithin(QProcess &process);

/** What carries tools out in this process; empty, unless it was started for a trial. See MachineOptions::tools. */
std::function<ProgramAnswer(Machine &, const QString &, const QStringList &, bool)> toolsWithin();
