// SPDX-License-Identifier: GPL-3.0-or-later
// The Features page as it is shown: what is stored, what the machine makes of its boxes, and the WinSxS folder.

#include "support/boxes.h"
#include "support/menus.h"
#include "support/suite.h"
#include "support/windowdriver.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int featuresPage = 5;
const QString tweakKey = settingsKey + u"\\Tweak"_s;

QCheckBox *box(const WindowDriver &driver, const QString &name)
{
    return driver.get<QCheckBox>(name);
}

QComboBox *priorities(const WindowDriver &driver)
{
    return driver.get<QComboBox>(u"cbWin32PrioritySeparation"_s);
}

QStringList checked(const WindowDriver &driver)
{
    QStringList names;
    for (const TweakBox &each : tweakBoxes()) {
        if (box(driver, each.name)->isChecked())
            names.append(each.name);
    }
    return names;
}

QStringList disabled(const WindowDriver &driver)
{
    QStringList names;
    for (const TweakBox &each : tweakBoxes()) {
        if (!box(driver, each.name)->isEnabled())
            names.append(each.name);
    }
    return names;
}

/** Puts a file of this size on the drive that takes no room. */
QString addSparseFile(TestMachine &machine, const QString &windowsPath, qint64 size)
{
    const QString path = machine.addFile(windowsPath);
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite) || !file.resize(size))
        qFatal("can't make %s that large", qUtf8Printable(path));
    return path;
}

void setAdapters(TestMachine &machine, const QStringList &captions)
{
    QList<QJsonObject> adapters;
    for (const QString &caption : captions)
        adapters.append({{u"Caption"_s, caption}});
    machine.machine().setWmiInstances(u"Win32_VideoController"_s, adapters);
}

void chooseInMenu(const WindowDriver &driver, const QString &action)
{
    Menus menus;
    menus.choose(action);
    Q_EMIT driver.get<QWidget>(u"scrollArea"_s)->customContextMenuRequested(QPoint());
}

void sendSize(const WindowDriver &driver, const QString &line)
{
    driver.winSxsWorker().job = JobWinSxsSize;
    driver.window().onWorkThreadValueWinSxs(line);
}

const QString sxsText = u"Clean WinSxS folder with Microsoft DISM tool"_s;

} // namespace

class TestFeaturesPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The boxes
    void everyBoxOfThePageHasItsTweakAndNoOtherPageHasOne();
    void boxesStartUncheckedButForTheGameMode();
    void gameModeIsCheckedBeforeTheFirstShowingOnly();
    void showingLoadsWhatIsStored();
    void showingDropsWhatWasNotApplied();
    void storedEntryThatDoesNotExistSelectsNone();
    void checkAllAndUncheckAllOfTheMenu_data();
    void checkAllAndUncheckAllOfTheMenu();

    // What the machine makes of them
    void windows10DisablesTwoBoxesAndRenamesOne_data();
    void windows10DisablesTwoBoxesAndRenamesOne();
    void searchProgramIsRenamedAtEachShowing();
    void boxesStayDisabledAwayFromThePage();
    void storedCheckOfADisabledBoxStaysShown();
    void hibernationShowsItsGain_data();
    void hibernationShowsItsGain();
    void gainStaysWhenTheFileHasGone();
    void amdTweakIsForAmdCards_data();
    void amdTweakIsForAmdCards();
    void builtInMachinesShowTheirOwn_data();
    void builtInMachinesShowTheirOwn();

    // The WinSxS folder
    void sizeIsAskedForUnlessTheSettingIsNought_data();
    void sizeIsAskedForUnlessTheSettingIsNought();
    void sizeComesOntoTheButton();
    void lineOfTheSizeMeans_data();
    void lineOfTheSizeMeans();
    void linesOfOtherJobsAreDropped();
    void dismOpensAConsole();
};

void TestFeaturesPage::everyBoxOfThePageHasItsTweakAndNoOtherPageHasOne()
{
    const WindowOnPc driver;
    QSet<QString> expected;
    for (const TweakBox &each : tweakBoxes())
        expected.insert(each.name);
    QSet<QString> onPage;
    for (const QCheckBox *each : driver.get<QWidget>(u"scrollAreaWidgetContents"_s)->findChildren<QCheckBox *>())
        onPage.insert(each->objectName());
    QCOMPARE(onPage, expected);

    QSet<QString> elsewhere;
    for (const QCheckBox *each : driver.get<QWidget>(u"tabWidget"_s)->findChildren<QCheckBox *>())
        elsewhere.insert(each->objectName());
    elsewhere.subtract(onPage);
    QCOMPARE(elsewhere, (QSet<QString>{u"chkAutomatizerProgram"_s, u"chkAutomatizerTweak"_s, u"chkOptionsCheckUpdate"_s,
                                       u"chkOptionsStartAsAdmin"_s, u"chkOptionsGetWinSxsSize"_s,
                                       u"chkOptionsMonitor"_s, u"chkOptionsMonitorThreadAndHandle"_s}));
}

