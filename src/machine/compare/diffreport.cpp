// SPDX-License-Identifier: GPL-3.0-or-later

#include "machinediff.h"

#include "console/printable.h"
#include "webpage.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString fullPath(const DiffRow &row)
{
    return row.name.isEmpty() ? row.path : row.path + u'\\' + row.name;
}

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
    return side.isEmpty() ? u"not there"_s : side;
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
        if (const qsizetype width = printable(fullPath(row)).size(); width <= widestColumn)
            widths[row.kind] = std::max(widths[row.kind], width);
    }
    QString text;
    for (const DiffRow &row : rows) {
        text += kindName(row.kind).leftJustified(kindColumn) + printable(fullPath(row)).leftJustified(widths[row.kind])
                + u"  "_s + printable(shown(row.before)) + u" -> "_s + printable(shown(row.after)) + u'\n';
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
    return printableJson(QJsonDocument(array));
}

QString diffHtml(const QList<DiffRow> &rows, const QString &before, const QString &after)
{
    QString page = pageStart(u"What differs"_s);
    page +=
        u"<h1>What differs</h1>\n<p>before: %1<br>after: %2</p>\n"_s.arg(before.toHtmlEscaped(), after.toHtmlEscaped());
    for (const KindRow &kind : kindRows)
        page += section(kind, rows);
    if (rows.isEmpty())
        page += u"<h2>Nothing differs.</h2>\n"_s;
    return page + pageEnd();
}
