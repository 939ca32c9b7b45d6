// SPDX-License-Identifier: GPL-3.0-or-later
// Registry scripts: the .reg files of the registry editor.

#pragma once

#include "machine/registrystore.h"

/** One line of a registry script, as it is to be carried out. */
struct RegistryEdit
{
    enum class Kind { MakeKey, RemoveKey, SetValue, RemoveValue };
    Kind kind = Kind::MakeKey;
    QString key;
    RegistryValue value; ///< of SetValue; its name alone of RemoveValue
};

/**
 * Reads a registry script, version 5.00 in UTF-16 or UTF-8, with or without byte order mark, or REGEDIT4. Line ends may
 * be LF, CR LF or CR CR LF; a dword may have fewer than eight digits, or none, which reads 0. Comments may stand before
 * the first line, and a text may go over several lines, as the registry editor writes one with line breaks. Throws
 * MachineError with the file's name, the line and the reason.
 */
QList<RegistryEdit> parseRegistryScript(const QByteArray &bytes, const QString &fileName);
/**
 * Carries out a script as a whole, or not at all.
 * @param eachStep called before each edit; it may throw to give up
 */
void applyRegistryScript(Database &database, RegistryStore &store, const QList<RegistryEdit> &edits,
                         void (*eachStep)() = nullptr);
/**
 * The key and all below it as a script of version 5.00: UTF-8 text with LF line ends, sorted. A key that isn't there
 * gives a script without keys. What a script can't name, see fitsRegistryScript(), is left out with all below it.
 * @param leftOut gets a line for each: a key's path, and the value's name after it
 */
QString writeRegistryScript(const RegistryStore &store, const QString &keyPath, QStringList *leftOut = nullptr);
/**
 * Whether a script can say the edit, see fitsRegistryScript().
 */
bool fitsScript(const RegistryEdit &edit);
/** Edits as a script of version 5.00: text with LF line ends, in the given order. Each must fit into one. */
QString writeRegistryEdits(const QList<RegistryEdit> &edits);
