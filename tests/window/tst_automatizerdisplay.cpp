// SPDX-License-Identifier: GPL-3.0-or-later
// What the window makes of the Automatizer's lines: log, status, bar, and the closing steps of Analyze, Optimize and
// Restore with their question.

#include "support/automatizerview.h"
#include "support/boxes.h"
#include "support/markingtranslator.h"
#include "support/suite.h"

#include <QApplication>
#include <QScopeGuard>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString tweakRecordsKey = settingsKey + u"\\Tweak"_s;
const QString restartText = u"Features: applied successfully. Restart your PC!"_s;
const QString walkQuestion =
    u"Would you like to apply option for set indexing attributes of all files in Windows partition?"_s;
const QString batteryLine =
    u"Features: Battery detected! Some optimizations will not be applied to maintain battery life"_s;

void send(const WindowDriver &driver, const QString &line)
{
    driver.window().onAutomatizerValueChanged(line);
}

/** Puts something into log and status, so that a change of either is seen. */
void begin(const WindowDriver &driver)
{
    driver.get<QTextBrowser>(u"txtAutomatizer"_s)->setPlainText(u"before"_s);
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"untouched"_s);
}

/** The ways to answer the question with anything but Yes. */
void addRefusals()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("No") << QMessageBox::No;
    QTest::newRow("Escape") << QMessageBox::NoButton;
}

} // namespace

class TestAutomatizerDisplay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Plain lines and those of the bar
    void linesOfTheWorkerArriveInTheirOrder();
    void anyOtherLineIsLoggedAsItStands_data();
    void anyOtherLineIsLoggedAsItStands();
    void markupStaysText();
    void logFollowsItsLastLineUnlessScrolledAway();
    void emptyLineIsABreakInTheLog();
    void logLineThatHoldsALineEndTakesTwoLines();
    void maximumLineShowsTheBarAndSetsItsMaximum();
    void valueLineShowsTheBarAndSetsItsValue();
    void numberThatDoesNotParseSetsZero_data();
    void numberThatDoesNotParseSetsZero();
    void headOfAPhaseStandsAfterOptimize_data();
    void headOfAPhaseStandsAfterOptimize();
    void labelSaysOptimizeDuringRestoreToo();
    void translationChangesTheLabelAndNotTheComparison();

    // Analyze
    void nothingFoundIsSaidAndTheLabelIsSetAllTheSame();
    void oneFindingOfAnyKindIsEnough_data();
    void oneFindingOfAnyKindIsEnough();
    void encoderAloneIsAFindingThatTheLabelDoesNotShow();
    void labelCountsServicesTasksPackagesAndAutorun();
    void improvementsGoByWindowsAndBattery_data();
    void improvementsGoByWindowsAndBattery();
    void withoutFeaturesOnlyTheBatteryIsTold();
    void batteryIsNotToldWhereNothingWasFound();
    void checkBoxCountsAsItStandsAtTheEnd();

    // Optimize without features
    void endWithoutFeaturesClosesOptimize();

    // The close of the tweaks
    void questionIsAskedAfterOptimizeAndAfterRestore_data();
    void questionIsAskedAfterOptimizeAndAfterRestore();
    void recordStandsWhenTheQuestionComes();
    void recordSaysFalseUnderRestore();
    void recordTakesTheEntryOfTheComboBox();
    void buttonsDoNothingWhileTheQuestionIsOpen();
    void refusedWalkEndsOptimize_data() { addRefusals(); }
    void refusedWalkEndsOptimize();
    void refusedWalkEndsRestore_data() { addRefusals(); }
    void refusedWalkEndsRestore();
    void refusedWalkOfAnOptimizeAfterARestoreReadsAsARestore();
    void acceptedWalkStartsWithABusyBar_data();
    void acceptedWalkStartsWithABusyBar();
    void acceptedWalkStartsThoughTheJobIsInItsLastInstructions();
    void walkIsNamedAfterTheHomeDrive();

    // The close of the walk
    void endOfTheWalkClosesOptimize();
    void endOfTheWalkAfterARestoreLeavesOptimizationFinished();
    void endOfTheWalkWithoutOptimizeIsOnlyShown();
    void endOfTheWalkWithoutOptimizeAfterARestoreNamesTheDrive();

    // The close of Restore
    void endOfRestoreForgetsProgramsAndTweaks();
};

