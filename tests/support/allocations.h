// SPDX-License-Identifier: GPL-3.0-or-later
// How much memory this process has asked for so far: what copies its input again and again asks for ever more of it,
// on however fast or busy a computer.

#pragma once

#include <cstddef>

/** Bytes asked for by all threads since the start, given back or not. */
std::size_t bytesAllocated();
