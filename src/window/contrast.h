// SPDX-License-Identifier: GPL-3.0-or-later
// What the themes would leave hard to see, and the frames of windows.

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
 * Draws the cells of a list. The text of a selected cell keeps its colour where a style sheet gives the background: the
 * sheet's own colour of the text is black also where the background is dark. Round the current row there is a frame as
 * long as the list has the keyboard.
 */
class ListDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

/** Lets the title bar of a window that is on the screen be as dark as the theme in force; other widgets have none. */
void themeTitleBar(QWidget *window);

/** Does so for each window that appears, as long as it filters the application's events. */
class TitleBarTheme final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

/** Whether a palette is one of light texts on a dark ground. */
bool isDark(const QPalette &palette);
