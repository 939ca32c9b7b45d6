// SPDX-License-Identifier: GPL-3.0-or-later
// The one way in which stock tools are run.

#pragma once

#include "platform/platform.h"

#include <QProcess>
#include <QStringList>

#include <atomic>
#include <memory>
#include <optional>

/**
 * A stock tool that is started and waited for. It gives the answers that QProcess gives on Windows, on every system:
 * a missing program is known right after start() and leaves the exit code 0, exit codes have 32 bits, a path may stand
 * in double quotes, and a program that still runs reads 0 until close() ends it.
 *
 * May be used for several commands, one after another; start() ends one that still runs.
 */
class Command
{
public:
    /** How long a command is waited for, in milliseconds. Always 30 s; tests of hanging tools lower it. */
    static inline std::atomic<int> timeLimit = 30000;
    /** How long one that is ended by force is waited for, in milliseconds: the system may hold it. Likewise. */
    static inline std::atomic<int> killLimit = 5000;
    /** What a program reads as that had to be ended. */
    static constexpr int endedByForce = 0xf291;

    /** What a program reads as that may not be started, which is the system's own number for a refusal. */
    static constexpr int accessDenied = 5;

    Command() = default;
    ~Command();
    Q_DISABLE_COPY_MOVE(Command)

    /** Lets nobody hear the next command. One that is left running would stop at a pipe that nobody empties. */
    void discardOutput();
    void start(const QString &program, const QStringList &arguments);
    bool failedToStart() const { return failedToStart_; }
    QString errorString() const;

    /** Waits up to timeLimit. Throws JobInterrupted on a worker that is asked to end. */
    void waitForFinished();
    /** Waits up to timeLimit for output; a command that has ended gives none. Throws JobInterrupted likewise. */
    void waitForReadyRead();
    QByteArray readAllStandardOutput();

    /** Whether it ran to an end of its own, with whatever exit code. */
    bool hasEndedByItself() const;
    /** 0 also for a command that runs, or that never started. */
    int exitCode() const;
    /** Ends the command if it still runs; one that can't be ended is left to itself. */
    void close();
    /**
     * Leaves a command that still runs to itself, for as long as it takes: also when this program has ended. It reads 0
     * from then on. False where it doesn't run.
     */
    bool leaveRunning();

private:
    bool isRunning() const;
    /** Lets go of the process without ending it. */
    void abandon();

    /** Calls a wait of QProcess again and again in short slices until it holds, the limit passes or the job ends. */
    template<typename Wait>
    void waitInSlices(Wait wait);

    std::unique_ptr<QProcess> process_ = std::make_unique<QProcess>();
    QString program_;
    QStringList arguments_;
    qint64 processId_ = 0;
    std::optional<ProgramAnswer> answer_; ///< of one that this process carries out itself, until it is left to itself
    bool answered_ = false;               ///< whether it was waited for: until then it runs
    bool discardsOutput_ = false;
    bool failedToStart_ = false;
    QString startError_; ///< why it failed to start
    bool ended_ = false;
    bool timedOut_ = false;
    bool refused_ = false;
    std::shared_ptr<void> hold_; ///< of the program's file
    mutable std::optional<int> exitCode_;
};

/** What a tool has answered. */
struct ToolAnswer
{
    QString program;
    QStringList arguments;
    int exitCode = 0;
};

/** Hears what tools answer that are waited for, as long as it lives; one at a time, on any thread. */
class ToolListener
{
public:
    ToolListener();
    ~ToolListener();
    Q_DISABLE_COPY_MOVE(ToolListener)

    QList<ToolAnswer> answers() const;

private:
    friend class Command;
    static void hear(const ToolAnswer &answer);
};

/** Runs a tool to its end, or ends it after the time limit. The exit code; of one that had to be ended endedByForce. */
int runTool(const QString &program, const QStringList &arguments);

/**
 * Starts a tool for a routine that looks whether it could be started. False where it couldn't; the reason is in the log
 * then, in the routine's name, and the command is closed.
 */
bool startLogged(Command &command, const QString &routine, const QString &tool, const QStringList &arguments);
