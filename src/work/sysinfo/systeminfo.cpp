// SPDX-License-Identifier: GPL-3.0-or-later
// Collects the texts of the system report.

#include "reportsteps.h"
#include "work/interruption.h"

using namespace Qt::StringLiterals;

namespace {

using Step = void (*)(WorkThread &worker);

constexpr Step steps[] = {collectWindows, collectMotherboard, collectGraphics,
                          collectDisks,   collectMemory,      collectProcessor};

} // namespace

void WorkThread::GetSystemInfo()
{
    report(u"pgr:max:7"_s);
    int reached = 1;
    report(u"pgr:value:%1"_s.arg(reached));
    for (const Step collect : steps) {
        endIfInterrupted();
        collect(*this);
        // The window reads the texts when the last of these lines has come: nothing is written behind it.
        report(u"pgr:value:%1"_s.arg(++reached));
    }
}
