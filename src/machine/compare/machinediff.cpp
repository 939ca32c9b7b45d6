// SPDX-License-Identifier: GPL-3.0-or-later

#include "machinediff.h"

#include "console/programinterruption.h"
#include "machine/database.h"
#include "machine/machine.h"
#include "platform/taskdocument.h"

#include <QCryptographicHash>

#include <algorithm>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

QString stateText(std::optional<bool> running)
{
    if (!running)
        return u"never started"_s;
    return *running ? u"running"_s : u"stopped"_s;
}

void compareServices(const Machine &before, const Machine &after, QList<DiffRow> &rows)
{
    QMap<QString, QString> names;
    for (const Machine *machine : {&after, &before}) {
        for (const QString &name : machine->runStates().keys())
            names.insert(foldName(name), name);
    }
    for (const QString &name : names) {
        const QString left = stateText(before.isRunning(name));
        const QString right = stateText(after.isRunning(name));
        if (left != right)
            rows.append({DiffKind::Service, name, QString(), left, right});
    }
}

QString switchText(const std::optional<ScheduledTask> &task)
{
    if (!task)
        return QString();
    return taskFacts(task->document).enabled ? u"enabled"_s : u"disabled"_s;
}

/** Tells documents apart that differ in more than the task's switch. */
QString documentText(const ScheduledTask &task)
{
    constexpr int digits = 8;
    const QByteArray hash = QCryptographicHash::hash(task.document.toUtf8(), QCryptographicHash::Sha256).toHex();
    return u", document of %1 characters, sha256 %2"_s.arg(task.document.size())
        .arg(QLatin1StringView(hash.first(digits)));
}

void compareTasks(const Machine &before, const Machine &after, QList<DiffRow> &rows)
{
    const auto without = [](const ScheduledTask &task) { return withTaskEnabled(task.document, true); };
    QMap<QString, QString> paths;
    for (const Machine *machine : {&after, &before}) {
        for (const QString &path : machine->taskPaths())
            paths.insert(foldName(path), path);
    }
    for (const QString &path : paths) {
        stopIfInterrupted();
        const std::optional<ScheduledTask> left = before.task(path);
        const std::optional<ScheduledTask> right = after.task(path);
        if (left && right && left->document == right->document)
            continue;
        DiffRow row{DiffKind::Task, path, QString(), switchText(left), switchText(right)};
        if (left && right && without(*left) != without(*right)) {
            row.before += documentText(*left);
            row.after += documentText(*right);
        }
        if (row.before != row.after)
            rows.append(row);
    }
}

/** "owner A\B, granted A\B:F" */
QString securityText(const FileSecurity &security)
{
    QStringList parts;
    if (!security.owner.isEmpty())
        parts.append(u"owner "_s + security.owner);
    if (!security.rights.isEmpty())
        parts.append(u"granted "_s + security.rights);
    return parts.isEmpty() ? u"as installed"_s : parts.join(u", "_s);
}

void compareSecurity(const Machine &before, const Machine &after, QList<DiffRow> &rows)
{
    QMap<QString, QString> paths;
    for (const Machine *machine : {&after, &before}) {
        for (const QString &path : machine->changedSecurity().keys())
            paths.insert(foldName(path), path);
    }
    for (const QString &path : paths) {
        const QString left = securityText(before.security(path));
        const QString right = securityText(after.security(path));
        if (left != right)
            rows.append({DiffKind::Security, path, QString(), left, right});
    }
}

void compareBootOptions(const Machine &before, const Machine &after, QList<DiffRow> &rows)
{
    const QMap<QString, QString> left = before.bootOptions();
    const QMap<QString, QString> right = after.bootOptions();
    QMap<QString, QString> all = left;
    all.insert(right);
    for (const QString &name : all.keys()) {
        if (left.value(name) != right.value(name))
            rows.append({DiffKind::BootOption, name, QString(), left.value(name), right.value(name)});
    }
}

bool isBefore(const DiffRow &left, const DiffRow &right)
{
    if (left.kind != right.kind)
        return left.kind < right.kind;
    if (const int order = left.path.compare(right.path, Qt::CaseInsensitive); order != 0)
        return order < 0;
    return left.name.compare(right.name, Qt::CaseInsensitive) < 0;
}

} // namespace

QString kindName(DiffKind kind)
{
    switch (kind) {
    case DiffKind::Service:
        return u"service"_s;
    case DiffKind::Task:
        return u"task"_s;
    case DiffKind::Registry:
        return u"registry"_s;
    case DiffKind::File:
        return u"file"_s;
    case DiffKind::Attribute:
        return u"attribute"_s;
    case DiffKind::Security:
        return u"rights"_s;
    case DiffKind::BootOption:
        return u"boot"_s;
    }
    return QString();
}

QList<DiffRow> compareMachines(Machine &before, Machine &after, const ProgressCallback &progress)
{
    const Database::Snapshot stillBefore(before.database());
    const Database::Snapshot stillAfter(after.database());
    if (progress)
        progress(u"registry"_s, 0, 2);
    QList<DiffRow> rows;
    compareRegistries(before.registry(), after.registry(), rows);
    if (progress)
        progress(u"services, tasks and files"_s, 1, 2);
    rows += compareBesidesRegistry(before, after);
    std::stable_sort(rows.begin(), rows.end(), isBefore);
    return rows;
}

QList<DiffRow> compareBesidesRegistry(Machine &before, Machine &after)
{
    const Database::Snapshot stillBefore(before.database());
    const Database::Snapshot stillAfter(after.database());
    QList<DiffRow> rows;
    compareServices(before, after, rows);
    compareTasks(before, after, rows);
    compareFiles(before, after, rows);
    compareSecurity(before, after, rows);
    compareBootOptions(before, after, rows);
    std::stable_sort(rows.begin(), rows.end(), isBefore);
    return rows;
}
