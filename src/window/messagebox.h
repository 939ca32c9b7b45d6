// SPDX-License-Identifier: GPL-3.0-or-later
// The program's message boxes: modal, without parent, with translated buttons.

#pragma once

#include <QMessageBox>

/** What a box says and offers. */
struct Question
{
    QString text;
    QString informativeText{};
    QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton; ///< NoButton leaves it to the style
    int minimumWidth = 0;
    bool plainNo = false; ///< the button No says "No" in every language
};

/** Shows the box with the information icon and gives the button that closed it. */
QMessageBox::StandardButton ask(const Question &question);

/** Shows a text with the button that boxes have by themselves. */
void tell(const QString &text);
