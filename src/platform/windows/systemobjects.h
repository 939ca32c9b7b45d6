// SPDX-License-Identifier: GPL-3.0-or-later
// Owners of what Windows hands out.

#pragma once

#include <QString>

#include <windows.h>

#include <memory>

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