void TestAutomatizerDisplay::linesOfTheWorkerArriveInTheirOrder()
{
    const WindowOnPc driver;
    for (const char *line : {"pgr:max:7", "first", "pgr:value:3", "second", "", "pgr: Tasks"})
        Q_EMIT driver.worker().automatizerValueChanged(QString::fromLatin1(line));
    const AutomatizerView view(driver);
    QCOMPARE(view.log, (QStringList{u"first"_s, u"second"_s, QString()}));
    QCOMPARE(view.maximum, 7);
    QCOMPARE(view.value, 3);
    QCOMPARE(view.status, u"Optimize :  Tasks"_s);
}

void TestAutomatizerDisplay::anyOtherLineIsLoggedAsItStands_data()
{
    QTest::addColumn<QString>("line");
    for (const char *line : {"Service: can be disable: DiagTrack",
                             "Autorun: can be disabled:  Steam",
                             " leading blank",
                             "Task: <img src=\"file://host/share/x.png\"> &amp; done",
                             "a &lt;b>   c",
                             "txt:second",
                             "TweaksDone",
                             "tweaksDone ",
                             " tweaksDone",
                             "AutomatizerEnd",
                             "automatizerEnd!",
                             "AutomatizerAnalyze:Finished",
                             "AutomatizerAnalyze:finished ",
                             "automatizerRestore:finished",
                             "AutomatizerRestore:finished2",
                             "RemoveIndexedAttrib_End",
                             "WorkThread::TweakSSD::RemoveIndexedAttrib",
                             "PGR:max:12",
                             "Pgr: Tasks",
                             " pgr:value:3",
                             "pgr",
                             "pgr max:3"})
        QTest::newRow(line) << QString::fromLatin1(line);
}

void TestAutomatizerDisplay::anyOtherLineIsLoggedAsItStands()
{
    QFETCH(const QString, line);
    TestMachine machine;
    const WindowDriver driver;
    driver.worker().optimizeRunning = 1;
    driver.worker().analyzeServiceCount = 2;
    begin(driver);
    const AutomatizerView before(driver);
    const QStringList settings = machine.names(settingsKey);
    const Boxes noBox;
    send(driver, line);
    const AutomatizerView view(driver);
    QCOMPARE(view.log, (QStringList{u"before"_s, line}));
    QCOMPARE(view.status, u"untouched"_s);
    QVERIFY(!view.shown);
    QCOMPARE(view.maximum, before.maximum);
    QCOMPARE(view.value, before.value);
    QCOMPARE(driver.worker().optimizeRunning.load(), 1);
    QCOMPARE(machine.names(settingsKey), settings);
    QVERIFY(!driver.worker().isRunning());
}

void TestAutomatizerDisplay::markupStaysText()
{
    const WindowOnPc driver;
    send(driver, u"<b>Task</b>: disable and stop <img src=\"file://host/share/x.png\"> done"_s);
    QVERIFY(!driver.get<QTextBrowser>(u"txtAutomatizer"_s)->toHtml().contains("<img"_L1));
}

void TestAutomatizerDisplay::logFollowsItsLastLineUnlessScrolledAway()
{
    const WindowOnPc driver;
    const QScrollBar *bar = driver.get<QTextBrowser>(u"txtAutomatizer"_s)->verticalScrollBar();
    const QString line = QString(u"a long line that is wrapped "_s).repeated(20);
    for (int i = 0; i < 100; ++i)
        send(driver, line);
    QVERIFY(bar->maximum() > 0);
    QCOMPARE(bar->value(), bar->maximum());
    driver.get<QTextBrowser>(u"txtAutomatizer"_s)->verticalScrollBar()->setValue(0);
    send(driver, line);
    QCOMPARE(bar->value(), 0);
}

void TestAutomatizerDisplay::emptyLineIsABreakInTheLog()
{
    const WindowOnPc driver;
    for (const char *line : {"a", "", "", "b"})
        send(driver, QString::fromLatin1(line));
    QCOMPARE(AutomatizerView(driver).log, (QStringList{u"a"_s, QString(), QString(), u"b"_s}));
}

