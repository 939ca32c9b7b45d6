// SPDX-License-Identifier: GPL-3.0-or-later
// Optimize's phase of programs started at logon.

#include "work/autorun/autorun.h"
#include "work/command.h"
#include "work/interruption.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

/** Switches the entry off and records it. Gives the name by which it is told. */
QString switchOff(const AutorunEntry &entry)
{
    if (!isPackagedTaskExactly(entry.name)) {
        disableRunValue(entry);
        return entry.name;
    }
    disablePackagedTask(entry);
    // The process would have to bear the task's name.
    const QString program = QString(entry.name).remove(u".exe"_s) + u".exe"_s;
    runTool(u"taskkill"_s, {u"/im"_s, program, u"/f"_s, u"/t"_s});
    return program;
}

} // namespace

void WorkThread::optimizeAutoruns()
{
    constexpr int settleDelay = 300;

    reportPhase(tr("Autorun"));
    reportMaximum(autoruns.size());
    reportStep(0);
    int counter = 1;
    for (const AutorunRow &row : std::as_const(autoruns)) {
        const QString told = switchOff(autorunEntry(row));
        pauseFor(settleDelay);
        reportToAutomatizer(tr("Autorun program: disable %1 done").replace(u"%1"_s, told));
        reportStep(counter);
        ++counter;
    }
    reportBreak();
}
