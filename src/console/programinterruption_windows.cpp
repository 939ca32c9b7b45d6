// SPDX-License-Identifier: GPL-3.0-or-later

#include "programinterruption.h"

#include <windows.h>

#include <atomic>

namespace {

std::atomic<bool> received = false;

/** Runs on a thread of its own. */
BOOL WINAPI noteEvent(DWORD event)
{
    received = true;
    // After all others the system ends the process as soon as this returns, or after a few seconds.
    if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT)
        Sleep(INFINITE);
    return TRUE;
}

} // namespace

void watchForInterruption()
{
    SetConsoleCtrlHandler(noteEvent, TRUE);
}

bool isInterrupted()
{
    return received;
}

void stopIfInterrupted()
{
    if (received)
        throw Interrupted{130};
}
