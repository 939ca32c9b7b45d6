// SPDX-License-Identifier: GPL-3.0-or-later
// The tweaks of the gaming group.

#include "gamingtweaks.h"
#include "tweakvalues.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

// Taking 1 back leaves two of its values where applying put them. 8 writes the whole text, so that what else stood in
// it is lost.
// clang-format off
constexpr TweakValue values[] = {
    {1, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile\\Tasks\\Games"_L1,
     "Background Only"_L1, "False"_L1, "False"_L1},
    {1, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile\\Tasks\\Games"_L1,
     "Clock Rate"_L1, 10000, 10000},
    {1, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile\\Tasks\\Games"_L1,
     "GPU Priority"_L1, 12, NotTouched()},
    {1, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile\\Tasks\\Games"_L1,
     "Priority"_L1, 6, 3},
    {1, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile\\Tasks\\Games"_L1,
     "Scheduling Category"_L1, "Medium"_L1, "Medium"_L1},
    {1, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile\\Tasks\\Games"_L1,
     "SFIO Priority"_L1, "High"_L1, "Normal"_L1},
    {1, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile\\Tasks\\Games"_L1,
     "SFIO Rate"_L1, 4, Deleted()},
    {1, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile\\Tasks\\Games"_L1,
     "Latency Sensitive"_L1, "True"_L1, Deleted()},
    {1, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile"_L1,
     "SystemResponsiveness"_L1, 10, NotTouched()},
    {2, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Power"_L1,
     "PowerThrottlingOff"_L1, 1, 0},
    {3, "HKEY_CURRENT_USER\\Software\\Microsoft\\GameBar"_L1,
     "AllowAutoGameMode"_L1, 1, 0},
    {3, "HKEY_CURRENT_USER\\Software\\Microsoft\\GameBar"_L1,
     "AutoGameModeEnabled"_L1, 1, 0},
    {4, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\GameDVR"_L1,
     "AllowgameDVR"_L1, 0, 1},
    {6, "HKEY_CURRENT_USER\\Software\\Microsoft\\GameBar"_L1,
     "UseNexusForGameBarEnabled"_L1, 0, 1},
    {6, "HKEY_CURRENT_USER\\Software\\Microsoft\\GameBar"_L1,
     "ShowStartupPanel"_L1, 0, 1},
    {8, "HKEY_CURRENT_USER\\Software\\Microsoft\\DirectX\\UserGpuPreferences"_L1,
     "DirectXUserGlobalSettings"_L1, "AutoHDREnable=1;SwapEffectUpgradeEnable=1;"_L1, "AutoHDREnable=0;SwapEffectUpgradeEnable=1;"_L1},
    {9, "HKEY_CURRENT_USER\\Control Panel\\Mouse"_L1,
     "MouseSpeed"_L1, "0"_L1, "1"_L1},
    {9, "HKEY_CURRENT_USER\\Control Panel\\Mouse"_L1,
     "MouseThreshold1"_L1, "0"_L1, "6"_L1},
    {9, "HKEY_CURRENT_USER\\Control Panel\\Mouse"_L1,
     "MouseThreshold2"_L1, "0"_L1, "10"_L1},
    {12, "HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Microsoft\\Direct3D"_L1,
     "MaxPreRenderedFrames"_L1, 1, Deleted()},
    {13, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\Dwm"_L1,
     "OverlayTestMode"_L1, 5, Deleted()},
};
// clang-format on

} // namespace

std::span<const TweakValue> gamingValues()
{
    return values;
}

void WorkThread::TweakGaming(quint8 apply, quint32 id)
{
    const bool isApply = apply == 1;
    writeTweakValues(values, id, isApply);
    switch (id) {
    case 5:
        setPlatformClockTweak(isApply, winName);
        needReboot = 1;
        break;
    case 7:
        if (winName.contains("11"_L1)) {
            setDynamicTickTweak(isApply);
            needReboot = 1;
        }
        break;
    case 10:
        setTcpAcknowledgementTweak(isApply);
        needReboot = 1;
        break;
    case 11:
        setQuantumTweak(isApply, win32PrioritySeparationIndex);
        break;
    case 13:
        needReboot = 1;
        break;
    case 14:
        setUlpsTweak(isApply);
        needReboot = 1;
        break;
    default:
        break;
    }
}
