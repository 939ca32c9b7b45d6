// SPDX-License-Identifier: GPL-3.0-or-later
// The features of the Keep list, and what goes with each when it is given up.

#pragma once

#include "workthread.h"

#include <array>

struct KeepFeature
{
    QLatin1StringView name;             ///< for command lines; what the user reads is the window's matter
    std::atomic<int> WorkThread::*keep; ///< 0 when the feature is given up
    QStringList services{};
    QStringList tasks{};  ///< the ends of their names
    QString taskFolder{}; ///< where Windows has them, from backslash to backslash
    QStringList packages{};
    QString superseded{};                 ///< of the packages the one that never comes back; empty where all do
    int WorkThread::*installed = nullptr; ///< what PackageGetList says of the packages

    bool isKept(const WorkThread &worker) const { return worker.*keep != 0; }
    /** Whether a task is one of the feature's, by the part of its path after the last backslash. */
    bool hasTask(const QString &taskName) const;
    /** The packages to install for a feature that is kept. */
    QStringList packagesToBringBack() const;
};

/** In the order of the list, in which their services join the non-vital ones. */
extern const std::array<KeepFeature, 9> keepFeatures;

/** In the order in which what belongs to those that are kept is brought back. */
QList<KeepFeature> keepFeaturesToBringBack();

/** Whether a feature that is kept names the service; an instance of one user's is named by more than that. */
bool isOfKeptFeature(const WorkThread &worker, const QString &service);

/** Adds the services of every feature that is given up to the worker's non-vital services. */
void addServicesOfFeaturesGivenUp(WorkThread &worker);

/** The setting that stores a row of the list. Row 0 is the list's title, and row 1 the first feature. */
inline QString keepSetting(qsizetype row)
{
    return QStringLiteral("Keep_%1").arg(row);
}
