// SPDX-License-Identifier: GPL-3.0-or-later

#include "takeback.h"

#include "machine/registrystore.h"
#include "platform/windowsfacts.h"
#include "wayback/waybackscript.h"
#include "work/command.h"
#include "work/interruption.h"
#include "work/settings.h"

#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** All notes of a thing, in brief. */
struct Thing
{
    Note first;                       ///< of the selection
    std::optional<ItemState> lastOwn; ///< what the program left it as; nothing where that is unknown
    bool changedLater = false;        ///< by a session after the selection
};

/** The order in which things come back: what others stand on comes first. */
int rankOf(const Item &item)
{
    switch (item.kind) {
    case ItemKind::Move:
    case ItemKind::Content:
        return 0;
    case ItemKind::Security:
        return 1;
    case ItemKind::Attributes:
        return 2;
    case ItemKind::Package:
        return 3;
    case ItemKind::BootOption:
        return 4;
    case ItemKind::Hibernation:
        return 5;
    case ItemKind::Task:
        return 6;
    case ItemKind::Value:
        return 7;
    case ItemKind::Key:
        return 8;
    case ItemKind::RunState:
        return 9;
    case ItemKind::OneWay:
        break;
    }
    return 10;
}

bool comesBackBefore(const TakenItem &left, const TakenItem &right)
{
    const int leftRank = rankOf(left.item);
    const int rightRank = rankOf(right.item);
    if (leftRank != rightRank)
        return leftRank < rightRank;
    if (leftRank == 0) // steps go back in the opposite order
        return left.id > right.id;
    if (left.item.kind == ItemKind::Key) // what was made goes from the bottom
        return left.item.subject.size() > right.item.subject.size();
    return left.id < right.id;
}

bool isSelected(const Selection &selection, qint64 session)
{
    return session >= selection.firstSession && (selection.lastSession == 0 || session <= selection.lastSession);
}

/** A number of a service's start mode, as sc takes it. */
QString startWord(const ItemState &start, const std::optional<RegistryValue> &delayed)
{
    static const QStringList words{u"boot"_s, u"system"_s, u"auto"_s, u"demand"_s, u"disabled"_s};
    if (start.data.isEmpty())
        return {};
    const auto mode = static_cast<unsigned char>(start.data.front());
    if (mode == StartAutomatic && delayed && !delayed->data.isEmpty() && delayed->data.front() != 0)
        return u"delayed-auto"_s;
    return words.value(mode);
}

/** Whether a package that the user has lost can be registered from files that others still hold. */
bool isHeld(const SystemState &system, const QString &name)
{
    const auto holds = [&](const QString &key) {
        const QStringList packages = system.key(key).subkeys;
        return std::any_of(packages.cbegin(), packages.cend(), [&name](const QString &fullName) {
            return packageNameOf(fullName).compare(name, Qt::CaseInsensitive) == 0;
        });
    };
    if (holds(WindowsKey::machinePackages))
        return true;
    // Beside those of all users the store has a key for each user who has packages, by his SID.
    const QString store = WindowsKey::machinePackages.section(u'\\', 0, -2);
    const QStringList users = system.key(store).subkeys;
    return std::any_of(users.cbegin(), users.cend(),
                       [&](const QString &user) { return user.startsWith("S-1-"_L1) && holds(store + u'\\' + user); });
}

/** Why a thing can't come back, whatever is tried; empty where it may. */
QString hindrance(const SystemState &system, const Note &note, const ItemState &now)
{
    if (note.item.kind == ItemKind::OneWay)
        return u"Windows keeps no copy of what this removes"_s;
    const bool isLost = note.item.kind == ItemKind::Package && note.before.there && !now.there;
    if (!isLost || note.item.subject == oneDriveName || isHeld(system, note.item.subject))
        return {};
    return u"its files are gone from this PC; get it from the Store"_s;
}

/** Carries a plan out. */
class WayBackRun
{
public:
    explicit WayBackRun(const Journal &journal)
        : journal_(journal)
    {
    }

