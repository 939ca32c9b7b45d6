// SPDX-License-Identifier: GPL-3.0-or-later

#include "tweakcommand.h"

#include "work/command.h"
#include "work/interruption.h"

using namespace Qt::StringLiterals;

void runTweakTool(const QString &program, const QStringList &arguments)
{
    Command command;
    command.start(program, arguments);
    command.waitForFinished();
    command.close();
}

void letSystemSettle(const QString &winName)
{
    pauseFor(winName.contains("11"_L1) ? 30 : 300);
}
