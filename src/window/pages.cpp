// SPDX-License-Identifier: GPL-3.0-or-later

#include "pages.h"

#include <QResizeEvent>
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
    connect(this, &QTabWidget::currentChanged, this, &QWidget::updateGeometry);
}

QSize PageStack::sizeHint() const
{
    return currentWidget() == nullptr ? QTabWidget::sizeHint() : currentWidget()->sizeHint();
}

QSize PageStack::minimumSizeHint() const
{
    return currentWidget() == nullptr ? QTabWidget::minimumSizeHint() : currentWidget()->minimumSizeHint();
}

PageText::PageText(QWidget *parent)
    : QTextBrowser(parent)
{
}

void PageText::resizeEvent(QResizeEvent *event)
{
    if (wasShown)
        QTextBrowser::resizeEvent(event);
}

void PageText::showEvent(QShowEvent *event)
{
    if (!wasShown) {
        wasShown = true;
        QResizeEvent resized(viewport()->size(), {});
        QTextBrowser::resizeEvent(&resized);
    }
    QTextBrowser::showEvent(event);
}
