// SPDX-License-Identifier: GPL-3.0-or-later
// Which theme is chosen, and what the popup menus look like by it.

#pragma once

#include <QString>

/** The theme in force; there is no 2. */
enum Theme : int { DarkTheme = 0, LightTheme = 1, SystemTheme = 3 };

/** The stored theme; "dark" where none is stored. */
QString storedTheme();

/** Which of the two popup menus; in the light theme they differ. */
enum class PopupMenu { Programs, Context };
/** The style of a popup menu by the theme that is stored; empty for the system's own. */
QString popupMenuStyle(PopupMenu menu);
