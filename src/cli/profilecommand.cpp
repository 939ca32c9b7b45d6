// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-cli profile

#include "commands.h"
#include "preview/previewwords.h"
#include "rehearse/jobs.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

void makeProfile(const QString &file)
{
    if (file != "-"_L1 && QFileInfo::exists(file))
        throw Failure{ExitBadArguments, u"%1: already exists"_s.arg(file)};
    writeReportFile(file, profileTemplate());
}

/** On this PC, or the machine of --machine, where there is one; names that it has are known then. */
void checkProfile(const Arguments &arguments, const QString &file)
{
#ifdef Q_OS_WIN
    const bool hasPc = true;
#else
    const bool hasPc = arguments.has("machine"_L1);
#endif
    if (!hasPc) {
        readProfile(file, nullptr);
        return;
    }
    const Pc pc(arguments, PcUse::Look);
    readProfile(file, &pc.system());
}

int runProfile(const Arguments &arguments)
{
    const QString verb = arguments.operand(0);
    const QString file = arguments.operands().value(1, u"-"_s);
    if (verb == "new"_L1) {
        makeProfile(file);
    } else if (verb == "schema"_L1) {
        writeReportFile(file, profileSchema());
    } else if (verb == "check"_L1) {
        if (arguments.operands().size() < 2)
            throw UsageError{u"missing operand after 'check'"_s};
        checkProfile(arguments, file);
        print(u"%1: no mistakes\n"_s.arg(file));
    } else {
        throw UsageError{u"'%1' is neither new nor check nor schema"_s.arg(verb)};
    }
    return ExitDone;
}

QString moreHelp()
{
    QString options;
    for (const TweakBox &box : tweakBoxes())
        options += u"  %1 %2\n"_s.arg(tweakName(box.name), -10).arg(tweakWords(box.name).title);
    return u"  new [FILE]     write a profile with all keys (default: print it)\n"
           "  check FILE     find every mistake in a profile\n"
           "  schema [FILE]  write the JSON Schema of profiles\n\n"
           "A profile names what is to be done:\n"
           "  keep       features to keep (true) or give up (false); others as in the PC's Keep list\n"
           "  programs   false leaves packages and programs at logon alone\n"
           "  features   false leaves the options alone\n"
           "  tweaks     options: true puts in force, false leaves alone\n"
           "  services, tasks, packages, startup\n"
           "             names to switch off in addition to what Optimize finds\n"
           "  never      names to leave alone, whatever the other keys say; * and ? are wildcards\n"
           "  user       run as the system, or as another account than who is signed in: refuse, or skip what belongs "
           "to a\n"
           "             user\n\n"
           "Features:\n  %1\n\nOptions:\n%2"_s.arg(keepNames(), options);
}

} // namespace

const Subcommand profileSubcommand{
    "profile"_L1, "new|check|schema [FILE]"_L1, "make a profile, or find the mistakes in one"_L1, {}, 1, 2, runProfile,
    moreHelp,
};
