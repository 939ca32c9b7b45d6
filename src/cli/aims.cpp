// SPDX-License-Identifier: GPL-3.0-or-later

#include "aims.h"

#include "console/printable.h"
#include "preview/previewtexts.h"
#include "preview/previewwords.h"
#include "rehearse/jobs.h"
#include "trial.h"
#include "work/automatizer/automatizer.h"
#include "work/autorun/autorun.h"
#include "work/keepfeatures.h"
#include "work/packages/packages.h"
#include "work/services/services.h"
#include "work/settings.h"
#include "work/tasks/tasks.h"
#include "work/tweaks/tweakcatalogue.h"
#include "work/windowsname.h"

#include <QJsonArray>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct StateRow
{
    AimState state;
    QLatin1StringView text;
    QLatin1StringView word;
};

struct GroupRow
{
    PreviewGroup group;
    QLatin1StringView thing;
    QLatin1StringView word;
};

// clang-format off
constexpr StateRow stateRows[] = {
    {AimState::InForce,   "in force"_L1,     "in-force"_L1},
    {AimState::Open,      "not in force"_L1, "not-in-force"_L1},
    {AimState::NotNeeded, "not needed"_L1,   "not-needed"_L1},
    {AimState::Absent,    "not there"_L1,    "not-there"_L1},
    {AimState::LeftAlone, "left alone"_L1,   "left-alone"_L1},
    {AimState::Refused,   "refused"_L1,      "refused"_L1},
    {AimState::Unknown,   "unknown"_L1,      "unknown"_L1},
};

constexpr GroupRow groupRows[] = {
    {PreviewGroup::Services, "service"_L1,          "services"_L1},
    {PreviewGroup::Tasks,    "scheduled task"_L1,   "tasks"_L1},
    {PreviewGroup::Packages, "package"_L1,          "packages"_L1},
    {PreviewGroup::Autorun,  "program at logon"_L1, "startup"_L1},
    {PreviewGroup::Tweaks,   "option"_L1,           "tweaks"_L1},
    {PreviewGroup::Files,    "file"_L1,             "files"_L1},
    {PreviewGroup::Registry, "registry value"_L1,   "registry"_L1},
};
// clang-format on

const StateRow &rowOf(AimState state)
{
    return *std::find_if(std::begin(stateRows), std::end(stateRows),
                         [state](const StateRow &row) { return row.state == state; });
}

const GroupRow &rowOf(PreviewGroup group)
{
    return *std::find_if(std::begin(groupRows), std::end(groupRows),
                         [group](const GroupRow &row) { return row.group == group; });
}

bool isIn(const QStringList &names, const QString &name)
{
    return names.contains(name, Qt::CaseInsensitive);
}

const QString disabled = u"disabled"_s;
const QString removed = u"removed"_s;
const QString on = u"on"_s;

/** Gathers what is asked for, group by group. */
class AimList
{
public:
    AimList(WorkThread &worker, SystemState &system, const Profile &profile)
        : worker_(worker)
        , system_(system)
        , profile_(profile)
        , byOptimize_(goesByOptimize(profile))
    {
        // To ask would make the key of the settings.
        tryOut(system_, [this] { bringsBack_ = byOptimize_ && wasOptimized(); });
    }

    QList<Aim> all()
    {
        addServices();
        addTasks();
        if (profile_.programs) {
            addPackages();
            addAutoruns();
        }
        if (byOptimize_)
            addEncoder();
        if (profile_.features)
            addTweaks();
        else if (byOptimize_)
            addServiceTimeout();
        return aims_;
    }

private:
    void add(PreviewGroup group, const QString &name, const QString &title, const QString &wish, AimState state,
             bool ofUser = false)
    {
        const bool isLoss = wish == disabled || wish == removed;
        aims_.append({group, name, title, wish, state, false, ofUser, {}, isLoss ? withoutOf(group, name) : QString()});
        Aim &aim = aims_.last();
        if (profile_.isLeftAlone(name))
            leave(aim, u"the profile says so"_s);
        else if (ofUser && state == AimState::Open && profile_.leavesOutUser && profile_.user == UserRule::Skip)
            leave(aim, u"it belongs to a user"_s);
    }

