// SPDX-License-Identifier: GPL-3.0-or-later

#include "processtoken.h"

#include "systemobjects.h"

#define SECURITY_WIN32
#include <sddl.h>
#include <security.h>
#include <wtsapi32.h>

#include <string>
#include <vector>

namespace {

Handle ownToken()
{
    HANDLE token = nullptr;
    return Handle(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token) ? token : nullptr);
}

/** A TOKEN_USER; empty where the token can't be read. */
std::vector<BYTE> tokenUser()
{
    const Handle token = ownToken();
    DWORD size = 0;
    if (!token)
        return {};
    GetTokenInformation(token.get(), TokenUser, nullptr, 0, &size);
    std::vector<BYTE> user(size);
    if (!GetTokenInformation(token.get(), TokenUser, user.data(), size, &size))
        return {};
    return user;
}

PSID sidIn(const std::vector<BYTE> &user)
{
    return reinterpret_cast<const TOKEN_USER *>(user.data())->User.Sid;
}

/** What the system says of who is signed in at the session of this process; empty where it says nothing. */
QString wordOfSession(WTS_INFO_CLASS which)
{
    LPWSTR text = nullptr;
    DWORD bytes = 0;
    if (!WTSQuerySessionInformationW(WTS_CURRENT_SERVER_HANDLE, WTS_CURRENT_SESSION, which, &text, &bytes))
        return {};
    const QString word = QString::fromWCharArray(text);
    WTSFreeMemory(text);
    return word;
}

/** Empty where there is no such account. */
std::vector<BYTE> sidOfAccount(const QString &account)
{
    const std::wstring name = account.toStdWString();
    DWORD sidSize = 0;
    DWORD domainLength = 0;
    SID_NAME_USE use{};
    LookupAccountNameW(nullptr, name.c_str(), nullptr, &sidSize, nullptr, &domainLength, &use);
    std::vector<BYTE> sid(sidSize);
    std::vector<wchar_t> domain(domainLength);
    if (sid.empty()
        || !LookupAccountNameW(nullptr, name.c_str(), sid.data(), &sidSize, domain.data(), &domainLength, &use))
        return {};
    return sid;
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
    const std::vector<BYTE> user = tokenUser();
    if (user.empty())
        return {};
    wchar_t name[longestName + 1];
    wchar_t domain[longestDomain + 1];
    DWORD nameLength = longestName + 1;
    DWORD domainLength = longestDomain + 1;
    SID_NAME_USE use{};
    if (!LookupAccountSidW(nullptr, sidIn(user), name, &nameLength, domain, &domainLength, &use))
        return {};
    return {QString::fromWCharArray(domain, static_cast<qsizetype>(domainLength)),
            QString::fromWCharArray(name, static_cast<qsizetype>(nameLength))};
}

QString sidOfUser()
{
    const std::vector<BYTE> user = tokenUser();
    LPWSTR text = nullptr;
    if (user.empty() || !ConvertSidToStringSidW(sidIn(user), &text))
        return {};
    const LocalMemory memory(text);
    return QString::fromWCharArray(text);
}

bool isUserOfSession()
{
    const QString name = wordOfSession(WTSUserName);
    const QString domain = wordOfSession(WTSDomainName);
    if (name.isEmpty())
        return true; // a service's session, or one of a remote console: nobody is signed in there
    const std::vector<BYTE> user = tokenUser();
    std::vector<BYTE> sid = sidOfAccount(domain.isEmpty() ? name : domain + u'\\' + name);
    return user.empty() || sid.empty() || EqualSid(sidIn(user), sid.data());
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
