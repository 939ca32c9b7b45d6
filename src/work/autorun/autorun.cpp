// SPDX-License-Identifier: GPL-3.0-or-later

#include "autorun.h"

#include "platform/platform.h"
#include "work/settings.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr int taskOff = 1; // as if the user had switched it off
constexpr int taskOn = 2;

QString keyOf(const AutorunEntry &entry)
{
    return entry.path.left(entry.path.lastIndexOf(u'\\'));
}

QString valueNameOf(const AutorunEntry &entry)
{
    return entry.path.sliced(entry.path.lastIndexOf(u'\\') + 1);
}

/** The program of a command in double quotes is there. */
bool canBeRestored(const QString &command)
{
    if (!command.contains(u'"'))
        return false;
    const QString program = command.split(u'"').at(1);
    // An empty path is nowhere, and not the drive's root.
    return !program.isEmpty() && QFileInfo::exists(platform().hostPath(program));
}

} // namespace

bool isPackagedTask(const QString &name)
{
    return name.contains("StartTerminalOnLoginTask"_L1, Qt::CaseInsensitive)
           || name.contains("Xbox.App.Tasks.FullTrustComponent"_L1, Qt::CaseInsensitive);
}

void disableAutorun(const AutorunEntry &entry)
{
    const auto records = openRecords(u"Autorun"_s);
    if (isPackagedTask(entry.name)) {
        platform().openKey(entry.path)->setValue(u"State"_s, taskOff);
        records->setValue(entry.name, entry.path + u'=');
    } else {
        platform().openKey(keyOf(entry))->remove(valueNameOf(entry));
        records->setValue(entry.name, entry.command + u'=' + entry.path);
    }
}

void enableAutorun(const AutorunEntry &entry)
{
    if (isPackagedTask(entry.name))
        platform().openKey(entry.path)->setValue(u"State"_s, taskOn);
    else if (canBeRestored(entry.command))
        platform().openKey(keyOf(entry))->setValue(valueNameOf(entry), entry.command);
}
