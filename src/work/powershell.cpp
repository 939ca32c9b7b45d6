// SPDX-License-Identifier: GPL-3.0-or-later
// Where PowerShell is.

#include "platform/platform.h"
#include "workthread.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

QString WorkThread::powerShellProgram()
{
    powerShellPath = qEnvironmentVariable("windir") + u"/system32/WindowsPowerShell/v1.0/powershell.exe"_s;
    return QFileInfo::exists(platform().hostPath(powerShellPath)) ? powerShellPath : QString();
}
