// SPDX-License-Identifier: GPL-3.0-or-later

#include "interruption.h"

#include "platform/platform.h"

#include <QThread>

void endIfInterrupted()
{
    if (QThread::currentThread()->isInterruptionRequested())
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
