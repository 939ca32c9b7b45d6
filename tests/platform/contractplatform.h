// SPDX-License-Identifier: GPL-3.0-or-later
// The platform that the contract tests ask: here a fresh rehearsal machine, or the Windows that the test runs on.

#pragma once

#ifdef KESTRUNE_REAL_MACHINE
#include "windows/nativecontract.h"
#else

#include "machine/seam/machineplatform.h"

#include <QTemporaryDir>

/** Puts an empty machine in force. What stands below is all that a test may know of the platform beside platform(). */
class ContractPlatform
{
public:
    explicit ContractPlatform(const MachineOptions &options = {})
    {
        Machine::create(folder());
        restart(options);
    }

    QString folder() const { return folder_.filePath(QStringLiteral("machine")); }
    /** The same machine seen by another process. */
    void restart(const MachineOptions &options)
    {
        auto made = std::make_unique<MachinePlatform>(folder(), options);
        platform_ = made.get();
        setPlatform(std::move(made));
    }

    MachinePlatform &machinePlatform() const { return *platform_; }
    Machine &machine() const { return platform_->machine(); }

    /** Values as the registry has them, past the seam. The key is made. */
    void writeRaw(const QString &keyPath, const RegistryValue &value) const
    {
        machine().registry().setValue(machine().registry().make(keyPath).value(), value);
    }
    std::optional<RegistryValue> readRaw(const QString &keyPath, const QString &name) const
    {
        const auto key = machine().registry().find(keyPath);
        return key ? machine().registry().value(*key, name) : std::nullopt;
    }
    bool hasKey(const QString &keyPath) const { return machine().registry().find(keyPath).has_value(); }

private:
    QTemporaryDir folder_;
    MachinePlatform *platform_ = nullptr;
};

#endif
