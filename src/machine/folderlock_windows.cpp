// SPDX-License-Identifier: GPL-3.0-or-later

#include "folderlock.h"

#include <QDir>

#include <windows.h>

#include <aclapi.h>

using namespace Qt::StringLiterals;

namespace {

/** A folder itself can't be locked; this file is there only as long as someone has it open. */
HANDLE openLockFile(const QString &folder)
{
    const QString path = QDir::toNativeSeparators(folder + u"/changes.lock"_s);
    return CreateFileW(reinterpret_cast<const wchar_t *>(path.utf16()), GENERIC_WRITE | DELETE, 0, nullptr, OPEN_ALWAYS,
                       FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
}

/**
 * Whether a folder, and no link, has the owner that this process gives to what it makes. With administrator rights none
 * has: what the user's programs can change isn't to be removed with them.
 */
bool belongsToUser(const QString &folder)
{
    const QString path = QDir::toNativeSeparators(folder);
    const HANDLE opened = CreateFileW(reinterpret_cast<const wchar_t *>(path.utf16()), READ_CONTROL,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                      FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (opened == INVALID_HANDLE_VALUE)
        return false;
    const std::shared_ptr<void> closing(opened, CloseHandle);
    BY_HANDLE_FILE_INFORMATION facts{};
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!GetFileInformationByHandle(opened, &facts) || (facts.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0
        || GetSecurityInfo(opened, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr,
                           &descriptor)
               != ERROR_SUCCESS)
        return false;
    const std::shared_ptr<void> freeing(descriptor, LocalFree);
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
        return false;
    const std::shared_ptr<void> closingToken(token, CloseHandle);
    TOKEN_ELEVATION elevation{};
    alignas(TOKEN_OWNER) char buffer[sizeof(TOKEN_OWNER) + SECURITY_MAX_SID_SIZE] = {};
    DWORD size = 0;
    return GetTokenInformation(token, TokenElevation, &elevation, sizeof(elevation), &size)
           && elevation.TokenIsElevated == 0 && GetTokenInformation(token, TokenOwner, buffer, sizeof(buffer), &size)
           && EqualSid(owner, reinterpret_cast<const TOKEN_OWNER *>(buffer)->Owner);
}

} // namespace

std::shared_ptr<void> lockFolder(const QString &folder)
{
    const HANDLE file = openLockFile(folder);
    if (file != INVALID_HANDLE_VALUE)
        return {file, [](HANDLE handle) { CloseHandle(handle); }};
    if (GetLastError() == ERROR_SHARING_VIOLATION)
        return nullptr;
    return std::make_shared<char>();
}

std::shared_ptr<void> lockOwnFolder(const QString &folder)
{
    if (!belongsToUser(folder))
        return nullptr;
    const HANDLE file = openLockFile(folder);
    if (file == INVALID_HANDLE_VALUE)
        return nullptr;
    return {file, [](HANDLE handle) { CloseHandle(handle); }};
}

std::shared_ptr<void> holdFolder(const QString &)
{
    return std::make_shared<char>();
}
