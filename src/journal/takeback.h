// SPDX-License-Identifier: GPL-3.0-or-later
// Taking changes back by the journal, and what came of it.

#pragma once

#include "journal.h"
#include "wayback/waybackscript.h"

#include <functional>

/** Where an item stands that is to be taken back. */
enum class WayBack {
    AsItWas,    ///< there is nothing to take back
    Open,       ///< it is as the program left it, and can be taken back
    Changed,    ///< something else has changed it since, or a later session that isn't to be taken back
    Impossible, ///< it can't come back, or didn't
};

/** One thing that sessions have changed, for all of them together. */
struct TakenItem
{
    qint64 id = 0; ///< of its oldest note
    Item item{};
    ItemState before{}; ///< what it is to be again
    ItemState now{};
    WayBack verdict = WayBack::Open;
    QString why{}; ///< of Changed and Impossible, in English; empty where it speaks for itself
    bool own = false;
    bool wasChanged = true; ///< false: noted before something that then left it as it was
    QString storeLink{};    ///< of a package whose files are gone: where it can be had again
};

/** What is to be taken back. */
struct Selection
{
    qint64 firstSession = 1;
    qint64 lastSession = 0;   ///< 0: all from the first one on
    QList<qint64> items{};    ///< ids of TakenItem, whose records go with them; empty: all
    bool evenChanged = false; ///< also what something else has changed since
};

/** The platform in force, where it keeps a journal; null otherwise. */
const Journal *journalInForce();

/** What a selection is about, each thing once, with its verdict as things are now. Changes nothing. Throws
 * MachineError. */
QList<TakenItem> planWayBack(const Journal &journal, const Selection &selection);

/**
 * Takes back, and reads everything again: the verdicts tell what each thing is like afterwards. Is a session itself.
 * The journal must be the platform in force. Throws MachineError and JobInterrupted.
 * @param step is told before each thing which it is, from 0, and of how many
 */
QList<TakenItem> takeBack(const Journal &journal, const Selection &selection,
                          const std::function<void(qsizetype step, qsizetype steps)> &step = {});

// The same as files, for the system's own tools: in Safe Mode, or where this program is gone.

/** What of a selection can be taken back, as steps; the present state of things is read. Throws MachineError. */
WayBackScript wayBackScript(const Journal &journal, const Selection &selection);

/** Writes that as way-back.reg and what belongs to it into a folder, which is made. Throws MachineError. */
WrittenWayBack writeWayBack(const Journal &journal, const Selection &selection, const QString &folder);

/** The folder of the files that are kept of a session; empty of one that has changed nothing. Throws MachineError. */
QString wayBackFolder(const Journal &journal, qint64 session);
/**
 * Writes a session's way back into a folder of its own beside the journal, where the last ten are kept. Nothing is
 * written of a session that has changed nothing. Throws MachineError.
 */
void keepWayBack(const Journal &journal, qint64 session);

// In words of the language that the program has installed; in English where it has none.

/** "Service Spooler: start mode" */
QString itemTitle(const Item &item);
/** "disabled", "dword 1"; what isn't there is "absent". */
QString stateText(const Item &item, const ItemState &state);
/** "as it was", "can be taken back" ... */
QString verdictText(WayBack verdict);
/** "finished", "broken off", "under way" */
QString sessionStateText(SessionState state);
/** The same of what is kept in English: what a session is called, and why something isn't back. */
QString translatedText(const QString &english);
/** The page of the window that a session belongs to, by what it is called, in English; empty where it is none. */
QString pageOfSession(const QString &what);
/** Why it isn't back, with where a package can be had again; empty where there is nothing to say. */
QString whyText(const TakenItem &item);
