// SPDX-License-Identifier: GPL-3.0-or-later

#include "workthread.h"

#include "interruption.h"
#include "platform/platform.h"

using namespace Qt::StringLiterals;

QString changesOf(int job)
{
    switch (job) {
    case JobPackageSetState:
        return u"Packages"_s;
    case JobTaskStopOrStart:
        return u"Tasks"_s;
    case JobAutomatizerAnalyze:
        return u"Analyze"_s;
    case JobAutomatizerOptimize:
        return u"Optimize"_s;
    case JobAutomatizerRestore:
        return u"Restore"_s;
    case JobSvcDisable:
        return u"Disable services"_s;
    case JobSvcEnable:
        return u"Enable services"_s;
    case JobTweakApply:
        return u"Content indexing off"_s;
    case JobTweakReset:
        return u"Content indexing on"_s;
    default:
        return {};
    }
}

void WorkThread::startJob(int number)
{
    job = number;
    ++run_;
    start(QThread::InheritPriority);
}

bool WorkThread::endJob()
{
    constexpr int patience = 230;

    ++run_;
    requestInterruption();
    // Never by force: a thread that is cut off keeps what it holds, and whoever needs the heap next waits for ever.
    return wait(patience);
}

void WorkThread::run()
{
    runOfThread_ = run_;
    try {
        // The others change nothing by themselves.
        const QString what = changesOf(job);
        const auto session = what.isEmpty() ? nullptr : std::make_unique<ChangeSession>(what);
        runJob(job);
    } catch (const JobInterrupted &) {
        // Whoever ended the job knows; there is nobody to tell.
    }
}

void WorkThread::runJob(int number)
{
    switch (number) {
    case JobSvcMakeList:
        SvcMakeList();
        break;
    case JobTaskMakeList:
        TaskMakeList();
        break;
    case JobPackageGetList:
        PackageGetList();
        break;
    case JobPackageSetState:
        PackageSetState(packagesToChange, packageInstall);
        break;
    case JobTaskStopOrStart:
        TaskStopOrStart(tasksToChange);
        break;
    case JobWinSxsSize:
        WinSxsSize();
        break;
    case JobAutomatizerAnalyze:
        AutomatizerAnalyze();
        break;
    case JobAutomatizerOptimize:
        AutomatizerOptimize();
        break;
    case JobSvcDisable:
        SvcStopOrStart(servicesToChange, false);
        break;
    case JobSvcEnable:
        SvcStopOrStart(servicesToChange, true);
        break;
    case JobTweakApply:
        TweakSSD(1, 8);
        break;
    case JobTweakReset:
        TweakSSD(0, 8);
        break;
    case JobGetSystemInfo:
        GetSystemInfo();
        break;
    case JobAutomatizerRestore:
        AutomatizerRestore();
        break;
    case JobMonitor:
        MonitorSystem();
        break;
    default:
        break;
    }
}

void WorkThread::WinSxsSize()
{
    constexpr double gibibytesPerByte = 1.0 / (1024.0 * 1024.0 * 1024.0);

    report(tr("Status: Getting WinSxS folder size..."));
    qint64 bytes = 0;
    walkFolder(qEnvironmentVariable("windir") + u"\\WinSxS"_s,
               [&bytes](const WalkEntry &entry) { bytes += entry.size; });
    report(QString::number(static_cast<double>(bytes) * gibibytesPerByte, 'g', 6));
    report(tr("Status: Getting WinSxS folder size finished!"));
    pauseFor(3000);
    // The empty line clears the status.
    report(QString());
}

void WorkThread::send(LineSignal signal, const QString &line)
{
    if (QThread::currentThread() == thread()) {
        Q_EMIT(this->*signal)(line);
        return;
    }
    const auto deliver = [this, signal, line, run = runOfThread_] {
        if (run == run_)
            Q_EMIT(this->*signal)(line);
    };
    QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
}
