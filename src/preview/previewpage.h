// SPDX-License-Identifier: GPL-3.0-or-later
// A preview as a web page.

#pragma once

#include "preview.h"

/**
 * One page that needs nothing besides itself, and by its own policy can't ask for anything: counts on top, filters by
 * verdict and by group, a search field, each item in one line that opens to its values. Prints with everything open.
 * @param machine what is told of the PC below the title
 */
QString previewHtml(const QList<PreviewItem> &items, const QString &machine);
