// SPDX-License-Identifier: GPL-3.0-or-later

#include "windowssystem.h"

#include "nativekey.h"
#include "platform/taskdocument.h"
#include "systemfolders.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStringConverter>

#include <aclapi.h>
#include <sddl.h>

#include <initializer_list>

using namespace Qt::StringLiterals;

namespace {

constexpr SECURITY_INFORMATION ownerAndRights = OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION;

/** Privileges that an administrator has and must ask for, in force for this thread while the object lives. */
class Privileges
{
public:
    explicit Privileges(std::initializer_list<const wchar_t *> names)
        : isOwnToken_(ImpersonateSelf(SecurityImpersonation) != FALSE)
    {
        HANDLE opened = nullptr;
        if (!isOwnToken_ || !OpenThreadToken(GetCurrentThread(), TOKEN_ADJUST_PRIVILEGES, TRUE, &opened))
            return;
        const Handle token(opened);
        for (const wchar_t *name : names) {
            TOKEN_PRIVILEGES one{1, {{{}, SE_PRIVILEGE_ENABLED}}};
            if (LookupPrivilegeValueW(nullptr, name, &one.Privileges[0].Luid))
                AdjustTokenPrivileges(token.get(), FALSE, &one, 0, nullptr, nullptr);
        }
    }
    ~Privileges()
    {
        if (isOwnToken_)
            RevertToSelf();
    }
    Q_DISABLE_COPY_MOVE(Privileges)

private:
    bool isOwnToken_;
};

/** The file or folder itself; with the privileges of a backup these rights are given whatever its own list says. */
Handle openSecurity(const QString &path, DWORD access)
{
    return validHandle(CreateFileW(wide(path), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                   OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
}

/** Empty where that fails. */
QString textOfDescriptor(PSECURITY_DESCRIPTOR descriptor, SECURITY_INFORMATION parts)
{
    LPWSTR text = nullptr;
    if (!ConvertSecurityDescriptorToStringSecurityDescriptorW(descriptor, SDDL_REVISION_1, parts, &text, nullptr))
        return {};
    const LocalMemory memory(text);
    return QString::fromWCharArray(text);
}

LocalMemory descriptorOf(const QByteArray &text)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    const QString words = QString::fromUtf8(text);
    const bool isOne =
        ConvertStringSecurityDescriptorToSecurityDescriptorW(wide(words), SDDL_REVISION_1, &descriptor, nullptr);
    return LocalMemory(isOne ? descriptor : nullptr);
}

Key madeKey(const QString &path, REGSAM rights)
{
    const QString below = path.section(u'\\', 1);
    HKEY key = nullptr;
    const LSTATUS status = RegCreateKeyExW(hiveNamed(path.section(u'\\', 0, 0)), wide(below), 0, nullptr, 0,
                                           rights | KEY_WOW64_64KEY, nullptr, &key, nullptr);
    return Key(status == ERROR_SUCCESS ? key : nullptr);
}

} // namespace

bool arePoliciesShared()
{
    using NtQueryKey = LONG(WINAPI *)(HANDLE, int, void *, ULONG, ULONG *);
    constexpr int keyNameInformation = 3; // a KEY_NAME_INFORMATION: the length in bytes, and the name

    struct
    {
        ULONG length;
        wchar_t name[512];
    } full{};
    ULONG size = 0;
    const auto query = reinterpret_cast<NtQueryKey>(
        reinterpret_cast<void *>(GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQueryKey")));
    HKEY key = nullptr;
    if (query == nullptr
        || RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\Wow6432Node\\Policies", 0, KEY_QUERY_VALUE | KEY_WOW64_64KEY,
                         &key)
               != ERROR_SUCCESS)
        return false;
    const LONG status = query(key, keyNameInformation, &full, sizeof(full), &size);
    RegCloseKey(key);
    const QString name = QString::fromWCharArray(full.name, static_cast<qsizetype>(full.length / sizeof(wchar_t)));
    return status == 0 && name.endsWith("\\SOFTWARE\\Policies"_L1, Qt::CaseInsensitive);
}

bool WindowsSystem::hasKey(const QString &path) const
{
    const LSTATUS status = openExisting(path, KEY_QUERY_VALUE).second;
    return status == ERROR_SUCCESS || status == ERROR_ACCESS_DENIED;
}

std::optional<RegistryValue> WindowsSystem::value(const QString &key, const QString &name) const
{
    const auto opened = openExisting(key, KEY_QUERY_VALUE).first;
    return opened ? storedValue(opened.get(), name) : std::nullopt;
}

std::optional<bool> WindowsSystem::isTaskEnabled(const QString &path) const
{
    // Where Task Scheduler has its documents, by the paths of their tasks
    QFile file(systemFolder() + u"\\Tasks"_s + path);
    if (path.split(u'\\').contains(".."_L1) || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray content = file.readAll();
    QStringDecoder decoder(QStringConverter::encodingForData(content).value_or(QStringConverter::Utf8));
    const QString document = decoder.decode(content);
    return taskFacts(document).enabled;
}

std::optional<QMap<QString, QString>> WindowsSystem::bootOptions() const
{
    constexpr int timeLimit = 30000; // milliseconds

    QProcess tool;
    tool.start(WindowsPlatform().programFile(u"bcdedit"_s), {u"/enum"_s, u"{current}"_s}, QIODevice::ReadOnly);
    if (!tool.waitForFinished(timeLimit) || tool.exitStatus() != QProcess::NormalExit || tool.exitCode() != 0)
        return std::nullopt;
    return bootOptionsIn(QString::fromLocal8Bit(tool.readAllStandardOutput()));
}

std::optional<QMap<QString, QString>> bootOptionsIn(const QString &listing)
{
    // A heading in the system's language, a line of dashes, and the options, whose names are the same in all languages
    static const QRegularExpression heading(u"^-+\\r?$"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression option(u"^([A-Za-z][A-Za-z0-9]*) +(\\S[^\\r\\n]*?) *\\r?$"_s,
                                           QRegularExpression::MultilineOption);

    const QRegularExpressionMatch end = heading.match(listing);
    if (!end.hasMatch())
        return std::nullopt;
    QMap<QString, QString> options;
    for (auto found = option.globalMatch(listing, end.capturedEnd()); found.hasNext();) {
        const QRegularExpressionMatch line = found.next();
        options.insert(line.captured(1).toLower(), line.captured(2));
    }
    return options;
}

std::optional<QByteArray> WindowsSystem::fileSecurity(const QString &windowsPath) const
{
    const Privileges privileges{SE_BACKUP_NAME};
    const Handle file = openSecurity(QDir::toNativeSeparators(windowsPath), READ_CONTROL);
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!file
        || GetSecurityInfo(file.get(), SE_FILE_OBJECT, ownerAndRights, nullptr, nullptr, nullptr, nullptr, &descriptor)
               != ERROR_SUCCESS)
        return std::nullopt;
    const LocalMemory memory(descriptor);
    const QString text = textOfDescriptor(descriptor, ownerAndRights);
    return text.isEmpty() ? std::nullopt : std::optional(text.toUtf8());
}

SecurityWords WindowsSystem::securityWords(const QByteArray &security) const
{
    const LocalMemory descriptor = descriptorOf(security);
    PSID owner = nullptr;
    BOOL isDefault = FALSE;
    LPWSTR text = nullptr;
    if (!descriptor || !GetSecurityDescriptorOwner(descriptor.get(), &owner, &isDefault)
        || !ConvertSidToStringSidW(owner, &text))
        return {};
    const LocalMemory memory(text);
    // After a star icacls takes a SID for a name.
    return {u'*' + QString::fromWCharArray(text), {}, textOfDescriptor(descriptor.get(), DACL_SECURITY_INFORMATION)};
}

bool WindowsSystem::setFileSecurity(const QString &windowsPath, const QByteArray &security)
{
    const LocalMemory memory = descriptorOf(security);
    PSECURITY_DESCRIPTOR descriptor = memory.get();
    if (!memory)
        return false;
    // What was inherited is to be so again; the system takes that mark only from those who ask for it.
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    if (GetSecurityDescriptorControl(descriptor, &control, &revision) && (control & SE_DACL_AUTO_INHERITED) != 0)
        SetSecurityDescriptorControl(descriptor, SE_DACL_AUTO_INHERIT_REQ, SE_DACL_AUTO_INHERIT_REQ);
    const Privileges privileges{SE_TAKE_OWNERSHIP_NAME, SE_RESTORE_NAME};
    const Handle file = openSecurity(QDir::toNativeSeparators(windowsPath), WRITE_OWNER | WRITE_DAC);
    return file && SetKernelObjectSecurity(file.get(), ownerAndRights, descriptor);
}

QString WindowsSystem::windowsPath(const QString &hostPath) const
{
    return QDir::toNativeSeparators(hostPath);
}

bool WindowsSystem::setValue(const QString &key, const RegistryValue &value)
{
    const Key made = madeKey(key, KEY_SET_VALUE);
    return made && storeValue(made.get(), value);
}

bool WindowsSystem::removeValue(const QString &key, const QString &name)
{
    const auto [opened, status] = openExisting(key, KEY_SET_VALUE);
    const LSTATUS removed = opened ? RegDeleteValueW(opened.get(), wide(name)) : status;
    return removed == ERROR_SUCCESS || removed == ERROR_FILE_NOT_FOUND;
}

bool WindowsSystem::makeKey(const QString &path)
{
    return madeKey(path, KEY_QUERY_VALUE) != nullptr;
}

bool WindowsSystem::removeEmptyKey(const QString &path)
{
    const auto [opened, status] = openExisting(path, KEY_QUERY_VALUE);
    if (!opened)
        return status == ERROR_FILE_NOT_FOUND;
    DWORD subkeys = 0;
    DWORD values = 0;
    if (RegQueryInfoKeyW(opened.get(), nullptr, nullptr, nullptr, &subkeys, nullptr, nullptr, &values, nullptr, nullptr,
                         nullptr, nullptr)
            != ERROR_SUCCESS
        || subkeys > 0 || values > 0)
        return false;
    const QString below = path.section(u'\\', 1);
    return RegDeleteKeyExW(hiveNamed(path.section(u'\\', 0, 0)), wide(below), KEY_WOW64_64KEY, 0) == ERROR_SUCCESS;
}
