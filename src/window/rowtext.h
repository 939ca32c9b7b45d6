// SPDX-License-Identifier: GPL-3.0-or-later
// What the tables of the list pages share: tool tips, cells and summaries, with the label that has these.

#pragma once

#include <QLabel>
#include <QList>

class QTableWidget;
class QTableWidgetItem;

/**
 * The text of a description, as rich text where it is long, so that a tool tip wraps it. It holds no markup: that could
 * have a picture fetched from another computer, which would be given the user's name and proof.
 */
QString wrappedText(const QString &text);

/** A text as a tool tip that shows it as it is, and wraps it where it is long, also in a script of wide letters. */
QString wrappingToolTip(const QString &text);

/** Gives a widget a text of our own as its tool tip, and to screen readers, which would read the tool tip's markup. */
void explain(QWidget *widget, const QString &text);

/** A text as a tool tip that shows it as it is, whatever it looks like. */
QString plainToolTip(const QString &text);

/**
 * The name, a colon and the description, none of which is markup. The one place in a row that keeps the name where the
 * cell shows another.
 */
QString rowToolTip(const QString &name, const QString &description);

/** The name that rowToolTip() put before its first colon. */
QString nameFromToolTip(const QString &toolTip);

/** What screen readers say of a cell: its text, or of an empty one the title of its column and a dash. */
QString spokenText(const QString &text, const QString &title);

/** A cell for a column of a list, which can't be edited. */
QTableWidgetItem *newCell(const QTableWidget *table, int column, const QString &text);

/** Gives a list so many rows more, each as low as its font allows; the index of the first. */
int appendRows(QTableWidget *table, qsizetype count);

/** The first cells of all rows; rows may move while they are changed. */
QList<QTableWidgetItem *> firstCells(const QTableWidget *table);

/** One number of a page's summary in the status, and what stands between two. */
QString countText(const QString &label, qsizetype number);
inline const QString summarySeparator = QStringLiteral("  |  ");

/** One line, which ends in "…" where there is no room for all of it, and is whole in its tool tip then. */
class StatusLabel : public QLabel
{
public:
    using QLabel::QLabel;

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    /** What there is room for; the whole text where that fits, which the blanks at its end needn't. */
    QString shownText() const;
};
