// SPDX-License-Identifier: GPL-3.0-or-later
// The subcommands of kestrune-rehearse, and what they share.

#pragma once

#include "console/arguments.h"

#include <memory>

class Machine;
class RegistryStore;
class QProcess;

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

/** All of them, in the order in which the help lists them. */
std::span<const Subcommand *const> allSubcommands();
/** What the help shows of one to copy and try: command lines and what they do; empty where it has none. */
QString examplesOf(QLatin1StringView subcommand);

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
extern const Subcommand undoSubcommand;

/** Opens a machine; a Failure of code 3 where that can't be done. */
std::unique_ptr<Machine> openMachine(const QString &folder);
/** The same of one that will be changed; a Failure of code 1 where it is read-only. */
std::unique_ptr<Machine> openMachineToChange(const QString &folder);
/** The key of that path; a Failure of code 2 where there is none, or the path names no root. */
qint64 requireKey(const RegistryStore &store, const QString &path);
/** The folder as an absolute path, since other processes are told of it. */
QString absoluteFolder(const QString &folder);

/** What a program that steers this one gives beside the rest; both commands of a preview take it. */
inline constexpr OptionRow steeredOption{
    QLatin1StringView("steered"),
    {},
    QLatin1StringView("for a program: tell each step in a line, and end when standard input ends"),
    QLatin1StringView("Tells each step in a line on standard error, as\n.IR DONE , TOTAL\nand\n.I STEP\nwith tabs "
                      "between them, and ends when standard input does: for a program that starts this one."),
};
/** Whether it is steered; then the end of standard input is watched from now on. */
bool isSteered(const Arguments &arguments);

/** Writes to standard output. */
void print(const QString &text);
void print(const QByteArray &utf8);

/**
 * Waits for a program that was started, however long it takes. Where this program is broken off, or the other one was,
 * it is ended with all that it runs, and Interrupted is thrown. False where it didn't start, or didn't end by itself.
 */
bool waitForEnd(QProcess &process);

struct WrittenWayBack;
/** Prints the files, and what was left out. */
void printWritten(const WrittenWayBack &wayBack);

/** Fails before long work where a report can't be written. Leaves nothing there. Throws Failure. */
void checkReportFile(const QString &path);
/** The same for a report of several files, which no device or pipe can take. */
void checkReportFiles(const QString &path);
/**
 * Writes a report as a whole, or leaves what was there. A device or a pipe is written to, and never replaced; "-" is
 * standard output. Throws Failure.
 */
void writeReportFile(const QString &path, const QByteArray &report);
