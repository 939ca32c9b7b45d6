// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the monitor's line.

#include "fakeplatform.h"
#include "joblines.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/sysinfo/systeminfo.h"

#include <QJsonArray>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <limits>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 gibibyte = 1024LL * 1024 * 1024;

QJsonObject timesStep(qint64 idle, qint64 kernel, qint64 user)
{
    return {{u"idle"_s, idle}, {u"kernel"_s, kernel}, {u"user"_s, user}};
}

QJsonObject driveWith(qint64 freeBytes)
{
    return {{u"C:"_s, QJsonObject{{u"freeBytes"_s, freeBytes}}}};
}

/** A machine with a load of 10.5 percent, 4 processes and the idle one, 7.5 GiB of free memory and 100 GiB on C. */
void makeBusy(const TestMachine &machine)
{
    machine.machine().setHardware({
        {u"processorTimes"_s, QJsonArray{timesStep(895, 900, 100)}},
        {u"freeMemory"_s, 7680LL * 1024 * 1024 + 1048575},
        {u"threads"_s, 2687},
        {u"volumes"_s, driveWith(100 * gibibyte + gibibyte - 1)},
    });
    machine.machine().setProcesses({u"System"_s, u"smss.exe"_s, u"csrss.exe"_s, u"explorer.exe"_s});
    machine.machine().setWmiInstances(u"Win32_Process"_s,
                                      {{{u"HandleCount"_s, 5000}}, {{u"HandleCount"_s, 60}}, {{u"HandleCount"_s, 7}}});
}

QString lineOf(WorkThread &worker)
{
    JobLines lines(worker);
    runJob(worker, JobMonitor);
    return lines.all().join(u'\n');
}

/** The last part of a line. */
QString driveIn(const QString &line)
{
    return line.section(u" | "_s, -1);
}

/** Readings that fail in an unforeseen way. */
class BrokenReadings : public FakePlatform
{
public:
    ProcessorTimes processorTimes() const override { throw std::runtime_error("no readings"); }
};

} // namespace

class TestMonitor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLoadIsShownCorrected_data();
    void aLoadIsShownCorrected();
    void theLoadIsTheShareThatWasNotIdle_data();
    void theLoadIsTheShareThatWasNotIdle();

    void oneRunGivesOneLine();
    void theLongLineTellsThreadsAndHandlesToo();
    void theReadingsAreATenthOfASecondApart();
    void eachRunMeasuresAnew();
    void theCountOfProcessesStopsAt1024_data();
    void theCountOfProcessesStopsAt1024();
    void handlesThatAreNoNumbersCountNothing();
    void aFailedQueryGivesNoHandlesAndIsLogged();
    void theDriveIsLookedAtByTheFirstAndEveryTenthRun();
    void failedCallsLeaveZeros();
    void anAbortedMeasurementReadsMinusOne();
    void anEndedRunGivesNoLine();
    void runsBesideAListingJob();
};

void TestMonitor::aLoadIsShownCorrected_data()
{
    addColumns<float, QString>("load", "text");
    // clang-format off
    QTest::newRow("idle")                    << 0.0F      << u"1"_s;
    QTest::newRow("0.4")                     << 0.4F      << u"1"_s;
    QTest::newRow("1")                       << 1.0F      << u"1"_s;
    QTest::newRow("1.001")                   << 1.001F    << u"1"_s;
    QTest::newRow("just above 1.001")        << 1.0011F   << u"2"_s;
    QTest::newRow("1.5 is raised and stays") << 1.5F      << u"2"_s;
    QTest::newRow("2")                       << 2.0F      << u"2"_s;
    QTest::newRow("just above 2")            << 2.001F    << u"3"_s;
    QTest::newRow("2.5")                     << 2.5F      << u"3"_s;
    QTest::newRow("50")                      << 50.0F     << u"51"_s;
    QTest::newRow("99.4")                    << 99.4F     << u"100"_s;
    QTest::newRow("just under 100")          << 99.9999F  << u"101"_s;
    QTest::newRow("100 stays")               << 100.0F    << u"100"_s;
    QTest::newRow("no number")               << std::numeric_limits<float>::quiet_NaN() << u"nan"_s;
    QTest::newRow("below all numbers")       << -std::numeric_limits<float>::infinity() << u"-inf"_s;
    QTest::newRow("negative")                << -3.7F     << u"-3"_s;
    QTest::newRow("tiny")                    << 0.00001F  << u"1e-05"_s; // no point to cut at
    // clang-format on
}

void TestMonitor::aLoadIsShownCorrected()
{
    QFETCH(const float, load);
    QFETCH(const QString, text);
    QCOMPARE(loadText(load), text);
}

