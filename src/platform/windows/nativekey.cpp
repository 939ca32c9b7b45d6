// SPDX-License-Identifier: GPL-3.0-or-later
// Values that QSettings has no name for, and what is stored.

#include "nativekey.h"

#include "platform/registryplace.h"

#include <QtEndian>

using namespace Qt::StringLiterals;

namespace {

/** Lists show the unnamed value as ".". */
bool isOwnName(const QString &name)
{
    return !name.isEmpty() && name != "."_L1;
}

/** QSettings takes "/" for the mark between levels, and one word for the unnamed value. */
bool isWithinReach(const QString &name)
{
    return !name.contains(u'/') && name != "Default"_L1;
}

QVariant variantOf(const RegistryValue &value)
{
    const QByteArray &data = value.data;
    switch (value.type) {
    case RegistryType::String:
    case RegistryType::ExpandString: {
        const QByteArray closed = data + QByteArray(sizeof(char16_t), '\0');
        return QString::fromUtf16(reinterpret_cast<const char16_t *>(closed.constData()));
    }
    case RegistryType::DWord:
        return qFromLittleEndian<qint32>(data.leftJustified(sizeof(qint32), '\0').constData());
    case RegistryType::QWord:
        return qFromLittleEndian<qint64>(data.leftJustified(sizeof(qint64), '\0').constData());
    default: // what is no text and no number, nobody asks for
        return QString();
    }
}

} // namespace

QString NativeKey::here() const
{
    return settings_.group().isEmpty() ? path_ : path_ + u'\\' + swapSlashes(settings_.group());
}

QVariant NativeKey::ownValue(const QString &name) const
{
    if (!isOwnName(name))
        return {};
    if (isWithinReach(name))
        return settings_.value(name);
    const auto key = openExisting(here(), KEY_QUERY_VALUE).first;
    const auto value = key ? storedValue(key.get(), swapSlashes(name)) : std::nullopt;
    return value ? variantOf(*value) : QVariant();
}

void NativeKey::setOwnValue(const QString &name, const QString &text)
{
    if (!isOwnName(name))
        return;
    if (isWithinReach(name)) {
        settings_.setValue(name, text);
        return;
    }
    if (const auto key = openExisting(here(), KEY_SET_VALUE).first)
        storeValue(key.get(), {swapSlashes(name), RegistryType::String, registryText(text)});
}

void NativeKey::removeOwnValue(const QString &name)
{
    const QString exact = swapSlashes(name);
    if (const auto key = openExisting(here(), KEY_SET_VALUE).first; key && isOwnName(name))
        RegDeleteValueW(key.get(), wide(exact));
}

std::pair<Key, LSTATUS> openExisting(const QString &path, REGSAM rights)
{
    const QString below = path.section(u'\\', 1);
    HKEY key = nullptr;
    const LSTATUS status =
        RegOpenKeyExW(hiveNamed(path.section(u'\\', 0, 0)), wide(below), 0, rights | KEY_WOW64_64KEY, &key);
    return {Key(status == ERROR_SUCCESS ? key : nullptr), status};
}

std::optional<RegistryValue> storedValue(HKEY key, const QString &name)
{
    DWORD type = REG_NONE;
    DWORD size = 0;
    QByteArray data;
    LSTATUS status = RegQueryValueExW(key, wide(name), nullptr, &type, nullptr, &size);
    do { // it may grow meanwhile
        data.resize(static_cast<qsizetype>(size));
        if (status == ERROR_SUCCESS || status == ERROR_MORE_DATA)
            status = RegQueryValueExW(key, wide(name), nullptr, &type, reinterpret_cast<BYTE *>(data.data()), &size);
    } while (status == ERROR_MORE_DATA);
    if (status != ERROR_SUCCESS)
        return std::nullopt;
    return RegistryValue{name, static_cast<RegistryType>(type), data.first(static_cast<qsizetype>(size))};
}

bool storeValue(HKEY key, const RegistryValue &value)
{
    // A zero that happens to follow a text would be taken for its end, and be stored too.
    const QByteArray guarded = value.data + QByteArray(2, 1);
    return RegSetValueExW(key, wide(value.name), 0, static_cast<DWORD>(value.type),
                          reinterpret_cast<const BYTE *>(guarded.constData()), static_cast<DWORD>(value.data.size()))
           == ERROR_SUCCESS;
}
