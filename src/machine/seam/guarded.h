// SPDX-License-Identifier: GPL-3.0-or-later
// Questions to a machine that may turn out damaged while it is in use.

#pragma once

#include "machine/machineerror.h"

/** What is wrong with the machine is said, and the question gets the answer of a system without the thing. */
template<typename Result, typename Operation>
Result guarded(Result fallback, Operation operation)
{
    try {
        return operation();
    } catch (const MachineError &error) {
        qWarning("%s", qUtf8Printable(error.message));
        return fallback;
    }
}
