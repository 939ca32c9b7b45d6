// SPDX-License-Identifier: GPL-3.0-or-later

#include "folderlock.h"

#include <QDir>

#include <windows.h>

using namespace Qt::StringLiterals;

std::shared_ptr<void> lockFolder(const QString &folder)
{
    // A folder itself can't be locked; this file is there only as long as someone has it open.
    const QString path = QDir::toNativeSeparators(folder + u"/changes.lock"_s);
    const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t *>(path.utf16()), GENERIC_WRITE | DELETE, 0, nullptr,
                                    OPEN_ALWAYS, FILE_FLAG_DELETE_ON_CLOSE | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (file != INVALID_HANDLE_VALUE)
        return {file, [](HANDLE handle) { CloseHandle(handle); }};
    if (GetLastError() == ERROR_SHARING_VIOLATION)
        return nullptr;
    return std::make_shared<char>();
}

std::shared_ptr<void> holdFolder(const QString &)
{
    return std::make_shared<char>();
}
