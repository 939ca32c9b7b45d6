// SPDX-License-Identifier: GPL-3.0-or-later

#include "rowtext.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QTableWidget>
#include <QTextDocument>
#include <QToolTip>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// A name that isn't escaped has no such beginning.
const QString escapedBegin = u"<span>"_s;
const QString escapedEnd = u"</span>"_s;

QString escaped(const QString &text)
{
    return escapedBegin + text.toHtmlEscaped() + escapedEnd;
}

/** What escaped() was given; of a piece without its end, what that piece was. */
QString unescaped(QString text)
{
    text.remove(0, escapedBegin.size());
    if (text.endsWith(escapedEnd))
        text.chop(escapedEnd.size());
    return text.replace("&lt;"_L1, "<"_L1)
        .replace("&gt;"_L1, ">"_L1)
        .replace("&quot;"_L1, "\""_L1)
        .replace("&amp;"_L1, "&"_L1);
}

} // namespace

QString wrappedText(const QString &text)
{
    // A short text needs no wrapping.
    constexpr int longText = 100;
    // Descriptions of tasks come as an export has them, with its entities.
    const QString shown = QString(text).replace("<"_L1, "&lt;"_L1);
    return text.size() > longText ? u"<span>"_s + shown + u"</span>"_s : shown;
}

QString wrappingToolTip(const QString &text)
{
    constexpr int longText = 50; // of letters that may be twice as wide as others
    return text.size() > longText || Qt::mightBeRichText(text) ? escaped(text) : text;
}

void explain(QWidget *widget, const QString &text)
{
    widget->setToolTip(wrappingToolTip(text));
    widget->setAccessibleDescription(text);
}

QString plainToolTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? escaped(text) : text;
}

QString rowToolTip(const QString &name, const QString &description)
{
    return (name.contains(u'<') ? escaped(name) : name) + u":<br><br>"_s + wrappedText(description);
}

QString nameFromToolTip(const QString &toolTip)
{
    const QString name = toolTip.section(u':', 0, 0);
    return name.startsWith(escapedBegin) ? unescaped(name) : name;
}

QString spokenText(const QString &text, const QString &title)
{
    return text.isEmpty() ? title + u": \u2013"_s : text;
}

QTableWidgetItem *newCell(const QTableWidget *table, int column, const QString &text)
{
    auto *cell = new QTableWidgetItem(text);
    cell->setFlags(cell->flags() & ~Qt::ItemIsEditable);
    if (text.isEmpty())
        cell->setData(Qt::AccessibleTextRole, spokenText(text, table->horizontalHeaderItem(column)->text()));
    return cell;
}

int appendRows(QTableWidget *table, qsizetype count)
{
    constexpr int asked = 6;
    // A header that is told the height of one row adds up those of all before it.
    QHeaderView *heights = table->verticalHeader();
    heights->setDefaultSectionSize(std::max(asked, heights->minimumSectionSize()));
    const int first = table->rowCount();
    table->setRowCount(first + static_cast<int>(count));
    return first;
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

QSize StatusLabel::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(u'\u2026'), QLabel::minimumSizeHint().height()};
}

bool StatusLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip || shownText() == text())
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), wrappingToolTip(text()), this);
    return true;
}

void StatusLabel::paintEvent(QPaintEvent *event)
{
    const QString shown = shownText();
    if (shown == text()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    const auto place = QStyle::visualAlignment(layoutDirection(), alignment());
    style()->drawItemText(&painter, contentsRect(), int(place), palette(), isEnabled(), shown, foregroundRole());
}

QString StatusLabel::shownText() const
{
    const int room = contentsRect().width();
    QString seen = text();
    while (seen.endsWith(u' '))
        seen.chop(1);
    return fontMetrics().horizontalAdvance(seen) <= room ? text()
                                                         : fontMetrics().elidedText(seen, Qt::ElideRight, room);
}
