// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine of a benchmark.

#pragma once

#include "machine/seam/machineplatform.h"

#include <QTemporaryDir>

/** A machine that is there, and in force, as long as the object. */
class BenchMachine
{
public:
    explicit BenchMachine(MachineOptions options = {});
    ~BenchMachine();
    Q_DISABLE_COPY_MOVE(BenchMachine)

    Machine &machine() { return platform_->machine(); }
    /** Adds services, half of them running, each with a display name and a description of its own. */
    void addServices(int count);
    /** Adds packages, each with a display name; every second one can be removed. */
    void addPackages(int count);
    /** Adds programs that start at logon. */
    void addAutoruns(int count);

private:
    QTemporaryDir folder_;
    MachinePlatform *platform_ = nullptr;
};

/** The document of a scheduled task as programs of vendors register them. */
QString vendorsTask(const QString &path);
