// SPDX-License-Identifier: GPL-3.0-or-later
// Runs the stock tools of a machine.

#pragma once

#include "smallmachine.h"

inline const Variables elevated{{QStringLiteral("KESTRUNE_ELEVATED"), QStringLiteral("1")}};
inline const Variables notElevated{{QStringLiteral("KESTRUNE_ELEVATED"), QStringLiteral("0")}};

/** Runs a tool of the machine; the exit code is the whole one. */
inline Ended runTool(SmallMachine &machine, const QString &tool, const QStringList &arguments,
                     const Variables &variables = elevated)
{
    Ended ended = runProgram(stockTool(), QStringList{machine.folder(), tool} + arguments, variables);
    ended.exitCode = machine->takeExitCode(ended.processId).value_or(-1);
    return ended;
}
