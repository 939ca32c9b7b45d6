// SPDX-License-Identifier: GPL-3.0-or-later

#include "childprocess.h"

#include "console/programinterruption.h"

#include <QProcess>

namespace {

/** Lets it end what it runs itself; a console's Ctrl-C has reached it anyway. */
void end(QProcess &process)
{
    constexpr int patience = 5000;

    process.terminate();
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished(-1);
    }
}

} // namespace

bool waitForEnd(QProcess &process)
{
    process.waitForStarted(-1);
    while (process.state() != QProcess::NotRunning && !process.waitForFinished(interruptionSlice)) {
        if (isInterrupted())
            end(process);
    }
    stopIfInterrupted();
    return process.error() != QProcess::FailedToStart && process.exitStatus() == QProcess::NormalExit;
}
