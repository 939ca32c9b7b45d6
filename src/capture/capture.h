// SPDX-License-Identifier: GPL-3.0-or-later
// Takes a running PC into a rehearsal machine, and changes nothing on the PC.

#pragma once

#include "machine/source/machinesource.h"
#include "platform/systemreader.h"

class ReadingPlatform;

/** A part of a PC that could not be read, and why. */
struct NotRead
{
    QString what;
    QString reason;
};

struct CaptureReport
{
    QStringList counts;     ///< "283 services"
    QList<NotRead> notRead; ///< what could not be read
    bool elevated = false;
    QStringList replaced; ///< what the machine must not hold, as far as names were replaced
    QStringList left;     ///< where some of it stands all the same, in words
};

/** Whether the names of the PC and its users are replaced by neutral ones. */
enum class Names { Replace, Keep };

/**
 * Reads the PC behind @p pc, which must be the platform in force. Takes what the program looks at, and no more. Throws
 * what @p progress throws.
 */
MachineContents readPc(const ReadingPlatform &pc, const SystemReader &system, Names names, CaptureReport &report,
                       const ProgressCallback &progress = {});

/** Makes a machine of the PC, as a whole or not at all. Throws MachineError. */
CaptureReport capturePc(const QString &folder, Existing existing, const ReadingPlatform &pc, const SystemReader &system,
                        Names names, const ProgressCallback &progress = {});

/**
 * Where a machine still holds one of these names, each as "NAME: place": in all tables and in the names and the content
 * of all files, as UTF-8 or UTF-16LE, whatever its case. A short name is sought as a word of its own.
 * @param goOn called now and then; it may throw to give up
 */
QStringList findNames(Machine &machine, const QStringList &names, const std::function<void()> &goOn);
/** The same for a terminal, where there may be many of them, or that there are none. */
QString leftNamesText(const QStringList &left);