    static void leave(Aim &aim, const QString &why)
    {
        aim.state = AimState::LeftAlone;
        aim.why = why;
    }

    void addServices()
    {
        // Outside a trial the list leaves a backup of the start modes.
        tryOut(system_, [this] { worker_.SvcMakeList(); });
        worker_.nonVitalServices = nonVitalServiceNames();
        addServicesOfFeaturesGivenUp(worker_);
        QStringList absent = profile_.services;
        for (const ServiceRow &row : std::as_const(worker_.services)) {
            const bool isOff = row.startsAs(StartDisabled);
            const bool isNamed = isIn(profile_.services, row.name);
            if (isNamed || isIn(worker_.nonVitalServices, row.name)) {
                const bool isNeeded = isNamed || row.running;
                add(PreviewGroup::Services, row.name, row.displayName, disabled,
                    isOff      ? AimState::InForce
                    : isNeeded ? AimState::Open
                               : AimState::NotNeeded);
                if (aims_.constLast().state == AimState::NotNeeded)
                    aims_.last().why = u"it doesn't run"_s;
            } else if (bringsBack_ && isOff && !row.running && isOfKeptFeature(worker_, row.name)
                       && isIn(names(u"SVC"_s), row.name)) {
                add(PreviewGroup::Services, row.name, row.displayName, u"enabled"_s, AimState::Open);
            }
            absent.removeIf([&row](const QString &name) { return name.compare(row.name, Qt::CaseInsensitive) == 0; });
        }
        addAbsent(PreviewGroup::Services, absent, disabled);
        if (byOptimize_)
            addManualServices();
    }

    void addManualServices()
    {
        for (const QString &name : manualStartServiceNames()) {
            const auto row =
                std::find_if(worker_.services.cbegin(), worker_.services.cend(), [&name](const ServiceRow &each) {
                    return each.name.compare(name, Qt::CaseInsensitive) == 0;
                });
            // One that is disabled needs no more; one that needn't be, since it doesn't run, still starts by itself.
            aims_.removeIf([&name](const Aim &aim) {
                return aim.state == AimState::NotNeeded && aim.name.compare(name, Qt::CaseInsensitive) == 0;
            });
            const bool isDisabled = std::any_of(aims_.cbegin(), aims_.cend(), [&name](const Aim &aim) {
                return aim.name.compare(name, Qt::CaseInsensitive) == 0;
            });
            if (row != worker_.services.cend() && !isDisabled)
                add(PreviewGroup::Services, name, row->displayName, u"started on demand"_s,
                    startsByItself(name) ? AimState::Open : AimState::InForce);
        }
    }

    void addTasks()
    {
        // The worker's own list leaves files.
        const std::optional<TaskExport> exported = exportedTasks();
        worker_.tasks = exported ? tasksOf(*exported) : QList<TaskRow>();
        QStringList absent = profile_.tasks;
        for (const TaskRow &row : std::as_const(worker_.tasks)) {
            const bool isOff = row.disabled != 0;
            if (isIn(profile_.tasks, row.path) || reasonsAgainstTask(worker_, row.name) > 0)
                add(PreviewGroup::Tasks, row.path, row.name, disabled, isOff ? AimState::InForce : AimState::Open);
            else if (bringsBack_ && isOff && isTaskOfKeptFeature(row.name) && isIn(names(u"Task"_s), row.path))
                add(PreviewGroup::Tasks, row.path, row.name, u"enabled"_s, AimState::Open);
            absent.removeIf([&row](const QString &path) { return path.compare(row.path, Qt::CaseInsensitive) == 0; });
        }
        addAbsent(PreviewGroup::Tasks, absent, disabled);
    }