void TestAutomatizerDisplay::logLineThatHoldsALineEndTakesTwoLines()
{
    const WindowOnPc driver;
    send(driver, u"Process: can be disable\r\nThis process"_s);
    QCOMPARE(AutomatizerView(driver).log, (QStringList{u"Process: can be disable"_s, u"This process"_s}));
}

void TestAutomatizerDisplay::maximumLineShowsTheBarAndSetsItsMaximum()
{
    const WindowOnPc driver;
    begin(driver);
    send(driver, u"pgr:max:42"_s);
    const AutomatizerView view(driver);
    QVERIFY(view.shown);
    QCOMPARE(view.maximum, 42);
    QCOMPARE(view.status, u"untouched"_s);
    QCOMPARE(view.log, QStringList(u"before"_s));
}

void TestAutomatizerDisplay::valueLineShowsTheBarAndSetsItsValue()
{
    const WindowOnPc driver;
    begin(driver);
    const int maximum = driver.bar()->maximum();
    send(driver, u"pgr:value:17"_s);
    const AutomatizerView view(driver);
    QVERIFY(view.shown);
    QCOMPARE(view.maximum, maximum);
    QCOMPARE(view.value, 17);
    QCOMPARE(view.status, u"untouched"_s);
    QCOMPARE(view.log, QStringList(u"before"_s));
}

void TestAutomatizerDisplay::numberThatDoesNotParseSetsZero_data()
{
    QTest::addColumn<QString>("number");
    QTest::newRow("a word") << u"many"_s;
    QTest::newRow("nothing") << QString();
    QTest::newRow("too big") << u"99999999999999999999"_s;
}

void TestAutomatizerDisplay::numberThatDoesNotParseSetsZero()
{
    QFETCH(const QString, number);
    const WindowOnPc driver;
    begin(driver);
    send(driver, u"pgr:max:12"_s);
    send(driver, u"pgr:value:3"_s);
    send(driver, u"pgr:value:"_s + number);
    QCOMPARE(AutomatizerView(driver).value, 0);
    send(driver, u"pgr:max:"_s + number);
    const AutomatizerView view(driver);
    QCOMPARE(view.maximum, 0);
    QCOMPARE(view.status, u"untouched"_s);
}

void TestAutomatizerDisplay::headOfAPhaseStandsAfterOptimize_data()
{
    addColumns<QString, QString>("line", "status");
    QTest::newRow("services") << u"pgr: Services"_s << u"Optimize :  Services"_s;
    QTest::newRow("applications") << u"pgr: Windows applications"_s << u"Optimize :  Windows applications"_s;
    QTest::newRow("nothing after it") << u"pgr:"_s << u"Optimize : "_s;
    QTest::newRow("maximum in another case") << u"pgr:Max:5"_s << u"Optimize : Max:5"_s;
    QTest::newRow("maximum without its colon") << u"pgr:max"_s << u"Optimize : max"_s;
    QTest::newRow("value with a blank") << u"pgr: value:5"_s << u"Optimize :  value:5"_s;
    QTest::newRow("closing line") << u"pgr:tweaksDone"_s << u"Optimize : tweaksDone"_s;
}

void TestAutomatizerDisplay::headOfAPhaseStandsAfterOptimize()
{
    QFETCH(const QString, line);
    const WindowOnPc driver;
    begin(driver);
    const AutomatizerView before(driver);
    send(driver, line);
    const AutomatizerView view(driver);
    QTEST(view.status, "status");
    QVERIFY(view.shown);
    QCOMPARE(view.maximum, before.maximum);
    QCOMPARE(view.value, before.value);
    QCOMPARE(view.log, QStringList(u"before"_s));
}

void TestAutomatizerDisplay::labelSaysOptimizeDuringRestoreToo()
{
    const WindowOnPc driver;
    driver.worker().job = JobAutomatizerRestore;
    driver.worker().restoreRunning = 1;
    send(driver, u"pgr: Tasks"_s);
    QCOMPARE(driver.status(), u"Optimize :  Tasks"_s);
}

