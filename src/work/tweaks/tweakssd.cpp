// SPDX-License-Identifier: GPL-3.0-or-later
// The tweaks of the SSD group.

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "tweakcatalogue.h"
#include "tweakvalues.h"
#include "work/command.h"
#include "work/interruption.h"
#include "work/statusline.h"
#include "work/sysinfo/systeminfo.h"
#include "work/windowsname.h"
#include "work/wmi.h"
#include "work/workthread.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

// Two of them name one key in two ways. Taking 5 back switches the clearing on, though few systems come so.
// clang-format off
constexpr TweakValue values[] = {
    {1, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\FileSystem"_L1, "DisableWriteCacheFlush"_L1, 1, 0},
    {2, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Dfrg"_L1, "Enable"_L1, 0, 1},
    {3, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Filesystem"_L1, "NtfsDisableLastAccessUpdate"_L1, 1, 0},
    {4, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management\\PrefetchParameters"_L1, "EnablePrefetcher"_L1, 0, 3},
    {5, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management"_L1, "ClearPageFileAtShutdown"_L1, 0, 1},
    {6, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Power"_L1, "HiberbootEnabled"_L1, 0, 1},
};
// clang-format on

/** Switches hibernation off (@p apply) or on, and waits for the system to settle. */
void setHibernation(bool apply, const QString &winName)
{
    runTool(u"powercfg"_s, {u"-h"_s, apply ? u"OFF"_s : u"ON"_s});
    pauseFor(isWindows11(winName) ? 30 : 300);
}

bool isSystemEntry(quint32 word)
{
    return word != invalidAttributes && (word & AttributeSystem) != 0;
}

/**
 * Sets the attribute that excludes from content indexing on everything below a Windows path, or clears it. Hidden and
 * system entries are left alone with all below them, and so is what links lead to. Throws JobInterrupted.
 */
void RemoveIndexedAttrib(const QString &path, bool clear)
{
    // A walk names a folder right before what is in it, so one beginning is enough to know what to leave out.
    QString leftOut;
    walkFolder(path, [&](const WalkEntry &entry) {
        if (entry.path.isEmpty() || (!leftOut.isEmpty() && entry.path.startsWith(leftOut)))
            return;
        const quint32 word = platform().fileAttributes(entry.path);
        if (isSystemEntry(word)) {
            leftOut = entry.path + u'/';
            return;
        }
        // The invalid word of a file that can't be read is handed on, too: the system refuses it.
        platform().setFileAttributes(entry.path, clear ? word & ~AttributeNotIndexed : word | AttributeNotIndexed);
    });
}

/** The limit of memory that may be locked for input and output. */
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

/** In units that give round numbers for memory as it is sold; 0 where it is unknown. */
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
    const auto key = platform().openKey(WindowsKey::memoryManagement);
    for (const LimitRow &row : limitRows) {
        if (row.memorySize == memorySize)
            key->setValue(limitName, row.limit);
    }
}

/**
 * Limits the I/O memory that may be locked by the size of the machine's memory, or takes the limit away. Most sizes
 * have none, and what was written before stays then.
 * @param memTotal receives the size as the report shows it, when applied
 */
void setIoPageLock(bool apply, QString &memTotal)
{
    if (!apply) {
        platform().openKey(WindowsKey::memoryManagement)->remove(limitName);
        return;
    }
    const qint64 memorySize = readMemorySize(memTotal);
    try {
        writeLimit(memorySize);
    } catch (const std::exception &) {
        // As silent as a refusal.
    }
}

} // namespace

std::span<const TweakValue> ssdValues()
{
    return values;
}

void WorkThread::TweakSSD(quint8 apply, quint32 id)
{
    const bool isApply = apply == 1;
    writeTweakValues(values, id, isApply);
    switch (id) {
    case 7:
        setHibernation(isApply, winName);
        break;
    case 8:
        RemoveIndexedAttrib(qEnvironmentVariable("homedrive"), !isApply);
        if (optimizeRunning == 1)
            reportToAutomatizer(StatusLine::attributesSetByOptimize);
        else
            report(StatusLine::attributesSet);
        break;
    case 9:
        setIoPageLock(isApply, memTotal);
        break;
    default:
        break;
    }
    if (needsReboot(&WorkThread::TweakSSD, id, *this))
        needReboot = 1;
}
