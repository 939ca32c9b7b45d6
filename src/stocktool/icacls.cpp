// SPDX-License-Identifier: GPL-3.0-or-later
// icacls: grants a user rights to a file, takes all that was granted back, and gives a file to an owner.

#include "console/console.h"
#include "machine/environment.h"
#include "machine/machine.h"
#include "tools.h"

#include <QFileInfo>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr int exitFileNotFound = 2;
constexpr int exitAccessDenied = 5;
constexpr int exitInvalidParameter = 87;

/** What the arguments ask for. */
struct Request
{
    QString file;
    QString grant{}; ///< "DOMAIN\user:F"; empty: all grants go
    QString owner{}; ///< of /setowner, which leaves the rights alone
};

/** A text instead of the request is the argument that isn't understood. */
std::optional<Request> parse(const QStringList &arguments, QString &misunderstood)
{
    Request request{arguments.value(0)};
    bool hasVerb = false;
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString option = arguments.at(i).toLower();
        misunderstood = arguments.at(i);
        if ((option == "/grant:r"_L1 || option == "/grant"_L1) && !hasVerb && arguments.value(i + 1).contains(u':'))
            request.grant = arguments.at(++i);
        else if (option == "/setowner"_L1 && !hasVerb && !arguments.value(i + 1).isEmpty())
            request.owner = arguments.at(++i);
        else if (option == "/l"_L1 || option == "/q"_L1 || option == "/c"_L1)
            continue;
        else if (option != "/reset"_L1 || hasVerb)
            return std::nullopt;
        hasVerb = true;
    }
    return hasVerb ? std::optional(request) : std::nullopt;
}

ToolResult summary(int exitCode, const QString &line)
{
    const bool done = exitCode == 0;
    const QString counts =
        u"Successfully processed %1 files; Failed processing %2 files\r\n"_s.arg(done ? 1 : 0).arg(done ? 0 : 1);
    return {exitCode, toConsoleBytes(done ? line + counts : counts), done ? QByteArray() : toConsoleBytes(line)};
}

} // namespace

ToolResult runIcacls(ToolHost &host, const QStringList &arguments)
{
    QString misunderstood;
    const std::optional<Request> request = parse(arguments, misunderstood);
    if (!request)
        return {exitInvalidParameter, {}, toConsoleBytes(u"Invalid parameter \"%1\"\r\n"_s.arg(misunderstood))};
    if (!QFileInfo::exists(host.hostPath(request->file)))
        return summary(exitFileNotFound, request->file + u": The system cannot find the file specified.\r\n"_s);
    if (!host.isElevated())
        return summary(exitAccessDenied, request->file + u": Access is denied.\r\n"_s);
    FileSecurity security = host.security(request->file);
    // Rights are the owner's to give; the owner himself is changed by a privilege of administrators.
    if (request->owner.isEmpty() && security.owner.isEmpty() && isOfWindows(request->file))
        return summary(exitAccessDenied, request->file + u": Access is denied.\r\n"_s);
    if (request->owner.isEmpty())
        security.rights = request->grant;
    else
        security.owner = request->owner == installationOwner ? QString() : request->owner;
    host.setSecurity(request->file, security);
    return summary(0, u"processed file: %1\r\n"_s.arg(request->file));
}
