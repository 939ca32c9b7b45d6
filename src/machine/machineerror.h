// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

/** What went wrong with a rehearsal machine, in one line for a person. */
struct MachineError
{
    QString message;
    bool damaged = false; ///< the machine's own files aren't what they were
};

/** The answer of a system without the thing, where the machine turns out damaged in use; what is wrong is said. */
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
