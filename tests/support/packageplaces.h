// SPDX-License-Identifier: GPL-3.0-or-later
// Where Windows keeps packaged applications and what starts at logon.

#pragma once

#include "testmachine.h"

inline const QString repositoryKey = QStringLiteral(
    "HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\"
    "AppModel\\Repository\\Packages");
inline const QString packageRecordsKey = settingsKey + QStringLiteral("\\Packages");
inline const QString autorunRecordsKey = settingsKey + QStringLiteral("\\Autorun");

inline const QString userRunKey =
    QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run");
inline const QString machineRunKey =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run");
inline const QString machineRunKey32 =
    QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Run");
inline const QString terminalTaskKey = QStringLiteral(
    "HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\"
    "AppModel\\SystemAppData\\Microsoft.WindowsTerminal_8wekyb3d8bbwe\\StartTerminalOnLoginTask");
inline const QString xboxTaskKey = QStringLiteral(
    "HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\"
    "AppModel\\SystemAppData\\Microsoft.GamingApp_8wekyb3d8bbwe\\Xbox.App.Tasks.FullTrustComponent");

/** Installs a package, given by its full name; without a display name the value is missing. */
inline void addPackage(TestMachine &machine, const QString &fullName, const QVariant &displayName = {})
{
    const QString key = repositoryKey + u'\\' + fullName;
    if (displayName.isValid())
        machine.write(key, QStringLiteral("DisplayName"), displayName);
    else
        machine.machine().registry().make(key);
}

/** Installs packages of these family names, each in a version of its own. */
inline void addPackages(TestMachine &machine, const QStringList &familyNames)
{
    int version = 0;
    for (const QString &name : familyNames)
        addPackage(machine, name + QStringLiteral("_1.%1.0.0_x64__8wekyb3d8bbwe").arg(++version), name + u'*');
}

/** Puts PowerShell in its place and lets it change nothing and end with this code. */
inline void addPowerShell(TestMachine &machine, int exitCode = 0)
{
    machine.addFile(QStringLiteral("C:\\Windows\\System32\\WindowsPowerShell\\v1.0\\powershell.exe"));
    ToolFault fault;
    fault.exitCode = exitCode;
    machine.machine().setFault(QStringLiteral("powershell"), fault);
}

/** A small machine whose PowerShell succeeds and changes nothing. */
class PowerShellMachine : public TestMachine
{
public:
    PowerShellMachine() { addPowerShell(*this); }
};
