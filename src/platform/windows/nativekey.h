// SPDX-License-Identifier: GPL-3.0-or-later
// A key of the real registry.

#pragma once

#include "platform/registrykey.h"

#include <QSettings>

#include <algorithm>

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
