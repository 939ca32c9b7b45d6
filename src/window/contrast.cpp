// SPDX-License-Identifier: GPL-3.0-or-later

#include "contrast.h"

#include "platform/platform.h"

#include <QApplication>
#include <QEvent>
#include <QHeaderView>
#include <QPainter>
#include <QTableView>

namespace {

/** Half-way between text and background: seen on both, and no brighter than a text. */
QColor outlineOn(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::WindowText);
    const QColor window = palette.color(QPalette::Window);
    return {(text.red() + window.red()) / 2, (text.green() + window.green()) / 2, (text.blue() + window.blue()) / 2};
}

/** The part of a row's frame that lies in one of its cells. */
void drawRowFrame(QPainter *painter, const QTableView &table, const QStyleOptionViewItem &cell, int column)
{
    const QHeaderView *header = table.horizontalHeader();
    const QRect &rect = cell.rect;
    painter->save();
    painter->setPen(cell.palette.color(QPalette::Text));
    painter->drawLine(rect.topLeft(), rect.topRight());
    painter->drawLine(rect.bottomLeft(), rect.bottomRight());
    if (header->visualIndex(column) == 0)
        painter->drawLine(rect.topLeft(), rect.bottomLeft());
    if (header->sectionPosition(column) + header->sectionSize(column) == header->length())
        painter->drawLine(rect.topRight(), rect.bottomRight());
    painter->restore();
}

void drawCell(QPainter *painter, const QStyleOptionViewItem &cell, QStyle *style)
{
    const QWidget *view = cell.widget;
    QStyleOptionViewItem content(cell);
    QStyleOptionViewItem background(content);
    background.features = QStyleOptionViewItem::None;
    background.text.clear();
    background.icon = {};
    style->drawControl(QStyle::CE_ItemViewItem, &background, painter, view);
    content.state &= ~QStyle::State_Selected;
    content.backgroundBrush = Qt::NoBrush;
    style->drawControl(QStyle::CE_ItemViewItem, &content, painter, view);
}

} // namespace

void OutlineStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                 const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element != PE_IndicatorCheckBox && element != PE_IndicatorItemViewItemCheck)
        return;
    painter->save();
    painter->setBrush(Qt::NoBrush);
    painter->setPen(outlineOn(option->palette));
    painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
    painter->restore();
}

void ListDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QWidget *view = option.widget;
    if (!option.state.testFlag(QStyle::State_Selected) || view == nullptr || view->styleSheet().isEmpty()) {
        QStyledItemDelegate::paint(painter, option, index);
    } else {
        QStyleOptionViewItem cell(option);
        initStyleOption(&cell, index);
        drawCell(painter, cell, view->style());
    }
    const auto *table = qobject_cast<const QTableView *>(view);
    if (table != nullptr && table->hasFocus() && table->currentIndex().row() == index.row())
        drawRowFrame(painter, *table, option, index.column());
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

void themeTitleBar(QWidget *window)
{
    const bool hasTitleBar = window->windowType() == Qt::Window || window->windowType() == Qt::Dialog;
    if (hasTitleBar && window->isVisible())
        platform().setTitleBarDark(window->winId(), isDark(QGuiApplication::palette()));
}

bool TitleBarTheme::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Show && watched->isWidgetType() && static_cast<QWidget *>(watched)->isWindow())
        themeTitleBar(static_cast<QWidget *>(watched));
    return QObject::eventFilter(watched, event);
}
