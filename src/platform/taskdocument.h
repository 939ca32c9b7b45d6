// SPDX-License-Identifier: GPL-3.0-or-later
// What a scheduled task's XML says, and its switch.

#pragma once

#include <QString>

/** The parts of a task's document that matter here. */
struct TaskFacts
{
    QString uri;
    QString description;            ///< as it is shown, entities resolved; may be a reference into a DLL
    bool enabled = true;            ///< by the Enabled of its Settings; that of a trigger doesn't count
    bool forAdministrators = false; ///< runs as the system, or with the highest rights
};

/** How far a document goes that begins a text. */
struct TaskExtent
{
    qsizetype end = -1; ///< after the tag that closes its first element; negative where none does
    QString problem{};  ///< why it isn't read at all, and its end is where; empty if it can be
};
/**
 * Finds the end without reading twice. Documents of Windows have short tags and few levels: one with a tag of more than
 * 4096 characters or more than 64 levels would take a parser hours or its stack, and has a problem.
 */
TaskExtent taskExtent(QStringView text);

/**
 * Reads a document from "<Task" to "</Task>". What is malformed ends the reading; of one with a problem, see
 * taskExtent(), nothing is read.
 */
TaskFacts taskFacts(const QString &document);

/**
 * The document with the task switched on or off, as the scheduler does it: `<Enabled>false</Enabled>` comes into its
 * Settings, and goes from there. The rest of the text stays as it is, and so does all of a malformed one
 * and of one with a problem.
 */
QString withTaskEnabled(const QString &document, bool enabled);
