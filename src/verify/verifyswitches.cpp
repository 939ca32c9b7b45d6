// SPDX-License-Identifier: GPL-3.0-or-later

#include "machine/machine.h"
#include "machine/registrydisplay.h"
#include "past.h"
#include "platform/taskdocument.h"
#include "platform/windowsfacts.h"
#include "preview/previewwords.h"
#include "verify.h"
#include "work/autorun/autorun.h"
#include "work/packages/packages.h"
#include "work/settings.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** The value in words; empty where there is none. */
QString textAt(Machine &machine, const QString &key, const QString &name)
{
    const std::optional<RegistryValue> value = machine.registry().value(key, name);
    return value ? valueText(*value) : QString();
}

/** What a thing is, on both machines; a text is empty where it isn't there. */
struct Sides
{
    QString what;
    QString before;
    QString now;
    QString recorded;
};

/** What the journal knows of a thing. */
struct PastOfItem
{
    bool isKnown = false;
    QString change{}; ///< the last session that put it into the recorded state, in words
};

/** The item of a thing, by its states, by the last run of a tool that switched it, and by the journal. */
VerifiedItem judged(VerifiedItem item, const Sides &sides, const std::optional<SwitchRun> &last,
                    const PastOfItem &past = {})
{
    if (sides.now == sides.recorded)
        return item;
    item.details = {{sides.what, sides.before, sides.now, sides.recorded}};
    const bool off = last && last->to == Switch::Off;
    if (off && last->exitCode != 0) {
        item.verdict = Verdict::Refused;
        item.why = u"%1 ended with %2"_s.arg(last->tool).arg(last->exitCode);
    } else if (off) {
        item.verdict = Verdict::ChangedBack;
        item.why = u"%1 had switched it off"_s.arg(last->tool);
    } else if (last && last->exitCode == 0) {
        item.verdict = Verdict::ChangedBack;
        item.why = u"%1 was told to change it back"_s.arg(last->tool);
    } else if (!past.change.isEmpty()) {
        item.verdict = Verdict::ChangedBack;
        item.why = u"it was in force after "_s + past.change;
    } else {
        item.verdict = sides.now == sides.before ? Verdict::AsBefore : Verdict::ChangedBack;
        if (item.verdict == Verdict::AsBefore && past.isKnown)
            item.why = u"the journal knows of no change"_s;
    }
    return item;
}

/** The records of one comparison, group by group. */
class SwitchVerification
{
public:
    SwitchVerification(Machine &before, Machine &now)
        : before_(before)
        , now_(now)
        , last_(readToolLog(now))
        , past_(now)
    {
    }

    QList<VerifiedItem> run()
    {
        verifyServices();
        verifyTasks();
        verifyPackages();
        verifyAutoruns();
        std::stable_sort(items_.begin(), items_.end(), [](const VerifiedItem &left, const VerifiedItem &right) {
            return std::pair(left.group, foldName(left.title)) < std::pair(right.group, foldName(right.title));
        });
        return items_;
    }

private:
    QStringList recorded(QLatin1StringView group)
    {
        const RegistryStore &store = now_.registry();
        const auto key = store.find(recordKey(group));
        QStringList names = key ? store.valueNames(*key) : QStringList();
        names.removeAll(QString());
        // The registry has no backslash in the name of a value that the program writes.
        names.replaceInStrings(u"/"_s, u"\\"_s);
        return names;
    }

    /** Calls for each recorded name, and then for each that was refused and isn't recorded. */
    template<typename Verify>
    void each(QStringList names, const QMap<QString, SwitchRun> &switches, Verify verify)
    {
        QStringList known;
        for (const QString &name : std::as_const(names)) {
            known.append(foldName(name));
            items_.append(verify(name));
        }
        for (auto run = switches.begin(); run != switches.end(); ++run) {
            if (run->to == Switch::On || run->exitCode == 0 || known.contains(run.key()))
                continue;
            // A failure for what isn't there, or is off anyway, is none.
            if (const VerifiedItem item = verify(run->name); item.verdict == Verdict::Refused)
                items_.append(item);
        }
    }

    static std::optional<SwitchRun> lastOf(const QMap<QString, SwitchRun> &switches, const QString &name)
    {
        const auto run = switches.find(foldName(name));
        return run == switches.end() ? std::nullopt : std::optional(*run);
    }

    PastOfItem pastOf(const Item &item, const std::function<bool(const ItemState &)> &isRecorded) const
    {
        return {past_.isKnown(), past_.changeOf(item, isRecorded)};
    }

    static QString startMode(Machine &machine, const QString &service)
    {
        return startModeInWords(textAt(machine, WindowsKey::services + u'\\' + service, u"Start"_s));
    }

    void verifyServices()
    {
        each(recorded("SVC"_L1), last_.services, [this](const QString &name) {
            VerifiedItem item{PreviewGroup::Services, name, serviceTitle(before_, name)};
            const QString mode = startMode(now_, name);
            if (mode.isEmpty()) {
                item.verdict = Verdict::Gone;
                return item;
            }
            item = judged(
                item, {startModeDetail, startMode(before_, name), mode, u"disabled"_s}, lastOf(last_.services, name),
                pastOf({ItemKind::Value, WindowsKey::services + u'\\' + name, u"Start"_s}, [](const ItemState &state) {
                    return !state.data.isEmpty() && state.data.front() == StartDisabled;
                }));
            item.without = withoutOf(item.group, name);
            if (item.verdict == Verdict::InForce && now_.isRunning(name).value_or(false))
                item.why = u"runs until Windows starts the next time"_s;
            return item;
        });
    }

