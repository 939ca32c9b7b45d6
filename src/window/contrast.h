// SPDX-License-Identifier: GPL-3.0-or-later
// What the dark theme's colours would leave hard to see.

#pragma once

#include <QProxyStyle>
#include <QStyledItemDelegate>

/**
 * Draws an outline that stands out around the boxes that are checked: the style that there is without Windows takes a
 * colour near that of the window. Windows' own styles draw one that can be seen.
 */
class OutlineStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
};

/**
 * Draws the text of a selected cell in the colour that it has otherwise, where a style sheet gives the background: the
 * sheet's own colour of the text is black also where the background is dark.
 */
class SelectedCellDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};
