// SPDX-License-Identifier: GPL-3.0-or-later
// The files of a PC that the program looks at.

#pragma once

#include "machine/source/machinejson.h"
#include "platform/systemreader.h"

#include <functional>

/** The paths that the program names itself, and those that the registry's texts name. */
QStringList filesOfProgram(const SystemReader &system, const QStringList &commands);
/**
 * What is there of these files: size, attributes, and the content of the one file that the program reads. Paths that
 * aren't whole are passed over; none comes twice.
 */
QList<FileDescription> captureFiles(const QStringList &windowsPaths);
/**
 * The folder for passing files, and one file that is as large as all of the component store.
 * @param goOn called now and then, since that store has a hundred thousand files
 */
QList<FileDescription> captureFolders(const std::function<void()> &goOn);
