// SPDX-License-Identifier: GPL-3.0-or-later
// The Services page at work: disabling, the assistant, enabling, restoring, and start modes set by hand. Stock tools
// are real processes on a machine of the test.

#include "support/boxes.h"
#include "support/menus.h"
#include "support/suite.h"
#include "support/windowdriver.h"

#include "work/command.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFile>
#include <QFileInfo>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

const QString recordsKey = settingsKey + u"\\SVC"_s;

QString keyOf(const QString &service)
{
    return servicesKey + u'\\' + service;
}

int startMode(const TestMachine &machine, const QString &service)
{
    return machine.read(keyOf(service), u"Start"_s).toInt();
}

/** The machine's state as a whole: all that an action could change. */
QString stateOf(const TestMachine &machine)
{
    QString text;
    RegistryStore &registry = machine.machine().registry();
    for (const QString &key : {servicesKey, settingsKey}) {
        if (const auto id = registry.find(key)) {
            QStringList paths = registry.valuePaths(*id);
            paths.sort();
            for (const QString &path : paths) {
                const qsizetype cut = path.lastIndexOf(u'\\');
                const auto parent = cut < 0 ? *id : registry.find(*id, path.left(cut)).value();
                const auto value = registry.value(parent, path.mid(cut + 1));
                text += path + u'=' + QString::fromLatin1(value.value().data.toHex()) + u'\n';
            }
        }
    }
    const QMap<QString, bool> states = machine.machine().runStates();
    for (auto state = states.begin(); state != states.end(); ++state)
        text += state.key() + (state.value() ? u" runs\n"_s : u" is stopped\n"_s);
    return text;
}

/** What sc was asked, without the listings, as one text a run. */
QStringList scRuns(const TestMachine &machine)
{
    QStringList runs;
    for (const LoggedCommand &command : machine.commands()) {
        if (command.program == "sc"_L1 && command.arguments.value(0) != "query"_L1)
            runs.append(command.arguments.join(u'|'));
    }
    return runs;
}

void check(const WindowDriver &driver, const QStringList &services)
{
    for (const QString &service : services)
        driver.cell(service)->setCheckState(Qt::Checked);
}

QString backupFile(const TestMachine &machine)
{
    return machine.platform().programFolder() + u"/backup_svc/StartMode.reg"_s;
}

/** Shows the page without its listing, so that there is no backup of the start modes yet. */
void openWithoutListing(const WindowDriver &driver)
{
    driver.get<QTabWidget>(u"tabWidget"_s)->setCurrentIndex(1);
}

/** Takes the place of the system's handler of files and keeps what it was to open. */
class FileHandler : public QObject
{
    Q_OBJECT

public:
    FileHandler() { QDesktopServices::setUrlHandler(u"file"_s, this, "open"); }
    ~FileHandler() override { QDesktopServices::unsetUrlHandler(u"file"_s); }

    QList<QUrl> opened;

public Q_SLOTS:
    void open(const QUrl &address) { opened.append(address); }
};

} // namespace

class TestServiceChange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Disabling
    void disableWithNothingCheckedIsSilent_data();
    void disableWithNothingCheckedIsSilent();
    void disableStopsAndRecordsTheCheckedServices();
    void disableOnWindows10WritesTheRegistryAlone();
    void disableTellsEachStep();
    void refusedDisableLeavesNoRecord();
    void disableReadsItsOwnTextToKnowTheJob_data();
    void disableReadsItsOwnTextToKnowTheJob();
    void checkedRowsNamesComeFromTheToolTip();

    // Enabling in the view of disabled services
    void enableStartsTheCheckedServicesAndForgetsThem();
    void enableWithNothingCheckedIsSilent();

    // The assistant
    void assistantChecksTheNonVitalServicesAndNoOthers();
    void assistantFindsNothing_data();
    void assistantFindsNothing();
    void assistantChecksAGreyedRow();
    void assistantPassesOverARowWhoseModeCellTellsFour();
    void assistantTakesServicesOfAFeatureGivenUp_data();
    void assistantTakesServicesOfAFeatureGivenUp();
    void featureIsGivenUpAtTheNextClickOnly();
    void assistantAppendsAgainAtEachClick();
    void assistantAsksBeforeItDisables();
    void assistantsYesDisables();
    void assistantDoesNothingInTheViewOfDisabledServices();
    void assistantsYesWhileAJobRunsDisablesNothing();

    // Restoring
    void restoreWithoutBackupRestoresTheRecordsWithoutAQuestion();
    void restoreWithoutBackupOrRecordsFinishesAsUsual();
    void restoreWithBackupAsks();
    void restoresCancelChangesNothing_data();
    void restoresCancelChangesNothing();
    void restoresNoRestoresTheRecordsAlone();
    void restoresYesHandsTheFileToTheSystemAndChangesNothingItself();
    void restoresYesImportsTheStartModes();

    // Start modes by hand
    void startModeIsSetBySc_data();
    void startModeIsSetBySc();
    void startModeWithoutSelectionRunsNothing();
    void startModeWithoutRightsOffersThem_data();
    void startModeWithoutRightsOffersThem();
    void startModeThatIsRefusedIsPassedOver();
    void startModeIsSetWhileAJobRunsButThePageStays();
    void startModeWithAHangingToolGoesOn();

    // Names
    void strangeNamesAreHandedOverAsTheyAre_data();
    void strangeNamesAreHandedOverAsTheyAre();
    void nameThatLooksLikeMarkupIsItself_data();
    void nameThatLooksLikeMarkupIsItself();
    void nameIsCutAtItsFirstColon();
};

