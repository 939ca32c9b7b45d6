// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about services: which matter, and which don't.

#include "services.h"

using namespace Qt::StringLiterals;

// clang-format off
const QStringList criticalServices{
    u"Appinfo"_s, u"AudioEndpointBuilder"_s, u"Audiosrv"_s, u"BFE"_s, u"BITS"_s, u"BrokerInfrastructure"_s, u"bthserv"_s,
    u"CoreMessagingRegistrar"_s, u"CryptSvc"_s, u"DeviceInstall"_s, u"DcomLaunch"_s, u"DeviceAssociationService"_s,
    u"Dhcp"_s, u"DoSvc"_s, u"EventLog"_s, u"EventSystem"_s, u"gpsvc"_s, u"InventorySvc"_s, u"KeyIso"_s,
    u"LicenseManager"_s, u"LSM"_s, u"MDCoreSvc"_s, u"mpssvc"_s, u"netprofm"_s, u"NgcSvc"_s, u"NgcCtnrSvc"_s, u"nsi"_s,
    u"PlugPlay"_s, u"ProfSvc"_s, u"RmSvc"_s, u"RpcEptMapper"_s, u"RpcSs"_s, u"SamSs"_s, u"Schedule"_s, u"seclogon"_s,
    u"ShellHWDetection"_s, u"sppsvc"_s, u"StateRepository"_s, u"StorSvc"_s, u"TrustedInstaller"_s, u"UsoSvc"_s,
    u"VaultSvc"_s, u"WdNisSvc"_s, u"webthreatdefsvc"_s, u"SensorService"_s, u"WaaSMedicSvc"_s, u"WdiSystemHost"_s,
    u"WinDefend"_s, u"Winmgmt"_s, u"wuauserv"_s,
};

QStringList nonVitalServiceNames()
{
    return {
        u"brave"_s,
        u"cbdhsvc_5cbba"_s, // The suffix is one installation's own: only a service of this very name is meant.
        u"DcpSvc"_s, u"diagnosticshub.standardcollector.service"_s, u"DiagTrack"_s, u"dmwappushservice"_s, u"DusmSvc"_s,
        u"edgeupdate"_s, u"FontCache"_s, u"iphlpsvc"_s, u"lfsvc"_s, u"MapsBroker"_s, u"NvNetworkService"_s,
        u"NvStreamNetworkSvc"_s, u"NvStreamSvc"_s, u"NvTelemetryContainer"_s, u"NvTelemetryService"_s, u"PcaSvc"_s,
        u"PhoneSvc"_s, u"RtkBtManServ"_s, u"SysMain"_s, u"TabletInputService"_s, u"TrkWks"_s, u"tzautoupdate"_s,
        u"uhssvc"_s, u"W32Time"_s, u"WerSvc"_s, u"wercplsupport"_s, u"WPDBusEnum"_s, u"WpnService"_s, u"WSearch"_s,
    };
}

QStringList manualStartServiceNames()
{
    return {u"edgeupdate"_s, u"edgeupdatem"_s, u"StiSvc"_s, u"MapsBroker"_s, u"InventorySvc"_s, u"LocalKdc"_s,
            u"Wcmsvc"_s, u"brave"_s, u"bravem"_s, u"NvContainerLocalSystem"_s, u"NvContainer"_s};
}

QStringList startModeBackupExclusions()
{
    return {u"DPS"_s, u"DcomLaunch"_s, u"RpcSs"_s, u"SamSs"_s, u"TrkWks"_s, u"WdiServiceHost"_s, u"WdiSystemHost"_s,
            u"gpsvc"_s, u"wscsvc"_s};
}
// clang-format on
