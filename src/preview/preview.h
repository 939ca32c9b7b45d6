// SPDX-License-Identifier: GPL-3.0-or-later
// What an optimization would change on a machine, item by item, and what a restoration would bring back of it.

#pragma once

#include "console/progresscallback.h"
#include "wayback/waybackscript.h"

#include <QList>

class Machine;

/** What a restoration leaves of a change. */
enum class Restorability {
    Exactly,   ///< what was there before is there again
    Otherwise, ///< neither what was there nor what the optimization made of it: a default
    NotAtAll,  ///< the change stays
    Unasked,   ///< the optimization left it alone, and the restoration changes it
};

/** What was run on the copies. */
enum class PreviewWay {
    OptimizeAndRestore, ///< the window's Automatizer
    ApplyAndUndo,       ///< the console program, by a profile; its journal takes it back
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
    QString after{};   ///< what is known of what Restore leaves, not the journal; often empty
    QString without{}; ///< what stops working without it; empty where nothing is known of it
    QString store{};   ///< where a Windows application can be had again; empty of all else

    /** The least favourable of its details. */
    Restorability comesBack() const;
};

/**
 * Compares a machine with its optimized copy and with the restored one. Items are sorted by group and title. Changes
 * nothing in any of them. Throws MachineError.
 */
QList<PreviewItem> previewItems(Machine &before, Machine &optimized, Machine &restored,
                                const ProgressCallback &progress = {});

// As text, JSON and web page.

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
 *         "without"    what stops working without it, in a sentence or two; often empty
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
 * verdict and by group, a search field, each item in one line that opens to its values. Prints all items, shut, with
 * the columns' heads on each page.
 * @param machine what is told of the PC below the title
 * @param offersUndo whether to tell of --undo where Restore doesn't bring back everything
 */
QString previewHtml(const QList<PreviewItem> &items, const QString &machine,
                    PreviewWay way = PreviewWay::OptimizeAndRestore, bool offersUndo = false);

// An exact way back from what a machine has become, with nothing but the system's own tools.

/**
 * The edits that make the registry of @p after that of @p before, to the last value and type: old values are set, new
 * ones removed, new keys removed with all below them.
 */
QList<RegistryEdit> registryUndo(const RegistryStore &before, const RegistryStore &after);

/**
 * What makes @p after as @p before was, but for the program's own files. Packages come back by commands: what the
 * registry says of them is the system's own record. Changes nothing in either. Throws MachineError.
 * @param filesFolder how the commands call the folder of the files
 */
WayBackScript undoOf(Machine &before, Machine &after, const QString &filesFolder);
/**
 * Writes that as WayBackScript::write() does. Throws MachineError.
 */
WrittenWayBack writeUndo(Machine &before, Machine &after, const QString &file);
