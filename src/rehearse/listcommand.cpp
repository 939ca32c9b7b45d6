// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse list

#include "console/table.h"
#include "machine/machine.h"
#include "machine/registrydisplay.h"
#include "machinelists.h"
#include "subcommands.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

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
    "list"_L1,
    "DIR services|tasks|packages|autorun|processes|registry KEY"_L1,
    "show what a machine has"_L1,
    options,
    2,
    3,
    runList,
};
