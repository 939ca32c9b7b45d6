// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine with a journal at its seam, beside a copy of what it was like.

#pragma once

#include "journal/journal.h"
#include "journal/programrecords.h"
#include "journal/takeback.h"
#include "machine/compare/machinediff.h"
#include "machine/seam/machinesystem.h"
#include "support/testmachine.h"

/** The journal of a machine, by the machine's folder. */
inline JournalOptions journalOptions(const QString &folder)
{
    JournalOptions options;
    options.file = folder + QStringLiteral("/journal/changes.sqlite");
    options.durability = Durability::ProcessEnd;
    options.ownPlace = placeInProgram;
    return options;
}

/** Takes the place of a TestMachine's platform, which must not be asked any more. */
class Journaled
{
public:
    /** A platform that is to stand between the journal and the machine. */
    using Between = std::unique_ptr<Platform> (*)(std::unique_ptr<Platform> machine);

    explicit Journaled(const TestMachine &machine, Between between = nullptr)
        : folder_(machine.folder())
        , between_(between)
    {
        copyMachine(machine.machine(), beside_.filePath(QStringLiteral("before")));
        before_ = Machine::open(beside_.filePath(QStringLiteral("before")));
        open();
    }
    ~Journaled() { setPlatform(nullptr); }
    Q_DISABLE_COPY_MOVE(Journaled)

    /** As the program's next start does. */
    void open()
    {
        close(); // one at a time
        auto onMachine = std::make_unique<MachinePlatform>(folder_, MachineOptions());
        machine_ = &onMachine->machine();
        std::unique_ptr<Platform> below = std::move(onMachine);
        if (between_ != nullptr)
            below = between_(std::move(below));
        auto journal = std::make_unique<Journal>(std::move(below), std::make_unique<MachineSystem>(*machine_),
                                                 journalOptions(folder_));
        journal_ = journal.get();
        setPlatform(std::move(journal));
    }

    /** As the end of the program does. */
    void close()
    {
        setPlatform(nullptr);
        machine_ = nullptr;
        journal_ = nullptr;
    }

    Machine &machine() const { return *machine_; }
    Journal &journal() const { return *journal_; }

    /** What isn't as it was; the program's own settings and files are left out. */
    QStringList differences() const
    {
        QStringList texts;
        for (const DiffRow &row : compareMachines(*before_, *machine_)) {
            const bool isOwn = row.path.startsWith(settingsKey) || row.path.startsWith(QStringLiteral("program\\"))
                               || row.path.endsWith(QStringLiteral("\\Temp\\tasks.xml"));
            if (!isOwn)
                texts.append(kindName(row.kind) + u' ' + row.path + u' ' + row.name + QStringLiteral(": ") + row.before
                             + QStringLiteral(" -> ") + row.after);
        }
        return texts;
    }

    /** Takes everything back. What didn't come back, and why. */
    QStringList takeAllBack() const
    {
        QStringList texts;
        for (const TakenItem &item : takeBack(*journal_, {})) {
            if (item.verdict != WayBack::AsItWas)
                texts.append(foldedItem(item.item) + QStringLiteral(": ") + item.why);
        }
        return texts;
    }

private:
    QString folder_;
    Between between_;
    QTemporaryDir beside_;
    std::unique_ptr<Machine> before_;
    Machine *machine_ = nullptr;
    Journal *journal_ = nullptr;
};
