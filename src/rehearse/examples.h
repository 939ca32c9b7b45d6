// SPDX-License-Identifier: GPL-3.0-or-later
// What the help shows of a command to copy and try.

#pragma once

#include <QString>

/** The examples of a subcommand, each a command line and what it does; empty where it has none. */
QString examplesOf(QLatin1StringView subcommand);
