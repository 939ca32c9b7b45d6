// SPDX-License-Identifier: GPL-3.0-or-later

#include "diffreport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QMap>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString fullPath(const DiffRow &row)
{
    return row.name.isEmpty() ? row.path : row.path + u'\\' + row.name;
}

constexpr QLatin1StringView pageStart = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>What differs</title>
<style>
:root { color-scheme: light dark; --page: #ffffff; --text: #1d2127; --faint: #5c6570; --line: #d8dde3; --head: #f3f5f7;
        --gone: #a4262c; --new: #1b6e2d; }
@media (prefers-color-scheme: dark) {
  :root { --page: #16191d; --text: #e4e7ea; --faint: #9aa4af; --line: #333a42; --head: #20252b;
          --gone: #f1868b; --new: #79cf8b; }
}
body { background: var(--page); color: var(--text); font: 15px/1.45 system-ui, sans-serif; margin: 2rem auto;
       max-width: 80rem; padding: 0 1rem; }
h1 { font-size: 1.5rem; margin-bottom: .2rem; }
h2 { font-size: 1.1rem; margin: 2rem 0 .5rem; }
p { color: var(--faint); margin: 0; }
table { border-collapse: collapse; width: 100%; }
th, td { border-bottom: 1px solid var(--line); padding: .35rem .6rem; text-align: left; vertical-align: top;
         overflow-wrap: anywhere; }
th { background: var(--head); font-weight: 600; }
td { font-family: ui-monospace, monospace; font-size: 13px; }
td:nth-child(1) { width: 56%; }
.gone { color: var(--gone); }
.new { color: var(--new); }
.none { color: var(--faint); }
</style>
</head>
<body>
)"_L1;

struct KindRow
{
    DiffKind kind;
    QLatin1StringView title;
};

// clang-format off
constexpr KindRow kindRows[] = {
    {DiffKind::Service,    "Services"_L1},
    {DiffKind::Task,       "Scheduled tasks"_L1},
    {DiffKind::Registry,   "Registry"_L1},
    {DiffKind::File,       "Files"_L1},
    {DiffKind::Attribute,  "File attributes"_L1},
    {DiffKind::Security,   "File owners and rights"_L1},
    {DiffKind::BootOption, "Boot options"_L1},
};
// clang-format on

QString shown(const QString &side)
{
    return side.isEmpty() ? u"(none)"_s : side;
}

QString cell(const QString &side, QLatin1StringView style)
{
    return u"<td class=\"%1\">%2</td>"_s.arg(side.isEmpty() ? "none"_L1 : style, shown(side).toHtmlEscaped());
}

QString section(const KindRow &kind, const QList<DiffRow> &rows)
{
    QString body;
    int count = 0;
    for (const DiffRow &row : rows) {
        if (row.kind != kind.kind)
            continue;
        ++count;
        body += u"<tr><td>"_s + fullPath(row).toHtmlEscaped() + u"</td>"_s + cell(row.before, "gone"_L1)
                + cell(row.after, "new"_L1) + u"</tr>\n"_s;
    }
    if (count == 0)
        return QString();
    return u"<h2>%1 (%2)</h2>\n<table>\n<thead><tr><th>What</th><th>Before</th><th>After</th></tr></thead>\n<tbody>\n"_s
               .arg(kind.title)
               .arg(count)
           + body + u"</tbody>\n</table>\n"_s;
}

} // namespace

QString diffText(const QList<DiffRow> &rows)
{
    // Beyond this a line is left to be longer than the others.
    constexpr qsizetype widestColumn = 110;
    constexpr qsizetype kindColumn = 10;

    QMap<DiffKind, qsizetype> widths;
    for (const DiffRow &row : rows) {
        if (const qsizetype width = fullPath(row).size(); width <= widestColumn)
            widths[row.kind] = std::max(widths[row.kind], width);
    }
    QString text;
    for (const DiffRow &row : rows) {
        text += kindName(row.kind).leftJustified(kindColumn) + fullPath(row).leftJustified(widths[row.kind]) + u"  "_s
                + shown(row.before) + u" -> "_s + shown(row.after) + u'\n';
    }
    return text;
}

QByteArray diffJson(const QList<DiffRow> &rows)
{
    const auto side = [](const QString &text) { return text.isEmpty() ? QJsonValue() : QJsonValue(text); };
    QJsonArray array;
    for (const DiffRow &row : rows) {
        array.append(QJsonObject{
            {u"kind"_s, kindName(row.kind)},
            {u"path"_s, row.path},
            {u"name"_s, row.name},
            {u"before"_s, side(row.before)},
            {u"after"_s, side(row.after)},
        });
    }
    return QJsonDocument(array).toJson();
}

QString diffHtml(const QList<DiffRow> &rows, const QString &before, const QString &after)
{
    QString page = pageStart;
    page +=
        u"<h1>What differs</h1>\n<p>before: %1<br>after: %2</p>\n"_s.arg(before.toHtmlEscaped(), after.toHtmlEscaped());
    for (const KindRow &kind : kindRows)
        page += section(kind, rows);
    if (rows.isEmpty())
        page += u"<h2>Nothing differs.</h2>\n"_s;
    return page + u"</body>\n</html>\n"_s;
}
