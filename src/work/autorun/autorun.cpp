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

AutorunEntry autorunEntry(const AutorunRow &row)
{
    const QStringList parts = row.split(u'=');
    const QString &path = parts.first();
    return {path.sliced(path.lastIndexOf(u'\\') + 1), path, parts.value(1)};
}

bool isPackagedTask(const QString &name)
{
    return name.contains("StartTerminalOnLoginTask"_L1, Qt::CaseInsensitive)
           || name.contains("Xbox.App.Tasks.FullTrustComponent"_L1, Qt::CaseInsensitive);
}

void disableAutorun(const AutorunEntry &entry)
{
    isPackagedTask(entry.name) ? disablePackagedTask(entry) : disableRunValue(entry);
}

void disableRunValue(const AutorunEntry &entry)
{
    platform().openKey(keyOf(entry))->remove(valueNameOf(entry));
    openRecords(u"Autorun"_s)->setValue(entry.name, entry.command + u'=' + entry.path);
}

void disablePackagedTask(const AutorunEntry &entry)
{
    platform().openKey(entry.path)->setValue(u"State"_s, taskOff);
    openRecords(u"Autorun"_s)->setValue(entry.name, entry.path + u'=');
}

void enableAutorun(const AutorunEntry &entry)
{
    if (isPackagedTask(entry.name))
        enablePackagedTask(entry.path);
    else
        enableRunValue(keyOf(entry), valueNameOf(entry), entry.command);
}

void enableRunValue(const QString &key, const QString &name, const QString &command)
{
    if (canBeRestored(command))
        platform().openKey(key)->setValue(name, command);
}

void enablePackagedTask(const QString &key)
{
    platform().openKey(key)->setValue(u"State"_s, taskOn);
}
