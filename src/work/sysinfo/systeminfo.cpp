// SPDX-License-Identifier: GPL-3.0-or-later
// Collects the texts of the system report.

#include "reportsteps.h"
#include "work/interruption.h"
#include "work/statusline.h"

using namespace Qt::StringLiterals;

namespace {

using Step = void (*)(WorkThread &worker);

constexpr Step steps[] = {collectWindows, collectMotherboard, collectGraphics,
                          collectDisks,   collectMemory,      collectProcessor};

} // namespace

void WorkThread::GetSystemInfo()
{
    report(StatusLine::maximum(7));
    int reached = 1;
    report(StatusLine::step(reached));
    for (const Step collect : steps) {
        endIfInterrupted();
        collect(*this);
        // The window reads the texts when the last of these lines has come: nothing is written behind it.
        report(StatusLine::step(++reached));
    }
}
