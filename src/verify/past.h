// SPDX-License-Identifier: GPL-3.0-or-later
// What is known of a machine's past: what its tools were asked, and what its journal has noted.

#pragma once

#include "journal/item.h"
#include "machine/compare/diffrow.h"
#include "machine/machine.h"

#include <QHash>

#include <functional>

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

class Past
{
public:
    /** Reads the machine's journal, and changes nothing in it. Throws MachineError. */
    explicit Past(const Machine &machine);

    /** False on a captured PC, and where nothing was ever changed with the rights of an administrator. */
    bool isKnown() const { return isKnown_; }
    /** The last session that put the item into such a state, in words; empty where none did. */
    QString changeOf(const Item &item, const std::function<bool(const ItemState &)> &isSuch) const;
    /** The last one that put what the row is about into the state after which it asks. */
    QString changeOf(const DiffRow &row) const;

private:
    bool isKnown_ = false;
    struct Change
    {
        ItemState to{};
        QString session{};
    };
    QMultiHash<QString, Change> changes_; ///< by folded item, the last one first
};
