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
constexpr wchar_t folderRights[] = L"O:BAG:BAD:P(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)";

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

QString ownerOf(HANDLE object, SE_OBJECT_TYPE type)
{
    PSID owner = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (GetSecurityInfo(object, type, OWNER_SECURITY_INFORMATION, &owner, nullptr, nullptr, nullptr, &descriptor)
        != ERROR_SUCCESS)
        return {};
    const LocalMemory memory(descriptor);
    LPWSTR text = nullptr;
    if (!ConvertSidToStringSidW(owner, &text))
        return {};
    const LocalMemory textMemory(text);
    return QString::fromWCharArray(text);
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
    static const QStringList trusted{u"S-1-5-32-544"_s, u"S-1-5-18"_s};
    return trusted.contains(ownerOf(object, type));
}

bool isForeign(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
    const Handle file = openItself(native, 0);
    return !file || isForeign(file.get(), native);
}

std::shared_ptr<void> holdAdminFolder(const QString &path)
{
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(folderRights, SDDL_REVISION_1, &descriptor, nullptr))
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
