// SPDX-License-Identifier: GPL-3.0-or-later
// Fonts for a window that isn't on Windows.

#pragma once

/** Gives the fonts of Windows stand-ins of much the same width. Needs the application object. */
void useStandInFonts();
