// SPDX-License-Identifier: GPL-3.0-or-later
// What a profile asks for on a PC, thing by thing, and how each of them is.

#pragma once

#include "pc.h"
#include "preview/preview.h"
#include "profile.h"
#include "work/command.h"

struct TweakBox;

/** How a thing stands to what is asked for. */
enum class AimState {
    InForce,
    Open,      ///< it isn't as it is asked for
    NotNeeded, ///< nothing is asked for: a service that doesn't run needn't be disabled
    Absent,    ///< the PC doesn't have it
    LeftAlone, ///< the profile says so
    Refused,   ///< it was tried, and isn't in force
    Unknown,   ///< it can't be read with these rights, or not without reading all files
};

/** "in force", "not in force" ... */
QString aimStateText(AimState state);
/** The same as a word for programs: "in-force". */
QString aimStateWord(AimState state);

struct Aim
{
    PreviewGroup group = PreviewGroup::Services;
    QString name;  ///< as the system, or a profile, calls it
    QString title; ///< in words; often the name
    QString wish;  ///< "disabled", "removed" ...
    AimState state = AimState::Open;
    bool changed = false; ///< by this run
    bool ofUser = false;  ///< it belongs to the current user
    QString why{};        ///< the reason, in a sentence without its full stop; often empty
    QString without{};    ///< what stops working without it, where that is what is asked for; often empty
};

/** What "Services" and so on are called for programs. */
QString groupWord(PreviewGroup group);
/** What one thing of the group is called. */
QString thingText(PreviewGroup group);

/** Whether what a profile asks for is what Optimize does, and Optimize does it. */
bool goesByOptimize(const Profile &profile);

/** Sets the worker's choices by the PC's own Keep list, and the profile on top. */
void applyProfile(WorkThread &worker, const Profile &profile);

/**
 * Everything that is asked for, in the order in which it is carried out. Reads the PC by the worker's own lists and
 * changes nothing.
 */
QList<Aim> aimsOf(WorkThread &worker, SystemState &system, const Profile &profile);

/** The option that an aim is about; null for others. */
const TweakBox *boxOf(const Aim &aim);

/**
 * How things are after a run, by reading all of them again.
 * @param before how they were
 * @param answers what the tools have said
 */
QList<Aim> judgedAims(const QList<Aim> &before, QList<Aim> now, const QList<ToolAnswer> &answers);

/** Whether nothing is left to do. */
bool areInForce(const QList<Aim> &aims);

/** A line for each: verdict, thing, wish and reason; those that need no word are only counted unless @p all. */
QString aimsText(const QList<Aim> &aims, bool all);
QJsonArray aimsJson(const QList<Aim> &aims);