void TestFeaturesPage::boxesStartUncheckedButForTheGameMode()
{
    const WindowOnPc driver;
    QCOMPARE(checked(driver), QStringList{u"chkGaming3"_s});
    QCOMPARE(priorities(driver)->count(), 8);
    QCOMPARE(priorities(driver)->currentIndex(), 3);
}

void TestFeaturesPage::gameModeIsCheckedBeforeTheFirstShowingOnly()
{
    TestMachine machine;
    const WindowDriver driver;
    driver.click(u"btnMenuTweak"_s);
    QCOMPARE(driver.window().currentPage(), featuresPage);
    QCOMPARE(checked(driver), QStringList());
    QCOMPARE(priorities(driver)->currentIndex(), 3);
    // Showing stores nothing.
    QCOMPARE(machine.names(tweakKey), QStringList());
}

void TestFeaturesPage::showingLoadsWhatIsStored()
{
    TestMachine machine;
    machine.write(tweakKey, u"chkSsd8"_s, u"true"_s);
    machine.write(tweakKey, u"chkGaming11"_s, u"true"_s);
    machine.write(tweakKey, u"chkWindows12"_s, 1);
    machine.write(tweakKey, u"chkGaming3"_s, u"false"_s);
    machine.write(tweakKey, u"chkOptionsMonitor"_s, u"true"_s);
    machine.write(tweakKey, u"cbWin32PrioritySeparation"_s, 6);
    const WindowDriver driver;
    driver.window().showPage(featuresPage);
    QCOMPARE(checked(driver), (QStringList{u"chkSsd8"_s, u"chkGaming11"_s, u"chkWindows12"_s}));
    QCOMPARE(priorities(driver)->currentIndex(), 6);
    QVERIFY(!box(driver, u"chkOptionsMonitor"_s)->isChecked());
}

void TestFeaturesPage::showingDropsWhatWasNotApplied()
{
    TestMachine machine;
    machine.write(tweakKey, u"chkSsd1"_s, u"true"_s);
    const WindowDriver driver;
    driver.window().showPage(featuresPage);
    box(driver, u"chkSsd1"_s)->setChecked(false);
    box(driver, u"chkSsd2"_s)->setChecked(true);
    priorities(driver)->setCurrentIndex(0);
    driver.window().showPage(featuresPage);
    QCOMPARE(checked(driver), QStringList{u"chkSsd1"_s});
    QCOMPARE(priorities(driver)->currentIndex(), 3);
}

void TestFeaturesPage::storedEntryThatDoesNotExistSelectsNone()
{
    TestMachine machine;
    machine.write(tweakKey, u"cbWin32PrioritySeparation"_s, 8);
    const WindowDriver driver;
    driver.window().showPage(featuresPage);
    QCOMPARE(priorities(driver)->currentIndex(), -1);
}

void TestFeaturesPage::checkAllAndUncheckAllOfTheMenu_data()
{
    addColumns<TestMachine::Windows, QStringList>("windows", "passedOver");
    QTest::newRow("Windows 11") << TestMachine::Windows::Eleven << QStringList();
    QTest::newRow("Windows 10") << TestMachine::Windows::Ten << QStringList{u"chkGaming8"_s, u"chkWindows5"_s};
}

void TestFeaturesPage::checkAllAndUncheckAllOfTheMenu()
{
    QFETCH(const TestMachine::Windows, windows);
    QFETCH(const QStringList, passedOver);
    TestMachine machine(windows);
    setAdapters(machine, {u"Intel(R) UHD Graphics"_s});
    machine.write(tweakKey, u"chkSsd3"_s, u"true"_s);
    const WindowDriver driver;
    driver.window().showPage(featuresPage);
    QVERIFY(disabled(driver).contains(u"chkGaming14"_s));

    chooseInMenu(driver, u"Check all"_s);
    QStringList expected;
    for (const TweakBox &each : tweakBoxes()) {
        if (!passedOver.contains(each.name))
            expected.append(each.name);
    }
    QCOMPARE(checked(driver), expected);

    for (const QString &name : passedOver)
        box(driver, name)->setChecked(true);
    chooseInMenu(driver, u"Uncheck all"_s);
    QCOMPARE(checked(driver), QStringList());
}

