// SPDX-License-Identifier: GPL-3.0-or-later
// The PC that this program runs on, if it is one with Windows.

#pragma once

#include "platform/platform.h"
#include "platform/systemreader.h"

struct RunningPc
{
    std::unique_ptr<Platform> platform;
    std::unique_ptr<SystemReader> reader;
};

/** Nothing where there is no Windows. */
std::optional<RunningPc> runningPc();
