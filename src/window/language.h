// SPDX-License-Identifier: GPL-3.0-or-later
// The languages that can be chosen.

#pragma once

/** A row of cbOptionsLang; Auto is the language of the system, as far as there is a file for it. */
enum LanguageChoice : int { English = 0, French = 1, Auto = 2 };
