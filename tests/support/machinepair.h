// SPDX-License-Identifier: GPL-3.0-or-later
// A machine of a test beside a fresh one of the same kind, to be compared as wholes.

#pragma once

#include "machine/compare/machinediff.h"
#include "machine/source/machinesource.h"
#include "testmachine.h"

#include <QCoreApplication>

/** A PC of the test beside a fresh one of the same kind. */
class MachinePair
{
public:
    explicit MachinePair(const QString &builtIn)
        : machine(builtIn)
    {
        makeMachine(folder_.path() + QStringLiteral("/fresh"),
                    QCoreApplication::applicationDirPath() + QStringLiteral("/machines/") + builtIn, Existing::Keep);
        fresh_ = Machine::open(folder_.path() + QStringLiteral("/fresh"));
    }

    /** What differs, each as kind, path and name; the options of the program itself are left out. */
    QStringList differences(bool withEmptyKeys = false)
    {
        QStringList result;
        for (const DiffRow &row : compareMachines(*fresh_, machine.machine())) {
            const bool emptyKey = row.kind == DiffKind::Registry && row.name.isEmpty() && row.before.isEmpty();
            if (row.path == settingsKey || (emptyKey && !withEmptyKeys))
                continue;
            result.append(kindName(row.kind) + u' ' + row.path
                          + (row.name.isEmpty() ? QString() : QStringLiteral(" | ") + row.name));
        }
        result.sort();
        return result;
    }

    Machine &fresh() { return *fresh_; }

    TestMachine machine;

private:
    QTemporaryDir folder_;
    std::unique_ptr<Machine> fresh_;
};
