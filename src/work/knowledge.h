// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of the things that the program switches off, from resources/knowledge, which the program carries. In
// English: the window translates what it shows of it.

#pragma once

#include <QString>

/** What is known of a tweak. */
struct TweakKnowledge
{
    QString tip;        ///< what it does on today's Windows, and what it costs, in a few short sentences
    QString takingBack; ///< what taking it back leaves, in a sentence
};

/** By the name of its box. Empty texts for a name that no box has. */
TweakKnowledge knowledgeOf(const QString &box);

// What stops working without a thing, as a person notices it, in a short sentence or two. Empty where nothing is known
// of it: all that the program chooses by itself is known. Names are compared without case. Any thread.

QString withoutService(const QString &name);
/** @param path or its part after the last backslash */
QString withoutTask(const QString &path);
/** @param name of the package, or of OneDrive's own row */
QString withoutPackage(const QString &name);
