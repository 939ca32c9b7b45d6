// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of each tweak: resources/knowledge/options.json, which the program carries.

#include "options.json.h"
#include "tweakcatalogue.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

QHash<QString, TweakKnowledge> readKnowledge()
{
    const QByteArray text = QByteArray::fromRawData(optionsJson.data(), optionsJson.size());
    const QJsonDocument document = QJsonDocument::fromJson(text);
    QHash<QString, TweakKnowledge> knowledge;
    for (const QJsonValue option : document[u"options"_s].toArray()) {
        knowledge.insert(option[u"box"_s].toString(),
                         {option[u"tip"_s].toString(), option[u"takingBack"_s].toString()});
    }
    return knowledge;
}

} // namespace

TweakKnowledge knowledgeOf(const QString &box)
{
    static const QHash<QString, TweakKnowledge> knowledge = readKnowledge();
    return knowledge.value(box);
}
