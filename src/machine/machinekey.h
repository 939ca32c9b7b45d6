// SPDX-License-Identifier: GPL-3.0-or-later
// A key of a rehearsal machine's registry, which answers as QSettings' native format does.

#pragma once

#include "platform/registrykey.h"

#include "registrystore.h"

#include <QList>

class MachineKey final : public RegistryKey
{
public:
    /** @param elevated without it, the current user's hive alone can be written */
    MachineKey(RegistryStore &store, const QString &path, bool elevated);

    QVariant value(const QString &name, const QVariant &fallback = {}) const override;
    void setValue(const QString &name, const QVariant &value) override;
    void remove(const QString &name) override;
    bool contains(const QString &name) const override;
    QVariant ownValue(const QString &name) const override;
    void setOwnValue(const QString &name, const QString &text) override;
    void removeOwnValue(const QString &name) override;
    QStringList allKeys() const override;
    QStringList childKeys() const override;
    QStringList childGroups() const override;
    void beginGroup(const QString &name) override;
    void endGroup() override;

private:
    std::optional<RegistryStore::KeyId> base() const;
    std::optional<RegistryStore::KeyId> currentGroup() const;
    std::optional<RegistryValue> read(const QString &name) const;

    RegistryStore &store_;
    QString path_; ///< empty where it doesn't begin with a hive's name
    bool writable_ = false;
    QStringList groups_;                               ///< the argument of each open beginGroup, normalised
    QString prefix_;                                   ///< all of them, each with a slash at its end
    mutable std::optional<RegistryStore::KeyId> base_; ///< once opened, as a handle would stay
};

/** How QSettings' native format reads registry values as variants, and puts variants into them. */
QVariant variantOf(const RegistryValue &value);
RegistryValue registryValueOf(const QString &name, const QVariant &value);
