// SPDX-License-Identifier: GPL-3.0-or-later

#include "previewreport.h"

#include "rehearsal/webpage.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct ReturnRow
{
    Return value;
    QLatin1StringView word; ///< in JSON, and as the class of an element
    QLatin1StringView title;
    QLatin1StringView meaning;
};

// clang-format off
constexpr ReturnRow returnRows[] = {
    {Return::Exactly,   "exactly"_L1,   "come back exactly"_L1,
     "Restore gives back what was there, to the last value."_L1},
    {Return::Otherwise, "otherwise"_L1, "come back as a default"_L1,
     "Restore writes Windows' own default, which isn't what was there."_L1},
    {Return::NotAtAll,  "not-at-all"_L1, "don't come back"_L1,
     "Restore leaves the change as it is. The undo file brings these back too."_L1},
    {Return::Unasked,   "unasked"_L1,   "are changed by Restore alone"_L1,
     "Optimize leaves these alone, and Restore writes a default."_L1},
};

constexpr PreviewGroup groups[] = {
    PreviewGroup::Services, PreviewGroup::Tasks, PreviewGroup::Packages, PreviewGroup::Autorun,
    PreviewGroup::Features, PreviewGroup::Files, PreviewGroup::Registry, PreviewGroup::Records,
};
// clang-format on

const ReturnRow &rowOf(Return value)
{
    return *std::find_if(std::begin(returnRows), std::end(returnRows),
                         [value](const ReturnRow &row) { return row.value == value; });
}

/** Kestrune's own records are no change of the PC and count for nothing. */
bool counts(const PreviewItem &item)
{
    return item.group != PreviewGroup::Records;
}

int countOf(const QList<PreviewItem> &items, Return value)
{
    return static_cast<int>(std::count_if(items.begin(), items.end(), [value](const PreviewItem &item) {
        return counts(item) && item.comesBack() == value;
    }));
}

QString shown(const QString &side)
{
    return side.isEmpty() ? u"(none)"_s : side;
}

// --- web page

constexpr QLatin1StringView pageStyle = R"(
.counts { display: flex; flex-wrap: wrap; gap: 1rem; margin: 1.5rem 0; padding: 0; list-style: none; }
.counts li { border: 1px solid var(--line); border-radius: 8px; flex: 1 1 14rem; padding: .8rem 1rem; }
.counts b { display: block; font-size: 1.8rem; line-height: 1.1; }
.counts small { color: var(--faint); display: block; margin-top: .3rem; }
.exactly b, .badge.exactly { color: var(--new); }
.otherwise b, .badge.otherwise, .unasked b, .badge.unasked { color: var(--warn); }
.not-at-all b, .badge.not-at-all { color: var(--gone); }
#search { background: var(--page); border: 1px solid var(--line); border-radius: 8px; box-sizing: border-box;
          color: var(--text); font: inherit; padding: .6rem .8rem; width: 100%; }
details { border-bottom: 1px solid var(--line); }
summary { cursor: pointer; display: flex; gap: 1rem; padding: .5rem .2rem; }
summary .title { flex: 1; overflow-wrap: anywhere; }
summary .title small { color: var(--faint); display: block; overflow-wrap: anywhere; }
.badge { white-space: nowrap; }
details table { margin: 0 0 .8rem; }
h2 .none { font-weight: normal; }
@media print { #search { display: none; } details { break-inside: avoid; } }
@media (max-width: 40rem) { summary { display: block; } }
)"_L1;

constexpr QLatin1StringView pageScript = R"(<script>
const field = document.getElementById('search');
const items = [...document.querySelectorAll('details')];
field.addEventListener('input', () => {
  const words = field.value.toLowerCase().split(/\s+/).filter(Boolean);
  for (const item of items) {
    const text = item.textContent.toLowerCase();
    item.hidden = !words.every(word => text.includes(word));
  }
  for (const section of document.querySelectorAll('section'))
    section.hidden = ![...section.querySelectorAll('details')].some(item => !item.hidden);
});
let opened = [];
addEventListener('beforeprint', () => { opened = items.filter(item => !item.open); opened.forEach(item => item.open = true); });
addEventListener('afterprint', () => opened.forEach(item => item.open = false));
</script>
)"_L1;

QString countsHtml(const QList<PreviewItem> &items)
{
    QString html = u"<ul class=\"counts\">\n"_s;
    for (const ReturnRow &row : returnRows) {
        html += u"<li class=\"%1\"><b>%2</b>%3<small>%4</small></li>\n"_s.arg(row.word)
                    .arg(countOf(items, row.value))
                    .arg(row.title, row.meaning);
    }
    return html + u"</ul>\n"_s;
}