void TestServiceChange::disableWithNothingCheckedIsSilent_data()
{
    QTest::addColumn<bool>("elevated");
    QTest::newRow("with rights") << true;
    QTest::newRow("without rights") << false;
}

void TestServiceChange::disableWithNothingCheckedIsSilent()
{
    QFETCH(const bool, elevated);
    MachineOptions options;
    options.elevated = elevated;
    TestMachine machine(TestMachine::Windows::Eleven, options);
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true});
    const ServicesPage driver;
    const QString status = driver.status();
    driver.worker().servicesToChange = {u"before"_s};
    const Boxes noBox;
    driver.click(u"btnSvcDisable"_s);
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(driver.status(), status);
    QCOMPARE(driver.worker().servicesToChange, QStringList(u"before"_s));
    QCOMPARE(driver.worker().job, int(JobSvcMakeList));
    QCOMPARE(machine.commands().size(), 1);
}

void TestServiceChange::disableStopsAndRecordsTheCheckedServices()
{
    TestMachine machine;
    for (const QString &name : {u"alpha"_s, u"Beta"_s, u"Gamma"_s})
        machine.add({.name = name, .start = 2, .running = true});
    const ServicesPage driver;
    driver.clickCheckBox(u"Beta"_s);
    driver.clickCheckBox(u"alpha"_s);
    driver.click(u"btnSvcDisable"_s);
    QCOMPARE(driver.worker().job, int(JobSvcDisable));
    QVERIFY(driver.waitForList());

    QCOMPARE(scRuns(machine), QStringList({u"stop|alpha"_s, u"config|alpha|start=disabled"_s, u"stop|Beta"_s,
                                           u"config|Beta|start=disabled"_s}));
    QCOMPARE(startMode(machine, u"alpha"_s), 4);
    QCOMPARE(startMode(machine, u"Beta"_s), 4);
    QCOMPARE(startMode(machine, u"Gamma"_s), 2);
    QCOMPARE(machine.machine().isRunning(u"Beta"_s), std::optional(false));
    QCOMPARE(machine.machine().isRunning(u"Gamma"_s), std::optional(true));
    QCOMPARE(machine.names(recordsKey), QStringList({u"Beta"_s, u"alpha"_s}));
    QCOMPARE(machine.read(recordsKey, u"Beta"_s), QVariant(1));
    // The page was listed anew.
    QCOMPARE(driver.listed(), QStringList(u"Gamma"_s));
    QCOMPARE(driver.status(), u"Services: 3  |  started: 1  |  stopped: 2  |  disabled: 2  "_s);
    QVERIFY(driver.bar()->isHidden());
}

void TestServiceChange::disableOnWindows10WritesTheRegistryAlone()
{
    TestMachine machine(TestMachine::Windows::Ten);
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true});
    const ServicesPage driver;
    driver.clickCheckBox(u"Alpha"_s);
    driver.click(u"btnSvcDisable"_s);
    QVERIFY(driver.waitForList());
    QCOMPARE(scRuns(machine), QStringList());
    QCOMPARE(startMode(machine, u"Alpha"_s), 4);
    QCOMPARE(machine.read(recordsKey, u"Alpha"_s), QVariant(1));
    // It goes on running until the next start of Windows.
    QCOMPARE(driver.listed(), QStringList(u"Alpha"_s));
    QCOMPARE(driver.cell(u"Alpha"_s, 1)->text(), u"Disabled"_s);
    QCOMPARE(driver.status(), u"Services: 1  |  started: 1  |  stopped: 0  |  disabled: 1  "_s);
}

void TestServiceChange::disableTellsEachStep()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true});
    machine.add({.name = u"Beta"_s, .start = 2, .running = true});
    const ServicesPage driver;
    check(driver, {u"Alpha"_s, u"Beta"_s});
    QStringList steps;
    // Connected after the window, so that each line has been read when it comes here.
    connect(&driver.worker(), &WorkThread::valueChanged, this, [&](const QString &line) {
        if (driver.worker().job == JobSvcDisable)
            steps.append(line + u" -> "_s + driver.status() + (driver.bar()->isHidden() ? u", no bar"_s : u", bar"_s));
    });
    driver.click(u"btnSvcDisable"_s);
    QVERIFY(driver.waitForList());
    QCOMPARE(steps, QStringList({
                        u"pgr:max:2 -> Stop service:  2, no bar"_s,
                        u"pgr:value:1 -> Stop service:  1, bar"_s,
                        u"Alpha -> Stop service:  Alpha, bar"_s,
                        u"pgr:value:2 -> Stop service:  2, bar"_s,
                        u"Beta -> Stop service:  Beta, bar"_s,
                    }));
    QCOMPARE(driver.bar()->maximum(), 2);
    QCOMPARE(driver.bar()->value(), 2);
}

