// SPDX-License-Identifier: GPL-3.0-or-later
// Copies of machines, to try things on.

#pragma once

#include "machine.h"

/**
 * Copies a machine as it is at this moment into a folder that isn't there yet; other processes may go on working on it.
 * Its log of commands stays behind, and the tools are placed by whoever works on the copy. Changes nothing in the
 * source. Throws MachineError and Interrupted, with a part of the copy left.
 */
void copyMachine(const Machine &source, const QString &folder);
