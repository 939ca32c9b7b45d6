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

/** What Windows keeps of packaged applications for the user. */
inline const QString appModel = QStringLiteral(
    "HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\AppModel");
/** A subkey for each package that the user has, by its full name. */
inline const QString userPackages = appModel + QStringLiteral("\\Repository\\Packages");
/** A subkey for each package that is there for all users. */
inline const QString machinePackages = QStringLiteral(
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Appx\\AppxAllUserStore\\Applications");
/** Below it lie the tasks of packages, some of which start at logon. */
inline const QString packagedTasks = appModel + QStringLiteral("\\SystemAppData");
inline const QString terminalTask =
    packagedTasks + QStringLiteral("\\Microsoft.WindowsTerminal_8wekyb3d8bbwe\\StartTerminalOnLoginTask");
inline const QString xboxTask =
    packagedTasks + QStringLiteral("\\Microsoft.GamingApp_8wekyb3d8bbwe\\Xbox.App.Tasks.FullTrustComponent");

/** The commands of programs that start at logon: the user's, the machine's, and the machine's of 32 bits. */
inline const QString userRun = QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");
inline const QString machineRun =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
inline const QString machineRun32 =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Run");
inline const QStringList runKeys{userRun, machineRun, machineRun32};

} // namespace WindowsKey