void TestServiceChange::refusedDisableLeavesNoRecord()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true});
    ToolFault denied;
    denied.exitCode = 5;
    machine.machine().setFault(u"sc config"_s, denied);
    const ServicesPage driver;
    driver.clickCheckBox(u"Alpha"_s);
    driver.click(u"btnSvcDisable"_s);
    QVERIFY(driver.waitForList());
    QCOMPARE(startMode(machine, u"Alpha"_s), 2);
    QCOMPARE(machine.names(recordsKey), QStringList());
    QCOMPARE(machine.machine().isRunning(u"Alpha"_s), std::optional(false));
    QCOMPARE(driver.listed(), QStringList());
}

void TestServiceChange::disableReadsItsOwnTextToKnowTheJob_data()
{
    addColumns<QString, int>("text", "job");
    QTest::newRow("disable") << u"DISABLE checked services"_s << int(JobSvcDisable);
    QTest::newRow("enable") << u"ENABLE checked services"_s << int(JobSvcEnable);
    // No job has the number 6, so that nothing happens but the start.
    QTest::newRow("neither") << u"Something else"_s << 6;
}

void TestServiceChange::disableReadsItsOwnTextToKnowTheJob()
{
    QFETCH(const QString, text);
    QFETCH(const int, job);
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 3, .running = true});
    const ServicesPage driver;
    driver.clickCheckBox(u"Alpha"_s);
    driver.button(u"btnSvcDisable"_s)->setText(text);
    driver.worker().job = 6;
    QSignalSpy started(&driver.worker(), &QThread::started);
    driver.click(u"btnSvcDisable"_s);
    QCOMPARE(driver.worker().job, job);
    QCOMPARE(driver.worker().servicesToChange, QStringList(u"Alpha"_s));
    if (job == 6) {
        QTRY_COMPARE(started.size(), 1);
        QTRY_VERIFY(!driver.worker().isRunning());
    } else {
        QVERIFY(driver.waitForList());
    }
    QCOMPARE(startMode(machine, u"Alpha"_s), job == JobSvcDisable ? 4 : job == JobSvcEnable ? 2 : 3);
}

void TestServiceChange::checkedRowsNamesComeFromTheToolTip()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true, .displayName = u"Shown: to people"_s});
    const ServicesPage driver;
    QCOMPARE(driver.cell(u"Alpha"_s)->text(), u"Shown: to people"_s);
    driver.clickCheckBox(u"Alpha"_s);
    driver.click(u"btnSvcDisable"_s);
    QCOMPARE(driver.worker().servicesToChange, QStringList(u"Alpha"_s));
    QVERIFY(driver.waitForList());
    QCOMPARE(startMode(machine, u"Alpha"_s), 4);
}

void TestServiceChange::enableStartsTheCheckedServicesAndForgetsThem()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 4});
    machine.add({.name = u"Beta"_s, .start = 4});
    machine.write(recordsKey, u"Alpha"_s, 1);
    machine.write(recordsKey, u"Beta"_s, 1);
    const ServicesPage driver;
    driver.click(u"btnSvcViewDisabled"_s);
    driver.clickCheckBox(u"Beta"_s);
    QCOMPARE(driver.checked(), QStringList(u"Beta"_s));
    driver.click(u"btnSvcDisable"_s);
    QCOMPARE(driver.worker().job, int(JobSvcEnable));
    QVERIFY(driver.waitForList());
    QCOMPARE(scRuns(machine), QStringList({u"config|Beta|start=auto"_s, u"start|Beta"_s}));
    QCOMPARE(startMode(machine, u"Beta"_s), 2);
    QCOMPARE(startMode(machine, u"Alpha"_s), 4);
    QCOMPARE(machine.machine().isRunning(u"Beta"_s), std::optional(true));
    QCOMPARE(machine.names(recordsKey), QStringList(u"Alpha"_s));
    // The refresh at the end brings the view of started services back.
    QCOMPARE(driver.listed(), QStringList(u"Beta"_s));
    QCOMPARE(driver.button(u"btnSvcDisable"_s)->text(), u"DISABLE checked services"_s);
}

void TestServiceChange::enableWithNothingCheckedIsSilent()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 4});
    machine.write(recordsKey, u"Alpha"_s, 1);
    const ServicesPage driver;
    driver.click(u"btnSvcViewDisabled"_s);
    const Boxes noBox;
    driver.click(u"btnSvcDisable"_s);
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(scRuns(machine), QStringList());
}

