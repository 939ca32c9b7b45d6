// SPDX-License-Identifier: GPL-3.0-or-later
// A key of a rehearsal machine's registry, which answers as QSettings' native format does.

#include "machinekey.h"

#include "machineerror.h"
#include "platform/registryplace.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using KeyId = RegistryStore::KeyId;

/** The only beginnings of a path that are understood, and these with their case. */
constexpr QStringView hiveNames[] = {
    u"HKEY_CURRENT_USER", u"HKCU", u"HKEY_LOCAL_MACHINE", u"HKLM", u"HKEY_CLASSES_ROOT", u"HKCR", u"HKEY_USERS", u"HKU",
};

bool beginsWithHive(QStringView path, QStringView hive)
{
    return path.startsWith(hive) && (path.size() == hive.size() || path.at(hive.size()) == u'\\');
}

/** Lists show the unnamed value as ".". */
bool isOwnName(const QString &name)
{
    return !name.isEmpty() && name != u".";
}

QStringList listed(QStringList names)
{
    for (QString &name : names)
        name = name.isEmpty() ? u"."_s : swapSlashes(name);
    std::sort(names.begin(), names.end());
    return names;
}

/** A registry never throws; what is wrong with the machine is said and the operation fails as a registry's would. */
template<typename Result, typename Operation>
Result guarded(Operation operation)
{
    try {
        return operation();
    } catch (const MachineError &error) {
        MachineFailures::say(error);
        return Result();
    }
}

} // namespace

MachineKey::MachineKey(RegistryStore &store, const QString &path, bool elevated)
    : store_(store)
{
    const QString trimmed = path.startsWith(u'\\') ? path.mid(1) : path;
    const bool known = std::any_of(std::begin(hiveNames), std::end(hiveNames),
                                   [&trimmed](QStringView hive) { return beginsWithHive(trimmed, hive); });
    if (!known)
        return;
    path_ = trimmed;
    writable_ = elevated || beginsWithHive(path_, u"HKEY_CURRENT_USER") || beginsWithHive(path_, u"HKCU");
}

std::optional<KeyId> MachineKey::base() const
{
    if (!base_ && !path_.isEmpty())
        base_ = writable_ ? store_.make(path_) : store_.find(path_);
    return base_;
}

std::optional<KeyId> MachineKey::currentGroup() const
{
    const std::optional<KeyId> key = base();
    return key ? store_.find(*key, swapSlashes(prefix_)) : key;
}

std::optional<RegistryValue> MachineKey::read(const QString &name) const
{
    const RegistryPlace place = registryPlaceOf(prefix_ + normalisedName(name));
    const std::optional<KeyId> key = base();
    return key ? store_.value(*key, place.key, place.name) : std::nullopt;
}

QVariant MachineKey::value(const QString &name, const QVariant &fallback) const
{
    if (name.isEmpty())
        return {};
    const auto found = guarded<std::optional<RegistryValue>>([&] { return read(name); });
    return found ? variantOf(*found) : fallback;
}

bool MachineKey::contains(const QString &name) const
{
    return guarded<bool>([&] { return read(name).has_value(); });
}

void MachineKey::setValue(const QString &name, const QVariant &value)
{
    if (name.isEmpty())
        return;
    guarded<void>([&] {
        const std::optional<KeyId> key = base();
        if (!key || !writable_)
            return;
        const RegistryPlace place = registryPlaceOf(prefix_ + normalisedName(name));
        store_.setValue(store_.make(*key, place.key), registryValueOf(place.name, value));
    });
}

void MachineKey::remove(const QString &name)
{
    guarded<void>([&] {
        const std::optional<KeyId> key = base();
        if (!key || !writable_)
            return;
        const QString below = normalisedName(name);
        if (below.isEmpty())
            return;
        const QString full = prefix_ + below;
        const RegistryPlace place = registryPlaceOf(full);
        if (const std::optional<KeyId> parent = store_.find(*key, place.key))
            store_.removeValue(*parent, place.name);
        if (const std::optional<KeyId> subkey = store_.find(*key, swapSlashes(full)))
            store_.removeKey(*subkey);
    });
}

QVariant MachineKey::ownValue(const QString &name) const
{
    return guarded<QVariant>([&] {
        const std::optional<KeyId> key = currentGroup();
        const auto found = key && isOwnName(name) ? store_.value(*key, swapSlashes(name)) : std::nullopt;
        return found ? variantOf(*found) : QVariant();
    });
}

void MachineKey::setOwnValue(const QString &name, const QString &text)
{
    guarded<void>([&] {
        const std::optional<KeyId> key = base();
        if (key && writable_ && isOwnName(name))
            store_.setValue(store_.make(*key, swapSlashes(prefix_)), registryValueOf(swapSlashes(name), text));
    });
}

void MachineKey::removeOwnValue(const QString &name)
{
    guarded<void>([&] {
        const std::optional<KeyId> key = currentGroup();
        if (key && writable_ && isOwnName(name))
            store_.removeValue(*key, swapSlashes(name));
    });
}

QStringList MachineKey::allKeys() const
{
    return guarded<QStringList>([&] {
        const std::optional<KeyId> key = currentGroup();
        QStringList paths = key ? store_.valuePaths(*key) : QStringList();
        for (QString &path : paths) {
            if (path.isEmpty() || path.endsWith(u'\\'))
                path += u'.';
        }
        return listed(paths);
    });
}

QStringList MachineKey::childKeys() const
{
    return guarded<QStringList>([&] {
        const std::optional<KeyId> key = currentGroup();
        return key ? listed(store_.valueNames(*key)) : QStringList();
    });
}

QStringList MachineKey::childGroups() const
{
    return guarded<QStringList>([&] {
        const std::optional<KeyId> key = currentGroup();
        return key ? listed(store_.subkeys(*key)) : QStringList();
    });
}

void MachineKey::beginGroup(const QString &name)
{
    groups_ << normalisedName(name);
    if (!groups_.constLast().isEmpty())
        prefix_ += groups_.constLast() + u'/';
}

void MachineKey::endGroup()
{
    if (groups_.isEmpty())
        return;
    const QString group = groups_.takeLast();
    if (!group.isEmpty())
        prefix_.chop(group.size() + 1);
}