QString cell(const QString &side)
{
    return u"<td%1>%2</td>"_s.arg(side.isEmpty() ? " class=\"none\""_L1 : ""_L1, shown(side).toHtmlEscaped());
}

QString itemHtml(const PreviewItem &item)
{
    const ReturnRow &row = rowOf(item.comesBack());
    QString name;
    if (!item.name.isEmpty())
        name = u"<small>"_s + item.name.toHtmlEscaped() + u"</small>"_s;
    QString html =
        u"<details><summary><span class=\"title\">%1%2</span><span class=\"badge %3\">%4</span></summary>\n"_s.arg(
            item.title.toHtmlEscaped(), name, row.word, returnText(row.value));
    html += u"<table><thead><tr><th>What</th><th>Before</th><th>After Optimize</th><th>After Restore</th><th></th></tr>"
            "</thead><tbody>\n"_s;
    for (const PreviewDetail &detail : item.details) {
        html += u"<tr><td>"_s + detail.what.toHtmlEscaped() + u"</td>"_s + cell(detail.before) + cell(detail.optimized)
                + cell(detail.restored)
                + u"<td class=\"badge %1\">%2</td></tr>\n"_s.arg(rowOf(detail.comesBack).word,
                                                                 returnText(detail.comesBack));
    }
    return html + u"</tbody></table></details>\n"_s;
}

QString sectionHtml(PreviewGroup group, const QList<PreviewItem> &items)
{
    QString html;
    int count = 0;
    for (const PreviewItem &item : items) {
        if (item.group != group)
            continue;
        html += itemHtml(item);
        ++count;
    }
    if (count == 0)
        return QString();
    return u"<section><h2>%1 <span class=\"none\">%2</span></h2>\n"_s.arg(groupTitle(group)).arg(count) + html
           + u"</section>\n"_s;
}

} // namespace

QString previewText(const QList<PreviewItem> &items)
{
    QString text;
    for (const ReturnRow &row : returnRows)
        text += QString::number(countOf(items, row.value)).rightJustified(5) + u' ' + row.title + u'\n';
    for (const PreviewGroup group : groups) {
        bool first = true;
        for (const PreviewItem &item : items) {
            if (item.group != group)
                continue;
            if (first)
                text += u'\n' + groupTitle(group) + u'\n';
            first = false;
            text += u"  "_s + item.title + u" -- "_s + returnText(item.comesBack()) + u'\n';
            for (const PreviewDetail &detail : item.details) {
                text += u"      "_s + detail.what + u": "_s + shown(detail.before) + u" -> "_s + shown(detail.optimized)
                        + u" -> "_s + shown(detail.restored) + u'\n';
            }
        }
    }
    return text;
}

QByteArray previewJson(const QList<PreviewItem> &items)
{
    const auto side = [](const QString &text) { return text.isEmpty() ? QJsonValue() : QJsonValue(text); };
    QJsonObject counted;
    for (const ReturnRow &row : returnRows)
        counted.insert(row.word, countOf(items, row.value));
    QJsonArray array;
    for (const PreviewItem &item : items) {
        QJsonArray details;
        for (const PreviewDetail &detail : item.details) {
            details.append(QJsonObject{{u"what"_s, detail.what},
                                       {u"before"_s, side(detail.before)},
                                       {u"optimized"_s, side(detail.optimized)},
                                       {u"restored"_s, side(detail.restored)},
                                       {u"comesBack"_s, rowOf(detail.comesBack).word}});
        }
        array.append(QJsonObject{{u"group"_s, groupTitle(item.group)},
                                 {u"title"_s, item.title},
                                 {u"name"_s, item.name},
                                 {u"comesBack"_s, rowOf(item.comesBack()).word},
                                 {u"details"_s, details}});
    }
    return QJsonDocument(QJsonObject{{u"counts"_s, counted}, {u"items"_s, array}}).toJson();
}

QString previewHtml(const QList<PreviewItem> &items, const QString &machine)
{
    QString page = pageStart(u"What Optimize would change"_s, pageStyle);
    page += u"<h1>What Optimize would change</h1>\n<p>%1</p>\n"_s.arg(machine.toHtmlEscaped());
    page += countsHtml(items);
    page += u"<input id=\"search\" type=\"search\" placeholder=\"Search\" aria-label=\"Search\">\n"_s;
    for (const PreviewGroup group : groups)
        page += sectionHtml(group, items);
    if (items.isEmpty())
        page += u"<h2>Nothing would change.</h2>\n"_s;
    return page + pageScript + pageEnd();
}
