// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of the system report.

#pragma once

#include "jobs.h"

/** Each text of the report by the name of its mark there, in the order of the report's parts. */
JobResults reportTexts(const WorkThread &worker);
