// SPDX-License-Identifier: GPL-3.0-or-later
// The tweaks of the Windows group.

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "tweakcatalogue.h"
#include "tweakvalues.h"
#include "work/command.h"
#include "work/interruption.h"
#include "work/windowsname.h"
#include "work/workthread.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// 380000 is decimal, though the system's own value has these digits as a hexadecimal number. AutoEndTasks gets the same
// text as the time-outs beside it.
// clang-format off
constexpr auto control = "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control"_L1;
constexpr auto delivery = "HKEY_USERS\\S-1-5-20\\Software\\Microsoft\\Windows\\CurrentVersion\\DeliveryOptimization\\Settings"_L1;
constexpr auto desktop = "HKEY_CURRENT_USER\\Control Panel\\Desktop"_L1;
constexpr TweakValue values[] = {
    {1, control, "SvcHostSplitThresholdInKB"_L1, 251658240, 380000},
    {2, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Configuration Manager"_L1, "EnablePeriodicBackup"_L1, 0, 1},
    {3, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\Windows Search"_L1, "PreventUsingAdvancedIndexingOptions"_L1, 1, 0},
    {4, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\FileHistory"_L1, "Disabled"_L1, 1, 0},
    {4, "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"_L1, "Start_TrackDocs"_L1, 0, 1},
    {6, delivery, "DownloadMode"_L1, 0, 1},
    {6, delivery, "DownloadModeProvider"_L1, 8, Deleted()},
    {8, desktop, "MenuShowDelay"_L1, "0"_L1, "400"_L1},
    {8, desktop, "AutoEndTasks"_L1, "3000"_L1, Deleted()},
    {8, desktop, "HungAppTimeout"_L1, "3000"_L1, Deleted()},
    {8, desktop, "WaitToKillAppTimeout"_L1, "5000"_L1, Deleted()},
    {8, desktop, "LowLevelHooksTimeout"_L1, "3000"_L1, Deleted()},
    {8, control, "WaitToKillServiceTimeout"_L1, "3000"_L1, "5000"_L1},
    {9, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\Personalization"_L1, "NoLockScreen"_L1, 1, Deleted()},
};
// clang-format on

/** Brings the context menu of Windows 10 back, or the new one. */
void setClassicMenu(bool apply)
{
    const QString menu = u"{86ca1aa0-34aa-4e8b-a509-50c905bae2a2}"_s;
    const auto key =
        platform().openKey(u"HKEY_CURRENT_USER\\Software\\Classes\\CLSID\\"_s + menu + u"\\InprocServer32"_s);
    // Taking it back looks for the name below the key instead of above it: the key and its empty value stay.
    if (apply)
        key->setValue(u"Default"_s, u""_s);
    else
        key->remove(menu);
}

/** The program of the search, which is renamed to keep it from starting. */
struct SearchProgram
{
    QLatin1StringView generation; ///< in the name of Windows
    QLatin1StringView file;       ///< below the Windows folder
    QLatin1StringView disabledFile;
    QLatin1StringView process;
};

// clang-format off
constexpr SearchProgram searchPrograms[] = {
    {"11"_L1, "\\SystemApps\\MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost.exe"_L1,
     "\\SystemApps\\MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost_disable.exe"_L1, "SearchHost.exe"_L1},
    {"10"_L1, "\\SystemApps\\Microsoft.Windows.Search_cw5n1h2txyewy\\SearchApp.exe"_L1,
     "\\SystemApps\\Microsoft.Windows.Search_cw5n1h2txyewy\\SearchApp_disable.exe"_L1,     "SearchApp.exe"_L1},
};
// clang-format on

QString hostFile(const char *folderVariable, QLatin1StringView file)
{
    return platform().hostPath(qEnvironmentVariable(folderVariable) + file);
}

void disable(const SearchProgram &program)
{
    if (!QFile::exists(hostFile("WinDir", program.file)))
        return;
    // A copy that was disabled earlier; an update has put a new program beside it.
    if (const QString former = hostFile("WinDir", program.disabledFile); QFile::exists(former))
        platform().removeFile(former);
    const QString file = qEnvironmentVariable("windir") + program.file;
    const QString user = qEnvironmentVariable("USERDOMAIN") + u'\\' + qEnvironmentVariable("USERNAME");
    // The rights first: the rename must come right after the kill, since the system starts the program anew.
    runTool(u"takeown"_s, {u"/f"_s, file});
    runTool(u"icacls"_s, {file, u"/grant:r"_s, user + u":F"_s, u"/L"_s});
    runTool(u"taskkill"_s, {u"/im"_s, program.process, u"/f"_s, u"/t"_s});
    platform().renameFile(hostFile("windir", program.file), hostFile("windir", program.disabledFile));
}

void enable(const SearchProgram &program)
{
    if (!QFile::exists(hostFile("WinDir", program.disabledFile)))
        return;
    platform().renameFile(hostFile("windir", program.disabledFile), hostFile("windir", program.file));
    // The owner stays who it is.
    runTool(u"icacls"_s, {qEnvironmentVariable("windir") + program.file, u"/reset"_s});
}

/** Takes the search program out of action by renaming it, or brings it back. */
void setSearch(bool apply, const QString &winName)
{
    const auto program =
        std::find_if(std::begin(searchPrograms), std::end(searchPrograms),
                     [&winName](const SearchProgram &each) { return winName.contains(each.generation); });
    if (program != std::end(searchPrograms))
        apply ? disable(*program) : enable(*program);
}

const QString cloudBackupPrefix = u"CloudBackupRestoreSvc_"_s;

/**
 * The user's own instance of the cloud backup service, with the name of the last of its values after it unless that is
 * Type; "null" where there is none.
 */
QString findCloudBackupService()
{
    QString name = u"null"_s;
    const QStringList paths = platform().openKey(WindowsKey::services)->allKeys();
    if (paths.size() < 2)
        return name;
    for (const QString &path : paths) {
        if (path.startsWith(cloudBackupPrefix, Qt::CaseInsensitive))
            name = QString(path).remove(u"/Type"_s);
        // The list is sorted: the service can't follow any more.
        if (path.startsWith(u'D', Qt::CaseInsensitive))
            break;
    }
    return name;
}

void changeCloudTask(const QString &name, bool apply)
{
    runTool(u"schtasks"_s, {u"/CHANGE"_s, u"/TN"_s, u"\\Microsoft\\Windows\\CloudRestore\\"_s + name,
                            apply ? u"/DISABLE"_s : u"/ENABLE"_s});
}

/** Disables the service and its scheduled tasks, or enables them. A name that isn't the service's does nothing. */
void setCloudBackup(bool apply, const QString &service)
{
    if (!service.startsWith(cloudBackupPrefix))
        return;
    platform()
        .openKey(WindowsKey::services + u'\\' + service)
        ->setValue(u"Start"_s, apply ? StartDisabled : StartOnDemand);
    changeCloudTask(u"Backup"_s, apply);
    pauseFor(350);
    changeCloudTask(u"Restore"_s, apply);
}

} // namespace

std::span<const TweakValue> windowsValues()
{
    return values;
}

void WorkThread::TweakWindows(quint8 apply, quint32 id)
{
    const bool isApply = apply == 1;
    writeTweakValues(values, id, isApply);
    writeTweakValues(telemetryValues(), id, isApply);
    switch (id) {
    case 5:
        if (isWindows11(winName))
            setClassicMenu(isApply);
        break;
    case 10:
        setSearch(isApply, winName);
        break;
    default:
        break;
    }
    // Looked for on every call, whatever its id, since the service's name changes from one logon to the next.
    const QString cloudBackup = findCloudBackupService();
    if (id == 12)
        setCloudBackup(isApply, cloudBackup);
    if (needsReboot(&WorkThread::TweakWindows, id, *this))
        needReboot = 1;
}