void TestAutomatizerDisplay::translationChangesTheLabelAndNotTheComparison()
{
    const WindowOnPc driver;
    const MarkingTranslator language("Kestrune");
    send(driver, u"pgr: Tasks"_s);
    QCOMPARE(driver.status(), u"«Optimize» :  Tasks"_s);
    send(driver, u"AutomatizerAnalyze:finished"_s);
    QCOMPARE(driver.status(), u"«Services:» 0  |  «Tasks:» 0  |  «Packages:» 0  |  «Autorun:» 0"_s);
    send(driver, u"automatizerEnd"_s);
    QCOMPARE(driver.status(), u"«Optimization finished»"_s);
    Boxes boxes({QMessageBox::No});
    send(driver, u"tweaksDone"_s);
    QCOMPARE(boxes.shown().constLast().text, u'«' + walkQuestion + u'»');
    QCOMPARE(boxes.shown().constLast().buttonTexts, (QStringList{u"«Yes»"_s, u"«No»"_s}));
    send(driver, u"RemoveIndexedAttrib_end"_s);
    QCOMPARE(driver.status(), u"«Features applied successfully. Restart your PC!»"_s);
    send(driver, u"AutomatizerRestore:finished"_s);
    QCOMPARE(driver.status(), u"«Restoration finished: Restart your PC!»"_s);
    QCOMPARE(AutomatizerView(driver).log,
             (QStringList{u"«No optimizations found!»"_s, QString(), u"«Optimization finished»"_s,
                          u"«"_s + restartText + u"»"_s, QString(), u"«Optimization finished»"_s, QString(),
                          u"«Restoration finished: Restart your PC!»"_s}));
}

void TestAutomatizerDisplay::nothingFoundIsSaidAndTheLabelIsSetAllTheSame()
{
    const WindowOnPc driver;
    begin(driver);
    send(driver, u"pgr:max:5"_s);
    send(driver, u"AutomatizerAnalyze:finished"_s);
    const AutomatizerView view(driver);
    QCOMPARE(view.log, (QStringList{u"before"_s, u"No optimizations found!"_s}));
    QCOMPARE(view.status, u"Services: 0  |  Tasks: 0  |  Packages: 0  |  Autorun: 0"_s);
    QVERIFY(view.isFull());
}

void TestAutomatizerDisplay::oneFindingOfAnyKindIsEnough_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < findingCounters.size(); ++index)
        QTest::newRow(findingCounters.at(index).name) << index;
}

void TestAutomatizerDisplay::oneFindingOfAnyKindIsEnough()
{
    QFETCH(const int, index);
    const WindowOnPc driver;
    driver.worker().*findingCounters.at(index).member = 1;
    begin(driver);
    send(driver, u"AutomatizerAnalyze:finished"_s);
    QCOMPARE(AutomatizerView(driver).log, (QStringList{u"before"_s, u"Features: 32 improvements can be applied"_s}));
}

void TestAutomatizerDisplay::encoderAloneIsAFindingThatTheLabelDoesNotShow()
{
    const WindowOnPc driver;
    driver.worker().analyzeProcessCount = 2;
    send(driver, u"AutomatizerAnalyze:finished"_s);
    const AutomatizerView view(driver);
    QCOMPARE(view.log, QStringList(u"Features: 32 improvements can be applied"_s));
    QCOMPARE(view.status, u"Services: 0  |  Tasks: 0  |  Packages: 0  |  Autorun: 0"_s);
}

void TestAutomatizerDisplay::labelCountsServicesTasksPackagesAndAutorun()
{
    const WindowOnPc driver;
    driver.worker().analyzeServiceCount = 12;
    driver.worker().analyzeTaskCount = 34;
    driver.worker().analyzePackageCount = 56;
    driver.worker().analyzeAutorunCount = 78;
    driver.worker().analyzeProcessCount = 90;
    send(driver, u"AutomatizerAnalyze:finished"_s);
    const AutomatizerView view(driver);
    QCOMPARE(view.status, u"Services: 12  |  Tasks: 34  |  Packages: 56  |  Autorun: 78"_s);
    QVERIFY(view.isFull());
}