void TestServiceChange::assistantChecksTheNonVitalServicesAndNoOthers()
{
    TestMachine machine;
    for (const QString &name : {u"DiagTrack"_s, u"wsearch"_s, u"Spooler"_s, u"Alpha"_s, u"cbdhsvc_4711"_s})
        machine.add({.name = name, .start = 2, .running = true});
    machine.add({.name = u"SysMain"_s, .start = 2});
    const ServicesPage driver;
    driver.clickCheckBox(u"Alpha"_s);
    Boxes boxes({QMessageBox::No});
    driver.click(u"btnSvcAssist"_s);
    // Names are compared without regard to case; what the user had checked is taken back; stopped ones aren't there.
    QCOMPARE(driver.checked(), QStringList({u"DiagTrack"_s, u"wsearch"_s}));
}

void TestServiceChange::assistantFindsNothing_data()
{
    disableWithNothingCheckedIsSilent_data();
}

void TestServiceChange::assistantFindsNothing()
{
    QFETCH(const bool, elevated);
    MachineOptions options;
    options.elevated = elevated;
    TestMachine machine(TestMachine::Windows::Eleven, options);
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true});
    const ServicesPage driver;
    driver.clickCheckBox(u"Alpha"_s);
    const Boxes noBox;
    driver.click(u"btnSvcAssist"_s);
    QCOMPARE(driver.status(), u"Assistant - no services to deactivate"_s);
    QCOMPARE(driver.checked(), QStringList());
    QVERIFY(!driver.worker().isRunning());
}

void TestServiceChange::assistantChecksAGreyedRow()
{
    TestMachine machine;
    machine.add({.name = u"cbdhsvc_5cbba"_s, .type = 224, .start = 2, .running = true});
    const ServicesPage driver;
    QVERIFY(!driver.cell(u"cbdhsvc_5cbba"_s)->flags().testFlag(Qt::ItemIsEnabled));
    Boxes boxes({QMessageBox::Yes});
    driver.click(u"btnSvcAssist"_s);
    QCOMPARE(driver.worker().servicesToChange, QStringList(u"cbdhsvc_5cbba"_s));
    QVERIFY(driver.waitForList());
    QCOMPARE(startMode(machine, u"cbdhsvc_5cbba"_s), 4);
}

void TestServiceChange::assistantPassesOverARowWhoseModeCellTellsFour()
{
    TestMachine machine;
    machine.add({.name = u"DiagTrack"_s, .start = 4, .running = true});
    machine.add({.name = u"WSearch"_s, .start = 4, .running = true});
    const ServicesPage driver;
    driver.cell(u"DiagTrack"_s, 1)->setToolTip(u"4"_s);
    Boxes boxes({QMessageBox::No});
    driver.click(u"btnSvcAssist"_s);
    // A disabled service that runs is checked all the same: its tool tip holds name and description, never a mode.
    QCOMPARE(driver.checked(), QStringList(u"WSearch"_s));
}

void TestServiceChange::assistantTakesServicesOfAFeatureGivenUp_data()
{
    addColumns<QString, QStringList>("setting", "services");
    QTest::newRow("printer") << u"Keep_1"_s << QStringList{u"Spooler"_s};
    QTest::newRow("Bluetooth audio") << u"Keep_2"_s << QStringList{u"BTAGService"_s, u"BthAvctpSvc"_s};
    QTest::newRow("files sharing") << u"Keep_3"_s
                                   << QStringList{u"FDResPub"_s, u"LanmanServer"_s, u"LanmanWorkstation"_s,
                                                  u"lmhosts"_s};
    QTest::newRow("Xbox app") << u"Keep_4"_s << QStringList{u"XblAuthManager"_s};
    QTest::newRow("UPnP") << u"Keep_5"_s << QStringList{u"SSDPSRV"_s};
    QTest::newRow("proxy and VPN") << u"Keep_6"_s << QStringList{u"RasMan"_s, u"SstpSvc"_s};
    QTest::newRow("NFC") << u"Keep_7"_s << QStringList{u"SEMgrSvc"_s};
    QTest::newRow("game bar") << u"Keep_8"_s << QStringList();
    QTest::newRow("codecs") << u"Keep_9"_s << QStringList();
}

void TestServiceChange::assistantTakesServicesOfAFeatureGivenUp()
{
    QFETCH(const QString, setting);
    QFETCH(const QStringList, services);
    TestMachine machine;
    for (const QString &name :
         {u"Spooler"_s, u"BthAvctpSvc"_s, u"BTAGService"_s, u"LanmanWorkstation"_s, u"LanmanServer"_s, u"lmhosts"_s,
          u"FDResPub"_s, u"XblAuthManager"_s, u"SSDPSRV"_s, u"RasMan"_s, u"SstpSvc"_s, u"SEMgrSvc"_s})
        machine.add({.name = name, .start = 2, .running = true});
    machine.write(settingsKey, setting, 0);
    const ServicesPage driver;
    Boxes boxes;
    if (!services.isEmpty())
        boxes.answer(QMessageBox::No);
    driver.click(u"btnSvcAssist"_s);
    QStringList checked = driver.checked();
    checked.sort();
    QCOMPARE(checked, services);
}

