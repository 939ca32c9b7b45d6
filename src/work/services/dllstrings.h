// SPDX-License-Identifier: GPL-3.0-or-later
// Strings of the registry that stand for a string in a DLL.

#pragma once

#include <QString>

/** The text that a registry string stands for, which may be a reference into a DLL's string table. Any thread. */
QString expandResourceString(const QString &text);
/** A string of a DLL by its decimal number, or "no description" in the user's language. Any thread. */
QString resourceInDll(const QString &dllPath, const QString &id);
