// SPDX-License-Identifier: GPL-3.0-or-later

#include "command.h"

#include "interruption.h"
#include "platform/platform.h"
#include "settings.h"

#include <QDeadlineTimer>

#include <mutex>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

// Short enough for a worker that is asked to end to be gone before anyone loses patience with it.
constexpr int slice = 10;

std::mutex listening;
std::optional<QList<ToolAnswer>> heard; ///< nothing where nobody listens

} // namespace

ToolListener::ToolListener()
{
    const std::lock_guard lock(listening);
    heard.emplace();
}

ToolListener::~ToolListener()
{
    const std::lock_guard lock(listening);
    heard.reset();
}

QList<ToolAnswer> ToolListener::answers() const
{
    const std::lock_guard lock(listening);
    return heard.value_or(QList<ToolAnswer>());
}

void ToolListener::hear(const ToolAnswer &answer)
{
    const std::lock_guard lock(listening);
    if (heard)
        heard->append(answer);
}

Command::~Command()
{
    close();
}

void Command::discardOutput()
{
    discardsOutput_ = true;
    process_->setStandardOutputFile(QProcess::nullDevice());
    process_->setStandardErrorFile(QProcess::nullDevice());
}

void Command::start(const QString &program, const QStringList &arguments)
{
    close();
    failedToStart_ = false;
    ended_ = false;
    timedOut_ = false;
    refused_ = false;
    answer_.reset();
    answered_ = false;
    exitCode_.reset();
    program_ = program;
    arguments_ = arguments;

    const QString file = platform().programFile(program);
    if (file.isEmpty()) {
        failedToStart_ = true;
        startError_ = u"Process failed to start: The system cannot find the file specified."_s;
        return;
    }
    const std::optional<AdmittedProgram> admitted = platform().admitProgram(program, arguments);
    refused_ = !admitted;
    if (refused_)
        return;
    if (admitted->within) {
        answer_ = admitted->within();
        return;
    }
    hold_ = admitted->hold;
    process_->start(admitted->file, admitted->leading + arguments, QIODevice::ReadWrite);
    // Elsewhere than on Windows a failed start shows only now.
    failedToStart_ = !process_->waitForStarted();
    startError_ = process_->errorString();
    if (failedToStart_)
        platform().startFailed(program, startError_);
    processId_ = process_->processId();
}

QString Command::errorString() const
{
    if (failedToStart_)
        return startError_;
    // A slice of a wait that passes is no error of the command; one that was refused is like one that refused its work.
    const bool sliceAlone = process_->error() == QProcess::Timedout && !timedOut_;
    return sliceAlone || refused_ || answer_ ? QIODevice::tr("Unknown error") : process_->errorString();
}

bool Command::isRunning() const
{
    return answer_ ? !answered_ : process_->state() != QProcess::NotRunning;
}

template<typename Wait>
void Command::waitInSlices(Wait wait)
{
    const QDeadlineTimer deadline(timeLimit);
    while (isRunning() && !wait() && !deadline.hasExpired())
        endIfInterrupted();
}

void Command::waitForFinished()
{
    answered_ = answer_.has_value();
    waitInSlices([this] { return process_->waitForFinished(slice); });
    timedOut_ = isRunning();
    ToolListener::hear({program_, arguments_, timedOut_ ? endedByForce : exitCode()});
}

void Command::waitForReadyRead()
{
    answered_ = answer_ && (answered_ || answer_->output.isEmpty());
    if (answer_)
        return;
    waitInSlices([this] { return process_->bytesAvailable() > 0 || process_->waitForReadyRead(slice); });
}

QByteArray Command::readAllStandardOutput()
{
    if (answer_)
        return discardsOutput_ ? QByteArray() : std::exchange(answer_->output, {});
    // A command that never started has no open channel to read from.
    return process_->isOpen() ? process_->readAllStandardOutput() : QByteArray();
}

bool Command::hasEndedByItself() const
{
    if (answer_)
        return answered_ && !ended_;
    return processId_ != 0 && !ended_ && process_->state() == QProcess::NotRunning
           && process_->exitStatus() == QProcess::NormalExit;
}

int Command::exitCode() const
{
    if (refused_)
        return accessDenied;
    if (ended_)
        return endedByForce;
    if (answer_)
        return answered_ ? answer_->exitCode : 0;
    if (failedToStart_ || processId_ == 0 || process_->state() != QProcess::NotRunning)
        return 0;
    if (!exitCode_)
        exitCode_ = platform().exitCode(processId_, process_->exitCode());
    return *exitCode_;
}

void Command::close()
{
    if (answer_) {
        ended_ = ended_ || !answered_;
        answer_->output.clear();
    } else if (isRunning()) {
        process_->kill();
        if (!process_->waitForFinished(killLimit))
            abandon();
        ended_ = true;
    }
    process_->close();
    hold_.reset();
}

bool Command::leaveRunning()
{
    if (!isRunning())
        return false;
    if (!answer_)
        abandon();
    answer_.reset();
    processId_ = 0;
    return true;
}

void Command::abandon()
{
    struct Left
    {
        std::unique_ptr<QProcess> process;
        std::shared_ptr<void> hold;
    };
    // Never destroyed: a QProcess that goes ends its program first.
    static auto &left = *new std::vector<Left>;
    static std::mutex oneAtATime;
    const std::lock_guard lock(oneAtATime);
    left.push_back({std::move(process_), std::move(hold_)});
    process_ = std::make_unique<QProcess>();
}

int runTool(const QString &program, const QStringList &arguments)
{
    Command command;
    command.start(program, arguments);
    command.waitForFinished();
    command.close();
    return command.exitCode();
}

bool startLogged(Command &command, const QString &routine, const QString &tool, const QStringList &arguments)
{
    const QString prefix = routine + u": "_s + tool + u" process error"_s;
    command.start(tool, arguments);
    if (command.failedToStart()) {
        LogError(prefix + u": "_s + command.errorString());
        return false;
    }
    if (const int code = command.exitCode(); code != 0) {
        LogError(prefix + u", exitCode: "_s + QString::number(code));
        command.close();
        return false;
    }
    return true;
}
