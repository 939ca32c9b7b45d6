// SPDX-License-Identifier: GPL-3.0-or-later
// Whether this process may change the PC: by its rights, and by what other instances do.

#pragma once

#include <memory>

class Kestrune;

/** Whether this process has an elevated token; false where that is unknown. */
bool isProcessElevated();

/** Starts this program once more with administrator rights. Refusal and failure are silent. */
void startElevatedInstance();

/** Remembers the page for the elevated instance, starts that, and ends this one without waiting for it. */
void moveToElevatedInstance(Kestrune *window);

/** Tells that an action needs administrator rights and offers to start again with them. */
void showAdminRequiredDialog(Kestrune *window);

/** Whether this process may change the system. Where it may not, that dialog is shown. */
bool mayChange(Kestrune *window);

/** Keeps other instances from changing the PC, as Platform::lockOthersOut(); says so where one of them is at work. */
std::shared_ptr<void> lockOthersOutOrTell();
