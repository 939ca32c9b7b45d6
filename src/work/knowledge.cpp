// SPDX-License-Identifier: GPL-3.0-or-later

#include "knowledge.h"

#include "options.json.h"
#include "without.json.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

/** Sentences by names in lower case. */
using Sentences = QHash<QString, QString>;

QJsonObject readObject(QLatin1StringView utf8)
{
    return QJsonDocument::fromJson(QByteArray::fromRawData(utf8.data(), utf8.size())).object();
}

QHash<QString, TweakKnowledge> readOptions()
{
    const QJsonArray options = readObject(optionsJson).value("options"_L1).toArray();
    QHash<QString, TweakKnowledge> knowledge;
    for (const QJsonValue option : options) {
        knowledge.insert(option[u"box"_s].toString(),
                         {option[u"tip"_s].toString(), option[u"takingBack"_s].toString()});
    }
    return knowledge;
}

Sentences readSentences(QLatin1StringView part)
{
    const QJsonObject named = readObject(withoutJson).value(part).toObject();
    Sentences sentences;
    for (auto each = named.constBegin(); each != named.constEnd(); ++each)
        sentences.insert(each.key().toLower(), each.value().toString());
    return sentences;
}

} // namespace

TweakKnowledge knowledgeOf(const QString &box)
{
    static const QHash<QString, TweakKnowledge> knowledge = readOptions();
    return knowledge.value(box);
}

QString withoutService(const QString &name)
{
    static const Sentences sentences = readSentences("services"_L1);
    return sentences.value(name.toLower());
}

QString withoutTask(const QString &path)
{
    static const Sentences sentences = readSentences("tasks"_L1);
    const QString name = path.section(u'\\', -1).toLower();
    if (const auto found = sentences.constFind(name); found != sentences.constEnd())
        return *found;
    // Vendors add an account's number to a name: "OneDrive*" stands for all that begin so.
    for (auto each = sentences.constBegin(); each != sentences.constEnd(); ++each) {
        if (each.key().endsWith(u'*') && name.startsWith(QStringView(each.key()).chopped(1)))
            return each.value();
    }
    return {};
}

QString withoutPackage(const QString &name)
{
    static const Sentences sentences = readSentences("packages"_L1);
    return sentences.value(name.toLower());
}
