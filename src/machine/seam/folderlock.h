// SPDX-License-Identifier: GPL-3.0-or-later
// One instance of the program at a time changes a machine.

#pragma once

#include <QString>

#include <memory>

/**
 * Has a machine's folder for oneself, until what it gives goes or the process ends in whatever way. Null where someone
 * else has it. A folder that can't be locked keeps nobody out.
 */
std::shared_ptr<void> lockFolder(const QString &folder);
