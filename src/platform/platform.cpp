// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform.h"

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#endif

namespace {

std::unique_ptr<Platform> current;

} // namespace

Platform &platform()
{
    if (!current)
        qFatal("no platform is set");
    return *current;
}

void setPlatform(std::unique_ptr<Platform> newPlatform)
{
    current = std::move(newPlatform);
}

quint32 lastSystemError()
{
#ifdef Q_OS_WIN
    return GetLastError();
#else
    return static_cast<quint32>(errno);
#endif
}
