// SPDX-License-Identifier: GPL-3.0-or-later
// What all web pages of the reports have in common: one file that needs nothing besides itself.

#pragma once

#include <QString>

/**
 * Everything up to the body's first element: title, colours for light and dark, tables, and how it prints. By its
 * policy the page asks for nothing from anywhere, and runs no script but the given one.
 */
QString pageStart(const QString &title, QLatin1StringView moreStyle = {}, QLatin1StringView script = {});
/** The end, with the script of the page's start. */
QString pageEnd(QLatin1StringView script = {});
