// SPDX-License-Identifier: GPL-3.0-or-later
// Captures a rehearsal machine as if it were the PC that the test runs on.

#pragma once

#include "capture/capture.h"
#include "capture/readingplatform.h"
#include "machine/seam/machineplatform.h"
#include "machine/seam/machinereader.h"

inline CaptureReport captureMachine(const QString &source, const QString &folder, Names names = Names::Keep,
                                    const MachineOptions &options = {}, Existing existing = Existing::Keep,
                                    const ProgressCallback &progress = {})
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
    return capturePc(folder, existing, pc, MachineReader(*machine), names, progress);
}
