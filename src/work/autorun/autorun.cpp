// SPDX-License-Identifier: GPL-3.0-or-later

#include "autorun.h"

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "runbackup.h"
#include "work/settings.h"
#include "work/workthread.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int taskOff = 1; // as if the user had switched it off
constexpr int taskOn = 2;

/** The keys of the packaged tasks, whose last parts are their names. */
const QString packagedTasks[] = {WindowsKey::terminalTask, WindowsKey::xboxTask};

QString lastPartOf(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'\\') + 1);
}

QString keyOf(const AutorunEntry &entry)
{
    return entry.path.left(entry.path.lastIndexOf(u'\\'));
}

QString valueNameOf(const AutorunEntry &entry)
{
    return lastPartOf(entry.path);
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

QList<AutorunRow> autorunRows()
{
    QList<AutorunRow> rows;
    for (const QString &run : WindowsKey::runKeys) {
        const auto key = platform().openKey(run);
        for (const QString &name : key->childKeys()) {
            const bool unnamed = name.isEmpty() || name == "."_L1;
            // The system's own icon of that name stays where the machine's key has it.
            const bool hidden =
                run == WindowsKey::machineRun && name.contains("SecurityHealth"_L1, Qt::CaseInsensitive);
            if (!unnamed && !hidden)
                rows.append(run + u'\\' + name + u'=' + key->value(name).toString());
        }
    }
    for (const QString &task : packagedTasks) {
        if (platform().openKey(task)->value(u"State"_s).toInt() == taskOn)
            rows.append(task + u'=');
    }
    return rows;
}

void WorkThread::AutorunGetList()
{
    autoruns = autorunRows();
}

AutorunEntry autorunEntry(const AutorunRow &row)
{
    const QStringList parts = row.split(u'=');
    const QString &path = parts.first();
    return {lastPartOf(path), path, parts.value(1)};
}

bool isPackagedTask(const QString &name)
{
    return std::any_of(std::begin(packagedTasks), std::end(packagedTasks),
                       [&name](const QString &task) { return name.contains(lastPartOf(task), Qt::CaseInsensitive); });
}

bool isPackagedTaskExactly(const QString &name)
{
    return std::any_of(std::begin(packagedTasks), std::end(packagedTasks),
                       [&name](const QString &task) { return name == lastPartOf(task); });
}

void disableAutorun(const AutorunEntry &entry)
{
    isPackagedTask(entry.name) ? disablePackagedTask(entry) : disableRunValue(entry);
}

void disableRunValue(const AutorunEntry &entry)
{
    // What brings the value back goes first, and without it the value stays: an exact copy, and the record.
    if (!backUpRunValue(keyOf(entry), valueNameOf(entry))) {
        LogError(u"disableRunValue: "_s + entry.path + u" can't be backed up and stays"_s);
        return;
    }
    const QString text = entry.command + u'=' + entry.path;
    record(u"Autorun"_s, entry.name, text);
    if (openRecords(u"Autorun"_s)->value(entry.name).toString() != text) {
        LogError(u"disableRunValue: "_s + entry.path + u" can't be recorded and stays"_s);
        return;
    }
    platform().openKey(keyOf(entry))->remove(valueNameOf(entry));
}

void disablePackagedTask(const AutorunEntry &entry)
{
    platform().openKey(entry.path)->setValue(u"State"_s, taskOff);
    record(u"Autorun"_s, entry.name, entry.path + u'=');
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
    if (!canBeRestored(command)) {
        LogError(u"enableRunValue: "_s + key + u'\\' + name + u" can't be brought back"_s);
        return;
    }
    const auto run = platform().openKey(key);
    // Recorded, and never removed. A record ends before an "=", and what is there must not be cut to it.
    if (run->value(name).toString().section(u'=', 0, 0) != command)
        run->setValue(name, command);
}

void enablePackagedTask(const QString &key)
{
    platform().openKey(key)->setValue(u"State"_s, taskOn);
}