void TestFeaturesPage::windows10DisablesTwoBoxesAndRenamesOne_data()
{
    addColumns<QString, QStringList, QString>("winName", "off", "search");
    const QStringList both{u"chkGaming8"_s, u"chkWindows5"_s};
    const QString renamed =
        u"Disable SearchApp.exe  (process for searching files. If disabled, advanced search may malfunction)"_s;
    const QString plain =
        u"Disable SearchHost.exe  (process for searching files. If disabled, advanced search may malfunction)"_s;
    QTest::newRow("Windows 10") << u"Windows 10 Home"_s << both << renamed;
    QTest::newRow("Windows 11") << u"Windows 11 Home"_s << QStringList() << plain;
    QTest::newRow("unknown") << u"unknown"_s << QStringList() << plain;
    QTest::newRow("10 elsewhere in the name") << u"Windows Server 2010"_s << both << renamed;
}

void TestFeaturesPage::windows10DisablesTwoBoxesAndRenamesOne()
{
    QFETCH(const QString, winName);
    const WindowOnPc driver;
    driver.worker().winName = winName;
    QCOMPARE(disabled(driver), QStringList());
    for (int showing = 0; showing < 2; ++showing) {
        driver.window().showPage(featuresPage);
        QTEST(disabled(driver), "off");
        QTEST(box(driver, u"chkWindows10"_s)->text(), "search");
    }
}

void TestFeaturesPage::searchProgramIsRenamedAtEachShowing()
{
    // A change of language brings the form's text back.
    TestMachine machine(TestMachine::Windows::Ten);
    const WindowDriver driver;
    driver.window().showPage(featuresPage);
    box(driver, u"chkWindows10"_s)->setText(u"SearchHost.exe, SEARCHHOST.EXE"_s);
    driver.window().showPage(featuresPage);
    QCOMPARE(box(driver, u"chkWindows10"_s)->text(), u"SearchApp.exe, SEARCHHOST.EXE"_s);
}

void TestFeaturesPage::boxesStayDisabledAwayFromThePage()
{
    TestMachine machine(TestMachine::Windows::Ten);
    const WindowDriver driver;
    driver.window().showPage(featuresPage);
    driver.window().showPage(8);
    QCOMPARE(disabled(driver), (QStringList{u"chkGaming8"_s, u"chkWindows5"_s}));
}

void TestFeaturesPage::storedCheckOfADisabledBoxStaysShown()
{
    TestMachine machine(TestMachine::Windows::Ten);
    machine.write(tweakKey, u"chkGaming8"_s, u"true"_s);
    const WindowDriver driver;
    driver.window().showPage(featuresPage);
    QCOMPARE(checked(driver), QStringList{u"chkGaming8"_s});
    QVERIFY(!box(driver, u"chkGaming8"_s)->isEnabled());
    for (const TweakBox &each : tweakBoxes())
        QVERIFY(!box(driver, each.name)->isHidden());
}

void TestFeaturesPage::hibernationShowsItsGain_data()
{
    constexpr qint64 gibibyte = 1024LL * 1024 * 1024;
    addColumns<qint64, QString>("size", "gain");
    QTest::newRow("cut, not rounded") << qint64(6400000000) << u"5.9"_s; // 5.96046
    QTest::newRow("one decimal") << 6 * gibibyte + gibibyte / 2 << u"6.5"_s;
    QTest::newRow("no decimals") << 3 * gibibyte << u"3"_s;
    QTest::newRow("two digits without decimals") << 16 * gibibyte << u"16"_s;
    QTest::newRow("two digits") << qint64(13716160512) << u"12.7"_s;
    QTest::newRow("three digits") << 128 * gibibyte + gibibyte / 4 << u"128.2"_s;
    QTest::newRow("less than one") << gibibyte / 8 << u"0.1"_s;
    QTest::newRow("empty") << qint64(0) << u"0"_s;
    QTest::newRow("too small for the plain form") << qint64(10000) << u"9.3"_s; // 9.31323e-06
}

void TestFeaturesPage::hibernationShowsItsGain()
{
    QFETCH(const qint64, size);
    QFETCH(const QString, gain);
    TestMachine machine;
    addSparseFile(machine, u"C:\\hiberfil.sys"_s, size);
    const WindowDriver driver;
    QCOMPARE(box(driver, u"chkSsd7"_s)->text(), u"Disable hibernation mode"_s);
    driver.window().showPage(featuresPage);
    QCOMPARE(box(driver, u"chkSsd7"_s)->text(),
             u"Disable hibernation mode  (gain "_s + gain + u" GB of storage space)"_s);
}

