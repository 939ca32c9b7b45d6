// SPDX-License-Identifier: GPL-3.0-or-later
// Which theme is chosen.

#pragma once

#include <QString>

/** The theme in force; there is no 2. */
enum Theme : int { DarkTheme = 0, LightTheme = 1, SystemTheme = 3 };

/** The stored theme; "dark" where none is stored. */
QString storedTheme();

/** Whether a stored text asks for the dark theme: the word itself, or the hint that early versions stored. */
bool meansDark(const QString &stored);
