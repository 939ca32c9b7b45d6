// SPDX-License-Identifier: GPL-3.0-or-later

#include "machinejournal.h"

#include "machine/database.h"
#include "machine/machineerror.h"
#include "machine/seam/machinesystem.h"
#include "programrecords.h"
#include "takeback.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

QString journalFile(const QString &machineFolder)
{
    return machineFolder + u"/journal/changes.sqlite"_s;
}

void copyMachineJournal(const QString &machineFolder, const QString &copyFolder)
{
    const QString file = journalFile(machineFolder);
    const QString copy = journalFile(copyFolder);
    if (!QFileInfo(file).isFile())
        return;
    if (!QDir().mkpath(QFileInfo(copy).path()))
        throw MachineError{u"%1: the folder can't be made"_s.arg(QDir::toNativeSeparators(QFileInfo(copy).path()))};
    try {
        Database(file).query("VACUUM INTO ?").bind(copy).run();
    } catch (const MachineError &error) {
        if (!error.damaged)
            throw;
        QFile::remove(copy);
    }
}

std::unique_ptr<Journal> openMachineJournal(const QString &machineFolder, MachineOptions options)
{
    options.elevated = true;
    auto onMachine = std::make_unique<MachinePlatform>(machineFolder, options);
    Machine &machine = onMachine->machine();
    JournalOptions journal;
    journal.file = journalFile(machine.folder());
    journal.durability = Durability::ProcessEnd;
    journal.user = qEnvironmentVariable("USERNAME");
    journal.version = QCoreApplication::applicationVersion();
    journal.ownPlace = placeInProgram;
    journal.afterSession = keepWayBack;
    auto system = std::make_unique<MachineSystem>(machine);
    journal.keptDays = keptDays(*system);
    auto opened = std::make_unique<Journal>(std::move(onMachine), std::move(system), journal);
    for (const QString &sentence : opened->putAside())
        qWarning("%s", qUtf8Printable(sentence));
    return opened;
}

std::unique_ptr<Platform> openMachinePlatform(const QString &machineFolder, const MachineOptions &options)
{
    if (options.elevated)
        return openMachineJournal(machineFolder, options);
    return std::make_unique<MachinePlatform>(machineFolder, options);
}

const Machine &machineInForce()
{
    if (const auto *onMachine = dynamic_cast<const MachinePlatform *>(&platform()))
        return onMachine->machine();
    return static_cast<const MachineSystem &>(static_cast<const Journal &>(platform()).system()).machine();
}
