// SPDX-License-Identifier: GPL-3.0-or-later
// The machine's load in the window's title: a timer that starts one short job after the other, and its three options.

#include "kestrune.h"

#include "work/settings.h"

#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

/** Milliseconds, by the item of the interval's combo box. The first says one second and is a little less on purpose. */
constexpr int monitorIntervals[] = {998, 2000, 3000, 4000, 5000, 10000, 30000, 60000};

bool isMonitorInterval(int index)
{
    return index >= 0 && index < int(std::size(monitorIntervals));
}

} // namespace

void Kestrune::prepareMonitor()
{
    const auto settings = openSettings();
    workThreadMonitor->monitorThreadAndHandle = settings->value(u"MonitorThreadAndHandle"_s, 0).toInt();
    if (settings->value(u"Monitor"_s, 0).toInt() != 1)
        return;
    workThreadMonitor->monitorEnabled = 1;
    startMonitor();
}

void Kestrune::startMonitor()
{
    const int index = openSettings()->value(u"MonitorInterval"_s, 0).toInt();
    runMonitor();
    connect(monitorTimer, &QTimer::timeout, this, &Kestrune::runMonitor, Qt::UniqueConnection);
    monitorTimer->start(monitorIntervals[isMonitorInterval(index) ? index : 0]);
}

void Kestrune::runMonitor()
{
    // A slow run swallows ticks, so that runs never overlap.
    if (!workThreadMonitor->isRunning())
        workThreadMonitor->startJob(JobMonitor);
}

void Kestrune::onWorkThreadValueMonitor(const QString &line)
{
    // A run that is still under way when the monitor is turned off must not bring its title back.
    if (workThreadMonitor->monitorEnabled == 1)
        setWindowTitle(u"Kestrune - "_s + line);
}

void Kestrune::onChkOptionsMonitorStateChanged(int state)
{
    const int enabled = state == Qt::Checked ? 1 : 0;
    openSettings()->setValue(u"Monitor"_s, enabled);
    workThreadMonitor->monitorEnabled = enabled;
    if (enabled == 0) {
        monitorTimer->stop();
        setWindowTitle(u"Kestrune"_s);
    } else if (!monitorTimer->isActive()) {
        startMonitor();
    }
}

void Kestrune::onChkOptionsMonitorThreadAndHandleStateChanged(int state)
{
    const int counted = state == Qt::Checked ? 1 : 0;
    openSettings()->setValue(u"MonitorThreadAndHandle"_s, counted);
    workThreadMonitor->monitorThreadAndHandle = counted;
}

void Kestrune::onCbOptionsMonitorIntervalSelectionChanged(int index)
{
    openSettings()->setValue(u"MonitorInterval"_s, index);
    if (isMonitorInterval(index))
        monitorTimer->setInterval(monitorIntervals[index]);
}
