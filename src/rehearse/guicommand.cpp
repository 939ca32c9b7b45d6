// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse gui

#include "childprocess.h"
#include "machine/machine.h"
#include "subcommands.h"
#include "windowprogram.h"

#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

int runGui(const Arguments &arguments)
{
    const QString folder = openMachine(arguments.operand(0))->folder();
    const QString program = windowProgram();
    QProcess window;
    window.setProcessEnvironment(windowEnvironment(folder, !arguments.has("not-elevated"_L1)));
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
