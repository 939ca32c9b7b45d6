// SPDX-License-Identifier: GPL-3.0-or-later
// Which graphics card this machine has.

#pragma once

#include <QString>

#include <optional>

/** The name of the first display adapter, as WMI lists them; nothing where there is none. Any thread. */
std::optional<QString> firstDisplayAdapter();
