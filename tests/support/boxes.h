// SPDX-License-Identifier: GPL-3.0-or-later
// Answers the message boxes that an action opens, and keeps what they said.

#pragma once

#include <QList>
#include <QMessageBox>
#include <QObject>
#include <QStringList>
#include <QTimer>

/** What a box showed when it stood on the screen. */
struct ShownBox
{
    QString title;
    QString text;
    QString informativeText;
    QMessageBox::StandardButtons buttons;
    QStringList buttonTexts;   ///< of Yes, No and Cancel, as far as there are any
    QString defaultButtonText; ///< empty where no button was made the default
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    int minimumWidth = 0;
    int width = 0;
    bool modal = false;
    bool hasParent = false;
};

/**
 * Clicks the answers that it was given into the boxes as they come. A box that comes without an answer is closed and
 * fails the test, and so does an answer that no box has asked for by the time the object goes.
 */
class Boxes : public QObject
{
    Q_OBJECT

public:
    explicit Boxes(const QList<QMessageBox::StandardButton> &answers = {});
    ~Boxes() override;

    /** The next box is answered by a click of this button; NoButton presses Escape instead. */
    void answer(QMessageBox::StandardButton button) { answers_.append(button); }
    const QList<ShownBox> &shown() const { return shown_; }

private:
    void look();

    QTimer timer_;
    QList<QMessageBox::StandardButton> answers_;
    QList<ShownBox> shown_;
};
