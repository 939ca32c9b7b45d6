// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse: makes rehearsal machines, runs the logic on them, shows what it changes.

#include "console/console.h"
#include "console/printable.h"
#include "console/programinterruption.h"
#include "machine/machineerror.h"
#include "machine/workfolder.h"
#include "platform/processground.h"
#include "subcommands.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr auto program = "kestrune-rehearse"_L1;

QString optionsOf(const Subcommand &subcommand)
{
    QString text;
    for (const OptionRow &option : subcommand.options) {
        QString word = u"  --"_s + option.name;
        if (!option.value.isEmpty())
            word += u' ' + QString(option.value);
        text += word.leftJustified(26) + u"  "_s + option.help + u'\n';
    }
    return text + u"  --help                    display this help and exit\n"_s;
}

void printHelp(const Subcommand &subcommand)
{
    print(u"Usage: %1 %2 %3%4\n"_s.arg(program, subcommand.name, subcommand.operands,
                                       subcommand.options.empty() ? ""_L1 : " [OPTION]..."_L1));
    QString summary = subcommand.summary;
    summary[0] = summary.at(0).toUpper();
    print(summary + u".\n\n"_s + optionsOf(subcommand));
    if (subcommand.moreHelp != nullptr) {
        if (const QString more = subcommand.moreHelp(); !more.isEmpty())
            print(u'\n' + more);
    }
    if (const QString examples = examplesOf(subcommand.name); !examples.isEmpty())
        print(u'\n' + examples);
}

void printHelp()
{
    print(u"Usage: %1 COMMAND [ARG]...\n"
          "Rehearse changes to Windows on a copy: a rehearsal machine, which is a folder. Nothing that a command does\n"
          "leaves that folder, and no program of this computer is started for it.\n\n"
          "Commands:\n"_s.arg(program));
    for (const Subcommand *subcommand : allSubcommands())
        print(u"  "_s + QString(subcommand->name).leftJustified(9) + subcommand->summary + u'\n');
    print(u"\nOptions:\n"
          "  --help     display this help and exit\n"
          "  --version  output version information and exit\n\n"
          "To begin with:\n"
          "  %1 new pc --from windows11\n"
          "      make a Windows 11 PC in the folder pc\n"
          "  %1 preview pc --html preview.html\n"
          "      see what an optimization would change on it, and what would come back\n"
          "  %1 gui pc\n"
          "      try whatever you like in the window\n\n"
          "Exit status: 0 done, 1 the job reported a failure, 2 bad arguments, 3 the machine can't be read,\n"
          "130 interrupted by Ctrl-C.\n"
          "'%1 COMMAND --help' explains a command, with examples.\n"_s.arg(program));
}

const Subcommand &findSubcommand(const QStringList &words)
{
    if (words.isEmpty())
        throw UsageError{u"missing command"_s};
    for (const Subcommand *subcommand : allSubcommands()) {
        if (words.first() == subcommand->name)
            return *subcommand;
    }
    if (words.first().startsWith(u'-'))
        throw UsageError{u"unrecognized option '%1'"_s.arg(words.first())};
    QStringList names;
    for (const Subcommand *subcommand : allSubcommands())
        names.append(subcommand->name);
    throw UsageError{u"unknown command '%1'"_s.arg(words.first()) + choicesText(words.first(), u"Commands"_s, names)};
}

/** Whether help is asked for, before the words that are no options any more. */
bool asksForHelp(const QStringList &words)
{
    const qsizetype end = words.indexOf(u"--"_s);
    return words.first(end < 0 ? words.size() : end).contains(u"--help"_s);
}

int run(const QStringList &words)
{
    if (words.value(0) == "--help"_L1) {
        printHelp();
        return ExitDone;
    }
    if (words.value(0) == "--version"_L1) {
        print(u"%1 (Kestrune) %2\n"_s.arg(program, QLatin1StringView(KESTRUNE_VERSION)));
        return ExitDone;
    }
    const Subcommand &subcommand = findSubcommand(words);
    if (asksForHelp(words.mid(1))) {
        printHelp(subcommand);
        return ExitDone;
    }
    return subcommand.run(
        Arguments(words.mid(1), subcommand.options, subcommand.fewestOperands, subcommand.mostOperands));
}

/** What fails after the program was broken off may fail because of that, and isn't reported. */
void complain(const QString &message)
{
    stopIfInterrupted();
    std::fflush(stdout);
    QStringList lines = message.split(u'\n');
    std::transform(lines.cbegin(), lines.cend(), lines.begin(), printable);
    std::fprintf(stderr, "%s: %s\n", program.data(), lines.join(u'\n').toUtf8().constData());
}

int runAndComplain(const QStringList &words)
{
    try {
        const int code = run(words);
        if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)
            throw Failure{ExitJobFailed, u"standard output can't be written"_s};
        return code;
    } catch (const UsageError &error) {
        complain(error.message);
        std::fprintf(stderr, "Try '%s --help' for more information.\n", program.data());
        return ExitBadArguments;
    } catch (const Failure &failure) {
        complain(failure.message);
        return failure.code;
    } catch (const MachineError &error) {
        complain(error.message);
        return error.damaged ? ExitMachineUnreadable : ExitJobFailed;
    }
}

} // namespace

int main(int argc, char *argv[])
{
    prepareProcess();
    watchForInterruption();
    const QCoreApplication application(argc, argv);
    useUtf8Output();
    removeLeftovers();
    try {
        return runAndComplain(QCoreApplication::arguments().mid(1));
    } catch (const Interrupted &interrupted) {
        return interrupted.exitCode;
    }
}
