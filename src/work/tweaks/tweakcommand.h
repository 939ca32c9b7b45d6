// SPDX-License-Identifier: GPL-3.0-or-later
// How tweaks run stock tools.

#pragma once

#include <QStringList>

/** Runs a tool to its end, or for as long as commands are waited for. How it ends is nobody's concern. */
void runTweakTool(const QString &program, const QStringList &arguments);
/** The pause behind a tool, shorter on Windows 11. */
void letSystemSettle(const QString &winName);
