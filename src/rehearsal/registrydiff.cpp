// SPDX-License-Identifier: GPL-3.0-or-later

#include "registrydiff.h"

#include "registrydisplay.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

// HKEY_CLASSES_ROOT is a view of a key in HKEY_LOCAL_MACHINE.
constexpr std::array hives{"HKEY_LOCAL_MACHINE"_L1, "HKEY_CURRENT_USER"_L1, "HKEY_USERS"_L1};

using KeyId = RegistryStore::KeyId;

/** Values or names of subkeys, found by name without regard to case. */
template<typename T>
using ByName = QMap<QString, T>;

class RegistryComparison
{
public:
    RegistryComparison(const RegistryStore &before, const RegistryStore &after, QList<DiffRow> &rows)
        : before_(before)
        , after_(after)
        , rows_(rows)
    {
    }

    void compare(const QString &path, std::optional<KeyId> before, std::optional<KeyId> after)
    {
        const ByName<RegistryValue> valuesBefore = values(before_, before);
        const ByName<RegistryValue> valuesAfter = values(after_, after);
        compareValues(path, valuesBefore, valuesAfter);

        const ByName<QString> keysBefore = subkeys(before_, before);
        const ByName<QString> keysAfter = subkeys(after_, after);
        if (before.has_value() != after.has_value() && valuesBefore.isEmpty() && valuesAfter.isEmpty()
            && keysBefore.isEmpty() && keysAfter.isEmpty())
            rows_.append(
                {DiffKind::Registry, path, QString(), before ? u"key"_s : QString(), after ? u"key"_s : QString()});

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
            const auto left = before.find(it.key());
            const auto right = after.find(it.key());
            DiffRow row{DiffKind::Registry, path, valueName(it.value()), QString(), QString()};
            if (left != before.end())
                row.before = valueText(*left);
            if (right != after.end())
                row.after = valueText(*right);
            if (left != before.end() && right != after.end() && left->type == right->type && left->data == right->data)
                continue;
            if (row.before == row.after) {
                row.before = rawValueText(*left);
                row.after = rawValueText(*right);
            }
            rows_.append(row);
        }
    }

    const RegistryStore &before_;
    const RegistryStore &after_;
    QList<DiffRow> &rows_;
};

} // namespace

void compareRegistries(const RegistryStore &before, const RegistryStore &after, QList<DiffRow> &rows)
{
    RegistryComparison comparison(before, after, rows);
    for (const QLatin1StringView hive : hives)
        comparison.compare(hive, before.find(hive), after.find(hive));
}
