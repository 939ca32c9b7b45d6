// SPDX-License-Identifier: GPL-3.0-or-later
// The environment variables of a rehearsal machine in this process.

#pragma once

#include <QMap>
#include <QString>

/**
 * Sets the variables in every spelling that is asked for, since names have a case on some systems, and takes away what
 * an earlier call has set. To be called before the first thread.
 */
void enterEnvironment(const QMap<QString, QString> &variables);

/**
 * Whether a Windows path lies in the folder of the Windows that the variables tell of. What is there belongs to the
 * installation: an administrator reads it, and no more than that, until he has taken it and given himself the rights.
 */
bool isOfWindows(const QString &windowsPath);
