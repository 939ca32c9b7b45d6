// SPDX-License-Identifier: GPL-3.0-or-later
// Where Windows is, by its own answer: environment variables are those of whoever set them.

#pragma once

#include <QString>

/** "C:\Windows" */
QString windowsFolder();
/** "C:\Windows\system32" */
QString systemFolder();
/** "C:\Windows\SysWOW64": the same for programs of 32 bits. */
QString systemFolder32();
/** PowerShell's own folder in it. */
QString powerShellFolder();
