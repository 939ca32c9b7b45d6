// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/processground.h"

#include "processtoken.h"
#include "systemfolders.h"
#include "systemobjects.h"

#include <QDir>
#include <QStringList>

#include <sddl.h>

#include <cstdio>
#include <vector>

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

const QString administratorsSid = u"S-1-5-32-544"_s;

LocalMemory sidFrom(const QString &text)
{
    PSID sid = nullptr;
    return LocalMemory(ConvertStringSidToSidW(wide(text), &sid) ? sid : nullptr);
}

/** By what decides about access: a token without rights may still come from an elevated one. */
bool hasAdministratorsRights()
{
    const LocalMemory administrators = sidFrom(administratorsSid);
    BOOL isMember = TRUE;
    return !administrators || !CheckTokenMembership(nullptr, administrators.get(), &isMember) || isMember;
}

/**
 * What the process makes belongs to its user then, who may open it, too. Where Windows refuses, it makes what only
 * administrators may open, and says so when it needs it: nothing less safe than the user's own.
 */
void setOwnerAndRights(HANDLE token)
{
    const QString user = sidOfUser();
    const LocalMemory sid = sidFrom(user);
    TOKEN_OWNER owner{sid.get()};
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    const QString rights = u"D:(A;;GA;;;SY)(A;;GA;;;%1)"_s.arg(user);
    if (!sid
        || !ConvertStringSecurityDescriptorToSecurityDescriptorW(wide(rights), SDDL_REVISION_1, &descriptor, nullptr))
        return;
    const LocalMemory memory(descriptor);
    BOOL isPresent = FALSE;
    BOOL isDefault = FALSE;
    TOKEN_DEFAULT_DACL list{};
    if (GetSecurityDescriptorDacl(descriptor, &isPresent, &list.DefaultDacl, &isDefault) && isPresent)
        SetTokenInformation(token, TokenDefaultDacl, &list, sizeof(list));
    SetTokenInformation(token, TokenOwner, &owner, sizeof(owner));
}

/** As high as programs are that nobody has confirmed. */
bool setMediumIntegrity(HANDLE token)
{
    const LocalMemory sid = sidFrom(u"S-1-16-8192"_s);
    TOKEN_MANDATORY_LABEL label{{sid.get(), SE_GROUP_INTEGRITY}};
    return sid
           && SetTokenInformation(token, TokenIntegrityLevel, &label,
                                  static_cast<DWORD>(sizeof(label)) + GetLengthSid(sid.get()));
}

/** That of the user without the administrators' group and their privileges; null where Windows gives none. */
Handle tokenWithoutRights()
{
    HANDLE full = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_ALL_ACCESS, &full))
        return nullptr;
    const Handle owned(full);
    const LocalMemory administrators = sidFrom(administratorsSid);
    SID_AND_ATTRIBUTES disabled{administrators.get(), 0};
    HANDLE token = nullptr;
    if (!administrators
        || !CreateRestrictedToken(full, LUA_TOKEN | DISABLE_MAX_PRIVILEGE, 1, &disabled, 0, nullptr, 0, nullptr,
                                  &token))
        return nullptr;
    Handle restricted(token);
    setOwnerAndRights(token);
    return setMediumIntegrity(token) ? std::move(restricted) : nullptr;
}

/** Ends what is in it when this process ends, however it does. */
Handle jobOfThisProcess()
{
    Handle job(CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    if (job && SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof(limits)))
        return job;
    return nullptr;
}

/** Null where Windows doesn't start it. */
Handle startAgain(HANDLE token, HANDLE job)
{
    wchar_t program[32767];
    if (GetModuleFileNameW(nullptr, program, static_cast<DWORD>(std::size(program))) == 0)
        return nullptr;
    STARTUPINFOW start{};
    start.cb = sizeof(start);
    start.dwFlags = STARTF_USESTDHANDLES;
    start.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    start.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
    start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    const QString line = QString::fromWCharArray(GetCommandLineW());
    std::vector<wchar_t> writable(static_cast<std::size_t>(line.size()) + 1);
    line.toWCharArray(writable.data());
    PROCESS_INFORMATION started{};
    // It begins in the folder that this process was started in, by which paths of its arguments go.
    if (!CreateProcessAsUserW(token, program, writable.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED, nullptr,
                              wide(QDir::toNativeSeparators(startFolder)), &start, &started))
        return nullptr;
    const Handle thread(started.hThread);
    Handle process(started.hProcess);
    // Unless it is in the job it would outlive this process.
    if (!AssignProcessToJobObject(job, process.get()) || ResumeThread(thread.get()) == static_cast<DWORD>(-1)) {
        TerminateProcess(process.get(), 1);
        return nullptr;
    }
    return process;
}

} // namespace

std::optional<int> runWithoutRights()
{
    if (!hasAdministratorsRights())
        return std::nullopt;
    const Handle token = tokenWithoutRights();
    const Handle job = jobOfThisProcess();
    const Handle process = token && job ? startAgain(token.get(), job.get()) : nullptr;
    DWORD code = 1;
    if (!process) {
        std::fprintf(stderr, "Windows doesn't start it without administrator rights (error %lu)\n", GetLastError());
        return 1;
    }
    WaitForSingleObject(process.get(), INFINITE);
    return GetExitCodeProcess(process.get(), &code) ? static_cast<int>(code) : 1;
}

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
