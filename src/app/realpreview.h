// SPDX-License-Identifier: GPL-3.0-or-later
// What a preview is made of on a real PC.

#pragma once

#include "window/previewrun.h"

/**
 * A folder for a copy of this PC, and the program in the folder "rehearse" that makes and previews it. With
 * administrator rights the copy is made with them, in a folder where nobody else may write and this user may read; the
 * preview itself gives them up. Then that program must be one that nobody else can have changed.
 */
PreviewPlace previewPlace();
