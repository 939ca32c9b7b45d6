// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine that a test has for itself, with the platform standing on it.

#pragma once

#include "machine/machine.h"
#include "machine/seam/machineplatform.h"

#include <QJsonObject>
#include <QTemporaryDir>

/** A service as a test wishes it; what is empty isn't written. */
struct TestService
{
    QString name;
    int type = 32;
    int start = 3;
    bool running = false;
    QString displayName{};
    QString description{};
    QStringList dependsOn{};
};

/** What a stock tool was asked, as commands.log has it. */
struct LoggedCommand
{
    QString program;
    QStringList arguments;
    int exitCode = 0;

    friend bool operator==(const LoggedCommand &, const LoggedCommand &) = default;
};

class TestMachine
{
public:
    enum class Windows { Eleven, Ten };

    /**
     * A small machine with the Windows name, the environment and the stock tools, and nothing else.
     * Its platform is in force until the object goes. Only one at a time, and no worker may run at either end.
     */
    explicit TestMachine(Windows windows = Windows::Eleven, MachineOptions options = {});
    /** A copy of a built-in machine: "windows11" or "windows10". */
    explicit TestMachine(const QString &builtIn, MachineOptions options = {});
    ~TestMachine();
    Q_DISABLE_COPY_MOVE(TestMachine)

    Machine &machine() const { return platform_->machine(); }
    MachinePlatform &platform() const { return *platform_; }
    QString folder() const { return folder_.path() + QStringLiteral("/machine"); }

    void add(const TestService &service);
    /** Puts a file on the drive, with its folders. Gives its host path. */
    QString addFile(const QString &windowsPath, const QByteArray &content = {});
    /** The value as the seam reads it; invalid where there is none. */
    QVariant read(const QString &key, const QString &name) const;
    void write(const QString &key, const QString &name, const QVariant &value);
    /** Names of the values in a key. */
    QStringList names(const QString &key) const;

    /** All runs of stock tools so far. */
    QList<LoggedCommand> commands() const;
    /** The lines of log.txt after their date and time; empty where there is none. */
    QStringList errorLog() const;
    /** Switches the error log on. */
    void logErrors();
    /** What the shell was asked to start. */
    QList<ShellStart> shellStarts() const { return *shellStarts_; }

private:
    void start(MachineOptions options);

    QTemporaryDir folder_;
    std::shared_ptr<QList<ShellStart>> shellStarts_ = std::make_shared<QList<ShellStart>>();
    MachinePlatform *platform_ = nullptr;
};

/** A small machine whose error log is on. */
class LoggingMachine : public TestMachine
{
public:
    LoggingMachine() { logErrors(); }
};

inline const QString servicesKey = QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services");
inline const QString settingsKey = QStringLiteral("HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale");
