// SPDX-License-Identifier: GPL-3.0-or-later
// What the Apply button of the Features page does: which boxes count as touched, what runs, and the walk's question.

#include "machine/database.h"
#include "support/boxes.h"
#include "support/featuresview.h"
#include "support/menus.h"
#include "support/suite.h"
#include "support/tweakprobes.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QApplication>
#include <QComboBox>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int featuresPage = 5;
constexpr quint32 notIndexed = 0x2000;
const QString tweakKey = settingsKey + u"\\Tweak"_s;
const QString priorityControl = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\PriorityControl"_s;
const QString done = u"Apply features finished successfully."_s;
const QString withReboot = done + u" Need reboot!"_s;

QCheckBox *box(const WindowDriver &driver, const QString &name)
{
    return driver.get<QCheckBox>(name);
}

QComboBox *priorities(const WindowDriver &driver)
{
    return driver.get<QComboBox>(u"cbWin32PrioritySeparation"_s);
}

/** Shows the page without the count of the WinSxS folder, whose lines would come between. */
void show(const WindowDriver &driver)
{
    platform().openKey(settingsKey)->setValue(u"GetWinSxsSize"_s, 0);
    driver.window().showPage(featuresPage);
}

/** The window with the page open. */
class FeaturesPage : public WindowDriver
{
public:
    FeaturesPage() { show(*this); }
};

/** All boxes but the one whose tweak is a job. */
QStringList directBoxes()
{
    QStringList names;
    for (const TweakBox &each : tweakBoxes()) {
        if (each.apply != When::AsJob)
            names.append(each.name);
    }
    return names;
}

/** What the probes tell when these tweaks have run. */
QStringList ran(const QStringList &boxes, const QString &form)
{
    QStringList names;
    for (const QString &name : boxes)
        names.append(name + u' ' + form);
    names.sort();
    return names;
}

QStringList without(QStringList names, const QStringList &taken)
{
    for (const QString &name : taken)
        names.removeAll(name);
    return names;
}

void storeAllChecked(TestMachine &machine)
{
    for (const TweakBox &each : tweakBoxes())
        machine.write(tweakKey, each.name, u"true"_s);
}

/** Small enough for the walk to be over soon. */
QString addFileToWalk(TestMachine &machine)
{
    const QString path = u"C:\\Users\\Test\\a.txt"_s;
    machine.addFile(path);
    return path;
}

} // namespace

class TestFeaturesApply : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // What runs
    void touchedBoxRunsItsTweakAndNoOther_data();
    void touchedBoxRunsItsTweakAndNoOther();
    void nothingTouchedRunsNothingAndIsStored();
    void windows10LeavesOutWhatIsOfWindows11();
    void unknownWindowsLeavesOutWhatIsOfWindows11();
    void tweaksRunInTheOrderOfTheirNumbers();
    void checkAllOfTheMenuTouchesDisabledBoxesToo();

    // Marks
    void firstShowingTouchesNothing();
    void secondShowingTouchesWhatIsStoredAsChecked();
    void changeBeforeTheFirstShowingDoesNotCount();
    void touchedStaysTouched();
    void applyingTwiceWritesTwice();
    void comboTouchesItsBox_data();
    void comboTouchesItsBox();
    void comboThatIsLoadedAnewTouchesItsBox();

    // What is told and stored
    void stateIsStoredAsText();
    void needOfARebootIsToldOnce();
    void onlyOneMeansAReboot();
    void applyWhileTheWalkRunsIsIgnored();

    void anotherInstanceKeepsThisOneOut();
    void othersAreKeptOutUntilTheWalkIsOver_data();
    void othersAreKeptOutUntilTheWalkIsOver();

    // The walk
    void walkIsAskedForWhenItsBoxWasTouched();
    void questionComesAfterTheTweaks();
    void refusedWalkLeavesTheStoreAsTheUserSetIt_data();
    void refusedWalkLeavesTheStoreAsTheUserSetIt();
    void acceptedWalkRunsAsAJob_data();
    void acceptedWalkRunsAsAJob();
    void questionComesAtEachApply();
    void walkSetsAndClearsTheAttribute();
    void anyLineOfTheWalkIsItsEnd_data();
    void anyLineOfTheWalkIsItsEnd();
    void endOfTheRemovalAloneEndsAnOptimize();
};