void TestMonitor::theLoadIsTheShareThatWasNotIdle_data()
{
    addColumns<quint64, quint64, quint64, QString>("idle", "kernel", "user", "text");
    const auto row = [](const char *title, quint64 idle, quint64 kernel, quint64 user, const QString &text) {
        QTest::newRow(title) << idle << kernel << user << text;
    };
    row("idle all the time", 1000, 1000, 0, u"1"_s);
    row("never idle", 0, 400, 600, u"100"_s);
    row("half of it", 500, 600, 400, u"51"_s);
    row("kernel and user count alike", 500, 1000, 0, u"51"_s);
    row("an eighth", 875, 900, 100, u"13"_s);
    row("no time at all", 0, 0, 0, u"nan"_s);
    row("idle without time", 10, 0, 0, u"-inf"_s);
    // In 64 bits the shares of these would differ from 1, and "-5" be shown.
    row("finer than 32 bits", 16777217, 16777216, 0, u"1"_s);
}

void TestMonitor::theLoadIsTheShareThatWasNotIdle()
{
    QFETCH(const quint64, idle);
    QFETCH(const quint64, kernel);
    QFETCH(const quint64, user);
    QFETCH(const QString, text);
    for (const quint64 start : {0ULL, 5'000'000'000'000ULL}) {
        const ProcessorTimes before{start, start + 1, start + 2};
        const ProcessorTimes after{before.idle + idle, before.kernel + kernel, before.user + user};
        QCOMPARE(loadText(processorLoad(before, after)), text);
    }
}

void TestMonitor::oneRunGivesOneLine()
{
    const TestMachine machine;
    makeBusy(machine);
    WorkThread worker;
    QCOMPARE(lineOf(worker), u"page: cpu 11% | processes 5 | free memory 7680 Mo | free on C: 100Go"_s);
}

void TestMonitor::theLongLineTellsThreadsAndHandlesToo()
{
    const TestMachine machine;
    makeBusy(machine);
    WorkThread worker;
    worker.monitorThreadAndHandle = 1;
    QCOMPARE(lineOf(worker), u"page: cpu 11% | processes 5 | threads 2687 | handles 5067 | free memory 7680 Mo | "
                             "free on C: 100Go"_s);
}

void TestMonitor::theReadingsAreATenthOfASecondApart()
{
    const TestMachine machine;
    WorkThread worker;
    lineOf(worker);
    QCOMPARE(machine.platform().takePauses(), QList<int>{100});
}

void TestMonitor::eachRunMeasuresAnew()
{
    const TestMachine machine;
    // What passes between two runs is as little shown as what passed before the first.
    machine.machine().setHardware({{u"processorTimes"_s, QJsonArray{timesStep(7, 7, 7), timesStep(500, 900, 100),
                                                                    timesStep(1, 1, 1), timesStep(0, 0, 300)}}});
    WorkThread worker;
    QStringList loads;
    for (int run = 0; run < 4; ++run)
        loads.append(lineOf(worker).section(u'|', 0, 0).trimmed());
    QCOMPARE(loads, (QStringList{u"page: cpu 51%"_s, u"page: cpu 100%"_s, u"page: cpu 51%"_s, u"page: cpu 100%"_s}));
}

void TestMonitor::theCountOfProcessesStopsAt1024_data()
{
    addColumns<int, int>("processes", "shown");
    QTest::newRow("none but the idle one") << 0 << 1;
    QTest::newRow("one") << 1 << 2;
    QTest::newRow("as many as there is room for") << 1023 << 1024;
    QTest::newRow("one more") << 1024 << 1024;
    QTest::newRow("many more") << 3000 << 1024;
}

void TestMonitor::theCountOfProcessesStopsAt1024()
{
    QFETCH(const int, processes);
    QFETCH(const int, shown);
    const TestMachine machine;
    machine.machine().setProcesses(QStringList(processes, u"svchost.exe"_s));
    WorkThread worker;
    QCOMPARE(lineOf(worker).section(u" | "_s, 1, 1), u"processes %1"_s.arg(shown));
}

void TestMonitor::handlesThatAreNoNumbersCountNothing()
{
    const TestMachine machine;
    machine.machine().setWmiInstances(u"Win32_Process"_s, {{{u"HandleCount"_s, 100}},
                                                           {{u"HandleCount"_s, QJsonValue::Null}},
                                                           {{u"HandleCount"_s, u"many"_s}},
                                                           {{u"HandleCount"_s, u""_s}},
                                                           {{u"HandleCount"_s, u"99999999999"_s}},
                                                           {{u"HandleCount"_s, u"1\r\n2"_s}},
                                                           {},
                                                           {{u"HandleCount"_s, u"20"_s}},
                                                           {{u"HandleCount"_s, 2147483647}}});
    WorkThread worker;
    worker.monitorThreadAndHandle = 1;
    QCOMPARE(lineOf(worker).section(u" | "_s, 3, 3), u"handles 2147483767"_s);
}