    void take(const TakenItem &item)
    {
        const Item &what = item.item;
        const ItemState &before = item.before;
        switch (what.kind) {
        case ItemKind::Value:
            return setValue(what, before);
        case ItemKind::Key:
            return setKey(what, before);
        case ItemKind::RunState:
            return setRunning(what.subject, before.there);
        case ItemKind::Task:
            run(u"schtasks"_s, {u"/CHANGE"_s, u"/TN"_s, what.subject, before.there ? u"/ENABLE"_s : u"/DISABLE"_s});
            return;
        case ItemKind::Package:
            return setPackage(what.subject, before.there);
        case ItemKind::BootOption:
            if (before.there)
                run(u"bcdedit"_s, {u"/set"_s, what.subject, QString::fromUtf8(before.data)});
            else
                run(u"bcdedit"_s, {u"/deletevalue"_s, what.subject});
            return;
        case ItemKind::Hibernation:
            run(u"powercfg"_s, {u"-h"_s, before.there ? u"ON"_s : u"OFF"_s});
            return;
        case ItemKind::Security:
            if (before.there && journal_.note({what}))
                journal_.system().setFileSecurity(what.subject, before.data);
            return;
        case ItemKind::Attributes:
            if (before.there)
                platform().setFileAttributes(platform().hostPath(what.subject), before.type);
            return;
        case ItemKind::Content:
            return setContent(what, before);
        case ItemKind::Move:
            if (QFileInfo::exists(platform().hostPath(what.name))
                && !QFileInfo::exists(platform().hostPath(what.subject)))
                platform().renameFile(platform().hostPath(what.name), platform().hostPath(what.subject));
            return;
        case ItemKind::OneWay:
            return;
        }
    }

private:
    static void run(const QString &program, const QStringList &arguments) { runTool(program, arguments); }

    /** The service manager has a start mode in its memory, too, and takes it from its own tool alone. */
    void setStartMode(const Item &item, const ItemState &before)
    {
        const std::optional<QString> service = serviceOfKey(item.subject);
        if (!service || item.name.compare("Start"_L1, Qt::CaseInsensitive) != 0 || !before.there)
            return;
        const QString word = startWord(before, journal_.system().value(item.subject, u"DelayedAutostart"_s));
        if (word.isEmpty() || word == "boot"_L1 || word == "system"_L1)
            return;
        run(u"sc"_s, {u"config"_s, *service, u"start="_s + word});
    }

    void setRunning(const QString &service, bool running)
    {
        if (!running) {
            run(u"sc"_s, {u"stop"_s, service});
            return;
        }
        // One that was disabled and went on running has to be able to start, for this moment.
        const Item start{ItemKind::Value, WindowsKey::services + u'\\' + service, u"Start"_s};
        const Item delayed{ItemKind::Value, start.subject, u"DelayedAutostart"_s};
        const ItemState mode = journal_.stateOf(start);
        const bool isDisabled = !mode.data.isEmpty() && mode.data.front() == StartDisabled;
        const ItemState delay = journal_.stateOf(delayed);
        if (isDisabled)
            run(u"sc"_s, {u"config"_s, service, u"start=demand"_s});
        run(u"sc"_s, {u"start"_s, service});
        if (isDisabled) {
            setValue(start, mode);
            setValue(delayed, delay);
        }
    }

    void setValue(const Item &item, const ItemState &before)
    {
        setStartMode(item, before);
        if (!before.there) {
            if (journal_.noteIfThere(item))
                journal_.system().removeValue(item.subject, item.name);
        } else if (journal_.noteMaking(item.subject) && journal_.note({item})) {
            journal_.system().setValue(item.subject, {item.name, static_cast<RegistryType>(before.type), before.data});
        }
    }

    void setKey(const Item &item, const ItemState &before)
    {
        if (before.there) {
            if (journal_.noteMaking(item.subject))
                journal_.system().makeKey(item.subject);
        } else if (journal_.note({item})) {
            journal_.system().removeEmptyKey(item.subject);
        }
    }

    void setContent(const Item &item, const ItemState &before)
    {
        const QString path = platform().hostPath(item.subject);
        const QFileInfo place(path);
        if (!before.there)
            platform().removeFile(path);
        else
            platform().writeFile(place.path(), place.fileName(), before.data, IfThere::Exchange);
    }

