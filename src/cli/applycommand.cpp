// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-cli apply

#include "commands.h"
#include "console/printable.h"
#include "console/programinterruption.h"
#include "journal/programrecords.h"
#include "journal/takeback.h"
#include "machine/machineerror.h"
#include "rehearse/jobrunner.h"
#include "rehearse/jobs.h"
#include "work/autorun/autorun.h"
#include "work/packages/packages.h"
#include "work/statusline.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** Keeps the lines of jobs, each with its time, and shows the last one to somebody at a terminal. */
class LineLog final : public LineTaker
{
public:
    explicit LineLog(Progress &progress)
        : progress_(progress)
    {
    }

    void take(QLatin1StringView, const QString &line) override
    {
        if (line.isEmpty() || StatusLine::isProgress(line))
            return;
        add(line);
        progress_.say(line, 0, 0);
    }
    void takeResult(const QString &name, const QString &text) override { add(name + u": "_s + text); }

    void add(const QString &line)
    {
        text_ += QDateTime::currentDateTime().toString(Qt::ISODateWithMs) + u' ' + printable(line) + u'\n';
    }
    QByteArray text() const { return text_.toUtf8(); }

private:
    Progress &progress_;
    QString text_;
};

/** Carries out what is open, by the jobs that the window runs. */
class ProfileRun
{
public:
    ProfileRun(WorkThread &worker, const Profile &profile, const QList<Aim> &aims, LineLog &log)
        : worker_(worker)
        , profile_(profile)
        , aims_(aims)
        , log_(log)
    {
    }

    void run()
    {
        if (goesByOptimize(profile_))
            optimize();
        disableServices();
        disableTasks();
        removePackages();
        disablePrograms();
        applyTweaks();
    }

    /** Whether it has walked over all files, of which nothing is read again. */
    bool hasWalked() const { return hasWalked_; }
    bool wantsRestart() const { return worker_.needReboot == 1; }

private:
    /** What Optimize does by itself; it takes nothing where its Analyze finds nothing, and options alone aren't that.
     */
    void optimize()
    {
        const bool isWorthIt = std::any_of(aims_.cbegin(), aims_.cend(), [this](const Aim &aim) {
            return aim.state == AimState::Open && aim.group != PreviewGroup::Tweaks
                   && aim.group != PreviewGroup::Registry && !isNamed(aim);
        });
        if (!isWorthIt)
            return;
        const AutomatizerChoice choice{.programs = profile_.programs, .tweaks = profile_.features, .walk = false};
        try {
            runAutomatizer(worker_, JobAutomatizerOptimize, choice, log_);
            isOptimized_ = true;
        } catch (const Failure &failure) {
            log_.add(failure.message);
        }
    }

    /** Whether an aim is the profile's own, and none of Optimize. */
    bool isNamed(const Aim &aim) const
    {
        const QStringList &names = aim.group == PreviewGroup::Services   ? profile_.services
                                   : aim.group == PreviewGroup::Tasks    ? profile_.tasks
                                   : aim.group == PreviewGroup::Packages ? profile_.packages
                                                                         : profile_.startup;
        return names.contains(aim.name, Qt::CaseInsensitive);
    }

    /** Of a group what is still to be switched off. */
    QStringList openOf(PreviewGroup group) const
    {
        QStringList names;
        for (const Aim &aim : aims_) {
            const bool isOpen = aim.group == group && aim.state == AimState::Open;
            if (isOpen && (!isOptimized_ || isNamed(aim)) && (aim.wish == "disabled"_L1 || aim.wish == "removed"_L1))
                names.append(aim.name);
        }
        return names;
    }

    void disableServices()
    {
        worker_.servicesToChange = openOf(PreviewGroup::Services);
        if (!worker_.servicesToChange.isEmpty())
            runToEnd(worker_, JobSvcDisable, log_);
    }

    void disableTasks()
    {
        worker_.tasksToChange.clear();
        for (const QString &path : openOf(PreviewGroup::Tasks))
            worker_.tasksToChange.append({path, {}, path.section(u'\\', -1), {}, 1});
        if (!worker_.tasksToChange.isEmpty())
            runToEnd(worker_, JobTaskStopOrStart, log_);
    }

