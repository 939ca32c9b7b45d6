// SPDX-License-Identifier: GPL-3.0-or-later
// Cloud backup and restore.

#include "platform/platform.h"
#include "tweakcommand.h"
#include "windowstweaks.h"
#include "work/interruption.h"

using namespace Qt::StringLiterals;

namespace {

const QString servicesKey = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services"_s;
const QString servicePrefix = u"CloudBackupRestoreSvc_"_s;

void changeTask(const QString &name, bool apply)
{
    runTweakTool(u"schtasks"_s, {u"/CHANGE"_s, u"/TN"_s, u"\\Microsoft\\Windows\\CloudRestore\\"_s + name,
                                 apply ? u"/DISABLE"_s : u"/ENABLE"_s});
}

} // namespace

QString findCloudBackupService()
{
    QString name = u"null"_s;
    const QStringList values = platform().openKey(servicesKey)->allKeys();
    if (values.size() < 2)
        return name;
    for (const QString &value : values) {
        if (value.startsWith(servicePrefix, Qt::CaseInsensitive))
            name = QString(value).remove(u"/Type"_s);
        // The list is sorted: the service can't follow any more.
        if (value.startsWith(u'D', Qt::CaseInsensitive))
            break;
    }
    return name;
}

void setCloudBackupTweak(bool apply, const QString &service)
{
    constexpr int startOnDemand = 3;
    constexpr int startDisabled = 4;

    if (!service.startsWith(servicePrefix))
        return;
    platform().openKey(servicesKey + u'\\' + service)->setValue(u"Start"_s, apply ? startDisabled : startOnDemand);
    changeTask(u"Backup"_s, apply);
    pauseFor(350);
    changeTask(u"Restore"_s, apply);
}
