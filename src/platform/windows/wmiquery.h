// SPDX-License-Identifier: GPL-3.0-or-later
// WMI over COM.

#pragma once

#include "platform/platform.h"

/** See Platform::queryWmi. Sets COM up for the calling thread and undoes it, so that any thread may call it. */
WmiAnswer readWmi(const QString &className, const QStringList &properties);
