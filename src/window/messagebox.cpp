// SPDX-License-Identifier: GPL-3.0-or-later

#include "messagebox.h"

#include "kestrune.h"

#include <QAbstractButton>
#include <QGridLayout>
#include <QLabel>

namespace {

void nameButton(QMessageBox &box, QMessageBox::StandardButton button, const QString &text)
{
    if (QAbstractButton *shown = box.button(button))
        shown->setText(text);
}

/** What a box says is text, whatever it looks like. */
void speakPlainly(QMessageBox &box)
{
    for (QLabel *label : box.findChildren<QLabel *>()) {
        label->setTextFormat(Qt::PlainText);
        if (!label->pixmap(Qt::ReturnByValue).isNull())
            label->setAccessibleName(box.windowTitle());
    }
}

/** A box works out its own size when it is shown, whatever it was told before; what stands in its grid holds. */
void widen(QMessageBox &box, int minimumWidth)
{
    auto *grid = qobject_cast<QGridLayout *>(box.layout());
    if (grid == nullptr)
        return;
    const QMargins margins = grid->contentsMargins();
    auto *spacer = new QSpacerItem(minimumWidth - margins.left() - margins.right(), 0);
    grid->addItem(spacer, grid->rowCount(), 0, 1, grid->columnCount());
}

/** Without a title of its own a box would have the name of the file that the program is started by. */
const QString title = QStringLiteral("Kestrune");

} // namespace

QMessageBox::StandardButton ask(const Question &question)
{
    QMessageBox box;
    box.setWindowTitle(title);
    box.setIcon(QMessageBox::Information);
    box.setText(question.text);
    box.setInformativeText(question.informativeText);
    speakPlainly(box);
    box.setStandardButtons(question.buttons);
    nameButton(box, QMessageBox::Yes, Kestrune::tr("Yes"));
    nameButton(box, QMessageBox::No, question.plainNo ? QStringLiteral("No") : Kestrune::tr("No"));
    nameButton(box, QMessageBox::Cancel, Kestrune::tr("Cancel"));
    if (question.defaultButton != QMessageBox::NoButton)
        box.setDefaultButton(question.defaultButton);
    if (question.minimumWidth > 0)
        widen(box, grown(question.minimumWidth));
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

void tell(const QString &text)
{
    QMessageBox box;
    box.setWindowTitle(title);
    box.setText(text);
    speakPlainly(box);
    box.exec();
}
