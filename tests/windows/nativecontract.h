// SPDX-License-Identifier: GPL-3.0-or-later
// The platform that the contract tests ask: the Windows they run on.

#pragma once

#include "machine/registrystore.h"
#include "platform/windows/windowsplatform.h"

/** The counterpart of the class that stands for a rehearsal machine: the same questions, past the seam. */
class ContractPlatform
{
public:
    ContractPlatform() { setPlatform(std::make_unique<WindowsPlatform>()); }
    ~ContractPlatform() { setPlatform(nullptr); }
    Q_DISABLE_COPY_MOVE(ContractPlatform)

    /** Values as the registry has them. The key is made. */
    void writeRaw(const QString &keyPath, const RegistryValue &value) const;
    std::optional<RegistryValue> readRaw(const QString &keyPath, const QString &name) const;
    bool hasKey(const QString &keyPath) const;
};
