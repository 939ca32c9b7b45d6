// SPDX-License-Identifier: GPL-3.0-or-later
// What a person calls the thing that a row of a comparison belongs to.

#pragma once

#include "preview.h"

struct DiffRow;

/** The item that a change belongs to, and the change itself, in words. */
struct PreviewWords
{
    PreviewGroup group = PreviewGroup::Registry;
    QString item{};   ///< tells items of a group apart
    QString title{};  ///< of the item
    QString about{};  ///< of the item: what it is there for
    QString store{};  ///< of the item: its page in the Store
    QString after{};  ///< of the item: what is known of its state after Restore
    QString name{};   ///< of the item, as the system has it
    QString detail{}; ///< which of the item's values this is
    QString place{};  ///< the exact key or path of the value
};

/** What the details of a service are called. */
inline const QString startModeDetail = QStringLiteral("start mode");
inline const QString delayedStartDetail = QStringLiteral("delayed start");
inline const QString runStateDetail = QStringLiteral("state");

/** Names come from the machine as it was, or from the optimized one where it has more. */
PreviewWords previewWords(Machine &before, Machine &optimized, const DiffRow &row);
/** What a side of the row shows: start modes and empty keys have words, everything else stays. */
QString sideInWords(const PreviewWords &words, const QString &side);

/** What a service is called; its name where the machine has no other, or none that can be read. */
QString serviceTitle(Machine &machine, const QString &service);
/** What stops working without a service, task or package that has that name in the system; empty for all else. */
QString withoutOf(PreviewGroup group, const QString &name);
/** "automatic" for the text of a value Start, "dword 2"; any other text stays as it is. */
QString startModeInWords(const QString &value);

struct TweakWords
{
    QString title;      ///< its text on the Features page, shortened to its first sentence
    QString about;      ///< what that does today, and what it costs
    QString takingBack; ///< what taking it back leaves
};

/** The tweak's box on the Features page ("chkSsd1"); empty where the row is of none. */
QString tweakBoxOf(const DiffRow &row);
/** Empty for a name that no box has. */
TweakWords tweakWords(const QString &box);
