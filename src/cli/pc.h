// SPDX-License-Identifier: GPL-3.0-or-later
// The PC that a command works on.

#pragma once

#include "console/program.h"
#include "platform/systemstate.h"
#include "work/workthread.h"

#include <memory>

/** What all commands take: another PC than this one. */
std::span<const OptionRow> pcOptions();

/** Whether a command changes something. */
enum class PcUse { Look, Change };

/** Its platform is in force as long as the object. */
class Pc
{
public:
    /**
     * Opens the PC that the program runs on, or the rehearsal machine of --machine. A Failure where that can't be done,
     * and where something is to be changed without administrator rights, or while another instance changes something.
     */
    Pc(const Arguments &arguments, PcUse use);
    ~Pc();
    Q_DISABLE_COPY_MOVE(Pc)

    SystemState &system() const { return *system_; }
    /**
     * Who this runs as where that isn't the user who is signed in, and so what belongs to the current user isn't his:
     * "the system", which has no packages and no start-up of a user's, or "an account other than the one signed in", as
     * where somebody gave an administrator's password. Mostly empty.
     */
    QString otherAccount() const { return otherAccount_; }

private:
    void open(const Arguments &arguments);

    std::unique_ptr<SystemState> ownSystem_; ///< where there is no journal that has one
    SystemState *system_ = nullptr;
    QString otherAccount_;
    std::shared_ptr<void> lock_;
};
