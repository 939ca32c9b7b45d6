// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the system report, and how busy the processors are.

#pragma once

#include "platform/platform.h"
#include "work/workthread.h"

#include <optional>
#include <span>

enum class ReportPart { Windows, Motherboard, Processor, Graphics, Memory, Disks };

struct ReportText
{
    QLatin1StringView name; ///< of the member; with "%" before it the mark in the page's template
    QString WorkThread::*text;
    ReportPart part;
    int turn; ///< when its mark gives way, among those of its part; 0: it has no mark that is all its own
};

/** All texts, in the order of the members. */
std::span<const ReportText> reportTexts();

// The size of the memory, in the units by which it is sold.

/**
 * Whole units in a number of bytes, given as WMI writes it; nothing where that is no 64-bit number. The unit is
 * 1068000000 bytes, by which machines of 4, 8, 16 and 32 GiB have 4, 8, 16 and 32.
 */
std::optional<qint64> memoryUnits(const QString &bytes);

/** "16 Go"; "unknown" in the user's language without a number. */
QString memoryText(std::optional<qint64> units);

/** Percent of the time between two readings that wasn't idle; no number where no time has passed. */
float processorLoad(const ProcessorTimes &before, const ProcessorTimes &after);

/**
 * A load as the monitor shows it, in whole percent. Most readings show one above the measure, a load just under 100 so
 * reads 100 or 101, one above 1.001 never reads less than 2, and an idle machine reads 1.
 */
QString loadText(float load);
