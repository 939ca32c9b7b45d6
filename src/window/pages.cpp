// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages.h"

#include <QStackedWidget>
#include <QTabBar>

namespace {

/** Is hidden by whoever has the pages, but would measure each of its tabs whenever there is one more. */
class TabsOfNoSize : public QTabBar
{
protected:
    QSize tabSizeHint(int) const override { return {}; }
    QSize minimumTabSizeHint(int) const override { return {}; }
};

} // namespace

PageStack::PageStack(QWidget *parent)
    : QTabWidget(parent)
{
    setTabBar(new TabsOfNoSize);
    // What holds the pages would ask each of them, too, before it is shown.
    findChild<QStackedWidget *>()->setAttribute(Qt::WA_Resized);
}

QSize PageStack::sizeHint() const
{
    return currentWidget() == nullptr ? QTabWidget::sizeHint() : currentWidget()->sizeHint();
}

QSize PageStack::minimumSizeHint() const
{
    return currentWidget() == nullptr ? QTabWidget::minimumSizeHint() : currentWidget()->minimumSizeHint();
}

int PageStack::heightForWidth(int width) const
{
    return currentWidget() == nullptr ? -1 : currentWidget()->heightForWidth(width);
}
