// SPDX-License-Identifier: GPL-3.0-or-later
// Runs kestrune-rehearse.

#pragma once

#include "processes.h"

// What it ends with
inline constexpr int done = 0;
inline constexpr int jobFailed = 1;
inline constexpr int badArguments = 2;
inline constexpr int machineUnreadable = 3;

inline Ended rehearse(const QStringList &arguments, const Variables &variables = {})
{
    return runProgram(builtProgram(QStringLiteral("kestrune-rehearse")), arguments, variables);
}
