// SPDX-License-Identifier: GPL-3.0-or-later

#include "programrecords.h"

#include "machine/machineerror.h"
#include "platform/windowsfacts.h"
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
    const bool ofOptimize = session == changesOf(JobAutomatizerOptimize);
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

} // namespace

void settleBrokenOff()
{
    const auto *journal = dynamic_cast<const Journal *>(&platform());
    if (journal == nullptr)
        return;
    try {
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