void TestServiceChange::featureIsGivenUpAtTheNextClickOnly()
{
    TestMachine machine;
    machine.add({.name = u"Spooler"_s, .start = 2, .running = true});
    const ServicesPage driver;
    driver.click(u"btnSvcAssist"_s);
    QCOMPARE(driver.checked(), QStringList());
    driver.worker().keepPrinter = 0;
    QVERIFY(!driver.worker().nonVitalServices.contains(u"Spooler"_s));
    QCOMPARE(driver.checked(), QStringList());
    Boxes boxes({QMessageBox::No});
    driver.click(u"btnSvcAssist"_s);
    QCOMPARE(driver.checked(), QStringList(u"Spooler"_s));
}

void TestServiceChange::assistantAppendsAgainAtEachClick()
{
    TestMachine machine;
    machine.add({.name = u"Spooler"_s, .start = 2, .running = true});
    const ServicesPage driver;
    driver.worker().keepPrinter = 0;
    const QStringList before = driver.worker().nonVitalServices;
    QCOMPARE(before.size(), 31);
    Boxes boxes;
    for (int click = 1; click <= 2; ++click) {
        boxes.answer(QMessageBox::No);
        driver.click(u"btnSvcAssist"_s);
        QCOMPARE(driver.worker().nonVitalServices, before + QStringList(click, u"Spooler"_s));
        QCOMPARE(driver.checked(), QStringList(u"Spooler"_s));
    }
    // Keeping the feature again doesn't take its services out of the list.
    driver.worker().keepPrinter = 2;
    boxes.answer(QMessageBox::No);
    driver.click(u"btnSvcAssist"_s);
    QCOMPARE(driver.checked(), QStringList(u"Spooler"_s));
}

void TestServiceChange::assistantAsksBeforeItDisables()
{
    TestMachine machine;
    machine.add({.name = u"DiagTrack"_s, .start = 2, .running = true});
    const ServicesPage driver;
    const QString before = stateOf(machine);
    const QString status = driver.status();
    for (const auto answer : {QMessageBox::No, QMessageBox::NoButton}) {
        Boxes boxes({answer});
        driver.click(u"btnSvcAssist"_s);
        QCOMPARE(boxes.shown().size(), 1);
        const ShownBox box = boxes.shown().at(0);
        QCOMPARE(box.text, u"Disable checked services"_s);
        QCOMPARE(box.informativeText, u"Are you sure to disable all checked services?"_s);
        QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.buttonTexts, QStringList({u"Yes"_s, u"No"_s}));
        QCOMPARE(box.defaultButtonText, u"No"_s);
        QCOMPARE(box.icon, QMessageBox::Information);
        QVERIFY(box.modal);
        QVERIFY(!box.hasParent);
        QVERIFY(!driver.worker().isRunning());
        QCOMPARE(driver.checked(), QStringList(u"DiagTrack"_s));
        QCOMPARE(driver.status(), status);
    }
    QCOMPARE(stateOf(machine), before);
}

void TestServiceChange::assistantsYesDisables()
{
    TestMachine machine;
    for (const QString &name : {u"DiagTrack"_s, u"WSearch"_s, u"Alpha"_s})
        machine.add({.name = name, .start = 2, .running = true});
    const ServicesPage driver;
    Boxes boxes({QMessageBox::Yes});
    driver.click(u"btnSvcAssist"_s);
    QCOMPARE(driver.worker().servicesToChange, QStringList({u"DiagTrack"_s, u"WSearch"_s}));
    QVERIFY(driver.waitForList());
    QCOMPARE(machine.names(recordsKey), QStringList({u"DiagTrack"_s, u"WSearch"_s}));
    QCOMPARE(startMode(machine, u"DiagTrack"_s), 4);
    QCOMPARE(startMode(machine, u"Alpha"_s), 2);
    QCOMPARE(driver.listed(), QStringList(u"Alpha"_s));
}

void TestServiceChange::assistantDoesNothingInTheViewOfDisabledServices()
{
    TestMachine machine;
    machine.add({.name = u"DiagTrack"_s, .start = 4});
    machine.write(recordsKey, u"DiagTrack"_s, 1);
    const ServicesPage driver;
    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(driver.listed(), QStringList(u"DiagTrack"_s));
    driver.worker().keepPrinter = 0;
    const QString status = driver.status();
    const Boxes noBox;
    driver.click(u"btnSvcAssist"_s);
    QCOMPARE(driver.checked(), QStringList());
    QCOMPARE(driver.status(), status);
    QCOMPARE(driver.worker().nonVitalServices.size(), 31);
    QVERIFY(!driver.worker().isRunning());
}

void TestServiceChange::assistantsYesWhileAJobRunsDisablesNothing()
{
    TestMachine machine(TestMachine::Windows::Eleven, endlessPauses());
    machine.add({.name = u"DiagTrack"_s, .start = 2, .running = true});
    const ServicesPage driver;
    driver.worker().startJob(JobWinSxsSize);
    Boxes boxes({QMessageBox::Yes});
    driver.click(u"btnSvcAssist"_s);
    QCOMPARE(driver.worker().job, int(JobWinSxsSize));
    QCOMPARE(driver.worker().servicesToChange, QStringList());
}

