// SPDX-License-Identifier: GPL-3.0-or-later

#include "program.h"

#include "console.h"
#include "machine/machineerror.h"
#include "platform/processground.h"
#include "printable.h"
#include "programinterruption.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr QLatin1StringView standardOutput("-");

/** Lets it end what it runs itself; a console's Ctrl-C has reached it anyway. */
void end(QProcess &process)
{
    constexpr int patience = 5000;

    process.terminate();
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished(-1);
    }
}

[[noreturn]] void fail(const QString &path, const QString &reason)
{
    throw Failure{ExitJobFailed, u"%1: %2"_s.arg(QDir::toNativeSeparators(path), reason)};
}

/** A saved file takes the place of what was there, and a device mustn't be replaced. */
bool isDevice(const QString &path)
{
    const QFileInfo info(absolutePath(path));
    return info.exists() && !info.isFile() && !info.isDir();
}

void open(QFileDevice &file, const QString &path)
{
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        fail(path, file.errorString());
}

void write(QFileDevice &file, const QString &path, const QByteArray &report)
{
    if (file.write(report) != report.size())
        fail(path, file.errorString());
}

QList<OptionRow> optionsOf(const Program &program, const Subcommand &subcommand)
{
    QList<OptionRow> options(subcommand.options.begin(), subcommand.options.end());
    options.append(QList<OptionRow>(program.options.begin(), program.options.end()));
    return options;
}

QString optionsText(const QList<OptionRow> &options)
{
    QString text;
    for (const OptionRow &option : options) {
        QString word = u"  --"_s + option.name;
        if (!option.value.isEmpty())
            word += u' ' + QString(option.value);
        text += word.leftJustified(26) + u"  "_s + option.help + u'\n';
    }
    return text + u"  --help                    display this help and exit\n"_s;
}

void printHelp(const Program &program, const Subcommand &subcommand)
{
    const QList<OptionRow> options = optionsOf(program, subcommand);
    print((u"Usage: %1 %2 %3"_s.arg(program.name, subcommand.name, subcommand.operands).trimmed()
           + (options.isEmpty() ? ""_L1 : " [OPTION]..."_L1) + u'\n'));
    QString summary = subcommand.summary;
    summary[0] = summary.at(0).toUpper();
    print(summary + u".\n\n"_s + optionsText(options));
    if (subcommand.moreHelp != nullptr) {
        if (const QString more = subcommand.moreHelp(); !more.isEmpty())
            print(u'\n' + more);
    }
    if (const QString examples = examplesOf(program, subcommand.name); !examples.isEmpty())
        print(u'\n' + examples);
}

void printHelp(const Program &program)
{
    print(u"Usage: %1 COMMAND [ARG]...\n"_s.arg(program.name) + program.summary + u"\nCommands:\n"_s);
    for (const Subcommand *subcommand : program.subcommands)
        print(u"  "_s + QString(subcommand->name).leftJustified(9) + subcommand->summary + u'\n');
    print(u"\nOptions:\n"
          "  --help         display this help and exit\n"
          "  --version      output version information and exit\n"
          "  --completions  output a script for PowerShell that completes commands and options, and exit\n\n"
          "To begin with:\n"_s
          + QString(program.start).replace("%1"_L1, program.name)
          + u"\nExit status: %2'%1 COMMAND --help' explains a command, with examples.\n"_s.arg(program.name,
                                                                                               program.exitStatus));
}

const Subcommand &findSubcommand(const Program &program, const QStringList &words)
{
    if (words.isEmpty())
        throw UsageError{u"missing command"_s};
    QStringList names;
    for (const Subcommand *subcommand : program.subcommands) {
        if (words.first() == subcommand->name)
            return *subcommand;
        names.append(subcommand->name);
    }
    if (words.first().startsWith(u'-'))
        throw UsageError{u"unrecognized option '%1'"_s.arg(words.first())};
    throw UsageError{u"unknown command '%1'"_s.arg(words.first()) + choicesText(words.first(), u"Commands"_s, names)};
}

/** Whether help is asked for, before the words that are no options any more. */
bool asksForHelp(const QStringList &words)
{
    const qsizetype end = words.indexOf(u"--"_s);
    return words.first(end < 0 ? words.size() : end).contains(u"--help"_s);
}

int run(const Program &program, const QStringList &words)
{
    if (words.value(0) == "--help"_L1) {
        printHelp(program);
        return ExitDone;
    }
    if (words.value(0) == "--version"_L1) {
        print(u"%1 (Kestrune) %2\n"_s.arg(program.name, QCoreApplication::applicationVersion()));
        return ExitDone;
    }
    if (words.value(0) == "--completions"_L1) {
        print(powershellCompletions(program));
        return ExitDone;
    }
    const Subcommand &subcommand = findSubcommand(program, words);
    if (asksForHelp(words.mid(1))) {
        printHelp(program, subcommand);
        return ExitDone;
    }
    return subcommand.run(
        Arguments(words.mid(1), optionsOf(program, subcommand), subcommand.fewestOperands, subcommand.mostOperands));
}

/** What fails after the program was broken off may fail because of that, and isn't reported. */
void complain(const Program &program, const QString &message)
{
    stopIfInterrupted();
    std::fflush(stdout);
    QStringList lines = message.split(u'\n');
    std::transform(lines.cbegin(), lines.cend(), lines.begin(), printable);
    std::fprintf(stderr, "%s: %s\n", program.name.data(), lines.join(u'\n').toUtf8().constData());
}