void TestFeaturesPage::gainStaysWhenTheFileHasGone()
{
    TestMachine machine;
    const WindowDriver driver;
    driver.window().showPage(featuresPage);
    QCOMPARE(box(driver, u"chkSsd7"_s)->text(), u"Disable hibernation mode"_s);
    const QString path = addSparseFile(machine, u"C:\\hiberfil.sys"_s, 5LL * 1024 * 1024 * 1024);
    driver.window().showPage(featuresPage);
    const QString withGain = u"Disable hibernation mode  (gain 5 GB of storage space)"_s;
    QCOMPARE(box(driver, u"chkSsd7"_s)->text(), withGain);
    QVERIFY(QFile::remove(path));
    driver.window().showPage(featuresPage);
    QCOMPARE(box(driver, u"chkSsd7"_s)->text(), withGain);
}

void TestFeaturesPage::amdTweakIsForAmdCards_data()
{
    addColumns<QStringList, bool>("captions", "enabled");
    QTest::newRow("AMD") << QStringList{u"AMD Radeon RX 7600"_s} << true;
    QTest::newRow("in small letters") << QStringList{u"amd radeon"_s} << true;
    QTest::newRow("inside a word") << QStringList{u"Radeon (xAMDx)"_s} << true;
    QTest::newRow("another") << QStringList{u"NVIDIA GeForce RTX 4060"_s} << false;
    QTest::newRow("AMD second") << QStringList{u"Intel(R) UHD Graphics"_s, u"AMD Radeon RX 7600"_s} << false;
    QTest::newRow("AMD first") << QStringList{u"AMD Radeon RX 7600"_s, u"NVIDIA GeForce"_s} << true;
    QTest::newRow("without a name") << QStringList{QString()} << false;
    QTest::newRow("without a name, then AMD") << QStringList{QString(), u"AMD Radeon"_s} << false;
    QTest::newRow("no adapter") << QStringList() << true;
}

void TestFeaturesPage::amdTweakIsForAmdCards()
{
    QFETCH(const QStringList, captions);
    QFETCH(const bool, enabled);
    TestMachine machine;
    setAdapters(machine, captions);
    const WindowDriver driver;
    QCOMPARE(disabled(driver), enabled ? QStringList() : QStringList{u"chkGaming14"_s});
    driver.window().showPage(featuresPage);
    QCOMPARE(box(driver, u"chkGaming14"_s)->isEnabled(), enabled);
}

void TestFeaturesPage::builtInMachinesShowTheirOwn_data()
{
    addColumns<QString, QStringList, QString>("builtIn", "off", "gain");
    QTest::newRow("Windows 11, another card") << u"windows11"_s << QStringList{u"chkGaming14"_s} << u"5.9"_s;
    QTest::newRow("Windows 10, AMD") << u"windows10"_s << QStringList{u"chkGaming8"_s, u"chkWindows5"_s} << u"12.7"_s;
}

void TestFeaturesPage::builtInMachinesShowTheirOwn()
{
    QFETCH(const QString, builtIn);
    QFETCH(const QString, gain);
    TestMachine machine(builtIn);
    const WindowDriver driver;
    driver.window().showPage(featuresPage);
    QTEST(disabled(driver), "off");
    QCOMPARE(box(driver, u"chkSsd7"_s)->text(),
             u"Disable hibernation mode  (gain "_s + gain + u" GB of storage space)"_s);
    QTRY_VERIFY_WITH_TIMEOUT(driver.button(u"btnSsd8"_s)->text().startsWith(sxsText + u"  (current size: "_s),
                             patience);
    QTRY_COMPARE(driver.status(), QString());
}

void TestFeaturesPage::sizeIsAskedForUnlessTheSettingIsNought_data()
{
    addColumns<QVariant, bool>("setting", "asked");
    QTest::newRow("not set") << QVariant() << true;
    QTest::newRow("1") << QVariant(1) << true;
    QTest::newRow("0") << QVariant(0) << false;
    QTest::newRow("another number") << QVariant(2) << true;
}

void TestFeaturesPage::sizeIsAskedForUnlessTheSettingIsNought()
{
    QFETCH(const QVariant, setting);
    QFETCH(const bool, asked);
    TestMachine machine;
    if (setting.isValid())
        machine.write(settingsKey, u"GetWinSxsSize"_s, setting);
    const WindowDriver driver;
    QSignalSpy started(&driver.winSxsWorker(), &QThread::started);
    driver.window().showPage(featuresPage);
    QTRY_VERIFY(!driver.winSxsWorker().isRunning());
    QCOMPARE(started.size(), asked ? 1 : 0);
    QCOMPARE(driver.winSxsWorker().job, asked ? int(JobWinSxsSize) : 0);
    QVERIFY(!driver.worker().isRunning());
}

