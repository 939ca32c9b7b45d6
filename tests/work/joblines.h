// SPDX-License-Identifier: GPL-3.0-or-later
// The lines that a worker sends, in the order in which they arrive.

#pragma once

#include "support/suite.h"
#include "work/workthread.h"

#include <QCoreApplication>

inline const QString onEleven = QStringLiteral("Windows 11 Home");
inline const QString onTen = QStringLiteral("Windows 10 Home");

/** A worker that takes this for the name of its Windows. */
class WorkerOn : public WorkThread
{
public:
    explicit WorkerOn(const QString &name) { winName = name; }
};

/** Which of the Automatizer's phases a worker takes to be under way. */
struct Phases
{
    int analyze = 0;
    int optimize = 0;
    int restore = 0;

    void mark(WorkThread &worker) const
    {
        worker.analyzeRunning = analyze;
        worker.optimizeRunning = optimize;
        worker.restoreRunning = restore;
    }
};

/** Data rows: each phase alone, with the lines of a job that has nothing to do. */
inline void addPhasesOfAnEmptyList(const QString &closing)
{
    addColumns<Phases, QStringList>("phases", "expected");
    const QStringList both{QStringLiteral("page: pgr:max:0"), closing};
    QTest::newRow("page") << Phases{} << both;
    QTest::newRow("analyze") << Phases{.analyze = 1} << both;
    QTest::newRow("optimize") << Phases{.optimize = 1} << QStringList{closing};
    QTest::newRow("restore") << Phases{.restore = 1} << QStringList{closing};
}

/** Writes down a worker's lines, each after "page: " or "automatizer: " for the signal that carried it. */
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
    // Milliseconds; a large export takes a minute with the sanitizers on a busy computer.
    constexpr int longest = 240000;
    worker.startJob(number);
    return worker.wait(longest);
}
