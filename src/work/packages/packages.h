// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about packaged applications, which are there, and the record of those that were removed.

#pragma once

#include "platform/windowsfacts.h"

#include <QString>
#include <QStringList>

/** The name under which the page records the old Xbox app: with its remark, in the user's language. */
QString oldXboxAppRecord();
/** The package that a record is of: the old Xbox app's may have a remark after its name, of before a change of
 * language. */
QString recordedPackage(const QString &record);

/** Packages that can be removed. Compared with case; a leading "!" switches an entry off. */
QStringList removablePackageNames();

/** A remark on a package by its family name, in the user's language; mostly empty. */
QString packageComment(const QString &familyName);

/** Whether the user has a package, by its name without regard to case; of OneDrive's own row whether that is there. */
bool isPackageInstalled(const QString &name);

/**
 * Takes a package into the record, or out of it, if the line of the job that changes them says that it was removed or
 * installed.
 */
void recordPackageLine(const QString &line, bool install);
