// SPDX-License-Identifier: GPL-3.0-or-later
// Ends with the code that it is given, after the pause in milliseconds that may follow it.

#include <windows.h>

#include <cstdlib>

int main(int argc, char **argv)
{
    if (argc > 2)
        Sleep(static_cast<DWORD>(std::atoi(argv[2])));
    return argc > 1 ? static_cast<int>(std::strtol(argv[1], nullptr, 0)) : 0;
}
