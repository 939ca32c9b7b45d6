// SPDX-License-Identifier: GPL-3.0-or-later
// The registry of a rehearsal machine: keys and typed values in its database.

#include "registrystore.h"

#include "database.h"
#include "machineerror.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using KeyId = RegistryStore::KeyId;

constexpr KeyId noParent = 0; // of the hives
constexpr KeyId noKey = -1;   // never made, so that it finds and takes nothing

struct Hive
{
    QStringView name;
    QStringView shortName;
    QStringView place; // where its keys are kept
};

// clang-format off
constexpr Hive hives[] = {
    {u"HKEY_LOCAL_MACHINE",  u"HKLM", u"HKEY_LOCAL_MACHINE"},
    {u"HKEY_CURRENT_USER",   u"HKCU", u"HKEY_CURRENT_USER"},
    {u"HKEY_USERS",          u"HKU",  u"HKEY_USERS"},
    {u"HKEY_CLASSES_ROOT",   u"HKCR", u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Classes"},
    {u"HKEY_CURRENT_CONFIG", u"HKCC", u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Hardware Profiles\\Current"},
};
// clang-format on

const Hive *hiveOf(QStringView name)
{
    const auto *hive = std::find_if(std::begin(hives), std::end(hives), [name](const Hive &each) {
        return name.compare(each.name, Qt::CaseInsensitive) == 0
               || name.compare(each.shortName, Qt::CaseInsensitive) == 0;
    });
    return hive == std::end(hives) ? nullptr : hive;
}

QStringList levels(QStringView path)
{
    QStringList result;
    for (const QStringView level : path.split(u'\\', Qt::SkipEmptyParts))
        result << level.toString();
    return result;
}

/** The names from a hive's own place down to the key; none outside the hives. */
QStringList realLevels(const QString &path)
{
    QStringList result = levels(path);
    const Hive *hive = result.isEmpty() ? nullptr : hiveOf(result.first());
    if (!hive)
        return {};
    result.removeFirst();
    return levels(hive->place) + result;
}

} // namespace

QString foldName(const QString &name)
{
    QString result = name;
    for (QChar &unit : result)
        unit = unit.toUpper();
    return result;
}

RegistryStore::RegistryStore(Database &database)
    : database_(database)
{
}

bool RegistryStore::isHivePath(const QString &path)
{
    return !realLevels(path).isEmpty();
}

bool RegistryStore::isSystemKey(KeyId key) const
{
    auto query = database_.query("SELECT 1 FROM key JOIN key AS hive ON hive.id = key.parent WHERE key.id = ? "
                                 "AND key.fold = 'SYSTEM' AND hive.fold = 'HKEY_LOCAL_MACHINE' AND hive.parent = 0");
    return query.bind(key).next();
}

QString RegistryStore::realName(KeyId parent, const QString &name) const
{
    const bool alias = name.compare(u"ControlSet001", Qt::CaseInsensitive) == 0 && isSystemKey(parent);
    return alias ? u"CurrentControlSet"_s : name;
}

std::optional<KeyId> RegistryStore::child(KeyId parent, const QString &name) const
{
    auto query = database_.query("SELECT id FROM key WHERE parent = ? AND fold = ?");
    if (!query.bind(parent).bind(foldName(realName(parent, name))).next())
        return {};
    return query.integer(0);
}

std::optional<KeyId> RegistryStore::find(const QString &path) const
{
    const QStringList names = realLevels(path);
    if (names.isEmpty())
        return {};
    return find(noParent, names.join(u'\\'));
}

std::optional<KeyId> RegistryStore::find(KeyId parent, const QString &relativePath) const
{
    std::optional<KeyId> key = parent;
    for (const QString &name : levels(relativePath)) {
        key = child(*key, name);
        if (!key)
            break;
    }
    return key;
}

std::optional<KeyId> RegistryStore::make(const QString &path)
{
    const QStringList names = realLevels(path);
    if (names.isEmpty())
        return {};
    return make(noParent, names.join(u'\\'));
}

KeyId RegistryStore::make(KeyId parent, const QString &relativePath)
{
    // What is there is found without taking the right to write from other processes.
    if (const std::optional<KeyId> found = find(parent, relativePath))
        return *found;
    const QStringList below = levels(relativePath);
    if (levelOf(parent) + below.size() > mostLevels)
        throw MachineError{u"a key is at most %1 levels deep"_s.arg(mostLevels)};
    Database::Transaction transaction(database_);
    KeyId key = parent;
    for (const QString &level : below) {
        if (const std::optional<KeyId> found = child(key, level)) {
            key = *found;
            continue;
        }
        const QString name = realName(key, level);
        auto query = database_.query("INSERT INTO key (parent, name, fold) SELECT ?1, ?2, ?3 "
                                     "WHERE ?1 = 0 OR EXISTS (SELECT 1 FROM key WHERE id = ?1) RETURNING id");
        if (!query.bind(key).bind(name).bind(foldName(name)).next())
            return noKey; // another process has removed the parent
        key = query.integer(0);
        query.run(); // to its end, or the row wouldn't stay
    }
    transaction.commit();
    return key;
}

void RegistryStore::removeKey(KeyId key)
{
    Database::Transaction transaction(database_);
    database_
        .query("WITH RECURSIVE below (id) AS (VALUES (?) UNION ALL "
               "SELECT key.id FROM key JOIN below ON key.parent = below.id) "
               "DELETE FROM value WHERE key IN below")
        .bind(key)
        .run();
    database_
        .query("WITH RECURSIVE below (id) AS (VALUES (?) UNION ALL "
               "SELECT key.id FROM key JOIN below ON key.parent = below.id) "
               "DELETE FROM key WHERE id IN below AND parent <> 0")
        .bind(key)
        .run();
    transaction.commit();
}

QString RegistryStore::path(KeyId key) const
{
    QStringList names;
    for (KeyId at = key; at != noParent;) {
        auto query = database_.query("SELECT parent, name FROM key WHERE id = ?");
        if (!query.bind(at).next())
            return {};
        names.prepend(query.text(1));
        at = query.integer(0);
    }
    return names.join(u'\\');
}

/** 1 of a hive */
qsizetype RegistryStore::levelOf(KeyId key) const
{
    auto query = database_.query("WITH RECURSIVE above (id) AS (VALUES (?) UNION ALL "
                                 "SELECT key.parent FROM key JOIN above ON key.id = above.id WHERE key.parent <> 0 "
                                 "LIMIT ?) SELECT count(*) FROM above WHERE id <> 0");
    return query.bind(key).bind(mostLevels + 1).next() ? query.integer(0) : 0;
}

QMap<QString, RegistrySubkey> RegistryStore::subkeysByName(KeyId key) const
{
    QMap<QString, RegistrySubkey> subkeys;
    auto query = database_.query("SELECT fold, id, name FROM key WHERE parent = ?");
    query.bind(key);
    while (query.next())
        subkeys.insert(query.text(0), {query.integer(1), query.text(2)});
    return subkeys;
}

QList<QString> RegistryStore::subkeys(KeyId key) const
{
    QList<QString> names;
    auto query = database_.query("SELECT name FROM key WHERE parent = ?");
    query.bind(key);
    while (query.next())
        names << query.text(0);
    std::sort(names.begin(), names.end());
    return names;
}

QList<RegistryValue> RegistryStore::values(KeyId key) const
{
    QList<RegistryValue> result;
    auto query = database_.query("SELECT name, type, data FROM value WHERE key = ?");
    query.bind(key);
    while (query.next())
        result << RegistryValue{query.text(0), RegistryType(quint32(query.integer(1))), query.bytes(2)};
    std::sort(result.begin(), result.end(),
              [](const RegistryValue &a, const RegistryValue &b) { return a.name < b.name; });
    return result;
}

bool RegistryStore::hasSameValues(KeyId key, const RegistryStore &other, KeyId otherKey) const
{
    constexpr const char *sql = "SELECT name, type, data FROM value WHERE key = ? ORDER BY fold";
    auto mine = database_.query(sql);
    auto others = other.database_.query(sql);
    mine.bind(key);
    others.bind(otherKey);
    while (mine.next()) {
        if (!others.next() || !mine.hasRowOf(others))
            return false;
    }
    return !others.next();
}

QStringList RegistryStore::valueNames(KeyId key) const
{
    QStringList names;
    auto query = database_.query("SELECT name FROM value WHERE key = ?");
    query.bind(key);
    while (query.next())
        names << query.text(0);
    std::sort(names.begin(), names.end());
    return names;
}

QStringList RegistryStore::valuePaths(KeyId key) const
{
    QStringList paths;
    auto query = database_.query("WITH RECURSIVE below (id, path) AS (VALUES (?, '') UNION ALL "
                                 "SELECT key.id, below.path || key.name || '\\' FROM key JOIN below "
                                 "ON key.parent = below.id) "
                                 "SELECT below.path, value.name FROM below JOIN value ON value.key = below.id");
    query.bind(key);
    while (query.next())
        paths << query.text(0) + query.text(1);
    return paths;
}

std::optional<RegistryValue> RegistryStore::value(KeyId key, const QString &name) const
{
    auto query = database_.query("SELECT name, type, data FROM value WHERE key = ? AND fold = ?");
    if (!query.bind(key).bind(foldName(name)).next())
        return {};
    return RegistryValue{query.text(0), RegistryType(quint32(query.integer(1))), query.bytes(2)};
}

std::optional<RegistryValue> RegistryStore::value(KeyId key, const QString &relativePath, const QString &name) const
{
    QStringList names = levels(relativePath);
    if (names.isEmpty())
        return value(key, name);
    const QString last = names.takeLast();
    const std::optional<KeyId> parent = find(key, names.join(u'\\'));
    if (!parent)
        return {};
    auto query = database_.query("SELECT value.name, type, data FROM key JOIN value ON value.key = key.id "
                                 "WHERE key.parent = ? AND key.fold = ? AND value.fold = ?");
    if (!query.bind(*parent).bind(foldName(realName(*parent, last))).bind(foldName(name)).next())
        return {};
    return RegistryValue{query.text(0), RegistryType(quint32(query.integer(1))), query.bytes(2)};
}

std::optional<RegistryValue> RegistryStore::value(const QString &path, const QString &name) const
{
    const QStringList names = realLevels(path);
    return names.isEmpty() ? std::nullopt : value(noParent, names.join(u'\\'), name);
}

void RegistryStore::setValue(KeyId key, const RegistryValue &value)
{
    database_
        .query("INSERT INTO value (key, fold, name, type, data) "
               "SELECT ?1, ?2, ?3, ?4, ?5 WHERE EXISTS (SELECT 1 FROM key WHERE id = ?1) "
               "ON CONFLICT (key, fold) DO UPDATE SET type = excluded.type, data = excluded.data")
        .bind(key)
        .bind(foldName(value.name))
        .bind(value.name)
        .bind(quint32(value.type))
        .bind(value.data)
        .run();
}

void RegistryStore::removeValue(KeyId key, const QString &name)
{
    database_.query("DELETE FROM value WHERE key = ? AND fold = ?").bind(key).bind(foldName(name)).run();
}
