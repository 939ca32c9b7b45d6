// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs.h"

#include "journal/machinejournal.h"
#include "platform/taskdocument.h"
#include "platform/windowsfacts.h"
#include "work/packages/packages.h"
#include "work/settings.h"
#include "work/statusline.h"
#include "work/sysinfo/systeminfo.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void takeServices(WorkThread &worker, const QStringList &names)
{
    worker.servicesToChange = names;
}

int startModeOf(const QString &service)
{
    // Opened above the service: opening the key of one that isn't there would make it.
    const auto services = platform().openKey(WindowsKey::services);
    return services->value(service + u"/Start"_s, -1).toInt();
}

/** A start mode alone makes no service: the job writes one for any name on Windows 10. */
bool isService(const QString &name)
{
    return platform().openKey(WindowsKey::services)->contains(name + u"/Type"_s);
}

bool isRecorded(const QString &service)
{
    return openSettings()->contains(u"SVC/"_s + service);
}

bool isRefused(const WorkThread &worker, const QString &name)
{
    return !isService(name) || worker.servicesRefused.contains(name);
}

QStringList servicesNotDisabled(const WorkThread &worker, const QStringList &names)
{
    QStringList left;
    for (const QString &name : names) {
        if (isRefused(worker, name) || startModeOf(name) != StartDisabled || !isRecorded(name))
            left.append(name);
    }
    return left;
}

QStringList servicesNotEnabled(const WorkThread &worker, const QStringList &names)
{
    QStringList left;
    for (const QString &name : names) {
        if (isRefused(worker, name) || startModeOf(name) != StartAutomatic || isRecorded(name))
            left.append(name);
    }
    return left;
}

/** The path of a task as the logic has it. */
QString withoutBackslash(const QString &path)
{
    return path.startsWith(u'\\') ? path.sliced(1) : path;
}

void takeTasks(WorkThread &worker, const QStringList &paths, int disabled)
{
    for (const QString &operand : paths) {
        const QString path = withoutBackslash(operand);
        worker.tasksToChange.append({path, {}, path.section(u'\\', -1), {}, disabled});
    }
}

/** Tasks whose switch or record isn't as it should be. */
QStringList tasksUnlike(const QStringList &paths, bool enabled)
{
    // The machine is asked, since the logic's own list writes files.
    const Machine &machine = machineInForce();
    QStringList left;
    for (const QString &operand : paths) {
        const QString path = withoutBackslash(operand);
        const auto task = machine.task(u'\\' + path);
        const int record = openRecords(u"Task"_s)->value(path, -1).toInt();
        if (!task || taskFacts(task->document).enabled != enabled || record != (enabled ? 0 : 1))
            left.append(operand);
    }
    return left;
}

/** The rows of the list, which say where OneDrive's uninstaller is; a package that isn't listed gets a bare one. */
void takePackages(WorkThread &worker, const QStringList &names, bool install)
{
    worker.PackageGetList();
    for (const QString &name : names) {
        const auto listed = std::find_if(worker.packages.cbegin(), worker.packages.cend(),
                                         [&](const PackageRow &row) { return row.name == name; });
        worker.packagesToChange.append(listed == worker.packages.cend() ? PackageRow{name, name, {}} : *listed);
    }
    worker.packageInstall = install;
}

QStringList packagesUnlike(const QStringList &names, bool installed)
{
    QStringList left;
    for (const QString &name : names) {
        if (isPackageInstalled(name) != installed)
            left.append(name);
    }
    return left;
}

bool isTask(const QString &operand)
{
    return machineInForce().task(u'\\' + withoutBackslash(operand)).has_value();
}

/** "automatic", "manual", "disabled" */
QString startWord(const ServiceRow &service)
{
    return service.startsAs(StartAutomatic)  ? u"automatic"_s
           : service.startsAs(StartOnDemand) ? u"manual"_s
           : service.startsAs(StartDisabled) ? u"disabled"_s
                                             : u"start "_s + service.start;
}

JobResults foundServices(const WorkThread &worker)
{
    JobResults results;
    for (const ServiceRow &service : worker.services) {
        results.append(
            {u"service"_s, u"%1 (%2, %3): %4"_s.arg(service.name, service.running ? u"running"_s : u"stopped"_s,
                                                    startWord(service), service.displayName)});
    }
    return results;
}

JobResults foundTasks(const WorkThread &worker)
{
    JobResults results;
    for (const TaskRow &task : worker.tasks) {
        results.append({u"task"_s, u"%1 (%2): %3"_s.arg(task.path, task.disabled == 1 ? u"disabled"_s : u"enabled"_s,
                                                        task.description)});
    }
    return results;
}

JobResults foundPackages(const WorkThread &worker)
{
    JobResults results;
    for (const PackageRow &package : worker.packages)
        results.append({u"package"_s, u"%1: %2"_s.arg(package.name, package.displayName)});
    return results;
}

JobResults systemReport(const WorkThread &worker)
{
    JobResults results;
    for (const ReportText &text : reportTexts())
        results.append({text.name, worker.*(text.text)});
    return results;
}

