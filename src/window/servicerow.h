// SPDX-License-Identifier: GPL-3.0-or-later
// What a row of the Services table says.

#pragma once

#include <QString>

struct ServiceRow;

/** "Auto", "Manual" or "Disabled" in the user's language; empty for other start modes. */
QString startModeText(const QString &start);

/** Whether Windows needs the service, so that its row is greyed and can't be checked. */
bool isCriticalService(const ServiceRow &row);
