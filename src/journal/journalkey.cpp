// SPDX-License-Identifier: GPL-3.0-or-later

#include "journalkey.h"

#include "journal.h"
#include "platform/registryplace.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

std::optional<QString> fullKeyPath(const QString &path)
{
    // clang-format off
    static constexpr std::pair<QLatin1StringView, QLatin1StringView> hives[] = {
        {"HKEY_CURRENT_USER"_L1,  "HKEY_CURRENT_USER"_L1},  {"HKCU"_L1, "HKEY_CURRENT_USER"_L1},
        {"HKEY_LOCAL_MACHINE"_L1, "HKEY_LOCAL_MACHINE"_L1}, {"HKLM"_L1, "HKEY_LOCAL_MACHINE"_L1},
        {"HKEY_CLASSES_ROOT"_L1,  "HKEY_CLASSES_ROOT"_L1},  {"HKCR"_L1, "HKEY_CLASSES_ROOT"_L1},
        {"HKEY_USERS"_L1,         "HKEY_USERS"_L1},         {"HKU"_L1,  "HKEY_USERS"_L1},
    };
    // clang-format on

    QStringList parts = path.split(u'\\', Qt::SkipEmptyParts);
    if (parts.isEmpty())
        return std::nullopt;
    const auto hive = std::find_if(std::begin(hives), std::end(hives),
                                   [&parts](const auto &each) { return each.first == parts.first(); });
    if (hive == std::end(hives))
        return std::nullopt;
    parts.first() = hive->second;
    return parts.join(u'\\');
}

bool JournalKey::open() const
{
    if (!isOpen_)
        isOpen_ = journal_.noteMaking(path_);
    return isOpen_;
}

QString JournalKey::keyBelow(const QString &relativePath) const
{
    return relativePath.isEmpty() ? path_ : path_ + u'\\' + relativePath;
}

Item JournalKey::valueAt(const QString &normalised) const
{
    const RegistryPlace place = registryPlaceOf(normalised);
    return {ItemKind::Value, keyBelow(place.key), place.name};
}

QVariant JournalKey::value(const QString &name, const QVariant &fallback) const
{
    return open() ? key_->value(name, fallback) : fallback;
}

void JournalKey::setValue(const QString &name, const QVariant &value)
{
    const QString full = normalisedName(prefix_ + name);
    if (name.isEmpty() || full.isEmpty()) {
        key_->setValue(name, value);
        return;
    }
    const Item item = valueAt(full);
    if (open() && journal_.noteMaking(item.subject) && journal_.note({item}))
        key_->setValue(name, value);
}

void JournalKey::remove(const QString &name)
{
    const QString below = normalisedName(name);
    if (below.isEmpty() || !open())
        return;
    const QString full = prefix_ + below;
    if (journal_.noteIfThere(valueAt(full)) && journal_.noteRemoval(keyBelow(swapSlashes(full))))
        key_->remove(name);
}

bool JournalKey::contains(const QString &name) const
{
    return open() && key_->contains(name);
}

Item JournalKey::ownValueAt(const QString &name) const
{
    return {ItemKind::Value, keyBelow(swapSlashes(prefix_.chopped(prefix_.isEmpty() ? 0 : 1))), swapSlashes(name)};
}

QVariant JournalKey::ownValue(const QString &name) const
{
    return open() ? key_->ownValue(name) : QVariant();
}

void JournalKey::setOwnValue(const QString &name, const QString &text)
{
    const Item item = ownValueAt(name);
    if (open() && journal_.noteMaking(item.subject) && journal_.note({item}))
        key_->setOwnValue(name, text);
}

void JournalKey::removeOwnValue(const QString &name)
{
    if (open() && journal_.noteIfThere(ownValueAt(name)))
        key_->removeOwnValue(name);
}

QStringList JournalKey::allKeys() const
{
    return open() ? key_->allKeys() : QStringList();
}

QStringList JournalKey::childKeys() const
{
    return open() ? key_->childKeys() : QStringList();
}

QStringList JournalKey::childGroups() const
{
    return open() ? key_->childGroups() : QStringList();
}

void JournalKey::flush()
{
    key_->flush();
}

void JournalKey::beginGroup(const QString &name)
{
    groups_ << normalisedName(name);
    if (!groups_.constLast().isEmpty())
        prefix_ += groups_.constLast() + u'/';
    key_->beginGroup(name);
}

void JournalKey::endGroup()
{
    key_->endGroup();
    if (groups_.isEmpty())
        return;
    const QString group = groups_.takeLast();
    if (!group.isEmpty())
        prefix_.chop(group.size() + 1);
}
