// SPDX-License-Identifier: GPL-3.0-or-later
// A small machine in a temporary folder.

#pragma once

#include "machine/source/machinesource.h"
#include "processes.h"

#include <QTemporaryDir>

inline QString smallSources()
{
    return QStringLiteral(KESTRUNE_TEST_DATA "/small");
}

/** Has the services and files of data/small. */
class SmallMachine
{
public:
    SmallMachine()
    {
        try {
            makeMachine(folder(), smallSources(), Existing::Keep);
            machine_ = Machine::open(folder());
        } catch (const MachineError &error) {
            qFatal("%s", qPrintable(error.message));
        }
    }

    QString folder() const { return temporary_.filePath(QStringLiteral("machine")); }
    /** A path beside the machine. */
    QString beside(const QString &name) const { return temporary_.filePath(name); }
    Machine *operator->() { return machine_.get(); }
    Machine &operator*() { return *machine_; }

private:
    QTemporaryDir temporary_;
    std::unique_ptr<Machine> machine_;
};

/** The message of the MachineError that a call throws; empty where it throws none. */
template<typename Call>
QString errorOf(Call call)
{
    try {
        call();
    } catch (const MachineError &error) {
        return error.message;
    }
    return QString();
}
