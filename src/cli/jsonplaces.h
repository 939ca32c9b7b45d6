// SPDX-License-Identifier: GPL-3.0-or-later
// Where in a file the parts of a JSON document stand.

#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

/** Of a document that is known to be JSON. */
class JsonPlaces
{
public:
    explicit JsonPlaces(const QByteArray &json);

    /**
     * "line:column" of a part, both from 1, columns in bytes; of the whole document where there is no such part.
     * @param path "/tweaks/ssd1" of a key, "/never/0" of an element
     */
    QString of(const QString &path) const { return places_.value(path, QStringLiteral("1:1")); }
    /** Paths of keys that stand in one object twice. */
    QStringList twice() const { return twice_; }

private:
    void readValue(const QString &path);
    void readObject(const QString &path);
    void readArray(const QString &path);
    QString readText();
    void skipBlanks();
    QString here() const;

    const QByteArray json_;
    qsizetype at_ = 0;
    QHash<QString, QString> places_;
    QStringList twice_;
};

/** "line:column" of a byte. */
QString jsonPlace(const QByteArray &json, qsizetype offset);