    bool isTaskOfKeptFeature(const QString &name) const
    {
        return std::any_of(keepFeatures.begin(), keepFeatures.end(), [&](const KeepFeature &feature) {
            return feature.isKept(worker_) && feature.hasTask(name);
        });
    }

    void addPackages()
    {
        tryOut(system_, [this] { worker_.PackageGetList(); });
        QStringList listed;
        for (const PackageRow &row : std::as_const(worker_.packages)) {
            if (isIn(listed, row.name)) // installed in two versions
                continue;
            listed.append(row.name);
            addPackage(row.name, row.displayName, removed, AimState::Open);
        }
        for (const QString &record : names(u"Packages"_s)) {
            const QString name = recordedPackage(record);
            if (!isIn(listed, name) && !isPackageThere(name)) {
                listed.append(name);
                addPackage(name, name, removed, AimState::InForce);
            }
        }
        for (const QString &name : profile_.packages) {
            if (!isIn(listed, name))
                addPackage(name, name, removed, isPackageThere(name) ? AimState::Open : AimState::Absent);
        }
        if (bringsBack_)
            addPackagesToBringBack();
    }

    void addPackagesToBringBack()
    {
        for (const KeepFeature &feature : keepFeaturesToBringBack()) {
            if (feature.packages.isEmpty() || !feature.isKept(worker_) || worker_.*feature.installed != 0)
                continue;
            for (const QString &name : feature.packagesToBringBack()) {
                if (isIn(names(u"Packages"_s), name))
                    addPackage(name, name, u"installed"_s, AimState::Open);
            }
        }
    }

    void addPackage(const QString &name, const QString &title, const QString &wish, AimState state)
    {
        add(PreviewGroup::Packages, name, title, wish, state, true);
    }

    bool isPackageThere(const QString &name)
    {
        bool isThere = false;
        tryOut(system_, [&] { isThere = isPackageInstalled(name); });
        return isThere;
    }

    /** What is recorded, without making the key of the records. */
    QStringList names(const QString &group)
    {
        QStringList found;
        tryOut(system_, [&] { found = recordedNames(group); });
        return found;
    }

    void addAutoruns()
    {
        // To look at them would make the keys that are missing.
        tryOut(system_, [this] { worker_.AutorunGetList(); });
        QStringList listed;
        for (const AutorunRow &row : std::as_const(worker_.autoruns)) {
            const AutorunEntry entry = shownAutorunEntry(row);
            listed.append(entry.name);
            add(PreviewGroup::Autorun, entry.name, entry.name, disabled, AimState::Open,
                entry.path.startsWith("HKEY_CURRENT_USER"_L1));
        }
        for (const QString &record : names(u"Autorun"_s)) {
            const QString name = shownAutorun(record);
            if (isIn(listed, name))
                continue;
            listed.append(name);
            add(PreviewGroup::Autorun, name, name, disabled, AimState::InForce, true);
        }
        QStringList absent = profile_.startup;
        absent.removeIf([&listed](const QString &name) { return isIn(listed, name); });
        addAbsent(PreviewGroup::Autorun, absent, disabled);
    }

    void addTweaks()
    {
        for (const TweakBox &box : tweakBoxes()) {
            const QString name = tweakName(box.name);
            const bool isNamed = profile_.tweaks.contains(name);
            // In the place of one of them Optimize runs another, which is in this list as well.
            const bool isOfOptimize = box.inOptimize == nullptr && holds(box.optimize, worker_);
            if (isNamed ? !profile_.tweaks.value(name) && !isOfOptimize : !isOfOptimize)
                continue;
            const QString title = tweakWords(box.name).title;
            if (isNamed && !profile_.tweaks.value(name)) {
                aims_.append({PreviewGroup::Tweaks, name, title, on, AimState::LeftAlone, false, false,
                              u"the profile says so"_s});
            } else {
                bool ofUser = false;
                const AimState state = stateOf(box, isOfOptimize, ofUser);
                add(PreviewGroup::Tweaks, name, title, on, state, ofUser);
                if (box.optimize == When::AsJob || box.apply == When::AsJob)
                    aims_.last().why = u"to tell, all files would have to be read"_s;
            }
        }
    }