void TestFeaturesApply::touchedBoxRunsItsTweakAndNoOther_data()
{
    addColumns<QString, int>("name", "clicks");
    for (const QString &name : directBoxes()) {
        QTest::addRow("%s on", qPrintable(name)) << name << 1;
        QTest::addRow("%s on and off again", qPrintable(name)) << name << 2;
    }
}

void TestFeaturesApply::touchedBoxRunsItsTweakAndNoOther()
{
    QFETCH(const QString, name);
    QFETCH(const int, clicks);
    TestMachine machine;
    TweakProbes probes(machine);
    const FeaturesPage driver;
    for (int i = 0; i < clicks; ++i)
        clickBox(driver, name);
    QCOMPARE(box(driver, name)->isChecked(), clicks == 1);
    probes.lay();
    const Boxes noBox;
    apply(driver);
    QCOMPARE(probes.ran(), ran({name}, clicks == 1 ? u"on"_s : u"off"_s));
    QVERIFY(driver.status().startsWith(done));
}

void TestFeaturesApply::anotherInstanceKeepsThisOneOut()
{
    TestMachine machine;
    TweakProbes probes(machine);
    const FeaturesPage driver;
    clickBox(driver, u"chkSsd1"_s);
    probes.lay();
    std::shared_ptr<void> other = machine.platform().lockOthersOut();
    Boxes boxes({QMessageBox::Ok});
    apply(driver);
    QCOMPARE(boxes.shown().constLast().text,
             u"Another instance of the program is changing this PC. Try again when it has finished."_s);
    QCOMPARE(boxes.shown().constLast().title, u"Kestrune"_s);
    QCOMPARE(probes.ran(), QStringList());
    QVERIFY(!driver.status().startsWith(done));
    other.reset();
    apply(driver);
    QCOMPARE(probes.ran(), ran({u"chkSsd1"_s}, u"on"_s));
    QVERIFY(machine.platform().lockOthersOut());
}

void TestFeaturesApply::othersAreKeptOutUntilTheWalkIsOver_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("No") << QMessageBox::No;
    QTest::newRow("Yes") << QMessageBox::Yes;
}

void TestFeaturesApply::othersAreKeptOutUntilTheWalkIsOver()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    TestMachine machine;
    const FeaturesPage driver;
    clickBox(driver, u"chkSsd8"_s);
    std::atomic<bool> walkKeptThemOut = false;
    QObject::connect(
        &driver.worker(), &QThread::started, &driver.worker(),
        [&] { walkKeptThemOut = !machine.platform().lockOthersOut(); }, Qt::DirectConnection);
    const Boxes boxes({answer});
    apply(driver);
    QTRY_VERIFY_WITH_TIMEOUT(machine.platform().lockOthersOut(), patience);
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(walkKeptThemOut.load(), answer == QMessageBox::Yes);
}

void TestFeaturesApply::nothingTouchedRunsNothingAndIsStored()
{
    TestMachine machine;
    const TweakProbes probes(machine);
    const FeaturesPage driver;
    const Boxes noBox;
    apply(driver);
    QCOMPARE(probes.ran(), QStringList());
    QCOMPARE(driver.status(), done);
    QCOMPARE(machine.names(tweakKey).size(), 35);
    QVERIFY(!driver.worker().isRunning());
}

void TestFeaturesApply::windows10LeavesOutWhatIsOfWindows11()
{
    TestMachine machine(TestMachine::Windows::Ten);
    machine.write(tweakKey, u"chkGaming8"_s, u"true"_s);
    TweakProbes probes(machine, false);
    const FeaturesPage driver;
    show(driver);
    for (const QString &name : directBoxes())
        box(driver, name)->setChecked(true);
    probes.lay();
    apply(driver);
    QCOMPARE(
        probes.ran(),
        ran(without(directBoxes(), {u"chkGaming7"_s, u"chkGaming8"_s, u"chkWindows5"_s, u"chkWindows9"_s}), u"on"_s));
    // It stays shown and stored as checked.
    QVERIFY(box(driver, u"chkGaming8"_s)->isChecked());
    QCOMPARE(machine.read(tweakKey, u"chkGaming8"_s), QVariant(u"true"_s));
}