int runAndComplain(const Program &program, const QStringList &words)
{
    try {
        const int code = run(program, words);
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
            throw Failure{ExitJobFailed, u"standard output can't be written"_s};
        return code;
    } catch (const UsageError &error) {
        complain(program, error.message);
        std::fprintf(stderr, "Try '%s --help' for more information.\n", program.name.data());
        return ExitBadArguments;
    } catch (const Failure &failure) {
        complain(program, failure.message);
        return failure.code;
    } catch (const MachineError &error) {
        complain(program, error.message);
        return error.damaged ? ExitMachineUnreadable : ExitJobFailed;
    }
}

/** As PowerShell takes it between single quotation marks. */
QString quoted(QString text)
{
    return u'\'' + text.replace(u'\'', "''"_L1) + u'\'';
}

QString completion(const QString &word, const QString &meaning)
{
    return u"        %1 = %2\n"_s.arg(quoted(word), quoted(meaning));
}

/** The words that an operand may be: "new|check|schema [FILE]" has three. */
QStringList operandWords(const Subcommand &subcommand)
{
    const QStringList words = QString(subcommand.operands).section(u' ', 0, 0).split(u'|');
    return words.size() > 1 ? words : QStringList();
}

} // namespace

int runProgram(const Program &program, int argc, char *argv[])
{
    prepareProcess();
    watchForInterruption();
    const QCoreApplication application(argc, argv);
    useUtf8Output();
    if (program.begin != nullptr)
        program.begin();
    try {
        return runAndComplain(program, QCoreApplication::arguments().mid(1));
    } catch (const Interrupted &interrupted) {
        return interrupted.exitCode;
    }
}

QString examplesOf(const Program &program, QLatin1StringView subcommand)
{
    QString text;
    for (const ExampleRow &example : program.examples) {
        if (example.subcommand == subcommand)
            text += u"  %1 %2\n      %3\n"_s.arg(program.name, example.line, example.meaning);
    }
    return text.isEmpty() ? text : u"Examples:\n"_s + text;
}

QString powershellCompletions(const Program &program)
{
    QString commands;
    QString words;
    for (const Subcommand *subcommand : program.subcommands) {
        commands += completion(subcommand->name, subcommand->summary);
        words += u"    %1 = [ordered]@{\n"_s.arg(quoted(subcommand->name));
        for (const QString &word : operandWords(*subcommand))
            words += completion(word, subcommand->summary);
        for (const OptionRow &option : optionsOf(program, *subcommand))
            words += completion(u"--"_s + option.name, option.help);
        words += completion(u"--help"_s, u"display this help and exit"_s) + u"    }\n"_s;
    }
    return u"# Completes commands and options of %1. To have it in each session of PowerShell:\n"
           "#     %1 --completions >> $PROFILE\n"
           "Register-ArgumentCompleter -Native -CommandName '%1', '%1.exe' -ScriptBlock {\n"
           "    param($word, $line, $position)\n"
           "    $commands = [ordered]@{\n%2    }\n"
           "    $words = @{\n%3    }\n"
           "    $typed = @($line.CommandElements | Select-Object -Skip 1 | ForEach-Object { $_.ToString() } |\n"
           "        Where-Object { $_ -ne $word })\n"
           "    $rows = if ($typed -and $words.ContainsKey($typed[0])) { $words[$typed[0]] } else { $commands }\n"
           "    $rows.GetEnumerator() | Where-Object { $_.Key -like \"$word*\" } | ForEach-Object {\n"
           "        [System.Management.Automation.CompletionResult]::new($_.Key, $_.Key, 'ParameterValue', $_.Value)\n"
           "    }\n"
           "}\n"_s.arg(program.name, commands, words);
}

QString absoluteFolder(const QString &folder)
{
    return QDir::cleanPath(absolutePath(folder));
}

QString siblingProgram(const QString &name)
{
    const QString place = QCoreApplication::applicationDirPath();
    return QStandardPaths::findExecutable(name, {place, place + u"/rehearse"_s, place + u"/.."_s});
}

bool isSteered(const Arguments &arguments)
{
    const bool steered = arguments.has(steeredOption.name);
    if (steered)
        watchStandardInput();
    return steered;
}

void print(const QString &text)
{
    print(text.toUtf8());
}

void print(const QByteArray &utf8)
{
    std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), stdout);
}

bool waitForEnd(QProcess &process)
{
    process.waitForStarted(-1);
    while (process.state() != QProcess::NotRunning && !process.waitForFinished(interruptionSlice)) {
        if (isInterrupted())
            end(process);
    }
    stopIfInterrupted();
    return process.error() != QProcess::FailedToStart && process.exitStatus() == QProcess::NormalExit;
}

void checkReportFile(const QString &path)
{
    if (path.isEmpty())
        throw UsageError{u"a report needs a file's name"_s};
    // What waits for a reader would wait here already.
    if (path == standardOutput || isDevice(path))
        return;
    QSaveFile file(absolutePath(path));
    open(file, path);
    file.cancelWriting();
}

void checkReportFiles(const QString &path)
{
    if (path == standardOutput || isDevice(path))
        fail(path, u"not a file"_s);
    checkReportFile(path);
}

void writeReportFile(const QString &path, const QByteArray &report)
{
    if (path == standardOutput) {
        print(report);
        return;
    }
    if (isDevice(path)) {
        QFile device(absolutePath(path));
        open(device, path);
        write(device, path, report);
        return;
    }
    QSaveFile file(absolutePath(path));
    open(file, path);
    write(file, path, report);
    if (!file.commit())
        fail(path, file.errorString());
}
