// SPDX-License-Identifier: GPL-3.0-or-later
// A walk over a folder of this computer, with the answers that Windows gives.

#pragma once

#include "platform/platform.h"

#include <QSet>

/**
 * Visits everything below a folder, a folder before what is in it: no "." and "..", links named but not followed, no
 * links without a target, no sockets and the like.
 * @param hidden host paths that are left out and not entered
 * @param leadsOut whether a link, given by its host path, is left out
 */
void walkFolder(const QString &folder, const QSet<QString> &hidden,
                const std::function<bool(const QString &)> &leadsOut,
                const std::function<bool(const WalkEntry &)> &visit);
