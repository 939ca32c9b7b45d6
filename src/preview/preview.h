// SPDX-License-Identifier: GPL-3.0-or-later
// What an optimization would change on a machine, item by item, and what a restoration would bring back of it.

#pragma once

#include "console/progresscallback.h"

#include <QList>

class Machine;

/** What a restoration leaves of a change. */
enum class Restorability {
    Exactly,   ///< what was there before is there again
    Otherwise, ///< neither what was there nor what the optimization made of it: a default
    NotAtAll,  ///< the change stays
    Unasked,   ///< the optimization left it alone, and the restoration changes it
};

/** Parts of a PC in the order in which they are listed. */
enum class PreviewGroup { Services, Tasks, Packages, Autorun, Tweaks, Files, Registry, Records };

/** One value, file or state that changes. A text is empty where there is nothing. */
struct PreviewDetail
{
    QString what;  ///< in words, or the name of the value
    QString place; ///< the exact key or path; empty where the item's name says it
    QString before;
    QString optimized;
    QString restored;
    Restorability comesBack = Restorability::Exactly;
};

/** One thing as a person knows it, with all that changes of it. */
struct PreviewItem
{
    PreviewGroup group = PreviewGroup::Registry;
    QString title; ///< what it is in words
    QString about; ///< what it is there for; often empty
    QString name;  ///< what the system calls it; empty where the title says it
    QList<PreviewDetail> details;

    /** The least favourable of its details. */
    Restorability comesBack() const;
};

/**
 * Compares a machine with its optimized copy and with the restored one. Items are sorted by group and title. Changes
 * nothing in any of them. Throws MachineError.
 */
QList<PreviewItem> previewItems(Machine &before, Machine &optimized, Machine &restored,
                                const ProgressCallback &progress = {});