void TestFeaturesApply::unknownWindowsLeavesOutWhatIsOfWindows11()
{
    TestMachine machine;
    TweakProbes probes(machine);
    const WindowDriver driver;
    driver.worker().winName = u"unknown"_s;
    show(driver);
    for (const char *name : {"chkGaming8", "chkWindows5", "chkWindows8", "chkWindows9"})
        clickBox(driver, QString::fromLatin1(name));
    probes.lay();
    apply(driver);
    QCOMPARE(probes.ran(), QStringList{u"chkWindows8 on"_s});
}

void TestFeaturesApply::tweaksRunInTheOrderOfTheirNumbers()
{
    TestMachine machine;
    TweakProbes probes(machine);
    const FeaturesPage driver;
    // Touched from the last to the first.
    QStringList names = directBoxes();
    std::reverse(names.begin(), names.end());
    for (const QString &name : std::as_const(names))
        box(driver, name)->setChecked(true);
    apply(driver);
    QStringList programs;
    for (const LoggedCommand &command : machine.commands())
        programs.append(command.program + u' ' + command.arguments.value(1));
    const QString searchProgram =
        u"C:\\Windows\\SystemApps\\MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost.exe"_s;
    QCOMPARE(programs, (QStringList{u"powercfg OFF"_s, u"bcdedit useplatformclock"_s, u"bcdedit disabledynamictick"_s,
                                    u"takeown "_s + searchProgram, u"icacls /grant:r"_s, u"taskkill SearchHost.exe"_s,
                                    u"schtasks /TN"_s, u"schtasks /TN"_s}));
}

void TestFeaturesApply::checkAllOfTheMenuTouchesDisabledBoxesToo()
{
    TestMachine machine;
    machine.machine().setWmiInstances(u"Win32_VideoController"_s, {{{u"Caption"_s, u"NVIDIA"_s}}});
    TweakProbes probes(machine);
    const FeaturesPage driver;
    QVERIFY(!box(driver, u"chkGaming14"_s)->isEnabled());
    Menus menus({u"Check all"_s});
    Q_EMIT driver.get<QWidget>(u"scrollArea"_s)->customContextMenuRequested(QPoint());
    Boxes boxes({QMessageBox::No});
    apply(driver);
    QCOMPARE(probes.ran(), ran(directBoxes(), u"on"_s));

    probes.lay();
    menus.choose(u"Uncheck all"_s);
    Q_EMIT driver.get<QWidget>(u"scrollArea"_s)->customContextMenuRequested(QPoint());
    boxes.answer(QMessageBox::No);
    apply(driver);
    QCOMPARE(probes.ran(), ran(directBoxes(), u"off"_s));
}

void TestFeaturesApply::firstShowingTouchesNothing()
{
    TestMachine machine;
    storeAllChecked(machine);
    machine.write(tweakKey, u"cbWin32PrioritySeparation"_s, 5);
    const TweakProbes probes(machine);
    const FeaturesPage driver;
    const Boxes noBox;
    apply(driver);
    QCOMPARE(probes.ran(), QStringList());
}

void TestFeaturesApply::secondShowingTouchesWhatIsStoredAsChecked()
{
    TestMachine machine;
    for (const char *name : {"chkSsd1", "chkGaming2", "chkWindows12"})
        machine.write(tweakKey, QString::fromLatin1(name), u"true"_s);
    machine.write(tweakKey, u"chkWindows3"_s, u"false"_s);
    const TweakProbes probes(machine);
    const FeaturesPage driver;
    driver.window().showPage(8);
    show(driver);
    apply(driver);
    QCOMPARE(probes.ran(), (QStringList{u"chkGaming2 on"_s, u"chkSsd1 on"_s, u"chkWindows12 on"_s}));
}

void TestFeaturesApply::changeBeforeTheFirstShowingDoesNotCount()
{
    TestMachine machine;
    const TweakProbes probes(machine);
    const WindowDriver driver;
    box(driver, u"chkSsd1"_s)->setChecked(true);
    priorities(driver)->setCurrentIndex(0);
    show(driver);
    apply(driver);
    QCOMPARE(probes.ran(), QStringList());
}

