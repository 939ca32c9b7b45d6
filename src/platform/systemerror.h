// SPDX-License-Identifier: GPL-3.0-or-later
// What the system says of the call before.

#pragma once

#include <QtGlobal>

/** The number of the calling thread's last error in a call into the system, as the system counts them. */
quint32 lastSystemError();
