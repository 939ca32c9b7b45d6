// SPDX-License-Identifier: GPL-3.0-or-later

#include "boxes.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace {

constexpr int interval = 5; // milliseconds

ShownBox read(const QMessageBox &box)
{
    ShownBox shown{.title = box.windowTitle(),
                   .text = box.text(),
                   .informativeText = box.informativeText(),
                   .buttons = box.standardButtons(),
                   .buttonTexts = {},
                   .defaultButtonText = box.defaultButton() != nullptr ? box.defaultButton()->text() : QString(),
                   .icon = box.icon(),
                   .minimumWidth = box.minimumWidth(),
                   .width = box.width(),
                   .modal = box.isModal(),
                   .hasParent = box.parent() != nullptr};
    for (const auto button : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
        if (box.button(button) != nullptr)
            shown.buttonTexts.append(box.button(button)->text());
    }
    return shown;
}

} // namespace

Boxes::Boxes(const QList<QMessageBox::StandardButton> &answers)
    : answers_(answers)
{
    connect(&timer_, &QTimer::timeout, this, &Boxes::look);
    timer_.start(interval);
}

Boxes::~Boxes()
{
    if (!answers_.isEmpty())
        QTest::qFail("a box was expected, but none came", __FILE__, __LINE__);
}

void Boxes::look()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (box == nullptr || !box->isVisible())
        return;
    shown_.append(read(*box));
    for (const QLabel *label : box->findChildren<QLabel *>()) {
        if (!label->text().isEmpty() && label->textFormat() != Qt::PlainText)
            QTest::qFail("what the box says may be taken for markup", __FILE__, __LINE__);
    }
    if (answers_.isEmpty()) {
        QTest::qFail(qPrintable(QStringLiteral("nobody expected the box: ") + box->text()), __FILE__, __LINE__);
        box->reject();
        return;
    }
    const auto answer = answers_.takeFirst();
    if (answer == QMessageBox::NoButton) {
        QTest::keyClick(box, Qt::Key_Escape);
    } else if (QAbstractButton *button = box->button(answer); button != nullptr) {
        QTest::mouseClick(button, Qt::LeftButton);
    } else {
        QTest::qFail("the box lacks the button that was to be clicked", __FILE__, __LINE__);
        box->reject();
    }
}
