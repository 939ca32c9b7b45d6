// SPDX-License-Identifier: GPL-3.0-or-later

#include "adminfolder.h"

#include "processtoken.h"

#include <QDir>

#include <aclapi.h>
#include <sddl.h>
#include <shlobj.h>

using namespace Qt::StringLiterals;

namespace {

// What is made in it has the same rights.
const QString folderRights = u"O:BAG:BAD:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)"_s;
// The administrators and the system; and the installer of Windows, who gives nothing that he owns to others.
const QStringList trustedAccounts{u"S-1-5-32-544"_s, u"S-1-5-18"_s,
                                  u"S-1-5-80-956008885-3418522649-1831038044-1853292631-2271478464"_s};
const QString readerRights = u"(A;OICI;FRFX;;;%1)"_s;

/** The file or folder itself, whatever it leads to. */
Handle openItself(const QString &path, DWORD access)
{
    // Without the right to share its deletion: nobody moves it as long as it is open.
    return validHandle(CreateFileW(wide(path), access | READ_CONTROL | FILE_READ_ATTRIBUTES,
                                   FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                                   FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
}

bool isLink(HANDLE file)
{
    BY_HANDLE_FILE_INFORMATION found;
    if (!GetFileInformationByHandle(file, &found) || (found.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0)
        return true;
    return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 && found.nNumberOfLinks != 1;
}

QString textOf(PSID sid)
{
    LPWSTR text = nullptr;
    if (!ConvertSidToStringSidW(sid, &text))
        return {};
    const LocalMemory memory(text);
    return QString::fromWCharArray(text);
}

QString ownerOf(HANDLE object, SE_OBJECT_TYPE type)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetSecurityInfo(object, type, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr, &descriptor)
        != ERROR_SUCCESS)
        return {};
    const LocalMemory memory(descriptor);
    return textOf(owner);
}

/** Of a user who is neither the system nor all administrators, but runs this process. */
bool isUsersOwn(const QString &folder)
{
    const Handle handle = openItself(folder, 0);
    return handle && !isOfAdministrators(handle.get(), SE_FILE_OBJECT)
           && ownerOf(handle.get(), SE_FILE_OBJECT) == sidOfUser();
}

bool isForeign(HANDLE file, const QString &path)
{
    return isLink(file)
           || (!isOfAdministrators(file, SE_FILE_OBJECT) && !isUsersOwn(path.left(path.lastIndexOf(u'\\'))));
}

/** Whether an entry of a list of rights gives one of them to somebody who isn't trusted. */
bool givesOthers(void *entry, ACCESS_MASK rights)
{
    const auto *header = static_cast<ACE_HEADER *>(entry);
    if (header->AceType == ACCESS_DENIED_ACE_TYPE || (header->AceFlags & INHERIT_ONLY_ACE) != 0)
        return false;
    if (header->AceType != ACCESS_ALLOWED_ACE_TYPE)
        return true; // a kind that isn't known here
    auto *allowed = static_cast<ACCESS_ALLOWED_ACE *>(entry);
    return (allowed->Mask & rights) != 0 && !trustedAccounts.contains(textOf(&allowed->SidStart));
}

/** Whether an account that isn't trusted owns a file or folder, or has one of these rights to it; true where unknown.
 */
bool othersMay(const QString &path, ACCESS_MASK rights)
{
    const Handle file = openItself(path, 0);
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!file || !trustedAccounts.contains(ownerOf(file.get(), SE_FILE_OBJECT))
        || GetSecurityInfo(file.get(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &list, nullptr,
                           &descriptor)
               != ERROR_SUCCESS)
        return true;
    const LocalMemory memory(descriptor);
    bool may = list == nullptr; // without a list everybody may do everything
    for (DWORD i = 0; list != nullptr && i < list->AceCount; ++i) {
        void *entry = nullptr;
        may = may || !GetAce(list, i, &entry) || givesOthers(entry, rights);
    }
    return may;
}

/** Gives what is open the rights of the descriptor, and what is in it those that come from there. */
bool setRights(HANDLE folder, PSECURITY_DESCRIPTOR descriptor)
{
    BOOL isPresent = FALSE;
    BOOL isDefault = FALSE;
    PACL rights = nullptr;
    return GetSecurityDescriptorDacl(descriptor, &isPresent, &rights, &isDefault) && isPresent
           && SetSecurityInfo(folder, SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                              nullptr, nullptr, rights, nullptr)
                  == ERROR_SUCCESS;
}

} // namespace

bool isOfAdministrators(HANDLE object, SE_OBJECT_TYPE type)
{
    return trustedAccounts.first(2).contains(ownerOf(object, type));
}

bool isForAdministratorsAlone(const QString &program)
{
    // Folders above may get new entries by others, as that of a drive does, but none of theirs is on the way.
    constexpr ACCESS_MASK replacing = DELETE | FILE_DELETE_CHILD | WRITE_DAC | WRITE_OWNER | GENERIC_ALL;
    constexpr ACCESS_MASK changing =
        replacing | FILE_WRITE_DATA | FILE_APPEND_DATA | FILE_WRITE_ATTRIBUTES | FILE_WRITE_EA | GENERIC_WRITE;

    QString path = QDir::toNativeSeparators(program);
    const QString folder = path.left(path.lastIndexOf(u'\\'));
    while (path.contains(u'\\')) {
        const bool isOfProgram = path == QDir::toNativeSeparators(program) || path == folder;
        if (othersMay(path, isOfProgram ? changing : replacing))
            return false;
        path.truncate(path.lastIndexOf(u'\\'));
    }
    return !othersMay(path + u'\\', replacing);
}

bool isForeign(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    const Handle file = openItself(native, 0);
    return !file || isForeign(file.get(), native);
}

std::shared_ptr<void> holdAdminFolder(const QString &path, const QString &reader)
{
    const QString rights = reader.isEmpty() ? folderRights : folderRights + readerRights.arg(reader);
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(wide(rights), SDDL_REVISION_1, &descriptor, nullptr))
        return nullptr;
    const LocalMemory memory(descriptor);
    SECURITY_ATTRIBUTES attributes{sizeof(attributes), descriptor, FALSE};
    const bool isMade = CreateDirectoryW(wide(path), &attributes);
    Handle folder = openItself(path, FILE_LIST_DIRECTORY | WRITE_DAC);
    const bool isFolder = (GetFileAttributesW(wide(path)) & FILE_ATTRIBUTE_DIRECTORY) != 0;
    if (!folder || !isFolder || isForeign(folder.get(), path) || (!isMade && !setRights(folder.get(), descriptor)))
        return nullptr;
    return {folder.release(), HandleCloser()};
}

QString programDataFolder()
{
    PWSTR path = nullptr;
    const HRESULT result = SHGetKnownFolderPath(FOLDERID_ProgramData, KF_FLAG_DEFAULT, nullptr, &path);
    const QString folder = SUCCEEDED(result) ? QString::fromWCharArray(path) : QString();
    CoTaskMemFree(path);
    return folder;
}
