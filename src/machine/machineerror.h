// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/** What went wrong with a rehearsal machine, in one line for a person. */
struct MachineError
{
    QString message;
    bool damaged = false; ///< the machine's own files aren't what they were
};

/** Says what went wrong on the standard error, and keeps the first of it for takeMachineFailure(). Any thread. */
void sayMachineFailure(const MachineError &error);
/** What was said first since the last call; empty where nothing was. Any thread. */
QString takeMachineFailure();

/** The answer of a system without the thing, where the machine turns out damaged in use; what is wrong is said. */
template<typename Result, typename Operation>
Result guarded(Result fallback, Operation operation)
{
    try {
        return operation();
    } catch (const MachineError &error) {
        sayMachineFailure(error);
        return fallback;
    }
}
