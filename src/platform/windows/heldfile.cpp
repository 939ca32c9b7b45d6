// SPDX-License-Identifier: GPL-3.0-or-later

#include "heldfile.h"

#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr DWORD anySharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

/** Another computer's files are what it says they are, each time anew. */
bool isDriveOfThisPc(const QString &root)
{
    const UINT type = GetDriveTypeW(wide(root));
    return type == DRIVE_FIXED || type == DRIVE_REMOVABLE || type == DRIVE_CDROM || type == DRIVE_RAMDISK;
}

QString placeOf(HANDLE file)
{
    constexpr auto prefix = "\\\\?\\"_L1;
    constexpr qsizetype rootLength = 3; // "C:\"

    std::vector<wchar_t> text(GetFinalPathNameByHandleW(file, nullptr, 0, VOLUME_NAME_DOS));
    const DWORD length = GetFinalPathNameByHandleW(file, text.data(), static_cast<DWORD>(text.size()), VOLUME_NAME_DOS);
    const QString path = QString::fromWCharArray(text.data(), static_cast<qsizetype>(length));
    if (length == 0 || length >= text.size() || !path.startsWith(prefix))
        return {};
    const QString place = path.sliced(prefix.size());
    return isDriveOfThisPc(place.first(qMin(rootLength, place.size()))) ? place : QString();
}

Handle opened(const QString &file, DWORD rights, DWORD sharing)
{
    return validHandle(
        CreateFileW(wide(file), rights, sharing, nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

} // namespace

QString placeOfFile(const QString &file)
{
    const Handle handle = opened(file, FILE_READ_ATTRIBUTES, anySharing);
    return handle ? placeOf(handle.get()) : QString();
}

HeldFile::HeldFile(const QString &file)
    : handle_(opened(file, GENERIC_READ, FILE_SHARE_READ))
{
    if (handle_)
        place_ = placeOf(handle_.get());
}

std::optional<QByteArray> HeldFile::read(DWORD most) const
{
    QByteArray content(static_cast<qsizetype>(most) + 1, Qt::Uninitialized);
    DWORD size = 0;
    if (!handle_ || !ReadFile(handle_.get(), content.data(), most + 1, &size, nullptr) || size > most)
        return std::nullopt;
    return content.first(static_cast<qsizetype>(size));
}
