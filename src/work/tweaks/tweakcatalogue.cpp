// SPDX-License-Identifier: GPL-3.0-or-later

#include "tweakcatalogue.h"

#include "work/interruption.h"
#include "work/windowsname.h"
#include "work/wmi.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using enum When;

constexpr TweakRoutine ssd = &WorkThread::TweakSSD;
constexpr TweakRoutine gaming = &WorkThread::TweakGaming;
constexpr TweakRoutine windows = &WorkThread::TweakWindows;

// The columns differ on purpose; people's records go by them. Optimize leaves 8 of the SSD group, 14 of the gaming and
// 12 of the Windows group out, and still they are recorded; it runs chkGaming12, which never is. It puts chkSsd9 in
// force everywhere and chkWindows9 on Windows 11 alone, and Restore asks the other way round. It goes by AMD's card for
// 13, though 14 is AMD's own. And it never runs chkSsd7, which Restore takes back: it runs the gaming group's 7 there.
// clang-format off
constexpr TweakBox boxes[] = {
    // box               group    id  reboot     check      apply      optimize      restore    record
    {"chkSsd1"_L1,       ssd,      1, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkSsd2"_L1,       ssd,      2, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkSsd3"_L1,       ssd,      3, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkSsd4"_L1,       ssd,      4, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkSsd5"_L1,       ssd,      5, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkSsd6"_L1,       ssd,      6, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkSsd7"_L1,       ssd,      7, Never,     Always,    Always,    NoBattery,    Always,    NoBattery, gaming},
    {"chkSsd8"_L1,       ssd,      8, Never,     Always,    AsJob,     Never,        Never,     Always},
    {"chkSsd9"_L1,       ssd,      9, Always,    Always,    Always,    Always,       Windows11, Always},
    {"chkGaming1"_L1,    gaming,   1, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkGaming2"_L1,    gaming,   2, Never,     Always,    Always,    NoBattery,    Always,    NoBattery},
    {"chkGaming3"_L1,    gaming,   3, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkGaming4"_L1,    gaming,   4, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkGaming5"_L1,    gaming,   5, Always,    Always,    Always,    Always,       Always,    Always},
    {"chkGaming6"_L1,    gaming,   6, Never,     Always,    Always,    BarGivenUp,   Always,    BarGivenUpOrRestored},
    {"chkGaming7"_L1,    gaming,   7, Windows11, Always,    Always,    NoBattery,    Always,    NoBattery},
    {"chkGaming8"_L1,    gaming,   8, Never,     Windows11, Windows11, Windows11,    Windows11, Windows11},
    {"chkGaming9"_L1,    gaming,   9, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkGaming10"_L1,   gaming,  10, Always,    Always,    Always,    Always,       Always,    Always},
    {"chkGaming11"_L1,   gaming,  11, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkGaming12"_L1,   gaming,  12, Never,     Always,    Always,    Always,       Always,    Never},
    {"chkGaming13"_L1,   gaming,  13, Always,    Always,    Always,    BatteryOrAmd, Always,    Always},
    {"chkGaming14"_L1,   gaming,  14, Always,    Always,    Always,    Never,        Never,     Always},
    {"chkWindows1"_L1,   windows,  1, Always,    Always,    Always,    Always,       Always,    Always},
    {"chkWindows2"_L1,   windows,  2, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkWindows3"_L1,   windows,  3, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkWindows4"_L1,   windows,  4, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkWindows5"_L1,   windows,  5, Windows11, Windows11, Windows11, Windows11,    Windows11, Windows11},
    {"chkWindows6"_L1,   windows,  6, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkWindows7"_L1,   windows,  7, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkWindows8"_L1,   windows,  8, Never,     Always,    Always,    Always,       Always,    Always},
    {"chkWindows9"_L1,   windows,  9, Never,     Always,    Windows11, Windows11,    Always,    Always},
    {"chkWindows10"_L1,  windows, 10, Never,     Always,    Always,    Always,       Always,    Windows11},
    {"chkWindows12"_L1,  windows, 12, Never,     Always,    Always,    Never,        Never,     Always},
};
// clang-format on

bool isFirstCardOfAmd()
{
    return firstDisplayAdapter().value_or(QString()).contains("AMD"_L1, Qt::CaseInsensitive);
}

} // namespace

bool holds(When when, const WorkThread &worker)
{
    switch (when) {
    case Always:
        return true;
    case Never:
    case AsJob:
        break;
    case Windows11:
        return isWindows11(worker.winName);
    case NoBattery:
        return !worker.hasBattery();
    case BarGivenUp:
        return worker.keepXboxGameBar == 0;
    case BarGivenUpOrRestored:
        return worker.keepXboxGameBar == 0 || worker.restoreRunning != 0;
    case BatteryOrAmd:
        return worker.hasBattery() || isFirstCardOfAmd();
    }
    return false;
}

std::span<const TweakBox> tweakBoxes()
{
    return boxes;
}

const TweakBox *findTweak(TweakRoutine group, quint32 id)
{
    const auto found = std::find_if(std::begin(boxes), std::end(boxes),
                                    [&](const TweakBox &box) { return box.tweak == group && box.id == id; });
    return found == std::end(boxes) ? nullptr : found;
}

bool needsReboot(TweakRoutine group, quint32 id, const WorkThread &worker)
{
    const TweakBox *box = findTweak(group, id);
    return box != nullptr && holds(box->reboot, worker);
}

void optimizeGroup(WorkThread &worker, TweakRoutine group, quint32 last)
{
    constexpr int settleDelay = 30;

    for (quint32 id = 1; id <= last; ++id) {
        if (const TweakBox *box = findTweak(group, id); box != nullptr && holds(box->optimize, worker))
            (worker.*(box->inOptimize != nullptr ? box->inOptimize : group))(1, id);
        pauseFor(settleDelay);
    }
}

void restoreGroup(WorkThread &worker, TweakRoutine group, quint32 last)
{
    constexpr int settleDelay = 10;

    for (quint32 id = 1; id <= last; ++id) {
        if (const TweakBox *box = findTweak(group, id); box != nullptr && holds(box->restore, worker))
            (worker.*group)(0, id);
        pauseFor(settleDelay);
    }
}
