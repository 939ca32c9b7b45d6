// SPDX-License-Identifier: GPL-3.0-or-later
// What the stock tools are about, by their command lines.

#pragma once

#include "item.h"

#include <QList>
#include <QStringList>

class SystemState;

/**
 * The items that a command may change, and that come back by themselves or by a command; empty for one that changes
 * nothing, and for taskkill: no program that ran is started anew.
 * @param program as it is given to Platform::programFile()
 */
QList<Item> subjectsOf(const QString &program, const QStringList &arguments, const SystemState &system);
