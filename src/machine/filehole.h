// SPDX-License-Identifier: GPL-3.0-or-later
// Holes in files: large files of a machine have their size without taking its room on the disk.

#pragma once

#include <QFile>

/**
 * The offset of the first byte at or after @p offset that isn't in a hole, in bytes; the file's size where only a hole
 * is left. Where the system doesn't tell of holes, @p offset itself.
 */
qint64 nextData(QFile &file, qint64 offset);

/** Changes the size of a file that is open for writing; what is added is a hole, where the disk has such. */
bool resizeWithHole(QFile &file, qint64 size);