void TestFeaturesApply::touchedStaysTouched()
{
    TestMachine machine;
    TweakProbes probes(machine);
    const FeaturesPage driver;
    clickBox(driver, u"chkSsd1"_s);
    // What was clicked and not applied is dropped by the next showing, but its mark isn't.
    driver.window().showPage(0);
    show(driver);
    QVERIFY(!box(driver, u"chkSsd1"_s)->isChecked());
    apply(driver);
    QCOMPARE(probes.ran(), QStringList{u"chkSsd1 off"_s});
}

void TestFeaturesApply::applyingTwiceWritesTwice()
{
    TestMachine machine;
    TweakProbes probes(machine);
    const FeaturesPage driver;
    clickBox(driver, u"chkSsd1"_s);
    clickBox(driver, u"chkWindows2"_s);
    for (int round = 0; round < 2; ++round) {
        probes.lay();
        apply(driver);
        QCOMPARE(probes.ran(), (QStringList{u"chkSsd1 on"_s, u"chkWindows2 on"_s}));
    }
}

void TestFeaturesApply::comboTouchesItsBox_data()
{
    addColumns<int, bool, QVariant>("index", "checked", "value");
    QTest::newRow("first, checked") << 0 << true << QVariant(22);
    QTest::newRow("last, checked") << 7 << true << QVariant(40);
    QTest::newRow("unchecked: the value goes") << 6 << false << QVariant();
}

void TestFeaturesApply::comboTouchesItsBox()
{
    QFETCH(const int, index);
    QFETCH(const bool, checked);
    TestMachine machine;
    machine.write(tweakKey, u"chkGaming11"_s, checked ? u"true"_s : u"false"_s);
    machine.write(priorityControl, u"Win32PrioritySeparation"_s, 2);
    const FeaturesPage driver;
    priorities(driver)->setCurrentIndex(index);
    apply(driver);
    QCOMPARE(driver.worker().win32PrioritySeparationIndex, index);
    QCOMPARE(machine.read(tweakKey, u"cbWin32PrioritySeparation"_s), QVariant(index));
    QTEST(machine.read(priorityControl, u"Win32PrioritySeparation"_s), "value");
}

void TestFeaturesApply::comboThatIsLoadedAnewTouchesItsBox()
{
    TestMachine machine;
    machine.write(priorityControl, u"Win32PrioritySeparation"_s, 2);
    const FeaturesPage driver;
    machine.write(tweakKey, u"cbWin32PrioritySeparation"_s, 1);
    show(driver);
    apply(driver);
    QCOMPARE(machine.read(priorityControl, u"Win32PrioritySeparation"_s), QVariant());
}

void TestFeaturesApply::stateIsStoredAsText()
{
    TestMachine machine;
    const FeaturesPage driver;
    clickBox(driver, u"chkWindows2"_s);
    priorities(driver)->setCurrentIndex(4);
    box(driver, u"chkOptionsMonitor"_s)->setChecked(true);
    QCOMPARE(machine.names(tweakKey), QStringList());
    apply(driver);
    QStringList expected{u"cbWin32PrioritySeparation"_s};
    for (const TweakBox &each : tweakBoxes()) {
        expected.append(each.name);
        QCOMPARE(machine.read(tweakKey, each.name), QVariant(each.name == "chkWindows2"_L1 ? u"true"_s : u"false"_s));
    }
    QStringList names = machine.names(tweakKey);
    names.sort();
    expected.sort();
    QCOMPARE(names, expected);
    QCOMPARE(machine.read(tweakKey, u"cbWin32PrioritySeparation"_s), QVariant(4));
}

void TestFeaturesApply::needOfARebootIsToldOnce()
{
    const WindowOnPc driver;
    show(driver);
    driver.worker().needReboot = 1;
    apply(driver);
    QCOMPARE(driver.status(), withReboot);
    QCOMPARE(driver.worker().needReboot, 0);
    apply(driver);
    QCOMPARE(driver.status(), done);
}

void TestFeaturesApply::onlyOneMeansAReboot()
{
    const WindowOnPc driver;
    show(driver);
    driver.worker().needReboot = 2;
    apply(driver);
    QCOMPARE(driver.status(), done);
    QCOMPARE(driver.worker().needReboot, 0);
}