void TestServiceChange::restoreWithoutBackupRestoresTheRecordsWithoutAQuestion()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 4});
    machine.add({.name = u"Beta"_s, .start = 4});
    machine.add({.name = u"Gamma"_s, .start = 4});
    machine.write(recordsKey, u"Beta"_s, 1);
    // What stands after the name doesn't matter here.
    machine.write(recordsKey, u"Alpha"_s, 0);
    const WindowDriver driver;
    openWithoutListing(driver);
    driver.worker().servicesToChange = {u"before"_s};
    const Boxes noBox;
    driver.click(u"btnSvcRestore"_s);
    QCOMPARE(driver.worker().job, int(JobSvcEnable));
    QCOMPARE(driver.worker().servicesToChange, QStringList({u"Alpha"_s, u"Beta"_s}));
    QCOMPARE(driver.status(), QString());
    QVERIFY(driver.waitForList());
    QCOMPARE(startMode(machine, u"Alpha"_s), 2);
    QCOMPARE(startMode(machine, u"Beta"_s), 2);
    QCOMPARE(startMode(machine, u"Gamma"_s), 4);
    QCOMPARE(machine.names(recordsKey), QStringList());
    QCOMPARE(driver.listed(), QStringList({u"Alpha"_s, u"Beta"_s}));
}

void TestServiceChange::restoreWithoutBackupOrRecordsFinishesAsUsual()
{
    TestMachine machine;
    const WindowDriver driver;
    openWithoutListing(driver);
    // Holds the page back, so that the finished text stays to be seen.
    driver.worker().analyzeRunning = 1;
    driver.click(u"btnSvcRestore"_s);
    QTRY_COMPARE(driver.status(), u"Enable checked services finished  "_s);
    QCOMPARE(driver.worker().servicesToChange, QStringList());
    QCOMPARE(driver.bar()->maximum(), 0);
    QCOMPARE(scRuns(machine), QStringList());
}

void TestServiceChange::restoreWithBackupAsks()
{
    TestMachine machine;
    const ServicesPage driver;
    QVERIFY(QFile::exists(backupFile(machine)));
    Boxes boxes({QMessageBox::Cancel});
    driver.click(u"btnSvcRestore"_s);
    QCOMPARE(boxes.shown().size(), 1);
    const ShownBox box = boxes.shown().at(0);
    QCOMPARE(box.text, u"Backup file exists"_s);
    QCOMPARE(box.informativeText,
             u"Do you want to restore start mode option of all services?\r\n\r\n"
             "If you click No (recommended),\r\nthen restore only the services you have disabled"_s);
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
    QCOMPARE(box.buttonTexts, QStringList({u"Yes"_s, u"No"_s, u"Cancel"_s}));
    QCOMPARE(box.defaultButtonText, u"No"_s);
    QCOMPARE(box.icon, QMessageBox::Information);
    QVERIFY2(box.width >= 400, qPrintable(QString::number(box.width)));
    QCOMPARE(box.minimumWidth, 400);
    QVERIFY(box.modal);
    QVERIFY(!box.hasParent);
}

void TestServiceChange::restoresCancelChangesNothing_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("Cancel") << QMessageBox::Cancel;
    QTest::newRow("Escape") << QMessageBox::NoButton;
}

void TestServiceChange::restoresCancelChangesNothing()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 4});
    machine.write(recordsKey, u"Alpha"_s, 1);
    const ServicesPage driver;
    const QString status = driver.status();
    const QString before = stateOf(machine);
    const FileHandler handler;
    Boxes boxes({answer});
    driver.click(u"btnSvcRestore"_s);
    QCOMPARE(driver.status(), status);
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(driver.worker().job, int(JobSvcMakeList));
    QVERIFY(handler.opened.isEmpty());
    QCOMPARE(stateOf(machine), before);
}

void TestServiceChange::restoresNoRestoresTheRecordsAlone()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 4});
    machine.add({.name = u"Gamma"_s, .start = 4});
    machine.write(recordsKey, u"Alpha"_s, 1);
    const ServicesPage driver;
    const FileHandler handler;
    Boxes boxes({QMessageBox::No});
    driver.click(u"btnSvcRestore"_s);
    QCOMPARE(driver.status(), u"Restore services finished"_s);
    QCOMPARE(driver.worker().job, int(JobSvcEnable));
    QVERIFY(driver.waitForList());
    QVERIFY(handler.opened.isEmpty());
    QCOMPARE(startMode(machine, u"Alpha"_s), 2);
    QCOMPARE(startMode(machine, u"Gamma"_s), 4);
    QCOMPARE(machine.names(recordsKey), QStringList());
}

void TestServiceChange::restoresYesHandsTheFileToTheSystemAndChangesNothingItself()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 4});
    machine.write(recordsKey, u"Alpha"_s, 1);
    const ServicesPage driver;
    const QString before = stateOf(machine);
    const FileHandler handler;
    Boxes boxes({QMessageBox::Yes});
    driver.click(u"btnSvcRestore"_s);
    QCOMPARE(driver.status(), u"Restore services finished"_s);
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(driver.worker().job, int(JobSvcMakeList));
    QCOMPARE(handler.opened.size(), 1);
    QVERIFY(handler.opened.at(0).isLocalFile());
    QCOMPARE(QFileInfo(handler.opened.at(0).toLocalFile()), QFileInfo(backupFile(machine)));
    QCOMPARE(stateOf(machine), before);
}

