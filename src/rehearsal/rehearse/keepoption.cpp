// SPDX-License-Identifier: GPL-3.0-or-later

#include "keepoption.h"

#include "arguments.h"
#include "platform/platform.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct KeepRow
{
    QLatin1StringView name;
    QLatin1StringView setting;
    std::atomic<int> WorkThread::*feature;
};

// clang-format off
constexpr KeepRow rows[] = {
    {"printer"_L1,         "Keep_1"_L1, &WorkThread::keepPrinter},
    {"bluetooth-audio"_L1, "Keep_2"_L1, &WorkThread::keepBluetoothAudio},
    {"files-sharing"_L1,   "Keep_3"_L1, &WorkThread::keepFilesSharing},
    {"xbox-app"_L1,        "Keep_4"_L1, &WorkThread::keepXboxApp},
    {"upnp"_L1,            "Keep_5"_L1, &WorkThread::keepUpnp},
    {"proxy-vpn"_L1,       "Keep_6"_L1, &WorkThread::keepProxyVpn},
    {"nfc"_L1,             "Keep_7"_L1, &WorkThread::keepNfc},
    {"xbox-game-bar"_L1,   "Keep_8"_L1, &WorkThread::keepXboxGameBar},
    {"codecs"_L1,          "Keep_9"_L1, &WorkThread::keepCodecs},
};
// clang-format on

KeepChoice parseEntry(const QString &entry)
{
    const QString name = entry.section(u'=', 0, 0);
    const QString state = entry.section(u'=', 1);
    const auto row =
        std::find_if(std::begin(rows), std::end(rows), [&name](const KeepRow &keep) { return keep.name == name; });
    if (row == std::end(rows) || (state != "0"_L1 && state != "2"_L1))
        throw UsageError{u"invalid argument '%1' for '--keep'"_s.arg(entry)};
    return {row->feature, state.toInt()};
}

} // namespace

QList<KeepChoice> parseKeep(const QString &text)
{
    QList<KeepChoice> choices;
    for (const QString &entry : text.split(u',', Qt::SkipEmptyParts))
        choices.append(parseEntry(entry));
    return choices;
}

void applyKeep(WorkThread &worker, const QList<KeepChoice> &choices)
{
    // Opened above the program's key: opening that would make it, and it counts as a change of the machine.
    const auto software = platform().openKey(u"HKEY_CURRENT_USER\\Software"_s);
    for (const KeepRow &row : rows) {
        // Any other stored value keeps the feature.
        const QVariant stored = software->value(u"Kestrune/Ondrevale/"_s + row.setting, Qt::Checked);
        if (stored.toInt() == Qt::Unchecked)
            worker.*row.feature = Qt::Unchecked;
    }
    for (const KeepChoice &choice : choices)
        worker.*choice.feature = choice.state;
}

QString keepNames()
{
    QStringList names;
    for (const KeepRow &row : rows)
        names.append(row.name);
    return names.join(", "_L1);
}
