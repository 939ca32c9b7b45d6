// SPDX-License-Identifier: GPL-3.0-or-later
// The size of the WinSxS folder.

#include "interruption.h"
#include "platform/platform.h"
#include "workthread.h"

using namespace Qt::StringLiterals;

void WorkThread::WinSxsSize()
{
    constexpr double gibibytesPerByte = 1.0 / (1024.0 * 1024.0 * 1024.0);

    report(tr("Status: Getting WinSxS folder size..."));
    qint64 bytes = 0;
    walkFolder(qEnvironmentVariable("windir") + u"\\WinSxS"_s,
               [&bytes](const WalkEntry &entry) { bytes += entry.size; });
    report(QString::number(static_cast<double>(bytes) * gibibytesPerByte, 'g', 6));
    report(tr("Status: Getting WinSxS folder size finished!"));
    pauseFor(3000);
    // The empty line clears the status.
    report(QString());
}
