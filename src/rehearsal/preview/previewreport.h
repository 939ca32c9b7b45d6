// SPDX-License-Identifier: GPL-3.0-or-later
// Previews as text, JSON and web page.

#pragma once

#include "preview.h"

/** Counts, then each item with what comes back of it. */
QString previewText(const QList<PreviewItem> &items);
/** An object with counts and items. */
QByteArray previewJson(const QList<PreviewItem> &items);
/** One page that needs nothing besides itself: counts on top, a search field, each item with its values. */
QString previewHtml(const QList<PreviewItem> &items, const QString &machine);