void TestMonitor::aFailedQueryGivesNoHandlesAndIsLogged()
{
    LoggingMachine machine;
    WorkThread worker;
    worker.monitorThreadAndHandle = 1;
    QCOMPARE(lineOf(worker).section(u" | "_s, 2, 3), u"threads 0 | handles 0"_s);
    QCOMPARE(machine.errorLog(), QStringList{u"WmiQuery: Query failed! Error code-2147217392"_s});
    // Without the handles WMI isn't asked.
    worker.monitorThreadAndHandle = 0;
    lineOf(worker);
    QCOMPARE(machine.errorLog().size(), 1);
}

void TestMonitor::theDriveIsLookedAtByTheFirstAndEveryTenthRun()
{
    const TestMachine machine;
    WorkThread worker;
    QStringList shown;
    for (int run = 1; run <= 22; ++run) {
        machine.machine().setHardware({{u"volumes"_s, driveWith(run * gibibyte)}});
        shown.append(driveIn(lineOf(worker)));
    }
    const QStringList expected = QStringList(10, u"free on C: 1Go"_s) + QStringList(10, u"free on C: 11Go"_s)
                                 + QStringList(2, u"free on C: 21Go"_s);
    QCOMPARE(shown, expected);
}

void TestMonitor::failedCallsLeaveZeros()
{
    const PlatformInForce<FakePlatform> platform;
    WorkThread worker;
    worker.monitorThreadAndHandle = 1;
    QCOMPARE(lineOf(worker),
             u"page: cpu nan% | processes 1 | threads 0 | handles 0 | free memory 0 Mo | free on 0Go"_s);
}

void TestMonitor::anAbortedMeasurementReadsMinusOne()
{
    const PlatformInForce<BrokenReadings> platform;
    WorkThread worker;
    QCOMPARE(lineOf(worker), u"page: cpu -1% | processes 1 | free memory 0 Mo | free on 0Go"_s);
}

void TestMonitor::anEndedRunGivesNoLine()
{
    MachineOptions options;
    options.pace = 6000; // ten minutes
    const TestMachine machine(TestMachine::Windows::Eleven, options);
    WorkThread worker;
    JobLines lines(worker);
    worker.startJob(JobMonitor);
    QList<int> pauses;
    QTRY_VERIFY(!(pauses += machine.platform().takePauses()).isEmpty());
    worker.requestInterruption();
    QVERIFY(worker.wait(20000));
    QCOMPARE(lines.all(), QStringList());
}

// Meant for the thread sanitizer: all that the monitor shares with the window and with other jobs is touched at once.
void TestMonitor::runsBesideAListingJob()
{
    constexpr int ticksApart = 5;

    const TestMachine machine(u"windows11"_s);
    WorkThread monitor;
    WorkThread worker;
    monitor.monitorEnabled = 1;
    QSignalSpy lines(&monitor, &WorkThread::valueChanged);
    QTimer timer;
    int ticks = 0;
    connect(&timer, &QTimer::timeout, &timer, [&] {
        monitor.monitorThreadAndHandle = ++ticks % 2;
        if (!monitor.isRunning())
            monitor.startJob(JobMonitor);
    });
    timer.start(ticksApart);
    worker.GetSystemInfo(); // the name of Windows stands before it may be read from elsewhere
    for (const int job : {JobSvcMakeList, JobGetSystemInfo, JobPackageGetList, JobGetSystemInfo}) {
        const qsizetype before = lines.size();
        worker.startJob(job);
        while (worker.isRunning() || lines.size() == before) {
            QCOMPARE(worker.winName, u"Windows 11 Home"_s); // as the pages do at any time
            QTest::qWait(1);
        }
    }
    timer.stop();
    QVERIFY(monitor.wait(60000));
    QVERIFY(lines.size() >= 4);
    QVERIFY(!worker.services.isEmpty());
    QCOMPARE(worker.mbModel, u"TUF GAMING B760-PLUS WIFI"_s);
    for (const QList<QVariant> &arguments : std::as_const(lines))
        QVERIFY(arguments.first().toString().startsWith(u"cpu "_s));
}

KESTRUNE_SUITE(TestMonitor)
#include "tst_monitor.moc"
