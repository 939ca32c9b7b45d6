// SPDX-License-Identifier: GPL-3.0-or-later
// What the tools of a machine were asked, by its log of commands.

#pragma once

#include "machine/machine.h"

struct ToolRun
{
    QString program;
    QStringList arguments;
    int exitCode = 0;
};

/** The runs in their order. Empty where no tool has run, as on a captured PC; half a line at the end is left out. */
QList<ToolRun> readToolLog(const Machine &machine);

/** Which way a tool switches a thing. */
enum class Switch { Off, On };

/** A run that switches a service, a task or a package. */
struct SwitchRun
{
    QString tool;
    QString name; ///< of the thing, as the tool was told
    Switch to = Switch::Off;
    int exitCode = 0;
};

/** The last of the runs that switches each service, task (by its path with a backslash first) or package. */
struct LastSwitches
{
    explicit LastSwitches(const QList<ToolRun> &runs);

    // By name in upper case.
    QMap<QString, SwitchRun> services;
    QMap<QString, SwitchRun> tasks;
    QMap<QString, SwitchRun> packages;
};

/** A path of a task with its backslash; those in the root folder are named without. */
QString taskPath(const QString &name);
