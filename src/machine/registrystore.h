// SPDX-License-Identifier: GPL-3.0-or-later
// The registry of a rehearsal machine: keys and typed values in its database.

#pragma once

#include "platform/registrykey.h"

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>

class Database;

/** A key as the one above it lists it. */
struct RegistrySubkey
{
    qint64 id = 0;
    QString name;
};

/**
 * The store itself, with real key paths ("HKEY_LOCAL_MACHINE\SOFTWARE\x", backslashes between levels) and real value
 * names. Look-ups ignore case. HKEY_LOCAL_MACHINE\SYSTEM\ControlSet001 and ...\CurrentControlSet are one key, listed as
 * CurrentControlSet, and so are HKEY_CLASSES_ROOT and HKEY_LOCAL_MACHINE\SOFTWARE\Classes. Any thread may use it.
 */
class RegistryStore
{
public:
    using KeyId = qint64;
    static constexpr int mostLevels = 512;  ///< of keys, a hive being the first; Windows has no more either
    static constexpr int longestName = 255; ///< of a key, in UTF-16 code units, as on Windows

    explicit RegistryStore(Database &database);

    /** Splits nothing off: true when the path is a hive's full or short name (HKLM, HKCU, HKCR, HKU) or lies below one.
     */
    static bool isHivePath(const QString &path);

    std::optional<KeyId> find(const QString &path) const;
    std::optional<KeyId> find(KeyId parent, const QString &relativePath) const;
    /**
     * Makes the key and every key on the way; the key itself where it is there already. Null outside the hives. Throws
     * MachineError where that were too many levels.
     */
    std::optional<KeyId> make(const QString &path);
    /** Below a key that is gone nothing is made; the id that comes back then finds and takes nothing. */
    KeyId make(KeyId parent, const QString &relativePath);
    /** Removes the key with all below it; an absent one is silent. A hive itself is only emptied. */
    void removeKey(KeyId key);
    /** The key's full path, with the case its names were made with; empty where there is none. */
    QString path(KeyId key) const;

    /** Direct subkeys by their names as look-ups compare them. */
    QMap<QString, RegistrySubkey> subkeysByName(KeyId key) const;
    /** Direct subkeys by name, sorted by UTF-16 code unit. */
    QList<QString> subkeys(KeyId key) const;
    /** The key's own values, sorted by name by UTF-16 code unit. */
    QList<RegistryValue> values(KeyId key) const;
    /** Whether a key has the same values as one of another store, by names, types and data; quicker than values(). */
    bool hasSameValues(KeyId key, const RegistryStore &other, KeyId otherKey) const;
    /** The names of the key's own values, sorted by UTF-16 code unit. */
    QStringList valueNames(KeyId key) const;
    /** All values at and below the key, each as its path below this key, backslashes between levels; unsorted. */
    QStringList valuePaths(KeyId key) const;
    std::optional<RegistryValue> value(KeyId key, const QString &name) const;
    /** Of a key below another, by its path from there. */
    std::optional<RegistryValue> value(KeyId key, const QString &relativePath, const QString &name) const;
    /** The same by the key's path; nothing where there is no such key. */
    std::optional<RegistryValue> value(const QString &path, const QString &name) const;
    /** Writes a value; where it exists it keeps the case of its name. A key that is gone takes nothing. */
    void setValue(KeyId key, const RegistryValue &value);
    void removeValue(KeyId key, const QString &name);

private:
    std::optional<KeyId> child(KeyId parent, const QString &name) const;
    bool isSystemKey(KeyId key) const;
    qsizetype levelOf(KeyId key) const;
    QString realName(KeyId parent, const QString &name) const;

    Database &database_;
};

/** A name as look-ups compare it: each code unit in upper case, as Windows does for keys, values and files. */
QString foldName(const QString &name);
