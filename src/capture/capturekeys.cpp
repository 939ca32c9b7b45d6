// SPDX-License-Identifier: GPL-3.0-or-later

#include "capturesteps.h"

#include "machine/registrystore.h"
#include "platform/windowsfacts.h"
#include "work/settings.h"
#include "work/tweaks/tweakvalues.h"

#include <QHash>
#include <QMap>

using namespace Qt::StringLiterals;

namespace {

const QString userCurrentVersion = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion"_s;

/** The keys beside those of the tables of tweaks. */
QList<CaptureKey> keysOfRoutines()
{
    // clang-format off
    return {
        {programKey, Reach::Tree},
        // Which Windows this is, and on which hardware.
        {WindowsKey::currentVersion, Reach::Named,
         {u"ProductName"_s, u"CurrentBuild"_s, u"CompositionEditionID"_s, u"DisplayVersion"_s}},
        {WindowsKey::hardware + u"\\BIOS"_s, Reach::Named,
         {u"BaseBoardManufacturer"_s, u"BaseBoardProduct"_s, u"BIOSVersion"_s, u"BIOSReleaseDate"_s}},
        {WindowsKey::hardware + u"\\CentralProcessor\\0"_s, Reach::Named, {u"ProcessorNameString"_s, u"~MHz"_s}},
        {WindowsKey::radeonSoftware, Reach::Named,
         {u"InstallDir"_s, u"RadeonSoftwareVersion"_s}},
        // What the list of services shows, and what sc goes by.
        {WindowsKey::services, Reach::NamedOfSubkeys,
         {u"Type"_s, u"Start"_s, u"ErrorControl"_s, u"DisplayName"_s, u"Description"_s, u"DependOnService"_s,
          u"DelayedAutostart"_s}},
        {WindowsKey::userPackages, Reach::NamedOfSubkeys, {u"DisplayName"_s, u"PackageID"_s, u"PackageRootFolder"_s}},
        {WindowsKey::machinePackages, Reach::NamedOfSubkeys, {u"DisplayName"_s, u"Path"_s}}, // after the user's
        {userCurrentVersion + u"\\Uninstall\\OneDriveSetup.exe"_s, Reach::Tree},
        {userCurrentVersion + u"\\Explorer\\StartupApproved\\Run"_s, Reach::Named, {u"OneDrive"_s}},
        {WindowsKey::terminalTask, Reach::Named, {u"State"_s}},
        {WindowsKey::xboxTask, Reach::Named, {u"State"_s}},
        // What tweaks write that are more than values.
        {WindowsKey::control + u"\\Power"_s, Reach::Named, {u"HibernateEnabled"_s}},
        {WindowsKey::priorityControl, Reach::Named, {u"Win32PrioritySeparation"_s}},
        {WindowsKey::memoryManagement, Reach::Named, {u"IoPageLockLimit"_s}},
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

QList<CaptureKey> captureKeys()
{
    QList<CaptureKey> keys = keysOfRoutines() + keysOfTweaks();
    for (const QString &path : WindowsKey::runKeys)
        keys.append({path, Reach::Own});
    return keys;
}

CapturedPlace capturedPlace(const QString &path)
{
    static const QHash<QString, CapturedPlace> places = [] {
        QHash<QString, CapturedPlace> made;
        for (const QString &key : {WindowsKey::networkInterfaces, WindowsKey::displayAdapters})
            made.insert(foldName(key), {key});
        for (const CaptureKey &key : captureKeys())
            made.insert(foldName(key.path), {key.path, key.values});
        return made;
    }();

    for (qsizetype end = path.size(); end > 0; end = path.lastIndexOf(u'\\', end - 1)) {
        const auto place = places.constFind(foldName(path.first(end)));
        if (place != places.constEnd())
            return *place;
    }
    return {};
}
