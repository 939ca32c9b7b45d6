// SPDX-License-Identifier: GPL-3.0-or-later
// A platform that hands every question on to another one, for those that answer some themselves.

#pragma once

#include "platform.h"

class ForwardingPlatform : public Platform
{
public:
    explicit ForwardingPlatform(std::unique_ptr<Platform> inner)
        : inner_(std::move(inner))
    {
    }

    std::unique_ptr<RegistryKey> openKey(const QString &path) const override { return inner_->openKey(path); }
    QList<RegistryValue> registryValues(const QString &keyPath) const override
    {
        return inner_->registryValues(keyPath);
    }
    QString hostPath(const QString &windowsPath) const override { return inner_->hostPath(windowsPath); }
    bool isOnFixedDrive(const QString &windowsPath) const override { return inner_->isOnFixedDrive(windowsPath); }
    QString programFolder() const override { return inner_->programFolder(); }
    QString resourceFolder() const override { return inner_->resourceFolder(); }
    bool writeFile(const QString &folder, const QString &name, const QByteArray &content,
                   IfThere ifThere) const override
    {
        return inner_->writeFile(folder, name, content, ifThere);
    }
    bool appendLine(const QString &folder, const QString &name, const QString &line) const override
    {
        return inner_->appendLine(folder, name, line);
    }
    void walk(const QString &windowsPath, const std::function<bool(const WalkEntry &)> &visit) const override
    {
        inner_->walk(windowsPath, visit);
    }
    quint32 fileAttributes(const QString &file) const override { return inner_->fileAttributes(file); }
    void setFileAttributes(const QString &file, quint32 word) const override { inner_->setFileAttributes(file, word); }
    void setAllFileAttributes(const QList<FileAttributes> &files) const override
    {
        inner_->setAllFileAttributes(files);
    }
    qint64 fileSize(const QString &file) const override { return inner_->fileSize(file); }
    bool renameFile(const QString &from, const QString &to) const override { return inner_->renameFile(from, to); }
    bool removeFile(const QString &file) const override { return inner_->removeFile(file); }
    QString programFile(const QString &program) const override { return inner_->programFile(program); }
    std::optional<AdmittedProgram> admitProgram(const QString &program, const QStringList &arguments) const override
    {
        return inner_->admitProgram(program, arguments);
    }
    void startFailed(const QString &program, const QString &reason) const override
    {
        inner_->startFailed(program, reason);
    }
    int exitCode(qint64 processId, int reported) const override { return inner_->exitCode(processId, reported); }
    bool isElevated() const override { return inner_->isElevated(); }
    std::shared_ptr<void> lockOthersOut() const override { return inner_->lockOthersOut(); }
    void shellExecute(const ShellStart &start) const override { inner_->shellExecute(start); }
    QStringList processNames() const override { return inner_->processNames(); }
    DllString dllString(const QString &windowsPath, uint id) const override
    {
        return inner_->dllString(windowsPath, id);
    }
    WmiAnswer queryWmi(const QString &className, const QStringList &properties) const override
    {
        return inner_->queryWmi(className, properties);
    }
    std::optional<bool> seekPenalty(const QString &windowsPath) const override
    {
        return inner_->seekPenalty(windowsPath);
    }
    std::optional<int> colorSpace() const override { return inner_->colorSpace(); }
    QSize screenSize() const override { return inner_->screenSize(); }
    bool hasContrastTheme() const override { return inner_->hasContrastTheme(); }
    int textScale() const override { return inner_->textScale(); }
    void setTitleBarDark(quintptr window, bool dark) const override { inner_->setTitleBarDark(window, dark); }
    ProcessorTimes processorTimes() const override { return inner_->processorTimes(); }
    QList<quint32> processIds() const override { return inner_->processIds(); }
    int threadCount() const override { return inner_->threadCount(); }
    quint64 freeMemory() const override { return inner_->freeMemory(); }
    RootDrive rootDrive() const override { return inner_->rootDrive(); }
    void pause(int milliseconds) const override { inner_->pause(milliseconds); }
    void beginChanges(const QString &what) const override { inner_->beginChanges(what); }
    void endChanges(bool finished) const override { inner_->endChanges(finished); }
    QString takeFailure() const override { return inner_->takeFailure(); }

protected:
    Platform &inner() const { return *inner_; }
    /** Gives the other one back; nothing may be asked of this one then. */
    std::unique_ptr<Platform> takeInner() { return std::move(inner_); }

private:
    std::unique_ptr<Platform> inner_;
};
