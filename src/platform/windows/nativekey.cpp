// SPDX-License-Identifier: GPL-3.0-or-later
// Values that QSettings has no name for.

#include "nativekey.h"

#include "nativeregistry.h"
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
