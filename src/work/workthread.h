// SPDX-License-Identifier: GPL-3.0-or-later
// The worker that runs every long job.

#pragma once

#include "rows.h"

#include <QList>
#include <QStringList>
#include <QThread>

#include <atomic>

/** What a worker can be started with. */
enum Job : int {
    JobSvcMakeList = 0,
    JobTaskMakeList = 1,
    JobPackageGetList = 2,
    JobPackageSetState = 3,
    JobTaskStopOrStart = 4,
    JobWinSxsSize = 5,
    // 6 is no job.
    JobAutomatizerAnalyze = 7,
    JobAutomatizerOptimize = 8,
    JobSvcDisable = 9,
    JobSvcEnable = 10,
    JobTweakApply = 11,
    JobTweakReset = 12,
    JobGetSystemInfo = 13,
    JobAutomatizerRestore = 14,
    JobMonitor = 15,
};

/** What a job that changes something is called in lists of changes; empty for one that only looks. */
QString changesOf(int job);

/**
 * A thread that runs one job at a time. Whoever wants a job done looks that the thread is idle, writes the job's input
 * into the members, and starts it; from then on it learns of the job by the lines that the two signals carry, on the
 * thread that owns the object. Results are left in the members and are read when the job's closing line has come.
 */
class WorkThread : public QThread
{
    Q_OBJECT

public:
    explicit WorkThread(QObject *parent = nullptr);

    /** Writes the job's number and starts the thread. Lines of an earlier job that are still under way are dropped. */
    void startJob(int number);
    /**
     * Asks the running job to end, and waits a moment for it. No line of the job arrives any more.
     * @return false when the thread still runs, in a call into the system as a rule: it must not be deleted then, and
     *         ends when the call comes back
     */
    bool endJob();

    int job = JobSvcMakeList;

    QList<ServiceRow> services;   ///< result of SvcMakeList
    QStringList servicesToChange; ///< input of jobs 9, 10 and 14
    QStringList servicesRefused;  ///< result of SvcStopOrStart: those that sc's last step failed for

    // Check states of the Keep list: 2 keeps a feature, 0 gives it up.
    std::atomic<int> keepPrinter = 2;
    std::atomic<int> keepBluetoothAudio = 2;
    std::atomic<int> keepFilesSharing = 2;
    std::atomic<int> keepXboxApp = 2;
    std::atomic<int> keepUpnp = 2;
    std::atomic<int> keepProxyVpn = 2;
    std::atomic<int> keepNfc = 2;
    std::atomic<int> keepXboxGameBar = 2;
    std::atomic<int> keepCodecs = 2;

    QStringList nonVitalServices; ///< what the assistant and Analyze look for; grows by the features that are given up

    QList<TaskRow> tasks;
    QList<TaskRow> tasksToChange;              ///< input of job 4
    std::atomic<bool> taskRestoreMode = false; ///< job 4 restores: it leaves the record alone
    QStringList nonVitalTasks;

    QList<PackageRow> packages;
    QList<PackageRow> packagesToChange; ///< input of job 3
    bool packageInstall = false;        ///< job 3: installs, or uninstalls
    std::atomic<bool> packageJobIdle = true;
    QStringList nonVitalPackages{QString()};
    int hasXboxGameBar = 0;
    int hasXboxApp = 0;
    int hasCodecs = 0;

    QList<AutorunRow> autoruns;

    int win32PrioritySeparationIndex = 3;
    int needReboot = 0; ///< 1 when a tweak takes effect after a restart only

    // Which of the Automatizer's phases is under way; they decide which signal a routine reports on.
    std::atomic<int> analyzeRunning = 0;
    std::atomic<int> optimizeRunning = 0;
    std::atomic<int> restoreRunning = 0;

    // What Analyze selected and found.
    QList<ServiceRow> automatizerServices;
    QList<TaskRow> automatizerTasks;
    int analyzeServiceCount = 0;
    int analyzeTaskCount = 0;
    int analyzePackageCount = 0;
    int analyzeAutorunCount = 0;
    int analyzeProcessCount = 0;
    int automatizerTweak = 1;   ///< state of chkAutomatizerTweak
    int automatizerProgram = 1; ///< state of chkAutomatizerProgram

