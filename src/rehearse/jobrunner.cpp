// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobrunner.h"

#include "console/printable.h"
#include "console/programinterruption.h"
#include "subcommands.h"
#include "work/interruption.h"

#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <future>

using namespace Qt::StringLiterals;

void LinePrinter::take(QLatin1StringView signal, const QString &line)
{
    printPair(u"signal"_s, signal, u"line"_s, line);
}

void LinePrinter::takeResult(const QString &name, const QString &text)
{
    printPair(u"name"_s, name, u"text"_s, text);
}

void LinePrinter::printPair(const QString &firstKey, const QString &first, const QString &secondKey,
                            const QString &second)
{
    progress_.clear();
    if (json_)
        print(printableJson(QJsonDocument(QJsonObject{{firstKey, first}, {secondKey, second}}), QJsonDocument::Compact)
              + '\n');
    else
        print(printable(first) + u'\t' + printable(second) + u'\n');
    std::fflush(stdout);
}

std::optional<QString> runToEnd(WorkThread &worker, int job, LineTaker &lines, void (*record)(const QString &line))
{
    std::optional<QString> last;
    QEventLoop loop;
    QObject::connect(&worker, &WorkThread::valueChanged, &loop, [&](const QString &line) {
        last = line;
        lines.take("valueChanged"_L1, line);
        if (record != nullptr)
            record(line);
    });
    QObject::connect(&worker, &WorkThread::automatizerValueChanged, &loop, [&](const QString &line) {
        last = line;
        lines.take("automatizerValueChanged"_L1, line);
    });
    // Queued after the lines that are under way.
    QObject::connect(&worker, &QThread::finished, &loop, &QEventLoop::quit, Qt::QueuedConnection);
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, &worker, [&worker] {
        if (isInterrupted())
            worker.requestInterruption();
    });
    watch.start(interruptionSlice);
    worker.startJob(job);
    loop.exec();
    worker.wait();
    stopIfInterrupted();
    return last;
}

void runToEnd(const std::function<void()> &work)
{
    std::packaged_task<void()> task([&work] {
        try {
            work();
        } catch (const JobInterrupted &) {
            // The one who asked for it waits below.
        }
    });
    std::future<void> end = task.get_future();
    const std::unique_ptr<QThread> thread(QThread::create([&task] { task(); }));
    thread->start();
    while (end.wait_for(std::chrono::milliseconds(interruptionSlice)) != std::future_status::ready) {
        if (isInterrupted())
            thread->requestInterruption();
    }
    thread->wait();
    end.get();
    stopIfInterrupted();
}
