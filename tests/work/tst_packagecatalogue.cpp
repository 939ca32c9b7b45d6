// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of what the program knows about packaged applications.

#include "support/suite.h"
#include "work/keepfeatures.h"
#include "work/packages/packages.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// Written down a second time, so that a slip of the hand in one of the two shows.
const QString removable =
    u"Clipchamp.Clipchamp MicrosoftCorporationII.MicrosoftFamily MicrosoftCorporationII.QuickAssist MicrosoftTeams "
    "Microsoft.549981C3F5F10 MicrosoftWindows.CrossDevice MicrosoftWindows.Client.WebExperience "
    "Microsoft.Advertising.Xaml Microsoft.BingNews Microsoft.BingSearch Microsoft.BingWeather Microsoft.Copilot "
    "Microsoft.GetHelp Microsoft.Getstarted Microsoft.Microsoft3DViewer !Microsoft.MicrosoftEdge.Stable "
    "microsoft.microsoftskydrive Microsoft.MicrosoftOfficeHub Microsoft.MicrosoftSolitaireCollection "
    "Microsoft.MicrosoftStickyNotes Microsoft.MixedReality.Portal Microsoft.MSPaint Microsoft.Office.OneNote "
    "Microsoft.OneDrive Microsoft.OneDriveSync Microsoft.OutlookForWindows Microsoft.People "
    "Microsoft.PowerAutomateDesktop Microsoft.PowerToys.PowerRenameContextMenu "
    "Microsoft.PowerToys.ImageResizerContextMenu Microsoft.PowerToys.FileLocksmithContextMenu Microsoft.RemoteDesktop "
    "Microsoft.ScreenSketch Microsoft.SkypeApp Microsoft.StartExperiencesApp Microsoft.Todos "
    "Microsoft.WebMediaExtensions Microsoft.WidgetsPlatformRuntime Microsoft.WindowsAlarms Microsoft.WindowsCalculator "
    "Microsoft.WindowsCamera microsoft.windowscommunicationsapps Microsoft.WindowsFeedbackHub Microsoft.WindowsMaps "
    "Microsoft.WindowsSoundRecorder Microsoft.Windows.DevHome Microsoft.YourPhone Microsoft.ZuneVideo "
    "Microsoft.ZuneMusic MSTeams SpotifyAB.SpotifyMusic"_s;

} // namespace

class TestPackageCatalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void removablePackages();
    void packagesOfFeatures();
    void commentIsFoundByTheNameInIt_data();
    void commentIsFoundByTheNameInIt();
    void otherPackagesHaveNoComment();
    void oneDrivesRowHasItsName();
};

void TestPackageCatalogue::removablePackages()
{
    QCOMPARE(removablePackageNames(), removable.split(u' '));
    QCOMPARE(removablePackageNames().size(), 51);
}

void TestPackageCatalogue::packagesOfFeatures()
{
    QCOMPARE(keepFeatures[7].packages, (QStringList{u"Microsoft.XboxGamingOverlay"_s, u"Microsoft.XboxGameOverlay"_s,
                                                    u"Microsoft.XboxSpeechToTextOverlay"_s}));
    QCOMPARE(keepFeatures[3].packages,
             (QStringList{u"Microsoft.XboxApp"_s, u"Microsoft.GamingApp"_s, u"Microsoft.GamingServices"_s,
                          u"Microsoft.Xbox.TCUI"_s, u"Microsoft.XboxIdentityProvider"_s}));
    QCOMPARE(keepFeatures[8].packages,
             (QStringList{u"Microsoft.AV1VideoExtension"_s, u"Microsoft.VP9VideoExtensions"_s,
                          u"Microsoft.AVCEncoderVideoExtension"_s, u"Microsoft.HEVCVideoExtension"_s,
                          u"Microsoft.MPEG2VideoExtension"_s}));
}

void TestPackageCatalogue::commentIsFoundByTheNameInIt_data()
{
    addColumns<QString, QString>("name", "comment");
    const auto row = [](const QString &name, const QString &comment) {
        QTest::addRow("%s", qPrintable(name)) << name << comment;
    };
    row(u"Microsoft.549981C3F5F10"_s, u"Intelligent personal assistant"_s);
    row(u"Microsoft.XboxApp"_s, u"Old Xbox App, no longer supported!"_s);
    row(u"microsoft.windowscommunicationsapps"_s, u"Mail & Calendar"_s);
    row(u"Microsoft.windowscommunicationsapps"_s, u"Mail & Calendar"_s);
    row(u"MicrosoftWindows.CrossDevice"_s, u"Mobile device synchronization"_s);
    row(u"Clipchamp.Clipchamp"_s, u"Microsoft video editor"_s);
    row(u"Microsoft.ScreenSketch"_s, u"Screenshot tool"_s);
    row(u"MicrosoftWindows.Client.WebExperience"_s, u"Widget app"_s);
    row(u"Microsoft.YourPhone"_s, u"Phone link"_s);
    row(u"Microsoft.Windows.DevHome"_s, u"Development applet"_s);
    row(u"Microsoft.WebMediaExtensions"_s, u"Media extensions for Edge and Windows Media Player"_s);
    row(u"MICROSOFT.XBOXAPP"_s, u"Old Xbox App, no longer supported!"_s);
    row(u"Vendor.Microsoft.YourPhone.Beta"_s, u"Phone link"_s);
    row(u"Microsoft.YourPhone.Microsoft.XboxApp"_s, u"Old Xbox App, no longer supported!"_s); // the first in the table
}

void TestPackageCatalogue::commentIsFoundByTheNameInIt()
{
    QFETCH(const QString, name);
    QFETCH(const QString, comment);
    QCOMPARE(packageComment(name), comment);
}

void TestPackageCatalogue::otherPackagesHaveNoComment()
{
    const QStringList commented{u"Clipchamp.Clipchamp"_s,
                                u"Microsoft.549981C3F5F10"_s,
                                u"MicrosoftWindows.CrossDevice"_s,
                                u"MicrosoftWindows.Client.WebExperience"_s,
                                u"Microsoft.ScreenSketch"_s,
                                u"Microsoft.WebMediaExtensions"_s,
                                u"microsoft.windowscommunicationsapps"_s,
                                u"Microsoft.Windows.DevHome"_s,
                                u"Microsoft.YourPhone"_s};
    for (const QString &name : removablePackageNames())
        QCOMPARE(packageComment(name).isEmpty(), !commented.contains(name));
    QCOMPARE(packageComment(QString()), QString());
    QCOMPARE(packageComment(u"Microsoft.Xbox"_s), QString());
}

void TestPackageCatalogue::oneDrivesRowHasItsName()
{
    QCOMPARE(oneDriveName, u"MS OneDrive"_s);
}

KESTRUNE_SUITE(TestPackageCatalogue)
#include "tst_packagecatalogue.moc"
