// SPDX-License-Identifier: GPL-3.0-or-later
// How QSettings' native format puts variants into registry values, and reads them back.

#include "machinekey.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** The registry hands out what is stored; a value shorter than its type is filled up with zeros. */
template<typename Number>
Number numberOf(const QByteArray &data)
{
    const QByteArray padded = data.leftJustified(sizeof(Number), '\0');
    return qFromLittleEndian<Number>(padded.constData());
}

/** Reads what QDataStream has written of a variant, as far as it is of those types that settings are made of. */
class VariantReader
{
public:
    explicit VariantReader(const QByteArray &bytes)
        : stream_(bytes)
    {
        stream_.setVersion(QDataStream::Qt_4_0);
    }

    /** Invalid where the bytes are something else: they may be anybody's, and could have any type built. */
    QVariant read()
    {
        const QVariant result = variant(0);
        return stream_.status() == QDataStream::Ok ? result : QVariant();
    }

private:
    /** The format's numbers of the types; never changed, since files have them. */
    enum Type : quint32 {
        Invalid = 0,
        Boolean = 1,
        Int32 = 2,
        UInt32 = 3,
        Int64 = 4,
        UInt64 = 5,
        Real = 6,
        List = 9,
        Text = 10,
        Texts = 11,
        Bytes = 12
    };
    static constexpr int mostDepth = 64;

    template<typename Value>
    Value take()
    {
        Value value{};
        stream_ >> value;
        return value;
    }

    QVariant variant(int depth)
    {
        switch (take<quint32>()) {
        case Invalid:
            take<QString>(); // an empty one is always written
            return {};
        case Boolean:
            return take<bool>();
        case Int32:
            return take<qint32>();
        case UInt32:
            return take<quint32>();
        case Int64:
            return take<qint64>();
        case UInt64:
            return take<quint64>();
        case Real:
            return take<double>();
        case List:
            return list<QVariantList>([this, depth] { return variant(depth + 1); }, depth);
        case Text:
            return take<QString>();
        case Texts:
            return list<QStringList>([this] { return take<QString>(); }, depth);
        case Bytes:
            return take<QByteArray>();
        default:
            stream_.setStatus(QDataStream::ReadCorruptData);
            return {};
        }
    }

    /** Entry by entry, since the number of them may be anything. */
    template<typename Entries, typename TakeEntry>
    Entries list(TakeEntry takeEntry, int depth)
    {
        Entries entries;
        if (depth >= mostDepth)
            stream_.setStatus(QDataStream::ReadCorruptData);
        for (quint32 left = take<quint32>(); left > 0 && stream_.status() == QDataStream::Ok; --left)
            entries.append(takeEntry());
        return entries;
    }

    QDataStream stream_;
};

/** A text that begins with "@" stands for something else than itself. */
QVariant variantOfText(const QString &text)
{
    if (!text.startsWith(u'@'))
        return text;
    if (text.startsWith(u"@@"))
        return text.mid(1);
    if (text == u"@Invalid()")
        return {};
    if (text.startsWith(u"@ByteArray(") && text.endsWith(u')'))
        return text.sliced(11).chopped(1).toLatin1();
    if (text.startsWith(u"@String(") && text.endsWith(u')'))
        return text.sliced(8).chopped(1);
    if (text.startsWith(u"@Variant(") && text.endsWith(u')'))
        return VariantReader(text.sliced(9).chopped(1).toLatin1()).read();
    return text;
}

QVariant variantOfTexts(const QStringList &texts)
{
    const bool plain = std::all_of(texts.cbegin(), texts.cend(), [](const QString &text) {
        return !text.startsWith(u'@') || text.startsWith(u"@@");
    });
    QVariantList variants;
    QStringList result;
    for (const QString &text : texts) {
        variants << variantOfText(text);
        result << variants.constLast().toString();
    }
    return plain ? QVariant(result) : QVariant(variants);
}

QString textOfVariant(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::UnknownType:
        return u"@Invalid()"_s;
    case QMetaType::QByteArray:
        return u"@ByteArray("_s + QString::fromLatin1(value.toByteArray()) + u')';
    case QMetaType::QString:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Bool:
    case QMetaType::Double: {
        const QString text = value.toString();
        if (text.contains(QChar(0)))
            return u"@String("_s + text + u')';
        return text.startsWith(u'@') ? u'@' + text : text;
    }
    default: {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        stream.setVersion(QDataStream::Qt_4_0);
        stream << value;
        return u"@Variant("_s + QString::fromLatin1(bytes) + u')';
    }
    }
}

/** A text with a zero in it would read as a shorter one, so it is kept as bytes, without a closing zero. */
RegistryValue registryValueOfText(const QString &name, const QString &text)
{
    const QByteArray data = registryText(text);
    if (text.contains(QChar(0)))
        return {name, RegistryType::Binary, data.chopped(2)};
    return {name, RegistryType::String, data};
}

RegistryValue registryValueOfList(const QString &name, const QVariant &value)
{
    QStringList texts;
    for (const QVariant &each : value.toList())
        texts << textOfVariant(each);
    // An empty text would end the list.
    const bool listable = std::none_of(texts.cbegin(), texts.cend(),
                                       [](const QString &text) { return text.isEmpty() || text.contains(QChar(0)); });
    if (listable)
        return {name, RegistryType::MultiString, registryTexts(texts)};
    return {name, RegistryType::Binary, registryText(textOfVariant(value)).chopped(2)};
}

} // namespace

QVariant variantOf(const RegistryValue &value)
{
    switch (value.type) {
    case RegistryType::String:
    case RegistryType::ExpandString:
        return variantOfText(textOf(value.data));
    case RegistryType::MultiString:
        return variantOfTexts(textsOf(value.data));
    case RegistryType::None:
    case RegistryType::Binary: {
        QString text(value.data.size() / 2, Qt::Uninitialized);
        qFromLittleEndian<char16_t>(value.data.constData(), text.size(), text.data());
        return variantOfText(text);
    }
    case RegistryType::DWord:
    case RegistryType::DWordBigEndian: // read as it lies there, with its bytes in the wrong order
        return numberOf<qint32>(value.data);
    case RegistryType::QWord:
        return numberOf<qint64>(value.data);
    default:
        return {};
    }
}

RegistryValue registryValueOf(const QString &name, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
        return {name, RegistryType::DWord, registryDWord(value.toUInt())};
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
        return {name, RegistryType::QWord, registryQWord(value.toULongLong())};
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return registryValueOfList(name, value);
    default:
        return registryValueOfText(name, textOfVariant(value));
    }
}
