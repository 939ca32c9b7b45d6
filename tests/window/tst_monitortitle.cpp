// SPDX-License-Identifier: GPL-3.0-or-later
// The monitor as the window knows it: its timer, its title and its three options.

#include "support/suite.h"
#include "support/windowdriver.h"
#include "work/settings.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

struct Interval
{
    const char *name;
    int index;
    int milliseconds;
};

// clang-format off
constexpr Interval intervals[] = {
    {"1 s is a little less", 0,   998},
    {"2 s",                  1,  2000},
    {"3 s",                  2,  3000},
    {"4 s",                  3,  4000},
    {"5 s",                  4,  5000},
    {"10 s",                 5, 10000},
    {"30 s",                 6, 30000},
    {"60 s",                 7, 60000},
    {"beyond the last",      8,   998},
    {"before the first",    -1,   998},
};
// clang-format on

const QString runLine = u"cpu 3% | processes 187 | free memory 9531 Mo | free on C: 312Go"_s;

WorkThread &monitorWorker(const WindowDriver &driver)
{
    return *driver.workers().at(2);
}

QTimer &timer(const WindowDriver &driver)
{
    return *driver.window().findChild<QTimer *>(QString(), Qt::FindDirectChildrenOnly);
}

void call(const WindowDriver &driver, const char *slot, int value)
{
    QVERIFY(QMetaObject::invokeMethod(&driver.window(), slot, Qt::DirectConnection, Q_ARG(int, value)));
}

void turn(const WindowDriver &driver, bool on)
{
    call(driver, "onChkOptionsMonitorStateChanged", on ? Qt::Checked : Qt::Unchecked);
}

void chooseInterval(const WindowDriver &driver, int index)
{
    call(driver, "onCbOptionsMonitorIntervalSelectionChanged", index);
}

/** A line as a run sends it. */
void emitLine(const WindowDriver &driver, const QString &line = runLine)
{
    Q_EMIT monitorWorker(driver).valueChanged(line);
}

int stored(const QString &name)
{
    return openSettings()->value(name, -1).toInt();
}

/** Lets the monitor's worker run a job that pauses instead of its own, so that what would start a run meets a running
 * one. */
bool keepBusy(TestMachine &machine, const WindowDriver &driver)
{
    const QStringList services{u"Alpha"_s, u"Beta"_s, u"Gamma"_s};
    for (const QString &name : services)
        machine.add({.name = name, .running = true});
    monitorWorker(driver).requestInterruption();
    if (!monitorWorker(driver).wait(patience))
        return false;
    monitorWorker(driver).servicesToChange = services;
    monitorWorker(driver).startJob(JobSvcDisable);
    return monitorWorker(driver).isRunning();
}

} // namespace

class TestMonitorTitle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void monitorIsOffByDefault();
    void startUpReadsTheIntervalAndStarts_data();
    void startUpReadsTheIntervalAndStarts();
    void startUpTakesNothingButOneForOn();
    void startUpReadsThreadsAndHandlesEvenWhenOff();
    void lineStandsAfterTheProgramsName();
    void lineIsDroppedWhileTheMonitorIsOff();
    void titleStaysWhenTurnedOffDuringARun();
    void turningOnStartsARunAtOnceAndTheTimer_data();
    void turningOnStartsARunAtOnceAndTheTimer();
    void turningOnTwiceChangesNothing();
    void turningOffStopsTheTimerAndClearsTheTitle();
    void intervalIsStoredAndTakesHoldAtOnce_data();
    void intervalIsStoredAndTakesHoldAtOnce();
    void intervalLeavesARunningTimerRunningAndAStoppedOneStopped();
    void threadsAndHandlesAreStoredAndHandedOver();
    void ticksDuringASlowRunAreSwallowed();
};

void TestMonitorTitle::monitorIsOffByDefault()
{
    const WindowOnPc driver;
    QVERIFY(!timer(driver).isActive());
    QCOMPARE(int(monitorWorker(driver).monitorEnabled), 0);
    QCOMPARE(int(monitorWorker(driver).monitorThreadAndHandle), 0);
    QCOMPARE(monitorWorker(driver).job, int(JobSvcMakeList));
    QCOMPARE(driver.window().windowTitle(), u"Kestrune"_s);
}

