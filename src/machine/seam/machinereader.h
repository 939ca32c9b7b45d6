// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine, read as a PC is.

#pragma once

#include "machine/machine.h"
#include "platform/systemreader.h"

class MachineReader final : public SystemReader
{
public:
    explicit MachineReader(Machine &machine)
        : machine_(machine)
    {
    }

    KeyContent key(const QString &path) const override;
    std::optional<QList<ServiceReport>> serviceReports() const override;

private:
    Machine &machine_;
};