    void setPackage(const QString &name, bool installed)
    {
        if (name == oneDriveName) {
            const QString windows = qEnvironmentVariable("WINDIR");
            const QString setup = oneDriveSetup(
                [&windows](const QString &path) { return QFileInfo::exists(platform().hostPath(windows + path)); });
            run(u'"' + windows + setup + u'"', {installed ? u"/silent"_s : u"/uninstall"_s});
            return;
        }
        const QString program = qEnvironmentVariable("windir") + u"/system32/WindowsPowerShell/v1.0/powershell.exe"_s;
        if (installed)
            run(program, {u"-Command"_s, u"Get-AppxPackage"_s, u"-allusers"_s, name,
                          u" | Foreach {Add-AppxPackage -DisableDevelopmentMode -Register "
                          "\"$($_.InstallLocation)\\AppXManifest.xml\"}"_s});
        else
            run(program, {u"-Command"_s, u"Get-AppxPackage"_s, name, u"| Remove-AppxPackage"_s});
    }

    const Journal &journal_;
};

/** Where files have got to that were moved, by where they were first; both as subjects. */
class Moves
{
public:
    void add(const Note &note)
    {
        const Item &step = note.item;
        const auto origin = std::find_if(moves_.begin(), moves_.end(),
                                         [&step](const Note &each) { return each.item.name == step.subject; });
        if (origin == moves_.end())
            moves_.append(note);
        else
            origin->item.name = step.name; // which may be back where it was
    }

    const QList<Note> &all() const { return moves_; }

    /** The item, of the file where that is now: it may be noted by the name before a move, or by the one after it. */
    Item followed(const Journal &journal, Item item) const
    {
        if (item.kind != ItemKind::Attributes || QFileInfo::exists(journal.hostPath(item.subject)))
            return item;
        for (const Note &each : moves_) {
            const QString path = journal.hostPath(item.subject);
            if (path == journal.hostPath(each.item.subject))
                item.subject = each.item.name;
            else if (path == journal.hostPath(each.item.name))
                item.subject = each.item.subject;
        }
        return item;
    }

private:
    QList<Note> moves_;
};

TakenItem judgedMove(const Journal &journal, const Note &note)
{
    const bool isBack = QFileInfo::exists(journal.hostPath(note.item.subject));
    TakenItem item{note.id, note.item, {true}, {isBack}, WayBack::Open, {}, false};
    if (isBack) {
        item.verdict = WayBack::AsItWas;
    } else if (!QFileInfo::exists(journal.hostPath(note.item.name))) {
        item.verdict = WayBack::Impossible;
        item.why = u"the file is at neither place"_s;
    }
    return item;
}

TakenItem judged(const Journal &journal, const Thing &thing, const Moves &moves)
{
    const Note &note = thing.first;
    const ItemState now = journal.stateOf(moves.followed(journal, note.item));
    TakenItem item{note.id, note.item, note.before, now, WayBack::Open, {}, note.own};
    item.wasChanged = !thing.lastOwn || *thing.lastOwn != note.before;
    if (item.item.kind == ItemKind::Package) // its full name is no part of the state
        item.before.data.clear();
    // As it was left, whatever has become of it in between, such as a change that was taken back.
    const bool isAsLeft = thing.lastOwn && *thing.lastOwn == item.now;
    if (QString why = hindrance(journal.system(), note, now); !why.isEmpty()) {
        item.verdict = WayBack::Impossible;
        item.why = std::move(why);
        if (note.item.kind == ItemKind::Package)
            item.storeLink = storePageOf(QString::fromUtf8(note.before.data));
    } else if (item.now == item.before) {
        item.verdict = WayBack::AsItWas;
    } else if (thing.changedLater && !isAsLeft) {
        item.verdict = WayBack::Changed;
        item.why = u"a later session has changed it, too"_s;
    } else if (thing.lastOwn && !isAsLeft) {
        item.verdict = WayBack::Changed;
        item.why = u"something else has changed it since"_s;
    }
    return item;
}

bool isWanted(const Selection &selection, const TakenItem &item)
{
    return item.verdict == WayBack::Open || item.verdict == WayBack::AsItWas
           || (item.verdict == WayBack::Changed && selection.evenChanged);
}

/** The verdict once all has been tried. */
void judgeAfterwards(const Journal &journal, const Selection &selection, const Moves &moves, TakenItem &item)
{
    if (item.item.kind == ItemKind::OneWay)
        return;
    item.now = item.item.kind == ItemKind::Move ? ItemState{QFileInfo::exists(journal.hostPath(item.item.subject))}
                                                : journal.stateOf(moves.followed(journal, item.item));
    if (item.now == item.before) {
        item.verdict = WayBack::AsItWas;
        item.why.clear();
    } else if (item.verdict != WayBack::Changed || selection.evenChanged) {
        item.verdict = WayBack::Impossible;
        if (item.why.isEmpty())
            item.why = u"it didn't come back"_s;
    }
}

