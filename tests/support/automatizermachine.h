// SPDX-License-Identifier: GPL-3.0-or-later
// A small machine on which every phase of the Automatizer has something to do.

#pragma once

#include "packageplaces.h"
#include "taskexport.h"
#include "work/settings.h"

#include "platform/taskdocument.h"

inline const QString controlKey = QStringLiteral("HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control");
inline const QString taskRecordsKey = settingsKey + QStringLiteral("\\Task");
inline const QString serviceRecordsKey = settingsKey + QStringLiteral("\\SVC");
inline const QString encoderConfig =
    QStringLiteral("C:\\Program Files (x86)\\RivaTuner Statistics Server\\Profiles\\config");

inline void addTask(TestMachine &machine, const QString &path, bool enabled = true)
{
    // The listing leaves its export in this folder.
    machine.addFile(QStringLiteral("C:\\Users\\Test\\AppData\\Local\\Temp\\some.txt"));
    ExportedTask task{.uri = path};
    if (!enabled)
        task.settings = QStringLiteral("    <Enabled>false</Enabled>\r\n");
    machine.machine().setTask({path, taskElement(task).remove(u'\r')});
}

/** Installs a package for this user and for all, so that it can come back. */
inline void installPackage(TestMachine &machine, const QString &name)
{
    const QString fullName = name + QStringLiteral("_1.0.0.0_x64__8wekyb3d8bbwe");
    const QString place = QStringLiteral("C:\\Program Files\\WindowsApps\\") + fullName;
    const QString key = repositoryKey + u'\\' + fullName;
    addPackage(machine, fullName, name);
    machine.write(key, QStringLiteral("PackageID"), fullName);
    machine.write(key, QStringLiteral("PackageRootFolder"), place);
    machine.write(QStringLiteral("HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Appx\\"
                                 "AppxAllUserStore\\Applications\\")
                      + fullName,
                  QStringLiteral("Path"), QString(place + QStringLiteral("\\AppxManifest.xml")));
}

inline void fillServices(TestMachine &machine)
{
    for (const char *name : {"FontCache", "PcaSvc", "Spooler", "BthAvctpSvc", "LanmanServer", "XblAuthManager",
                             "SSDPSRV", "RasMan", "SEMgrSvc", "Useful"})
        machine.add({.name = QString::fromLatin1(name), .start = 2, .running = true});
    machine.add({.name = QStringLiteral("WerSvc"), .start = 2});                  // stopped
    machine.add({.name = QStringLiteral("lfsvc"), .start = 4, .running = true});  // disabled, and still runs
    machine.add({.name = QStringLiteral("StiSvc"), .start = 2, .running = true}); // needn't start by itself
    machine.add({.name = QStringLiteral("Wcmsvc"), .start = 2, .running = true});
}

inline void fillTasks(TestMachine &machine)
{
    for (const char *path :
         {"\\OneDrive Standalone Update Task-S-1-5-21", "\\Microsoft\\Windows\\Autochk\\Proxy",
          "\\Microsoft\\Windows\\Printing\\EduPrintProv", "\\Microsoft\\Windows\\Printing\\PrinterCleanupTask",
          "\\Microsoft\\Windows\\Ras\\MobilityManager", "\\Vendor\\Useful"})
        addTask(machine, QString::fromLatin1(path));
    addTask(machine, QStringLiteral("\\Microsoft\\Windows\\Printing\\PrintJobCleanupTask"), false);
}

inline void fillPackages(TestMachine &machine)
{
    machine.addFile(QStringLiteral("C:\\Windows\\System32\\WindowsPowerShell\\v1.0\\powershell.exe"));
    for (const char *name : {"Microsoft.BingNews", "Microsoft.XboxGamingOverlay", "Microsoft.GamingApp",
                             "Microsoft.AV1VideoExtension", "Vendor.Useful"})
        installPackage(machine, QString::fromLatin1(name));
}

inline void fillAutoruns(TestMachine &machine)
{
    machine.addFile(QStringLiteral("C:\\Tools\\a.exe"));
    machine.write(userRunKey, QStringLiteral("Quoted"), QStringLiteral("\"C:\\Tools\\a.exe\" -x"));
    machine.write(userRunKey, QStringLiteral("Unquoted"), QStringLiteral("C:\\Tools\\a.exe -x"));
    machine.write(userRunKey, QStringLiteral("Gone"), QStringLiteral("\"C:\\Tools\\gone.exe\""));
    machine.write(machineRunKey, QStringLiteral("WithEquals"), QStringLiteral("\"C:\\Tools\\a.exe\" --mode=tray"));
    machine.write(terminalTaskKey, QStringLiteral("State"), 2);
}

inline void fillEncoder(TestMachine &machine)
{
    machine.addFile(encoderConfig, "[RTSS]\r\nEnableEncoderServer=1\r\n");
    machine.machine().setProcesses(
        {QStringLiteral("System"), QStringLiteral("EncoderServer.exe"), QStringLiteral("RTSS.exe")});
}

inline void fillAutomatizerMachine(TestMachine &machine)
{
    machine.write(controlKey, QStringLiteral("WaitToKillServiceTimeout"), QStringLiteral("5000"));
    fillServices(machine);
    fillTasks(machine);
    fillPackages(machine);
    fillAutoruns(machine);
    fillEncoder(machine);
}

/**
 * What of that an Optimize has taken away, and what holds no record of it: nothing brings that back.
 * @param machine the same one, or another view of its folder
 */
inline QStringList unaccounted(Machine &machine)
{
    QStringList missing;
    const auto services = platform().openKey(servicesKey);
    for (const QString &service : {QStringLiteral("FontCache"), QStringLiteral("PcaSvc")}) {
        const bool changed = services->value(service + QStringLiteral("/Start")).toInt() != 2
                             || machine.isRunning(service) != std::optional(true);
        if (changed && !recordedNames(QStringLiteral("SVC")).contains(service))
            missing.append(service);
    }
    for (const QString &path : {QStringLiteral("Microsoft\\Windows\\Autochk\\Proxy"),
                                QStringLiteral("OneDrive Standalone Update Task-S-1-5-21")}) {
        if (!taskFacts(machine.task(u'\\' + path)->document).enabled
            && !recordedNames(QStringLiteral("Task")).contains(path))
            missing.append(path);
    }
    const QString package = QStringLiteral("Microsoft.BingNews");
    if (!machine.registry().find(repositoryKey + u'\\' + package + QStringLiteral("_1.0.0.0_x64__8wekyb3d8bbwe"))
        && !recordedNames(QStringLiteral("Packages")).contains(package))
        missing.append(package);
    const QStringList autoruns = recordedNames(QStringLiteral("Autorun"));
    const auto run = platform().openKey(userRunKey);
    for (const QString &name : {QStringLiteral("Gone"), QStringLiteral("Quoted"), QStringLiteral("Unquoted")}) {
        if (!run->contains(name) && !autoruns.contains(name))
            missing.append(name);
    }
    const bool terminalStarts = platform().openKey(terminalTaskKey)->value(QStringLiteral("State")).toInt() == 2;
    if (!terminalStarts && !autoruns.contains(QStringLiteral("StartTerminalOnLoginTask")))
        missing.append(QStringLiteral("Terminal"));
    return missing;
}

class AutomatizerMachine : public TestMachine
{
public:
    AutomatizerMachine() { fillAutomatizerMachine(*this); }
};
