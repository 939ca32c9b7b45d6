// SPDX-License-Identifier: GPL-3.0-or-later
// Captures a rehearsal machine as if it were the PC that the test runs on.

#pragma once

#include "capture/capture.h"
#include "capture/readingplatform.h"
#include "machine/seam/machineplatform.h"

/** A rehearsal machine, read as a PC is. */
class MachineReader final : public SystemReader
{
public:
    explicit MachineReader(Machine &machine, const QStringList &namesOfUser = {})
        : machine_(machine)
        , namesOfUser_(namesOfUser)
    {
    }

    KeyContent key(const QString &path) const override
    {
        const RegistryStore &store = machine_.registry();
        const auto key = store.find(path);
        if (!key)
            return {};
        return {true, false, store.values(*key), store.subkeys(*key)};
    }

    std::optional<QList<ServiceReport>> serviceReports() const override
    {
        QList<ServiceReport> services;
        const QMap<QString, bool> states = machine_.runStates();
        for (auto it = states.begin(); it != states.end(); ++it)
            services.append({it.key(), it.value()});
        return services;
    }

    QStringList namesOfUser() const override { return namesOfUser_; }

private:
    Machine &machine_;
    QStringList namesOfUser_;
};

inline CaptureReport captureMachine(const QString &source, const QString &folder, Names names = Names::Keep,
                                    const MachineOptions &options = {}, Existing existing = Existing::Keep,
                                    const ProgressCallback &progress = {}, const QStringList &namesOfUser = {})
{
    // In force until the end, whatever is thrown.
    struct InForce
    {
        ~InForce() { setPlatform(nullptr); }
    } const inForce;

    auto reading = std::make_unique<ReadingPlatform>(std::make_unique<MachinePlatform>(source, options));
    const ReadingPlatform &pc = *reading;
    setPlatform(std::move(reading));
    const auto machine = Machine::open(source);
    return capturePc(folder, existing, pc, MachineReader(*machine, namesOfUser), names, progress);
}
