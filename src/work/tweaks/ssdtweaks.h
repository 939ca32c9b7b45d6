// SPDX-License-Identifier: GPL-3.0-or-later
// The tweaks of the SSD group that are more than values.

#pragma once

#include <QString>

/** Switches hibernation off (@p apply) or on, and waits for the system to settle. */
void setHibernationTweak(bool apply, const QString &winName);

/**
 * Sets the attribute that excludes from content indexing on everything below a Windows path, or clears it. Hidden and
 * system entries are left alone with all below them, and so is what links lead to. Throws JobInterrupted.
 */
void RemoveIndexedAttrib(const QString &path, bool clear);

/**
 * Limits the I/O memory that may be locked by the size of the machine's memory, or takes the limit away. Most sizes
 * have none, and what was written before stays then.
 * @param memTotal receives the size as the report shows it, when applied
 */
void setIoPageLockTweak(bool apply, QString &memTotal);
