// SPDX-License-Identifier: GPL-3.0-or-later
// Values that QSettings has no name for.

#include "nativekey.h"

#include "systemobjects.h"

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

/** QSettings shows the registry's backslashes as slashes, and the other way round. */
QString swapSlashes(QString name)
{
    for (QChar &unit : name) {
        if (unit == u'\\')
            unit = u'/';
        else if (unit == u'/')
            unit = u'\\';
    }
    return name;
}

Key openedFor(REGSAM rights, const QString &path)
{
    HKEY key = nullptr;
    const LSTATUS status =
        RegOpenKeyExW(hiveNamed(path.section(u'\\', 0, 0)), wide(path.section(u'\\', 1)), 0, rights, &key);
    return Key(status == ERROR_SUCCESS ? key : nullptr);
}

QVariant variantOf(DWORD type, const QByteArray &data)
{
    switch (type) {
    case REG_SZ:
    case REG_EXPAND_SZ: {
        const QByteArray closed = data + QByteArray(sizeof(char16_t), '\0');
        return QString::fromUtf16(reinterpret_cast<const char16_t *>(closed.constData()));
    }
    case REG_DWORD:
        return qFromLittleEndian<qint32>(data.leftJustified(sizeof(qint32), '\0').constData());
    case REG_QWORD:
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
    const QString exact = swapSlashes(name);
    const Key key = openedFor(KEY_QUERY_VALUE, here());
    DWORD type = REG_NONE;
    DWORD size = 0;
    if (!key || RegQueryValueExW(key.get(), wide(exact), nullptr, &type, nullptr, &size) != ERROR_SUCCESS)
        return {};
    QByteArray data(static_cast<qsizetype>(size), '\0');
    const LSTATUS status =
        RegQueryValueExW(key.get(), wide(exact), nullptr, &type, reinterpret_cast<BYTE *>(data.data()), &size);
    return status == ERROR_SUCCESS ? variantOf(type, data.first(static_cast<qsizetype>(size))) : QVariant();
}

void NativeKey::setOwnValue(const QString &name, const QString &text)
{
    if (!isOwnName(name))
        return;
    if (isWithinReach(name)) {
        settings_.setValue(name, text);
        return;
    }
    const QString exact = swapSlashes(name);
    if (const Key key = openedFor(KEY_SET_VALUE, here())) {
        const auto size = static_cast<DWORD>((text.size() + 1) * qsizetype(sizeof(wchar_t)));
        RegSetValueExW(key.get(), wide(exact), 0, REG_SZ, reinterpret_cast<const BYTE *>(text.utf16()), size);
    }
}

void NativeKey::removeOwnValue(const QString &name)
{
    const QString exact = swapSlashes(name);
    if (const Key key = openedFor(KEY_SET_VALUE, here()); key && isOwnName(name))
        RegDeleteValueW(key.get(), wide(exact));
}
