// SPDX-License-Identifier: GPL-3.0-or-later
// Which packaged applications are there, and the record of those that were removed.

#pragma once

#include <QString>

/** Whether the user has a package, by its name without regard to case; of OneDrive's own row whether that is there. */
bool isPackageInstalled(const QString &name);

/**
 * Takes a package into the record, or out of it, if the line of the job that changes them says that it was removed or
 * installed.
 */
void recordPackageLine(const QString &line, bool install);
