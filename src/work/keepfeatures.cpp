// SPDX-License-Identifier: GPL-3.0-or-later

#include "keepfeatures.h"

#include <algorithm>

using namespace Qt::StringLiterals;

// clang-format off
const std::array<KeepFeature, 9> keepFeatures{
    KeepFeature{.name = "printer"_L1,         .keep = &WorkThread::keepPrinter,
                .services = {u"Spooler"_s},
                .tasks = {u"EduPrintProv"_s, u"PrinterCleanupTask"_s, u"PrintJobCleanupTask"_s},
                .taskFolder = u"\\Microsoft\\Windows\\Printing\\"_s},
    KeepFeature{.name = "bluetooth-audio"_L1, .keep = &WorkThread::keepBluetoothAudio,
                .services = {u"BthAvctpSvc"_s, u"BTAGService"_s}},
    KeepFeature{.name = "files-sharing"_L1,   .keep = &WorkThread::keepFilesSharing,
                .services = {u"LanmanWorkstation"_s, u"LanmanServer"_s, u"lmhosts"_s, u"FDResPub"_s}},
    KeepFeature{.name = "xbox-app"_L1,        .keep = &WorkThread::keepXboxApp,
                .services = {u"XblAuthManager"_s},
                .packages = {u"Microsoft.XboxApp"_s, u"Microsoft.GamingApp"_s, u"Microsoft.GamingServices"_s,
                             u"Microsoft.Xbox.TCUI"_s, u"Microsoft.XboxIdentityProvider"_s},
                .superseded = u"Microsoft.XboxApp"_s, .installed = &WorkThread::hasXboxApp},
    KeepFeature{.name = "upnp"_L1,            .keep = &WorkThread::keepUpnp,
                .services = {u"SSDPSRV"_s}},
    KeepFeature{.name = "proxy-vpn"_L1,       .keep = &WorkThread::keepProxyVpn,
                .services = {u"RasMan"_s, u"SstpSvc"_s},
                .tasks = {u"MobilityManager"_s}, .taskFolder = u"\\Microsoft\\Windows\\Ras\\"_s},
    KeepFeature{.name = "nfc"_L1,             .keep = &WorkThread::keepNfc,
                .services = {u"SEMgrSvc"_s}},
    KeepFeature{.name = "xbox-game-bar"_L1,   .keep = &WorkThread::keepXboxGameBar,
                .packages = {u"Microsoft.XboxGamingOverlay"_s, u"Microsoft.XboxGameOverlay"_s,
                             u"Microsoft.XboxSpeechToTextOverlay"_s},
                .superseded = u"Microsoft.XboxGameOverlay"_s, .installed = &WorkThread::hasXboxGameBar},
    KeepFeature{.name = "codecs"_L1,          .keep = &WorkThread::keepCodecs,
                .packages = {u"Microsoft.AV1VideoExtension"_s, u"Microsoft.VP9VideoExtensions"_s,
                             u"Microsoft.AVCEncoderVideoExtension"_s, u"Microsoft.HEVCVideoExtension"_s,
                             u"Microsoft.MPEG2VideoExtension"_s},
                .installed = &WorkThread::hasCodecs},
};
// clang-format on

bool KeepFeature::hasTask(const QString &taskName) const
{
    return std::any_of(tasks.cbegin(), tasks.cend(),
                       [&](const QString &end) { return taskName.endsWith(end, Qt::CaseInsensitive); });
}

QStringList KeepFeature::packagesToBringBack() const
{
    QStringList names = packages;
    names.removeAll(superseded);
    return names;
}

QList<KeepFeature> keepFeaturesToBringBack()
{
    QList<KeepFeature> ordered(keepFeatures.begin(), keepFeatures.end());
    const auto find = [&ordered](std::atomic<int> WorkThread::*keep) {
        return std::find_if(ordered.begin(), ordered.end(),
                            [keep](const KeepFeature &feature) { return feature.keep == keep; });
    };
    // The Xbox app comes after the game bar, and so its services come last.
    const auto xboxApp = find(&WorkThread::keepXboxApp);
    std::rotate(xboxApp, xboxApp + 1, find(&WorkThread::keepXboxGameBar) + 1);
    return ordered;
}

bool isOfKeptFeature(const WorkThread &worker, const QString &service)
{
    const auto isIn = [&service](const QString &name) { return service.contains(name, Qt::CaseInsensitive); };
    return std::any_of(keepFeatures.begin(), keepFeatures.end(), [&](const KeepFeature &feature) {
        return feature.isKept(worker) && std::any_of(feature.services.cbegin(), feature.services.cend(), isIn);
    });
}

void addServicesOfFeaturesGivenUp(WorkThread &worker)
{
    for (const KeepFeature &feature : keepFeatures) {
        if (!feature.isKept(worker))
            worker.nonVitalServices += feature.services;
    }
}