void TestMonitorTitle::startUpReadsTheIntervalAndStarts_data()
{
    addColumns<int, int>("index", "milliseconds");
    for (const Interval &interval : intervals)
        QTest::newRow(interval.name) << interval.index << interval.milliseconds;
}

void TestMonitorTitle::startUpReadsTheIntervalAndStarts()
{
    QFETCH(const int, index);
    QFETCH(const int, milliseconds);
    TestMachine machine;
    openSettings()->setValue(u"Monitor"_s, 1);
    openSettings()->setValue(u"MonitorInterval"_s, index);
    const WindowDriver driver;
    QVERIFY(timer(driver).isActive());
    QCOMPARE(timer(driver).interval(), milliseconds);
    QCOMPARE(int(monitorWorker(driver).monitorEnabled), 1);
    QCOMPARE(monitorWorker(driver).job, int(JobMonitor));
}

void TestMonitorTitle::startUpTakesNothingButOneForOn()
{
    TestMachine machine;
    openSettings()->setValue(u"Monitor"_s, 2);
    const WindowDriver driver;
    QVERIFY(!timer(driver).isActive());
    QCOMPARE(int(monitorWorker(driver).monitorEnabled), 0);
}

void TestMonitorTitle::startUpReadsThreadsAndHandlesEvenWhenOff()
{
    TestMachine machine;
    openSettings()->setValue(u"MonitorThreadAndHandle"_s, 1);
    const WindowDriver driver;
    QCOMPARE(int(monitorWorker(driver).monitorThreadAndHandle), 1);
    QVERIFY(!timer(driver).isActive());
}

void TestMonitorTitle::lineStandsAfterTheProgramsName()
{
    const WindowOnPc driver;
    turn(driver, true);
    QVERIFY(monitorWorker(driver).wait(patience));
    emitLine(driver);
    QCOMPARE(driver.window().windowTitle(), u"Kestrune - "_s + runLine);
    emitLine(driver, u"another"_s);
    QCOMPARE(driver.window().windowTitle(), u"Kestrune - another"_s);
}

void TestMonitorTitle::lineIsDroppedWhileTheMonitorIsOff()
{
    const WindowOnPc driver;
    emitLine(driver);
    QCOMPARE(driver.window().windowTitle(), u"Kestrune"_s);
}

void TestMonitorTitle::titleStaysWhenTurnedOffDuringARun()
{
    TestMachine machine(TestMachine::Windows::Eleven, endlessPauses());
    const WindowDriver driver;
    turn(driver, true);
    QVERIFY(keepBusy(machine, driver));
    emitLine(driver);
    QCOMPARE(driver.window().windowTitle(), u"Kestrune - "_s + runLine);
    turn(driver, false);
    QCOMPARE(driver.window().windowTitle(), u"Kestrune"_s);
    emitLine(driver);
    QCOMPARE(driver.window().windowTitle(), u"Kestrune"_s);
    // The run is left to itself.
    QVERIFY(monitorWorker(driver).isRunning());
    monitorWorker(driver).requestInterruption();
    QVERIFY(monitorWorker(driver).wait(patience));
    QCoreApplication::processEvents();
    QCOMPARE(driver.window().windowTitle(), u"Kestrune"_s);
}

void TestMonitorTitle::turningOnStartsARunAtOnceAndTheTimer_data()
{
    startUpReadsTheIntervalAndStarts_data();
}

void TestMonitorTitle::turningOnStartsARunAtOnceAndTheTimer()
{
    QFETCH(const int, index);
    QFETCH(const int, milliseconds);
    const WindowOnPc driver;
    openSettings()->setValue(u"MonitorInterval"_s, index);
    turn(driver, true);
    QCOMPARE(stored(u"Monitor"_s), 1);
    QCOMPARE(int(monitorWorker(driver).monitorEnabled), 1);
    QCOMPARE(monitorWorker(driver).job, int(JobMonitor));
    QVERIFY(timer(driver).isActive());
    QCOMPARE(timer(driver).interval(), milliseconds);
}

