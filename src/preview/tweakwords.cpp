// SPDX-License-Identifier: GPL-3.0-or-later

#include "previewwords.h"

#include "machine/compare/diffrow.h"
#include "machine/registrystore.h"
#include "work/knowledge.h"
#include "work/tweaks/tweakvalues.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

struct TweakRow
{
    QLatin1StringView box;
    QLatin1StringView title;
};

// clang-format off
constexpr TweakRow tweakRows[] = {
    {"chkSsd1"_L1, "Disable Windows write-cache buffer flushing"_L1},
    {"chkSsd2"_L1, "Disable automatic boot disk optimization"_L1},
    {"chkSsd3"_L1, "Disable last access time stamps"_L1},
    {"chkSsd4"_L1, "Disable Prefetcher"_L1},
    {"chkSsd5"_L1, "Disable clearing of virtual memory swap file on every shutdown"_L1},
    {"chkSsd6"_L1, "Disable fast start-up"_L1},
    {"chkSsd7"_L1, "Disable hibernation mode"_L1},
    {"chkSsd8"_L1, "Remove the indexed attribute from all files in the Windows partition"_L1},
    {"chkSsd9"_L1, "Increase maximum amount of physical memory that can be locked for I/O operations"_L1},
    {"chkGaming1"_L1, "Prioritize games"_L1},
    {"chkGaming2"_L1, "Disable CPU power throttling"_L1},
    {"chkGaming3"_L1, "Enable game mode"_L1},
    {"chkGaming4"_L1, "Disable game recording and broadcasting"_L1},
    {"chkGaming5"_L1, "Disable HPET"_L1},
    {"chkGaming6"_L1, "Disable Gamebar"_L1},
    {"chkGaming7"_L1, "Disable dynamic tick of system timers"_L1},
    {"chkGaming8"_L1, "Enable Auto HDR"_L1},
    {"chkGaming9"_L1, "Disable enhance pointer precision"_L1},
    {"chkGaming10"_L1, "Disable Nagle’s Algorithm"_L1},
    {"chkGaming11"_L1, "Processor time allocated to applications"_L1},
    {"chkGaming12"_L1, "Set the maximum number of GPU pre-rendered frames to 1"_L1},
    {"chkGaming13"_L1, "Disable Multiplane Overlay (MPO)"_L1},
    {"chkGaming14"_L1, "Disable ULPS"_L1},
    {"chkWindows1"_L1, "Disable SvcHost splitting"_L1},
    {"chkWindows2"_L1, "Disable periodic registry backup"_L1},
    {"chkWindows3"_L1, "Disable advanced indexing options"_L1},
    {"chkWindows4"_L1, "Disable files history"_L1},
    {"chkWindows5"_L1, "Enable the context menu like Windows 10"_L1},
    {"chkWindows6"_L1, "Disable distribution optimization of Windows updates"_L1},
    {"chkWindows7"_L1, "Disable telemetry"_L1},
    {"chkWindows8"_L1, "Reduces certain delays"_L1},
    {"chkWindows9"_L1, "Disable LockApp.exe"_L1},
    {"chkWindows10"_L1, "Disable the search program"_L1},
    {"chkWindows12"_L1, "Disable cloud backup and restore functionalities"_L1},
};

