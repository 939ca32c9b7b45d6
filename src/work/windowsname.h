// SPDX-License-Identifier: GPL-3.0-or-later
// Which Windows this is.

#pragma once

#include <QString>

/** Windows 11 is told from Windows 10 by its build. */
constexpr int firstBuildOfWindows11 = 22000;

struct WindowsName
{
    QString product; ///< "Windows 11 Home"; the generation is told everywhere by "10" or "11" in it
    QString build;
};

/**
 * Product name and build of the running Windows, each "unknown" in the user's language where the registry holds none.
 * Windows 11 still calls itself Windows 10 there: from firstBuildOfWindows11 on the name is set right.
 */
WindowsName readWindowsName();
