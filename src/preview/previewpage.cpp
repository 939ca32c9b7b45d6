// SPDX-License-Identifier: GPL-3.0-or-later

#include "preview.h"

#include "machine/compare/webpage.h"
#include "previewpage.css.h"
#include "previewpage.js.h"
#include "previewtexts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** "%1" and "%2" stand for the two steps. */
constexpr auto introduction =
    "<p>%1 and then %2 were run on copies of this PC; on the PC itself nothing has changed. Each line below is one "
    "thing "
    "that would change: what it is, its current state, its state after %1, and after %2. Open a line to see every "
    "single "
    "value and where it is stored.</p>\n"
    "<p><em>Not there</em> means that a value, key or file doesn't exist. Words before a value, such as "
    "<em>dword</em>, are registry types."_L1;
constexpr auto aboutUndoFile = " With the option <code>--undo</code> this preview also writes a file that brings back "
                               "everything exactly, whatever "
                               "Restore leaves."_L1;

QString button(QLatin1StringView filter, QLatin1StringView value, const QString &content)
{
    return u"<button type=\"button\" data-filter=\"%1\" data-value=\"%2\" aria-pressed=\"false\">%3</button>"_s.arg(
        filter, value, content);
}

/** Writes the page of one way. */
class Page
{
public:
    Page(const QList<PreviewItem> &items, PreviewWay way, bool offersUndo)
        : items_(items)
        , way_(way)
        , offersUndo_(offersUndo)
        , steps_(stepNames(way))
        , afterChange_(u"After %1"_s.arg(steps_.change))
        , afterBack_(u"After %1"_s.arg(steps_.back))
    {
    }

    QString html(const QString &machine) const;

private:
    QString introductionHtml() const;
    QString countsHtml() const;
    QString findHtml() const;
    QString sectionHtml(const GroupTexts &group) const;
    QString itemHtml(const PreviewItem &item) const;
    QString detailHtml(const PreviewDetail &detail, bool counted) const;
    QString sizeText() const;
    qsizetype sizeOf(PreviewGroup group) const;

    const QList<PreviewItem> &items_;
    const PreviewWay way_;
    const bool offersUndo_;
    const StepNames steps_;
    const QString afterChange_;
    const QString afterBack_;
};

QString sideHtml(const QString &label, const QString &side)
{
    return u"<span class=\"side\"><i>%1</i> %2</span>\n"_s.arg(label, side.toHtmlEscaped());
}

QString titleHtml(const PreviewItem &item)
{
    QString html = u"<span class=\"title\"><b>%1</b>"_s.arg(item.title.toHtmlEscaped());
    if (!item.about.isEmpty())
        html += u" <small class=\"about\">%1</small>"_s.arg(item.about.toHtmlEscaped());
    if (!item.without.isEmpty())
        html += u" <small class=\"without\">%1</small>"_s.arg(withoutText(item.without).toHtmlEscaped());
    if (!item.name.isEmpty() && item.name != item.title)
        html += u" <small>%1</small>"_s.arg(item.name.toHtmlEscaped());
    return html + u"</span>\n"_s;
}

QString cell(const QString &label, const QString &side)
{
    return u"<td data-label=\"%1\"%2>%3</td>"_s.arg(label, side.isEmpty() ? " class=\"none\""_L1 : ""_L1,
                                                    shownSide(side).toHtmlEscaped());
}

QString Page::html(const QString &machine) const
{
    QString page = pageStart(u"What %1 would change"_s.arg(steps_.change), previewpageCss, previewpageJs);
    page += u"<header>\n<h1>What %1 would change, and what comes back</h1>\n<p class=\"pc\">%2</p>\n"_s.arg(
        steps_.change, machine.toHtmlEscaped());
    page += introductionHtml() + u"</header>\n<main>\n"_s + countsHtml() + findHtml();
    for (const GroupTexts &group : allGroups())
        page += sectionHtml(group);
    if (items_.isEmpty())
        page += u"<h2>Nothing would change.</h2>\n"_s;
    return page + u"</main>\n"_s + pageEnd(previewpageJs);
}

QString Page::introductionHtml() const
{
    QString html = introduction;
    html.replace("%1"_L1, steps_.change).replace("%2"_L1, steps_.back);
    // Where Restore brings back everything, nobody needs more.
    const bool isAnyLeft = std::any_of(items_.begin(), items_.end(), [](const PreviewItem &item) {
        return countsAsChange(item) && item.comesBack() != Restorability::Exactly;
    });
    if (offersUndo_ && isAnyLeft)
        html += aboutUndoFile;
    return html + u"</p>\n"_s;
}

QString Page::countsHtml() const
{
    QString html = u"<ul class=\"counts\">\n"_s;
    for (const RestorabilityTexts &row : allRestorabilities(way_)) {
        const QString content = u"<b data-count=\"%1\">%2</b> %3 <small>%4</small>"_s.arg(row.word)
                                    .arg(countOf(items_, row.value))
                                    .arg(row.many, row.meaning);
        html += u"<li class=\"%1\">"_s.arg(row.word) + button("verdict"_L1, row.word, content) + u"</li>\n"_s;
    }
    return html + u"</ul>\n"_s;
}

