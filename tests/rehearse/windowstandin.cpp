// SPDX-License-Identifier: GPL-3.0-or-later
// Stands in for the program with the window: tells what it was given, and ends with a code of its own.

#include <cstdio>
#include <cstdlib>

int main()
{
    constexpr int ownCode = 7;

    std::printf("%s %s\n", std::getenv("KESTRUNE_MACHINE"), std::getenv("KESTRUNE_ELEVATED"));
    return ownCode;
}
