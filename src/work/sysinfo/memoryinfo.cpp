// SPDX-License-Identifier: GPL-3.0-or-later
// The report's part on the memory.

#include "memorysize.h"
#include "reportsteps.h"
#include "wmifield.h"
#include "work/wmi.h"

using namespace Qt::StringLiterals;

namespace {

/** "7.61 Go" of a number of KiB. */
QString freeMemoryText(const QString &kibibytes)
{
    constexpr double gibibytesInKibibyte = 9.5367431640625e-7;
    constexpr qsizetype shownCharacters = 4;

    bool isNumber = false;
    const double number = kibibytes.toDouble(&isNumber);
    if (!isNumber)
        return WorkThread::tr("unknown");
    return QString::number(number * gibibytesInKibibyte, 'g', 6).left(shownCharacters) + u" Go"_s;
}

/** The two form factors that PCs have, by name. */
QString formFactorText(const QString &number)
{
    if (number.contains(u'8'))
        return u"DIMM"_s;
    return number.contains("12"_L1) ? u"SODIMM"_s : number;
}

} // namespace

void collectMemory(WorkThread &worker)
{
    const QString system = WmiQuery(u"Win32_ComputerSystem"_s, {u"TotalPhysicalMemory"_s});
    if (const auto bytes = wmiField(system, u"TotalPhysicalMemory"_s, FieldEnd::Text))
        worker.memTotal = memoryText(memoryUnits(*bytes));
    const QString windows = WmiQuery(u"Win32_OperatingSystem"_s, {u"FreePhysicalMemory"_s});
    if (const auto kibibytes = wmiField(windows, u"FreePhysicalMemory"_s, FieldEnd::Text))
        worker.memFree = freeMemoryText(*kibibytes);

    const QString modules = WmiQuery(u"Win32_PhysicalMemory"_s, {u"FormFactor"_s, u"Speed"_s});
    if (const auto number = wmiField(modules, u"FormFactor"_s))
        worker.memFormFactor = formFactorText(*number);
    if (const auto speed = wmiField(modules, u"Speed"_s))
        worker.memFreq = *speed;

    const QString pageFile = WmiQuery(u"Win32_PageFileUsage"_s, {u"AllocatedBaseSize"_s, u"Caption"_s});
    if (auto path = wmiField(pageFile, u"Caption"_s, FieldEnd::Text))
        worker.memVSizeDrive = path->remove(u"PAGEFILE.SYS"_s, Qt::CaseInsensitive);
    if (const auto size = wmiField(pageFile, u"AllocatedBaseSize"_s))
        worker.memVSize = *size + u" Mo "_s; // the drive follows
}