void TestServiceChange::restoresYesImportsTheStartModes()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 3});
    machine.add({.name = u"Own"_s, .type = 16, .start = 3});
    const ServicesPage driver;
    machine.write(keyOf(u"Alpha"_s), u"Start"_s, 4);
    machine.write(keyOf(u"Own"_s), u"Start"_s, 4);
    machine.write(recordsKey, u"Alpha"_s, 1);
    Boxes boxes({QMessageBox::Yes});
    driver.click(u"btnSvcRestore"_s);
    // The backup covers shared processes only, and the record isn't looked at.
    QTRY_COMPARE(startMode(machine, u"Alpha"_s), 3);
    QCOMPARE(startMode(machine, u"Own"_s), 4);
    QCOMPARE(machine.names(recordsKey), QStringList(u"Alpha"_s));
}

void TestServiceChange::startModeIsSetBySc_data()
{
    addColumns<QString, QString, int, int>("action", "argument", "before", "after");
    QTest::newRow("manual") << u"Manual start"_s << u"start=demand"_s << 2 << 3;
    QTest::newRow("automatic") << u"Automatic start"_s << u"start=auto"_s << 3 << 2;
}

void TestServiceChange::startModeIsSetBySc()
{
    QFETCH(const QString, action);
    QFETCH(const QString, argument);
    QFETCH(const int, before);
    QFETCH(const int, after);
    TestMachine machine;
    for (const QString &name : {u"Alpha"_s, u"Beta"_s, u"Gamma"_s})
        machine.add({.name = name, .start = before, .running = true});
    const ServicesPage driver;
    const QRect row = driver.services()->visualItemRect(driver.cell(u"Beta"_s, 1));
    QTest::mouseClick(driver.services()->viewport(), Qt::LeftButton, {}, row.center());
    // A check is no selection.
    driver.cell(u"Gamma"_s)->setCheckState(Qt::Checked);

    Menus menus({action});
    Q_EMIT driver.services()->customContextMenuRequested(QPoint());
    QCOMPARE(scRuns(machine), QStringList(u"config|Beta|"_s + argument));
    QCOMPARE(startMode(machine, u"Beta"_s), after);
    QCOMPARE(startMode(machine, u"Alpha"_s), before);
    QVERIFY(machine.names(recordsKey).isEmpty());
    QVERIFY(driver.waitForList());
    QCOMPARE(driver.cell(u"Beta"_s, 1)->text(), after == 3 ? u"Manual"_s : u"Auto"_s);
}

void TestServiceChange::startModeWithoutSelectionRunsNothing()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true});
    const ServicesPage driver;
    driver.call("setServiceManualStart");
    driver.call("setServiceAutomaticStart");
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(machine.commands().size(), 1);
}

void TestServiceChange::startModeWithoutRightsOffersThem_data()
{
    QTest::addColumn<QString>("action");
    QTest::newRow("manual") << u"Manual start"_s;
    QTest::newRow("automatic") << u"Automatic start"_s;
}

void TestServiceChange::startModeWithoutRightsOffersThem()
{
    QFETCH(const QString, action);
    TestMachine machine(TestMachine::Windows::Eleven, notElevated());
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true});
    const ServicesPage driver;
    driver.services()->setCurrentCell(0, 0);
    Menus menus({action});
    Boxes boxes({QMessageBox::No});
    Q_EMIT driver.services()->customContextMenuRequested(QPoint());
    QCOMPARE(boxes.shown().at(0).text, u"You must launch this app with Admin rights!"_s);
    QCOMPARE(scRuns(machine), QStringList());
    QVERIFY(!driver.worker().isRunning());
}

void TestServiceChange::startModeThatIsRefusedIsPassedOver()
{
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true});
    ToolFault denied;
    denied.exitCode = 5;
    machine.machine().setFault(u"sc config"_s, denied);
    const ServicesPage driver;
    driver.services()->setCurrentCell(0, 0);
    const Boxes noBox;
    driver.call("setServiceManualStart");
    QCOMPARE(scRuns(machine), QStringList(u"config|Alpha|start=demand"_s));
    // Refreshed as after a success.
    QCOMPARE(driver.status(), QString());
    QVERIFY(driver.waitForList());
    QCOMPARE(driver.cell(u"Alpha"_s, 1)->text(), u"Auto"_s);
}

void TestServiceChange::startModeIsSetWhileAJobRunsButThePageStays()
{
    TestMachine machine(TestMachine::Windows::Eleven, endlessPauses());
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true});
    const ServicesPage driver;
    driver.services()->setCurrentCell(0, 0);
    const QString status = driver.status();
    driver.worker().startJob(JobWinSxsSize);
    driver.call("setServiceManualStart");
    QCOMPARE(startMode(machine, u"Alpha"_s), 3);
    QVERIFY(driver.worker().isRunning());
    QCOMPARE(driver.worker().job, int(JobWinSxsSize));
    QCOMPARE(driver.status(), status);
    QCOMPARE(driver.cell(u"Alpha"_s, 1)->text(), u"Auto"_s);
}

