// SPDX-License-Identifier: GPL-3.0-or-later
// The video encoder that comes with the overlay program RivaTuner Statistics Server.

#pragma once

#include <atomic>

/** 1 when the last Analyze saw an encoder process that can be switched off. */
extern std::atomic<int> encoderServerFound;
