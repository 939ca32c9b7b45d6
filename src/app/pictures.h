// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of the window, which isn't seen meanwhile.

#pragma once

#include <QStringList>

/** What Windows calls the first screen: a rehearsal has no other, whatever the computer's own are called. */
inline const QString rehearsalScreen = QStringLiteral("\\\\.\\DISPLAY1");

/**
 * Saves pages of the window on the platform in force, given in pairs of PAGE[:BUTTON] and FILE: a page by its number,
 * from 0 on. With a button's object name it is clicked first, and its job is waited for; a dialog that it opens is
 * saved in place of the window. Gives the program's exit code.
 */
int takePictures(const QStringList &pairs);
