// SPDX-License-Identifier: GPL-3.0-or-later
// What was changed, in words.

#pragma once

#include "takeback.h"

/** "service Spooler: how it starts"; in English. */
QString itemTitle(const Item &item);
/** "disabled", "dword 1"; what isn't there is "absent". */
QString stateText(const Item &item, const ItemState &state);
/** "as it was", "can be taken back" ... */
QString verdictText(WayBack verdict);
/** "finished", "broken off", "under way" */
QString sessionStateText(SessionState state);
