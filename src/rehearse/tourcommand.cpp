// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse tour

#include "childprocess.h"
#include "machine/machine.h"
#include "machine/machinecopy.h"
#include "platform/windowsfacts.h"
#include "progress.h"
#include "subcommands.h"
#include "windowprogram.h"
#include "work/settings.h"
#include "work/windowsname.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

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
    const QTemporaryDir work;
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

constexpr OptionRow options[] = {
    {"out"_L1, "FOLDER"_L1, "where the pictures go"_L1},
};

} // namespace

const Subcommand tourSubcommand{
    "tour"_L1, "DIR --out FOLDER"_L1, "save a picture of each page of the window in both themes"_L1, options, 1, 1,
    runTour,
};
