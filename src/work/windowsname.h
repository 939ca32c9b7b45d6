// SPDX-License-Identifier: GPL-3.0-or-later
// Which Windows this is.

#pragma once

#include <QString>

/** Windows 11 is told from Windows 10 by its build. */
constexpr int firstBuildOfWindows11 = 22000;

class WorkThread;

struct WindowsName
{
    QString product; ///< "Windows 11 Home"
    QString build;
};

/**
 * Product name and build of the running Windows, each "unknown" in the user's language where the registry holds none.
 * Windows 11 still calls itself Windows 10 there: from firstBuildOfWindows11 on the name is set right.
 */
WindowsName readWindowsName();

/** Gives a worker the name of Windows, as the window does before its first job. */
void setWindowsName(WorkThread &worker);

/** The generation of a product, which goes by these digits anywhere in its name; some names are of neither. */
bool isWindows10(const QString &product);
bool isWindows11(const QString &product);
