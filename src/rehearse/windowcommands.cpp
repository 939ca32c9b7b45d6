// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse gui and tour: the program with the window, which opens on a machine.

#include "machine/machine.h"
#include "machine/workfolder.h"
#include "platform/windowsfacts.h"
#include "progress.h"
#include "subcommands.h"
#include "work/settings.h"
#include "work/windowsname.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QStandardPaths>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** The path of the program with the window; a Failure where it is missing beside this program. */
QString windowProgram()
{
    // On Windows a program of its own, for kestrune itself works on the real PC there.
    const QString name = QStringLiteral(KESTRUNE_WINDOW_PROGRAM);
    const QString program = QStandardPaths::findExecutable(name, {QCoreApplication::applicationDirPath()});
    if (program.isEmpty())
        throw Failure{ExitJobFailed, u"the program %1 is missing beside this one"_s.arg(name)};
    return program;
}

/** The environment that lets it open on a machine, given by its folder. */
QProcessEnvironment windowEnvironment(const QString &machine, bool elevated)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"KESTRUNE_MACHINE"_s, machine);
    environment.insert(u"KESTRUNE_ELEVATED"_s, elevated ? u"1"_s : u"0"_s);
    // Without a console nobody would see its errors.
    environment.insert(u"QT_FORCE_STDERR_LOGGING"_s, u"1"_s);
    return environment;
}

/** Whether a window can be shown. */
bool hasDisplay()
{
    if (QStringLiteral(KESTRUNE_PICTURE_PLATFORM) == "windows"_L1)
        return true;
    const char *const names[] = {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"};
    return std::any_of(std::begin(names), std::end(names),
                       [](const char *name) { return !qEnvironmentVariableIsEmpty(name); });
}

int runGui(const Arguments &arguments)
{
    const QString folder = openMachineToChange(arguments.operand(0))->folder();
    if (!hasDisplay())
        throw Failure{ExitJobFailed, u"there is no display to open the window on; 'tour' takes pictures without one"_s};
    const QString program = windowProgram();
    QProcess window;
    window.setProcessEnvironment(windowEnvironment(folder, !arguments.has("not-elevated"_L1)));
    window.setProcessChannelMode(QProcess::ForwardedChannels);
    window.start(program, QStringList());
    if (!waitForEnd(window))
        throw Failure{ExitJobFailed, u"%1: %2"_s.arg(program, window.errorString())};
    return window.exitCode();
}

constexpr OptionRow guiOptions[] = {
    {"not-elevated"_L1,
     {},
     "run it as a user without administrator rights"_L1,
     "Opens it as a user without administrator rights sees it."_L1},
};

constexpr QLatin1StringView pages[] = {
    "optimizer"_L1, "services"_L1, "tasks"_L1,   "autorun"_L1, "packages"_L1,
    "features"_L1,  "system"_L1,   "options"_L1, "about"_L1,
};

void setTheme(Machine &machine, QLatin1StringView theme)
{
    RegistryStore &registry = machine.registry();
    const auto key = registry.make(programKey);
    registry.setValue(*key, {u"palette"_s, RegistryType::String, registryText(theme)});
}

/** Pictures of all pages in one theme, taken on a copy, since showing a page changes things. */
QStringList takePictures(const Machine &machine, QLatin1StringView theme, const QDir &folder)
{
    const WorkFolder work;
    const QString copy = work.filePath(u"machine"_s);
    copyMachine(machine, copy);
    setTheme(*Machine::open(copy), theme);

    QStringList arguments{u"--pictures"_s};
    QStringList files;
    for (const QLatin1StringView page : pages) {
        arguments << QString::number(files.size());
        files.append(folder.filePath(u"%1-%2.png"_s.arg(theme, page)));
        arguments << files.last();
    }
    QProcess pictures;
    QProcessEnvironment environment = windowEnvironment(copy, true);
    environment.insert(u"QT_QPA_PLATFORM"_s, QStringLiteral(KESTRUNE_PICTURE_PLATFORM));
    // Without a session Qt would make a folder for it, and leave it there.
    if (!environment.contains(u"XDG_RUNTIME_DIR"_s))
        environment.insert(u"XDG_RUNTIME_DIR"_s, work.path());
    pictures.setProcessEnvironment(environment);
    pictures.setProcessChannelMode(QProcess::ForwardedChannels);
    pictures.start(windowProgram(), arguments);
    if (!waitForEnd(pictures) || pictures.exitCode() != 0)
        throw Failure{ExitJobFailed, u"the pictures in the theme %1 can't be taken"_s.arg(theme)};
    return files;
}

/** Windows 10 has no dark theme. */
bool hasDarkTheme(Machine &machine)
{
    const auto build = machine.registry().value(WindowsKey::currentVersion, u"CurrentBuild"_s);
    return build && textOf(build->data).toInt() >= firstBuildOfWindows11;
}

int runTour(const Arguments &arguments)
{
    if (!arguments.has("out"_L1))
        throw UsageError{u"the option '--out' is missing"_s};
    const std::unique_ptr<Machine> machine = openMachine(arguments.operand(0));
    const QDir folder(absoluteFolder(arguments.value("out"_L1)));
    if (!folder.mkpath(u"."_s))
        throw Failure{ExitJobFailed, u"%1: the folder can't be made"_s.arg(folder.path())};
    const QLatin1StringView themes[] = {"light"_L1, hasDarkTheme(*machine) ? "dark"_L1 : "system"_L1};
    Progress progress;
    int done = 0;
    for (const QLatin1StringView theme : themes) {
        progress.show(u"the pages in the theme "_s + theme, done++, 2);
        const QStringList files = takePictures(*machine, theme, folder);
        progress.clear();
        for (const QString &file : files)
            print(file + u'\n');
    }
    return ExitDone;
}

constexpr OptionRow tourOptions[] = {
    {"out"_L1, "FOLDER"_L1, "where the pictures go"_L1, "Says where the pictures go."_L1},
};

} // namespace

const Subcommand guiSubcommand{
    "gui"_L1, "DIR"_L1, "open the window on a machine"_L1, guiOptions, 1, 1, runGui,
};

const Subcommand tourSubcommand{
    "tour"_L1, "DIR --out FOLDER"_L1, "save a picture of each page of the window in both themes"_L1, tourOptions, 1, 1,
    runTour,
};
