// SPDX-License-Identifier: GPL-3.0-or-later
// The monitor's own work, and that of the system report.

#include "benchmachine.h"
#include "work/fakeplatform.h"
#include "work/workthread.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double shortestInterval = 0.998; // seconds between two runs of the monitor

/** A run without its pause, which a machine only notes down, and without handles, so without WMI. */
void runMonitor(benchmark::State &state)
{
    BenchMachine machine;
    machine.machine().setProcesses(QStringList(static_cast<int>(state.range(0)), u"svchost.exe"_s));
    machine.machine().setHardware(
        {{u"freeMemory"_s, 8177995776LL},
         {u"volumes"_s, QJsonObject{{u"C:"_s, QJsonObject{{u"freeBytes"_s, 614180323328LL}}}}},
         {u"processorTimes"_s, QJsonArray{QJsonObject{{u"idle"_s, 90}, {u"kernel"_s, 95}, {u"user"_s, 5}}}}});
    WorkThread worker;
    QString line;
    QObject::connect(&worker, &WorkThread::valueChanged, &worker, [&line](const QString &text) { line = text; });
    for (auto _ : state) {
        worker.startJob(JobMonitor);
        worker.wait();
    }
    QCoreApplication::sendPostedEvents(&worker);
    if (!line.startsWith(u"cpu 11% | processes "_s))
        state.SkipWithError("the line is wrong");
    // Percent of one core, by the processor time of all threads.
    state.counters["percent"] = benchmark::Counter(shortestInterval / 100, benchmark::Counter::kIsIterationInvariantRate
                                                                               | benchmark::Counter::kInvert);
}

/** Answers at once, as a PC with two cards and two disks would. */
class ReadyPlatform : public FakePlatform
{
public:
    WmiAnswer queryWmi(const QString &className, const QStringList &properties) const override
    {
        const bool twice = className == "Win32_VideoController"_L1 || className == "Win32_DiskDrive"_L1;
        const QStringList values(properties.size(), u"20230613000000.000000-000"_s);
        return {QList<QStringList>(twice ? 2 : 1, values), {}};
    }
    QSize screenSize() const override { return {1920, 1080}; }
};

void getSystemInfo(benchmark::State &state)
{
    setPlatform(std::make_unique<ReadyPlatform>());
    {
        WorkThread worker;
        for (auto _ : state)
            worker.GetSystemInfo();
        if (worker.gpuDriverDate != u"2023/06/13"_s || worker.diskInfo.count(u"<br><br>"_s) != 1)
            state.SkipWithError("the texts are wrong");
    }
    setPlatform(nullptr);
}

} // namespace

BENCHMARK(runMonitor)
    ->Name("MonitorSystem without pause and WMI")
    ->Arg(150)
    ->Arg(1500)
    ->MeasureProcessCPUTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(getSystemInfo)->Name("GetSystemInfo without the platform")->Unit(benchmark::kMicrosecond);
