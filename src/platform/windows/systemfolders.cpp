// SPDX-License-Identifier: GPL-3.0-or-later

#include "systemfolders.h"

#include <windows.h>

using namespace Qt::StringLiterals;

namespace {

QString folderFrom(UINT(WINAPI *ask)(LPWSTR, UINT))
{
    wchar_t path[MAX_PATH];
    const UINT length = ask(path, MAX_PATH);
    if (length == 0 || length >= MAX_PATH)
        qFatal("Windows doesn't tell its folder");
    return QString::fromWCharArray(path, static_cast<qsizetype>(length));
}

} // namespace

QString windowsFolder()
{
    // Not GetWindowsDirectory: on a server for several users it gives each one a folder of his own.
    return folderFrom(GetSystemWindowsDirectoryW);
}

QString systemFolder()
{
    return folderFrom(GetSystemDirectoryW);
}

QString systemFolder32()
{
    return folderFrom(GetSystemWow64DirectoryW);
}

QString powerShellFolder()
{
    return systemFolder() + u"\\WindowsPowerShell\\v1.0"_s;
}
