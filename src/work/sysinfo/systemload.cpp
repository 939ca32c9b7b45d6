// SPDX-License-Identifier: GPL-3.0-or-later
// One line on how busy the machine is.

#include "systeminfo.h"

#include "work/interruption.h"
#include "work/wmi.h"
#include "work/workthread.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString measuredLoad()
{
    constexpr int measuringTime = 100; // milliseconds

    try {
        const ProcessorTimes before = platform().processorTimes();
        pauseFor(measuringTime);
        return loadText(processorLoad(before, platform().processorTimes()));
    } catch (const std::exception &) {
        return u"-1"_s; // the other figures are reported all the same
    }
}

/** The idle process counts as one, whether or not the system names it. */
qsizetype processCount()
{
    const QList<quint32> ids = platform().processIds();
    return 1 + std::count_if(ids.cbegin(), ids.cend(), [](quint32 id) { return id != 0; });
}

qint64 handleCount()
{
    qint64 count = 0;
    // What isn't a number counts nothing.
    for (const QString &part : WmiQuery(u"win32_process"_s, {u"HandleCount"_s}).split(u"HandleCount="_s))
        count += part.toInt();
    return count;
}

QString entry(const QString &name, qint64 number)
{
    return u" | "_s + name + u' ' + QString::number(number);
}

} // namespace

// In 32 bits throughout, since a finer measure would show other numbers.
float processorLoad(const ProcessorTimes &before, const ProcessorTimes &after)
{
    const auto idle = static_cast<float>(after.idle - before.idle);
    const auto kernel = static_cast<float>(after.kernel - before.kernel);
    const auto user = static_cast<float>(after.user - before.user);
    return (1.0F - idle / (kernel + user)) * 100.0F;
}

QString loadText(float load)
{
    constexpr float idleUpTo = 1.001F;
    constexpr float leastBusy = 2.0F;
    constexpr float most = 100.0F;

    if (load > idleUpTo)
        load = std::max(load, leastBusy);
    if (load > leastBusy && load < most)
        load += 1.0F;
    const QString text = QString::number(static_cast<double>(load), 'g', 6).section(u'.', 0, 0);
    return text == u'0' ? u"1"_s : text;
}

void WorkThread::MonitorSystem()
{
    constexpr int longestStorageAge = 9;

    QString line = u"cpu "_s + measuredLoad() + u'%' + entry(tr("processes"), processCount());
    const quint64 freeMebibytes = platform().freeMemory() >> 20;
    // The figures of the drive hardly change: they are renewed by every tenth run.
    if (monitorStorageAge > longestStorageAge) {
        const RootDrive drive = platform().rootDrive();
        monitorRootPath_ = drive.path;
        monitorFreeBytes_ = drive.freeBytes;
        monitorStorageAge = 0;
    }
    ++monitorStorageAge;
    if (monitorThreadAndHandle == 1) {
        line += entry(tr("threads"), platform().threadCount());
        line += entry(tr("handles"), handleCount());
    }
    line += entry(tr("free memory"), static_cast<qint64>(freeMebibytes)) + u" Mo"_s;
    // "C:/" ends in a blank, and nothing stands between number and unit.
    line += u" | "_s + tr("free on") + u' ' + QString(monitorRootPath_).replace(u'/', u' ')
            + QString::number(monitorFreeBytes_ >> 30) + u"Go"_s;
    report(line);
}
