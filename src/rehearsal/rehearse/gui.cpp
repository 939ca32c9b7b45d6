// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse gui

#include "childprocess.h"
#include "platform/simulated/machine.h"
#include "subcommands.h"

#include <QCoreApplication>
#include <QProcess>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace {

int runGui(const Arguments &arguments)
{
    const QString folder = openMachine(arguments.operand(0))->folder();
    // On Windows a program of its own, for kestrune itself works on the real PC there.
    const QString name = QStringLiteral(KESTRUNE_WINDOW_PROGRAM);
    const QString program = QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    if (program.isEmpty())
        throw Failure{ExitJobFailed, u"the program %1 is missing beside this one"_s.arg(name)};
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"KESTRUNE_MACHINE"_s, folder);
    environment.insert(u"KESTRUNE_ELEVATED"_s, arguments.has("not-elevated"_L1) ? u"0"_s : u"1"_s);
    QProcess window;
    window.setProcessEnvironment(environment);
    window.setProcessChannelMode(QProcess::ForwardedChannels);
    window.start(program, QStringList());
    if (!waitForEnd(window))
        throw Failure{ExitJobFailed, u"%1: %2"_s.arg(program, window.errorString())};
    return window.exitCode();
}

constexpr OptionRow options[] = {
    {"not-elevated"_L1, {}, "run it as a user without administrator rights"_L1},
};

} // namespace

const Subcommand guiSubcommand{
    "gui"_L1, "DIR"_L1, "open the window on a machine"_L1, options, 1, 1, runGui,
};
