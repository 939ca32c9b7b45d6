// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse pack and unpack

#include "console/printable.h"
#include "journal/machinejournal.h"
#include "machine/machine.h"
#include "machine/source/machinesource.h"
#include "machine/workfolder.h"
#include "platform/processground.h"
#include "progress.h"
#include "subcommands.h"
#include "ziparchive.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 mostUnpacked = qint64{4} * 1024 * 1024 * 1024; // bytes
constexpr qsizetype mostEntries = 200000;

void tellLeftOut(const QStringList &names, const QString &why)
{
    for (const QString &name : names)
        print(u"left out: %1, %2\n"_s.arg(printable(name), why));
}

/** A copy of the machine as it is at this moment, with all that belongs to it. */
void copyWhole(const Machine &machine, const QString &folder)
{
    copyMachine(machine, folder);
    copyMachineJournal(machine.folder(), folder);
    const QString log = machine.folder() + u"/commands.log"_s;
    if (QFile::exists(log) && !QFile::copy(log, folder + u"/commands.log"_s))
        throw MachineError{u"%1: can't be copied"_s.arg(log)};
}

int runPack(const Arguments &arguments)
{
    const QString file = arguments.operand(1);
    const std::unique_ptr<Machine> machine = openMachine(arguments.operand(0));
    checkReportFiles(file);
    Progress progress;
    progress.show(u"copying the machine"_s, 0, 1);
    const WorkFolder place;
    if (!place.isValid())
        throw MachineError{place.errorString()};
    const QString copy = place.filePath(u"machine"_s);
    copyWhole(*machine, copy);

    QSaveFile archive(absolutePath(file));
    if (!archive.open(QIODevice::WriteOnly))
        throw MachineError{u"%1: %2"_s.arg(file, archive.errorString())};
    const QString top = QFileInfo(machine->folder()).fileName();
    const QStringList links = packFolder(copy, top, archive, progress.callback());
    const qint64 size = archive.size();
    if (!archive.commit())
        throw MachineError{u"%1: %2"_s.arg(file, archive.errorString())};
    progress.clear();
    tellLeftOut(links, u"a link"_s);
    print(u"%1: %2 bytes\n"_s.arg(printable(file)).arg(size));
    return ExitDone;
}

int runUnpack(const Arguments &arguments)
{
    const QString file = arguments.operand(0);
    QFile archive(absolutePath(file));
    if (!archive.open(QIODevice::ReadOnly) || archive.isSequential())
        throw Failure{ExitMachineUnreadable,
                      u"%1: %2"_s.arg(file, archive.isOpen() ? u"not a file"_s : archive.errorString())};
    Progress progress;
    QStringList leftOut;
    const Existing existing = arguments.has("force"_L1) ? Existing::Replace : Existing::Keep;
    placeMachine(arguments.operand(1), existing, [&](const QString &made) {
        const Unpacking unpacking{
            .folder = made,
            .landmark = u"machine.sqlite"_s,
            .wanted = {u"machine.sqlite"_s, u"machine.sqlite-wal"_s, u"commands.log"_s, u"drive_?"_s, u"program"_s,
                       u"journal"_s},
            .mostBytes = mostUnpacked,
            .mostEntries = mostEntries,
        };
        try {
            leftOut = unpackFolder(archive, unpacking, progress.callback());
        } catch (const MachineError &error) {
            throw Failure{ExitMachineUnreadable, u"%1: %2"_s.arg(file, error.message)};
        }
        Machine::open(made); // as whoever works on it will
    });
    progress.clear();
    tellLeftOut(leftOut, u"not part of a machine"_s);
    return ExitDone;
}

// clang-format off
constexpr OptionRow unpackOptions[] = {
    {"force"_L1, {}, "replace the machine that is there"_L1,
     "Replaces the machine that is there.\nOnly a rehearsal machine is ever replaced."_L1},
};
// clang-format on

} // namespace

const Subcommand packSubcommand{
    "pack"_L1, "DIR FILE"_L1, "pack a rehearsal machine into a small ZIP file, to share it"_L1, {}, 2, 2, runPack,
};

const Subcommand unpackSubcommand{
    "unpack"_L1, "FILE DIR"_L1, "make a rehearsal machine from a file that 'pack' has written"_L1, unpackOptions, 2,
    2,           runUnpack,
};
