// SPDX-License-Identifier: GPL-3.0-or-later
// The part of a comparison of machines that is about files.

#pragma once

#include "diffrow.h"

#include <QList>

class Machine;

/** Files, folders and attributes of the drives, and the files of the program folder. */
void compareFiles(const Machine &before, const Machine &after, QList<DiffRow> &rows);
