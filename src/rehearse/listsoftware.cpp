// SPDX-License-Identifier: GPL-3.0-or-later
// Scheduled tasks, packaged applications and what starts at logon.

#include "console/table.h"
#include "machine/machine.h"
#include "machine/resourcetext.h"
#include "machine/taskdocument.h"
#include "machinelists.h"
#include "platform/windowsfacts.h"
#include "subcommands.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

using KeyId = RegistryStore::KeyId;

QStringList subkeys(const RegistryStore &store, std::optional<KeyId> key)
{
    QStringList names = key ? QStringList(store.subkeys(*key)) : QStringList();
    names.sort(Qt::CaseInsensitive);
    return names;
}

QString text(const RegistryStore &store, std::optional<KeyId> key, const QString &name)
{
    const std::optional<RegistryValue> value = key ? store.value(*key, name) : std::nullopt;
    return value ? textOf(value->data) : QString();
}

QString description(const Machine &machine, const QString &text)
{
    const bool reference = text.startsWith("$(@"_L1) && text.endsWith(u')');
    return reference ? resolveResourceText(machine, text.sliced(2).chopped(1)) : text;
}

/** One that starts at logon, or that is switched off. */
struct Entry
{
    QString path;
    QString command;
    bool enabled = true;
};

void appendPackagedTasks(const RegistryStore &store, QList<Entry> &entries)
{
    constexpr quint32 on = 2;

    const auto packages = store.find(WindowsKey::packagedTasks);
    for (const QString &package : subkeys(store, packages)) {
        const auto packageKey = store.find(*packages, package);
        for (const QString &task : subkeys(store, packageKey)) {
            const auto state = store.value(*store.find(*packageKey, task), u"State"_s);
            if (state && state->type == RegistryType::DWord && state->data.size() == sizeof(quint32))
                entries.append({WindowsKey::packagedTasks + u'\\' + package + u'\\' + task, QString(),
                                qFromLittleEndian<quint32>(state->data.constData()) == on});
        }
    }
}

QList<Entry> autorunEntries(const RegistryStore &store)
{
    QList<Entry> entries;
    for (const QString &path : WindowsKey::runKeys) {
        const auto key = store.find(path);
        for (const QString &name : key ? store.valueNames(*key) : QStringList()) {
            if (!name.isEmpty())
                entries.append({path + u'\\' + name, text(store, key, name)});
        }
    }
    appendPackagedTasks(store, entries);
    return entries;
}

void printRows(const QList<QStringList> &rows, const QJsonArray &array, bool json)
{
    if (json)
        print(QJsonDocument(array).toJson());
    else
        print(table(rows));
}

} // namespace

void listTasks(Machine &machine, const QString &, bool json)
{
    QList<QStringList> rows;
    QJsonArray array;
    for (const ScheduledTask &task : machine.tasks()) {
        const TaskFacts facts = taskFacts(task.document);
        const QString state = facts.enabled ? u"enabled"_s : u"disabled"_s;
        const QString shown = description(machine, facts.description);
        rows.append({task.path, state, shown});
        array.append(QJsonObject{{u"path"_s, task.path}, {u"state"_s, state}, {u"description"_s, shown}});
    }
    printRows(rows, array, json);
}

void listPackages(Machine &machine, const QString &, bool json)
{
    const RegistryStore &store = machine.registry();
    const auto packages = store.find(WindowsKey::userPackages);
    QList<QStringList> rows;
    QJsonArray array;
    for (const QString &fullName : subkeys(store, packages)) {
        const QString name = packageNameOf(fullName);
        const QString displayName = text(store, store.find(*packages, fullName), u"DisplayName"_s);
        rows.append({name, fullName, displayName});
        array.append(QJsonObject{{u"name"_s, name}, {u"fullName"_s, fullName}, {u"displayName"_s, displayName}});
    }
    printRows(rows, array, json);
}

void listAutorun(Machine &machine, const QString &, bool json)
{
    QList<QStringList> rows;
    QJsonArray array;
    for (const Entry &entry : autorunEntries(machine.registry())) {
        const QString name = entry.path.section(u'\\', -1);
        const QString state = entry.enabled ? u"enabled"_s : u"disabled"_s;
        rows.append({name, state, entry.path, entry.command});
        array.append(QJsonObject{
            {u"name"_s, name}, {u"state"_s, state}, {u"path"_s, entry.path}, {u"command"_s, entry.command}});
    }
    printRows(rows, array, json);
}
