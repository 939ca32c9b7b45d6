// SPDX-License-Identifier: GPL-3.0-or-later

#include "tweakcatalogue.h"

using namespace Qt::StringLiterals;

namespace {

using Apply = TweakApply;
using Record = TweakRecord;

constexpr auto ssd = &WorkThread::TweakSSD;
constexpr auto gaming = &WorkThread::TweakGaming;
constexpr auto windows = &WorkThread::TweakWindows;

// What is recorded isn't quite what the Automatizer runs, on purpose: chkSsd8, chkGaming14 and chkWindows12 are
// recorded though it never runs them, chkGaming12 never is though it runs it, and chkWindows10 is on Windows 11 only.
// clang-format off
constexpr TweakBox boxes[] = {
    {"chkSsd1"_L1,      ssd,     1,  Apply::Always,    Record::Always},
    {"chkSsd2"_L1,      ssd,     2,  Apply::Always,    Record::Always},
    {"chkSsd3"_L1,      ssd,     3,  Apply::Always,    Record::Always},
    {"chkSsd4"_L1,      ssd,     4,  Apply::Always,    Record::Always},
    {"chkSsd5"_L1,      ssd,     5,  Apply::Always,    Record::Always},
    {"chkSsd6"_L1,      ssd,     6,  Apply::Always,    Record::Always},
    {"chkSsd7"_L1,      ssd,     7,  Apply::Always,    Record::WithoutBattery},
    {"chkSsd8"_L1,      ssd,     8,  Apply::AsJob,     Record::Always},
    {"chkSsd9"_L1,      ssd,     9,  Apply::Always,    Record::Always},
    {"chkGaming1"_L1,   gaming,  1,  Apply::Always,    Record::Always},
    {"chkGaming2"_L1,   gaming,  2,  Apply::Always,    Record::WithoutBattery},
    {"chkGaming3"_L1,   gaming,  3,  Apply::Always,    Record::Always},
    {"chkGaming4"_L1,   gaming,  4,  Apply::Always,    Record::Always},
    {"chkGaming5"_L1,   gaming,  5,  Apply::Always,    Record::Always},
    {"chkGaming6"_L1,   gaming,  6,  Apply::Always,    Record::GameBarGivenUp},
    {"chkGaming7"_L1,   gaming,  7,  Apply::Always,    Record::WithoutBattery},
    {"chkGaming8"_L1,   gaming,  8,  Apply::Windows11, Record::Windows11},
    {"chkGaming9"_L1,   gaming,  9,  Apply::Always,    Record::Always},
    {"chkGaming10"_L1,  gaming,  10, Apply::Always,    Record::Always},
    {"chkGaming11"_L1,  gaming,  11, Apply::Always,    Record::Always},
    {"chkGaming12"_L1,  gaming,  12, Apply::Always,    Record::Never},
    {"chkGaming13"_L1,  gaming,  13, Apply::Always,    Record::Always},
    {"chkGaming14"_L1,  gaming,  14, Apply::Always,    Record::Always},
    {"chkWindows1"_L1,  windows, 1,  Apply::Always,    Record::Always},
    {"chkWindows2"_L1,  windows, 2,  Apply::Always,    Record::Always},
    {"chkWindows3"_L1,  windows, 3,  Apply::Always,    Record::Always},
    {"chkWindows4"_L1,  windows, 4,  Apply::Always,    Record::Always},
    {"chkWindows5"_L1,  windows, 5,  Apply::Windows11, Record::Windows11},
    {"chkWindows6"_L1,  windows, 6,  Apply::Always,    Record::Always},
    {"chkWindows7"_L1,  windows, 7,  Apply::Always,    Record::Always},
    {"chkWindows8"_L1,  windows, 8,  Apply::Always,    Record::Always},
    {"chkWindows9"_L1,  windows, 9,  Apply::Windows11, Record::Always},
    {"chkWindows10"_L1, windows, 10, Apply::Always,    Record::Windows11},
    {"chkWindows12"_L1, windows, 12, Apply::Always,    Record::Always},
};
// clang-format on

} // namespace

std::span<const TweakBox> tweakBoxes()
{
    return boxes;
}
