// SPDX-License-Identifier: GPL-3.0-or-later
// The features of the Keep list, in its order.

#pragma once

#include "workthread.h"

#include <array>

struct KeepFeature
{
    QLatin1StringView name; ///< for command lines; what the user reads is the window's matter
    std::atomic<int> WorkThread::*keep;
};

// clang-format off
inline constexpr std::array keepFeatures{
    KeepFeature{QLatin1StringView("printer"),         &WorkThread::keepPrinter},
    KeepFeature{QLatin1StringView("bluetooth-audio"), &WorkThread::keepBluetoothAudio},
    KeepFeature{QLatin1StringView("files-sharing"),   &WorkThread::keepFilesSharing},
    KeepFeature{QLatin1StringView("xbox-app"),        &WorkThread::keepXboxApp},
    KeepFeature{QLatin1StringView("upnp"),            &WorkThread::keepUpnp},
    KeepFeature{QLatin1StringView("proxy-vpn"),       &WorkThread::keepProxyVpn},
    KeepFeature{QLatin1StringView("nfc"),             &WorkThread::keepNfc},
    KeepFeature{QLatin1StringView("xbox-game-bar"),   &WorkThread::keepXboxGameBar},
    KeepFeature{QLatin1StringView("codecs"),          &WorkThread::keepCodecs},
};
// clang-format on

/** The setting that stores a row of the list. Row 0 is the list's title, and row 1 the first feature. */
inline QString keepSetting(qsizetype row)
{
    return QStringLiteral("Keep_%1").arg(row);
}
