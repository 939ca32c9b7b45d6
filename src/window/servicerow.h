// SPDX-License-Identifier: GPL-3.0-or-later
// What a row of the Services table says.

#pragma once

#include <QString>

struct ServiceRow;

/** "Auto", "Manual" or "Disabled" in the user's language; empty for other start modes. */
QString startModeText(const QString &start);

/** Name and description behind a colon, wrapped where it is long. The one place in a row that keeps the name. */
QString rowToolTip(const QString &name, const QString &description);

/** The name that rowToolTip() put before its first colon. */
QString nameFromToolTip(const QString &toolTip);

/** Whether Windows needs the service, so that its row is greyed and can't be checked. */
bool isCriticalService(const ServiceRow &row);
