// SPDX-License-Identifier: GPL-3.0-or-later
// The tweaks of the Windows group.

#include "tweakvalues.h"
#include "windowstweaks.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

// 380000 is decimal, though the system's own value has these digits as a hexadecimal number. AutoEndTasks gets the same
// text as the time-outs beside it.
// clang-format off
constexpr TweakValue values[] = {
    {1, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control"_L1,
     "SvcHostSplitThresholdInKB"_L1, 251658240, 380000},
    {2, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Configuration Manager"_L1,
     "EnablePeriodicBackup"_L1, 0, 1},
    {3, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\Windows Search"_L1,
     "PreventUsingAdvancedIndexingOptions"_L1, 1, 0},
    {4, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\FileHistory"_L1,
     "Disabled"_L1, 1, 0},
    {4, "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"_L1,
     "Start_TrackDocs"_L1, 0, 1},
    {6, "HKEY_USERS\\S-1-5-20\\Software\\Microsoft\\Windows\\CurrentVersion\\DeliveryOptimization\\Settings"_L1,
     "DownloadMode"_L1, 0, 1},
    {6, "HKEY_USERS\\S-1-5-20\\Software\\Microsoft\\Windows\\CurrentVersion\\DeliveryOptimization\\Settings"_L1,
     "DownloadModeProvider"_L1, 8, Deleted()},
    {8, "HKEY_CURRENT_USER\\Control Panel\\Desktop"_L1,
     "MenuShowDelay"_L1, "0"_L1, "400"_L1},
    {8, "HKEY_CURRENT_USER\\Control Panel\\Desktop"_L1,
     "AutoEndTasks"_L1, "3000"_L1, Deleted()},
    {8, "HKEY_CURRENT_USER\\Control Panel\\Desktop"_L1,
     "HungAppTimeout"_L1, "3000"_L1, Deleted()},
    {8, "HKEY_CURRENT_USER\\Control Panel\\Desktop"_L1,
     "WaitToKillAppTimeout"_L1, "5000"_L1, Deleted()},
    {8, "HKEY_CURRENT_USER\\Control Panel\\Desktop"_L1,
     "LowLevelHooksTimeout"_L1, "3000"_L1, Deleted()},
    {8, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control"_L1,
     "WaitToKillServiceTimeout"_L1, "3000"_L1, "5000"_L1},
    {9, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\Personalization"_L1,
     "NoLockScreen"_L1, 1, Deleted()},
};
// clang-format on

} // namespace

std::span<const TweakValue> windowsValues()
{
    return values;
}

void WorkThread::TweakWindows(quint8 apply, quint32 id)
{
    const bool isApply = apply == 1;
    writeTweakValues(values, id, isApply);
    writeTweakValues(telemetryValues(), id, isApply);
    switch (id) {
    case 1:
        needReboot = 1;
        break;
    case 5:
        if (winName.contains("11"_L1)) {
            setClassicMenuTweak(isApply);
            needReboot = 1;
        }
        break;
    case 10:
        setSearchTweak(isApply, winName);
        break;
    default:
        break;
    }
    // Looked for on every call, whatever its id, since the service's name changes from one logon to the next.
    const QString cloudBackup = findCloudBackupService();
    if (id == 12)
        setCloudBackupTweak(isApply, cloudBackup);
}