    static QString taskState(const Machine &machine, const QString &path)
    {
        const std::optional<ScheduledTask> task = machine.task(path);
        if (!task)
            return QString();
        return taskFacts(task->document).enabled ? u"enabled"_s : u"disabled"_s;
    }

    /** The Tasks page records what it has switched on, too. */
    QString recordedTaskState(const QString &name)
    {
        const QString text = textAt(now_, recordKey(u"Task"_s), QString(name).replace(u'\\', u'/'));
        return text == "dword 0"_L1 ? u"enabled"_s : u"disabled"_s;
    }

    void verifyTasks()
    {
        QStringList paths;
        QMap<QString, QString> states;
        for (const QString &name : recorded("Task"_L1)) {
            // These belong to the tasks' own backup.
            if (name.startsWith("Backup"_L1))
                continue;
            paths.append(taskPath(name));
            states.insert(paths.last(), recordedTaskState(name));
        }
        each(paths, last_.tasks, [this, &states](const QString &path) {
            VerifiedItem item{PreviewGroup::Tasks, path, path.section(u'\\', -1)};
            const QString state = taskState(now_, path);
            if (state.isEmpty()) {
                item.verdict = Verdict::Gone;
                return item;
            }
            const QString recordedState = states.value(path, u"disabled"_s);
            if (recordedState == "disabled"_L1)
                item.without = withoutOf(item.group, path);
            return judged(item, {u"state"_s, taskState(before_, path), state, recordedState}, lastOf(last_.tasks, path),
                          pastOf({ItemKind::Task, path}, [enabled = states.value(path) == "enabled"_L1](
                                                             const ItemState &was) { return was.there == enabled; }));
        });
    }

    /** Full names of the installed packages of a name. */
    static QString installed(Machine &machine, const QString &name)
    {
        if (name == oneDriveName)
            return installedOneDrive(machine);
        const RegistryStore &store = machine.registry();
        const auto key = store.find(WindowsKey::userPackages);
        QStringList found;
        for (const QString &fullName : key ? store.subkeys(*key) : QList<QString>()) {
            if (packageNameOf(fullName).compare(name, Qt::CaseInsensitive) == 0)
                found.append(fullName);
        }
        return found.join(", "_L1);
    }

    static QString installedOneDrive(const Machine &machine)
    {
        const QMap<QString, QString> variables = machine.environment();
        for (auto it = variables.begin(); it != variables.end(); ++it) {
            const QString program = it.value() + u"\\Microsoft\\OneDrive\\OneDrive.exe"_s;
            if (it.key().compare("LOCALAPPDATA"_L1, Qt::CaseInsensitive) == 0
                && QFileInfo::exists(machine.hostPath(program)))
                return program;
        }
        return QString();
    }

    void verifyPackages()
    {
        each(recorded("Packages"_L1), last_.packages, [this](const QString &record) {
            const QString name = recordedPackage(record);
            VerifiedItem item{PreviewGroup::Packages, name, name};
            item.without = withoutOf(item.group, name);
            return judged(item, {u"installed"_s, installed(before_, name), installed(now_, name), QString()},
                          lastOf(last_.packages, name),
                          pastOf({ItemKind::Package, name}, [](const ItemState &state) { return !state.there; }));
        });
    }

    /** A Run value is there or it isn't; a packaged task has a switch. */
    static QString autorunState(Machine &machine, const AutorunEntry &entry)
    {
        // A record has the registry's own name of its value, which a path may show with other slashes.
        if (hasPartedName(entry.path))
            return textAt(machine, runValueAt(entry.path).key, entry.name);
        if (!isPackagedTask(entry.name))
            return textAt(machine, entry.path.section(u'\\', 0, -2), entry.path.section(u'\\', -1));
        return textAt(machine, entry.path, u"State"_s) == "dword 2"_L1 ? u"enabled"_s : QString();
    }

    void verifyAutoruns()
    {
        for (const QString &name : recorded("Autorun"_L1)) {
            const std::optional<RegistryValue> record = now_.registry().value(recordKey(u"Autorun"_s), name);
            const QString text = textOf(record->data);
            const QString path = text.section(u'=', 1, 1);
            const AutorunEntry entry{name, path.isEmpty() ? text.section(u'=', 0, 0) : path, {}};
            VerifiedItem item =
                judged({PreviewGroup::Autorun, name, name},
                       {entry.path, autorunState(before_, entry), autorunState(now_, entry), QString()}, std::nullopt);
            if (item.verdict == Verdict::AsBefore)
                item.verdict = Verdict::ChangedBack;
            items_.append(item);
        }
    }

    Machine &before_;
    Machine &now_;
    LastSwitches last_;
    Past past_;
    QList<VerifiedItem> items_;
};

} // namespace

QList<VerifiedItem> verifySwitches(Machine &before, Machine &now)
{
    return SwitchVerification(before, now).run();
}

QString differentPcs(Machine &before, Machine &now)
{
    if (before.hasReplacedNames() != now.hasReplacedNames())
        return u"the names of one were replaced when it was captured, and those of the other weren't"_s;
    const QString key = WindowsKey::hardware + u"\\BIOS"_s;
    const auto board = [&key](Machine &machine) {
        QStringList words;
        for (const QString &name : {u"BaseBoardManufacturer"_s, u"BaseBoardProduct"_s}) {
            if (const auto value = machine.registry().value(key, name))
                words.append(textOf(value->data));
        }
        return words.join(u' ');
    };
    const QString left = board(before);
    const QString right = board(now);
    return left.isEmpty() || right.isEmpty() || left == right
               ? QString()
               : u"one has the mainboard %1, the other %2"_s.arg(left, right);
}
