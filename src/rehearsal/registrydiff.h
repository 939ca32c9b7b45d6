// SPDX-License-Identifier: GPL-3.0-or-later
// The registry's part of a comparison of machines.

#pragma once

#include "machinediff.h"

void compareRegistries(const RegistryStore &before, const RegistryStore &after, QList<DiffRow> &rows);
