// SPDX-License-Identifier: GPL-3.0-or-later

#include "previewrun.h"

#include <QProcess>

using namespace Qt::StringLiterals;

PreviewRun::PreviewRun(PreviewPlace place, QObject *parent)
    : QObject(parent)
    , place_(std::move(place))
    , process_(new QProcess(this))
{
    connect(process_, &QProcess::readyReadStandardError, this, &PreviewRun::readErrors);
    connect(process_, &QProcess::readyReadStandardOutput, this, [this] { json_ += process_->readAllStandardOutput(); });
    connect(process_, &QProcess::finished, this, &PreviewRun::onEnd);
    connect(process_, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart) // then nothing else comes
            onEnd();
    });
}

PreviewRun::~PreviewRun()
{
    constexpr int patience = 5000;

    process_->disconnect(this);
    if (process_->state() == QProcess::NotRunning)
        return;
    process_->closeWriteChannel();
    if (!process_->waitForFinished(patience)) {
        process_->kill();
        process_->waitForFinished(patience);
    }
}

void PreviewRun::start(const QStringList &options)
{
    options_ = options;
    isCapturing_ = place_.isCaptured;
    if (isCapturing_)
        startProgram({u"capture"_s, place_.machine, u"--force"_s, u"--with-names"_s, u"--steered"_s});
    else
        preview();
}

void PreviewRun::preview()
{
    isCapturing_ = false;
    startProgram(QStringList{u"preview"_s, place_.machine, u"--json"_s, u"-"_s, u"--steered"_s} + options_);
}

void PreviewRun::startProgram(const QStringList &arguments)
{
    json_.clear();
    errors_.clear();
    process_->start(place_.program, arguments);
}

void PreviewRun::cancel()
{
    isCancelled_ = true;
    process_->closeWriteChannel();
}

void PreviewRun::readErrors()
{
    constexpr int fields = 3; // done, total, step

    process_->setReadChannel(QProcess::StandardError);
    while (process_->canReadLine()) {
        const QString line = QString::fromUtf8(process_->readLine()).trimmed();
        const QStringList step = line.split(u'\t');
        bool isStep = step.size() == fields;
        const int done = isStep ? step.at(0).toInt(&isStep) : 0;
        const int total = isStep ? step.at(1).toInt(&isStep) : 0;
        if (isStep)
            Q_EMIT stepped(done, total);
        else
            errors_ += line.section(u": "_s, 1) + u'\n';
    }
}

void PreviewRun::onEnd()
{
    readErrors();
    const bool isDone = process_->error() != QProcess::FailedToStart && process_->exitStatus() == QProcess::NormalExit
                        && process_->exitCode() == 0;
    if (isDone && isCapturing_ && !isCancelled_) {
        Q_EMIT captured();
        preview();
        return;
    }
    if (!isDone || isCancelled_)
        json_.clear();
    if (!isDone && !isCancelled_)
        failure_ = errors_.isEmpty() ? place_.program + u": "_s + process_->errorString() : errors_.trimmed();
    Q_EMIT finished();
}
