// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <mutex>
#include <utility>

/** What went wrong with a rehearsal machine, in one line for a person. */
struct MachineError
{
    QString message;
    bool damaged = false; ///< the machine's own files aren't what they were
};

/** What rehearsal machines have failed by. Any thread. */
class MachineFailures
{
public:
    /** Says it on the standard error, and keeps the first one. */
    static void say(const MachineError &error)
    {
        qWarning("%s", qUtf8Printable(error.message));
        const std::lock_guard hold(lock_);
        if (first_.isEmpty())
            first_ = error.message;
    }
    /** The first one since the last call; empty where there was none. */
    static QString take()
    {
        const std::lock_guard hold(lock_);
        return std::exchange(first_, QString());
    }

private:
    static inline std::mutex lock_;
    static inline QString first_;
};

/** The answer of a system without the thing, where the machine turns out damaged in use; what is wrong is said. */
template<typename Result, typename Operation>
Result guarded(Result fallback, Operation operation)
{
    try {
        return operation();
    } catch (const MachineError &error) {
        MachineFailures::say(error);
        return fallback;
    }
}
