// SPDX-License-Identifier: GPL-3.0-or-later
// Rows in columns, as the lists print them.

#pragma once

#include <QList>
#include <QStringList>

/** Columns as wide as they need to be; the last one is left ragged. */
QString table(const QList<QStringList> &rows);
