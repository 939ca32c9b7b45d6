// SPDX-License-Identifier: GPL-3.0-or-later
// The report's part on the processor.

#include "platform/platform.h"
#include "reportsteps.h"
#include "wmifield.h"
#include "work/wmi.h"

using namespace Qt::StringLiterals;

namespace {

/** Whole MiB of a number of KiB: smaller caches read 0. */
QString cacheText(const QString &kibibytes)
{
    bool isNumber = false;
    const int number = kibibytes.toInt(&isNumber);
    return isNumber ? QString::number(number / 1024) + u" Mo"_s : kibibytes + u" Ko"_s;
}

/** A flag as WMI may write it, in a text that may hold more. */
QString switchText(const QString &flag)
{
    const bool on = flag.contains(u'1') || flag.contains("True"_L1, Qt::CaseInsensitive) || flag.contains("65535"_L1);
    return on ? WorkThread::tr("enabled") : WorkThread::tr("disabled");
}

void collectName(WorkThread &worker)
{
    const auto key = platform().openKey(u"HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0"_s);
    QString name = textOrUnknown(*key, u"ProcessorNameString"_s);
    name.remove(u"processor"_s, Qt::CaseInsensitive).remove(u"  "_s);
    name.replace(u"Intel(R) Core(TM)"_s, u"Intel Core"_s, Qt::CaseInsensitive);
    worker.cpuName = name.left(longestName);
    worker.cpuFreq = textOrUnknown(*key, u"~MHz"_s);
}

} // namespace

void collectProcessor(WorkThread &worker)
{
    collectName(worker);
    const QString answer = WmiQuery(u"Win32_Processor"_s, {u"L2CacheSize"_s, u"L3CacheSize"_s, u"NumberOfCores"_s,
                                                           u"NumberOfLogicalProcessors"_s, u"SocketDesignation"_s,
                                                           u"VirtualizationFirmwareEnabled"_s});
    if (const auto size = wmiField(answer, u"L2CacheSize"_s))
        worker.cpuL2Size = cacheText(*size);
    if (const auto size = wmiField(answer, u"L3CacheSize"_s))
        worker.cpuL3Size = cacheText(*size);
    if (auto count = wmiField(answer, u"NumberOfCores"_s))
        worker.cpuCore = count->remove(u' ');
    if (auto count = wmiField(answer, u"NumberOfLogicalProcessors"_s))
        worker.cpuThread = count->remove(u' ');
    if (const auto socket = wmiField(answer, u"SocketDesignation"_s))
        worker.cpuSocket = *socket;
    if (const auto flag = wmiField(answer, u"VirtualizationFirmwareEnabled"_s, FieldEnd::Text))
        worker.cpuV = switchText(*flag);
    worker.cpuHt = worker.cpuCore == worker.cpuThread ? WorkThread::tr("disabled") : WorkThread::tr("enabled");
}
