// SPDX-License-Identifier: GPL-3.0-or-later
// What a console program asks of the operating system.

#pragma once

/** Makes standard output carry bytes as they are written. */
void useBinaryOutput();
/** Whether the program that started this one has gone; false where that can't be told. */
bool starterIsGone();
