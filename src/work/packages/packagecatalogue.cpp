// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about packaged applications.

#include "packages.h"

#include "work/workthread.h"

using namespace Qt::StringLiterals;

// clang-format off
QStringList removablePackageNames()
{
    return {
        u"Clipchamp.Clipchamp"_s,
        u"MicrosoftCorporationII.MicrosoftFamily"_s,
        u"MicrosoftCorporationII.QuickAssist"_s,
        u"MicrosoftTeams"_s,
        u"Microsoft.549981C3F5F10"_s,
        u"MicrosoftWindows.CrossDevice"_s,
        u"MicrosoftWindows.Client.WebExperience"_s,
        u"Microsoft.Advertising.Xaml"_s,
        u"Microsoft.BingNews"_s,
        u"Microsoft.BingSearch"_s,
        u"Microsoft.BingWeather"_s,
        u"Microsoft.Copilot"_s,
        u"Microsoft.GetHelp"_s,
        u"Microsoft.Getstarted"_s,
        u"Microsoft.Microsoft3DViewer"_s,
        u"!Microsoft.MicrosoftEdge.Stable"_s,
        u"microsoft.microsoftskydrive"_s,
        u"Microsoft.MicrosoftOfficeHub"_s,
        u"Microsoft.MicrosoftSolitaireCollection"_s,
        u"Microsoft.MicrosoftStickyNotes"_s,
        u"Microsoft.MixedReality.Portal"_s,
        u"Microsoft.MSPaint"_s,
        u"Microsoft.Office.OneNote"_s,
        u"Microsoft.OneDrive"_s,
        u"Microsoft.OneDriveSync"_s,
        u"Microsoft.OutlookForWindows"_s,
        u"Microsoft.People"_s,
        u"Microsoft.PowerAutomateDesktop"_s,
        u"Microsoft.PowerToys.PowerRenameContextMenu"_s,
        u"Microsoft.PowerToys.ImageResizerContextMenu"_s,
        u"Microsoft.PowerToys.FileLocksmithContextMenu"_s,
        u"Microsoft.RemoteDesktop"_s,
        u"Microsoft.ScreenSketch"_s,
        u"Microsoft.SkypeApp"_s,
        u"Microsoft.StartExperiencesApp"_s,
        u"Microsoft.Todos"_s,
        u"Microsoft.WebMediaExtensions"_s,
        u"Microsoft.WidgetsPlatformRuntime"_s,
        u"Microsoft.WindowsAlarms"_s,
        u"Microsoft.WindowsCalculator"_s,
        u"Microsoft.WindowsCamera"_s,
        u"microsoft.windowscommunicationsapps"_s,
        u"Microsoft.WindowsFeedbackHub"_s,
        u"Microsoft.WindowsMaps"_s,
        u"Microsoft.WindowsSoundRecorder"_s,
        u"Microsoft.Windows.DevHome"_s,
        u"Microsoft.YourPhone"_s,
        u"Microsoft.ZuneVideo"_s,
        u"Microsoft.ZuneMusic"_s,
        u"MSTeams"_s,
        u"SpotifyAB.SpotifyMusic"_s,
    };
}

QString packageComment(const QString &familyName)
{
    struct Comment
    {
        QLatin1StringView name;
        const char *text;
    };
    static constexpr Comment comments[] = {
        {"Microsoft.549981C3F5F10"_L1,               QT_TRANSLATE_NOOP("WorkThread", "Intelligent personal assistant")},
        {"Microsoft.XboxApp"_L1,                     QT_TRANSLATE_NOOP("WorkThread", "Old Xbox App, no longer supported!")},
        {"Microsoft.windowscommunicationsapps"_L1,   QT_TRANSLATE_NOOP("WorkThread", "Mail & Calendar")},
        {"MicrosoftWindows.CrossDevice"_L1,          QT_TRANSLATE_NOOP("WorkThread", "Mobile device synchronization")},
        {"Clipchamp.Clipchamp"_L1,                   QT_TRANSLATE_NOOP("WorkThread", "Microsoft video editor")},
        {"Microsoft.ScreenSketch"_L1,                QT_TRANSLATE_NOOP("WorkThread", "Screenshot tool")},
        {"MicrosoftWindows.Client.WebExperience"_L1, QT_TRANSLATE_NOOP("WorkThread", "Widget app")},
        {"Microsoft.YourPhone"_L1,                   QT_TRANSLATE_NOOP("WorkThread", "Phone link")},
        {"Microsoft.Windows.DevHome"_L1,             QT_TRANSLATE_NOOP("WorkThread", "Development applet")},
        {"Microsoft.WebMediaExtensions"_L1,
         QT_TRANSLATE_NOOP("WorkThread", "Media extensions for Edge and Windows Media Player")},
    };
    for (const Comment &comment : comments) {
        if (familyName.contains(comment.name, Qt::CaseInsensitive))
            return WorkThread::tr(comment.text);
    }
    return {};
}
// clang-format on
