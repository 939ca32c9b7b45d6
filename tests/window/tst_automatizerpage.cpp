// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons Analyze, Optimize and Restore: when each starts its job, with what input, and when it does nothing.

#include "support/automatizerview.h"
#include "support/boxes.h"
#include "support/markingtranslator.h"
#include "support/suite.h"
#include "work/settings.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString analyze = u"btnAutomatizerAnalyze"_s;
const QString optimize = u"btnAutomatize"_s;
const QString restore = u"btnAutomatizerRestore"_s;
const QString serviceRecordsKey = settingsKey + u"\\SVC"_s;
const QString taskRecordsKey = settingsKey + u"\\Task"_s;
const QString elevationText = u"You must launch this app with Admin rights!"_s;
const QString atWorkText = u"Another instance of the program is changing this PC. Try again when it has finished."_s;
const QString refusalText = u"Cannot restore if you have not yet optimized!"_s;
const QString questionText = u"Are you sure you want to restore the original values?\r\nAll features, applications, "
                             "services and tasks will be restored."_s;

void check(const WindowDriver &driver, bool tweaks, bool programs)
{
    driver.get<QCheckBox>(u"chkAutomatizerTweak"_s)->setChecked(tweaks);
    driver.get<QCheckBox>(u"chkAutomatizerProgram"_s)->setChecked(programs);
}

QTextBrowser *logOf(const WindowDriver &driver)
{
    return driver.get<QTextBrowser>(u"txtAutomatizer"_s);
}

/** Unchecks both boxes, and puts something into the log and into the lists that Restore fills. */
void begin(const WindowDriver &driver)
{
    check(driver, false, false);
    logOf(driver)->setPlainText(u"before"_s);
    driver.worker().servicesToChange = {u"before"_s};
    driver.worker().tasksToChange = {{u"before"_s, {}, {}, {}, 1}};
    driver.worker().job = JobMonitor;
}

/** What a button that starts nothing leaves alone. */
bool nothingHasBegun(const WindowDriver &driver)
{
    const WorkThread &worker = driver.worker();
    return worker.job == JobMonitor && worker.servicesToChange == QStringList(u"before"_s)
           && worker.tasksToChange.size() == 1 && !worker.taskRestoreMode && worker.restoreRunning == 0;
}

QList<int> boxesTaken(const WindowDriver &driver)
{
    return {driver.worker().automatizerTweak, driver.worker().automatizerProgram};
}

const QList<int> taken{0, 0};
const QList<int> notTaken{1, 1};

void addButtons()
{
    QTest::addColumn<QString>("button");
    QTest::newRow("Analyze") << analyze;
    QTest::newRow("Optimize") << optimize;
    QTest::newRow("Restore") << restore;
}

void addRefusals()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("No") << QMessageBox::No;
    QTest::newRow("Escape") << QMessageBox::NoButton;
}

} // namespace

class TestAutomatizerPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // All three
    void checkBoxesAreReadAnewByEachButton_data() { addButtons(); }
    void checkBoxesAreReadAnewByEachButton();

    // Analyze
    void analyzeClearsTheLogAndStarts();
    void analyzeWithoutRightsTakesNothing();
    void analyzeUnderAFlagClearsTheLogAndStops_data();
    void analyzeUnderAFlagClearsTheLogAndStops();
    void analyzeDoesNotMindAPastRestore();

    // Optimize
    void optimizeWithoutFindingsIsSilent();
    void optimizeUnderAFlagIsSilent_data();
    void optimizeUnderAFlagIsSilent();
    void silenceComesBeforeTheOfferOfRights();
    void oneFindingOfAnyKindIsEnough_data();
    void oneFindingOfAnyKindIsEnough();
    void optimizeTakesTheEntryOfTheComboBox();
    void optimizeStaysPossibleAfterItsFirstRun();

    // Other instances
    void anotherInstanceKeepsThisOneOut_data();
    void anotherInstanceKeepsThisOneOut();
    void othersAreKeptOutUntilTheEnd_data();
    void othersAreKeptOutUntilTheEnd();

    // Restore
    void restoreIsRefusedUnlessOptimized_data();
    void restoreIsRefusedUnlessOptimized();
    void refusalHasOneButtonAndNoIcon();
    void rightsAreAskedForBeforeTheRefusal();
    void restoreAsksBeforeItTouchesAnything_data() { addRefusals(); }
    void restoreAsksBeforeItTouchesAnything();
    void questionsButtonsAreTranslated();
    void restoreStartsWithWhatIsRecorded();
    void restoreWithoutRecordsStartsWithEmptyLists();
    void recordsOfTheTasksBackupAreNotRestored();
    void namelessRecordsAreNotRestored();
};

