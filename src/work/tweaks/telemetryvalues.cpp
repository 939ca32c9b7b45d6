// SPDX-License-Identifier: GPL-3.0-or-later
// The values of the telemetry tweak.

#include "tweakvalues.h"

using namespace Qt::StringLiterals;

namespace {

/*
 * The order counts: AllowTelemetry below DataCollection stands here twice, in two spellings of its key, and the second
 * row decides. Eight keys end in a quote character, which is part of their name: they are keys of their own. Four
 * values are reset in such a key while they are applied in the one without the quote, so applying outlasts the reset.
 * The services in quoted keys go the other way round than all else.
 */
// clang-format off
constexpr auto appCompat32 = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Wow6432Node\\Policies\\Microsoft\\Windows\\AppCompat"_L1;
constexpr auto appCompat = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\AppCompat"_L1;
constexpr auto quotedAppCompat = "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\AppCompat\""_L1;
constexpr auto searchPolicy = "HKEY_LOCAL_MACHINE\\Software\\Policies\\Microsoft\\Windows\\Windows Search"_L1;
constexpr auto systemPolicy = "HKEY_LOCAL_MACHINE\\Software\\Policies\\Microsoft\\Windows\\System"_L1;
constexpr auto locationPolicy = "HKEY_LOCAL_MACHINE\\Software\\Policies\\Microsoft\\Windows\\LocationAndSensors"_L1;
constexpr auto dataPolicy = "HKEY_LOCAL_MACHINE\\Software\\Policies\\Microsoft\\Windows\\DataCollection"_L1;
constexpr auto contentDelivery = "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\ContentDeliveryManager"_L1;
constexpr auto feedback = "HKEY_CURRENT_USER\\Software\\Microsoft\\Siuf\\Rules"_L1;
constexpr auto inputPersonalization = "HKEY_CURRENT_USER\\Software\\Microsoft\\InputPersonalization"_L1;
constexpr auto edgeMain = "HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\AppContainer\\Storage\\microsoft.microsoftedge_8wekyb3d8bbwe\\MicrosoftEdge\\Main"_L1;
constexpr TweakValue values[] = {
    {7, appCompat32, "DisableEngine"_L1, 1, 0},
    {7, appCompat32, "DisablePCA"_L1, 1, 0},
    {7, appCompat32, "SbEnable"_L1, 0, 1},
    {7, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\System\""_L1, "PublishUserActivities"_L1, 0, 1},
    {7, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\SQMClient\\Windows\""_L1, "CEIPEnable"_L1, 0, 1},
    {7, appCompat, "AITEnable"_L1, 0, NotTouched()},
    {7, quotedAppCompat, "AITEnable"_L1, NotTouched(), 1},
    {7, appCompat, "DisableInventory"_L1, 1, NotTouched()},
    {7, quotedAppCompat, "DisableInventory"_L1, NotTouched(), 0},
    {7, appCompat, "DisablePCA"_L1, 1, NotTouched()},
    {7, quotedAppCompat, "DisablePCA"_L1, NotTouched(), 0},
    {7, appCompat, "DisableUAR"_L1, 1, NotTouched()},
    {7, quotedAppCompat, "DisableUAR"_L1, NotTouched(), 0},
    {7, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\DataCollection"_L1, "AllowTelemetry"_L1, Deleted(), 0},
    {7, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Device Metadata\""_L1, "PreventDeviceMetadataFromNetwork"_L1, 1, 0},
    {7, "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\WMI\\AutoLogger\\SQMLogger\""_L1, "Start"_L1, 0, 1},
    {7, "HKEY_LOCAL_MACHINE\\SYSTEM\\ControlSet001\\Services\\DiagTrack\""_L1, "Start"_L1, 2, 4},
    {7, "HKEY_LOCAL_MACHINE\\SYSTEM\\ControlSet001\\Services\\dmwappushservice\""_L1, "Start"_L1, 2, 4},
    {7, "HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\PolicyManager\\current\\device\\System\""_L1, "AllowExperimentation"_L1, 0, 1},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Policies\\Microsoft\\Windows\\CloudContent"_L1, "DisableWindowsSpotlightFeatures"_L1, 1, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Policies\\Microsoft\\Windows\\CloudContent"_L1, "DisableWindowsSpotlightFeatures"_L1, 1, Deleted()},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\WcmSvc\\wifinetworkmanager\\config\""_L1, "AutoConnectAllowedOEM"_L1, 0, 1},
    {7, "HKEY_CURRENT_USER\\Software\\Policies\\Microsoft\\Windows\\WindowsCopilot"_L1, "TurnOffWindowsCopilot"_L1, 1, Deleted()},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Policies\\Microsoft\\Windows\\WindowsCopilot"_L1, "TurnOffWindowsCopilot"_L1, 1, Deleted()},
    {7, "HKEY_LOCAL_MACHINE\\System\\ControlSet001\\Control\\WMI\\Autologger\\AutoLogger-Diagtrack-Listener"_L1, "Start"_L1, 0, 1},
    {7, searchPolicy, "EnableDynamicContentInWSB"_L1, 0, Deleted()},
    {7, searchPolicy, "AllowCortanaAboveLock"_L1, 0, Deleted()},
    {7, searchPolicy, "AllowSearchToUseLocation"_L1, 0, Deleted()},
    {7, searchPolicy, "ConnectedSearchUseWeb"_L1, 0, Deleted()},
    {7, searchPolicy, "DisableWebSearch"_L1, 1, Deleted()},
    {7, searchPolicy, "AllowCloudSearch"_L1, 0, Deleted()},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Policies\\Microsoft\\Windows\\TabletPC"_L1, "PreventHandwritingDataSharing"_L1, 1, Deleted()},
    {7, systemPolicy, "AllowClipboardHistory"_L1, 0, Deleted()},
    {7, systemPolicy, "AllowCrossDeviceClipboard"_L1, 0, Deleted()},
    {7, systemPolicy, "EnableActivityFeed"_L1, 0, Deleted()},
    {7, systemPolicy, "UploadUserActivities"_L1, 0, Deleted()},
    {7, systemPolicy, "PublishUserActivities"_L1, 0, Deleted()},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Policies\\Microsoft\\Windows\\Messaging"_L1, "AllowMessageSync"_L1, 0, Deleted()},
    {7, locationPolicy, "DisableLocationScripting"_L1, 1, Deleted()},
    {7, locationPolicy, "DisableWindowsLocationProvider"_L1, 1, Deleted()},
    {7, locationPolicy, "DisableLocation"_L1, 1, Deleted()},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Policies\\Microsoft\\Windows\\HandwritingErrorReports"_L1, "PreventHandwritingErrorReports"_L1, 1, Deleted()},
    {7, dataPolicy, "AllowTelemetry"_L1, 0, Deleted()},
    {7, dataPolicy, "LimitDiagnosticLogCollection"_L1, 0, Deleted()},
    {7, dataPolicy, "DisableOneSettingsDownloads"_L1, 1, Deleted()},
    {7, dataPolicy, "DoNotShowFeedbackNotifications"_L1, 1, Deleted()},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Policies\\Microsoft\\Speech"_L1, "AllowSpeechModelUpdate"_L1, 0, Deleted()},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\Windows Error Reporting"_L1, "Disabled"_L1, 1, Deleted()},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Privacy"_L1, "TailoredExperiencesWithDiagnosticDataEnabled"_L1, 0, Deleted()},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\Policies\\DataCollection"_L1, "AllowTelemetry"_L1, 0, 3},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Windows\\CurrentVersion\\AdvertisingInfo"_L1, "Enabled"_L1, 0, 1},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\SQMClient\\Windows"_L1, "CEIPEnable"_L1, 0, 1},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\Speech_OneCore\\Preferences"_L1, "ModelDownloadAllowed"_L1, 0, Deleted()},
    {7, "HKEY_LOCAL_MACHINE\\Software\\Microsoft\\PolicyManager\\current\\device\\Bluetooth"_L1, "AllowAdvertising"_L1, 0, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Windows Search"_L1, "CortanaConsent"_L1, 0, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\UserProfileEngagement"_L1, "ScoobeSystemSettingEnabled"_L1, 0, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\SettingSync\\Groups\\Windows"_L1, "Enabled"_L1, 0, 1},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\SettingSync\\Groups\\Personalization"_L1, "Enabled"_L1, 0, 1},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\SettingSync\\Groups\\Language"_L1, "Enabled"_L1, 0, 1},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\SettingSync\\Groups\\Credentials"_L1, "Enabled"_L1, 0, 1},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\SettingSync\\Groups\\BrowserSettings"_L1, "Enabled"_L1, 0, 1},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\SettingSync\\Groups\\Accessibility"_L1, "Enabled"_L1, 0, 1},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\SettingSync"_L1, "SyncPolicy"_L1, 5, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\SearchSettings"_L1, "IsDynamicSearchBoxEnabled"_L1, 0, 1},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Privacy"_L1, "TailoredExperiencesWithDiagnosticDataEnabled"_L1, 0, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Notifications\\Settings"_L1, "NOC_GLOBAL_SETTING_ALLOW_TOASTS_ABOVE_LOCK"_L1, 0, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced"_L1, "TrackProgs"_L1, 0, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\DeliveryOptimization"_L1, "SystemSettingsDownloadMode"_L1, 0, Deleted()},
    {7, contentDelivery, "SoftLandingEnabled"_L1, 0, 1},
    {7, contentDelivery, "RotatingLockScreenEnabled"_L1, 0, 1},
    {7, contentDelivery, "SystemPaneSuggestionsEnabled"_L1, 0, 1},
    {7, contentDelivery, "RotatingLockScreenOverlayEnabled"_L1, 0, 1},
    {7, contentDelivery, "SilentInstalledAppsEnabled"_L1, 0, 1},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\AdvertisingInfo"_L1, "Enabled"_L1, 0, Deleted()},
    {7, feedback, "NumberOfSIUFInPeriod"_L1, 0, Deleted()},
    {7, feedback, "PeriodInNanoSeconds"_L1, 0, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\MediaPlayer\\Preferences"_L1, "UsageTracking"_L1, 0, 1},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\InputPersonalization\\TrainedDataStore"_L1, "HarvestContacts"_L1, 0, Deleted()},
    {7, inputPersonalization, "RestrictImplicitInkCollection"_L1, 1, Deleted()},
    {7, inputPersonalization, "RestrictImplicitTextCollection"_L1, 1, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\input\\TIPC"_L1, "Enabled"_L1, 0, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Microsoft\\Clipboard"_L1, "EnableClipboardHistory"_L1, 0, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\AppContainer\\Storage\\microsoft.microsoftedge_8wekyb3d8bbwe\\MicrosoftEdge\\ServiceUI"_L1, "EnableCortana"_L1, 0, Deleted()},
    {7, edgeMain, "ShowSearchSuggestionsGlobal"_L1, 0, Deleted()},
    {7, edgeMain, "DoNotTrack"_L1, 0, Deleted()},
    {7, "HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\AppContainer\\Storage\\microsoft.microsoftedge_8wekyb3d8bbwe\\MicrosoftEdge\\FlipAhead"_L1, "FPEnabled"_L1, 0, Deleted()},
};
// clang-format on

} // namespace

std::span<const TweakValue> telemetryValues()
{
    return values;
}
