// SPDX-License-Identifier: GPL-3.0-or-later
// Running jobs without a window, and printing what they say.

#pragma once

#include "progress.h"
#include "work/workthread.h"

#include <functional>
#include <optional>

/** Takes what jobs say. */
class LineTaker
{
public:
    LineTaker() = default;
    virtual ~LineTaker() = default;
    Q_DISABLE_COPY_MOVE(LineTaker)

    virtual void take(QLatin1StringView signal, const QString &line) = 0;
    /** A text that a job left. */
    virtual void takeResult(const QString &name, const QString &text) = 0;
};

/** Prints the lines as they come: "signal<TAB>line" with control characters written out, or an object of JSON each. */
class LinePrinter final : public LineTaker
{
public:
    LinePrinter(bool json, Progress &progress)
        : json_(json)
        , progress_(progress)
    {
    }

    void take(QLatin1StringView signal, const QString &line) override;
    void takeResult(const QString &name, const QString &text) override;

private:
    void printPair(const QString &firstKey, const QString &first, const QString &secondKey, const QString &second);

    bool json_;
    Progress &progress_;
};

/**
 * Runs a job to its end. Throws Interrupted where the program is broken off, and the job has ended early.
 * @param record takes each line of valueChanged, as the window does for its records
 * @return the job's last line; nothing where it has sent none
 */
std::optional<QString> runToEnd(WorkThread &worker, int job, LineTaker &lines,
                                void (*record)(const QString &line) = nullptr);
/** Runs work that is no job, on a thread of its own; it can be broken off likewise. */
void runToEnd(const std::function<void()> &work);
