// SPDX-License-Identifier: GPL-3.0-or-later

#include "processtoken.h"

#include "systemobjects.h"

#define SECURITY_WIN32
#include <security.h>

#include <vector>

namespace {

Handle ownToken()
{
    HANDLE token = nullptr;
    return Handle(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) ? token : nullptr);
}

} // namespace

bool isElevatedProcess()
{
    const Handle token = ownToken();
    TOKEN_ELEVATION elevation{};
    DWORD size = sizeof(elevation);
    return token && GetTokenInformation(token.get(), TokenElevation, &elevation, size, &size)
           && elevation.TokenIsElevated != 0;
}

Account userOfProcess()
{
    constexpr DWORD longestName = 256;   // UNLEN
    constexpr DWORD longestDomain = 256; // DNLEN is shorter, a DNS name is not
    const Handle token = ownToken();
    DWORD size = 0;
    if (!token)
        return {};
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    std::vector<BYTE> user(size);
    if (!GetTokenInformation(token.get(), TokenUser, user.data(), size, &size))
        return {};
    wchar_t name[longestName + 1];
    wchar_t domain[longestDomain + 1];
    DWORD nameLength = longestName + 1;
    DWORD domainLength = longestDomain + 1;
    SID_NAME_USE use{};
    if (!LookupAccountSidW(nullptr, reinterpret_cast<const TOKEN_USER *>(user.data())->User.Sid, name, &nameLength,
                           domain, &domainLength, &use))
        return {};
    return {QString::fromWCharArray(domain, static_cast<qsizetype>(domainLength)),
            QString::fromWCharArray(name, static_cast<qsizetype>(nameLength))};
}

QStringList shownNamesOfUser()
{
    QStringList names;
    for (const EXTENDED_NAME_FORMAT format : {NameDisplay, NameUserPrincipal}) {
        ULONG length = 0; // then with the closing zero
        GetUserNameExW(format, nullptr, &length);
        std::vector<wchar_t> name(length + 1);
        if (length > 0 && GetUserNameExW(format, name.data(), &length))
            names.append(QString::fromWCharArray(name.data()));
    }
    return names;
}
