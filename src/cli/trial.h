// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a change is in force, by trying it with nobody to carry it out.

#pragma once

#include <functional>

class SystemState;

/** What a routine would do if it ran now. */
enum class TrialResult {
    ChangesNothing, ///< all that it sets is as it sets it
    Changes,
    Unknown, ///< what it asks for can't be read, for want of rights mostly
};

/**
 * Runs a routine that changes something on the platform in force, and lets it change nothing: no value is written, no
 * key is made, no tool is started but to list the services, no file is touched, and no pause is made. The routine must
 * not need what it has written itself, or what a tool prints.
 * @param ofUser gets whether it sets something of the current user's; may be null
 */
TrialResult tryOut(SystemState &system, const std::function<void()> &routine, bool *ofUser = nullptr);
