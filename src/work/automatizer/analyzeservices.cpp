// SPDX-License-Identifier: GPL-3.0-or-later
// The services that Analyze finds.

#include "restorelists.h"
#include "work/keepfeatures.h"
#include "work/services/servicecatalogue.h"
#include "work/services/servicestate.h"
#include "work/workthread.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** Whether a feature that is kept names the service; an instance of one user's is named by more than that. */
bool isOfKeptFeature(const WorkThread &worker, const QString &service)
{
    const auto isIn = [&service](const QString &name) { return service.contains(name, Qt::CaseInsensitive); };
    return std::any_of(keepFeatures.begin(), keepFeatures.end(), [&](const KeepFeature &feature) {
        return feature.isKept(worker) && std::any_of(feature.services.cbegin(), feature.services.cend(), isIn);
    });
}

} // namespace

void WorkThread::analyzeServices()
{
    SvcMakeList();
    nonVitalServices = nonVitalServiceNames();
    addServicesOfFeaturesGivenUp(*this);
    const bool bringBack = wasOptimized();
    for (const ServiceRow &row : std::as_const(services)) {
        if (row.running && !row.startsAs(StartDisabled) && nonVitalServices.contains(row.name, Qt::CaseInsensitive)) {
            automatizerServices.append(row);
            reportFinding(analyzeServiceCount, tr("Service: can be disable: ") + row.name);
        } else if (bringBack && !row.running && row.startsAs(StartDisabled) && isOfKeptFeature(*this, row.name)) {
            // No list takes it: Optimize brings back all that is kept.
            reportFinding(analyzeServiceCount, tr("Service: can be enable: ") + row.name);
        }
    }
    for (const QString &name : manualStartServiceNames()) {
        if (startsByItself(name))
            reportFinding(analyzeServiceCount, tr("Service: can be set to manual:") + u' ' + name);
    }
    if (analyzeServiceCount > 0)
        reportBreak();
}
