// SPDX-License-Identifier: GPL-3.0-or-later

#include "registrydisplay.h"

#include "console/printable.h"

#include <QCryptographicHash>
#include <QtEndian>

#include <array>

using namespace Qt::StringLiterals;

namespace {

struct TypeRow
{
    RegistryType type;
    QLatin1StringView name;
};

// clang-format off
constexpr std::array typeRows{
    TypeRow{RegistryType::None,                     "none"_L1},
    TypeRow{RegistryType::String,                   "text"_L1},
    TypeRow{RegistryType::ExpandString,             "expand"_L1},
    TypeRow{RegistryType::Binary,                   "binary"_L1},
    TypeRow{RegistryType::DWord,                    "dword"_L1},
    TypeRow{RegistryType::DWordBigEndian,           "dword-big-endian"_L1},
    TypeRow{RegistryType::Link,                     "link"_L1},
    TypeRow{RegistryType::MultiString,              "multi"_L1},
    TypeRow{RegistryType::ResourceList,             "resource-list"_L1},
    TypeRow{RegistryType::FullResourceDescriptor,   "full-resource-descriptor"_L1},
    TypeRow{RegistryType::ResourceRequirementsList, "resource-requirements-list"_L1},
    TypeRow{RegistryType::QWord,                    "qword"_L1},
};
// clang-format on

QString quoted(const QString &text)
{
    return u'"' + printable(text) + u'"';
}

QString bytesText(const QByteArray &data)
{
    constexpr qsizetype shown = 64;

    if (data.size() <= shown)
        return QString::fromLatin1(data.toHex(' '));
    const QByteArray sum = QCryptographicHash::hash(data, QCryptographicHash::Sha256).toHex().first(8);
    return u"%1 … (%2 bytes, sha256 %3)"_s.arg(QString::fromLatin1(data.first(shown).toHex(' ')))
        .arg(data.size())
        .arg(QString::fromLatin1(sum));
}

} // namespace

QString typeName(RegistryType type)
{
    for (const TypeRow &row : typeRows) {
        if (row.type == type)
            return row.name;
    }
    return u"type %1"_s.arg(static_cast<quint32>(type));
}

QString dataText(const RegistryValue &value)
{
    const QByteArray &data = value.data;
    switch (value.type) {
    case RegistryType::String:
    case RegistryType::ExpandString:
        return quoted(textOf(data));
    case RegistryType::MultiString: {
        QStringList texts;
        for (const QString &text : textsOf(data))
            texts.append(quoted(text));
        return texts.join(u' ');
    }
    case RegistryType::DWord:
        if (data.size() == sizeof(quint32))
            return QString::number(qFromLittleEndian<quint32>(data.constData()));
        break;
    case RegistryType::QWord:
        if (data.size() == sizeof(quint64))
            return QString::number(qFromLittleEndian<quint64>(data.constData()));
        break;
    default:
        break;
    }
    return bytesText(data);
}

QString valueText(const RegistryValue &value)
{
    const QString data = dataText(value);
    // The quotes already tell the plainest type of all.
    return value.type == RegistryType::String ? data : (typeName(value.type) + u' ' + data).trimmed();
}

QString rawValueText(const RegistryValue &value)
{
    return (typeName(value.type) + u" bytes "_s + bytesText(value.data)).trimmed();
}

QString valueName(const RegistryValue &value)
{
    return value.name.isEmpty() ? u"(default)"_s : value.name;
}
