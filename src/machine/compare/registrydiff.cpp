// SPDX-License-Identifier: GPL-3.0-or-later

#include "machinediff.h"

#include "console/programinterruption.h"
#include "machine/registrydisplay.h"

#include <array>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array hives{"HKEY_LOCAL_MACHINE"_L1, "HKEY_CURRENT_USER"_L1, "HKEY_USERS"_L1};

using KeyId = RegistryStore::KeyId;

/** Found by name without regard to case. */
template<typename T>
using ByName = QMap<QString, T>;
using Subkeys = ByName<RegistrySubkey>;

class RegistryComparison
{
public:
    RegistryComparison(const RegistryStore &before, const RegistryStore &after,
                       const std::function<void(const RegistryDifference &)> &visit)
        : before_(before)
        , after_(after)
        , visit_(visit)
    {
    }

    void compare(const QString &path, std::optional<KeyId> before, std::optional<KeyId> after)
    {
        stopIfInterrupted();
        // In most keys nothing differs.
        const bool differs = !before || !after || !before_.hasSameValues(*before, after_, *after);
        const QList<RegistryValue> valuesBefore = before && differs ? before_.values(*before) : QList<RegistryValue>();
        const QList<RegistryValue> valuesAfter = after && differs ? after_.values(*after) : QList<RegistryValue>();
        const Subkeys keysBefore = before ? before_.subkeysByName(*before) : Subkeys();
        const Subkeys keysAfter = after ? after_.subkeysByName(*after) : Subkeys();

        if (before.has_value() != after.has_value()) {
            RegistryDifference difference{.key = path, .ofKey = true, .keyWasThere = before.has_value()};
            difference.empty =
                valuesBefore.isEmpty() && valuesAfter.isEmpty() && keysBefore.isEmpty() && keysAfter.isEmpty();
            visit_(difference);
        }
        if (differs)
            compareValues(path, byName(valuesBefore), byName(valuesAfter));

        Subkeys all = keysAfter;
        all.insert(keysBefore);
        for (auto it = all.begin(); it != all.end(); ++it)
            compare(path + u'\\' + it->name, idOf(keysBefore, it.key()), idOf(keysAfter, it.key()));
    }

private:
    static ByName<RegistryValue> byName(const QList<RegistryValue> &values)
    {
        ByName<RegistryValue> map;
        for (const RegistryValue &value : values)
            map.insert(foldName(value.name), value);
        return map;
    }

    static std::optional<KeyId> idOf(const Subkeys &subkeys, const QString &name)
    {
        const auto it = subkeys.find(name);
        return it == subkeys.end() ? std::nullopt : std::optional(it->id);
    }

    void compareValues(const QString &path, const ByName<RegistryValue> &before, const ByName<RegistryValue> &after)
    {
        ByName<RegistryValue> all = after;
        all.insert(before);
        for (auto it = all.begin(); it != all.end(); ++it) {
            RegistryDifference difference{.key = path};
            if (const auto left = before.find(it.key()); left != before.end())
                difference.before = *left;
            if (const auto right = after.find(it.key()); right != after.end())
                difference.after = *right;
            if (difference.before && difference.after && difference.before->type == difference.after->type
                && difference.before->data == difference.after->data)
                continue;
            visit_(difference);
        }
    }

    const RegistryStore &before_;
    const RegistryStore &after_;
    const std::function<void(const RegistryDifference &)> &visit_;
};

DiffRow keyRow(const RegistryDifference &difference)
{
    const bool was = difference.keyWasThere;
    return {DiffKind::Registry, difference.key, QString(), was ? u"key"_s : QString(), was ? QString() : u"key"_s};
}

DiffRow valueRow(const RegistryDifference &difference)
{
    const auto &[before, after] = std::tie(difference.before, difference.after);
    DiffRow row{DiffKind::Registry, difference.key, valueName(before ? *before : *after), QString(), QString()};
    if (before)
        row.before = valueText(*before);
    if (after)
        row.after = valueText(*after);
    if (row.before == row.after) {
        row.before = rawValueText(*before);
        row.after = rawValueText(*after);
    }
    return row;
}

} // namespace

void eachRegistryDifference(const RegistryStore &before, const RegistryStore &after,
                            const std::function<void(const RegistryDifference &)> &visit)
{
    RegistryComparison comparison(before, after, visit);
    for (const QLatin1StringView hive : hives)
        comparison.compare(hive, before.find(hive), after.find(hive));
}

void compareRegistries(const RegistryStore &before, const RegistryStore &after, QList<DiffRow> &rows)
{
    eachRegistryDifference(before, after, [&rows](const RegistryDifference &difference) {
        if (!difference.ofKey)
            rows.append(valueRow(difference));
        else if (difference.empty)
            rows.append(keyRow(difference));
    });
}
