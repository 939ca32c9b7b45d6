// SPDX-License-Identifier: GPL-3.0-or-later
// Folders stay open while a file below them is written: as long as they are, nobody can move them away and put
// something else in their place.

#include "platform/filebelow.h"

#include "systemobjects.h"

#include <QDir>

#include <aclapi.h>

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/**
 * Where an open file or folder lies, by its own names, whatever links and short names led there: "\\\\?\\C:\\folder".
 * Empty where that is unknown.
 */
QString placeOf(HANDLE handle)
{
    // Some drives that are made of memory have their place among the system's devices alone.
    constexpr std::pair<DWORD, QLatin1StringView> kinds[] = {{VOLUME_NAME_DOS, {}},
                                                             {VOLUME_NAME_NT, "\\\\?\\GLOBALROOT"_L1}};
    for (const auto &[kind, prefix] : kinds) {
        std::vector<wchar_t> text(GetFinalPathNameByHandleW(handle, nullptr, 0, kind));
        const DWORD length = GetFinalPathNameByHandleW(handle, text.data(), static_cast<DWORD>(text.size()), kind);
        if (length > 0 && length < text.size())
            return QString(prefix) + QString::fromWCharArray(text.data(), static_cast<qsizetype>(length));
    }
    return {};
}

/** A folder that nobody moves or deletes while it is open. */
Handle openFolder(const QString &path, DWORD flags)
{
    return validHandle(CreateFileW(wide(path), FILE_LIST_DIRECTORY | FILE_READ_ATTRIBUTES,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr));
}

/** Whether it is itself, at that place, and no link in any form. */
bool isAt(HANDLE handle, const QString &path, bool asFolder)
{
    BY_HANDLE_FILE_INFORMATION found;
    if (!GetFileInformationByHandle(handle, &found) || (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
        return false;
    const bool folder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return folder == asFolder && (folder || found.nNumberOfLinks == 1)
           && placeOf(handle).compare(path, Qt::CaseInsensitive) == 0;
}

/** Where a file is to be, and the folders on the way, which are held open. */
struct Place
{
    std::vector<Handle> folders{};
    QString path{}; ///< empty where a folder can't be opened, or is a link
};

Place placeBelow(const QString &folder, const QString &name)
{
    Place place;
    place.folders.push_back(openFolder(QDir::toNativeSeparators(folder), 0));
    QString path = place.folders.back() ? placeOf(place.folders.back().get()) : QString();
    QStringList parts = name.split(u'/');
    const QString last = parts.takeLast();
    for (const QString &part : std::as_const(parts)) {
        if (path.isEmpty())
            return {};
        path += u'\\' + part;
        CreateDirectoryW(wide(path), nullptr); // mostly it is there
        Handle below = openFolder(path, FILE_FLAG_OPEN_REPARSE_POINT);
        if (!below || !isAt(below.get(), path, true))
            return {};
        place.folders.push_back(std::move(below));
    }
    if (!path.isEmpty())
        place.path = path + u'\\' + last;
    return place;
}

bool writeAll(HANDLE file, QByteArrayView bytes)
{
    constexpr qsizetype atOnce = qsizetype(1) << 24;

    while (!bytes.isEmpty()) {
        DWORD written = 0;
        if (!WriteFile(file, bytes.data(), static_cast<DWORD>(qMin(bytes.size(), atOnce)), &written, nullptr)
            || written == 0)
            return false;
        bytes = bytes.sliced(static_cast<qsizetype>(written));
    }
    return true;
}

/** Writes a file that wasn't there; after a failure it isn't either. */
bool writeNew(const QString &path, const QByteArray &content)
{
    const Handle file =
        validHandle(CreateFileW(wide(path), GENERIC_WRITE | FILE_READ_ATTRIBUTES | DELETE, FILE_SHARE_READ, nullptr,
                                CREATE_NEW, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    if (!file)
        return false;
    if (isAt(file.get(), path, false) && writeAll(file.get(), content))
        return true;
    FILE_DISPOSITION_INFO gone{TRUE};
    SetFileInformationByHandle(file.get(), FileDispositionInfo, &gone, sizeof(gone));
    return false;
}

Handle openItself(const QString &path, DWORD access)
{
    return validHandle(CreateFileW(wide(path), access | FILE_READ_ATTRIBUTES,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
}

/** Gives a file the access list of another one, unless that is a link; where it can't, it keeps its folder's. */
void copyRights(const QString &from, const QString &to)
{
    const Handle former = openItself(from, READ_CONTROL);
    const Handle file = openItself(to, WRITE_DAC);
    PACL rights = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!former || !file || !isAt(former.get(), from, false) || !isAt(file.get(), to, false)
        || GetSecurityInfo(former.get(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &rights, nullptr,
                           &descriptor)
               != ERROR_SUCCESS)
        return;
    SetSecurityInfo(file.get(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, rights, nullptr);
    LocalFree(descriptor);
}

/** Gives a file that is whole its own name. */
bool moveTo(const QString &file, const QString &path, IfThere ifThere)
{
    if (ifThere == IfThere::Keep)
        return MoveFileExW(wide(file), wide(path), 0);
    copyRights(path, file);
    return MoveFileExW(wide(file), wide(path), MOVEFILE_REPLACE_EXISTING);
}

} // namespace

bool writeFileBelow(const QString &folder, const QString &name, const QByteArray &content, IfThere ifThere)
{
    const Place place = placeBelow(folder, name);
    if (place.path.isEmpty())
        return false;
    if (ifThere == IfThere::Replace) {
        DeleteFileW(wide(place.path));
        return writeNew(place.path, content);
    }
    if (ifThere == IfThere::Keep && GetFileAttributesW(wide(place.path)) != INVALID_FILE_ATTRIBUTES)
        return false;
    // Under another name until it is whole
    const QString making = place.path + u".new"_s;
    DeleteFileW(wide(making));
    if (!writeNew(making, content))
        return false;
    if (moveTo(making, place.path, ifThere))
        return true;
    DeleteFileW(wide(making));
    return false;
}

bool appendLineBelow(const QString &folder, const QString &name, const QString &line)
{
    const Place place = placeBelow(folder, name);
    if (place.path.isEmpty())
        return false;
    const Handle file = validHandle(CreateFileW(wide(place.path), FILE_APPEND_DATA | FILE_READ_ATTRIBUTES | SYNCHRONIZE,
                                                FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_ALWAYS,
                                                FILE_ATTRIBUTE_NORMAL | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
    return file && isAt(file.get(), place.path, false)
           && writeAll(file.get(), QString(line + u'\n').replace(u"\n"_s, u"\r\n"_s).toUtf8());
}