void TestAutomatizerPage::checkBoxesAreReadAnewByEachButton()
{
    QFETCH(const QString, button);
    const WindowOnPc driver;
    // Optimize has nothing to do then, Restore is refused, Analyze runs; each has read the boxes.
    for (const QList<int> &states : {QList<int>{0, 1}, QList<int>{1, 0}, QList<int>{1, 1}, QList<int>{0, 0}}) {
        check(driver, states.at(0) == 1, states.at(1) == 1);
        Boxes boxes;
        if (button == restore)
            boxes.answer(QMessageBox::Ok);
        driver.click(button);
        QCOMPARE(boxesTaken(driver), states);
        QVERIFY(driver.endJob());
    }
}

void TestAutomatizerPage::analyzeClearsTheLogAndStarts()
{
    const WindowOnPc driver;
    begin(driver);
    const Starts starts(driver.worker());
    const Boxes noBox;
    driver.click(analyze);
    QCOMPARE(driver.worker().job, int(JobAutomatizerAnalyze));
    QCOMPARE(logOf(driver)->toPlainText(), QString());
    QCOMPARE(boxesTaken(driver), taken);
    QVERIFY(driver.endJob());
    QCOMPARE(starts.count(), 1);
}

void TestAutomatizerPage::analyzeWithoutRightsTakesNothing()
{
    const WindowOnPc driver(notElevated());
    begin(driver);
    // Not even where a flag would stop it.
    driver.worker().optimizeRunning = 1;
    Boxes boxes({QMessageBox::No});
    driver.click(analyze);
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxesTaken(driver), notTaken);
    QCOMPARE(logOf(driver)->toPlainText(), u"before"_s);
}

void TestAutomatizerPage::analyzeUnderAFlagClearsTheLogAndStops_data()
{
    addColumns<int, int>("analyzeRunning", "optimizeRunning");
    QTest::newRow("Analyze") << 1 << 0;
    QTest::newRow("Optimize") << 0 << 1;
    QTest::newRow("an odd value") << 0 << 2;
}

void TestAutomatizerPage::analyzeUnderAFlagClearsTheLogAndStops()
{
    QFETCH(const int, analyzeRunning);
    QFETCH(const int, optimizeRunning);
    const WindowOnPc driver;
    begin(driver);
    driver.worker().analyzeRunning = analyzeRunning;
    driver.worker().optimizeRunning = optimizeRunning;
    const Starts starts(driver.worker());
    const Boxes noBox;
    driver.click(analyze);
    QCOMPARE(boxesTaken(driver), taken);
    QCOMPARE(logOf(driver)->toPlainText(), QString());
    QVERIFY(nothingHasBegun(driver));
    QCOMPARE(starts.count(), 0);
}

void TestAutomatizerPage::analyzeDoesNotMindAPastRestore()
{
    const WindowOnPc driver;
    driver.worker().restoreRunning = 1;
    const Starts starts(driver.worker());
    driver.click(analyze);
    QVERIFY(driver.endJob());
    QCOMPARE(starts.count(), 1);
}

void TestAutomatizerPage::optimizeWithoutFindingsIsSilent()
{
    const WindowOnPc driver;
    begin(driver);
    const Starts starts(driver.worker());
    const Boxes noBox;
    driver.click(optimize);
    QVERIFY(nothingHasBegun(driver));
    QCOMPARE(starts.count(), 0);
    QCOMPARE(logOf(driver)->toPlainText(), u"before"_s);
    QCOMPARE(driver.status(), QString());
    QCOMPARE(boxesTaken(driver), taken);
}

void TestAutomatizerPage::optimizeUnderAFlagIsSilent_data()
{
    analyzeUnderAFlagClearsTheLogAndStops_data();
}

