// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview.h"

#include "machine/compare/webpage.h"
#include "previewpage.css.h"
#include "previewpage.js.h"
#include "previewtexts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr auto introduction =
    "<p>Optimize and then Restore were run on copies of this PC; on the PC itself nothing has changed. Each line below "
    "is "
    "one thing that would change: what it is, its current state, its state after Optimize, and after Restore. "
    "Open a line to see every single value and where it is stored.</p>\n"
    "<p><em>Not there</em> means that a value, key or file doesn't exist. Words before a value, such as "
    "<em>dword</em>, are "
    "registry types. With the option <code>--undo</code> this preview also writes a file that brings back "
    "everything exactly, whatever Restore leaves.</p>\n"_L1;

QString button(QLatin1StringView filter, QLatin1StringView value, const QString &content)
{
    return u"<button type=\"button\" data-filter=\"%1\" data-value=\"%2\" aria-pressed=\"false\">%3</button>"_s.arg(
        filter, value, content);
}

QString countsHtml(const QList<PreviewItem> &items)
{
    QString html = u"<ul class=\"counts\">\n"_s;
    for (const RestorabilityTexts &row : allRestorabilities()) {
        const QString content = u"<b data-count=\"%1\">%2</b> %3 <small>%4</small>"_s.arg(row.word)
                                    .arg(countOf(items, row.value))
                                    .arg(row.many, row.meaning);
        html += u"<li class=\"%1\">"_s.arg(row.word) + button("verdict"_L1, row.word, content) + u"</li>\n"_s;
    }
    return html + u"</ul>\n"_s;
}

qsizetype sizeOf(const QList<PreviewItem> &items, PreviewGroup group)
{
    return std::count_if(items.begin(), items.end(), [group](const PreviewItem &item) { return item.group == group; });
}

QString findHtml(const QList<PreviewItem> &items)
{
    QString html = u"<div class=\"find\" role=\"search\">\n<label for=\"search\">Search</label>\n"
                   "<input id=\"search\" type=\"search\" autocomplete=\"off\" spellcheck=\"false\" "
                   "placeholder=\"a name, a key, a value…\">\n<div class=\"groups\">\n"_s;
    for (const GroupTexts &group : allGroups()) {
        if (const qsizetype size = sizeOf(items, group.group); size > 0)
            html += button("group"_L1, group.word, u"%1 %2"_s.arg(group.title).arg(size)) + u'\n';
    }
    return html
           + u"</div>\n<div class=\"state\"><p id=\"found\" role=\"status\">%1 items</p>"
             "<button type=\"button\" id=\"open\">Open all</button></div>\n</div>\n"
             "<div class=\"nothing\" id=\"nothing\" hidden><p>Nothing found.</p>"
             "<button type=\"button\" id=\"again\">Show everything</button></div>\n"_s.arg(items.size());
}

QString sideHtml(QLatin1StringView label, const QString &side)
{
    return u"<span class=\"side\"><i>%1</i> %2</span>\n"_s.arg(label, side.toHtmlEscaped());
}

QString titleHtml(const PreviewItem &item)
{
    QString html = u"<span class=\"title\"><b>%1</b>"_s.arg(item.title.toHtmlEscaped());
    if (!item.about.isEmpty())
        html += u" <small class=\"about\">%1</small>"_s.arg(item.about.toHtmlEscaped());
    if (!item.name.isEmpty() && item.name != item.title)
        html += u" <small>%1</small>"_s.arg(item.name.toHtmlEscaped());
    return html + u"</span>\n"_s;
}

QString cell(QLatin1StringView label, const QString &side)
{
    return u"<td data-label=\"%1\"%2>%3</td>"_s.arg(label, side.isEmpty() ? " class=\"none\""_L1 : ""_L1,
                                                    shownSide(side).toHtmlEscaped());
}

QString detailHtml(const PreviewDetail &detail, bool counted)
{
    const QString place = detail.place.isEmpty() ? QString() : u" <code>%1</code>"_s.arg(detail.place.toHtmlEscaped());
    const RestorabilityTexts &verdict = textsOf(detail.comesBack);
    return u"<tr><td>"_s + detail.what.toHtmlEscaped() + place + u"</td>"_s + cell("Before"_L1, detail.before)
           + cell("After Optimize"_L1, detail.optimized) + cell("After Restore"_L1, detail.restored)
           + u"<td class=\"badge %1\">%2</td></tr>\n"_s.arg(verdict.word, counted ? verdict.one : ""_L1);
}

QString itemHtml(const PreviewItem &item)
{
    const RestorabilityTexts &verdict = textsOf(item.comesBack());
    const bool counted = countsAsChange(item);
    const PreviewSides sides = sidesOf(item);
    QString html = u"<details class=\"%1\" data-verdict=\"%2\"><summary class=\"row\">"_s.arg(
        verdict.word, counted ? verdict.word : ""_L1);
    html += titleHtml(item) + sideHtml("Before"_L1, sides.before) + sideHtml("After Optimize"_L1, sides.optimized)
            + sideHtml("After Restore"_L1, sides.restored)
            + u"<span class=\"badge\">%1</span></summary>\n<div class=\"body\">\n"_s.arg(counted ? verdict.one
                                                                                                 : "not counted"_L1);
    if (const QString why = whyOf(item); counted && !why.isEmpty())
        html += u"<p class=\"why\">%1</p>\n"_s.arg(why.toHtmlEscaped());
    html += u"<table><thead><tr><th>What</th><th>Before</th><th>After Optimize</th><th>After Restore</th>"
            "<th>Verdict</th></tr></thead><tbody>\n"_s;
    for (const PreviewDetail &detail : item.details)
        html += detailHtml(detail, counted);
    return html + u"</tbody></table></div></details>\n"_s;
}

QString sectionHtml(const GroupTexts &group, const QList<PreviewItem> &items)
{
    const qsizetype size = sizeOf(items, group.group);
    if (size == 0)
        return QString();
    QString html = u"<section data-group=\"%1\"><h2>%2 <span class=\"none\">%3</span></h2>\n<p>%4</p>\n"
                   "<div class=\"row columns\" aria-hidden=\"true\"><span></span><span>Before</span>"
                   "<span>After Optimize</span><span>After Restore</span><span>Verdict</span></div>\n"_s
                       .arg(group.word, group.title)
                       .arg(size)
                       .arg(group.about);
    for (const PreviewItem &item : items) {
        if (item.group == group.group)
            html += itemHtml(item);
    }
    return html + u"</section>\n"_s;
}

} // namespace

QString previewHtml(const QList<PreviewItem> &items, const QString &machine)
{
    QString page = pageStart(u"What Optimize would change"_s, previewpageCss, previewpageJs);
    page += u"<header>\n<h1>What Optimize would change, and what comes back</h1>\n<p class=\"pc\">%1</p>\n"_s.arg(
        machine.toHtmlEscaped());
    page += introduction + u"</header>\n<main>\n"_s + countsHtml(items) + findHtml(items);
    for (const GroupTexts &group : allGroups())
        page += sectionHtml(group, items);
    if (items.isEmpty())
        page += u"<h2>Nothing would change.</h2>\n"_s;
    return page + u"</main>\n"_s + pageEnd(previewpageJs);
}