void TestAutomatizerDisplay::improvementsGoByWindowsAndBattery_data()
{
    addColumns<QString, QString, QString>("winName", "battery", "count");
    QTest::newRow("11") << u"Windows 11 Home"_s << u"-1"_s << u"32"_s;
    QTest::newRow("10") << u"Windows 10 Pro"_s << u"-1"_s << u"30"_s;
    QTest::newRow("unknown") << u"unknown"_s << u"-1"_s << u"32"_s;
    QTest::newRow("11 on battery") << u"Windows 11 Home"_s << u"80"_s << u"29"_s;
    QTest::newRow("10 on battery") << u"Windows 10 Pro"_s << u"80"_s << u"27"_s;
    QTest::newRow("unknown on battery") << u"unknown"_s << u"0"_s << u"29"_s;
    QTest::newRow("battery without a charge") << u"Windows 11 Home"_s << QString() << u"29"_s;
}

void TestAutomatizerDisplay::improvementsGoByWindowsAndBattery()
{
    QFETCH(const QString, winName);
    QFETCH(const QString, battery);
    QFETCH(const QString, count);
    const WindowOnPc driver;
    driver.worker().winName = winName;
    driver.worker().batteryCharge = battery;
    driver.worker().analyzeTaskCount = 1;
    send(driver, u"AutomatizerAnalyze:finished"_s);
    QStringList log;
    if (battery != "-1"_L1)
        log.append(batteryLine);
    log.append(u"Features: %1 improvements can be applied"_s.arg(count));
    QCOMPARE(AutomatizerView(driver).log, log);
}

void TestAutomatizerDisplay::withoutFeaturesOnlyTheBatteryIsTold()
{
    const WindowOnPc driver;
    driver.get<QCheckBox>(u"chkAutomatizerTweak"_s)->setChecked(false);
    driver.worker().analyzeTaskCount = 1;
    begin(driver);
    send(driver, u"AutomatizerAnalyze:finished"_s);
    QCOMPARE(AutomatizerView(driver).log, QStringList(u"before"_s));
    driver.worker().batteryCharge = u"55"_s;
    send(driver, u"AutomatizerAnalyze:finished"_s);
    QCOMPARE(AutomatizerView(driver).log, (QStringList{u"before"_s, batteryLine}));
}

void TestAutomatizerDisplay::batteryIsNotToldWhereNothingWasFound()
{
    const WindowOnPc driver;
    driver.worker().batteryCharge = u"55"_s;
    send(driver, u"AutomatizerAnalyze:finished"_s);
    QCOMPARE(AutomatizerView(driver).log, QStringList(u"No optimizations found!"_s));
}

void TestAutomatizerDisplay::checkBoxCountsAsItStandsAtTheEnd()
{
    const WindowOnPc driver;
    driver.worker().analyzeTaskCount = 1;
    driver.worker().automatizerTweak = 0;
    begin(driver);
    send(driver, u"AutomatizerAnalyze:finished"_s);
    QCOMPARE(AutomatizerView(driver).log.constLast(), u"Features: 32 improvements can be applied"_s);
}

void TestAutomatizerDisplay::endWithoutFeaturesClosesOptimize()
{
    TestMachine machine;
    const WindowDriver driver;
    begin(driver);
    send(driver, u"pgr:max:7"_s);
    const Boxes noBox;
    send(driver, u"automatizerEnd"_s);
    const AutomatizerView view(driver);
    QCOMPARE(view.log, (QStringList{u"before"_s, QString(), u"Optimization finished"_s}));
    QCOMPARE(view.status, u"Optimization finished"_s);
    QVERIFY(view.isFull());
    QCOMPARE(machine.names(tweakRecordsKey), QStringList());
}

void TestAutomatizerDisplay::questionIsAskedAfterOptimizeAndAfterRestore_data()
{
    QTest::addColumn<int>("restoreRunning");
    QTest::newRow("Optimize") << 0;
    QTest::newRow("Restore") << 1;
}

void TestAutomatizerDisplay::questionIsAskedAfterOptimizeAndAfterRestore()
{
    QFETCH(const int, restoreRunning);
    const WindowOnPc driver;
    driver.worker().restoreRunning = restoreRunning;
    Boxes boxes({QMessageBox::No});
    send(driver, u"tweaksDone"_s);
    QCOMPARE(boxes.shown().size(), 1);
    const ShownBox &box = boxes.shown().constFirst();
    QCOMPARE(box.text, walkQuestion);
    QCOMPARE(box.informativeText, QString());
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.buttonTexts, (QStringList{u"Yes"_s, u"No"_s}));
    QCOMPARE(box.defaultButtonText, u"No"_s);
    QCOMPARE(box.icon, QMessageBox::Information);
    QVERIFY(box.modal && !box.hasParent);
}

