// SPDX-License-Identifier: GPL-3.0-or-later
// Optimize: carries out what Analyze has left, in six phases, and records what Restore needs.

#include "encoder.h"
#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "restorelists.h"
#include "work/interruption.h"
#include "work/keepfeatures.h"
#include "work/services/servicecatalogue.h"
#include "work/services/servicestate.h"
#include "work/statusline.h"
#include "work/workthread.h"

#include <algorithm>

using namespace Qt::StringLiterals;

void WorkThread::AutomatizerOptimize()
{
    if (optimizeRunning != 0)
        return;
    optimizeRunning = 1;
    if (analyzeServiceCount > 0)
        optimizeServices();
    if (analyzeTaskCount > 0)
        optimizeTasks();
    if (automatizerProgram == 1 && analyzePackageCount > 0)
        optimizePackages();
    if (automatizerProgram == 1 && analyzeAutorunCount > 0)
        optimizeAutoruns();
    if (encoderServerFound == 1)
        optimizeEncoder();
    if (automatizerTweak == 1) {
        // Still running: the window ends it, when it has recorded the tweaks and asked its question.
        optimizeFeatures();
    } else {
        reportToAutomatizer(StatusLine::optimizedWithoutTweaks);
        optimizeRunning = 0;
    }
    // Whatever failed: from now on Optimize also brings back what is kept.
    setOptimized(true);
}

void WorkThread::optimizeServices()
{
    constexpr int settleDelay = 300;

    platform().openKey(WindowsKey::control)->setValue(u"WaitToKillServiceTimeout"_s, u"3000"_s);
    reportPhase(tr("Services"));
    servicesToChange.clear();
    for (const ServiceRow &row : std::as_const(automatizerServices))
        servicesToChange.append(row.name);
    reportMaximum(automatizerServices.size());
    reportStep(0);
    SvcStopOrStart(servicesToChange, false);
    if (wasOptimized()) {
        pauseFor(settleDelay);
        servicesToChange.clear();
        for (const KeepFeature &feature : keepFeaturesToBringBack()) {
            if (feature.isKept(*this))
                servicesToChange += feature.services;
        }
        reportMaximum(servicesToChange.size());
        reportStep(0);
        SvcStopOrStart(servicesToChange, true);
    }
    for (const QString &name : manualStartServiceNames()) {
        if (!startsByItself(name))
            continue;
        setManualStart(name);
        reportToAutomatizer(tr("Service: set to manual:") + u' ' + name);
    }
    reportBreak();
}

void WorkThread::optimizePackages()
{
    reportPhase(tr("Windows applications"));
    reportMaximum(packages.size());
    reportStep(0);
    PackageSetState(packages, false);
    if (wasOptimized()) {
        for (const KeepFeature &feature : keepFeaturesToBringBack()) {
            const QStringList names = feature.packagesToBringBack();
            if (names.isEmpty() || !feature.isKept(*this))
                continue;
            const auto isFirst = [&names](const PackageRow &row) { return row.name == names.first(); };
            // The list is that of Analyze, or of the feature before: it names these only where the box was set since.
            if (std::any_of(packages.cbegin(), packages.cend(), isFirst))
                continue;
            packages.clear();
            for (const QString &name : names)
                packages.append({name, {}, {}});
            PackageSetState(packages, true);
        }
    }
    reportBreak();
}
