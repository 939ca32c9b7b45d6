// SPDX-License-Identifier: GPL-3.0-or-later
// The limit of memory that may be locked for input and output.

#include "platform/platform.h"
#include "ssdtweaks.h"
#include "work/sysinfo/memorysize.h"
#include "work/wmi.h"
#include "work/workthread.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

const QString limitName = u"IoPageLockLimit"_s;

struct LimitRow
{
    qint64 memorySize;
    int limit;
};

// clang-format off
/** The sizes are exact: what lies between them has no limit. */
constexpr std::array limitRows{
    LimitRow{ 4,  4000000},
    LimitRow{ 8,  8000000},
    LimitRow{16, 10000000},
    LimitRow{32, 10000000},
};
// clang-format on

std::unique_ptr<RegistryKey> openMemoryManagement()
{
    return platform().openKey(
        u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management"_s);
}

/** In units that give round numbers for memory as it is sold; 0 where it can't be told. */
qint64 readMemorySize(QString &memTotal)
{
    const QString property = u"TotalPhysicalMemory"_s;

    qint64 size = 0;
    try {
        memTotal = WmiQuery(u"Win32_ComputerSystem"_s, {property});
        // An answer without the name loses its first 19 characters, and what is left of it is no number.
        const QString bytes = memTotal.mid(memTotal.indexOf(property) + property.size() + 1);
        size = memoryUnits(bytes).value_or(0);
        memTotal = memoryText(size);
    } catch (const std::exception &) {
        memTotal = WorkThread::tr("unknown");
    }
    return size;
}

void writeLimit(qint64 memorySize)
{
    const auto key = openMemoryManagement();
    for (const LimitRow &row : limitRows) {
        if (row.memorySize == memorySize)
            key->setValue(limitName, row.limit);
    }
}

} // namespace

void setIoPageLockTweak(bool apply, QString &memTotal)
{
    if (!apply) {
        openMemoryManagement()->remove(limitName);
        return;
    }
    const qint64 memorySize = readMemorySize(memTotal);
    try {
        writeLimit(memorySize);
    } catch (const std::exception &) {
        // As silent as a refusal.
    }
}
