// SPDX-License-Identifier: GPL-3.0-or-later
// Removing packaged applications, and bringing them back.

#include "packages.h"

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "work/command.h"
#include "work/interruption.h"
#include "work/settings.h"
#include "work/statusline.h"
#include "work/workthread.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int settleDelay = 300;
const QString oldXboxApp = u"Microsoft.XboxApp"_s;
const char oldXboxAppRemark[] = QT_TRANSLATE_NOOP("WorkThread", "Old Xbox App, no longer supported!");

QString quoted(const QString &path)
{
    return u'"' + path + u'"';
}

void startOneDriveSetup(Command &command, const PackageRow &row, bool install)
{
    if (!install) {
        command.start(quoted(row.comment), {u"/uninstall"_s});
        return;
    }
    const QString setup = qEnvironmentVariable("WINDIR") + u"\\SysWOW64\\OneDriveSetup.exe"_s;
    if (QFileInfo::exists(platform().hostPath(setup)))
        command.start(quoted(setup), {u"/silent"_s});
}

void startPowerShell(Command &command, const QString &program, const QString &name, bool install)
{
    if (install) {
        command.start(program, {u"-Command"_s, u"Get-AppxPackage"_s, u"-allusers"_s, name,
                                u" | Foreach {Add-AppxPackage -DisableDevelopmentMode -Register "
                                "\"$($_.InstallLocation)\\AppXManifest.xml\"}"_s});
    } else {
        command.start(program, {u"-Command"_s, u"Get-AppxPackage"_s, name, u"| Remove-AppxPackage"_s});
    }
}

/** These two leave an entry in the list of programs started at logon. */
void forgetOneDriveStartup(const QString &name)
{
    if (name != "microsoft.microsoftskydrive"_L1 && name != "Microsoft.OneDrive"_L1)
        return;
    platform()
        .openKey(u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\StartupApproved\\Run"_s)
        ->remove(u"OneDrive"_s);
}

QString automatizerText(const Command &command, const QString &name, bool install)
{
    QString text;
    if (command.exitCode() == 0) {
        text = install ? WorkThread::tr("Windows application: install %1 done")
                       : WorkThread::tr("Windows application: uninstall %1 done");
    } else {
        text = (install ? WorkThread::tr("Windows application: ERROR install %1: ")
                        : WorkThread::tr("Windows application: ERROR uninstall %1: "))
               + command.errorString();
    }
    return text.replace(u"%1"_s, name);
}

QString withRemark(const QString &remark)
{
    return oldXboxApp + u" ("_s + remark + u") "_s;
}

QString pageText(const QString &header, const QString &name, int exitCode)
{
    if (name == oldXboxApp && exitCode == 0) {
        // The word is the same in every language here, so that the page takes no record of it in some.
        return header + u"   package: "_s + oldXboxAppRecord() + u": "_s + WorkThread::tr("done");
    }
    return header + u"   "_s + WorkThread::tr("package: ") + name + u": "_s
           + (exitCode == 0 ? WorkThread::tr("done") : WorkThread::tr("error"));
}

} // namespace

QString oldXboxAppRecord()
{
    return withRemark(WorkThread::tr(oldXboxAppRemark));
}

QString recordedPackage(const QString &record)
{
    const bool isRemarked = record == oldXboxAppRecord() || record == withRemark(QLatin1StringView(oldXboxAppRemark));
    return isRemarked ? oldXboxApp : record;
}

bool isPackageInstalled(const QString &name)
{
    if (name == oneDriveName) {
        const QString program = qEnvironmentVariable("LOCALAPPDATA") + u"\\Microsoft\\OneDrive\\OneDrive.exe"_s;
        return QFileInfo::exists(platform().hostPath(program));
    }
    const QStringList fullNames = platform().openKey(WindowsKey::userPackages)->childGroups();
    return std::any_of(fullNames.cbegin(), fullNames.cend(), [&name](const QString &fullName) {
        return packageNameOf(fullName).compare(name, Qt::CaseInsensitive) == 0;
    });
}

void recordPackageLine(const QString &line, bool install)
{
    const QString mark = WorkThread::tr("package: ");
    const QString done = WorkThread::tr("done");
    if (!line.endsWith(done))
        return;
    if (install && line.contains(u"package: "_s + oldXboxAppRecord())) {
        // By whatever name it is recorded
        for (const QString &name : recordedNames(u"Packages"_s)) {
            if (recordedPackage(name) == oldXboxApp)
                openRecords(u"Packages"_s)->remove(name);
        }
        return;
    }
    if (!line.contains(mark))
        return;
    const QString name = line.split(mark).at(1).split(u": "_s + done).first();
    if (name.isEmpty())
        return; // names the whole group
    if (install)
        openRecords(u"Packages"_s)->remove(name);
    else
        record(u"Packages"_s, name, 1);
}

QString WorkThread::powerShellProgram()
{
    powerShellPath = qEnvironmentVariable("windir") + u"/system32/WindowsPowerShell/v1.0/powershell.exe"_s;
    return QFileInfo::exists(platform().hostPath(powerShellPath)) ? powerShellPath : QString();
}

int WorkThread::PackageSetState(const QList<PackageRow> &list, bool install)
{
    const QString header = u"   "_s + (install ? tr("Install") : tr("Uninstall"));
    int exitCode = -1;
    int counter = 1;
    for (const PackageRow &row : list) {
        Command command;
        command.discardOutput();
        if (row.name == oneDriveName)
            startOneDriveSetup(command, row, install);
        else
            startPowerShell(command, powerShellProgram(), row.name, install);
        forgetOneDriveStartup(row.name);
        command.waitForFinished();
        // Half a removal is worse than a slow one.
        if (command.leaveRunning())
            LogError(u"PackageSetState: "_s + row.name + u", still running"_s);
        exitCode = command.exitCode();
        const bool forAutomatizer = optimizeRunning == 1 || restoreRunning == 1;
        // Before the pause: nothing would remember the package if the run ended there. One that was installed is
        // recorded too: under the Automatizer the group only grows.
        if (forAutomatizer && exitCode == 0)
            record(u"Packages"_s, row.name, 1);
        pauseFor(settleDelay);

        if (forAutomatizer) {
            reportToAutomatizer(automatizerText(command, row.name, install));
            reportToAutomatizer(StatusLine::step(counter));
        } else {
            report(pageText(header, row.name, exitCode));
        }
        ++counter;
    }
    packageJobIdle = true;
    if (optimizeRunning == 0)
        report(header + u"   "_s + tr("packages finished") + u"  "_s);
    return exitCode;
}
