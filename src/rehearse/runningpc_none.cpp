// SPDX-License-Identifier: GPL-3.0-or-later

#include "runningpc.h"

std::optional<RunningPc> runningPc()
{
    return std::nullopt;
}
