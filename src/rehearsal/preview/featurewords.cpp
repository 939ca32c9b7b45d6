// SPDX-License-Identifier: GPL-3.0-or-later

#include "featurewords.h"

#include "work/tweaks/tweakvalues.h"

using namespace Qt::StringLiterals;

namespace {

enum Group { Ssd, Gaming, Windows };

struct Option
{
    Group group;
    quint32 id;
    QLatin1StringView words;
    QLatin1StringView about;
};

// clang-format off
constexpr Option options[] = {
    {Ssd,     1,  "Disable Windows write-cache buffer flushing"_L1,
     "The drive keeps data in its own memory a little longer instead of writing it at once"_L1},
    {Ssd,     2,  "Disable automatic boot disk optimization"_L1,
     "Windows no longer sorts the files that it needs to start"_L1},
    {Ssd,     3,  "Disable last access time stamps"_L1,
     "Windows no longer notes when a file was last read"_L1},
    {Ssd,     4,  "Disable Prefetcher"_L1,
     "Windows no longer loads programs before they are started"_L1},
    {Ssd,     5,  "Disable clearing of virtual memory swap file on every shutdown"_L1,
     "The PC shuts down faster, and the swap file keeps what was in it"_L1},
    {Ssd,     6,  "Disable fast start-up"_L1,
     "The PC starts from scratch, which a fast drive does quickly"_L1},
    {Ssd,     7,  "Disable hibernation mode"_L1,
     "Frees the space of hiberfil.sys; the PC can't hibernate any more"_L1},
    {Ssd,     8,  "Remove the indexed attribute from all files in the Windows partition"_L1,
     "The search reads the drive instead of an index of it"_L1},
    {Ssd,     9,  "Increase maximum amount of physical memory that can be locked for I/O operations"_L1,
     "More memory for reading and writing at once"_L1},
    {Gaming,  1,  "Prioritize games"_L1,
     "Games get more of the processor, the graphics card and the drive than other programs"_L1},
    {Gaming,  2,  "Disable CPU power throttling"_L1,
     "Background programs run at full speed too; costs battery on a laptop"_L1},
    {Gaming,  3,  "Enable game mode"_L1,
     "Windows favours the game that is in front"_L1},
    {Gaming,  4,  "Disable game recording and broadcasting"_L1,
     "No recording in the background while a game runs"_L1},
    {Gaming,  5,  "Disable HPET"_L1,
     "High Precision Event Timer: the processor's own counter is used, which may be faster in games"_L1},
    {Gaming,  6,  "Disable Gamebar"_L1,
     "The overlay that Win+G opens"_L1},
    {Gaming,  7,  "Disable dynamic tick of system timers"_L1,
     "The timer ticks on while the PC idles; costs battery on a laptop"_L1},
    {Gaming,  8,  "Enable Auto HDR"_L1,
     "Shows games without HDR in HDR"_L1},
    {Gaming,  9,  "Disable enhance pointer precision"_L1,
     "The pointer follows the mouse at one speed"_L1},
    {Gaming,  10, "Disable Nagle’s Algorithm"_L1,
     "Small network packets are sent at once"_L1},
    {Gaming,  11, "Processor time allocated to applications"_L1,
     "Win32PrioritySeparation: how long a program may run before the next one's turn"_L1},
    {Gaming,  12, "Set the maximum number of GPU pre-rendered frames to 1"_L1,
     "Less delay between the mouse and the picture"_L1},
    {Gaming,  13, "Disable Multiplane Overlay (MPO)"_L1,
     "May mend flicker and stutter; some videos and full-screen games may run worse"_L1},
    {Gaming,  14, "Disable ULPS"_L1,
     "Ultra Low Power State of AMD graphics cards: they stay awake"_L1},
    {Windows, 1,  "Disable SvcHost splitting"_L1,
     "Services share fewer svchost.exe processes"_L1},
    {Windows, 2,  "Disable periodic registry backup"_L1,
     "Windows no longer copies the registry at intervals"_L1},
    {Windows, 3,  "Disable advanced indexing options"_L1,
     "Takes the advanced page out of the indexing options"_L1},
    {Windows, 4,  "Disable files history"_L1,
     "No older versions of files are kept, and recent files aren't listed"_L1},
    {Windows, 5,  "Enable the context menu like Windows 10"_L1,
     "A right click shows all entries at once"_L1},
    {Windows, 6,  "Disable distribution optimization of Windows updates"_L1,
     "Windows no longer fetches updates from other PCs, nor sends them there"_L1},
    {Windows, 7,  "Disable telemetry"_L1,
     "Less data about the PC and its use goes to Microsoft"_L1},
    {Windows, 8,  "Reduces certain delays"_L1,
     "Menus open faster, and programs that hang are closed sooner"_L1},
    {Windows, 9,  "Disable LockApp.exe"_L1,
     "The screen with picture and clock before signing in"_L1},
    {Windows, 10, "Disable the search program"_L1,
     "SearchHost.exe, the process behind the search field"_L1},
    {Windows, 12, "Disable cloud backup and restore functionalities"_L1,
     "Settings and lists of applications are no longer kept in the cloud"_L1},
};

/** What options change besides the values of their tables. */
struct Place
{
    Group group;
    quint32 id;
    DiffKind kind;
    QLatin1StringView path; ///< a part of it, in upper case
    QLatin1StringView name; ///< of the value, in upper case; empty for any
};
constexpr Place places[] = {
    {Ssd,     7,  DiffKind::File,       "HIBERFIL.SYS"_L1,                       {}},
    {Ssd,     7,  DiffKind::Attribute,  "HIBERFIL.SYS"_L1,                       {}},
    {Ssd,     7,  DiffKind::Security,   "HIBERFIL.SYS"_L1,                       {}},
    {Ssd,     7,  DiffKind::Registry,   "\\CONTROL\\POWER"_L1,                   "HIBERNATEENABLED"_L1},
    {Ssd,     9,  DiffKind::Registry,   "\\MEMORY MANAGEMENT"_L1,                "IOPAGELOCKLIMIT"_L1},
    {Gaming,  5,  DiffKind::BootOption, "USEPLATFORMCLOCK"_L1,                   {}},
    {Gaming,  5,  DiffKind::Registry,   "\\SERVICES\\HPET"_L1,                   "START"_L1},
    {Gaming,  7,  DiffKind::BootOption, "DISABLEDYNAMICTICK"_L1,                 {}},
    {Gaming,  10, DiffKind::Registry,   "\\TCPIP\\PARAMETERS\\INTERFACES\\"_L1,  "TCPACKFREQUENCY"_L1},
    {Gaming,  10, DiffKind::Registry,   "\\TCPIP\\PARAMETERS\\INTERFACES\\"_L1,  "TCPNODELAY"_L1},
    {Gaming,  11, DiffKind::Registry,   "\\CONTROL\\PRIORITYCONTROL"_L1,         "WIN32PRIORITYSEPARATION"_L1},
    {Gaming,  14, DiffKind::Registry,   "\\CONTROL\\VIDEO\\"_L1,                 "ENABLEULPS"_L1},
    {Windows, 5,  DiffKind::Registry,   "\\{86CA1AA0-34AA-4E8B-A509-50C905BAE2A2}"_L1, {}},
    {Windows, 10, DiffKind::File,       "\\SYSTEMAPPS\\"_L1,                     {}},
    {Windows, 10, DiffKind::Attribute,  "\\SYSTEMAPPS\\"_L1,                     {}},
    {Windows, 10, DiffKind::Security,   "\\SYSTEMAPPS\\"_L1,                     {}},
    {Windows, 12, DiffKind::Registry,   "\\SERVICES\\CLOUDBACKUPRESTORESVC_"_L1, "START"_L1},
    {Windows, 12, DiffKind::Task,       "\\CLOUDRESTORE\\"_L1,                   {}},
    {Ssd,     8,  DiffKind::Attribute,  {},                                      {}},
};
// clang-format on

FeatureWords wordsOf(Group group, quint32 id)
{
    const auto text = [](QLatin1StringView utf8) { return QString::fromUtf8(utf8.data(), utf8.size()); };
    for (const Option &option : options) {
        if (option.group == group && option.id == id)
            return {text(option.words), text(option.about)};
    }
    return {};
}

/** The numbered control set is the current one, by its other name. */
QString comparable(const QString &key)
{
    return foldName(key).replace("\\CONTROLSET001\\"_L1, "\\CURRENTCONTROLSET\\"_L1);
}

bool isOfRow(const TweakValue &value, const DiffRow &row)
{
    // An empty key comes to be where a value is removed from a key that isn't there.
    if (row.name.isEmpty())
        return comparable(value.key) == comparable(row.path);
    return foldName(value.name) == foldName(row.name) && comparable(value.key) == comparable(row.path);
}

bool isOfPlace(const Place &place, const DiffRow &row)
{
    return place.kind == row.kind && foldName(row.path).contains(place.path)
           && (place.name.isEmpty() || foldName(row.name) == place.name);
}

} // namespace

FeatureWords featureWords(const DiffRow &row)
{
    if (row.kind == DiffKind::Registry) {
        const std::pair<Group, std::span<const TweakValue>> tables[] = {
            {Ssd, ssdValues()}, {Gaming, gamingValues()}, {Windows, windowsValues()}, {Windows, telemetryValues()}};
        for (const auto &[group, values] : tables) {
            for (const TweakValue &value : values) {
                if (isOfRow(value, row))
                    return wordsOf(group, value.id);
            }
        }
    }
    for (const Place &place : places) {
        if (isOfPlace(place, row))
            return wordsOf(place.group, place.id);
    }
    return {};
}
