// SPDX-License-Identifier: GPL-3.0-or-later

#include "systemerror.h"

#ifdef Q_OS_WIN
#include <windows.h>
#else
#include <cerrno>
#endif

quint32 lastSystemError()
{
#ifdef Q_OS_WIN
    return GetLastError();
#else
    return static_cast<quint32>(errno);
#endif
}