void TestAutomatizerPage::optimizeUnderAFlagIsSilent()
{
    QFETCH(const int, analyzeRunning);
    QFETCH(const int, optimizeRunning);
    const WindowOnPc driver;
    begin(driver);
    driver.worker().analyzeServiceCount = 3;
    driver.worker().analyzeRunning = analyzeRunning;
    driver.worker().optimizeRunning = optimizeRunning;
    const Starts starts(driver.worker());
    const Boxes noBox;
    driver.click(optimize);
    QVERIFY(nothingHasBegun(driver));
    QCOMPARE(starts.count(), 0);
    QCOMPARE(logOf(driver)->toPlainText(), u"before"_s);
    QCOMPARE(driver.worker().analyzeRunning.load(), analyzeRunning);
    QCOMPARE(boxesTaken(driver), taken);
}

void TestAutomatizerPage::silenceComesBeforeTheOfferOfRights()
{
    const WindowOnPc driver(notElevated());
    const Boxes noBox;
    driver.click(optimize);
    driver.worker().analyzeTaskCount = 1;
    driver.worker().analyzeRunning = 1;
    driver.click(optimize);
    driver.worker().analyzeRunning = 0;
    driver.worker().optimizeRunning = 1;
    driver.click(optimize);
    QVERIFY(!driver.worker().isRunning());
}

void TestAutomatizerPage::oneFindingOfAnyKindIsEnough_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < findingCounters.size(); ++index)
        QTest::newRow(findingCounters.at(index).name) << index;
}

void TestAutomatizerPage::oneFindingOfAnyKindIsEnough()
{
    QFETCH(const int, index);
    const WindowOnPc driver;
    begin(driver);
    driver.worker().*findingCounters.at(index).member = 1;
    const Starts starts(driver.worker());
    const Boxes noBox;
    driver.click(optimize);
    QCOMPARE(driver.worker().job, int(JobAutomatizerOptimize));
    QCOMPARE(logOf(driver)->toPlainText(), QString());
    QCOMPARE(boxesTaken(driver), taken);
    QVERIFY(driver.endJob());
    QCOMPARE(starts.count(), 1);
    QCOMPARE(driver.worker().analyzeRunning.load(), 0);
}

void TestAutomatizerPage::optimizeTakesTheEntryOfTheComboBox()
{
    const WindowOnPc driver;
    begin(driver);
    driver.get<QComboBox>(u"cbWin32PrioritySeparation"_s)->setCurrentIndex(6);
    driver.click(optimize);
    QCOMPARE(driver.worker().win32PrioritySeparationIndex, 3);
    driver.worker().analyzeProcessCount = 1;
    driver.click(optimize);
    QCOMPARE(driver.worker().win32PrioritySeparationIndex, 6);
    QVERIFY(driver.endJob());
}

void TestAutomatizerPage::optimizeStaysPossibleAfterItsFirstRun()
{
    const WindowOnPc driver;
    begin(driver);
    driver.worker().analyzeTaskCount = 1;
    const Starts starts(driver.worker());
    for (int run = 1; run <= 3; ++run) {
        driver.click(optimize);
        QVERIFY(driver.worker().wait(patience));
        QCOMPARE(starts.count(), run);
        driver.worker().optimizeRunning = 0;
    }
}

void TestAutomatizerPage::restoreIsRefusedUnlessOptimized_data()
{
    QTest::addColumn<QVariant>("optimized");
    QTest::newRow("nothing") << QVariant();
    QTest::newRow("0") << QVariant(0);
    QTest::newRow("2") << QVariant(2);
    QTest::newRow("-1") << QVariant(-1);
}

void TestAutomatizerPage::restoreIsRefusedUnlessOptimized()
{
    QFETCH(const QVariant, optimized);
    TestMachine machine;
    if (optimized.isValid())
        machine.write(settingsKey, u"optimized"_s, optimized);
    machine.write(serviceRecordsKey, u"DiagTrack"_s, 1);
    machine.write(taskRecordsKey, u"Task"_s, 1);
    const WindowDriver driver;
    begin(driver);
    const Starts starts(driver.worker());
    Boxes boxes({QMessageBox::Ok});
    driver.click(restore);
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.shown().constFirst().text, refusalText);
    QVERIFY(nothingHasBegun(driver));
    QCOMPARE(starts.count(), 0);
    QCOMPARE(logOf(driver)->toPlainText(), u"before"_s);
    QCOMPARE(boxesTaken(driver), taken);
}

