// SPDX-License-Identifier: GPL-3.0-or-later
// What more than one part of the program knows about Windows: the numbers that it uses, and the places of its registry.

#pragma once

#include <QString>
#include <QStringList>

/** How a service starts, as its value Start has it. */
enum StartMode : int { StartAtBoot = 0, StartBySystem = 1, StartAutomatic = 2, StartOnDemand = 3, StartDisabled = 4 };

/** The bits of a file's attribute word. */
enum AttributeBit : quint32 {
    AttributeReadOnly = 0x1,
    AttributeHidden = 0x2,
    AttributeSystem = 0x4,
    AttributeFolder = 0x10,
    AttributeArchive = 0x20,
    AttributeNotIndexed = 0x2000,
};

/** Keys of the registry by their full paths, hive name first. */
namespace WindowsKey {

inline const QString control = QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control");
inline const QString memoryManagement = control + QStringLiteral("\\Session Manager\\Memory Management");
inline const QString priorityControl = control + QStringLiteral("\\PriorityControl");
/** A subkey for each display adapter, which has one for each of its instances. */
inline const QString displayAdapters = control + QStringLiteral("\\Video");

/** A subkey for each service and driver. */
inline const QString services = QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services");
/** A subkey for each network interface. */
inline const QString networkInterfaces = services + QStringLiteral("\\Tcpip\\Parameters\\Interfaces");

/** Which Windows this is. */
inline const QString currentVersion =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion");
/** What the firmware tells of the machine. */
inline const QString hardware = QStringLiteral("HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System");
/** The software of one vendor's graphics cards. */
inline const QString radeonSoftware = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\ATI Technologies\\Install");

/** A subkey for each package of a user, by its full name; the part of the key that is the same for all users. */
inline const QString packagesPart = QStringLiteral("\\AppModel\\Repository\\Packages");
/** Likewise: below it lie the tasks of packages, some of which start at logon. */
inline const QString packagedTasksPart = QStringLiteral("\\AppModel\\SystemAppData");
inline const QString userClasses = QStringLiteral(
    "HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion");
inline const QString userPackages = userClasses + packagesPart;
inline const QString packagedTasks = userClasses + packagedTasksPart;
inline const QString terminalTask =
    packagedTasks + QStringLiteral("\\Microsoft.WindowsTerminal_8wekyb3d8bbwe\\StartTerminalOnLoginTask");
inline const QString xboxTask =
    packagedTasks + QStringLiteral("\\Microsoft.GamingApp_8wekyb3d8bbwe\\Xbox.App.Tasks.FullTrustComponent");
/** A subkey for each package that is there for all users. */
inline const QString machinePackages = QStringLiteral(
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Appx\\AppxAllUserStore\\Applications");

/** Commands of programs that start at logon; the part of the key that is the same for user and machine. */
inline const QString runPart = QStringLiteral("\\Microsoft\\Windows\\CurrentVersion\\Run");
inline const QString userRun = QStringLiteral("HKEY_CURRENT_USER\\Software") + runPart;
inline const QString machineRun = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE") + runPart;
inline const QString machineRun32 = QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node") + runPart;
inline const QStringList runKeys{userRun, machineRun, machineRun32};

/** How large the user wants texts. */
inline const QString userAccessibility = QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Accessibility");
/** Whether the user has a contrast theme on: bit 0 of the text "Flags". */
inline const QString userHighContrast = QStringLiteral("HKEY_CURRENT_USER\\Control Panel\\Accessibility\\HighContrast");

} // namespace WindowsKey

/** The name of a package, which its full name begins with. */
inline QString packageNameOf(const QString &fullName)
{
    return fullName.section(u'_', 0, 0);
}

/** The page of the Store on which a package can be had again, by its full name. */
inline QString storePageOf(const QString &fullName)
{
    return QStringLiteral("ms-windows-store://pdp/?PFN=%1_%2").arg(packageNameOf(fullName), fullName.section(u'_', -1));
}

/** OneDrive's installer is no package; this name stands for it among them. */
inline const QString oneDriveName = QStringLiteral("MS OneDrive");
