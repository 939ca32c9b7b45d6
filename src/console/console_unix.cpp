// SPDX-License-Identifier: GPL-3.0-or-later

#include "console.h"

#include <unistd.h>

namespace {

const pid_t starter = getppid();

} // namespace

void useBinaryOutput() {}

void useUtf8Output() {}

bool errorsGoToTerminal()
{
    return isatty(STDERR_FILENO) != 0;
}

bool starterIsGone()
{
    return getppid() != starter;
}

QString consoleText(const QByteArray &bytes)
{
    return fromConsoleBytes(bytes);
}