    void removePackages()
    {
        const QStringList names = openOf(PreviewGroup::Packages);
        if (names.isEmpty())
            return;
        // The rows of the list say where OneDrive's uninstaller is.
        worker_.PackageGetList();
        worker_.packagesToChange.clear();
        for (const QString &name : names) {
            const auto listed = std::find_if(worker_.packages.cbegin(), worker_.packages.cend(),
                                             [&name](const PackageRow &row) { return row.name == name; });
            worker_.packagesToChange.append(listed == worker_.packages.cend() ? PackageRow{name, name, {}} : *listed);
        }
        worker_.packageInstall = false;
        runToEnd(worker_, JobPackageSetState, log_, [](const QString &line) { recordPackageLine(line, false); });
    }

    void disablePrograms()
    {
        const QStringList names = openOf(PreviewGroup::Autorun);
        if (names.isEmpty())
            return;
        disableAutoruns(worker_, names);
        for (const QString &name : names)
            log_.add(u"Autorun: disable "_s + name);
    }

    void applyTweaks()
    {
        QMap<QString, bool> applied;
        const ChangeSession session(u"Apply features"_s);
        for (const Aim &aim : aims_) {
            const TweakBox *box = boxOf(aim);
            const bool isNamed = box != nullptr && profile_.tweaks.value(aim.name);
            if (box == nullptr || aim.state != (box->apply == When::AsJob ? AimState::Unknown : AimState::Open)
                || (isOptimized_ && !isNamed))
                continue;
            log_.add(u"Feature: "_s + aim.title);
            hasWalked_ = hasWalked_ || box->apply == When::AsJob;
            if (box->apply == When::AsJob)
                runToEnd(worker_, JobTweakApply, log_);
            else
                runToEnd([&] { (worker_.*(box->tweak))(1, box->id); });
            applied.insert(box->name, true);
        }
        if (!applied.isEmpty())
            storeTweaks({applied, storedTweaks().priorityIndex});
    }

    WorkThread &worker_;
    const Profile &profile_;
    const QList<Aim> &aims_;
    LineLog &log_;
    bool isOptimized_ = false;
    bool hasWalked_ = false;
};

void checkFiles(const Arguments &arguments)
{
    for (const QLatin1StringView file : {"json"_L1, "log"_L1}) {
        if (arguments.has(file))
            checkReportFile(arguments.value(file));
    }
}

/** What belongs to a user isn't another account's to change. */
void refuseUser(const QList<Aim> &aims, const QString &account)
{
    const auto aim = std::find_if(aims.cbegin(), aims.cend(),
                                  [](const Aim &each) { return each.ofUser && each.state == AimState::Open; });
    if (aim != aims.cend()) {
        throw Failure{ExitBadArguments,
                      u"%1 '%2' belongs to a user, and this runs as %3: run it as that user, or write \"user\": "
                      "\"skip\" into the profile"_s.arg(thingText(aim->group), aim->name, account)};
    }
}

/** The number of the newest session of a profile; 0 where there is none. */
qint64 newestSession(const Journal &journal)
{
    qint64 newest = 0;
    for (const Session &each : journal.store().sessions())
        newest = each.what == appliedProfile ? each.id : newest;
    return newest;
}

QJsonObject moreOf(const Applied &applied)
{
    return {{u"session"_s, applied.session},
            {u"folder"_s, QDir::toNativeSeparators(applied.folder)},
            {u"restartWanted"_s, applied.wantsRestart}};
}

QString wayBackText(const Applied &applied)
{
    if (applied.session == 0)
        return u"nothing was changed\n"_s;
    const QString restart = applied.wantsRestart ? u"restart Windows: some of it is in force only then\n"_s : QString();
    return restart
           + u"session %1; 'kestrune-cli undo --session %1' takes it back; plan, result and log: %2\n"_s.arg(
               QString::number(applied.session), QDir::toNativeSeparators(applied.folder));
}

