// SPDX-License-Identifier: GPL-3.0-or-later

#include "console.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>

void useBinaryOutput()
{
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

bool errorsGoToTerminal()
{
    return _isatty(_fileno(stderr)) != 0;
}

bool starterIsGone()
{
    return false;
}
