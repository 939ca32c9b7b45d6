// SPDX-License-Identifier: GPL-3.0-or-later
// Owners of what Windows hands out.

#pragma once

#include <QString>

#include <windows.h>

#include <memory>
#include <type_traits>

inline const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

struct HandleCloser
{
    void operator()(void *handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, HandleCloser>;

/** An owner of what CreateFile and its like gave, whose failures aren't null. */
inline Handle validHandle(HANDLE handle)
{
    return Handle(handle == INVALID_HANDLE_VALUE ? nullptr : handle);
}

struct LocalFreer
{
    void operator()(void *memory) const { LocalFree(memory); }
};
/** An owner of what the system says is to be given back by LocalFree. */
using LocalMemory = std::unique_ptr<void, LocalFreer>;

// Keys of the real registry, opened without QSettings.

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
