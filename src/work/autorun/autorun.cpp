// SPDX-License-Identifier: GPL-3.0-or-later

#include "autorun.h"

#include "platform/platform.h"
#include "platform/windowsfacts.h"
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
                rows.append(run + u'\\' + name + u'=' + key->ownValue(name).toString());
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
    return {shownAutorun(path), path, parts.value(1)};
}

AutorunEntry shownAutorunEntry(const AutorunRow &row)
{
    AutorunEntry entry = autorunEntry(row);
    if (entry.command.isEmpty())
        entry.command = entry.path;
    return entry;
}

AutorunEntry recordedAutorun(const QString &recordName)
{
    const QStringList parts = openRecords(u"Autorun"_s)->ownValue(recordName).toString().split(u'=');
    const QString path = parts.value(1).isEmpty() ? parts.first() : parts.at(1);
    return {shownAutorun(recordName), path, parts.first()};
}

QString shownAutorun(const QString &path)
{
    return path.sliced(path.lastIndexOf(u'\\') + 1);
}

RunValue runValueAt(const QString &path)
{
    for (const QString &run : WindowsKey::runKeys) {
        if (path.startsWith(run + u'\\', Qt::CaseInsensitive))
            return {path.first(run.size()), path.sliced(run.size() + 1)};
    }
    return {path.left(path.lastIndexOf(u'\\')), shownAutorun(path)};
}

QString registryName(const QString &listed)
{
    QString name = listed;
    for (QChar &unit : name)
        unit = unit == u'/' ? u'\\' : unit == u'\\' ? u'/' : unit;
    return name;
}

bool hasPartedName(const QString &path)
{
    const RunValue value = runValueAt(path);
    return WindowsKey::runKeys.contains(value.key, Qt::CaseInsensitive)
           && (value.name.contains(u'\\') || value.name.contains(u'/'));
}

bool isPackagedTask(const QString &name)
{
    return std::any_of(std::begin(packagedTasks), std::end(packagedTasks),
                       [&name](const QString &task) { return name.contains(shownAutorun(task), Qt::CaseInsensitive); });
}

bool isPackagedTaskExactly(const QString &name)
{
    return std::any_of(std::begin(packagedTasks), std::end(packagedTasks),
                       [&name](const QString &task) { return name == shownAutorun(task); });
}

void disableAutorun(const AutorunEntry &entry)
{
    isPackagedTask(entry.name) && !hasPartedName(entry.path) ? disablePackagedTask(entry) : disableRunValue(entry);
}

void disableRunValue(const AutorunEntry &entry)
{
    const RunValue value = runValueAt(entry.path);
    // What brings the value back goes first, and without it the value stays: an exact copy, and the record.
    if (!backUpRunValue(value.key, value.name)) {
        LogError(u"disableRunValue: "_s + entry.path + u" can't be backed up and stays"_s);
        return;
    }
    const QString text = entry.command + u'=' + entry.path;
    const auto records = openRecords(u"Autorun"_s);
    records->setOwnValue(value.name, text);
    records->flush();
    if (records->ownValue(value.name) != QVariant(text)) {
        LogError(u"disableRunValue: "_s + entry.path + u" can't be recorded and stays"_s);
        return;
    }
    platform().openKey(value.key)->removeOwnValue(value.name);
}

void disablePackagedTask(const AutorunEntry &entry)
{
    platform().openKey(entry.path)->setValue(u"State"_s, taskOff);
    record(u"Autorun"_s, entry.name, entry.path + u'=');
}

void enableAutorun(const AutorunEntry &entry)
{
    if (isPackagedTask(entry.name) && !hasPartedName(entry.path))
        enablePackagedTask(entry.path);
    else
        enableRunValue(runValueAt(entry.path), entry.command);
}

void enableRunValue(const RunValue &value, const QString &command)
{
    if (!canBeRestored(command)) {
        LogError(u"enableRunValue: "_s + value.key + u'\\' + value.name + u" can't be brought back"_s);
        return;
    }
    const auto run = platform().openKey(value.key);
    // Recorded, and never removed. A record ends before an "=", and what is there must not be cut to it.
    if (run->ownValue(value.name).toString().section(u'=', 0, 0) != command)
        run->setOwnValue(value.name, command);
}

void enablePackagedTask(const QString &key)
{
    platform().openKey(key)->setValue(u"State"_s, taskOn);
}
