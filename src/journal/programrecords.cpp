// SPDX-License-Identifier: GPL-3.0-or-later

#include "programrecords.h"

#include "machine/machineerror.h"
#include "platform/windowsfacts.h"
#include "work/automatizer/records.h"
#include "work/autorun/autorun.h"
#include "work/settings.h"
#include "work/workthread.h"

#include <QtEndian>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int isOff = 1;
constexpr int isOnAgain = 0;

/** What the program would have recorded of a thing next. */
struct Record
{
    QString group;
    QString name;
    int value = isOff;
};

bool isStartMode(const ItemState &state, StartMode mode)
{
    return !state.data.isEmpty() && state.data.front() == mode;
}

std::optional<Record> recordOfService(const Note &note, const ItemState &now)
{
    const std::optional<QString> service = serviceOfKey(note.item.subject);
    const bool isStart = service && note.item.name.compare("Start"_L1, Qt::CaseInsensitive) == 0;
    if (!isStart || isStartMode(note.before, StartDisabled) || !isStartMode(now, StartDisabled))
        return std::nullopt;
    return Record{u"SVC"_s, *service};
}

/** The Tasks page records what it has switched on, too. */
std::optional<Record> recordOfTask(const Note &note, const ItemState &now, bool ofPage)
{
    if (note.before.there == now.there || (now.there && !ofPage))
        return std::nullopt;
    return Record{u"Task"_s, note.item.subject.sliced(1), now.there ? isOnAgain : isOff};
}

std::optional<Record> recordOfPackage(const Note &note, const ItemState &now)
{
    if (!note.before.there || now.there)
        return std::nullopt;
    return Record{u"Packages"_s, note.item.subject};
}

/** The record that a change of a session asks for, where the change is in force. */
std::optional<Record> recordOf(const Journal &journal, const QString &session, const Note &note)
{
    const bool ofOptimize = session == changesOf(JobAutomatizerOptimize) || session == appliedProfile;
    const ItemState now = journal.stateOf(note.item);
    if (note.item.kind == ItemKind::Value && (ofOptimize || session == changesOf(JobSvcDisable)))
        return recordOfService(note, now);
    if (note.item.kind == ItemKind::Task && (ofOptimize || session == changesOf(JobTaskStopOrStart)))
        return recordOfTask(note, now, !ofOptimize);
    if (note.item.kind == ItemKind::Package && (ofOptimize || session == changesOf(JobPackageSetState)))
        return recordOfPackage(note, now);
    return std::nullopt;
}

void settle(const Journal &journal, const Session &session)
{
    journal.resume(session.id);
    for (const Note &note : journal.store().notes(session.id)) {
        const std::optional<Record> missing = note.own ? std::nullopt : recordOf(journal, session.what, note);
        if (missing && !recordedNames(missing->group).contains(missing->name, Qt::CaseInsensitive))
            record(missing->group, missing->name, missing->value);
    }
    journal.store().setSettled(session.id);
}

// What the records tell of times without a journal. They know that something was switched off, and not what it was like
// before: that is taken to be what a restoration makes of it.

ItemState numberState(quint32 number)
{
    return {true, static_cast<quint32>(RegistryType::DWord), registryDWord(number)};
}

QList<Note> notesOfService(const Journal &, const QString &name)
{
    const QString key = WindowsKey::services + u'\\' + name;
    Note start;
    start.item = {ItemKind::Value, key, u"Start"_s};
    start.before = numberState(StartAutomatic);
    Note run;
    run.item = {ItemKind::RunState, name};
    run.before.there = true;
    return {start, run};
}

QList<Note> notesOfTask(const Journal &, const QString &name)
{
    Note note;
    note.item = {ItemKind::Task, u'\\' + name};
    note.before.there = true;
    return {note};
}

/** Nothing of one whose full name is gone with its files: the Store is asked for it by that. */
QList<Note> notesOfPackage(const Journal &journal, const QString &name)
{
    Note note;
    note.item = {ItemKind::Package, name};
    note.before.there = true;
    for (const QString &fullName : journal.system().key(WindowsKey::machinePackages).subkeys) {
        if (packageNameOf(fullName).compare(name, Qt::CaseInsensitive) == 0)
            note.before.data = fullName.toUtf8();
    }
    return name == oneDriveName || !note.before.data.isEmpty() ? QList{note} : QList<Note>();
}

QList<Note> notesOfProgram(const Journal &journal, const QString &name)
{
    constexpr quint32 isEnabled = 2; // the state of a packaged application's start

    const AutorunEntry entry = recordedAutorun(name);
    Note note;
    if (isPackagedTaskExactly(name)) {
        note.item = {ItemKind::Value, journal.commonPath(entry.path), u"State"_s};
        note.before = numberState(isEnabled);
    } else {
        const RunValue value = runValueAt(entry.path);
        note.item = {ItemKind::Value, journal.commonPath(value.key), value.name};
        note.before = {true, static_cast<quint32>(RegistryType::String), registryText(entry.command)};
    }
    return {note};
}

