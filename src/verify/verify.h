// SPDX-License-Identifier: GPL-3.0-or-later
// Whether what the program has recorded as done on a machine holds there now.
//
// The verdicts go by three things: the machine before the change, the machine now, and the log of the tools that
// ran on the machine now, which a captured PC doesn't have. The program records a service, a task and a package only
// where the tool said that it was done; autorun entries and tweaks it records without asking.

#pragma once

#include "preview/preview.h"

enum class Verdict {
    InForce, ///< the present state is the recorded one
    /**
     * The tool's last run for this thing, in the log, was to switch it off and failed. Such a thing is reported even
     * where it isn't recorded, as long as it is there and on.
     */
    Refused,
    /**
     * The present state isn't the recorded one, but the one of before, and no log shows that it was ever otherwise. It
     * was refused without a word, never carried out (some tweaks are recorded with the others though Optimize
     * leaves them alone), or set back to just that.
     */
    AsBefore,
    /**
     * The present state isn't the recorded one, and it was in force once: the log shows that it was done, or the state
     * is that of before neither. So are all autorun entries that are back, since an administrator, and nobody else is
     * recorded, is never refused their removal.
     */
    ChangedBack,
    Gone, ///< there is no such service or task any more, and so nothing to be in force
};

/** One state or value that isn't as it is recorded. A text is empty where there is nothing. */
struct VerifiedDetail
{
    QString what;
    QString before;
    QString now;
    QString recorded; ///< as it would be if it were in force
};

/** One record, or one thing that was refused. */
struct VerifiedItem
{
    PreviewGroup group = PreviewGroup::Services;
    QString name;  ///< as it is recorded
    QString title; ///< in words
    Verdict verdict = Verdict::InForce;
    QString why{}; ///< what the verdict goes by, as a sentence without its full stop; empty where it speaks for itself
    QList<VerifiedDetail> details{};
    QString without{}; ///< what stops working where the record is in force; often empty
};

/**
 * The records of services, scheduled tasks, packages and autorun entries, and what of these was refused; sorted by
 * group and title. Changes nothing in either machine. Throws MachineError.
 */
QList<VerifiedItem> verifySwitches(Machine &before, Machine &now);
/**
 * The records of tweaks.
 * @param again a copy of @p now on which all recorded tweaks were put in force once more: what that has changed isn't
 *              in force now, and everything else is
 */
QList<VerifiedItem> verifyTweaks(Machine &before, Machine &now, Machine &again);

/** Why two machines can't be states of the same PC; empty where they may be. */
QString differentPcs(Machine &before, Machine &now);

/** Counts, and then group by group what isn't in force, with its values, before what is. Ends in a line break. */
QString verifyText(const QList<VerifiedItem> &items);
QByteArray verifyJson(const QList<VerifiedItem> &items);
/** Whether everything that is recorded is in force, or gone. */
bool allInForce(const QList<VerifiedItem> &items);
