// SPDX-License-Identifier: GPL-3.0-or-later
// Reads JSON written by hand: every mistake is reported with its place.

#pragma once

#include <QJsonArray>
#include <QJsonObject>

#include <limits>
#include <span>

/** Takes JSON values apart. A value of the wrong kind throws MachineError with "file: key: reason". */
class JsonReader
{
public:
    explicit JsonReader(const QString &fileName)
        : fileName_(fileName)
    {
    }

    /** The document's object. A syntax error is reported as "file:line: reason". */
    QJsonObject document(const QByteArray &bytes) const;

    QJsonObject object(const QJsonValue &value, const QString &key) const;
    QJsonArray array(const QJsonValue &value, const QString &key) const;
    QString text(const QJsonValue &value, const QString &key) const;
    /** A text that isn't empty. */
    QString name(const QJsonValue &value, const QString &key) const;
    QStringList names(const QJsonValue &value, const QString &key) const;
    bool boolean(const QJsonValue &value, const QString &key) const;
    qint64 integer(const QJsonValue &value, const QString &key, qint64 least,
                   qint64 most = std::numeric_limits<qint64>::max()) const;
    /** Fails at a key of the object that isn't among the known ones. */
    void checkKeys(const QJsonObject &object, const QString &key, std::span<const QLatin1StringView> known) const;

    [[noreturn]] void fail(const QString &key, const QString &reason) const;

private:
    QString fileName_;
};

/** "key.part", or the part alone below the document itself. */
QString keyBelow(const QString &key, const QString &part);
/** "key[index]" */
QString keyAt(const QString &key, qsizetype index);
