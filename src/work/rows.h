// SPDX-License-Identifier: GPL-3.0-or-later
// The rows that jobs give to the window and take from it.

#pragma once

#include "platform/windowsfacts.h"

#include <QString>

struct ServiceRow
{
    QString name;        ///< key name below Services
    QString displayName; ///< resolved, or the name where it can't be read
    QString description; ///< resolved, or "no description"
    QString type;        ///< "16", "32", "96", "224" or "272"
    QString start;       ///< "2" automatic, "3" manual, "4" disabled; others as they read
    bool running = false;

    bool startsAs(StartMode mode) const { return start == QString::number(mode); }
};

struct TaskRow
{
    QString path; ///< without its leading backslash
    QString description;
    QString name;     ///< the path's part after its last backslash
    QString extra;    ///< always empty
    int disabled = 0; ///< listed: 1 is switched off; to change: 1 disables, 0 enables
};

struct PackageRow
{
    QString name; ///< family name up to its first "_"
    QString displayName;
    QString comment; ///< a remark; for OneDrive's own row the path of its uninstaller
};

/** "<key>\<name>=<data>": a program started at logon. */
using AutorunRow = QString;
