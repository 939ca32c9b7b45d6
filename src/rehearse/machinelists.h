// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of what a machine has. They read the machine itself: the logic's own lists leave files and keys behind.

#pragma once

#include <QString>

class Machine;

void listServices(Machine &machine, const QString &key, bool json);
void listTasks(Machine &machine, const QString &key, bool json);
void listPackages(Machine &machine, const QString &key, bool json);
void listAutorun(Machine &machine, const QString &key, bool json);
