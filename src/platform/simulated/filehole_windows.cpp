// SPDX-License-Identifier: GPL-3.0-or-later

#include "filehole.h"

#include <io.h>
#include <windows.h>
#include <winioctl.h>

namespace {

HANDLE handleOf(QFile &file)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(file.handle()));
}

} // namespace

qint64 nextData(QFile &file, qint64 offset)
{
    FILE_ALLOCATED_RANGE_BUFFER asked{};
    asked.FileOffset.QuadPart = offset;
    asked.Length.QuadPart = file.size() - offset;
    FILE_ALLOCATED_RANGE_BUFFER first{};
    DWORD size = 0;
    const bool told = DeviceIoControl(handleOf(file), FSCTL_QUERY_ALLOCATED_RANGES, &asked, sizeof(asked), &first,
                                      sizeof(first), &size, nullptr)
                      || GetLastError() == ERROR_MORE_DATA;
    if (!told)
        return offset;
    return size == 0 ? file.size() : qMax(offset, static_cast<qint64>(first.FileOffset.QuadPart));
}

void allowHoles(QFile &file)
{
    // Where it is refused, the file takes its room.
    DWORD size = 0;
    DeviceIoControl(handleOf(file), FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &size, nullptr);
}
