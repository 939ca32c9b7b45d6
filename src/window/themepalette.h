// SPDX-License-Identifier: GPL-3.0-or-later
// The palettes of the two themes that are the program's own.

#pragma once

#include <QPalette>

QPalette darkPalette();
QPalette lightPalette();
