// SPDX-License-Identifier: GPL-3.0-or-later
// How busy the processors are.

#pragma once

#include "platform/platform.h"

/** Percent of the time between two readings that wasn't idle; no number where no time has passed. */
float processorLoad(const ProcessorTimes &before, const ProcessorTimes &after);

/**
 * A load as the monitor shows it, in whole percent. Most readings show one above the measure, a load just under 100 so
 * reads 100 or 101, one above 1.001 never reads less than 2, and an idle machine reads 1.
 */
QString loadText(float load);
