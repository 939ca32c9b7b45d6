// SPDX-License-Identifier: GPL-3.0-or-later
// What all web pages of the reports have in common: one file that needs nothing besides itself.

#pragma once

#include <QString>

/** Everything up to the body's first element: title, colours for light and dark, tables, and how it prints. */
QString pageStart(const QString &title, QLatin1StringView moreStyle = {});
QString pageEnd();
