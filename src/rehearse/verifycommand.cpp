// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse verify

#include "jobrunner.h"
#include "machine/machine.h"
#include "machine/seam/machineplatform.h"
#include "machine/workfolder.h"
#include "subcommands.h"
#include "verify/verify.h"
#include "work/tweaks/tweakcatalogue.h"
#include "work/windowsname.h"

#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace {

/** Puts all recorded tweaks of a machine in force once more. */
void applyTweaksAgain(const QString &machine, Progress &progress)
{
    setPlatform(std::make_unique<MachinePlatform>(machine, MachineOptions()));
    // Also where it is broken off: what is open can't be removed everywhere.
    const auto close = qScopeGuard([] { setPlatform(nullptr); });
    const TweakState recorded = storedTweaks();
    WorkThread worker;
    setWindowsName(worker);
    worker.win32PrioritySeparationIndex = recorded.priorityIndex;
    int done = 0;
    for (const TweakBox &box : tweakBoxes()) {
        progress.show(u"option "_s + box.name, done++, static_cast<int>(tweakBoxes().size()));
        if (recorded.boxes.value(box.name))
            runToEnd([&] { (worker.*box.tweak)(1, box.id); });
    }
}

int runVerify(const Arguments &arguments)
{
    const std::unique_ptr<Machine> before = openMachine(arguments.operand(0));
    const std::unique_ptr<Machine> now = openMachine(arguments.operand(1));
    if (const QString difference = differentPcs(*before, *now); !difference.isEmpty())
        throw Failure{ExitBadArguments, u"these two can't be compared: "_s + difference};

    Progress progress;
    const WorkFolder work;
    if (!work.isValid())
        throw Failure{ExitJobFailed, work.errorString()};
    const QString again = work.filePath(u"again"_s);
    progress.show(u"copying the machine"_s, 0, 0);
    copyMachine(*now, again);
    applyTweaksAgain(again, progress);
    const QList<VerifiedItem> items =
        verifySwitches(*before, *now) + verifyTweaks(*before, *now, *Machine::open(again));
    progress.clear();
    if (arguments.has("json"_L1))
        print(verifyJson(items));
    else
        print(verifyText(items));
    return allInForce(items) ? ExitDone : ExitJobFailed;
}

constexpr OptionRow options[] = {
    {"json"_L1, {}, "print JSON"_L1},
};

QString moreHelp()
{
    return u"DIR_BEFORE is the PC before the change, DIR_NOW the same PC at any time after it. Neither is changed.\n"
           "Exit status: 0 where all that is recorded is in force, 1 where something isn't.\n"_s;
}

} // namespace

const Subcommand verifySubcommand{
    "verify"_L1,
    "DIR_BEFORE DIR_NOW"_L1,
    "show what of the recorded changes is in force, was refused, or was changed back"_L1,
    options,
    2,
    2,
    runVerify,
    moreHelp,
};
