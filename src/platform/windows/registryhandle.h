// SPDX-License-Identifier: GPL-3.0-or-later
// A key of the real registry, opened without QSettings.

#pragma once

#include "systemobjects.h"

#include <type_traits>

struct KeyCloser
{
    void operator()(HKEY key) const { RegCloseKey(key); }
};
using Key = std::unique_ptr<std::remove_pointer_t<HKEY>, KeyCloser>;

/** A hive by its full name; null for any other name. */
inline HKEY hiveNamed(const QString &name)
{
    if (name == QLatin1StringView("HKEY_LOCAL_MACHINE"))
        return HKEY_LOCAL_MACHINE;
    if (name == QLatin1StringView("HKEY_CURRENT_USER"))
        return HKEY_CURRENT_USER;
    if (name == QLatin1StringView("HKEY_USERS"))
        return HKEY_USERS;
    return name == QLatin1StringView("HKEY_CLASSES_ROOT") ? HKEY_CLASSES_ROOT : nullptr;
}
