// SPDX-License-Identifier: GPL-3.0-or-later

#include "manualstart.h"

#include "platform/platform.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int startOnDemand = 3;
constexpr int startDisabled = 4;

/** Opened above the service: opening the key of one that isn't there would make it. */
std::unique_ptr<RegistryKey> openServices()
{
    return platform().openKey(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services"_s);
}

} // namespace

bool startsByItself(const QString &service)
{
    const int start = openServices()->value(service + u"/Start"_s, 0).toInt();
    return start != startDisabled && start != startOnDemand && start != 0;
}

void setManualStart(const QString &service)
{
    openServices()->setValue(service + u"/Start"_s, startOnDemand);
}