void TestAutomatizerDisplay::recordStandsWhenTheQuestionComes()
{
    TestMachine machine;
    const WindowDriver driver;
    driver.worker().optimizeRunning = 1;
    QStringList recorded;
    int running = -1;
    QTimer::singleShot(0, this, [&] {
        recorded = machine.names(tweakRecordsKey);
        running = driver.worker().optimizeRunning;
    });
    Boxes boxes({QMessageBox::No});
    send(driver, u"tweaksDone"_s);
    QVERIFY(recorded.contains("cbWin32PrioritySeparation"_L1) && recorded.contains("chkWindows1"_L1));
    QCOMPARE(running, 1);
    QCOMPARE(machine.names(tweakRecordsKey), recorded);
    QCOMPARE(machine.read(tweakRecordsKey, u"chkSsd8"_s), QVariant(u"true"_s));
    QCOMPARE(machine.read(tweakRecordsKey, u"chkWindows1"_s), QVariant(u"true"_s));
    QVERIFY(!recorded.contains("chkGaming12"_L1) && !recorded.contains("chkGaming6"_L1));
}

void TestAutomatizerDisplay::recordSaysFalseUnderRestore()
{
    TestMachine machine;
    machine.write(tweakRecordsKey, u"chkGaming1"_s, u"true"_s);
    const WindowDriver driver;
    driver.worker().restoreRunning = 1;
    Boxes boxes({QMessageBox::No});
    send(driver, u"tweaksDone"_s);
    for (const QString &name : {u"chkGaming1"_s, u"chkGaming6"_s, u"chkSsd8"_s})
        QCOMPARE(machine.read(tweakRecordsKey, name), QVariant(u"false"_s));
}

void TestAutomatizerDisplay::recordTakesTheEntryOfTheComboBox()
{
    TestMachine machine;
    const WindowDriver driver;
    driver.get<QComboBox>(u"cbWin32PrioritySeparation"_s)->setCurrentIndex(5);
    driver.worker().win32PrioritySeparationIndex = 1;
    Boxes boxes({QMessageBox::No});
    send(driver, u"tweaksDone"_s);
    QCOMPARE(machine.read(tweakRecordsKey, u"cbWin32PrioritySeparation"_s), QVariant(5));
}

void TestAutomatizerDisplay::buttonsDoNothingWhileTheQuestionIsOpen()
{
    const WindowOnPc driver;
    driver.worker().optimizeRunning = 1;
    driver.worker().analyzeServiceCount = 1;
    const Starts starts(driver.worker());
    bool asked = false;
    QTimer::singleShot(0, this, [&] {
        asked = true;
        driver.call("on_btnAutomatizerAnalyze_clicked");
        driver.call("on_btnAutomatize_clicked");
        driver.window().showPage(1);
    });
    Boxes boxes({QMessageBox::No});
    send(driver, u"tweaksDone"_s);
    QVERIFY(asked);
    QCOMPARE(starts.count(), 0);
    QCOMPARE(driver.window().currentPage(), 0);
    QCOMPARE(driver.worker().optimizeRunning.load(), 0);
}

void TestAutomatizerDisplay::refusedWalkEndsOptimize()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    const WindowOnPc driver;
    driver.worker().optimizeRunning = 1;
    driver.worker().job = JobAutomatizerOptimize;
    begin(driver);
    const Starts starts(driver.worker());
    Boxes boxes({answer});
    send(driver, u"tweaksDone"_s);
    const AutomatizerView view(driver);
    QCOMPARE(view.log, (QStringList{u"before"_s, restartText, QString(), u"Optimization finished"_s}));
    QCOMPARE(view.status, u"Optimization finished"_s);
    QVERIFY(view.isFull());
    QCOMPARE(driver.worker().optimizeRunning.load(), 0);
    QCOMPARE(driver.worker().job, int(JobAutomatizerOptimize));
    QCOMPARE(starts.count(), 0);
}

