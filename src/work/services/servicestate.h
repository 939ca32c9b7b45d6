// SPDX-License-Identifier: GPL-3.0-or-later
// Changes of how services start, besides disabling and enabling them, which are jobs of WorkThread.

#pragma once

#include <QString>

/** Whether the service is there and set to start in another way than on demand or not at all. */
bool startsByItself(const QString &service);
/** Lets the service start on demand. */
void setManualStart(const QString &service);
