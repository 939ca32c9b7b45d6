// SPDX-License-Identifier: GPL-3.0-or-later
// The list of packaged applications that can be removed.

#include "packagecatalogue.h"
#include "platform/platform.h"
#include "work/interruption.h"
#include "work/statusline.h"
#include "work/windowsname.h"
#include "work/workthread.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString repositoryPath = u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\"
                               "CurrentVersion\\AppModel\\Repository\\Packages"_s;

bool exists(const QString &windowsPath)
{
    return QFileInfo::exists(platform().hostPath(windowsPath));
}

/** A name to show: the package's own, unless that is a reference into its resources. */
QString shownName(const QString &displayName, const QString &familyName)
{
    const bool reference = displayName.startsWith("ms-resource:"_L1) || displayName.startsWith("@{"_L1);
    return reference ? familyName : displayName;
}

/** OneDrive's uninstaller: the system's, or the one its own setup has registered. Empty where there is neither. */
QString oneDriveUninstaller()
{
    const QString ofSystem = qEnvironmentVariable("WINDIR") + u"\\System32\\OneDriveSetup.exe"_s;
    if (exists(ofSystem))
        return ofSystem;
    const auto key = platform().openKey(
        u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\OneDriveSetup.exe"_s);
    const QString command = key->value(u"UninstallString"_s, QString()).toString();
    if (!command.contains(".exe"_L1, Qt::CaseInsensitive))
        return {};
    QString program = command.split(u".exe"_s).first() + u".exe"_s;
    program.remove(u'"');
    return exists(program) ? program : QString();
}

} // namespace

void WorkThread::choosePackages()
{
    nonVitalPackages = removablePackageNames();
    if (keepXboxGameBar == 0)
        nonVitalPackages += xboxGameBarPackages();
    if (keepXboxApp == 0)
        nonVitalPackages += xboxAppPackages();
    else if (isWindows11(winName))
        nonVitalPackages += u"Microsoft.XboxApp"_s; // the old app, which Windows 11 has replaced
    if (keepCodecs == 0)
        nonVitalPackages += codecPackages();
}

void WorkThread::PackageGetList()
{
    choosePackages();
    packages.clear();
    const auto repository = platform().openKey(repositoryPath);
    for (const QString &fullName : repository->childGroups()) {
        endIfInterrupted();
        const qsizetype end = fullName.indexOf(u'_');
        if (end < 0)
            continue;
        const QString familyName = fullName.first(end);
        // Each package overwrites what the one before it said: only the last one counts.
        hasXboxGameBar = familyName.contains("Microsoft.XboxGamingOverlay"_L1, Qt::CaseInsensitive);
        hasXboxApp = familyName.contains("Microsoft.GamingApp"_L1, Qt::CaseInsensitive);
        hasCodecs = familyName.contains("Microsoft.AV1VideoExtension"_L1, Qt::CaseInsensitive);
        if (!nonVitalPackages.contains(familyName)
            || fullName.startsWith("Microsoft.YourPhone_0.24112.110.0_neutral"_L1, Qt::CaseInsensitive))
            continue;
        const QString displayName = repository->value(fullName + u"/DisplayName"_s, familyName).toString();
        packages.append({familyName, shownName(displayName, familyName), packageComment(familyName)});
    }
    if (exists(qEnvironmentVariable("LOCALAPPDATA") + u"\\Microsoft\\OneDrive\\OneDrive.exe"_s)) {
        if (const QString uninstaller = oneDriveUninstaller(); !uninstaller.isEmpty())
            packages.append({oneDriveName, oneDriveName, uninstaller});
    }
    if (analyzeRunning == 0)
        report(StatusLine::packagesListed);
}