void TestAutomatizerDisplay::refusedWalkEndsRestore()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    machine.write(settingsKey + u"\\Autorun"_s, u"Steam"_s, u"x=y"_s);
    const WindowDriver driver;
    driver.worker().restoreRunning = 1;
    begin(driver);
    Boxes boxes({answer});
    send(driver, u"tweaksDone"_s);
    const AutomatizerView view(driver);
    QCOMPARE(view.log, (QStringList{u"before"_s, restartText, QString(), u"Restoration finished"_s}));
    QCOMPARE(view.status, u"Restoration finished"_s);
    QVERIFY(view.isFull());
    // A restore with features never forgets.
    QCOMPARE(driver.worker().restoreRunning.load(), 1);
    QCOMPARE(machine.read(settingsKey, u"optimized"_s), QVariant(1));
    QCOMPARE(machine.names(settingsKey + u"\\Autorun"_s), QStringList(u"Steam"_s));
}

void TestAutomatizerDisplay::refusedWalkOfAnOptimizeAfterARestoreReadsAsARestore()
{
    TestMachine machine;
    const WindowDriver driver;
    driver.worker().restoreRunning = 1;
    driver.worker().optimizeRunning = 1;
    Boxes boxes({QMessageBox::No});
    send(driver, u"tweaksDone"_s);
    QCOMPARE(driver.worker().optimizeRunning.load(), 0);
    QCOMPARE(driver.status(), u"Restoration finished"_s);
    QCOMPARE(machine.read(tweakRecordsKey, u"chkSsd1"_s), QVariant(u"false"_s));
}

void TestAutomatizerDisplay::acceptedWalkStartsWithABusyBar_data()
{
    addColumns<int, int>("optimizeRunning", "restoreRunning");
    QTest::newRow("Optimize") << 1 << 0;
    QTest::newRow("Restore") << 0 << 1;
    QTest::newRow("Optimize after a Restore") << 1 << 1;
}

void TestAutomatizerDisplay::acceptedWalkStartsWithABusyBar()
{
    QFETCH(const int, optimizeRunning);
    QFETCH(const int, restoreRunning);
    const WindowOnPc driver;
    driver.worker().optimizeRunning = optimizeRunning;
    driver.worker().restoreRunning = restoreRunning;
    driver.worker().job = JobAutomatizerOptimize;
    begin(driver);
    const Starts starts(driver.worker());
    Boxes boxes({QMessageBox::Yes});
    send(driver, u"tweaksDone"_s);
    QVERIFY(driver.worker().wait(patience));
    QCOMPARE(starts.count(), 1);
    QCOMPARE(driver.worker().job, int(JobTweakApply));
    const AutomatizerView view(driver);
    QVERIFY(view.shown);
    QCOMPARE(view.maximum, 0);
    QCOMPARE(view.status, u"Remove indexing attribute of C:"_s);
    QCOMPARE(view.log, (QStringList{u"before"_s, u"Features: Remove indexing attribute of C:"_s}));
    QCOMPARE(driver.worker().optimizeRunning.load(), optimizeRunning);
    QCOMPARE(driver.worker().restoreRunning.load(), restoreRunning);
}

void TestAutomatizerDisplay::acceptedWalkStartsThoughTheJobIsInItsLastInstructions()
{
    // Stands for the job after its closing line: it isn't over yet when the line is read.
    MachineOptions slow;
    slow.pace = 0.01;
    TestMachine machine(TestMachine::Windows::Eleven, slow);
    const WindowDriver driver;
    const Starts starts(driver.worker());
    driver.worker().startJob(JobWinSxsSize);
    Boxes boxes({QMessageBox::Yes});
    send(driver, u"tweaksDone"_s);
    QVERIFY(driver.worker().wait(patience));
    QCOMPARE(starts.count(), 2);
    QCOMPARE(driver.worker().job, int(JobTweakApply));
}

