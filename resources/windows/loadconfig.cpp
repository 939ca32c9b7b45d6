// SPDX-License-Identifier: GPL-3.0-or-later
// What Windows goes by when it loads a program. scripts/windows/setloadconfig.pl finds it by the name of its section.

#include <windows.h>

namespace {

constexpr IMAGE_LOAD_CONFIG_DIRECTORY64 configuration()
{
    IMAGE_LOAD_CONFIG_DIRECTORY64 result{};
    result.Size = sizeof(result);
    // DependentLoadFlags, as it is called now: the DLLs that the header names come from the system's folder.
    result.Reserved1 = LOAD_LIBRARY_SEARCH_SYSTEM32;
    return result;
}

} // namespace

// Nothing refers to it: the linker is told to keep it by this name.
extern "C" {
extern const IMAGE_LOAD_CONFIG_DIRECTORY64 kestruneLoadConfiguration;
[[gnu::section(".ldcfg")]] constexpr IMAGE_LOAD_CONFIG_DIRECTORY64 kestruneLoadConfiguration = configuration();
}
