// SPDX-License-Identifier: GPL-3.0-or-later
// The way back as files, for the system's own tools: in Safe Mode, or where this program is gone.

#pragma once

#include "takeback.h"
#include "wayback/waybackscript.h"

/** What of a selection can be taken back, as steps; the present state of things is read. Throws MachineError. */
WayBackScript wayBackScript(const Journal &journal, const Selection &selection);

/** Writes that as way-back.reg and what belongs to it into a folder, which is made. Throws MachineError. */
WrittenWayBack writeWayBack(const Journal &journal, const Selection &selection, const QString &folder);

/**
 * Writes a session's way back into a folder of its own beside the journal, where the last ten are kept. Nothing is
 * written of a session that has changed nothing. Throws MachineError.
 */
void keepWayBack(const Journal &journal, qint64 session);
