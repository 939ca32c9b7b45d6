// SPDX-License-Identifier: GPL-3.0-or-later
// The real Windows behind the seam.

#pragma once

#include "platform/platform.h"
#include "platform/systemreader.h"

class WindowsPlatform final : public Platform
{
public:
    std::unique_ptr<RegistryKey> openKey(const QString &path) const override;
    QList<RegistryValue> registryValues(const QString &keyPath) const override;
    QString hostPath(const QString &windowsPath) const override;
    bool isOnFixedDrive(const QString &windowsPath) const override;
    QString programFolder() const override;
    QString resourceFolder() const override;
    bool writeFile(const QString &folder, const QString &name, const QByteArray &content,
                   IfThere ifThere) const override;
    bool appendLine(const QString &folder, const QString &name, const QString &line) const override;
    void walk(const QString &windowsPath, const std::function<bool(const WalkEntry &)> &visit) const override;
    quint32 fileAttributes(const QString &file) const override;
    void setFileAttributes(const QString &file, quint32 word) const override;
    QString programFile(const QString &program) const override;
    std::optional<AdmittedProgram> admitProgram(const QString &program, const QStringList &arguments) const override;
    int exitCode(qint64 processId, int reported) const override;
    bool isElevated() const override;
    std::shared_ptr<void> lockOthersOut() const override;
    void shellExecute(const ShellStart &start) const override;
    QStringList processNames() const override;
    DllString dllString(const QString &windowsPath, uint id) const override;
    WmiAnswer queryWmi(const QString &className, const QStringList &properties) const override;
    std::optional<bool> seekPenalty(const QString &windowsPath) const override;
    std::optional<int> colorSpace() const override;
    QSize screenSize() const override;
    bool hasContrastTheme() const override;
    void setTitleBarDark(quintptr window, bool dark) const override;
    ProcessorTimes processorTimes() const override;
    QList<quint32> processIds() const override;
    int threadCount() const override;
    quint64 freeMemory() const override;
    RootDrive rootDrive() const override;
    void pause(int milliseconds) const override;
};

/** The real registry and the service manager, opened for reading alone. */
class WindowsReader final : public SystemReader
{
public:
    KeyContent key(const QString &path) const override;
    std::optional<QList<ServiceReport>> serviceReports() const override;
    QStringList namesOfUser() const override;
};
