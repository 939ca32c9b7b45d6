// SPDX-License-Identifier: GPL-3.0-or-later
// What the program knows about packaged applications.

#pragma once

#include <QStringList>

/** OneDrive's installer is no package; this row stands for it. */
inline const QString oneDriveName = QStringLiteral("MS OneDrive");

/** Packages that can be removed. Compared with case; a leading "!" switches an entry off. */
QStringList removablePackageNames();

/** A remark on a package by its family name, in the user's language; mostly empty. */
QString packageComment(const QString &familyName);
