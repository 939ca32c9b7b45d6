// SPDX-License-Identifier: GPL-3.0-or-later
// What a console program asks of the operating system.

#pragma once

/** Makes standard output and standard error carry bytes as they are written. */
void useBinaryOutput();
/** Whether someone may be reading standard error as it is written. */
bool errorsGoToTerminal();
/** Whether the program that started this one has gone; false where that can't be told. */
bool starterIsGone();
