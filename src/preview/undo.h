// SPDX-License-Identifier: GPL-3.0-or-later
// An exact way back from what a machine has become, with nothing but the system's own tools.

#pragma once

#include "machine/source/regfile.h"

class Machine;

/**
 * The edits that make the registry of @p after that of @p before, to the last value and type: old values are set, new
 * ones removed, new keys removed with all below them.
 */
QList<RegistryEdit> registryUndo(const RegistryStore &before, const RegistryStore &after);

/** What has to be put where, because a command can't say it. */
struct UndoFile
{
    QString name; ///< in the folder of the files
    QByteArray content;
};

struct Undo
{
    QList<RegistryEdit> registry;
    QStringList commands; ///< for the command prompt, in the order in which they are given
    QList<UndoFile> files;
    /** What can't be brought back so, since its name would say something else in a script or a command; printable. */
    QStringList leftOut;
};

struct WrittenUndo
{
    QStringList files;
    QStringList leftOut; ///< as in Undo
};

/**
 * What makes @p after as @p before was, but for the program's own files. Packages come back by commands: what the
 * registry says of them is the system's own record. Changes nothing in either. Throws MachineError.
 * @param filesFolder how the commands call the folder of the files
 */
Undo undoOf(Machine &before, Machine &after, const QString &filesFolder);
/**
 * Writes the registry script as @p file, as the registry editor likes it, and beside it a text of the commands and a
 * folder of the files, both named after it. Throws MachineError.
 */
WrittenUndo writeUndo(Machine &before, Machine &after, const QString &file);