void TestAutomatizerPage::refusalHasOneButtonAndNoIcon()
{
    const WindowOnPc driver;
    Boxes boxes({QMessageBox::NoButton});
    driver.click(restore);
    const ShownBox &box = boxes.shown().constFirst();
    QCOMPARE(box.buttons, QMessageBox::Ok);
    QCOMPARE(box.icon, QMessageBox::NoIcon);
    QCOMPARE(box.informativeText, QString());
    QVERIFY(box.modal && !box.hasParent);
}

void TestAutomatizerPage::rightsAreAskedForBeforeTheRefusal()
{
    const WindowOnPc driver(notElevated());
    Boxes boxes({QMessageBox::No});
    driver.click(restore);
    QCOMPARE(boxes.shown().size(), 1);
    QCOMPARE(boxes.shown().constFirst().text, elevationText);
}

void TestAutomatizerPage::restoreAsksBeforeItTouchesAnything()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    machine.write(serviceRecordsKey, u"DiagTrack"_s, 1);
    const WindowDriver driver;
    begin(driver);
    const Starts starts(driver.worker());
    Boxes boxes({answer});
    driver.click(restore);
    QCOMPARE(boxes.shown().size(), 1);
    const ShownBox &box = boxes.shown().constFirst();
    QCOMPARE(box.text, questionText);
    QCOMPARE(box.informativeText, QString());
    QCOMPARE(box.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(box.icon, QMessageBox::Information);
    QVERIFY(box.modal && !box.hasParent);
    QVERIFY(nothingHasBegun(driver));
    QCOMPARE(starts.count(), 0);
    QCOMPARE(logOf(driver)->toPlainText(), u"before"_s);
    QCOMPARE(boxesTaken(driver), taken);
}

void TestAutomatizerPage::questionsButtonsAreTranslated()
{
    TestMachine machine;
    const WindowDriver driver;
    const MarkingTranslator language("Kestrune");
    Boxes boxes({QMessageBox::Ok});
    driver.click(restore);
    QCOMPARE(boxes.shown().constLast().text, u'«' + refusalText + u'»');
    machine.write(settingsKey, u"optimized"_s, 1);
    boxes.answer(QMessageBox::No);
    driver.click(restore);
    QCOMPARE(boxes.shown().constLast().text, u'«' + questionText + u'»');
    QCOMPARE(boxes.shown().constLast().buttonTexts, (QStringList{u"«Yes»"_s, u"«No»"_s}));
}

void TestAutomatizerPage::anotherInstanceKeepsThisOneOut_data()
{
    addColumns<QString, QList<QMessageBox::StandardButton>>("button", "answers");
    QTest::newRow("Optimize") << optimize << QList{QMessageBox::Ok};
    QTest::newRow("Restore") << restore << QList{QMessageBox::Yes, QMessageBox::Ok};
}

void TestAutomatizerPage::anotherInstanceKeepsThisOneOut()
{
    QFETCH(const QString, button);
    QFETCH(const QList<QMessageBox::StandardButton>, answers);
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    const WindowDriver driver;
    begin(driver);
    driver.worker().analyzeServiceCount = 1;
    const std::shared_ptr<void> other = machine.platform().lockOthersOut();
    const Boxes boxes(answers);
    driver.click(button);
    QCOMPARE(boxes.shown().constLast().text, atWorkText);
    QVERIFY(nothingHasBegun(driver));
    QCOMPARE(logOf(driver)->toPlainText(), u"before"_s);
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
}

void TestAutomatizerPage::othersAreKeptOutUntilTheEnd_data()
{
    addColumns<QString, bool, QList<QMessageBox::StandardButton>>("button", "tweaks", "answers");
    QTest::newRow("Optimize") << optimize << false << QList<QMessageBox::StandardButton>();
    QTest::newRow("Optimize, no walk") << optimize << true << QList{QMessageBox::No};
    QTest::newRow("Optimize, walk") << optimize << true << QList{QMessageBox::Yes};
    QTest::newRow("Restore") << restore << false << QList{QMessageBox::Yes};
    QTest::newRow("Restore, walk") << restore << true << QList{QMessageBox::Yes, QMessageBox::Yes};
}