// clang-format off
constexpr JobRow rows[] = {
    {"services"_L1,          {},           "list the services"_L1,              JobSvcMakeList,     0,  0,
     StatusLine::servicesListed, nullptr, nullptr, nullptr, foundServices},
    {"svc-disable"_L1,       "NAME..."_L1, "disable and stop services"_L1,      JobSvcDisable,      1, -1,
     StatusLine::servicesChanged, takeServices, servicesNotDisabled, nullptr, nullptr, "service"_L1, isService},
    {"svc-enable"_L1,        "NAME..."_L1, "enable and start services"_L1,      JobSvcEnable,       1, -1,
     StatusLine::servicesChanged, takeServices, servicesNotEnabled, nullptr, nullptr, "service"_L1, isService},
    {"tasks"_L1,             {},           "list the scheduled tasks"_L1,       JobTaskMakeList,    0,  0,
     StatusLine::tasksListed, nullptr, nullptr, nullptr, foundTasks},
    {"task-disable"_L1,      "PATH..."_L1, "disable scheduled tasks"_L1,        JobTaskStopOrStart, 1, -1,
     StatusLine::tasksChanged,
     [](WorkThread &worker, const QStringList &paths) { takeTasks(worker, paths, 1); },
     [](const WorkThread &, const QStringList &paths) { return tasksUnlike(paths, false); },
     nullptr, nullptr, "scheduled task"_L1, isTask},
    {"task-enable"_L1,       "PATH..."_L1, "enable scheduled tasks"_L1,         JobTaskStopOrStart, 1, -1,
     StatusLine::tasksChanged,
     [](WorkThread &worker, const QStringList &paths) { takeTasks(worker, paths, 0); },
     [](const WorkThread &, const QStringList &paths) { return tasksUnlike(paths, true); },
     nullptr, nullptr, "scheduled task"_L1, isTask},
    {"packages"_L1,          {},           "list the packaged applications"_L1, JobPackageGetList,  0,  0,
     StatusLine::packagesListed, nullptr, nullptr, nullptr, foundPackages},
    {"package-uninstall"_L1, "NAME..."_L1, "remove packaged applications"_L1,   JobPackageSetState, 1, -1,
     "   Uninstall   packages finished  "_L1,
     [](WorkThread &worker, const QStringList &names) { takePackages(worker, names, false); },
     [](const WorkThread &, const QStringList &names) { return packagesUnlike(names, false); },
     [](const QString &line) { recordPackageLine(line, false); }},
    {"package-install"_L1,   "NAME..."_L1, "bring packaged applications back"_L1, JobPackageSetState, 1, -1,
     "   Install   packages finished  "_L1,
     [](WorkThread &worker, const QStringList &names) { takePackages(worker, names, true); },
     [](const WorkThread &, const QStringList &names) { return packagesUnlike(names, true); },
     [](const QString &line) { recordPackageLine(line, true); }},
    {"autorun"_L1,           {},           "list what starts at logon"_L1,      jobAutorun,         0,  0, {}},
    {"autorun-disable"_L1,   "NAME..."_L1, "keep programs from starting at logon"_L1, jobAutorun,   1, -1,
     {}, disableAutoruns, autorunsNotDisabled, nullptr, nullptr, "program at logon"_L1, isKnownAutorun},
    {"autorun-enable"_L1,    "NAME..."_L1, "let programs start at logon again"_L1, jobAutorun,      1, -1,
     {}, enableAutoruns, autorunsNotEnabled},
    {"tweak"_L1,             "GROUP ID on|off"_L1, "apply a tweak of ssd, gaming or windows, or take it back"_L1,
     jobTweak,                                                                              3,  3, {}, {}, {}, {}, {}, {}, {},
     "Applies a tweak of the group\n.BR ssd ,\n.B gaming\nor\n.BR windows ,\nor takes it back.\n"
     ".B run \\-\\-help\nlists them all."_L1},
    {"analyze"_L1,           {},           "look for what could be optimized"_L1, JobAutomatizerAnalyze,  0, 0, {}, {}, {}, {}, {}, {}, {},
     "Looks for what could be optimized, and changes nothing."_L1},
    {"optimize"_L1,          {},           "analyze and optimize"_L1,           JobAutomatizerOptimize, 0,  0, {}},
    {"restore"_L1,           {},           "take an optimization back"_L1,      JobAutomatizerRestore,  0,  0, {}, {}, {}, {}, {}, {}, {},
     "Takes back what an optimization has recorded.\nPrograms that it can't bring back are named at the end."_L1},
    {"winsxs"_L1,            {},           "measure the component store"_L1,    JobWinSxsSize,      0,  0, {}},
    {"sysinfo"_L1,           {},           "print the system report"_L1, JobGetSystemInfo, 0, 0,
     "pgr:value:7"_L1, {}, {}, {}, systemReport},
    {"monitor"_L1,           {},           "print the machine's load once"_L1, JobMonitor,      0,  0, anyLine},
};
// clang-format on

} // namespace

std::span<const JobRow> jobRows()
{
    return rows;
}
