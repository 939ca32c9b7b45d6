// SPDX-License-Identifier: GPL-3.0-or-later

#include "console/table.h"
#include "machine/machine.h"
#include "machine/resourcetext.h"
#include "machinelists.h"
#include "platform/windowsfacts.h"
#include "subcommands.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

void listServices(Machine &machine, const QString &, bool json)
{
    constexpr quint32 win32Bits = 0x30;

    const RegistryStore &store = machine.registry();
    QJsonArray array;
    QList<QStringList> rows;
    const auto services = store.find(WindowsKey::services);
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
