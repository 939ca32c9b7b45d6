// SPDX-License-Identifier: GPL-3.0-or-later

#include "jsonplaces.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

QString jsonPlace(const QByteArray &json, qsizetype offset)
{
    const QByteArray before = json.first(std::clamp<qsizetype>(offset, 0, json.size()));
    return u"%1:%2"_s.arg(before.count('\n') + 1).arg(before.size() - before.lastIndexOf('\n'));
}

JsonPlaces::JsonPlaces(const QByteArray &json)
    : json_(json)
{
    readValue({});
}

QString JsonPlaces::here() const
{
    return jsonPlace(json_, at_);
}

void JsonPlaces::skipBlanks()
{
    while (at_ < json_.size() && QByteArrayView(" \t\r\n").contains(json_.at(at_)))
        ++at_;
}

void JsonPlaces::readValue(const QString &path)
{
    skipBlanks();
    if (!places_.contains(path))
        places_.insert(path, here());
    const char first = at_ < json_.size() ? json_.at(at_) : '\0';
    if (first == '{') {
        readObject(path);
    } else if (first == '[') {
        readArray(path);
    } else if (first == '"') {
        readText();
    } else {
        while (at_ < json_.size() && !QByteArrayView(",]} \t\r\n").contains(json_.at(at_)))
            ++at_;
    }
}

void JsonPlaces::readObject(const QString &path)
{
    ++at_;
    for (skipBlanks(); at_ < json_.size() && json_.at(at_) != '}'; skipBlanks()) {
        const QString place = here();
        const QString key = path + u'/' + readText();
        if (places_.contains(key))
            twice_.append(key);
        places_.insert(key, place);
        skipBlanks();
        ++at_; // the colon
        readValue(key);
        skipBlanks();
        if (at_ < json_.size() && json_.at(at_) == ',')
            ++at_;
    }
    ++at_;
}

void JsonPlaces::readArray(const QString &path)
{
    ++at_;
    qsizetype index = 0;
    for (skipBlanks(); at_ < json_.size() && json_.at(at_) != ']'; skipBlanks()) {
        readValue(path + u'/' + QString::number(index));
        ++index;
        skipBlanks();
        if (at_ < json_.size() && json_.at(at_) == ',')
            ++at_;
    }
    ++at_;
}

QString JsonPlaces::readText()
{
    const qsizetype start = at_;
    ++at_;
    while (at_ < json_.size() && json_.at(at_) != '"')
        at_ += json_.at(at_) == '\\' ? 2 : 1;
    ++at_;
    const QByteArray text = json_.sliced(start, std::min(at_, json_.size()) - start);
    return QJsonDocument::fromJson('[' + text + ']').array().at(0).toString();
}
