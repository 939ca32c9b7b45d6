// SPDX-License-Identifier: GPL-3.0-or-later

#include "capturekeys.h"

#include "machine/registrystore.h"
#include "work/tweaks/tweakvalues.h"

#include <QMap>

using namespace Qt::StringLiterals;

namespace {

const QString userCurrentVersion = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion"_s;
const QString appModel = u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\"
                         "CurrentVersion\\AppModel"_s;
const QString control = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control"_s;
const QString description = u"HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System"_s;

/** The keys beside those of the tables of tweaks. */
QList<CaptureKey> keysOfRoutines()
{
    // clang-format off
    return {
        {capturedSettings, Reach::Tree},
        // Which Windows this is, and on which hardware.
        {u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion"_s, Reach::Named,
         {u"ProductName"_s, u"CurrentBuild"_s, u"CompositionEditionID"_s, u"DisplayVersion"_s}},
        {description + u"\\BIOS"_s, Reach::Named,
         {u"BaseBoardManufacturer"_s, u"BaseBoardProduct"_s, u"BIOSVersion"_s, u"BIOSReleaseDate"_s}},
        {description + u"\\CentralProcessor\\0"_s, Reach::Named, {u"ProcessorNameString"_s, u"~MHz"_s}},
        {u"HKEY_LOCAL_MACHINE\\SOFTWARE\\ATI Technologies\\Install"_s, Reach::Named,
         {u"InstallDir"_s, u"RadeonSoftwareVersion"_s}},
        // What the list of services shows, and what sc goes by.
        {capturedServices, Reach::NamedOfSubkeys,
         {u"Type"_s, u"Start"_s, u"ErrorControl"_s, u"DisplayName"_s, u"Description"_s, u"DependOnService"_s,
          u"DelayedAutostart"_s}},
        {capturedUserPackages, Reach::NamedOfSubkeys, {u"DisplayName"_s, u"PackageID"_s, u"PackageRootFolder"_s}},
        {capturedMachinePackages, Reach::NamedOfSubkeys, {u"DisplayName"_s, u"Path"_s}}, // behind the user's
        {userCurrentVersion + u"\\Uninstall\\OneDriveSetup.exe"_s, Reach::Tree},
        {userCurrentVersion + u"\\Explorer\\StartupApproved\\Run"_s, Reach::Named, {u"OneDrive"_s}},
        {appModel + u"\\SystemAppData\\Microsoft.WindowsTerminal_8wekyb3d8bbwe\\StartTerminalOnLoginTask"_s,
         Reach::Named, {u"State"_s}},
        {appModel + u"\\SystemAppData\\Microsoft.GamingApp_8wekyb3d8bbwe\\Xbox.App.Tasks.FullTrustComponent"_s,
         Reach::Named, {u"State"_s}},
        // What tweaks write that are more than values.
        {control + u"\\Power"_s, Reach::Named, {u"HibernateEnabled"_s}},
        {control + u"\\PriorityControl"_s, Reach::Named, {u"Win32PrioritySeparation"_s}},
        {control + u"\\Session Manager\\Memory Management"_s, Reach::Named, {u"IoPageLockLimit"_s}},
        {u"HKEY_CURRENT_USER\\Software\\Classes\\CLSID\\{86ca1aa0-34aa-4e8b-a509-50c905bae2a2}"_s, Reach::Tree},
    };
    // clang-format on
}

/** The keys of the tables of tweaks, each once, whatever the spelling. */
QList<CaptureKey> keysOfTweaks()
{
    QMap<QString, CaptureKey> keys;
    for (const auto &rows : {ssdValues(), gamingValues(), windowsValues(), telemetryValues()}) {
        for (const TweakValue &row : rows) {
            CaptureKey &key = keys[foldName(row.key)];
            if (key.path.isEmpty())
                key.path = row.key;
            key.values.append(row.name);
        }
    }
    return keys.values();
}

} // namespace

QStringList capturedRunKeys()
{
    return {u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s,
            u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s,
            u"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Run"_s};
}

QList<CaptureKey> captureKeys()
{
    QList<CaptureKey> keys = keysOfRoutines() + keysOfTweaks();
    for (const QString &path : capturedRunKeys())
        keys.append({path, Reach::Own});
    return keys;
}
