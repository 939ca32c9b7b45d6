// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop of the user, which runs without administrator rights.

#pragma once

#include <QString>

/**
 * Lets the desktop open a file or an address as if the user had done so there: with the user's rights, whatever this
 * process has. False where there is no desktop that would. On a thread with COM.
 */
bool openByDesktop(const QString &target);
