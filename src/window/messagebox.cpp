// SPDX-License-Identifier: GPL-3.0-or-later

#include "messagebox.h"

#include "kestrune.h"

#include <QAbstractButton>

namespace {

void nameButton(QMessageBox &box, QMessageBox::StandardButton button, const QString &text)
{
    if (QAbstractButton *shown = box.button(button))
        shown->setText(text);
}

} // namespace

QMessageBox::StandardButton ask(const Question &question)
{
    QMessageBox box;
    box.setIcon(QMessageBox::Information);
    box.setText(question.text);
    box.setInformativeText(question.informativeText);
    box.setStandardButtons(question.buttons);
    nameButton(box, QMessageBox::Yes, Kestrune::tr("Yes"));
    nameButton(box, QMessageBox::No, Kestrune::tr("No"));
    nameButton(box, QMessageBox::Cancel, Kestrune::tr("Cancel"));
    if (question.defaultButton != QMessageBox::NoButton)
        box.setDefaultButton(question.defaultButton);
    if (question.minimumWidth > 0)
        box.setMinimumWidth(question.minimumWidth);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}
