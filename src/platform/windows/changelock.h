// SPDX-License-Identifier: GPL-3.0-or-later
// One instance of the program at a time changes the PC.

#pragma once

#include <memory>

/** The mutex that stands for it, in all sessions of the PC. */
inline constexpr wchar_t changeLockName[] = L"Global\\KestruneChanges";

/** See Platform::lockOthersOut(). */
std::shared_ptr<void> lockChanges();