    // The texts of the system report.
    QString winName, winBuild, winVersion, winEdition, winOnSsd;
    QString cpuName, cpuFreq, cpuCore, cpuThread, cpuL2Size, cpuL3Size, cpuSocket, cpuV, cpuHt;
    QString memTotal, memFree, memFreq, memFormFactor, memVSize, memVSizeDrive;
    QString mbManufacturer, mbModel, mbBiosVersion, mbBiosDate;
    QString gpuName, gpuDriverVersion, gpuDriverDate, gpuRefreshRate, gpuDesktopSize, gpuDesktopMaxSize;
    QString screenMaxRefreshRate, screenHdr, diskInfo;

    std::atomic<int> monitorThreadAndHandle = 0;
    std::atomic<int> monitorEnabled = 0;
    int monitorStorageAge = 10; ///< runs of the monitor since it looked at the system drive
    /** "-1" is a machine without battery. Nothing reads a battery yet, so every machine counts as one without. */
    QString batteryCharge{QStringLiteral("-1")};
    bool hasBattery() const { return batteryCharge != QLatin1StringView("-1"); }
    QString powerShellPath; ///< set by powerShellProgram()

    /** Lists the services into `services`. */
    void SvcMakeList();
    /** Disables and stops, or enables and starts, services in alphabetical order. Returns 0. */
    int SvcStopOrStart(QStringList list, bool enable);
    /** Lists the scheduled tasks into `tasks`. */
    void TaskMakeList();
    /** Disables or enables scheduled tasks, each as its row says. */
    void TaskStopOrStart(const QList<TaskRow> &list);
    /** Lists the packaged applications that can be removed into `packages`. */
    void PackageGetList();
    /** Removes packaged applications, or brings them back. Returns the last exit code, -1 for an empty list. */
    int PackageSetState(const QList<PackageRow> &list, bool install);
    /** Lists the programs started at logon into `autoruns`. No job; runs on the caller's thread and sends no line. */
    void AutorunGetList();
    /**
     * One numbered change of the SSD group, ids 1 to 9: put in force, or with @p apply other than 1 set back to fixed
     * values. An id that the group doesn't know does nothing. Runs on the caller's thread; nothing is reported.
     */
    void TweakSSD(quint8 apply, quint32 id);
    /** The same for the gaming group, ids 1 to 14. */
    void TweakGaming(quint8 apply, quint32 id);
    /** The same for the Windows group, ids 1 to 10 and 12. */
    void TweakWindows(quint8 apply, quint32 id);
    /** Fills the texts of the system report, in seven steps. What isn't found keeps its earlier text. */
    void GetSystemInfo();
    /** The text that a registry string stands for, which may be a reference into a DLL's string table. */
    QString ExpandResourceString(const QString &text);
    /** A string of a DLL, or "no description". */
    QString GetResourceInDll(const QString &dllPath, const QString &id);
    /** The path of PowerShell, empty where it is missing; also left in powerShellPath. */
    QString powerShellProgram();

Q_SIGNALS:
    void valueChanged(const QString &line);
    void automatizerValueChanged(const QString &line);

protected:
    void run() override;

private:
    friend class Automatizer; // sends lines of its own

    using LineSignal = void (WorkThread::*)(const QString &);

    /** Sends a line to the thread that owns the object, in order. */
    void report(const QString &line) { send(&WorkThread::valueChanged, line); }
    void reportToAutomatizer(const QString &line) { send(&WorkThread::automatizerValueChanged, line); }
    void send(LineSignal signal, const QString &line);

    void runJob(int number);
    void WinSxsSize();
    void choosePackages();

    void AutomatizerAnalyze();
    void AutomatizerOptimize();
    void AutomatizerRestore();

    void MonitorSystem();

    // The system drive as the monitor saw it last.
    QString monitorRootPath_;
    quint64 monitorFreeBytes_ = 0;

    std::atomic<int> run_ = 0; ///< counts starts and ends, so that late lines of an earlier run are known
    int runOfThread_ = 0;      ///< the run that the thread works on; touched by the thread alone
};
