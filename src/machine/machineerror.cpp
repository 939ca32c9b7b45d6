// SPDX-License-Identifier: GPL-3.0-or-later

#include "machineerror.h"

#include <mutex>
#include <utility>

namespace {

std::mutex lock;
QString first;

} // namespace

void sayMachineFailure(const MachineError &error)
{
    qWarning("%s", qUtf8Printable(error.message));
    const std::lock_guard hold(lock);
    if (first.isEmpty())
        first = error.message;
}

QString takeMachineFailure()
{
    const std::lock_guard hold(lock);
    return std::exchange(first, QString());
}
