// SPDX-License-Identifier: GPL-3.0-or-later

#include "past.h"

#include "journal/journalstore.h"
#include "journal/machinejournal.h"
#include "machine/registrydisplay.h"
#include "work/packages/packages.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** sc config NAME start=MODE */
std::optional<SwitchRun> serviceSwitch(const ToolRun &run)
{
    const QString mode = run.arguments.value(2);
    if (run.arguments.value(0).compare("config"_L1, Qt::CaseInsensitive) != 0
        || !mode.startsWith("start="_L1, Qt::CaseInsensitive))
        return std::nullopt;
    const bool off = mode.endsWith("disabled"_L1, Qt::CaseInsensitive);
    return SwitchRun{run.program, run.arguments.at(1), off ? Switch::Off : Switch::On, run.exitCode};
}

/** schtasks /CHANGE /TN PATH /DISABLE */
std::optional<SwitchRun> taskSwitch(const ToolRun &run)
{
    const bool off = run.arguments.contains("/DISABLE"_L1, Qt::CaseInsensitive);
    if (!run.arguments.contains("/CHANGE"_L1, Qt::CaseInsensitive)
        || (!off && !run.arguments.contains("/ENABLE"_L1, Qt::CaseInsensitive)))
        return std::nullopt;
    const QString name = run.arguments.value(run.arguments.indexOf("/TN"_L1) + 1);
    return SwitchRun{run.program, taskPath(name), off ? Switch::Off : Switch::On, run.exitCode};
}

/** powershell -Command Get-AppxPackage NAME "| Remove-AppxPackage", or the one that brings it back for all users */
std::optional<SwitchRun> packageSwitch(const ToolRun &run)
{
    const QString action = run.arguments.value(run.arguments.size() - 1);
    if (action.contains("Remove-AppxPackage"_L1, Qt::CaseInsensitive))
        return SwitchRun{run.program, run.arguments.value(2), Switch::Off, run.exitCode};
    if (action.contains("Add-AppxPackage"_L1, Qt::CaseInsensitive))
        return SwitchRun{run.program, run.arguments.value(3), Switch::On, run.exitCode};
    return std::nullopt;
}

std::optional<SwitchRun> oneDriveSwitch(const ToolRun &run)
{
    const bool off = run.arguments.contains("/uninstall"_L1, Qt::CaseInsensitive);
    return SwitchRun{run.program, oneDriveName, off ? Switch::Off : Switch::On, run.exitCode};
}

} // namespace

QList<ToolRun> readToolLog(const Machine &machine)
{
    QList<ToolRun> runs;
    QFile log(machine.folder() + u"/commands.log"_s);
    if (!log.open(QIODevice::ReadOnly))
        return runs;
    while (!log.atEnd()) {
        const QJsonObject line = QJsonDocument::fromJson(log.readLine()).object();
        if (line.isEmpty())
            continue;
        ToolRun run{line["program"_L1].toString(), {}, line["exitCode"_L1].toInt()};
        for (const QJsonValue argument : line["arguments"_L1].toArray())
            run.arguments.append(argument.toString());
        runs.append(run);
    }
    return runs;
}

LastSwitches::LastSwitches(const QList<ToolRun> &runs)
{
    const auto take = [](QMap<QString, SwitchRun> &last, const std::optional<SwitchRun> &run) {
        if (run)
            last.insert(foldName(run->name), *run);
    };
    for (const ToolRun &run : runs) {
        if (run.program == "sc"_L1)
            take(services, serviceSwitch(run));
        else if (run.program == "schtasks"_L1)
            take(tasks, taskSwitch(run));
        else if (run.program == "powershell"_L1)
            take(packages, packageSwitch(run));
        else if (run.program == "onedrivesetup"_L1)
            take(packages, oneDriveSwitch(run));
    }
}

QString taskPath(const QString &name)
{
    return name.startsWith(u'\\') ? name : u'\\' + name;
}

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
