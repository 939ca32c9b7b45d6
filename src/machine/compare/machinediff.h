// SPDX-License-Identifier: GPL-3.0-or-later
// What differs between two rehearsal machines.

#pragma once

#include "console/progresscallback.h"
#include "diffrow.h"
#include "machine/registrystore.h"

#include <QList>

#include <functional>

class Machine;

/** "service", "task", "registry", "file", "attribute", "rights", "boot" */
QString kindName(DiffKind kind);

/**
 * Every registry key and value (by type and bytes), run state of a service, scheduled task (its switch, and the rest of
 * its document), file and folder of the drives and of the program folder (size, and content up to 1 MiB) file
 * attribute, owner and rights of a file, and option of the boot configuration that differs; sorted by kind and path. A
 * key or folder has a row of its own only where it is empty. Changes nothing in either. Throws
 * MachineError and Interrupted.
 */
QList<DiffRow> compareMachines(Machine &before, Machine &after, const ProgressCallback &progress = {});
/** The same but for the registry, which is most of the work. */
QList<DiffRow> compareBesidesRegistry(Machine &before, Machine &after);

/** A key that one machine lacks, or a value that differs. */
struct RegistryDifference
{
    QString key;
    bool ofKey = false; ///< the key itself, which is visited before its values
    bool empty = false; ///< of a key: it holds nothing
    bool keyWasThere = false;
    std::optional<RegistryValue> before{}; ///< of a value; nothing where it is absent
    std::optional<RegistryValue> after{};
};

/** Visits all differences, keys sorted by their path. HKEY_CLASSES_ROOT is reported as the key it is a view of. */
void eachRegistryDifference(const RegistryStore &before, const RegistryStore &after,
                            const std::function<void(const RegistryDifference &)> &visit);

// The parts of a comparison that have files of their own.

/** Rows of files, folders and attributes of the drives, and the files of the program folder. */
void compareFiles(const Machine &before, const Machine &after, QList<DiffRow> &rows);
/** Rows of the registries; a key has one only where it is empty. */
void compareRegistries(const RegistryStore &before, const RegistryStore &after, QList<DiffRow> &rows);

/** A line for each row, in columns, with control characters written out; empty where nothing differs. */
QString diffText(const QList<DiffRow> &rows);
/** An array of objects with kind, path, name, before and after; null where there is nothing. */
QByteArray diffJson(const QList<DiffRow> &rows);
/** One page that needs nothing besides itself. */
QString diffHtml(const QList<DiffRow> &rows, const QString &before, const QString &after);
