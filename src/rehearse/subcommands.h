// SPDX-License-Identifier: GPL-3.0-or-later
// The subcommands of kestrune-rehearse, and what they share.

#pragma once

#include "console/arguments.h"

#include <memory>

class Machine;

enum ExitCode : int { ExitDone = 0, ExitJobFailed = 1, ExitBadArguments = 2, ExitMachineUnreadable = 3 };

/** An end with a message; the program's name is put before it. */
struct Failure
{
    ExitCode code;
    QString message;
};

struct Subcommand
{
    QLatin1StringView name;
    QLatin1StringView operands; ///< for the line of usage
    QLatin1StringView summary;
    std::span<const OptionRow> options;
    qsizetype fewestOperands = 0;
    qsizetype mostOperands = -1; ///< -1: any number
    int (*run)(const Arguments &arguments) = nullptr;
    QString (*moreHelp)() = nullptr;
};

extern const Subcommand newSubcommand;
extern const Subcommand listSubcommand;
extern const Subcommand runSubcommand;
extern const Subcommand importSubcommand;
extern const Subcommand exportSubcommand;
extern const Subcommand diffSubcommand;
extern const Subcommand guiSubcommand;
extern const Subcommand previewSubcommand;
extern const Subcommand tourSubcommand;
extern const Subcommand verifySubcommand;
extern const Subcommand captureSubcommand;

/** Opens a machine; a Failure of code 3 where that can't be done. */
std::unique_ptr<Machine> openMachine(const QString &folder);
/** The folder as an absolute path, since other processes are told of it. */
QString absoluteFolder(const QString &folder);

/** Writes to standard output. */
void print(const QString &text);
void print(const QByteArray &utf8);
