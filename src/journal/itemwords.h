// SPDX-License-Identifier: GPL-3.0-or-later
// What was changed, in words of the language that the program has installed; in English where it has none.

#pragma once

#include "takeback.h"

/** "Service Spooler: start mode" */
QString itemTitle(const Item &item);
/** "disabled", "dword 1"; what isn't there is "absent". */
QString stateText(const Item &item, const ItemState &state);
/** "as it was", "can be taken back" ... */
QString verdictText(WayBack verdict);
/** "finished", "broken off", "under way" */
QString sessionStateText(SessionState state);
/** The same of what is kept in English: what a session is called, and why something isn't back. */
QString translatedText(const QString &english);
/** Why it isn't back, with where a package can be had again; empty where there is nothing to say. */
QString whyText(const TakenItem &item);
