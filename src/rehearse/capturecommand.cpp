// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse capture

#include "capture/capture.h"

#include "capture/readingplatform.h"
#include "progress.h"
#include "subcommands.h"

#ifdef Q_OS_WIN
#include "platform/windows/windowsplatform.h"
#endif

#include <QDir>

using namespace Qt::StringLiterals;

namespace {

/** The PC that this program runs on. */
struct RunningPc
{
    std::unique_ptr<Platform> platform;
    std::unique_ptr<SystemReader> reader;
};

/** Nothing where there is no Windows. */
std::optional<RunningPc> runningPc()
{
#ifdef Q_OS_WIN
    return RunningPc{std::make_unique<WindowsPlatform>(), std::make_unique<WindowsReader>()};
#else
    return std::nullopt;
#endif
}

void printReport(const QString &folder, const CaptureReport &report)
{
    const QString place = QDir::toNativeSeparators(folder);
    print(u"captured into %1: %2\n"_s.arg(place, report.counts.join(", "_L1)));
    for (const NotRead &part : report.notRead)
        print(u"not read: %1 (%2)\n"_s.arg(part.what, part.reason));
    if (!report.replaced.isEmpty())
        print(leftNamesText(report.left));
    if (!report.elevated) {
        print(u"run without administrator rights: with them it would also have the boot options, and those\n"
              "scheduled tasks, services and registry keys that this user may not see; a way back that is made\n"
              "of this copy takes them for not there\n"_s);
    }
    print(u"'kestrune-rehearse preview %1' shows what an optimization would change\n"_s.arg(place));
}

int runCapture(const Arguments &arguments)
{
    const QString folder = arguments.operand(0);
    if (folder.isEmpty())
        throw UsageError{u"the folder of a machine must have a name"_s};
    std::optional<RunningPc> pc = runningPc();
    if (!pc)
        throw Failure{ExitBadArguments, u"capture reads the Windows that it runs on, and this is none"_s};

    auto reading = std::make_unique<ReadingPlatform>(std::move(pc->platform));
    const ReadingPlatform &platform = *reading;
    setPlatform(std::move(reading));
    Progress progress(isSteered(arguments));
    const CaptureReport report =
        capturePc(folder, arguments.has("force"_L1) ? Existing::Replace : Existing::Keep, platform, *pc->reader,
                  arguments.has("with-names"_L1) ? Names::Keep : Names::Replace, progress.callback());
    progress.clear();
    printReport(absoluteFolder(folder), report);
    return ExitDone;
}

QString moreHelp()
{
    return u"The PC is read and not changed. It copies only what the program looks at: its registry keys, services,\n"
           "of scheduled tasks the description, the state, the kinds of triggers and the rights, packages, programs "
           "at\n"
           "logon without their arguments, names of processes, hardware, and the sizes of some files. The PC is "
           "called\n"
           "PC, its user User and others Other, wherever they are named. At the end the machine is searched for those\n"
           "names, and each place where one is left, as part of another word for example, is listed.\n"
           "To use 'preview --undo', capture with --with-names and as administrator.\n"
           "Administrator rights aren't needed; what can't be read without them is listed at the end.\n"_s;
}

// clang-format off
constexpr OptionRow options[] = {
    {"with-names"_L1, {}, "keep the names of the PC, its users and networks, and whole commands, as a way back needs them"_L1,
     "Keeps the names of the PC, its users and its networks, and whole commands.\nA way back\n.RB ( \"preview \\-\\-undo\" )\nneeds them."_L1},
    {"force"_L1,      {}, "replace the machine that is there"_L1},
    steeredOption,
};
// clang-format on

} // namespace

const Subcommand captureSubcommand{
    "capture"_L1, "DIR"_L1, "make a rehearsal machine of the Windows PC that this runs on"_L1, options, 1, 1,
    runCapture,   moreHelp,
};
