// SPDX-License-Identifier: GPL-3.0-or-later
// OneDriveSetup: installs OneDrive for the user, and removes it.

#include "platform/windowsfacts.h"
#include "tools.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int exitFailed = 1;
constexpr qint64 programSize = 4812304; // bytes
constexpr qint64 setupSize = 52428800;  // bytes

const QString version = u"25.149.0803.0003"_s;
const QString uninstallKey = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall"_s;
const QString setupName = u"OneDriveSetup.exe"_s;

/** The folder that OneDrive lives in, as a Windows path. */
QString home()
{
    return qEnvironmentVariable("LOCALAPPDATA") + u"\\Microsoft\\OneDrive\\"_s;
}

ToolResult install(ToolHost &host)
{
    const QString program = home() + u"OneDrive.exe"_s;
    const QString setup = home() + version + u'\\' + setupName;
    const auto missing = [&host](const QString &path) { return !QFileInfo::exists(host.hostPath(path)); };
    if ((missing(program) && !host.makeFile(program, programSize))
        || (missing(setup) && !host.makeFile(setup, setupSize)))
        return {exitFailed};
    host.openKey(WindowsKey::userRun)->setValue(u"OneDrive"_s, u"\"%1\" /background"_s.arg(program));
    const auto key = host.openKey(uninstallKey + u'\\' + setupName);
    key->setValue(u"DisplayIcon"_s, program + u",0"_s);
    key->setValue(u"DisplayName"_s, u"Microsoft OneDrive"_s);
    key->setValue(u"DisplayVersion"_s, version);
    key->setValue(u"Publisher"_s, u"Microsoft Corporation"_s);
    key->setValue(u"UninstallString"_s, u"\"%1\"  /uninstall "_s.arg(setup)); // with these blanks
    return {};
}

/** The setup's own file stays: it is what runs. */
ToolResult uninstall(ToolHost &host)
{
    host.endProcesses(u"OneDrive.exe"_s);
    const QString program = host.hostPath(home() + u"OneDrive.exe"_s);
    if (QFileInfo::exists(program) && !QFile::remove(program))
        return {exitFailed};
    host.openKey(WindowsKey::userRun)->remove(u"OneDrive"_s);
    host.openKey(uninstallKey)->remove(setupName);
    return {};
}

} // namespace

ToolResult runOneDriveSetup(ToolHost &host, const QStringList &arguments)
{
    if (arguments == QStringList(u"/uninstall"_s))
        return uninstall(host);
    if (arguments == QStringList(u"/silent"_s))
        return install(host);
    return {exitFailed};
}
