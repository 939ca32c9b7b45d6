// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/processground.h"

#include "processtoken.h"
#include "systemfolders.h"
#include "systemobjects.h"

#include <QDir>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

/** Taken before the process leaves it. */
QString startFolder;

/** In the process and for what it starts; without a value it is gone. */
void setVariable(const QString &name, const QString &value)
{
    _wputenv_s(wide(name), wide(value));
}

/** A text of the machine's own registry, with its variables replaced; @p otherwise where there is none. */
QString machineText(const wchar_t *key, const wchar_t *name, const QString &otherwise = {})
{
    wchar_t text[32767]; // as long as a variable can be
    DWORD size = sizeof(text);
    if (RegGetValueW(HKEY_LOCAL_MACHINE, key, name, RRF_RT_REG_SZ | RRF_SUBKEY_WOW6464KEY, nullptr, text, &size)
        != ERROR_SUCCESS)
        return otherwise;
    return QString::fromWCharArray(text);
}

void setSystemVariables()
{
    constexpr auto folders = L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
    constexpr auto environment = L"SYSTEM\\CurrentControlSet\\Control\\Session Manager\\Environment";
    const QString windows = windowsFolder();
    const QString system = systemFolder();
    setVariable(u"SystemRoot"_s, windows);
    setVariable(u"windir"_s, windows);
    setVariable(u"SystemDrive"_s, windows.first(2));
    setVariable(u"ComSpec"_s, system + u"\\cmd.exe"_s);
    setVariable(u"PATH"_s, QStringList{system, windows, system + u"\\Wbem"_s, powerShellFolder()}.join(u';'));
    setVariable(u"ProgramFiles"_s, machineText(folders, L"ProgramFilesDir"));
    setVariable(u"ProgramFiles(x86)"_s, machineText(folders, L"ProgramFilesDir (x86)"));
    // These two refer to the ones above.
    setVariable(u"PATHEXT"_s, machineText(environment, L"PATHEXT", u".COM;.EXE;.BAT;.CMD"_s));
    setVariable(u"PSModulePath"_s, machineText(environment, L"PSModulePath", powerShellFolder() + u"\\Modules"_s));
}

void setUserVariables()
{
    // icacls gives a file of the system to whom they name.
    const Account user = userOfProcess();
    setVariable(u"USERNAME"_s, user.name);
    setVariable(u"USERDOMAIN"_s, user.domain);
}

/** What makes Qt, or the .NET runtime in PowerShell, load a library that it names. */
bool namesForeignCode(const QString &variable)
{
    // clang-format off
    constexpr QLatin1StringView names[] = {
        "QT_PLUGIN_PATH"_L1, "QT_QPA_PLATFORM_PLUGIN_PATH"_L1, "QT_QPA_GENERIC_PLUGINS"_L1, "QT_LOGGING_CONF"_L1,
    };
    constexpr QLatin1StringView beginnings[] = {"COMPLUS_"_L1, "COR_"_L1, "CORECLR_"_L1, "DOTNET_"_L1};
    // clang-format on
    return std::any_of(std::begin(names), std::end(names),
                       [&](QLatin1StringView name) { return variable.compare(name, Qt::CaseInsensitive) == 0; })
           || std::any_of(std::begin(beginnings), std::end(beginnings), [&](QLatin1StringView beginning) {
                  return variable.startsWith(beginning, Qt::CaseInsensitive);
              });
}

QStringList variableNames()
{
    QStringList names;
    wchar_t *const block = GetEnvironmentStringsW();
    for (const wchar_t *entry = block; entry != nullptr && *entry != 0; entry += wcslen(entry) + 1)
        names.append(QString::fromWCharArray(entry).section(u'=', 0, 0));
    FreeEnvironmentStringsW(block);
    return names;
}

void dropForeignCode()
{
    for (const QString &name : variableNames()) {
        if (namesForeignCode(name))
            setVariable(name, QString());
    }
    // A profile of the user's would be run before PowerShell does what it is started for.
    setVariable(u"PSExecutionPolicyPreference"_s, u"Restricted"_s);
}

} // namespace

void prepareProcess()
{
    if (!SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32))
        qFatal("the folder of DLLs can't be set");
    startFolder = QDir::currentPath();
    if (!SetCurrentDirectoryW(wide(systemFolder())))
        qFatal("the system's folder can't be entered");
    if (!isElevatedProcess())
        return;
    dropForeignCode();
    setSystemVariables();
    setUserVariables();
}

QString absolutePath(const QString &path)
{
    // "C:name" means the current folder of that drive, which Windows keeps of each drive but the one that was left.
    const bool ofDrive =
        path.size() > 1 && path.at(1) == u':' && (path.size() == 2 || (path.at(2) != u'\\' && path.at(2) != u'/'));
    if (!ofDrive)
        return QDir(startFolder).absoluteFilePath(path);
    const bool onStartDrive = startFolder.startsWith(path.first(2), Qt::CaseInsensitive);
    return onStartDrive ? QDir(startFolder).absoluteFilePath(path.sliced(2)) : QFileInfo(path).absoluteFilePath();
}
