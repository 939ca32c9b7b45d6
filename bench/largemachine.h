// SPDX-License-Identifier: GPL-3.0-or-later
// A machine far larger than any PC.

#pragma once

class QString;

/**
 * Makes the built-in Windows 11 PC in a folder that isn't there yet, with 5,000 more services, 20,000 more tasks (200
 * of which Optimize disables) and a million more registry values.
 */
void makeLargeMachine(const QString &folder);