/** What tweaks change besides the values of their tables. */
struct Place
{
    QLatin1StringView box;
    DiffKind kind;
    QLatin1StringView path; ///< a part of it, in upper case
    QLatin1StringView name; ///< of the value, in upper case; empty for any
};
constexpr Place places[] = {
    {"chkSsd7"_L1,      DiffKind::File,       "HIBERFIL.SYS"_L1,                       {}},
    {"chkSsd7"_L1,      DiffKind::Attribute,  "HIBERFIL.SYS"_L1,                       {}},
    {"chkSsd7"_L1,      DiffKind::Security,   "HIBERFIL.SYS"_L1,                       {}},
    {"chkSsd7"_L1,      DiffKind::Registry,   "\\CONTROL\\POWER"_L1,                   "HIBERNATEENABLED"_L1},
    {"chkSsd9"_L1,      DiffKind::Registry,   "\\MEMORY MANAGEMENT"_L1,                "IOPAGELOCKLIMIT"_L1},
    {"chkGaming5"_L1,   DiffKind::BootOption, "USEPLATFORMCLOCK"_L1,                   {}},
    {"chkGaming5"_L1,   DiffKind::Registry,   "\\SERVICES\\HPET"_L1,                   "START"_L1},
    {"chkGaming7"_L1,   DiffKind::BootOption, "DISABLEDYNAMICTICK"_L1,                 {}},
    {"chkGaming10"_L1,  DiffKind::Registry,   "\\TCPIP\\PARAMETERS\\INTERFACES\\"_L1,  "TCPACKFREQUENCY"_L1},
    {"chkGaming10"_L1,  DiffKind::Registry,   "\\TCPIP\\PARAMETERS\\INTERFACES\\"_L1,  "TCPNODELAY"_L1},
    {"chkGaming11"_L1,  DiffKind::Registry,   "\\CONTROL\\PRIORITYCONTROL"_L1,         "WIN32PRIORITYSEPARATION"_L1},
    {"chkGaming14"_L1,  DiffKind::Registry,   "\\CONTROL\\VIDEO\\"_L1,                 "ENABLEULPS"_L1},
    {"chkWindows5"_L1,  DiffKind::Registry,   "\\{86CA1AA0-34AA-4E8B-A509-50C905BAE2A2}"_L1, {}},
    {"chkWindows10"_L1, DiffKind::File,       "\\SYSTEMAPPS\\"_L1,                     {}},
    {"chkWindows10"_L1, DiffKind::Security,   "\\SYSTEMAPPS\\"_L1,                     {}},
    {"chkWindows12"_L1, DiffKind::Registry,   "\\SERVICES\\CLOUDBACKUPRESTORESVC_"_L1, "START"_L1},
    {"chkWindows12"_L1, DiffKind::Task,       "\\CLOUDRESTORE\\"_L1,                   {}},
    {"chkSsd8"_L1,      DiffKind::Attribute,  {},                                      {}},
};
// clang-format on

/** The numbered control set is the current one, by its other name. */
QString comparable(const QString &key)
{
    return foldName(key).replace("\\CONTROLSET001\\"_L1, "\\CURRENTCONTROLSET\\"_L1);
}

bool isOfRow(const TweakValue &value, const DiffRow &row)
{
    // An empty key is made where a value is removed from a key that isn't there.
    if (row.name.isEmpty())
        return comparable(value.key) == comparable(row.path);
    return foldName(value.name) == foldName(row.name) && comparable(value.key) == comparable(row.path);
}

bool isOfPlace(const Place &place, const DiffRow &row)
{
    return place.kind == row.kind && foldName(row.path).contains(place.path)
           && (place.name.isEmpty() || foldName(row.name) == place.name);
}

/** The names of a group's boxes, but for their numbers, and the values of their tweaks. */
struct Table
{
    QLatin1StringView boxes;
    std::span<const TweakValue> values;
};

std::array<Table, 4> tables()
{
    return {{{"chkSsd"_L1, ssdValues()},
             {"chkGaming"_L1, gamingValues()},
             {"chkWindows"_L1, windowsValues()},
             {"chkWindows"_L1, telemetryValues()}}};
}

} // namespace

QString tweakBoxOf(const DiffRow &row)
{
    if (row.kind == DiffKind::Registry) {
        for (const Table &table : tables()) {
            for (const TweakValue &value : table.values) {
                if (isOfRow(value, row))
                    return table.boxes + QString::number(value.id);
            }
        }
    }
    for (const Place &place : places) {
        if (isOfPlace(place, row))
            return place.box;
    }
    return {};
}

TweakWords tweakWords(const QString &box)
{
    const auto text = [](QLatin1StringView utf8) { return QString::fromUtf8(utf8.data(), utf8.size()); };
    const auto tweak = std::find_if(std::begin(tweakRows), std::end(tweakRows),
                                    [&box](const TweakRow &row) { return row.box == box; });
    const TweakKnowledge known = knowledgeOf(box);
    return tweak == std::end(tweakRows) ? TweakWords() : TweakWords{text(tweak->title), known.tip, known.takingBack};
}
