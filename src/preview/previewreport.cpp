// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview.h"

#include "console/printable.h"
#include "previewtexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace {

QString sidesText(const QString &before, const QString &optimized, const QString &restored)
{
    return shownSide(before) + u" -> "_s + shownSide(optimized) + u" -> "_s + shownSide(restored);
}

QString itemText(const PreviewItem &item)
{
    const PreviewSides sides = sidesOf(item);
    QString text = u"  "_s + item.title;
    if (!item.name.isEmpty() && item.name != item.title)
        text += u" ["_s + item.name + u']';
    text = printable(text) + u"\n      "_s + printable(sidesText(sides.before, sides.optimized, sides.restored));
    if (countsAsChange(item))
        text += u": "_s + QString(textsOf(item.comesBack()).one);
    text += u'\n';
    if (!item.without.isEmpty())
        text += u"      "_s + withoutText(item.without) + u'\n';
    for (const PreviewDetail &detail : item.details) {
        const QString place = detail.place.isEmpty() ? QString() : u" ("_s + detail.place + u')';
        text += printable(u"        "_s + detail.what + place + u": "_s
                          + sidesText(detail.before, detail.optimized, detail.restored))
                + u'\n';
    }
    return text;
}

QJsonValue sideJson(const QString &side)
{
    return side.isEmpty() ? QJsonValue() : QJsonValue(side);
}

QJsonObject detailJson(const PreviewDetail &detail)
{
    return {{u"what"_s, detail.what},
            {u"place"_s, detail.place},
            {u"before"_s, sideJson(detail.before)},
            {u"optimized"_s, sideJson(detail.optimized)},
            {u"restored"_s, sideJson(detail.restored)},
            {u"comesBack"_s, textsOf(detail.comesBack).word}};
}

QJsonObject itemJson(const PreviewItem &item)
{
    const PreviewSides sides = sidesOf(item);
    QJsonArray details;
    for (const PreviewDetail &detail : item.details)
        details.append(detailJson(detail));
    return {{u"group"_s, textsOf(item.group).title},
            {u"title"_s, item.title},
            {u"about"_s, item.about},
            {u"without"_s, item.without},
            {u"name"_s, item.name},
            {u"before"_s, sides.before},
            {u"optimized"_s, sides.optimized},
            {u"restored"_s, sides.restored},
            {u"comesBack"_s, textsOf(item.comesBack()).word},
            {u"why"_s, whyOf(item)},
            {u"details"_s, details}};
}

} // namespace

QString previewText(const QList<PreviewItem> &items)
{
    QString text;
    for (const RestorabilityTexts &row : allRestorabilities())
        text += QString::number(countOf(items, row.value)).rightJustified(5) + u' ' + row.many + u'\n';
    text += u"\nEach line: before -> after Optimize -> after Restore\n"_s;
    std::optional<PreviewGroup> group;
    for (const PreviewItem &item : items) {
        if (group != item.group)
            text += u'\n' + QString(textsOf(item.group).title) + u'\n';
        group = item.group;
        text += itemText(item);
    }
    return text;
}

QByteArray previewJson(const QList<PreviewItem> &items)
{
    QJsonObject counts;
    for (const RestorabilityTexts &row : allRestorabilities())
        counts.insert(row.word, countOf(items, row.value));
    QJsonArray array;
    for (const PreviewItem &item : items)
        array.append(itemJson(item));
    return printableJson(QJsonDocument(QJsonObject{{u"counts"_s, counts}, {u"items"_s, array}}));
}
