// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse list: what a machine has. It reads the machine itself: the logic's own lists make files and keys.

#include "console/printable.h"
#include "machine/machine.h"
#include "machine/registrydisplay.h"
#include "platform/taskdocument.h"
#include "platform/windowsfacts.h"
#include "subcommands.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtEndian>

#include <algorithm>

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

std::optional<quint32> number(const RegistryStore &store, std::optional<KeyId> key, const QString &name)
{
    const std::optional<RegistryValue> value = key ? store.value(*key, name) : std::nullopt;
    if (!value || value->type != RegistryType::DWord || value->data.size() != sizeof(quint32))
        return std::nullopt;
    return qFromLittleEndian<quint32>(value->data.constData());
}

/** Rows in columns as wide as they need to be; the last one is left ragged. */
QString table(QList<QStringList> rows)
{
    QList<qsizetype> widths;
    for (QStringList &row : rows)
        std::transform(row.cbegin(), row.cend(), row.begin(), printable);
    for (const QStringList &row : std::as_const(rows)) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row.at(i).size());
    }
    QString text;
    for (const QStringList &row : std::as_const(rows)) {
        QString line;
        for (qsizetype i = 0; i + 1 < row.size(); ++i)
            line += row.at(i).leftJustified(widths.at(i)) + u"  "_s;
        line += row.last();
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + u'\n';
    }
    return text;
}

void printRows(const QList<QStringList> &rows, const QJsonArray &array, bool json)
{
    if (json)
        print(printableJson(QJsonDocument(array)));
    else
        print(table(rows));
}

QString startWord(std::optional<quint32> start)
{
    static const QStringList words{u"boot"_s, u"system"_s, u"auto"_s, u"manual"_s, u"disabled"_s};
    return start ? words.value(*start, QString::number(*start)) : u"-"_s;
}

void listServices(Machine &machine, const QString &, bool json)
{
    constexpr quint32 win32Bits = 0x30;

    const RegistryStore &store = machine.registry();
    QJsonArray array;
    QList<QStringList> rows;
    const auto services = store.find(WindowsKey::services);
    for (const QString &name : subkeys(store, services)) {
        const auto key = store.find(*services, name);
        const std::optional<quint32> type = number(store, key, u"Type"_s);
        if (!type || (*type & win32Bits) == 0)
            continue;
        const QString state = machine.isRunning(name).value_or(false) ? u"running"_s : u"stopped"_s;
        const QString start = startWord(number(store, key, u"Start"_s));
        QString displayName = resolveResourceText(machine, text(store, key, u"DisplayName"_s));
        if (displayName.isEmpty())
            displayName = name;
        rows.append({name, state, start, displayName});
        array.append(QJsonObject{{u"name"_s, name},
                                 {u"state"_s, state},
                                 {u"start"_s, start},
                                 {u"type"_s, static_cast<qint64>(*type)},
                                 {u"displayName"_s, displayName}});
    }
    printRows(rows, array, json);
}

QString description(const Machine &machine, const QString &text)
{
    const bool reference = text.startsWith("$(@"_L1) && text.endsWith(u')');
    return reference ? resolveResourceText(machine, text.sliced(2).chopped(1)) : text;
}

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
            if (const auto state = number(store, store.find(*packageKey, task), u"State"_s))
                entries.append({WindowsKey::packagedTasks + u'\\' + package + u'\\' + task, QString(), *state == on});
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

void listProcesses(Machine &machine, const QString &, bool json)
{
    const QStringList processes = machine.processes();
    if (json)
        print(printableJson(QJsonDocument(QJsonArray::fromStringList(processes))));
    else
        for (const QString &process : processes)
            print(printable(process) + u'\n');
}

void listRegistry(Machine &machine, const QString &path, bool json)
{
    const RegistryStore &store = machine.registry();
    const KeyId key = requireKey(store, path);
    const QStringList subkeys = store.subkeys(key);
    QJsonArray values;
    QList<QStringList> rows;
    for (const RegistryValue &value : store.values(key)) {
        rows.append({valueName(value), typeName(value.type), dataText(value)});
        values.append(
            QJsonObject{{u"name"_s, value.name}, {u"type"_s, typeName(value.type)}, {u"data"_s, dataText(value)}});
    }
    if (json) {
        const QJsonObject object{
            {u"key"_s, path}, {u"subkeys"_s, QJsonArray::fromStringList(subkeys)}, {u"values"_s, values}};
        print(printableJson(QJsonDocument(object)));
        return;
    }
    for (const QString &subkey : subkeys)
        print(u'[' + printable(subkey) + u"]\n"_s);
    print(table(rows));
}

struct ListRow
{
    QLatin1StringView name;
    bool takesKey;
    void (*list)(Machine &machine, const QString &key, bool json);
};

// clang-format off
constexpr ListRow lists[] = {
    {"services"_L1,  false, listServices},
    {"tasks"_L1,     false, listTasks},
    {"packages"_L1,  false, listPackages},
    {"autorun"_L1,   false, listAutorun},
    {"processes"_L1, false, listProcesses},
    {"registry"_L1,  true,  listRegistry},
};
// clang-format on

int runList(const Arguments &arguments)
{
    const QString what = arguments.operand(1);
    const auto row =
        std::find_if(std::begin(lists), std::end(lists), [&](const ListRow &list) { return list.name == what; });
    if (row == std::end(lists)) {
        QStringList names;
        for (const ListRow &list : lists)
            names.append(list.name);
        throw UsageError{u"'%1' can't be listed"_s.arg(what) + choicesText(what, u"Lists"_s, names)};
    }
    if (row->takesKey && arguments.operands().size() < 3)
        throw UsageError{u"missing operand after '%1'"_s.arg(what)};
    if (!row->takesKey && arguments.operands().size() > 2)
        throw UsageError{u"extra operand '%1'"_s.arg(arguments.operand(2))};
    const std::unique_ptr<Machine> machine = openMachine(arguments.operand(0));
    row->list(*machine, arguments.operand(2), arguments.has("json"_L1));
    return ExitDone;
}

constexpr OptionRow options[] = {
    {"json"_L1, {}, "print JSON"_L1},
};

} // namespace

const Subcommand listSubcommand{
    "list"_L1,
    "DIR services|tasks|packages|autorun|processes|registry KEY"_L1,
    "show what a machine has"_L1,
    options,
    2,
    3,
    runList,
};