int runApply(const Arguments &arguments)
{
    checkFiles(arguments);
    const Pc pc(arguments, PcUse::Change);
    const Applied applied = applyTo(pc, profileOf(arguments, pc), profileFile(arguments), arguments.has("yes"_L1));
    if (arguments.has("log"_L1))
        writeReportFile(arguments.value("log"_L1), applied.log);
    reportAims(u"apply"_s, arguments, applied.aims, false, moreOf(applied));
    if (!arguments.has("quiet"_L1) && arguments.value(jsonOption.name) != "-"_L1)
        print(wayBackText(applied));
    if (!applied.failure.isEmpty())
        throw Failure{ExitJobFailed, u"not everything was done: "_s + applied.failure};
    if (!areInForce(applied.aims))
        return ExitJobFailed;
    return applied.wantsRestart ? ExitRestartWanted : ExitDone;
}

constexpr OptionRow options[] = {
    profileOption,
    jsonOption,
    {"log"_L1, "FILE"_L1, "write what each step reported, line by line"_L1},
    {"quiet"_L1, {}, "print nothing but errors"_L1},
    {"yes"_L1, {}, "agree to go through all files, where the profile asks for 'ssd8'"_L1},
};

QString moreHelp()
{
    return u"Needs administrator rights. Everything is noted in the journal before it is changed, and 'undo' takes it\n"
           "back. At the end everything is read again. Columns: state, kind of thing, name, what was asked for, "
           "why,\n"
           "and what stops working without it.\n"
           "Exit status: 0 done, or nothing to do; 1 something was refused; 2 bad arguments or profile;\n"
           "3 the PC can't be read; 5 administrator rights are needed; 3010 done, restart wanted.\n"_s;
}

} // namespace

Applied applyTo(const Pc &pc, const Profile &profile, const QString &profileName, bool mayWalk)
{
    const Journal &journal = *journalInForce();
    WorkThread worker;
    applyProfile(worker, profile);
    const QList<Aim> before = aimsOf(worker, pc.system(), profile);
    worker.needReboot = 0; // it was set by trying
    if (!pc.otherAccount().isEmpty())
        refuseUser(before, pc.otherAccount());
    if (!mayWalk && std::any_of(before.cbegin(), before.cend(), [&](const Aim &aim) {
            return aim.state == AimState::Unknown && profile.tweaks.value(aim.name);
        }))
        throw UsageError{u"'ssd8' walks over all files of the partition: say --yes to that"_s};

    Progress progress;
    LineLog log(progress);
    const ToolListener listener;
    const qint64 former = newestSession(journal);
    ProfileRun run(worker, profile, before, log);
    {
        const ChangeSession session(appliedProfile);
        run.run();
    }
    progress.clear();
    // Before all is read again: trying an option says that it wants a restart, too.
    Applied applied{.wantsRestart = run.wantsRestart(), .log = log.text()};
    applied.aims = judgedAims(before, aimsOf(worker, pc.system(), profile), listener.answers());
    for (Aim &aim : applied.aims) {
        const TweakBox *box = boxOf(aim);
        if (run.hasWalked() && box != nullptr && box->apply == When::AsJob)
            aim.why = u"the walk over all files came to its end; "_s + aim.why;
    }

    // A session of nothing but the program's own records has no folder.
    const qint64 newest = newestSession(journal);
    applied.folder = newest == former ? QString() : wayBackFolder(journal, newest);
    if (!applied.folder.isEmpty()) {
        applied.session = newest;
        writeReportFile(applied.folder + u"/plan.json"_s, aimsDocument(u"plan"_s, profileName, before));
        writeReportFile(applied.folder + u"/result.json"_s,
                        aimsDocument(u"apply"_s, profileName, applied.aims, moreOf(applied)));
        writeReportFile(applied.folder + u"/log.txt"_s, applied.log);
    }
    applied.failure = platform().takeFailure();
    return applied;
}

const Subcommand applySubcommand{
    "apply"_L1, {}, "do what Optimize does, or what a profile asks for"_L1, options, 0, 0, runApply, moreHelp,
};
