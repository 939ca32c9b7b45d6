// SPDX-License-Identifier: GPL-3.0-or-later
// Programs started at logon: what they are, and how an entry is switched off, recorded, and switched on again.

#pragma once

#include "work/rows.h"

#include <QList>

/** What starts at logon now: the Run values of user and machine, and two packaged tasks. Any thread. */
QList<AutorunRow> autorunRows();

/** Where an entry stands: the full path of its Run value, or of its packaged task's key. */
struct AutorunEntry
{
    QString name;    ///< the part of the path after its last backslash, by which it is shown
    QString path;    ///< "<key>\<name>"
    QString command; ///< of a Run value
};

/** The entry of a row of the list. What follows a second "=" is lost, and with it the rest of such a command. */
AutorunEntry autorunEntry(const AutorunRow &row);
/** The same as it is shown, and switched off by hand: its path stands in place of a command that is empty. */
AutorunEntry shownAutorunEntry(const AutorunRow &row);

/** The entry of a record; shown by the same name as the entry that was recorded. */
AutorunEntry recordedAutorun(const QString &recordName);
/** The name by which an entry is shown whose path or record has this name. */
QString shownAutorun(const QString &path);

/** Where a Run value is: its key, and its name as the key lists it, which may hold backslashes itself. */
struct RunValue
{
    QString key;
    QString name; ///< names the record too
};
RunValue runValueAt(const QString &path);
/** The name that the registry itself has for what a key lists: there "/" and a backslash stand for each other. */
QString registryName(const QString &listed);
/** Whether a path is that of a Run value whose name holds what parts keys. It is no packaged task, whatever its end. */
bool hasPartedName(const QString &path);

/** Whether an entry is one of the two packaged tasks, which have a switch, and no Run value, which is there or isn't.
 */
bool isPackagedTask(const QString &name);
/** The same by the whole name: isPackagedTask() takes more names for theirs. */
bool isPackagedTaskExactly(const QString &name);

/** Takes the entry out of the start-up and records it. */
void disableAutorun(const AutorunEntry &entry);
void disableRunValue(const AutorunEntry &entry);
void disablePackagedTask(const AutorunEntry &entry);

/**
 * Brings the entry back. A Run value comes back only if its command stands in double quotes and that program exists:
 * with anything else it is unknown where the program's path ends. The record is left alone.
 */
void enableAutorun(const AutorunEntry &entry);
void enableRunValue(const RunValue &value, const QString &command);
void enablePackagedTask(const QString &key);

// The exact copies of the Run values that the program removes. A record keeps a command as a text and ends before an
// "=", and Restore brings back only what stands in double quotes: this is where the rest still is.

/** Host path of the registry script that holds them, in the order of their removals. */
QString runBackupFile();

/**
 * Adds a Run value with its type and data to the script, unless it is in there.
 * @param name as the key lists it
 * @return false where it can't be kept, and is lost when it is removed
 */
bool backUpRunValue(const QString &key, const QString &name);