struct RecordGroup
{
    QString name;
    QStringList (*names)();
    QList<Note> (*notes)(const Journal &journal, const QString &name);
};

QStringList recordedTasks()
{
    return recordedNames(u"Task"_s);
}

/** Only what is there and not as it would have been. */
bool isOfToday(const Journal &journal, const Note &note)
{
    if (note.item.kind == ItemKind::Task && !journal.system().isTaskEnabled(note.item.subject))
        return false;
    if (serviceOfKey(note.item.subject) && !journal.system().hasKey(note.item.subject))
        return false;
    if (note.item.kind == ItemKind::RunState
        && !journal.system().hasKey(WindowsKey::services + u'\\' + note.item.subject))
        return false;
    return *note.after != note.before;
}

/** What a record of something that is off tells, and the record itself, which goes with it. */
QList<Note> notesOfRecord(const Journal &journal, const RecordGroup &group, const QString &name)
{
    QList<Note> notes = group.notes(journal, name);
    for (Note &note : notes)
        note.after = journal.stateOf(note.item);
    notes.removeIf([&journal](const Note &note) { return !isOfToday(journal, note); });
    if (notes.isEmpty())
        return {};
    Note record;
    record.item = {ItemKind::Value, journal.commonPath(recordKey(group.name)), registryName(name)};
    record.own = true;
    record.after = journal.stateOf(record.item);
    return notes << record;
}

bool isRecordedAsOff(const QString &group, const QString &name)
{
    return group == "Autorun"_L1 || openRecords(group)->value(name).toInt() == isOff;
}

/** A journal that has just begun knows nothing of what was done before. */
void takeOverRecords(const Journal &journal)
{
    static const RecordGroup groups[] = {{u"SVC"_s, trustedServices, notesOfService},
                                         {u"Task"_s, recordedTasks, notesOfTask},
                                         {u"Packages"_s, trustedPackages, notesOfPackage},
                                         {u"Autorun"_s, trustedAutoruns, notesOfProgram}};

    if (!journal.store().sessions().isEmpty())
        return;
    QList<Note> notes;
    for (const RecordGroup &group : groups) {
        // Looking into a group that isn't there would make its key.
        if (!journal.system().hasKey(journal.commonPath(recordKey(group.name))))
            continue;
        for (const QString &name : group.names()) {
            if (isRecordedAsOff(group.name, name))
                notes += notesOfRecord(journal, group, name);
        }
    }
    if (notes.isEmpty())
        return;
    JournalStore &store = journal.store();
    const qint64 session = store.beginSession({.what = beforeTheJournal}); // by whom and when is unknown
    store.add(session, notes);
    QList<Note> added = store.notes(session);
    for (Note &note : added)
        note.after = journal.stateOf(note.item);
    store.setAfter(added);
    store.endSession(session, SessionState::Finished);
}

} // namespace

void settleBrokenOff()
{
    const auto *journal = dynamic_cast<const Journal *>(&platform());
    if (journal == nullptr)
        return;
    try {
        takeOverRecords(*journal);
        for (const Session &session : journal->store().sessions()) {
            if (session.state == SessionState::BrokenOff && !session.settled)
                settle(*journal, session);
        }
    } catch (const MachineError &) {
        return;
    }
}

OwnPlace placeInProgram(const QString &key, const QString &name)
{
    static const QStringList records{u"optimized"_s, u"optimizeBegun"_s};

    if (programKey.startsWith(key + u'\\', Qt::CaseInsensitive)) // made with it, and staying with it
        return OwnPlace::Setting;
    if (key.compare(programKey, Qt::CaseInsensitive) == 0)
        return records.contains(name, Qt::CaseInsensitive) ? OwnPlace::Record : OwnPlace::Setting;
    return key.startsWith(programKey + u'\\', Qt::CaseInsensitive) ? OwnPlace::Record : OwnPlace::None;
}

int keptDays(const SystemState &system)
{
    constexpr quint32 fewest = 90;
    constexpr quint32 most = 36'500;

    const std::optional<RegistryValue> setting = system.value(programKey, u"JournalDays"_s);
    if (!setting || setting->type != RegistryType::DWord || setting->data.size() != sizeof(quint32))
        return 0;
    const auto days = qFromLittleEndian<quint32>(setting->data.constData());
    return days == 0 ? 0 : static_cast<int>(std::clamp(days, fewest, most));
}