void TestAutomatizerPage::othersAreKeptOutUntilTheEnd()
{
    QFETCH(const QString, button);
    QFETCH(const bool, tweaks);
    QFETCH(const QList<QMessageBox::StandardButton>, answers);
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    const WindowDriver driver;
    check(driver, tweaks, false);
    driver.worker().analyzeServiceCount = 1;
    const Boxes boxes(answers);
    driver.click(button);
    QVERIFY(!machine.platform().lockOthersOut());
    QTRY_VERIFY_WITH_TIMEOUT(machine.platform().lockOthersOut(), patience);
    QVERIFY(!driver.worker().isRunning());
}

void TestAutomatizerPage::restoreStartsWithWhatIsRecorded()
{
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    for (const char *service : {"DiagTrack", "SysMain"})
        machine.write(serviceRecordsKey, QString::fromLatin1(service), 1);
    // Recorded as a key below the group: opened, changed and enabled again alike.
    openRecords(u"Task"_s)->setValue(u"Microsoft\\Windows\\Maps\\MapsUpdateTask"_s, 1);
    openRecords(u"Task"_s)->setValue(u"OneDrive Update"_s, 0);
    const WindowDriver driver;
    begin(driver);
    const Starts starts(driver.worker());
    Boxes boxes({QMessageBox::Yes});
    driver.click(restore);
    const WorkThread &worker = driver.worker();
    QCOMPARE(worker.job, int(JobAutomatizerRestore));
    QCOMPARE(worker.restoreRunning.load(), 1);
    QVERIFY(worker.taskRestoreMode);
    QCOMPARE(worker.servicesToChange, (QStringList{u"DiagTrack"_s, u"SysMain"_s}));
    QStringList tasks;
    for (const TaskRow &row : worker.tasksToChange) {
        tasks.append(row.path + u" | "_s + row.name + u" | "_s + QString::number(row.disabled));
        QVERIFY(row.description.isEmpty() && row.extra.isEmpty());
    }
    tasks.sort();
    QCOMPARE(tasks, (QStringList{u"Microsoft\\Windows\\Maps\\MapsUpdateTask | MapsUpdateTask | 0"_s,
                                 u"OneDrive Update | OneDrive Update | 0"_s}));
    QCOMPARE(boxesTaken(driver), taken);
    QCOMPARE(logOf(driver)->toPlainText(), QString());
    QVERIFY(driver.endJob());
    QCOMPARE(starts.count(), 1);
}

void TestAutomatizerPage::restoreWithoutRecordsStartsWithEmptyLists()
{
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    const WindowDriver driver;
    begin(driver);
    // A Restore asks for neither findings nor idle flags.
    driver.worker().optimizeRunning = 1;
    const Starts starts(driver.worker());
    Boxes boxes({QMessageBox::Yes});
    driver.click(restore);
    QCOMPARE(driver.worker().servicesToChange, QStringList());
    QVERIFY(driver.worker().tasksToChange.isEmpty());
    QVERIFY(driver.endJob());
    QCOMPARE(starts.count(), 1);
}

void TestAutomatizerPage::recordsOfTheTasksBackupAreNotRestored()
{
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    for (const char *task : {"Backup", "BackupOfTasks", "backup of mine", "My Backup"})
        machine.write(taskRecordsKey, QString::fromLatin1(task), 1);
    const WindowDriver driver;
    Boxes boxes({QMessageBox::Yes});
    driver.click(restore);
    QStringList tasks;
    for (const TaskRow &row : driver.worker().tasksToChange)
        tasks.append(row.path);
    tasks.sort();
    QCOMPARE(tasks, (QStringList{u"My Backup"_s, u"backup of mine"_s}));
    QVERIFY(driver.endJob());
}

void TestAutomatizerPage::namelessRecordsAreNotRestored()
{
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    for (const QString &key : {serviceRecordsKey, taskRecordsKey}) {
        machine.write(key, QString(), 1);
        machine.write(key, u"Named"_s, 1);
    }
    const WindowDriver driver;
    Boxes boxes({QMessageBox::Yes});
    driver.click(restore);
    QCOMPARE(driver.worker().servicesToChange, QStringList(u"Named"_s));
    QCOMPARE(driver.worker().tasksToChange.size(), 1);
    QVERIFY(driver.endJob());
}

KESTRUNE_WINDOW_SUITE(TestAutomatizerPage)
#include "tst_automatizerpage.moc"
