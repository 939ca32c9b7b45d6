// SPDX-License-Identifier: GPL-3.0-or-later

#include "past.h"

#include "journal/journalstore.h"
#include "journal/machinejournal.h"
#include "machine/machine.h"
#include "machine/registrydisplay.h"

#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

Past::Past(const Machine &machine)
{
    const QString file = journalFile(machine.folder());
    if (!QFileInfo::exists(file))
        return;
    const JournalContent content = readJournal(file);
    isKnown_ = !content.notes.isEmpty();
    QHash<qint64, QString> names;
    for (const Session &session : content.sessions)
        names.insert(session.id, u"%1 on %2"_s.arg(session.what, session.begun.toString(u"yyyy-MM-dd HH:mm"_s)));
    for (const Note &note : content.notes) {
        if (note.after && *note.after != note.before)
            changes_.insert(foldedItem(note.item), {*note.after, names.value(note.session)});
    }
}

QString Past::changeOf(const Item &item, const std::function<bool(const ItemState &)> &isSuch) const
{
    const auto [first, last] = changes_.equal_range(foldedItem(item));
    const auto found = std::find_if(first, last, [&isSuch](const Change &change) { return isSuch(change.to); });
    return found == last ? QString() : found->session;
}

QString Past::changeOf(const DiffRow &row) const
{
    const auto any = [](const ItemState &) { return true; };
    switch (row.kind) {
    case DiffKind::Service:
        return changeOf({ItemKind::RunState, row.path},
                        [&row](const ItemState &state) { return state.there == (row.after == "running"_L1); });
    case DiffKind::Task:
        return changeOf({ItemKind::Task, row.path},
                        [&row](const ItemState &state) { return state.there == row.after.startsWith("enabled"_L1); });
    case DiffKind::Registry: {
        const Item item{ItemKind::Value, row.path, row.name};
        return changeOf(item, [&row](const ItemState &state) {
            const QString text =
                state.there ? valueText({row.name, static_cast<RegistryType>(state.type), state.data}) : QString();
            return text == row.after;
        });
    }
    case DiffKind::File:
        return changeOf({ItemKind::Content, row.path}, any);
    case DiffKind::Attribute:
        return changeOf({ItemKind::Attributes, row.path}, any);
    case DiffKind::Security:
        return changeOf({ItemKind::Security, row.path}, any);
    case DiffKind::BootOption:
        return changeOf({ItemKind::BootOption, row.path}, [&row](const ItemState &state) {
            return state.there == !row.after.isEmpty() && QString::fromUtf8(state.data) == row.after;
        });
    }
    return {};
}