void TestFeaturesApply::applyWhileTheWalkRunsIsIgnored()
{
    TestMachine machine;
    const TweakProbes probes(machine);
    const QString file = addFileToWalk(machine);
    const FeaturesPage driver;
    for (const QString &name : {u"chkSsd1"_s, u"chkSsd8"_s})
        clickBox(driver, name);
    {
        // The walk can't store what it has set until someone else is done with the machine, so it lasts.
        const auto other = Machine::open(machine.folder());
        const Database::Transaction held(other->database());
        driver.worker().startJob(JobTweakApply);
        driver.get<QLabel>(u"lblStatus"_s)->setText(u"before"_s);
        const Boxes noBox;
        apply(driver);
        QVERIFY(driver.worker().isRunning());
        QCOMPARE(driver.status(), u"before"_s);
    }
    QTRY_COMPARE_WITH_TIMEOUT(driver.status(), u"Remove indexing attribute of C: finished"_s, patience);
    QVERIFY(driver.worker().wait(patience));
    QVERIFY((machine.machine().attributes(file) & notIndexed) != 0);
    QCOMPARE(probes.ran(), QStringList());
    QCOMPARE(machine.names(tweakKey), QStringList());
}

void TestFeaturesApply::walkIsAskedForWhenItsBoxWasTouched()
{
    const WindowOnPc driver;
    show(driver);
    clickBox(driver, u"chkSsd8"_s);
    Boxes boxes({QMessageBox::No});
    apply(driver);
    QCOMPARE(boxes.shown().size(), 1);
    const ShownBox question = boxes.shown().at(0);
    QCOMPARE(question.text,
             u"Would you like to apply option to set indexing attributes of all files in Windows partition?"_s);
    QCOMPARE(question.informativeText, QString());
    QCOMPARE(question.buttons, QMessageBox::Yes | QMessageBox::No);
    QCOMPARE(question.buttonTexts, QStringList({u"Yes"_s, u"No"_s}));
    QCOMPARE(question.defaultButtonText, u"No"_s);
    QCOMPARE(question.icon, QMessageBox::Information);
    QVERIFY(question.modal);
}

void TestFeaturesApply::questionComesAfterTheTweaks()
{
    TestMachine machine;
    const TweakProbes probes(machine);
    const FeaturesPage driver;
    clickBox(driver, u"chkSsd8"_s);
    clickBox(driver, u"chkWindows12"_s);
    QStringList ranBefore;
    QString status;
    QStringList stored;
    bool looked = false;
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] {
        if (QApplication::activeModalWidget() == nullptr || looked)
            return;
        looked = true;
        ranBefore = probes.ran();
        status = driver.status();
        stored = machine.names(tweakKey);
    });
    timer.start(0);
    Boxes boxes({QMessageBox::No});
    apply(driver);
    QVERIFY(looked);
    QCOMPARE(ranBefore, QStringList{u"chkWindows12 on"_s});
    QCOMPARE(status, done);
    QCOMPARE(stored, QStringList());
    QCOMPARE(machine.names(tweakKey).size(), 35);
}

void TestFeaturesApply::refusedWalkLeavesTheStoreAsTheUserSetIt_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("answer");
    QTest::newRow("No") << QMessageBox::No;
    QTest::newRow("Escape") << QMessageBox::NoButton;
}

void TestFeaturesApply::refusedWalkLeavesTheStoreAsTheUserSetIt()
{
    QFETCH(const QMessageBox::StandardButton, answer);
    TestMachine machine;
    const QString file = addFileToWalk(machine);
    const FeaturesPage driver;
    clickBox(driver, u"chkSsd8"_s);
    Boxes boxes({answer});
    apply(driver);
    QCOMPARE(machine.read(tweakKey, u"chkSsd8"_s), QVariant(u"true"_s));
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(driver.worker().job, int(JobSvcMakeList));
    QVERIFY(driver.bar()->isHidden());
    QCOMPARE(driver.status(), done);
    QCOMPARE(machine.machine().attributes(file) & notIndexed, 0U);
}

void TestFeaturesApply::acceptedWalkRunsAsAJob_data()
{
    addColumns<int, int, QString>("clicks", "job", "status");
    QTest::newRow("checked") << 1 << int(JobTweakApply) << u"Remove indexing attribute of Windows partition C:"_s;
    QTest::newRow("unchecked") << 2 << int(JobTweakReset) << u"Add indexing attribute of Windows partition C:"_s;
}