QString Page::findHtml() const
{
    QString html = u"<div class=\"find\" role=\"search\">\n<label for=\"search\">Search</label>\n"
                   "<input id=\"search\" type=\"search\" autocomplete=\"off\" spellcheck=\"false\" "
                   "placeholder=\"a name, a key, a value…\">\n<div class=\"groups\">\n"_s;
    for (const GroupTexts &group : allGroups()) {
        if (const qsizetype size = sizeOf(group.group); size > 0)
            html += button("group"_L1, group.word, u"%1 %2"_s.arg(group.title).arg(size)) + u'\n';
    }
    return html + u"</div>\n<div class=\"state\"><p id=\"found\" role=\"status\">"_s + sizeText()
           + u"</p>"
             "<button type=\"button\" id=\"open\">Open all</button></div>\n</div>\n"
             "<div class=\"nothing\" id=\"nothing\" hidden><p>Nothing found.</p>"
             "<button type=\"button\" id=\"again\">Show everything</button></div>\n"_s;
}

/** How many items there are, and why that is more than the counts say. */
QString Page::sizeText() const
{
    const QString all = u"%1 items"_s.arg(items_.size());
    const qsizetype records = sizeOf(PreviewGroup::Records);
    return records == 0 ? all
                        : all
                              + u": %1 changes, and %2 of Kestrune's own records, which the counts above leave out"_s
                                    .arg(items_.size() - records)
                                    .arg(records);
}

QString Page::sectionHtml(const GroupTexts &group) const
{
    const qsizetype size = sizeOf(group.group);
    if (size == 0)
        return QString();
    QString html = u"<section data-group=\"%1\"><h2>%2 <span class=\"none\">%3</span></h2>\n<p>%4</p>\n"
                   "<table class=\"list\" role=\"presentation\"><thead><tr><th>"
                   "<div class=\"row columns\" aria-hidden=\"true\"><span></span><span>Before</span>"
                   "<span>%5</span><span>%6</span><span>Verdict</span></div></th></tr></thead><tbody><tr><td>\n"_s
                       .arg(group.word, group.title)
                       .arg(size)
                       .arg(aboutGroup(group, way_), afterChange_, afterBack_);
    for (const PreviewItem &item : items_) {
        if (item.group == group.group)
            html += itemHtml(item);
    }
    return html + u"</td></tr></tbody></table></section>\n"_s;
}

QString Page::itemHtml(const PreviewItem &item) const
{
    const RestorabilityTexts &verdict = textsOf(item.comesBack(), way_);
    const bool counted = countsAsChange(item);
    const PreviewSides sides = sidesOf(item, way_);
    QString html = u"<details class=\"%1\" data-verdict=\"%2\"><summary class=\"row\">"_s.arg(
        verdict.word, counted ? verdict.word : ""_L1);
    html += titleHtml(item) + sideHtml(u"Before"_s, sides.before) + sideHtml(afterChange_, sides.optimized)
            + sideHtml(afterBack_, sides.restored)
            + u"<span class=\"badge\">%1</span></summary>\n<div class=\"body\">\n"_s.arg(counted ? verdict.one
                                                                                                 : "not counted"_L1);
    if (const QString why = whyOf(item, way_); counted && !why.isEmpty())
        html += u"<p class=\"why\">%1</p>\n"_s.arg(why.toHtmlEscaped());
    html += u"<table><thead><tr><th>What</th><th>Before</th><th>%1</th><th>%2</th>"
            "<th>Verdict</th></tr></thead><tbody>\n"_s.arg(afterChange_, afterBack_);
    for (const PreviewDetail &detail : item.details)
        html += detailHtml(detail, counted);
    return html + u"</tbody></table></div></details>\n"_s;
}

QString Page::detailHtml(const PreviewDetail &detail, bool counted) const
{
    const QString place = detail.place.isEmpty() ? QString() : u" <code>%1</code>"_s.arg(detail.place.toHtmlEscaped());
    const RestorabilityTexts &verdict = textsOf(detail.comesBack, way_);
    return u"<tr><td>"_s + detail.what.toHtmlEscaped() + place + u"</td>"_s + cell(u"Before"_s, detail.before)
           + cell(afterChange_, detail.optimized) + cell(afterBack_, detail.restored)
           + u"<td class=\"badge %1\">%2</td></tr>\n"_s.arg(verdict.word, counted ? verdict.one : ""_L1);
}

qsizetype Page::sizeOf(PreviewGroup group) const
{
    return std::count_if(items_.begin(), items_.end(),
                         [group](const PreviewItem &item) { return item.group == group; });
}

} // namespace

QString previewHtml(const QList<PreviewItem> &items, const QString &machine, PreviewWay way, bool offersUndo)
{
    return Page(items, way, offersUndo).html(machine);
}
