// SPDX-License-Identifier: GPL-3.0-or-later

#include "jsonreader.h"

#include "machine/machineerror.h"

#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

QString keyBelow(const QString &key, const QString &part)
{
    return key.isEmpty() ? part : key + u'.' + part;
}

QString keyAt(const QString &key, qsizetype index)
{
    return key + u'[' + QString::number(index) + u']';
}

QJsonObject JsonReader::document(const QByteArray &bytes) const
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &error);
    if (error.error != QJsonParseError::NoError) {
        const qsizetype end = std::min<qsizetype>(error.offset, bytes.size());
        const qsizetype line = 1 + bytes.first(end).count('\n');
        throw MachineError{u"%1:%2: %3"_s.arg(fileName_, QString::number(line), error.errorString())};
    }
    if (!document.isObject())
        throw MachineError{u"%1:1: not an object"_s.arg(fileName_)};
    return document.object();
}

QJsonObject JsonReader::object(const QJsonValue &value, const QString &key) const
{
    if (!value.isObject())
        fail(key, u"must be an object"_s);
    return value.toObject();
}

QJsonArray JsonReader::array(const QJsonValue &value, const QString &key) const
{
    if (!value.isArray())
        fail(key, u"must be an array"_s);
    return value.toArray();
}

QString JsonReader::text(const QJsonValue &value, const QString &key) const
{
    if (!value.isString())
        fail(key, u"must be a text"_s);
    return value.toString();
}

QString JsonReader::name(const QJsonValue &value, const QString &key) const
{
    const QString name = text(value, key);
    if (name.isEmpty())
        fail(key, u"must not be empty"_s);
    return name;
}

QStringList JsonReader::names(const QJsonValue &value, const QString &key) const
{
    QStringList list;
    for (const QJsonValue entry : array(value, key))
        list.append(name(entry, keyAt(key, list.size())));
    return list;
}

bool JsonReader::boolean(const QJsonValue &value, const QString &key) const
{
    if (!value.isBool())
        fail(key, u"must be true or false"_s);
    return value.toBool();
}

qint64 JsonReader::integer(const QJsonValue &value, const QString &key, qint64 least, qint64 most) const
{
    // A fraction gives the default, whichever it is.
    const bool whole = value.isDouble() && value.toInteger(0) == value.toInteger(1);
    if (!whole)
        fail(key, u"must be a whole number"_s);
    const qint64 number = value.toInteger();
    if (number < least || number > most)
        fail(key, u"must be %1"_s.arg(most == std::numeric_limits<qint64>::max()
                                          ? u"at least %1"_s.arg(least)
                                          : u"between %1 and %2"_s.arg(least).arg(most)));
    return number;
}

void JsonReader::checkKeys(const QJsonObject &object, const QString &key,
                           std::span<const QLatin1StringView> known) const
{
    for (const QString &part : object.keys()) {
        if (std::find(known.begin(), known.end(), part) == known.end())
            fail(keyBelow(key, part), u"unknown key"_s);
    }
}

void JsonReader::fail(const QString &key, const QString &reason) const
{
    throw MachineError{u"%1: %2: %3"_s.arg(fileName_, key, reason)};
}
