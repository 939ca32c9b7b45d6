// SPDX-License-Identifier: GPL-3.0-or-later

#include "tweakprobes.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace {

/** What stands in the place of every value before a test. */
const QString untouched = u"untouched"_s;

/** Values of all tweaks that leave one. Both generations of Windows, but for chkGaming5. */
QList<ValueProbe> valueProbes()
{
    const QString control = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control"_s;
    const QString session = control + u"\\Session Manager"_s;
    const QString memory = session + u"\\Memory Management"_s;
    const QString policies = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows"_s;
    const QString gameBar = u"HKEY_CURRENT_USER\\Software\\Microsoft\\GameBar"_s;
    const QString classId = u"{86ca1aa0-34aa-4e8b-a509-50c905bae2a2}"_s;
    const QString menuServer = u"HKEY_CURRENT_USER\\Software\\Classes\\CLSID\\"_s + classId + u"\\InprocServer32"_s;
    const QString profile =
        u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\Multimedia\\SystemProfile"_s;
    const QString network = servicesKey + u"\\Tcpip\\Parameters\\Interfaces\\{7d1d4f5c-0d3d-4a4f-9a3c-1f0c7d9b3e21}"_s;
    const QString adapter = control + u"\\Video\\{3F2A9C14-6B7E-11EE-8C99-0242AC120002}\\0000"_s;
    const QVariant gone;
    // clang-format off
    return {
        {u"chkSsd1"_s,      control + u"\\FileSystem"_s,                          u"DisableWriteCacheFlush"_s,              1,         0},
        {u"chkSsd2"_s,      u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Dfrg"_s,   u"Enable"_s,                              0,         1},
        {u"chkSsd3"_s,      control + u"\\Filesystem"_s,                          u"NtfsDisableLastAccessUpdate"_s,         1,         0},
        {u"chkSsd4"_s,      memory + u"\\PrefetchParameters"_s,                   u"EnablePrefetcher"_s,                    0,         3},
        {u"chkSsd5"_s,      memory,                                               u"ClearPageFileAtShutdown"_s,             0,         1},
        {u"chkSsd6"_s,      session + u"\\Power"_s,                               u"HiberbootEnabled"_s,                    0,         1},
        {u"chkSsd9"_s,      memory,                                               u"IoPageLockLimit"_s,                     10000000,  gone},
        {u"chkGaming1"_s,   profile + u"\\Tasks\\Games"_s,                        u"Priority"_s,                            6,         3},
        {u"chkGaming2"_s,   control + u"\\Power"_s,                               u"PowerThrottlingOff"_s,                  1,         0},
        {u"chkGaming3"_s,   gameBar,                                              u"AllowAutoGameMode"_s,                   1,         0},
        {u"chkGaming4"_s,   policies + u"\\GameDVR"_s,                            u"AllowgameDVR"_s,                        0,         1},
        {u"chkGaming6"_s,   gameBar,                                              u"UseNexusForGameBarEnabled"_s,           0,         1},
        {u"chkGaming8"_s,   u"HKEY_CURRENT_USER\\Software\\Microsoft\\DirectX\\UserGpuPreferences"_s, u"DirectXUserGlobalSettings"_s,
                            u"AutoHDREnable=1;SwapEffectUpgradeEnable=1;"_s,      u"AutoHDREnable=0;SwapEffectUpgradeEnable=1;"_s},
        {u"chkGaming9"_s,   u"HKEY_CURRENT_USER\\Control Panel\\Mouse"_s,         u"MouseSpeed"_s,                          u"0"_s,    u"1"_s},
        {u"chkGaming10"_s,  network,                                              u"TcpAckFrequency"_s,                     1,         gone},
        {u"chkGaming11"_s,  control + u"\\PriorityControl"_s,                     u"Win32PrioritySeparation"_s,             38,        gone},
        {u"chkGaming12"_s,  u"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Microsoft\\Direct3D"_s, u"MaxPreRenderedFrames"_s, 1,        gone},
        {u"chkGaming13"_s,  u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\Dwm"_s, u"OverlayTestMode"_s,               5,         gone},
        {u"chkGaming14"_s,  adapter,                                              u"EnableUlps"_s,                          0,         1},
        {u"chkWindows1"_s,  control,                                              u"SvcHostSplitThresholdInKB"_s,           251658240, 380000},
        {u"chkWindows2"_s,  session + u"\\Configuration Manager"_s,               u"EnablePeriodicBackup"_s,                0,         1},
        {u"chkWindows3"_s,  policies + u"\\Windows Search"_s,                     u"PreventUsingAdvancedIndexingOptions"_s, 1,         0},
        {u"chkWindows4"_s,  policies + u"\\FileHistory"_s,                        u"Disabled"_s,                            1,         0},
        {u"chkWindows5"_s,  menuServer,                                           u"."_s,                                   QString(), untouched},
        {u"chkWindows5"_s,  menuServer,                                           classId,                                  untouched, gone},
        {u"chkWindows6"_s,  u"HKEY_USERS\\S-1-5-20\\Software\\Microsoft\\Windows\\CurrentVersion\\DeliveryOptimization\\Settings"_s,
                                                                                  u"DownloadMode"_s,                        0,         1},
        {u"chkWindows7"_s,  u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Policies\\Microsoft\\Windows\\AppCompat"_s,
                                                                                  u"DisablePCA"_s,                          1,         0},
        {u"chkWindows8"_s,  u"HKEY_CURRENT_USER\\Control Panel\\Desktop"_s,       u"MenuShowDelay"_s,                       u"0"_s,    u"400"_s},
        {u"chkWindows9"_s,  policies + u"\\Personalization"_s,                    u"NoLockScreen"_s,                        1,         gone},
        {u"chkWindows12"_s, servicesKey + u"\\CloudBackupRestoreSvc_5cbba"_s,     u"Start"_s,                               4,         3},
    };
    // clang-format on
}

QString searchProgram(bool windows11)
{
    return windows11 ? u"C:\\Windows\\SystemApps\\MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost.exe"_s
                     : u"C:\\Windows\\SystemApps\\Microsoft.Windows.Search_cw5n1h2txyewy\\SearchApp.exe"_s;
}

/** Commands of the tweaks that leave no value; on Windows 10 chkGaming7 does nothing. */
QList<CommandProbe> commandProbes(bool windows11)
{
    const QString search = searchProgram(windows11);
    QList<CommandProbe> probes{
        {u"chkSsd7"_s, u"powercfg -h OFF"_s, u"powercfg -h ON"_s},
        {u"chkWindows10"_s, u"takeown /f "_s + search, u"icacls "_s + search + u" /reset"_s},
    };
    if (windows11) {
        probes.append(
            {u"chkGaming5"_s, u"bcdedit /set useplatformclock False"_s, u"bcdedit /set useplatformclock True"_s});
        probes.append(
            {u"chkGaming7"_s, u"bcdedit /set disabledynamictick Yes"_s, u"bcdedit /set disabledynamictick No"_s});
    }
    return probes;
}

QString told(const QString &box, bool applied, bool reset)
{
    return box + (applied ? u" on"_s : reset ? u" off"_s : u" with another value"_s);
}

} // namespace

TweakProbes::TweakProbes(TestMachine &machine, bool windows11)
    : machine_(machine)
    , values_(valueProbes())
    , commands_(commandProbes(windows11))
{
    // A boot option on Windows 11, a value elsewhere.
    if (!windows11)
        values_.append({u"chkGaming5"_s, servicesKey + u"\\Hpet"_s, u"Start"_s, 4, 2});
    machine.machine().setWmiInstances(u"Win32_ComputerSystem"_s, {{{u"TotalPhysicalMemory"_s, u"17179869184"_s}}});
    const QString program = searchProgram(windows11);
    machine.addFile(program);
    machine.addFile(QString(program).replace(u".exe"_s, u"_disable.exe"_s));
    lay();
}

void TweakProbes::lay()
{
    for (const ValueProbe &probe : std::as_const(values_)) {
        // Past the platform, which may refuse it; the store has the unnamed value without a name.
        machine_.write(probe.key, probe.name == "."_L1 ? QString() : probe.name, untouched);
        if (probe.box == "chkGaming10"_L1)
            machine_.write(probe.key, u"DhcpIPAddress"_s, u"192.168.1.20"_s);
        if (probe.box == "chkWindows12"_L1)
            machine_.write(probe.key, u"Type"_s, 224);
    }
    seenCommands_ = machine_.commands().size();
}

QStringList TweakProbes::ran() const
{
    QSet<QString> found;
    for (const ValueProbe &probe : values_) {
        const QVariant value = machine_.read(probe.key, probe.name);
        if (value != QVariant(untouched))
            found.insert(told(probe.box, value == probe.applied, value == probe.reset));
    }
    for (const LoggedCommand &command : machine_.commands().mid(seenCommands_)) {
        const QString line = command.program + u' ' + command.arguments.join(u' ');
        for (const CommandProbe &probe : commands_) {
            if (line == probe.applied || line == probe.reset)
                found.insert(told(probe.box, line == probe.applied, true));
        }
    }
    QStringList names = found.values();
    names.sort();
    return names;
}