    AimState stateOf(const TweakBox &box, bool isOfOptimize, bool &ofUser)
    {
        if (box.apply == When::AsJob)
            return AimState::Unknown;
        if (!isOfOptimize && !holds(box.apply, worker_))
            return AimState::Absent;
        switch (tryOut(
            system_, [&] { (worker_.*(box.tweak))(1, box.id); }, &ofUser)) {
        case TrialResult::ChangesNothing:
            return AimState::InForce;
        case TrialResult::Changes:
            return AimState::Open;
        case TrialResult::Unknown:
            return AimState::Unknown;
        }
        return AimState::Unknown;
    }

    void addEncoder()
    {
        if (const std::optional<bool> isOff = isEncoderOff()) {
            add(PreviewGroup::Files, u"RivaTuner Statistics Server\\Profiles\\config"_s,
                u"Video encoder of RivaTuner Statistics Server"_s, u"off"_s,
                *isOff ? AimState::InForce : AimState::Open);
        }
    }

    /** Optimize writes it where it disables services, also without the options, of which one writes it, too. */
    void addServiceTimeout()
    {
        const QString name = u"WaitToKillServiceTimeout"_s;
        const QString timeout = u"3000"_s;
        const auto value = system_.value(WindowsKey::control, name);
        const bool isSet = value && textOf(value->data) == timeout;
        const bool isWritten = std::any_of(aims_.cbegin(), aims_.cend(), [](const Aim &aim) {
            return aim.group == PreviewGroup::Services && aim.wish == disabled && aim.state == AimState::Open;
        });
        add(PreviewGroup::Registry, name, u"Milliseconds that services have to end at shutdown"_s, timeout,
            isSet       ? AimState::InForce
            : isWritten ? AimState::Open
                        : AimState::NotNeeded);
        if (aims_.constLast().state == AimState::NotNeeded)
            aims_.last().why = u"no service is to be disabled"_s;
    }

    void addAbsent(PreviewGroup group, const QStringList &missing, const QString &wish)
    {
        for (const QString &name : missing)
            add(group, name, name, wish, AimState::Absent);
    }

    WorkThread &worker_;
    SystemState &system_;
    const Profile &profile_;
    const bool byOptimize_;
    /** What the program has switched off and is kept now; Optimize would also bring what the PC never had. */
    bool bringsBack_ = false;
    QList<Aim> aims_;
};

/** Why a thing isn't as it was asked for, by what the tools have said last. */
QString refusal(const Aim &aim, const QList<ToolAnswer> &answers)
{
    const auto isAbout = [&aim](const ToolAnswer &answer) {
        return std::any_of(answer.arguments.cbegin(), answer.arguments.cend(), [&aim](const QString &argument) {
            return argument.contains(aim.name, Qt::CaseInsensitive);
        });
    };
    const auto failed = std::find_if(answers.crbegin(), answers.crend(),
                                     [&](const ToolAnswer &answer) { return answer.exitCode != 0 && isAbout(answer); });
    if (failed == answers.crend())
        return u"it was asked for, and didn't happen"_s;
    const QString program = failed->program.section(u'/', -1).section(u'\\', -1).remove(u'"');
    const QString code = u" (%1: %2)"_s.arg(program, QString::number(failed->exitCode));
    if (failed->exitCode == Command::accessDenied)
        return u"access denied"_s + code;
    if (failed->exitCode == Command::endedByForce)
        return u"%1 didn't end"_s.arg(program);
    return u"the system refused it"_s + code;
}

} // namespace

QString aimStateText(AimState state)
{
    return rowOf(state).text;
}

QString aimStateWord(AimState state)
{
    return rowOf(state).word;
}

QString groupWord(PreviewGroup group)
{
    return rowOf(group).word;
}

QString thingText(PreviewGroup group)
{
    return rowOf(group).thing;
}

