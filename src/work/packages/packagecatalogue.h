// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about packaged applications.

#pragma once

#include "work/workthread.h"

#include <span>

/** OneDrive's installer is no package; this row stands for it. */
inline const QString oneDriveName = QStringLiteral("MS OneDrive");

/** Packages that can be removed. Compared with case; a leading "!" switches an entry off. */
QStringList removablePackageNames();

/** Packages of the Xbox game bar, the Xbox app and Microsoft's codecs that go when the feature is given up. */
QStringList xboxGameBarPackages();
QStringList xboxAppPackages();
QStringList codecPackages();

/** A feature of the Keep list with the packages that go with it. */
struct KeepFeaturePackages
{
    std::atomic<int> WorkThread::*keep; ///< 0 when the feature is given up
    int WorkThread::*installed;         ///< what PackageGetList says of it
    QStringList packages;
    QString superseded; ///< the one that goes with the others and never comes back; empty where all do

    /** The packages to install for a feature that is kept. */
    QStringList toBringBack() const;
};

/** The features that have packages, in the order in which these come back. */
std::span<const KeepFeaturePackages> keepFeaturePackages();

/** A remark on a package by its family name, in the user's language; mostly empty. */
QString packageComment(const QString &familyName);
