// SPDX-License-Identifier: GPL-3.0-or-later
// The list of packaged applications that can be removed.

#include "packages.h"
#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "work/interruption.h"
#include "work/keepfeatures.h"
#include "work/statusline.h"
#include "work/windowsname.h"
#include "work/workthread.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

/** The package by which one sees that a feature's packages are there. */
struct FeatureMark
{
    int WorkThread::*installed;
    QString package;
};

QList<FeatureMark> featureMarks()
{
    QList<FeatureMark> marks;
    for (const KeepFeature &feature : keepFeatures) {
        if (!feature.packages.isEmpty())
            marks.append({feature.installed, feature.packagesToBringBack().first()});
    }
    return marks;
}

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
    for (const KeepFeature &feature : keepFeaturesToBringBack()) {
        if (!feature.isKept(*this))
            nonVitalPackages += feature.packages;
        else if (feature.keep == &WorkThread::keepXboxApp && isWindows11(winName))
            nonVitalPackages += feature.superseded; // the old app, which Windows 11 has replaced
    }
}

void WorkThread::PackageGetList()
{
    choosePackages();
    packages.clear();
    const QList<FeatureMark> marks = featureMarks();
    const auto repository = platform().openKey(WindowsKey::userPackages);
    for (const QString &fullName : repository->childGroups()) {
        endIfInterrupted();
        const qsizetype end = fullName.indexOf(u'_');
        if (end < 0)
            continue;
        const QString familyName = fullName.first(end);
        // Each package overwrites what the one before it said: only the last one counts.
        for (const FeatureMark &mark : marks)
            this->*mark.installed = familyName.contains(mark.package, Qt::CaseInsensitive);
        if (!nonVitalPackages.contains(familyName)
            || fullName.startsWith("Microsoft.YourPhone_0.24112.110.0_neutral"_L1, Qt::CaseInsensitive))
            continue;
        const QString displayName = repository->value(fullName + u"/DisplayName"_s, familyName).toString();
        packages.append({familyName, shownName(displayName, familyName), packageComment(familyName)});
    }
    if (isPackageInstalled(oneDriveName)) {
        if (const QString uninstaller = oneDriveUninstaller(); !uninstaller.isEmpty())
            packages.append({oneDriveName, oneDriveName, uninstaller});
    }
    if (analyzeRunning == 0)
        report(StatusLine::packagesListed);
}
