// SPDX-License-Identifier: GPL-3.0-or-later
// What of a PC's registry the program reads or writes.

#pragma once

#include <QList>
#include <QStringList>

/** How much of a key is taken. */
enum class Reach {
    Named,          ///< some of its own values
    Own,            ///< all of its own values
    Tree,           ///< all of it
    NamedOfSubkeys, ///< some values of each direct subkey
};

struct CaptureKey
{
    QString path;
    Reach reach = Reach::Named;
    QStringList values{}; ///< of the named reaches
};

inline const QString capturedServices = QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services");
inline const QString capturedInterfaces =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces");
inline const QString capturedAdapters = QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Video");
inline const QString capturedSettings = QStringLiteral("HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale");
/** Packages of the user, and those from which they come back. */
inline const QString capturedUserPackages = QStringLiteral(
    "HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\"
    "AppModel\\Repository\\Packages");
inline const QString capturedMachinePackages = QStringLiteral(
    "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Appx\\AppxAllUserStore\\Applications");

/** The keys of programs that start at logon, whose values are commands. */
QStringList capturedRunKeys();
/** All keys but those of network interfaces and display adapters, which go by rules of their own. */
QList<CaptureKey> captureKeys();
