// SPDX-License-Identifier: GPL-3.0-or-later
// The subcommands of kestrune-cli.

#pragma once

#include "console/program.h"

extern const Subcommand statusSubcommand;
extern const Subcommand planSubcommand;
extern const Subcommand applySubcommand;
extern const Subcommand verifyPcSubcommand;
extern const Subcommand undoPcSubcommand;
extern const Subcommand profileSubcommand;
extern const Subcommand whySubcommand;

/** The program, with all of them in the order in which the help lists them. */
const Program &cliProgram();
