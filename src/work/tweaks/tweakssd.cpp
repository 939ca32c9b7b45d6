// SPDX-License-Identifier: GPL-3.0-or-later
// The tweaks of the SSD group.

#include "ssdtweaks.h"
#include "tweakvalues.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

// Two of them name one key in two ways. Taking 5 back switches the clearing on, though few systems come so.
// clang-format off
constexpr TweakValue values[] = {
    {1, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\FileSystem"_L1,
     "DisableWriteCacheFlush"_L1, 1, 0},
    {2, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Dfrg"_L1,
     "Enable"_L1, 0, 1},
    {3, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Filesystem"_L1,
     "NtfsDisableLastAccessUpdate"_L1, 1, 0},
    {4, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management\\PrefetchParameters"_L1,
     "EnablePrefetcher"_L1, 0, 3},
    {5, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Memory Management"_L1,
     "ClearPageFileAtShutdown"_L1, 0, 1},
    {6, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Power"_L1,
     "HiberbootEnabled"_L1, 0, 1},
};
// clang-format on

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
        setHibernationTweak(isApply, winName);
        break;
    case 8:
        RemoveIndexedAttrib(qEnvironmentVariable("homedrive"), !isApply);
        if (optimizeRunning == 1)
            reportToAutomatizer(u"RemoveIndexedAttrib_end"_s);
        else
            report(u"WorkThread::TweakSSD::RemoveIndexedAttrib"_s);
        break;
    case 9:
        setIoPageLockTweak(isApply, memTotal);
        needReboot = 1;
        break;
    default:
        break;
    }
}
