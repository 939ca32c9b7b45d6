// SPDX-License-Identifier: GPL-3.0-or-later

#include "filehole.h"

#include <QDir>

#include <windows.h>
#include <winioctl.h>

#include <memory>

namespace {

struct HandleCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleCloser>;

/** A handle of its own, since QFile's can't be had without leaving a descriptor behind. */
Handle openedAgain(const QFile &file, DWORD access)
{
    const QString path = QDir::toNativeSeparators(file.fileName());
    const HANDLE handle = CreateFileW(reinterpret_cast<const wchar_t *>(path.utf16()), access,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
    return Handle(handle != INVALID_HANDLE_VALUE ? handle : nullptr);
}

bool takesRoom(HANDLE file)
{
    FILE_STANDARD_INFO info = {};
    return GetFileInformationByHandleEx(file, FileStandardInfo, &info, sizeof info) == 0
           || info.AllocationSize.QuadPart != 0;
}

} // namespace

qint64 nextData(QFile &file, qint64 offset)
{
    const Handle handle = openedAgain(file, GENERIC_READ);
    if (!handle)
        return offset;
    if (!takesRoom(handle.get()))
        return file.size();
    FILE_ALLOCATED_RANGE_BUFFER rest = {};
    rest.FileOffset.QuadPart = offset;
    rest.Length.QuadPart = file.size() - offset;
    FILE_ALLOCATED_RANGE_BUFFER first = {};
    DWORD size = 0;
    const bool told = DeviceIoControl(handle.get(), FSCTL_QUERY_ALLOCATED_RANGES, &rest, sizeof rest, &first,
                                      sizeof first, &size, nullptr)
                          != 0
                      || GetLastError() == ERROR_MORE_DATA;
    if (!told)
        return offset;
    return size < sizeof first ? file.size() : qMax(offset, qint64(first.FileOffset.QuadPart));
}

bool resizeWithHole(QFile &file, qint64 size)
{
    constexpr qint64 smallest = qint64{1024} * 1024; // below that a hole is of no use

    if (size - file.size() >= smallest) {
        DWORD ignored = 0;
        // Where the disk has no holes, the file takes its room.
        if (const Handle handle = openedAgain(file, GENERIC_WRITE))
            DeviceIoControl(handle.get(), FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &ignored, nullptr);
    }
    return file.resize(size);
}
