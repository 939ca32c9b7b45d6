// SPDX-License-Identifier: GPL-3.0-or-later
// How services are set to start: the one-time backup, and those that needn't start by themselves.

#include "services.h"

#include "platform/platform.h"
#include "platform/registryscript.h"
#include "platform/windowsfacts.h"
#include "work/backups.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

// A text file on Windows turns the line feed of "\r\n" into "\r\n" once more. The registry editor reads such files, and
// the backups people already have look like this.
const QString lineEnd = u"\r\r\n"_s;

// In the program folder
const QString backupName = u"backup_svc/StartMode.reg"_s;

QString startModes()
{
    QString script = registryScriptHead + lineEnd + lineEnd;
    const QStringList exclusions = startModeBackupExclusions();
    const auto services = platform().openKey(WindowsKey::services);
    for (const QString &name : services->childGroups()) {
        if (exclusions.contains(name))
            continue;
        services->beginGroup(name);
        const QString type = services->value(u"Type"_s).toString();
        const QString start = services->value(u"Start"_s).toString();
        services->endGroup();
        if (type != "32"_L1)
            continue;
        script += u'[' + WindowsKey::services + u'\\' + name + u']' + lineEnd;
        // Start modes have one digit, so that seven zeros make it eight.
        script += u"\"Start\"=dword:0000000"_s + start + lineEnd;
    }
    return script;
}

/** Opened above the service: opening the key of one that isn't there would make it. */
std::unique_ptr<RegistryKey> openServices()
{
    return platform().openKey(WindowsKey::services);
}

} // namespace

QString startModeBackupFile()
{
    return platform().programFolder() + u'/' + backupName;
}

int WriteStartModeBackup()
try {
    const QString file = startModeBackupFile();
    const BackupState state = backupState(file, isCompleteScript);
    if (state == BackupState::Complete || (state == BackupState::CutOff && !setAside(file)))
        return -1;
    const bool written =
        platform().writeFile(platform().programFolder(), backupName, startModes().toUtf8(), IfThere::Keep);
    return written ? 0 : -1;
} catch (QFileDevice::FileError) {
    return 2;
} catch (const std::exception &) {
    return 1;
}

bool startsByItself(const QString &service)
{
    const int start = openServices()->value(service + u"/Start"_s, 0).toInt();
    return start != StartDisabled && start != StartOnDemand && start != 0;
}

void setManualStart(const QString &service)
{
    openServices()->setValue(service + u"/Start"_s, StartOnDemand);
}
