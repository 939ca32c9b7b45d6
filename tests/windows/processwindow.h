// SPDX-License-Identifier: GPL-3.0-or-later
// The window of a program that a test has started.

#pragma once

#include <QProcess>

#include <windows.h>

namespace ProcessWindow {

struct Search
{
    DWORD process = 0;
    HWND found = nullptr;
};

inline BOOL CALLBACK look(HWND window, LPARAM parameter)
{
    auto *search = reinterpret_cast<Search *>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != search->process || !IsWindowVisible(window) || GetWindowTextLengthW(window) == 0)
        return TRUE;
    search->found = window;
    return FALSE;
}

} // namespace ProcessWindow

/** Null where there is none yet that has a title. */
inline HWND windowOf(const QProcess &process)
{
    ProcessWindow::Search search{static_cast<DWORD>(process.processId())};
    EnumWindows(ProcessWindow::look, reinterpret_cast<LPARAM>(&search));
    return search.found;
}
