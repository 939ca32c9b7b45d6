// SPDX-License-Identifier: GPL-3.0-or-later
// Which system option a changed value, file or boot option belongs to.

#pragma once

#include "rehearsal/machinediff.h"

/** The option's text on the Features page, shortened to its first sentence; empty where the row is of none. */
QString featureWords(const DiffRow &row);
