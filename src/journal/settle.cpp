// SPDX-License-Identifier: GPL-3.0-or-later

#include "settle.h"

#include "journal.h"
#include "machine/machineerror.h"
#include "platform/windowsfacts.h"
#include "work/settings.h"
#include "work/workthread.h"

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
