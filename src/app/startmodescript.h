// SPDX-License-Identifier: GPL-3.0-or-later
// Looks into a registry script before the registry editor gets it from an elevated program.

#pragma once

#include <QByteArray>

/**
 * Whether the script does nothing but set start modes of services, as the backup of them does: every program of the
 * user may have written another one in its place. Only the form in which that backup is written is taken.
 */
bool setsStartModesOnly(const QByteArray &script);
