// SPDX-License-Identifier: GPL-3.0-or-later
// A key of the real registry; and keys and values as they are stored, by the registry's own functions.

#pragma once

#include "platform/registrykey.h"
#include "systemobjects.h"

#include <QSettings>

#include <algorithm>
#include <optional>
#include <utility>

/** QSettings in native format, whose manners are the contract of RegistryKey. */
class NativeKey final : public RegistryKey
{
public:
    explicit NativeKey(const QString &path)
        : path_(path)
        , settings_(path, QSettings::NativeFormat)
    {
    }

    QVariant value(const QString &name, const QVariant &fallback) const override
    {
        // QSettings warns of an empty name.
        return name.isEmpty() ? QVariant() : settings_.value(name, fallback);
    }
    void setValue(const QString &name, const QVariant &value) override { settings_.setValue(name, value); }
    void remove(const QString &name) override
    {
        const bool meansTheKey = std::all_of(name.cbegin(), name.cend(), [](QChar unit) { return unit == u'/'; });
        if (!meansTheKey)
            settings_.remove(name);
    }
    bool contains(const QString &name) const override { return settings_.contains(name); }
    QVariant ownValue(const QString &name) const override;
    void setOwnValue(const QString &name, const QString &text) override;
    void removeOwnValue(const QString &name) override;
    QStringList allKeys() const override { return settings_.allKeys(); }
    QStringList childKeys() const override { return settings_.childKeys(); }
    QStringList childGroups() const override { return settings_.childGroups(); }
    void flush() override { settings_.sync(); }
    void beginGroup(const QString &name) override { settings_.beginGroup(name); }
    void endGroup() override { settings_.endGroup(); }

private:
    /** The path of the key that names are relative to now. */
    QString here() const;

    QString path_;
    QSettings settings_;
};

// Looking makes nothing.

/** Opens a key that is there, by its full path; in the view of 64 bits. The key is null where that fails. */
std::pair<Key, LSTATUS> openExisting(const QString &path, REGSAM rights);

/** A value with type and bytes; nothing where there is none. */
std::optional<RegistryValue> storedValue(HKEY key, const QString &name);
/** Stores a value as it is; says whether it was done. */
bool storeValue(HKEY key, const RegistryValue &value);
