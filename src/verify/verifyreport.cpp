// SPDX-License-Identifier: GPL-3.0-or-later

#include "verify.h"

#include "console/printable.h"
#include "preview/previewtexts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int verdictWidth = 16;

struct VerdictRow
{
    Verdict verdict;
    QLatin1StringView word; ///< in JSON
    QLatin1StringView text;
    QLatin1StringView meaning;
};

// clang-format off
constexpr VerdictRow verdicts[] = {
    {Verdict::InForce,     "in-force"_L1,     "in force"_L1,        "as it is recorded"_L1},
    {Verdict::Refused,     "refused"_L1,      "refused"_L1,         "the system said no"_L1},
    {Verdict::ChangedBack, "changed-back"_L1, "changed back"_L1,    "was in force, and Restore or something else has changed it since"_L1},
    {Verdict::AsBefore,    "as-before"_L1,    "as before"_L1,       "refused without a word, never carried out, or set back to just that"_L1},
    {Verdict::Gone,        "gone"_L1,         "no longer there"_L1, "the service or task itself is gone"_L1},
};
// clang-format on

const VerdictRow &rowOf(Verdict verdict)
{
    return *std::find_if(std::begin(verdicts), std::end(verdicts),
                         [verdict](const VerdictRow &row) { return row.verdict == verdict; });
}

qsizetype countOf(const QList<VerifiedItem> &items, Verdict verdict)
{
    return std::count_if(items.begin(), items.end(),
                         [verdict](const VerifiedItem &item) { return item.verdict == verdict; });
}

QString detailText(const VerifiedDetail &detail)
{
    return printable(u"      %1: now %2, should be %3, was %4 before"_s.arg(
               detail.what, shownSide(detail.now), shownSide(detail.recorded), shownSide(detail.before)))
           + u'\n';
}

QString itemText(const VerifiedItem &item)
{
    constexpr qsizetype mostDetails = 12;

    QString text = u"  "_s + QString(rowOf(item.verdict).text).leftJustified(verdictWidth) + item.title;
    // The name of a tweak is of use to programs only.
    if (item.name != item.title && item.group != PreviewGroup::Tweaks)
        text += u" ("_s + item.name + u')';
    if (!item.why.isEmpty())
        text += u" -- "_s + item.why;
    text = printable(text) + u'\n';
    if (item.verdict == Verdict::InForce && !item.without.isEmpty())
        text += u"      "_s + withoutText(item.without) + u'\n';
    for (const VerifiedDetail &detail : item.details.first(std::min(item.details.size(), mostDetails)))
        text += detailText(detail);
    if (item.details.size() > mostDetails)
        text += u"      and %1 more\n"_s.arg(item.details.size() - mostDetails);
    return text;
}

/** What isn't in force stands before what is. */
QString groupText(PreviewGroup group, const QList<VerifiedItem> &items)
{
    QString inForce;
    QString others;
    for (const VerdictRow &row : verdicts) {
        for (const VerifiedItem &item : items) {
            if (item.group == group && item.verdict == row.verdict)
                (row.verdict == Verdict::InForce ? inForce : others) += itemText(item);
        }
    }
    const QString text = others + inForce;
    return text.isEmpty() ? QString() : u'\n' + textsOf(group).title + u'\n' + text;
}

} // namespace

QString verifyText(const QList<VerifiedItem> &items)
{
    if (items.isEmpty())
        return u"Nothing is recorded as done.\n"_s;
    QString text;
    for (const VerdictRow &row : verdicts)
        text += QString::number(countOf(items, row.verdict)).rightJustified(5) + u' '
                + QString(row.text).leftJustified(verdictWidth) + row.meaning + u'\n';
    for (const GroupTexts &group : allGroups())
        text += groupText(group.group, items);
    return text;
}

QByteArray verifyJson(const QList<VerifiedItem> &items)
{
    const auto side = [](const QString &text) { return text.isEmpty() ? QJsonValue() : QJsonValue(text); };
    QJsonObject counts;
    for (const VerdictRow &row : verdicts)
        counts.insert(row.word, static_cast<qint64>(countOf(items, row.verdict)));
    QJsonArray array;
    for (const VerifiedItem &item : items) {
        QJsonArray details;
        for (const VerifiedDetail &detail : item.details) {
            details.append(QJsonObject{{u"what"_s, detail.what},
                                       {u"before"_s, side(detail.before)},
                                       {u"now"_s, side(detail.now)},
                                       {u"recorded"_s, side(detail.recorded)}});
        }
        array.append(QJsonObject{{u"group"_s, textsOf(item.group).title},
                                 {u"name"_s, item.name},
                                 {u"title"_s, item.title},
                                 {u"verdict"_s, rowOf(item.verdict).word},
                                 {u"why"_s, item.why},
                                 {u"without"_s, item.without},
                                 {u"details"_s, details}});
    }
    return printableJson(QJsonDocument(QJsonObject{{u"counts"_s, counts}, {u"items"_s, array}}));
}

bool allInForce(const QList<VerifiedItem> &items)
{
    return std::all_of(items.begin(), items.end(), [](const VerifiedItem &item) {
        return item.verdict == Verdict::InForce || item.verdict == Verdict::Gone;
    });
}
