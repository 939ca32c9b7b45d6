// SPDX-License-Identifier: GPL-3.0-or-later
// Comparisons of machines as text, JSON and web page.

#pragma once

#include "diffrow.h"

#include <QList>

/** A line for each row, in columns, with control characters written out; empty where nothing differs. */
QString diffText(const QList<DiffRow> &rows);
/** An array of objects with kind, path, name, before and after; null where there is nothing. */
QByteArray diffJson(const QList<DiffRow> &rows);
/** One page that needs nothing besides itself. */
QString diffHtml(const QList<DiffRow> &rows, const QString &before, const QString &after);
