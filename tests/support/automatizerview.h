// SPDX-License-Identifier: GPL-3.0-or-later
// What the Optimizer page shows, and what its worker was started with.

#pragma once

#include "windowdriver.h"

#include <QCheckBox>
#include <QTextBrowser>

/** The log, the status and the bar at one moment. */
struct AutomatizerView
{
    explicit AutomatizerView(const WindowDriver &driver)
        : log(driver.get<QTextBrowser>(QStringLiteral("txtAutomatizer"))->toPlainText().split(u'\n'))
        , status(driver.status())
        , shown(!driver.bar()->isHidden())
        , maximum(driver.bar()->maximum())
        , value(driver.bar()->value())
    {
    }

    QStringList log; ///< one empty line where nothing stands in it
    QString status;
    bool shown;
    int maximum;
    int value;

    bool isFull() const { return maximum == 100 && value == 100; }
};

/** What Analyze counts, each kind of finding. */
struct FindingCounter
{
    const char *name;
    int WorkThread::*member;
};

inline const QList<FindingCounter> findingCounters{
    {"services", &WorkThread::analyzeServiceCount},  {"tasks", &WorkThread::analyzeTaskCount},
    {"packages", &WorkThread::analyzePackageCount},  {"autorun", &WorkThread::analyzeAutorunCount},
    {"processes", &WorkThread::analyzeProcessCount},
};

/** Counts how often a worker is started; must outlive its jobs. */
class Starts
{
public:
    explicit Starts(const WorkThread &worker)
        : connection_(QObject::connect(&worker, &QThread::started, [this] { ++count_; }))
    {
    }
    ~Starts() { QObject::disconnect(connection_); }
    Q_DISABLE_COPY_MOVE(Starts)

    int count() const { return count_; }

private:
    std::atomic<int> count_ = 0;
    QMetaObject::Connection connection_;
};
