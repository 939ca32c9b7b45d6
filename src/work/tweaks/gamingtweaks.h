// SPDX-License-Identifier: GPL-3.0-or-later
// The tweaks of the gaming group that are more than values.

#pragma once

#include <QString>

/** Takes the platform clock out of use, by the boot configuration on Windows 11 and by its driver elsewhere. */
void setPlatformClockTweak(bool apply, const QString &winName);
/** Lets the boot configuration switch the dynamic tick off, or on again. */
void setDynamicTickTweak(bool apply);
/** Lets TCP acknowledge at once on the interfaces that have an address by DHCP, or as it does by default. */
void setTcpAcknowledgementTweak(bool apply);
/** Sets the quantum of the scheduler by the place of a choice, or takes the setting away. */
void setQuantumTweak(bool apply, int index);
/** Switches the ultra low power state of all display adapters, of any vendor, off or on. */
void setUlpsTweak(bool apply);
