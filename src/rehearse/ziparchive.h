// SPDX-License-Identifier: GPL-3.0-or-later
// A folder as a ZIP file, and back.

#pragma once

#include "console/progresscallback.h"

#include <QStringList>

class QIODevice;

/**
 * Packs all that lies in a folder, below a folder of the name @p top in the archive. Links are left out.
 * @param archive open for writing, and no pipe
 * @return the names of the links, as the archive would have them
 *
 * Throws MachineError, and Interrupted, with a part of the archive written.
 */
QStringList packFolder(const QString &folder, const QString &top, QIODevice &archive,
                       const ProgressCallback &progress = {});

/** What is taken out of an archive, which may come from anybody. */
struct Unpacking
{
    QString folder;            ///< where it goes; a new, empty one
    QString landmark;          ///< the name of a file: what lies beside it is unpacked, wherever that is in the archive
    QStringList wanted;        ///< what of that, by patterns of the first name: "program", "drive_*"
    qint64 mostBytes = 0;      ///< how long all files together may be
    qsizetype mostEntries = 0; ///< how many files and folders there may be
};

/**
 * Unpacks an archive. Nothing is written outside the folder, whatever it holds: a name that leads elsewhere, a link, an
 * encrypted file, two files of one name, and more than was asked for are refused.
 * @param archive open for reading, and no pipe
 * @return the names of what isn't wanted
 *
 * Throws MachineError, and Interrupted, with a part in the folder.
 */
QStringList unpackFolder(QIODevice &archive, const Unpacking &unpacking, const ProgressCallback &progress = {});
