// SPDX-License-Identifier: GPL-3.0-or-later

#include "rowtext.h"

#include <QTableWidget>

using namespace Qt::StringLiterals;

QString wrappedText(const QString &text)
{
    // A short text needs no wrapping.
    constexpr int longText = 100;
    return text.size() > longText ? u"<span>"_s + text + u"</span>"_s : text;
}

QString rowToolTip(const QString &name, const QString &description)
{
    return name + u":<br><br>"_s + wrappedText(description);
}

QString nameFromToolTip(const QString &toolTip)
{
    return toolTip.section(u':', 0, 0);
}

QList<QTableWidgetItem *> firstCells(const QTableWidget *table)
{
    QList<QTableWidgetItem *> cells;
    for (int row = 0; row < table->rowCount(); ++row)
        cells.append(table->item(row, 0));
    return cells;
}

QString countText(const QString &label, qsizetype number)
{
    return label + u' ' + QString::number(number);
}