void TestServiceChange::startModeWithAHangingToolGoesOn()
{
    const int limit = Command::timeLimit;
    const auto putBack = qScopeGuard([limit] { Command::timeLimit = limit; });
    QCOMPARE(limit, 30000);
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .start = 2, .running = true});
    ToolFault hanging;
    hanging.hang = true;
    machine.machine().setFault(u"sc config"_s, hanging);
    const ServicesPage driver;
    driver.services()->setCurrentCell(0, 0);
    Command::timeLimit = 200;
    driver.call("setServiceManualStart");
    Command::timeLimit = limit;
    QVERIFY(driver.waitForList());
    QCOMPARE(driver.listed(), QStringList(u"Alpha"_s));
    QCOMPARE(startMode(machine, u"Alpha"_s), 2);
}

void TestServiceChange::strangeNamesAreHandedOverAsTheyAre_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("blanks") << u"My own service"_s;
    QTest::newRow("quotes") << u"Say \"hello\" now"_s;
    QTest::newRow("apostrophe") << u"Alex's"_s;
    QTest::newRow("angle brackets") << u"<b>bold"_s;
    QTest::newRow("ampersand") << u"A & B"_s;
    QTest::newRow("per cent") << u"100%1 %windir%"_s;
    QTest::newRow("letters beyond Latin") << u"Dienst ÄÖß"_s;
}

void TestServiceChange::strangeNamesAreHandedOverAsTheyAre()
{
    QFETCH(const QString, name);
    TestMachine machine;
    machine.add({.name = name, .start = 2, .running = true});
    const ServicesPage driver;
    QCOMPARE(driver.listed(), QStringList(name));
    driver.clickCheckBox(name);
    driver.click(u"btnSvcDisable"_s);
    QVERIFY(driver.waitForList());
    QCOMPARE(scRuns(machine), QStringList({u"stop|"_s + name, u"config|"_s + name + u"|start=disabled"_s}));
    QCOMPARE(startMode(machine, name), 4);
    QCOMPARE(machine.names(recordsKey), QStringList(name));
    QCOMPARE(driver.listed(), QStringList());

    driver.click(u"btnSvcViewDisabled"_s);
    QCOMPARE(driver.listed(), QStringList(name));
    driver.clickCheckBox(name);
    driver.click(u"btnSvcDisable"_s);
    QVERIFY(driver.waitForList());
    QCOMPARE(startMode(machine, name), 2);
    QCOMPARE(machine.names(recordsKey), QStringList());
    QCOMPARE(driver.listed(), QStringList(name));
}

void TestServiceChange::nameThatLooksLikeMarkupIsItself_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("markup") << u"A & <img src=x>"_s;
    QTest::newRow("an entity") << u"A&lt;B"_s;
    QTest::newRow("both") << u"<B>A&lt;B"_s;
}

void TestServiceChange::nameThatLooksLikeMarkupIsItself()
{
    QFETCH(const QString, name);
    TestMachine machine;
    machine.add({.name = name, .start = 2, .running = true});
    const ServicesPage driver;
    driver.services()->item(0, 0)->setCheckState(Qt::Checked);
    driver.click(u"btnSvcDisable"_s);
    QCOMPARE(driver.worker().servicesToChange, QStringList(name));
    QVERIFY(driver.waitForList());
    QCOMPARE(startMode(machine, name), 4);
    driver.services()->setCurrentCell(0, 0);
    driver.call("setServiceManualStart");
    QCOMPARE(scRuns(machine), QStringList({u"stop|"_s + name, u"config|"_s + name + u"|start=disabled"_s}));
}

void TestServiceChange::nameIsCutAtItsFirstColon()
{
    TestMachine machine;
    machine.add({.name = u"Left:Right:End"_s, .start = 2, .running = true});
    const ServicesPage driver;
    QCOMPARE(driver.services()->item(0, 0)->toolTip(), u"Left:Right:End:<br><br>no description"_s);
    driver.services()->item(0, 0)->setCheckState(Qt::Checked);
    driver.click(u"btnSvcDisable"_s);
    QCOMPARE(driver.worker().servicesToChange, QStringList(u"Left"_s));
    QVERIFY(driver.waitForList());
    // There is no service of the name that is left, so nothing changes.
    QCOMPARE(scRuns(machine), QStringList({u"stop|Left"_s, u"config|Left|start=disabled"_s}));
    QCOMPARE(startMode(machine, u"Left:Right:End"_s), 2);
    QCOMPARE(machine.names(recordsKey), QStringList());

    driver.services()->setCurrentCell(0, 0);
    driver.call("setServiceManualStart");
    QCOMPARE(scRuns(machine).constLast(), u"config|Left|start=demand"_s);
    QVERIFY(driver.waitForList());
}

KESTRUNE_WINDOW_SUITE(TestServiceChange)
#include "tst_servicechange.moc"
