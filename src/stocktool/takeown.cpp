// SPDX-License-Identifier: GPL-3.0-or-later
// takeown: makes the user the owner of a file.

#include "console/console.h"
#include "tools.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int exitFailed = 1;

ToolResult failed(const QString &reason)
{
    return {exitFailed, {}, toConsoleBytes(u"ERROR: "_s + reason + u"\r\n"_s)};
}

} // namespace

ToolResult runTakeown(ToolHost &host, const QStringList &arguments)
{
    if (arguments.size() != 2 || arguments.at(0).compare("/f"_L1, Qt::CaseInsensitive) != 0)
        return failed(u"Invalid syntax.\r\nType \"TAKEOWN /?\" for usage."_s);
    const QString &file = arguments.at(1);
    if (!QFileInfo::exists(host.hostPath(file)))
        return failed(u"The system cannot find the file specified."_s);
    if (!host.isElevated()) {
        return failed(u"The current logged on user does not have ownership privileges on\r\n"
                      "       the file (or folder) \"%1\"."_s.arg(file));
    }
    const QString user = qEnvironmentVariable("USERDOMAIN") + u'\\' + qEnvironmentVariable("USERNAME");
    FileSecurity security = host.security(file);
    security.owner = user;
    host.setSecurity(file, security);
    return {0, toConsoleBytes(
                   u"\r\nSUCCESS: The file (or folder): \"%1\" now owned by user \"%2\".\r\n"_s.arg(file, user))};
}
