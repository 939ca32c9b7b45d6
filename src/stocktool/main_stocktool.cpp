// SPDX-License-Identifier: GPL-3.0-or-later
// One program for all stock tools of a rehearsal machine: it is told the machine and the tool, and answers as that.
// No file has the name of one of Windows' own tools, which is how malware hides.

#include "console/console.h"
#include "machine/environment.h"
#include "machine/machine.h"
#include "machinetoolhost.h"
#include "platform/processground.h"
#include "tools.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr int exitNoMachineNamed = 2;
constexpr int exitMachineUnreadable = 3;

void print(const QByteArray &bytes, std::FILE *stream = stdout)
{
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

/**
 * Waits to be ended, or for the fault to be taken back; also ends when its starter has gone, so that a run that was
 * broken off leaves nothing behind.
 */
void hang(const std::function<bool()> &isOver)
{
    constexpr int longest = 10 * 60 * 1000;
    constexpr int slice = 50;

    std::fflush(stdout);
    const QDeadlineTimer deadline(longest);
    while (!deadline.hasExpired() && !starterIsGone() && !isOver())
        QThread::msleep(slice);
}

ToolResult runFault(const ToolFault &fault, const std::function<bool()> &isOver)
{
    if (fault.missing)
        return {exitNoSuchProgram};
    const QByteArray output = fault.output.value_or(QString()).toUtf8();
    for (int i = 0; i < fault.repeat && !output.isEmpty(); ++i)
        print(output);
    if (fault.hang)
        hang(isOver);
    return {fault.exitCode.value_or(0)};
}

int runOnMachine(const QString &folder, const QString &name, const QStringList &arguments)
{
    const std::unique_ptr<Machine> machine = Machine::open(folder, Origin::Checked);
    // In place of those that an elevated process has set for itself
    enterEnvironment(machine->environment());
    const qint64 self = QCoreApplication::applicationPid();
    // A number that an earlier process had must not answer for this one.
    machine->dropExitCode(self);

    const std::optional<ToolFault> fault = machine->fault(name, arguments);
    const auto faultIsOver = [&] { return !machine->fault(name, arguments).value_or(ToolFault()).hang; };
    // All is written down before anyone can know the end of the output.
    ToolResult result;
    if (fault) {
        result = runFault(*fault, faultIsOver);
        machine->logCommand(name, arguments, result.exitCode);
    } else {
        result = runToolOn(*machine, name, arguments, qEnvironmentVariable("KESTRUNE_ELEVATED") != "0"_L1);
    }
    machine->leaveExitCode(self, result.exitCode);
    print(result.errors, stderr);
    print(result.output);
    return result.exitCode;
}

} // namespace

int main(int argc, char *argv[])
{
    prepareProcess();
    const QCoreApplication application(argc, argv);
    useBinaryOutput();
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 3) {
        std::fprintf(stderr,
                     "kestrune-stocktool: give it a rehearsal machine, the name of a tool, and its arguments\n");
        return exitNoMachineNamed;
    }
    const QString &name = words.at(2);
    try {
        // Systems with exit codes of 8 bits cut it; the whole one lies in the machine.
        return runOnMachine(words.at(1), name, words.sliced(3));
    } catch (const MachineError &error) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(name), qPrintable(error.message));
        return exitMachineUnreadable;
    }
}
