// SPDX-License-Identifier: GPL-3.0-or-later

#include "registrydiff.h"

#include "registrydisplay.h"

#include <array>
#include <tuple>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array hives{"HKEY_LOCAL_MACHINE"_L1, "HKEY_CURRENT_USER"_L1, "HKEY_USERS"_L1};

using KeyId = RegistryStore::KeyId;

/** Values or names of subkeys, found by name without regard to case. */
template<typename T>
using ByName = QMap<QString, T>;

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
        const ByName<RegistryValue> valuesBefore = values(before_, before);
        const ByName<RegistryValue> valuesAfter = values(after_, after);
        const ByName<QString> keysBefore = subkeys(before_, before);
        const ByName<QString> keysAfter = subkeys(after_, after);

        if (before.has_value() != after.has_value()) {
            RegistryDifference difference{.key = path, .ofKey = true, .keyWasThere = before.has_value()};
            difference.empty =
                valuesBefore.isEmpty() && valuesAfter.isEmpty() && keysBefore.isEmpty() && keysAfter.isEmpty();
            visit_(difference);
        }
        compareValues(path, valuesBefore, valuesAfter);

        ByName<QString> all = keysAfter;
        all.insert(keysBefore);
        for (auto it = all.begin(); it != all.end(); ++it)
            compare(path + u'\\' + it.value(), child(before_, before, keysBefore, it.key()),
                    child(after_, after, keysAfter, it.key()));
    }

private:
    static ByName<RegistryValue> values(const RegistryStore &store, std::optional<KeyId> key)
    {
        ByName<RegistryValue> map;
        if (key) {
            for (const RegistryValue &value : store.values(*key))
                map.insert(foldName(value.name), value);
        }
        return map;
    }

    static ByName<QString> subkeys(const RegistryStore &store, std::optional<KeyId> key)
    {
        ByName<QString> map;
        if (key) {
            for (const QString &name : store.subkeys(*key))
                map.insert(foldName(name), name);
        }
        return map;
    }

    static std::optional<KeyId> child(const RegistryStore &store, std::optional<KeyId> parent,
                                      const ByName<QString> &subkeys, const QString &name)
    {
        const auto it = subkeys.find(name);
        return it == subkeys.end() ? std::nullopt : store.find(*parent, it.value());
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
