// SPDX-License-Identifier: GPL-3.0-or-later
// The tweaks of the gaming group.

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "tweakcatalogue.h"
#include "tweakvalues.h"
#include "work/command.h"
#include "work/interruption.h"
#include "work/windowsname.h"
#include "work/workthread.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

// Taking 1 back leaves two of its values where applying put them. 8 writes the whole text, so that what else stood in
// it is lost.
// clang-format off
constexpr auto games = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile\\Tasks\\Games"_L1;
constexpr auto gameBar = "HKEY_CURRENT_USER\\Software\\Microsoft\\GameBar"_L1;
constexpr auto mouse = "HKEY_CURRENT_USER\\Control Panel\\Mouse"_L1;
constexpr TweakValue values[] = {
    {1, games, "Background Only"_L1, "False"_L1, "False"_L1},
    {1, games, "Clock Rate"_L1, 10000, 10000},
    {1, games, "GPU Priority"_L1, 12, NotTouched()},
    {1, games, "Priority"_L1, 6, 3},
    {1, games, "Scheduling Category"_L1, "Medium"_L1, "Medium"_L1},
    {1, games, "SFIO Priority"_L1, "High"_L1, "Normal"_L1},
    {1, games, "SFIO Rate"_L1, 4, Deleted()},
    {1, games, "Latency Sensitive"_L1, "True"_L1, Deleted()},
    {1, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile"_L1, "SystemResponsiveness"_L1, 10, NotTouched()},
    {2, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Power"_L1, "PowerThrottlingOff"_L1, 1, 0},
    {3, gameBar, "AllowAutoGameMode"_L1, 1, 0},
    {3, gameBar, "AutoGameModeEnabled"_L1, 1, 0},
    {4, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\GameDVR"_L1, "AllowgameDVR"_L1, 0, 1},
    {6, gameBar, "UseNexusForGameBarEnabled"_L1, 0, 1},
    {6, gameBar, "ShowStartupPanel"_L1, 0, 1},
    {8, "HKEY_CURRENT_USER\\Software\\Microsoft\\DirectX\\UserGpuPreferences"_L1, "DirectXUserGlobalSettings"_L1, "AutoHDREnable=1;SwapEffectUpgradeEnable=1;"_L1, "AutoHDREnable=0;SwapEffectUpgradeEnable=1;"_L1},
    {9, mouse, "MouseSpeed"_L1, "0"_L1, "1"_L1},
    {9, mouse, "MouseThreshold1"_L1, "0"_L1, "6"_L1},
    {9, mouse, "MouseThreshold2"_L1, "0"_L1, "10"_L1},
    {12, "HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Microsoft\\Direct3D"_L1, "MaxPreRenderedFrames"_L1, 1, Deleted()},
    {13, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\Dwm"_L1, "OverlayTestMode"_L1, 5, Deleted()},
};
// clang-format on

/** Takes the platform clock out of use, by the boot configuration on Windows 11 and by its driver elsewhere. */
void setPlatformClock(bool apply, const QString &winName)
{
    // One key of Windows in two spellings: this one is the tweak's own.
    const QString driver = u"HKEY_LOCAL_MACHINE\\System\\CurrentControlSet\\Services\\Hpet"_s;

    if (isWindows11(winName))
        runTool(u"bcdedit"_s, {u"/set"_s, u"useplatformclock"_s, apply ? u"False"_s : u"True"_s});
    else
        platform().openKey(driver)->setValue(u"Start"_s, apply ? StartDisabled : StartAutomatic);
    // Unlike after other tools it is Windows 10 that is asked for: any other system gets the short pause.
    pauseFor(isWindows10(winName) ? 300 : 30);
}

/** Lets the boot configuration switch the dynamic tick off, or on again. */
void setDynamicTick(bool apply)
{
    runTool(u"bcdedit"_s, {u"/set"_s, u"disabledynamictick"_s, apply ? u"Yes"_s : u"No"_s});
    pauseFor(30);
}

/**
 * The braced names of the network interfaces that values lie below, each once. A value that lies below no brace gives
 * the empty name, which stands for the key of all interfaces.
 */
QStringList interfaceNames()
{
    QStringList names;
    for (const QString &value : platform().openKey(WindowsKey::networkInterfaces)->allKeys()) {
        const QString name = value.left(value.indexOf(u'}') + 1);
        if (!names.contains(name))
            names.append(name);
    }
    return names;
}

void setAcknowledgement(RegistryKey &key, bool apply)
{
    for (const QString &name : {u"TcpAckFrequency"_s, u"TCPNoDelay"_s}) {
        if (apply)
            key.setValue(name, 1);
        else
            key.remove(name);
    }
}

void setInterface(const QString &path, bool apply)
{
    constexpr qsizetype shortestHint = 22;
    constexpr qsizetype usedOfHint = 12;

    const auto key = platform().openKey(path);
    const QString address = key->value(u"DhcpIPAddress"_s, QString()).toString();
    if (!address.isEmpty() && address != "0.0.0.0"_L1)
        setAcknowledgement(*key, apply);
    // The subkey of the wireless network that was joined last, whatever the address.
    const QString hint = key->value(u"DhcpNetworkHint"_s, QString()).toString();
    if (hint.size() >= shortestHint)
        setAcknowledgement(*platform().openKey(path + u'\\' + hint.left(usedOfHint)), apply);
}

/** Lets TCP acknowledge at once on the interfaces that have an address by DHCP, or as it does by default. */
void setTcpAcknowledgement(bool apply)
{
    for (const QString &name : interfaceNames())
        setInterface(WindowsKey::networkInterfaces + u'\\' + name, apply);
}

/** The processor time that programs in the foreground get, by the place of the choice that begins with the number. */
constexpr std::array quanta{22, 21, 20, 38, 37, 36, 24, 40};

/** Sets the quantum of the scheduler by the place of a choice, or takes the setting away. */
void setQuantum(bool apply, int index)
{
    const QString name = u"Win32PrioritySeparation"_s;
    const auto key = platform().openKey(WindowsKey::priorityControl);
    if (!apply)
        key->remove(name);
    else if (index >= 0 && index < static_cast<int>(quanta.size()))
        key->setValue(name, quanta[static_cast<std::size_t>(index)]);
}

/** Switches the ultra low power state of all display adapters, of any vendor, off or on. */
void setUlps(bool apply)
{
    for (const QString &adapter : platform().openKey(WindowsKey::displayAdapters)->childGroups()) {
        // All six, also those that the adapter doesn't have: the driver reads what it needs.
        for (const QString &instance : {u"0000"_s, u"0001"_s, u"0002"_s, u"0003"_s, u"0004"_s, u"0005"_s}) {
            platform()
                .openKey(WindowsKey::displayAdapters + u'\\' + adapter + u'\\' + instance)
                ->setValue(u"EnableUlps"_s, apply ? 0 : 1);
        }
    }
}

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
        setPlatformClock(isApply, winName);
        break;
    case 7:
        if (isWindows11(winName))
            setDynamicTick(isApply);
        break;
    case 10:
        setTcpAcknowledgement(isApply);
        break;
    case 11:
        setQuantum(isApply, win32PrioritySeparationIndex);
        break;
    case 14:
        setUlps(isApply);
        break;
    default:
        break;
    }
    if (needsReboot(&WorkThread::TweakGaming, id, *this))
        needReboot = 1;
}
