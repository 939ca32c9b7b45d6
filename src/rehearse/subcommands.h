// SPDX-License-Identifier: GPL-3.0-or-later
// The subcommands of kestrune-rehearse, and what they share.

#pragma once

#include "console/program.h"

#include <memory>

class Machine;
class RegistryStore;
/** All of them, in the order in which the help lists them. */
std::span<const Subcommand *const> allSubcommands();
extern const Subcommand newSubcommand;
extern const Subcommand listSubcommand;
extern const Subcommand runSubcommand;
extern const Subcommand importSubcommand;
extern const Subcommand exportSubcommand;
extern const Subcommand packSubcommand;
extern const Subcommand unpackSubcommand;
extern const Subcommand diffSubcommand;
extern const Subcommand guiSubcommand;
extern const Subcommand previewSubcommand;
extern const Subcommand tourSubcommand;
extern const Subcommand verifySubcommand;
extern const Subcommand captureSubcommand;
extern const Subcommand undoSubcommand;

/** Opens a machine; a Failure of code 3 where that can't be done. */
std::unique_ptr<Machine> openMachine(const QString &folder);
/** The same of one that will be changed; a Failure of code 1 where it is read-only. */
std::unique_ptr<Machine> openMachineToChange(const QString &folder);
/** The key of that path; a Failure of code 2 where there is none, or the path names no root. */
qint64 requireKey(const RegistryStore &store, const QString &path);
/** 'preview' with --profile or --all. The exit code. */
int previewProfile(const Arguments &arguments);
class Journal;
/** Takes changes back, or lists them, or writes the way back as files, as the options say. The exit code. */
int undoBy(const Journal &journal, const Arguments &arguments);
std::span<const OptionRow> undoOptions();

/** Writes the page that --html asks for, and prints where it is, unless a report is printed in its place. */
void writePage(const Arguments &arguments, const QString &page);

struct WrittenWayBack;
/** Prints the files, and what was left out. */
void printWritten(const WrittenWayBack &wayBack);
