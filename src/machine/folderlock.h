// SPDX-License-Identifier: GPL-3.0-or-later
// Who has a machine's folder: one instance of the program at a time changes it, and nobody replaces one in use.

#pragma once

#include <QString>

#include <memory>

/**
 * Has a machine's folder for oneself, until what it gives goes or the process ends in whatever way. Null where someone
 * else has it. A folder that can't be locked keeps nobody out.
 */
std::shared_ptr<void> lockFolder(const QString &folder);

/**
 * Has a folder of this user's own for oneself in the same way, and nothing where that isn't certain: where someone else
 * has it, where it is a link or another user's, and where it can't be locked; on Windows with administrator rights too.
 */
std::shared_ptr<void> lockOwnFolder(const QString &folder);

/**
 * Has a folder together with others, until what it gives goes or the process ends in whatever way: lockFolder() gives
 * nothing meanwhile. On Windows it does nothing, since a folder with an open file can't be renamed there.
 */
std::shared_ptr<void> holdFolder(const QString &folder);
