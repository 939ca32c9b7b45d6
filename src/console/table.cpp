// SPDX-License-Identifier: GPL-3.0-or-later

#include "table.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString table(const QList<QStringList> &rows)
{
    QList<qsizetype> widths;
    for (const QStringList &row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], row.at(i).size());
    }
    QString text;
    for (const QStringList &row : rows) {
        QString line;
        for (qsizetype i = 0; i + 1 < row.size(); ++i)
            line += row.at(i).leftJustified(widths.at(i)) + u"  "_s;
        line += row.last();
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + u'\n';
    }
    return text;
}
