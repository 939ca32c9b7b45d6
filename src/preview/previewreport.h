// SPDX-License-Identifier: GPL-3.0-or-later
// Previews as text, JSON and web page.

#pragma once

#include "preview.h"

/** Counts, then each item with what comes back of it, and why where that isn't plain. */
QString previewText(const QList<PreviewItem> &items);

/**
 * One object:
 *
 *     "counts"   "exactly", "otherwise", "not-at-all", "unasked": how many items of each verdict; Kestrune's own notes
 *                don't count
 *     "items"    sorted by group and title, each with
 *         "group"      "Services", "Scheduled tasks" and so on
 *         "title"      what it is in words
 *         "about"      what it is there for; often empty
 *         "name"       what the system calls it; empty where the title says it
 *         "before", "optimized", "restored"   the item as a whole, in a few words
 *         "comesBack"  the verdict, the least favourable of the details' ones: a word of "counts"
 *         "why"        why so, in a sentence; empty where the verdict says it all
 *         "details"    each value, file or state that changes, with
 *             "what"       in words, or the name of the value
 *             "place"      the exact key or path; empty where the item's name says it
 *             "before", "optimized", "restored"   exact, with the type of a registry value; null: not there
 *             "comesBack"  the verdict on this one
 */
QByteArray previewJson(const QList<PreviewItem> &items);

/**
 * One page that needs nothing besides itself, and by its own policy can't ask for anything: counts on top, filters by
 * verdict and by group, a search field, each item in one line that opens to its values. Prints with everything open.
 * @param machine what is told of the PC below the title
 */
QString previewHtml(const QList<PreviewItem> &items, const QString &machine);
