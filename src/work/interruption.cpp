// SPDX-License-Identifier: GPL-3.0-or-later

#include "interruption.h"

#include "platform/platform.h"

#include <QThread>

namespace {

/** Lets a thread say of itself that it isn't to be ended by force any more. */
class CurrentThread : public QThread
{
public:
    static void refuseTermination() { setTerminationEnabled(false); }
};

} // namespace

void endIfInterrupted()
{
    if (!QThread::currentThread()->isInterruptionRequested())
        return;
    // The job begins to end in good order: being ended by force on its way out would end the process.
    CurrentThread::refuseTermination();
    throw JobInterrupted{};
}

void pauseFor(int milliseconds)
{
    platform().pause(milliseconds);
    endIfInterrupted();
}

void walkFolder(const QString &windowsPath, const std::function<void(const WalkEntry &)> &visit)
{
    const QThread *thread = QThread::currentThread();
    platform().walk(windowsPath, [&](const WalkEntry &entry) {
        if (thread->isInterruptionRequested())
            return false;
        visit(entry);
        return true;
    });
    endIfInterrupted();
}
