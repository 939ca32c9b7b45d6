// SPDX-License-Identifier: GPL-3.0-or-later
// Looks through a finished machine for names that were replaced.

#pragma once

#include <QStringList>

#include <functional>

class Machine;

/**
 * Where a machine still holds one of these names, each as "NAME: place": in all tables and in the names and the content
 * of all files, as UTF-8 or UTF-16LE, whatever its case. A short name is sought as a word of its own.
 * @param goOn called now and then; it may throw to give up
 */
QStringList findNames(Machine &machine, const QStringList &names, const std::function<void()> &goOn);
/** The same for a terminal, where there may be many of them, or that there are none. */
QString leftNamesText(const QStringList &left);
