// SPDX-License-Identifier: GPL-3.0-or-later
// A key whose changes are noted before they are made.

#pragma once

#include "item.h"
#include "platform/registrykey.h"

#include <memory>
#include <optional>

class Journal;

/**
 * A key's path with the full name of its hive and one backslash between levels; nothing where it lies in none.
 */
std::optional<QString> fullKeyPath(const QString &path);

class JournalKey final : public RegistryKey
{
public:
    /** @param path as fullKeyPath() gives it */
    JournalKey(const Journal &journal, std::unique_ptr<RegistryKey> key, const QString &path)
        : journal_(journal)
        , key_(std::move(key))
        , path_(path)
    {
    }

    QVariant value(const QString &name, const QVariant &fallback) const override;
    void setValue(const QString &name, const QVariant &value) override;
    void remove(const QString &name) override;
    bool contains(const QString &name) const override;
    QVariant ownValue(const QString &name) const override;
    void setOwnValue(const QString &name, const QString &text) override;
    void removeOwnValue(const QString &name) override;
    QStringList allKeys() const override;
    QStringList childKeys() const override;
    QStringList childGroups() const override;
    void flush() override;
    void beginGroup(const QString &name) override;
    void endGroup() override;

private:
    /** The first use makes the key; false where that can't be noted, and then there is nothing to read in it. */
    bool open() const;
    /** The value that is listed by that name. */
    Item ownValueAt(const QString &name) const;
    Item valueAt(const QString &normalised) const;
    QString keyBelow(const QString &relativePath) const;

    const Journal &journal_;
    std::unique_ptr<RegistryKey> key_;
    QString path_;
    QString prefix_;
    QStringList groups_;
    mutable bool isOpen_ = false;
};
