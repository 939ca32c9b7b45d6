// SPDX-License-Identifier: GPL-3.0-or-later
// What a preview says to people: names of groups and verdicts, why something comes back as it does, and each item in
// one line.

#pragma once

#include "preview.h"

#include <span>

/** A verdict's words. */
struct RestorabilityTexts
{
    Restorability value;
    QLatin1StringView word;    ///< in JSON, and as the class of an element
    QLatin1StringView one;     ///< "comes back exactly"
    QLatin1StringView many;    ///< "come back exactly"
    QLatin1StringView meaning; ///< a sentence
};

/** All verdicts, in the order in which they are counted. */
std::span<const RestorabilityTexts> allRestorabilities(PreviewWay way = PreviewWay::OptimizeAndRestore);
const RestorabilityTexts &textsOf(Restorability value, PreviewWay way = PreviewWay::OptimizeAndRestore);

struct GroupTexts
{
    PreviewGroup group;
    QLatin1StringView word;  ///< in the page, as the name of a filter
    QLatin1StringView title; ///< "Services"
    QLatin1StringView about; ///< what these are
    QLatin1StringView done;  ///< what becomes of them, with "%1" for what does it; empty where that isn't one thing
};

/** All groups, in the order in which they are listed. */
std::span<const GroupTexts> allGroups();
const GroupTexts &textsOf(PreviewGroup group);

/** What these are, and what becomes of them. */
QString aboutGroup(const GroupTexts &group, PreviewWay way);

/** The two steps as a page names them: "Optimize" and "Restore". */
struct StepNames
{
    QLatin1StringView change;
    QLatin1StringView back;
};
StepNames stepNames(PreviewWay way);

/** Why an item comes back so, and what is known of that; empty where the verdict says it all. */
QString whyOf(const PreviewItem &item, PreviewWay way = PreviewWay::OptimizeAndRestore);

/** "Without it: no printing." */
QString withoutText(const QString &sentence);

/** Kestrune's own records are no change of the PC and count for nothing. */
bool countsAsChange(const PreviewItem &item);
int countOf(const QList<PreviewItem> &items, Restorability value);

/** What there was, what Optimize makes of it, and what Restore leaves. */
struct PreviewSides
{
    QString before;
    QString optimized;
    QString restored;
};

/** The item as a whole, each side in a few words: "automatic, running". */
PreviewSides sidesOf(const PreviewItem &item, PreviewWay way = PreviewWay::OptimizeAndRestore);
/** A side of a detail, "not there" where it is empty. */
QString shownSide(const QString &side);