void TestFeaturesPage::sizeComesOntoTheButton()
{
    TestMachine machine;
    addSparseFile(machine, u"C:\\Windows\\WinSxS\\a\\one.dll"_s, 2000000000);
    addSparseFile(machine, u"C:\\Windows\\WinSxS\\b\\two.dll"_s, 2000000000);
    const WindowDriver driver;
    QStringList statuses;
    QObject::connect(&driver.winSxsWorker(), &WorkThread::valueChanged, &driver.window(),
                     [&] { statuses.append(driver.status()); });
    QCOMPARE(driver.button(u"btnSsd8"_s)->text(), sxsText);
    driver.window().showPage(featuresPage);
    QTRY_COMPARE(statuses.size(), 4);
    QCOMPARE(statuses,
             (QStringList{u"Status: Getting WinSxS folder size..."_s, u"Status: Getting WinSxS folder size..."_s,
                          u"Status: Getting WinSxS folder size finished!"_s, QString()}));
    // 3.72529, cut.
    QCOMPARE(driver.button(u"btnSsd8"_s)->text(), sxsText + u"  (current size: 3.7 GB)"_s);
}

void TestFeaturesPage::lineOfTheSizeMeans_data()
{
    addColumns<QString, QString>("line", "status");
    QTest::addColumn<QString>("size"); // empty: the button keeps its text
    const auto row = [](const char *title, const QString &line, const QString &status, const QString &size) {
        QTest::newRow(title) << line << status << size;
    };
    const QString before = u"before"_s;
    row("going on", u"any text..."_s, u"any text..."_s, {});
    row("finished", u"any text!"_s, u"any text!"_s, {});
    row("number with an end", u"3.7!"_s, u"3.7!"_s, {});
    row("empty", {}, {}, {});
    row("without a point", u"12"_s, before, {});
    row("words without a point", u"nothing"_s, before, {});
    row("size", u"6.83152"_s, before, u"6.8"_s);
    row("large size", u"123.456"_s, before, u"123.4"_s);
    row("too small", u"0.04"_s, before, {});
    row("still too small", u"0.0999999"_s, before, {});
    row("just enough", u"0.1"_s, before, u"0.1"_s);
    row("second point", u"1.2.3"_s, before, u"1.2"_s);
    row("point at the end", u"4."_s, before, u"4."_s);
}

void TestFeaturesPage::lineOfTheSizeMeans()
{
    QFETCH(const QString, line);
    QFETCH(const QString, size);
    const WindowOnPc driver;
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"before"_s);
    sendSize(driver, line);
    QTEST(driver.status(), "status");
    QCOMPARE(driver.button(u"btnSsd8"_s)->text(),
             size.isEmpty() ? sxsText : sxsText + u"  (current size: "_s + size + u" GB)"_s);
}

void TestFeaturesPage::linesOfOtherJobsAreDropped()
{
    const WindowOnPc driver;
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"before"_s);
    for (const int job : {int(JobSvcMakeList), int(JobTaskStopOrStart), 6, int(JobMonitor)}) {
        driver.winSxsWorker().job = job;
        for (const char *line : {"wait...", "done!", "", "6.83152"})
            driver.window().onWorkThreadValueWinSxs(QString::fromLatin1(line));
    }
    QCOMPARE(driver.status(), u"before"_s);
    QCOMPARE(driver.button(u"btnSsd8"_s)->text(), sxsText);
}

void TestFeaturesPage::dismOpensAConsole()
{
    TestMachine machine;
    machine.write(settingsKey, u"GetWinSxsSize"_s, 0);
    const WindowDriver driver;
    driver.window().showPage(featuresPage);
    const Boxes noBox;
    driver.click(u"btnSsd8"_s);
    QCOMPARE(machine.shellStarts().size(), 1);
    const ShellStart start = machine.shellStarts().at(0);
    QCOMPARE(start.verb, u"open"_s);
    QCOMPARE(start.file, u"C:\\Windows\\System32\\cmd.exe"_s);
    QCOMPARE(start.parameters, u"/k dism /online /Cleanup-Image /StartComponentCleanup"_s);
    QCOMPARE(driver.status(), QString());
}

KESTRUNE_WINDOW_SUITE(TestFeaturesPage)
#include "tst_featurespage.moc"