bool goesByOptimize(const Profile &profile)
{
    return !profile.leavesOut();
}

void applyProfile(WorkThread &worker, const Profile &profile)
{
    QList<KeepChoice> choices;
    for (const KeepFeature &feature : keepFeatures) {
        if (profile.keep.contains(feature.name))
            choices.append({feature.keep, profile.keep.value(feature.name) ? Qt::Checked : Qt::Unchecked});
    }
    applyKeep(worker, choices);
    setWindowsName(worker);
    worker.automatizerProgram = profile.programs ? 1 : 0;
    worker.automatizerTweak = profile.features ? 1 : 0;
}

QList<Aim> aimsOf(WorkThread &worker, SystemState &system, const Profile &profile)
{
    return AimList(worker, system, profile).all();
}

const TweakBox *boxOf(const Aim &aim)
{
    for (const TweakBox &box : tweakBoxes()) {
        if (aim.group == PreviewGroup::Tweaks && tweakName(box.name) == aim.name)
            return &box;
    }
    return nullptr;
}

QList<Aim> judgedAims(const QList<Aim> &before, QList<Aim> now, const QList<ToolAnswer> &answers)
{
    const auto isSame = [](const Aim &left, const Aim &right) {
        return left.group == right.group && left.wish == right.wish
               && left.name.compare(right.name, Qt::CaseInsensitive) == 0;
    };
    QList<Aim> judged;
    for (const Aim &former : before) {
        const auto found =
            std::find_if(now.cbegin(), now.cend(), [&](const Aim &each) { return isSame(each, former); });
        Aim aim = former;
        if (found != now.cend()) {
            aim.state = found->state;
            aim.why = found->why;
        } else if (former.state == AimState::Open) {
            aim.state = AimState::InForce; // nothing is asked for any more
        }
        aim.changed = former.state == AimState::Open && aim.state == AimState::InForce;
        // A service that was stopped and couldn't be disabled starts again.
        if (former.state == AimState::Open && aim.state != AimState::InForce) {
            aim.state = AimState::Refused;
            aim.why = refusal(aim, answers);
        }
        judged.append(aim);
    }
    return judged;
}

bool areInForce(const QList<Aim> &aims)
{
    return std::none_of(aims.cbegin(), aims.cend(),
                        [](const Aim &aim) { return aim.state == AimState::Open || aim.state == AimState::Refused; });
}

QString aimsText(const QList<Aim> &aims, bool all)
{
    QString text;
    QMap<AimState, int> counts;
    for (const Aim &aim : aims) {
        ++counts[aim.state];
        const bool isWorthALine = all || aim.changed || aim.state == AimState::Open || aim.state == AimState::Refused;
        if (!isWorthALine)
            continue;
        QStringList columns{aimStateText(aim.state), thingText(aim.group), aim.name, aim.wish};
        if (!aim.why.isEmpty())
            columns.append(aim.why);
        if (!aim.without.isEmpty() && (aim.state == AimState::InForce || aim.state == AimState::Open))
            columns.append(withoutText(aim.without));
        std::transform(columns.cbegin(), columns.cend(), columns.begin(), printable);
        text += columns.join(u'\t') + u'\n';
    }
    QStringList sums;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count)
        sums.append(u"%1 %2"_s.arg(count.value()).arg(aimStateText(count.key())));
    return text + (sums.isEmpty() ? u"nothing is asked for"_s : sums.join(", "_L1)) + u'\n';
}

QJsonArray aimsJson(const QList<Aim> &aims)
{
    QJsonArray array;
    for (const Aim &aim : aims) {
        array.append(QJsonObject{{u"group"_s, groupWord(aim.group)},
                                 {u"name"_s, aim.name},
                                 {u"title"_s, aim.title},
                                 {u"wish"_s, aim.wish},
                                 {u"state"_s, aimStateWord(aim.state)},
                                 {u"changed"_s, aim.changed},
                                 {u"why"_s, aim.why},
                                 {u"without"_s, aim.without}});
    }
    return array;
}