void TestMonitorTitle::turningOnTwiceChangesNothing()
{
    const WindowOnPc driver;
    turn(driver, true);
    QVERIFY(monitorWorker(driver).wait(patience));
    monitorWorker(driver).job = JobSvcMakeList;
    openSettings()->setValue(u"MonitorInterval"_s, 7);
    turn(driver, true);
    QCOMPARE(timer(driver).interval(), 998);
    QCOMPARE(monitorWorker(driver).job, int(JobSvcMakeList));
}

void TestMonitorTitle::turningOffStopsTheTimerAndClearsTheTitle()
{
    TestMachine machine;
    openSettings()->setValue(u"Monitor"_s, 1);
    const WindowDriver driver;
    emitLine(driver);
    turn(driver, false);
    QCOMPARE(stored(u"Monitor"_s), 0);
    QCOMPARE(int(monitorWorker(driver).monitorEnabled), 0);
    QVERIFY(!timer(driver).isActive());
    QCOMPARE(driver.window().windowTitle(), u"Kestrune"_s);
    turn(driver, false);
    QCOMPARE(driver.window().windowTitle(), u"Kestrune"_s);
}

void TestMonitorTitle::intervalIsStoredAndTakesHoldAtOnce_data()
{
    startUpReadsTheIntervalAndStarts_data();
}

void TestMonitorTitle::intervalIsStoredAndTakesHoldAtOnce()
{
    QFETCH(const int, index);
    QFETCH(const int, milliseconds);
    const WindowOnPc driver;
    timer(driver).setInterval(1234);
    chooseInterval(driver, index);
    QCOMPARE(stored(u"MonitorInterval"_s), index);
    // Outside the list it stays as it is.
    QCOMPARE(timer(driver).interval(), index < 0 || index > 7 ? 1234 : milliseconds);
}

void TestMonitorTitle::intervalLeavesARunningTimerRunningAndAStoppedOneStopped()
{
    const WindowOnPc driver;
    chooseInterval(driver, 3);
    QVERIFY(!timer(driver).isActive());
    turn(driver, true);
    QCOMPARE(timer(driver).interval(), 4000);
    chooseInterval(driver, 6);
    QVERIFY(timer(driver).isActive());
    QCOMPARE(timer(driver).interval(), 30000);
}

void TestMonitorTitle::threadsAndHandlesAreStoredAndHandedOver()
{
    const WindowOnPc driver;
    call(driver, "onChkOptionsMonitorThreadAndHandleStateChanged", Qt::Checked);
    QCOMPARE(stored(u"MonitorThreadAndHandle"_s), 1);
    QCOMPARE(int(monitorWorker(driver).monitorThreadAndHandle), 1);
    call(driver, "onChkOptionsMonitorThreadAndHandleStateChanged", Qt::Unchecked);
    QCOMPARE(stored(u"MonitorThreadAndHandle"_s), 0);
    QCOMPARE(int(monitorWorker(driver).monitorThreadAndHandle), 0);
}

void TestMonitorTitle::ticksDuringASlowRunAreSwallowed()
{
    TestMachine machine(TestMachine::Windows::Eleven, endlessPauses());
    const WindowDriver driver;
    QVERIFY(keepBusy(machine, driver));
    turn(driver, true);
    int ticks = 0;
    connect(&timer(driver), &QTimer::timeout, this, [&ticks] { ++ticks; });
    timer(driver).setInterval(1);
    QTRY_VERIFY_WITH_TIMEOUT(ticks >= 5, patience);
    QVERIFY(monitorWorker(driver).isRunning());
    QCOMPARE(monitorWorker(driver).job, int(JobSvcDisable));
    // The first tick after its end starts the next.
    monitorWorker(driver).requestInterruption();
    QTRY_COMPARE_WITH_TIMEOUT(monitorWorker(driver).job, int(JobMonitor), patience);
}

KESTRUNE_WINDOW_SUITE(TestMonitorTitle)
#include "tst_monitortitle.moc"
