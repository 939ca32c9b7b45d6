// SPDX-License-Identifier: GPL-3.0-or-later
// The size of the memory in the units by which it is sold.

#pragma once

#include <QString>

#include <optional>

/**
 * Whole units in a number of bytes, given as WMI writes it; nothing where that is no 64-bit number. The unit is
 * 1068000000 bytes, by which machines of 4, 8, 16 and 32 GiB have 4, 8, 16 and 32.
 */
std::optional<qint64> memoryUnits(const QString &bytes);

/** "16 Go"; "unknown" in the user's language without a number. */
QString memoryText(std::optional<qint64> units);
