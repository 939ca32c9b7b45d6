// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-cli: what the window does, on the PC that it runs on, from a command line or a profile.

#include "commands.h"

#include <QCoreApplication>

int main(int argc, char *argv[])
{
    QCoreApplication::setApplicationVersion(QStringLiteral(KESTRUNE_VERSION));
    return runProgram(cliProgram(), argc, argv);
}