/** The place of the record that the program keeps of a change, as a key and a name below it; empty without one. */
QString recordOf(const Journal &journal, const Item &item)
{
    switch (item.kind) {
    case ItemKind::Value:
        if (WindowsKey::runKeys.contains(journal.ownPath(item.subject), Qt::CaseInsensitive))
            return recordKey(u"Autorun"_s) + u'\\' + item.name;
        if (const auto service = serviceOfKey(item.subject);
            service && item.name.compare("Start"_L1, Qt::CaseInsensitive) == 0)
            return recordKey(u"SVC"_s) + u'\\' + *service;
        return {};
    case ItemKind::Task:
        return recordKey(u"Task"_s) + item.subject;
    case ItemKind::Package:
        return recordKey(u"Packages"_s) + u'\\' + item.subject;
    default:
        return {};
    }
}

/** Leaves the items of these ids in a plan, and the program's records of them, which would be wrong without them. */
void keepSelected(const Journal &journal, QList<TakenItem> &plan, const QList<qint64> &ids)
{
    const QSet<qint64> selected(ids.cbegin(), ids.cend());
    QSet<QString> records;
    for (const TakenItem &item : std::as_const(plan)) {
        if (selected.contains(item.id))
            records.insert(foldName(recordOf(journal, item.item)));
    }
    plan.removeIf([&journal, &selected, &records](const TakenItem &item) {
        const bool isRecord = item.own && item.item.kind == ItemKind::Value;
        return !selected.contains(item.id)
               && !(isRecord
                    && records.contains(foldName(journal.ownPath(item.item.subject) + u'\\' + item.item.name)));
    });
}

} // namespace

const Journal *journalInForce()
{
    return dynamic_cast<const Journal *>(&platform());
}

QList<TakenItem> planWayBack(const Journal &journal, const Selection &selection)
{
    QList<Thing> things;
    QHash<QString, qsizetype> byItem;
    Moves moves;
    for (const Note &note : journal.store().notesSince(selection.firstSession)) {
        const auto found = byItem.constFind(foldedItem(note.item));
        if (!isSelected(selection, note.session)) {
            if (found != byItem.constEnd())
                things[*found].changedLater = true;
        } else if (note.item.kind == ItemKind::Move) {
            moves.add(note);
        } else if (found == byItem.constEnd()) {
            byItem.insert(foldedItem(note.item), things.size());
            things.append({note, note.after});
        } else {
            things[*found].lastOwn = note.after;
        }
    }
    QList<TakenItem> plan;
    for (const Note &move : moves.all())
        plan.append(judgedMove(journal, move));
    for (const Thing &thing : std::as_const(things))
        plan.append(judged(journal, thing, moves));
    if (!selection.items.isEmpty())
        keepSelected(journal, plan, selection.items);
    std::stable_sort(plan.begin(), plan.end(), comesBackBefore);
    return plan;
}

QList<TakenItem> takeBack(const Journal &journal, const Selection &selection,
                          const std::function<void(qsizetype, qsizetype)> &step)
{
    constexpr qsizetype rounds = 3;

    QList<TakenItem> plan = planWayBack(journal, selection);
    const ChangeSession session(u"Take back"_s);
    WayBackRun run(journal);
    for (qsizetype i = 0; i < plan.size(); ++i) {
        endIfInterrupted();
        if (step)
            step(i, plan.size());
        const TakenItem &item = plan.at(i);
        // A tool before it may have changed what was as it should be.
        const bool isOpen = item.verdict == WayBack::Open || item.item.kind == ItemKind::Move
                            || journal.stateOf(item.item) != item.before;
        if (isWanted(selection, item) && isOpen)
            run.take(item);
    }
    // A service stops only after those that need it.
    for (qsizetype round = 0; round < rounds; ++round) {
        for (const TakenItem &item : std::as_const(plan)) {
            if (item.item.kind == ItemKind::RunState && isWanted(selection, item)
                && journal.stateOf(item.item) != item.before)
                run.take(item);
        }
    }
    Moves moves;
    for (const TakenItem &item : std::as_const(plan)) {
        if (item.item.kind == ItemKind::Move)
            moves.add({.item = item.item});
    }
    for (TakenItem &item : plan)
        judgeAfterwards(journal, selection, moves, item);
    return plan;
}
