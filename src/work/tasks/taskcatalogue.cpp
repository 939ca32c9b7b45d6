// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about scheduled tasks.

#include "tasks.h"

#include "work/keepfeatures.h"

#include <algorithm>

using namespace Qt::StringLiterals;

// clang-format off
QStringList nonVitalTaskNames()
{
    return {
        u".NET Framework NGEN v4.0.30319"_s,
        u".NET Framework NGEN v4.0.30319 64"_s,
        u".NET Framework NGEN v4.0.30319 64 Critical"_s,
        u".NET Framework NGEN v4.0.30319 Critical"_s,
        u"AitAgent"_s,
        u"AMDRyzenMasterSDKTask"_s,
        u"AnalyzeSystem"_s,
        u"BthSQM"_s,
        u"CreateObjectTask"_s,
        u"Consolidator"_s,
        u"Device"_s,
        u"Device User"_s,
        u"Diagnostics"_s,
        u"DmClient"_s,
        u"DmClientOnScenarioDownload"_s,
        u"FamilySafetyMonitor"_s,
        u"FamilySafetyRefresh"_s,
        u"FamilySafetyRefreshTask"_s,
        u"FamilySafetyUpload"_s,
        u"File History (maintenance mode)"_s,
        u"FODCleanupTask"_s,
        u"ForceSynchronizeTime"_s,
        u"FreeDownloadManagerHelperService"_s,
        u"GatherNetworkInfo"_s,
        u"IndexerAutomaticMaintenance"_s,
        u"KernelCeipTask"_s,
        u"Microsoft-Windows-DiskDiagnosticDataCollector"_s,
        u"Microsoft-Windows-DiskDiagnosticResolver"_s,
        u"MicrosoftEdgeUpdateTaskMachineCore"_s,
        u"MicrosoftEdgeUpdateTaskMachineUA"_s,
        u"Microsoft Compatibility Appraiser"_s,
        u"MsCtfMonitor"_s,
        u"NvTmRepOnLogon_{B2FE1952-0186-46C3-BAEC-A80AA35AC5B8}"_s,
        u"NvTmRep_{B2FE1952-0186-46C3-BAEC-A80AA35AC5B8}"_s,
        u"NvTmMon_{B2FE1952-0186-46C3-BAEC-A80AA35AC5B8}"_s,
        u"OfficeTelemetryAgentFallBack"_s,
        u"OfficeTelemetryAgentLogOn"_s,
        u"OfficeTelemetryAgentFallBack2016"_s,
        u"OfficeTelemetryAgentLogOn2016"_s,
        u"OneDrive Reporting Task"_s,
        u"OneDrive Standalone Update"_s,
        u"PcaPatchDbTask"_s,
        u"ProgramDataUpdater"_s,
        u"Proxy"_s,
        u"QueueReporting"_s,
        u"RegIdleBackup"_s,
        u"ResPriStaticDbSync"_s,
        u"ScheduledDefrag"_s,
        u"Sqm-Tasks"_s,
        u"SmartScreenSpecific"_s,
        u"SR"_s,
        u"StartCN"_s,
        u"StartDVR"_s,
        u"StartupAppTask"_s,
        u"SynchronizeTime"_s,
        u"Synchronize Language Settings"_s,
        u"Uploader"_s,
        u"UsbCeip"_s,
        u"WinSAT"_s,
        u"WsSwapAssessmentTask"_s,
    };
}

QStringList nonVitalTaskPrefixes()
{
    return {u"OneDrive"_s, u"MicrosoftEdgeUpdateTaskMachine"_s};
}
// clang-format on

int reasonsAgainstTask(const WorkThread &worker, const QString &name)
{
    const QStringList prefixes = nonVitalTaskPrefixes();
    const bool isNonVital = worker.nonVitalTasks.contains(name, Qt::CaseInsensitive)
                            || std::any_of(prefixes.cbegin(), prefixes.cend(), [&name](const QString &prefix) {
                                   return name.startsWith(prefix, Qt::CaseInsensitive);
                               });
    const auto features = std::count_if(keepFeatures.begin(), keepFeatures.end(), [&](const KeepFeature &feature) {
        return !feature.isKept(worker) && feature.hasTask(name);
    });
    return static_cast<int>(features) + (isNonVital ? 1 : 0);
}
