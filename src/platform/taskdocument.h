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
/** Reads a document from "<Task" to "</Task>". What is malformed ends the reading. */
TaskFacts taskFacts(const QString &document);

/**
 * The document with the task switched on or off, as the scheduler does it: `<Enabled>false</Enabled>` comes into its
 * Settings, and goes from there. The rest of the text stays as it is, and so does all of a malformed one.
 */
QString withTaskEnabled(const QString &document, bool enabled);
