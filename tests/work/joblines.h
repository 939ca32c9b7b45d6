// SPDX-License-Identifier: GPL-3.0-or-later
// The lines that a worker sends, in the order in which they arrive.

#pragma once

#include "work/workthread.h"

#include <QCoreApplication>

/** Writes down a worker's lines, each behind "page: " or "automatizer: " for the signal that carried it. */
class JobLines
{
public:
    explicit JobLines(WorkThread &worker)
    {
        QObject::connect(&worker, &WorkThread::valueChanged, &context_,
                         [this](const QString &line) { lines_.append(QStringLiteral("page: ") + line); });
        QObject::connect(&worker, &WorkThread::automatizerValueChanged, &context_,
                         [this](const QString &line) { lines_.append(QStringLiteral("automatizer: ") + line); });
    }
    Q_DISABLE_COPY_MOVE(JobLines)

    /** What has arrived; lines that are still on their way are delivered first. */
    QStringList all()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
        return lines_;
    }

private:
    QObject context_;
    QStringList lines_;
};

/** Runs a job on its thread to its end. False where it doesn't end. */
inline bool runJob(WorkThread &worker, int number)
{
    constexpr int longest = 60000;
    worker.startJob(number);
    return worker.wait(longest);
}
