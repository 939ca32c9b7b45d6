// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/windows/windowsplatform.h"
#include "platform/windows/windowsreader.h"
#include "runningpc.h"

std::optional<RunningPc> runningPc()
{
    return RunningPc{std::make_unique<WindowsPlatform>(), std::make_unique<WindowsReader>()};
}
