// SPDX-License-Identifier: GPL-3.0-or-later
// What the pages stand in: it asks nothing of a page before it is seen.

#pragma once

#include <QTabWidget>

/**
 * Pages of which one is seen, without tabs to choose them by. Only that one says what room there must be: what the
 * others need is found out when they are shown, which takes a third of the time until the first one is painted.
 */
class PageStack : public QTabWidget
{
public:
    /** @param parent owns it */
    explicit PageStack(QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;
};
