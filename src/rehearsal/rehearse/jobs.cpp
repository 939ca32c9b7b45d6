// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs.h"

#include "platform/platform.h"
#include "work/settings.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int startAutomatic = 2;
constexpr int startDisabled = 4;

void takeServices(WorkThread &worker, const QStringList &names)
{
    worker.servicesToChange = names;
}

int startModeOf(const QString &service)
{
    // Opened above the service: opening the key of one that isn't there would make it.
    const auto services = platform().openKey(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services"_s);
    return services->value(service + u"/Start"_s, -1).toInt();
}

bool isRecorded(const QString &service)
{
    return openSettings()->contains(u"SVC/"_s + service);
}

QStringList servicesNotDisabled(const QStringList &names)
{
    QStringList left;
    for (const QString &name : names) {
        if (startModeOf(name) != startDisabled || !isRecorded(name))
            left.append(name);
    }
    return left;
}

QStringList servicesNotEnabled(const QStringList &names)
{
    QStringList left;
    for (const QString &name : names) {
        if (startModeOf(name) != startAutomatic || isRecorded(name))
            left.append(name);
    }
    return left;
}

// clang-format off
constexpr JobRow rows[] = {
    {"services"_L1,    {},           "list the services"_L1,      JobSvcMakeList, 0,  0, "WorkThread::SvcMakeList"_L1},
    {"svc-disable"_L1, "NAME..."_L1, "disable and stop services"_L1, JobSvcDisable, 1, -1,
     "pgr:SvcStopOrStart=finished"_L1, takeServices, servicesNotDisabled},
    {"svc-enable"_L1,  "NAME..."_L1, "enable and start services"_L1, JobSvcEnable,  1, -1,
     "pgr:SvcStopOrStart=finished"_L1, takeServices, servicesNotEnabled},
    {"winsxs"_L1,      {},           "measure the component store"_L1, JobWinSxsSize, 0, 0, {}},
};
// clang-format on

} // namespace

std::span<const JobRow> jobRows()
{
    return rows;
}
