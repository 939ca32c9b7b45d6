// SPDX-License-Identifier: GPL-3.0-or-later

#include "contrast.h"

#include <QPainter>

namespace {

/** Half-way between text and background: seen on both, and no brighter than a text. */
QColor outlineOn(const QPalette &palette)
{
    const QColor text = palette.color(QPalette::WindowText);
    const QColor window = palette.color(QPalette::Window);
    return {(text.red() + window.red()) / 2, (text.green() + window.green()) / 2, (text.blue() + window.blue()) / 2};
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

void SelectedCellDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QWidget *view = option.widget;
    if (!option.state.testFlag(QStyle::State_Selected) || view == nullptr || view->styleSheet().isEmpty()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    QStyleOptionViewItem content(option);
    initStyleOption(&content, index);
    QStyleOptionViewItem background(content);
    background.features = QStyleOptionViewItem::None;
    background.text.clear();
    background.icon = {};
    view->style()->drawControl(QStyle::CE_ItemViewItem, &background, painter, view);
    content.state &= ~QStyle::State_Selected;
    content.backgroundBrush = Qt::NoBrush;
    view->style()->drawControl(QStyle::CE_ItemViewItem, &content, painter, view);
}
