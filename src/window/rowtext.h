// SPDX-License-Identifier: GPL-3.0-or-later
// What the tables of the list pages share: tool tips, cells and summaries.

#pragma once

#include <QList>
#include <QString>

class QTableWidget;
class QTableWidgetItem;

/**
 * The text of a description, as rich text where it is long, so that a tool tip wraps it. It holds no markup: that could
 * have a picture fetched from another computer, which would be given the user's name and proof.
 */
QString wrappedText(const QString &text);

/** A text of our own as a tool tip: as rich text where it is long, so that it wraps, also in a script of wide letters.
 */
QString wrappingToolTip(const QString &text);

/** A text as a tool tip that shows it as it is, whatever it looks like. */
QString plainToolTip(const QString &text);

/**
 * The name, a colon and the description, none of which is markup. The one place in a row that keeps the name where the
 * cell shows another.
 */
QString rowToolTip(const QString &name, const QString &description);

/** The name that rowToolTip() put before its first colon. */
QString nameFromToolTip(const QString &toolTip);

/** The first cells of all rows; rows may move while they are changed. */
QList<QTableWidgetItem *> firstCells(const QTableWidget *table);

/** One number of a page's summary in the status, and what stands between two. */
QString countText(const QString &label, qsizetype number);
inline const QString summarySeparator = QStringLiteral("  |  ");