void TestFeaturesApply::acceptedWalkRunsAsAJob()
{
    QFETCH(const int, clicks);
    TestMachine machine;
    addFileToWalk(machine);
    const FeaturesPage driver;
    for (int i = 0; i < clicks; ++i)
        clickBox(driver, u"chkSsd8"_s);
    Boxes boxes({QMessageBox::Yes});
    apply(driver);
    // Its lines wait for the event loop.
    QTEST(driver.worker().job, "job");
    QTEST(driver.status(), "status");
    QVERIFY(!driver.bar()->isHidden());
    QCOMPARE(driver.bar()->minimum(), 0);
    QCOMPARE(driver.bar()->maximum(), 0);
    QCOMPARE(machine.read(tweakKey, u"chkSsd8"_s), QVariant(clicks == 1 ? u"true"_s : u"false"_s));
    QTRY_VERIFY(!driver.worker().isRunning());
}

void TestFeaturesApply::questionComesAtEachApply()
{
    const WindowOnPc driver;
    show(driver);
    clickBox(driver, u"chkSsd8"_s);
    Boxes boxes;
    for (int round = 1; round <= 3; ++round) {
        boxes.answer(QMessageBox::No);
        apply(driver);
        QCOMPARE(boxes.shown().size(), round);
    }
}

void TestFeaturesApply::walkSetsAndClearsTheAttribute()
{
    TestMachine machine;
    const QString file = addFileToWalk(machine);
    const FeaturesPage driver;
    Boxes boxes;
    const auto walk = [&](const QString &finished) {
        clickBox(driver, u"chkSsd8"_s);
        boxes.answer(QMessageBox::Yes);
        apply(driver);
        QTRY_COMPARE_WITH_TIMEOUT(driver.status(), finished, patience);
        QTRY_VERIFY(!driver.worker().isRunning());
        QVERIFY(!driver.bar()->isHidden());
        QCOMPARE(driver.bar()->maximum(), 100);
        QCOMPARE(driver.bar()->value(), 100);
    };
    walk(u"Remove indexing attribute of C: finished"_s);
    QCOMPARE(machine.machine().attributes(file) & notIndexed, notIndexed);
    walk(u"Add indexing attribute of C: finished"_s);
    QCOMPARE(machine.machine().attributes(file) & notIndexed, 0U);
}

void TestFeaturesApply::anyLineOfTheWalkIsItsEnd_data()
{
    addColumns<int, QString, QString>("job", "line", "status");
    for (const char *line : {"WorkThread::TweakSSD::RemoveIndexedAttrib", "", "pgr:max:7", "anything"}) {
        QTest::addRow("apply: %s", line) << int(JobTweakApply) << QString::fromLatin1(line)
                                         << u"Remove indexing attribute of C: finished"_s;
        QTest::addRow("reset: %s", line) << int(JobTweakReset) << QString::fromLatin1(line)
                                         << u"Add indexing attribute of C: finished"_s;
    }
}

void TestFeaturesApply::anyLineOfTheWalkIsItsEnd()
{
    QFETCH(const int, job);
    QFETCH(const QString, line);
    const WindowOnPc driver;
    driver.bar()->setMaximum(0);
    driver.worker().job = job;
    driver.window().onWorkThreadValueChanged(line);
    QTEST(driver.status(), "status");
    QVERIFY(!driver.bar()->isHidden());
    QCOMPARE(driver.bar()->maximum(), 100);
    QCOMPARE(driver.bar()->value(), 100);
}

void TestFeaturesApply::endOfTheRemovalAloneEndsAnOptimize()
{
    const WindowOnPc driver;
    const auto flagAfter = [&](int job, int flag) {
        driver.worker().optimizeRunning = flag;
        driver.worker().job = job;
        driver.window().onWorkThreadValueChanged(u"WorkThread::TweakSSD::RemoveIndexedAttrib"_s);
        return driver.worker().optimizeRunning.load();
    };
    QCOMPARE(flagAfter(JobTweakApply, 1), 0);
    QCOMPARE(flagAfter(JobTweakApply, 2), 2);
    QCOMPARE(flagAfter(JobTweakReset, 1), 1);
}

KESTRUNE_WINDOW_SUITE(TestFeaturesApply)
#include "tst_featuresapply.moc"
