// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse list

#include "platform/simulated/machine.h"
#include "rehearsal/registrydisplay.h"
#include "rehearsal/resourcetext.h"
#include "subcommands.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** Columns as wide as they need to be; the last one is left ragged. */
QString table(const QList<QStringList> &rows)
{
    QList<qsizetype> widths;
    for (const QStringList &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row.at(i).size());
    }
    QString text;
    for (const QStringList &row : rows) {
        for (qsizetype i = 0; i + 1 < row.size(); ++i)
            text += row.at(i).leftJustified(widths.at(i)) + u"  "_s;
        text += row.last() + u'\n';
    }
    return text;
}

// This reads the store itself: the logic's own list writes a backup first, and opening a key by the seam can make it.
std::optional<quint32> number(const RegistryStore &store, RegistryStore::KeyId key, const QString &name)
{
    const std::optional<RegistryValue> value = store.value(key, name);
    if (!value || value->type != RegistryType::DWord || value->data.size() != sizeof(quint32))
        return std::nullopt;
    return qFromLittleEndian<quint32>(value->data.constData());
}

QString text(const RegistryStore &store, RegistryStore::KeyId key, const QString &name)
{
    const std::optional<RegistryValue> value = store.value(key, name);
    return value ? textOf(value->data) : QString();
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
    const auto services = store.find(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services"_s);
    QStringList names = services ? QStringList(store.subkeys(*services)) : QStringList();
    names.sort(Qt::CaseInsensitive);
    for (const QString &name : std::as_const(names)) {
        const auto key = store.find(*services, name);
        const std::optional<quint32> type = key ? number(store, *key, u"Type"_s) : std::nullopt;
        if (!type || (*type & win32Bits) == 0)
            continue;
        const QString state = machine.isRunning(name).value_or(false) ? u"running"_s : u"stopped"_s;
        const QString start = startWord(number(store, *key, u"Start"_s));
        QString displayName = resolveResourceText(machine, text(store, *key, u"DisplayName"_s));
        if (displayName.isEmpty())
            displayName = name;
        rows.append({name, state, start, displayName});
        array.append(QJsonObject{{u"name"_s, name},
                                 {u"state"_s, state},
                                 {u"start"_s, start},
                                 {u"type"_s, static_cast<qint64>(*type)},
                                 {u"displayName"_s, displayName}});
    }
    if (json)
        print(QJsonDocument(array).toJson());
    else
        print(table(rows));
}

void listProcesses(Machine &machine, const QString &, bool json)
{
    const QStringList processes = machine.processes();
    if (json)
        print(QJsonDocument(QJsonArray::fromStringList(processes)).toJson());
    else
        for (const QString &process : processes)
            print(process + u'\n');
}

void listRegistry(Machine &machine, const QString &path, bool json)
{
    const RegistryStore &store = machine.registry();
    const auto key = store.find(path);
    if (!key)
        throw Failure{ExitBadArguments, u"there is no key '%1'"_s.arg(path)};
    const QStringList subkeys = store.subkeys(*key);
    QJsonArray values;
    QList<QStringList> rows;
    for (const RegistryValue &value : store.values(*key)) {
        rows.append({valueName(value), typeName(value.type), dataText(value)});
        values.append(
            QJsonObject{{u"name"_s, value.name}, {u"type"_s, typeName(value.type)}, {u"data"_s, dataText(value)}});
    }
    if (json) {
        const QJsonObject object{
            {u"key"_s, path}, {u"subkeys"_s, QJsonArray::fromStringList(subkeys)}, {u"values"_s, values}};
        print(QJsonDocument(object).toJson());
        return;
    }
    for (const QString &subkey : subkeys)
        print(u'[' + subkey + u"]\n"_s);
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
    {"processes"_L1, false, listProcesses},
    {"registry"_L1,  true,  listRegistry},
};
// clang-format on

int runList(const Arguments &arguments)
{
    const QString what = arguments.operand(1);
    const auto row =
        std::find_if(std::begin(lists), std::end(lists), [&](const ListRow &list) { return list.name == what; });
    if (row == std::end(lists))
        throw UsageError{u"'%1' can't be listed"_s.arg(what)};
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
    "list"_L1, "DIR services|processes|registry KEY"_L1, "show what a machine has"_L1, options, 2, 3, runList,
};