void TestAutomatizerDisplay::walkIsNamedAfterTheHomeDrive()
{
    const WindowOnPc driver;
    const QByteArray before = qgetenv("homedrive");
    const auto restore = qScopeGuard([&before] { qputenv("homedrive", before); });
    qputenv("homedrive", "Q:");
    Boxes boxes({QMessageBox::Yes});
    send(driver, u"tweaksDone"_s);
    QVERIFY(driver.worker().wait(patience));
    QCOMPARE(driver.status(), u"Remove indexing attribute of Q:"_s);
    driver.worker().optimizeRunning = 1;
    send(driver, u"RemoveIndexedAttrib_end"_s);
    QVERIFY(AutomatizerView(driver).log.contains(u"Features: Remove indexing attribute of Q: finished"_s));
}

void TestAutomatizerDisplay::endOfTheWalkClosesOptimize()
{
    const WindowOnPc driver;
    driver.worker().optimizeRunning = 1;
    driver.bar()->setMaximum(0);
    begin(driver);
    const Boxes noBox;
    send(driver, u"RemoveIndexedAttrib_end"_s);
    const AutomatizerView view(driver);
    QVERIFY(view.shown && view.isFull());
    QCOMPARE(driver.worker().optimizeRunning.load(), 0);
    QCOMPARE(view.log, (QStringList{u"before"_s, u"Features: Remove indexing attribute of C: finished"_s, restartText,
                                    QString(), u"Optimization finished"_s}));
    // The log's text has a colon, the label's hasn't.
    QCOMPARE(view.status, u"Features applied successfully. Restart your PC!"_s);
}

void TestAutomatizerDisplay::endOfTheWalkAfterARestoreLeavesOptimizationFinished()
{
    const WindowOnPc driver;
    driver.worker().optimizeRunning = 1;
    driver.worker().restoreRunning = 1;
    send(driver, u"RemoveIndexedAttrib_end"_s);
    QCOMPARE(driver.status(), u"Optimization finished"_s);
    QCOMPARE(AutomatizerView(driver).log.constLast(), u"Optimization finished"_s);
    QCOMPARE(driver.worker().optimizeRunning.load(), 0);
}

void TestAutomatizerDisplay::endOfTheWalkWithoutOptimizeIsOnlyShown()
{
    const WindowOnPc driver;
    begin(driver);
    send(driver, u"RemoveIndexedAttrib_end"_s);
    const AutomatizerView view(driver);
    QVERIFY(view.shown && view.isFull());
    QCOMPARE(view.log, QStringList(u"before"_s));
    QCOMPARE(view.status, u"Features applied successfully. Restart your PC!"_s);
}

void TestAutomatizerDisplay::endOfTheWalkWithoutOptimizeAfterARestoreNamesTheDrive()
{
    const WindowOnPc driver;
    driver.worker().restoreRunning = 1;
    begin(driver);
    send(driver, u"RemoveIndexedAttrib_end"_s);
    const AutomatizerView view(driver);
    QCOMPARE(view.log, QStringList(u"before"_s));
    QCOMPARE(view.status, u"Remove indexing attribute of C: finished"_s);
}

void TestAutomatizerDisplay::endOfRestoreForgetsProgramsAndTweaks()
{
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    for (const char *group : {"Autorun", "Tweak", "Task", "SVC", "Packages"}) {
        machine.write(settingsKey + u'\\' + QString::fromLatin1(group), u"first"_s, u"x"_s);
        machine.write(settingsKey + u'\\' + QString::fromLatin1(group), u"second"_s, 1);
    }
    const WindowDriver driver;
    begin(driver);
    send(driver, u"pgr:max:3"_s);
    const Boxes noBox;
    send(driver, u"AutomatizerRestore:finished"_s);
    QCOMPARE(machine.names(settingsKey + u"\\Autorun"_s), QStringList());
    QCOMPARE(machine.names(tweakRecordsKey), QStringList());
    for (const char *group : {"Task", "SVC", "Packages"})
        QCOMPARE(machine.names(settingsKey + u'\\' + QString::fromLatin1(group)).size(), 2);
    QCOMPARE(machine.read(settingsKey, u"optimized"_s), QVariant(0));
    const AutomatizerView view(driver);
    QVERIFY(view.isFull());
    QCOMPARE(view.log, (QStringList{u"before"_s, QString(), u"Restoration finished: Restart your PC!"_s}));
    QCOMPARE(view.status, u"Restoration finished: Restart your PC!"_s);
}

KESTRUNE_WINDOW_SUITE(TestAutomatizerDisplay)
#include "tst_automatizerdisplay.moc"
