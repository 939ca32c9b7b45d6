// SPDX-License-Identifier: GPL-3.0-or-later
// A program of subcommands: its help, its complaints and its exit codes.

#pragma once

#include "arguments.h"

class QProcess;

enum ExitCode : int {
    ExitDone = 0,
    ExitJobFailed = 1,
    ExitBadArguments = 2,
    ExitMachineUnreadable = 3,
    ExitNoRights = 5,         ///< administrator rights are needed
    ExitRestartWanted = 3010, ///< done, and in force after a restart
};

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

/** What the help of a command shows to copy and try. */
struct ExampleRow
{
    QLatin1StringView subcommand;
    QLatin1StringView line; ///< after the program's name
    QLatin1StringView meaning;
};

struct Program
{
    QLatin1StringView name;
    QLatin1StringView summary;                      ///< what it is there for, with its line breaks
    std::span<const Subcommand *const> subcommands; ///< in the order in which the help lists them
    std::span<const ExampleRow> examples;           ///< they can be tried from the top to the bottom
    QLatin1StringView start;                        ///< what to begin with: "%1" is the program's name
    QLatin1StringView exitStatus;                   ///< with a full stop and line breaks
    void (*begin)() = nullptr;                      ///< is called before a command; may be null
    std::span<const OptionRow> options{};           ///< that every command takes
};

/** What a main() is but for its tables: runs what the command line says, and tells what is wrong with it. */
int runProgram(const Program &program, int argc, char *argv[]);
/** A script for PowerShell, after which it completes the commands, operands and options of the program. */
QString powershellCompletions(const Program &program);
/** The examples of a command below a headline; empty where it has none. */
QString examplesOf(const Program &program, QLatin1StringView subcommand);

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

/** The folder as an absolute path, since other processes are told of it. */
QString absoluteFolder(const QString &folder);

/** Another program of ours, which lies beside this one, or in the folder "rehearse"; empty where it is missing. */
QString siblingProgram(const QString &name);

/** Writes to standard output. */
void print(const QString &text);
void print(const QByteArray &utf8);

/**
 * Waits for a program that was started, however long it takes. Where this program is broken off, or the other one was,
 * it is ended with all that it runs, and Interrupted is thrown. False where it didn't start, or didn't end by itself.
 */
bool waitForEnd(QProcess &process);

/** Fails before long work where a report can't be written. Leaves nothing there. Throws Failure. */
void checkReportFile(const QString &path);
/** The same for a report of several files, which no device or pipe can take. */
void checkReportFiles(const QString &path);
/**
 * Writes a report as a whole, or leaves what was there. A device or a pipe is written to, and never replaced; "-" is
 * standard output. Throws Failure.
 */
void writeReportFile(const QString &path, const QByteArray &report);
