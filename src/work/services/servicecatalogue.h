// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about services: which matter, which don't, and which belong to a feature.

#pragma once

#include "work/workthread.h"

#include <span>

/** Services that Windows can't do without; the Services page greys them. Compared with case. */
extern const QStringList criticalServices;

/** Services that most people don't need. */
QStringList nonVitalServiceNames();

/** Services that needn't start by themselves, but aren't disabled: what uses them starts them. */
QStringList manualStartServiceNames();

/** Services that the start-mode backup leaves out. Compared with case. */
QStringList startModeBackupExclusions();

/** A feature of the Keep list with the services that go with it. */
struct KeepFeatureServices
{
    std::atomic<int> WorkThread::*keep; ///< 0 when the feature is given up
    QStringList services;
};

/** The features that have services, in the order in which their services join the non-vital ones. */
std::span<const KeepFeatureServices> keepFeatureServices();

/**
 * The same in the order in which the services of features that are kept are brought back: the Xbox app's come last.
 */
QList<KeepFeatureServices> keepFeatureServicesToBringBack();

/** Adds the services of every feature that is given up to the worker's non-vital services. */
void addServicesOfFeaturesGivenUp(WorkThread &worker);
