// SPDX-License-Identifier: GPL-3.0-or-later
// What a page is asked before it is seen: nothing.

#include "support/suite.h"
#include "window/pages.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QMainWindow>
#include <QTest>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

/** A text that counts how often it is asked for its size. */
class Asked : public QLabel
{
public:
    explicit Asked(const QString &text)
        : QLabel(text)
    {
        setWordWrap(true); // so that its height depends on its width
    }

    QSize sizeHint() const override
    {
        ++times;
        return QLabel::sizeHint();
    }

    QSize minimumSizeHint() const override
    {
        ++times;
        return QLabel::minimumSizeHint();
    }

    int heightForWidth(int width) const override
    {
        ++times;
        return QLabel::heightForWidth(width);
    }

    mutable int times = 0;
};

QWidget *pageWith(QWidget *widget)
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->addWidget(widget);
    return page;
}

} // namespace

class TestPages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hiddenPagesAreNotMeasured();
    void theWindowHasRoomForThePageThatIsSeen();
};

void TestPages::hiddenPagesAreNotMeasured()
{
    auto *first = new Asked(u"one"_s);
    auto *second = new Asked(u"two"_s);
    QWidget window;
    auto *layout = new QGridLayout(&window);
    auto *pages = new PageStack(&window);
    pages->addTab(pageWith(first), {});
    pages->addTab(pageWith(second), {});
    layout->addWidget(pages);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(first->times > 0);
    QCOMPARE(second->times, 0);
    pages->setCurrentIndex(1);
    QCoreApplication::processEvents();
    QVERIFY(second->times > 0);
    QVERIFY(second->isVisible() && second->width() > 0);
}

void TestPages::theWindowHasRoomForThePageThatIsSeen()
{
    QMainWindow window;
    auto *pages = new PageStack(&window);
    for (const int side : {100, 300}) {
        auto *box = new QWidget;
        box->setMinimumSize(side, side);
        pages->addTab(pageWith(box), {});
    }
    window.setCentralWidget(pages);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(pages->minimumSizeHint().height() >= 100 && pages->minimumSizeHint().height() < 300);
    pages->setCurrentIndex(1);
    QVERIFY(pages->minimumSizeHint().height() >= 300);
    QTRY_VERIFY(window.height() >= 300);
}

KESTRUNE_WINDOW_SUITE(TestPages)
#include "tst_pages.moc"
