// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine behind the seam.

#pragma once

#include "platform/platform.h"

#include "attributewords.h"
#include "machine/machine.h"

#include <mutex>

/** How a rehearsal machine is put behind the seam. */
struct MachineOptions
{
    bool elevated = true;
    double pace = 0;          ///< pauses are slept this many times their length
    QString resourceFolder{}; ///< host path; empty: the folder of the running program
    QString stockTool{};      ///< stands for all tools; empty: kestrune-stocktool beside the running program
    /**
     * Carries a tool out on the machine in this process; by default each is a process of its own, as on the PC. One
     * with a fault always is. Throws MachineError.
     */
    std::function<ProgramAnswer(Machine &, const QString &tool, const QStringList &arguments, bool elevated)> tools{};
    /** Makes what opens files and pages, which lives as long as the platform; by default they aren't opened in its way.
     */
    std::function<std::shared_ptr<QObject>(Machine &, bool elevated)> opener{};
    /** Starts what the shell is asked to start; by default a real process on the same machine. */
    std::function<void(const ShellStart &)> launcher{};
};

class MachinePlatform final : public Platform
{
public:
    /**
     * Opens the machine, and sets its environment variables in this process in every spelling that is read. To be made
     * before the first thread; one for a process at a time. Throws MachineError.
     */
    MachinePlatform(const QString &machineFolder, MachineOptions options);
    ~MachinePlatform() override;

    Machine &machine() const { return *machine_; }
    /** The pauses asked for so far, in order, in milliseconds; cleared by the call. */
    QList<int> takePauses() const;

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
    void setAllFileAttributes(const QList<FileAttributes> &files) const override;
    qint64 fileSize(const QString &file) const override;
    bool renameFile(const QString &from, const QString &to) const override;
    QString programFile(const QString &program) const override;
    QString takeFailure() const override;
    std::optional<AdmittedProgram> admitProgram(const QString &program, const QStringList &arguments) const override;
    void startFailed(const QString &program, const QString &reason) const override;
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
    ProcessorTimes processorTimes() const override;
    QList<quint32> processIds() const override;
    int threadCount() const override;
    quint64 freeMemory() const override;
    RootDrive rootDrive() const override;
    void pause(int milliseconds) const override;

private:
    bool isReadOnly(const QString &file) const;
    /** The first words that the stock tool gets: the machine, and which tool it is. */
    QStringList wordsToStart(const QString &program) const;
    QString resolvedProgram(const QString &program) const;
    QJsonObject hardware() const;
    /** What the machine says of the volume that a Windows path lies on. */
    QJsonObject volume(const QString &windowsPath) const;

    std::unique_ptr<Machine> machine_;
    MachineOptions options_;
    mutable AttributeWords attributes_;
    std::shared_ptr<QObject> opener_;
    mutable std::mutex pausesLock_;
    mutable QList<int> pauses_;
    mutable std::mutex readingsLock_;
    mutable ProcessorTimes lastReading_;
    mutable qsizetype readings_ = 0;
};
