// SPDX-License-Identifier: GPL-3.0-or-later

#include "pc.h"

#include "journal/machinejournal.h"
#include "journal/programrecords.h"
#include "journal/takeback.h"
#include "machine/machine.h"
#include "machine/machineerror.h"
#include "machine/seam/machineplatform.h"
#include "machine/seam/machinesystem.h"
#include "stocktool/machinetoolhost.h"
#ifdef Q_OS_WIN
#include "journal/realjournal.h"
#include "platform/windows/processtoken.h"
#include "platform/windows/windowssystem.h"
#endif

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

QString otherAccountOf(bool isSystem, bool isSignedIn)
{
    return isSystem ? u"the system"_s : isSignedIn ? QString() : u"an account other than the one signed in"_s;
}

constexpr OptionRow options[] = {
    {"machine"_L1, "DIR"_L1, "work on the rehearsal machine DIR in place of this PC"_L1},
    {"not-elevated"_L1, {}, "on a rehearsal machine: as a user without administrator rights"_L1},
};

} // namespace

std::span<const OptionRow> pcOptions()
{
    return options;
}

Pc::Pc(const Arguments &arguments, PcUse use)
{
    try {
        open(arguments);
    } catch (const MachineError &error) {
        throw Failure{ExitMachineUnreadable, error.message};
    }
    if (use == PcUse::Look)
        return;
    if (!platform().isElevated())
        throw Failure{ExitNoRights, u"administrator rights are needed; run this in a console of an administrator"_s};
    if (const QString failure = platform().takeFailure(); !failure.isEmpty())
        throw Failure{ExitJobFailed, u"what is changed can't be noted, so nothing is changed: "_s + failure};
    lock_ = platform().lockOthersOut();
    if (!lock_)
        throw Failure{ExitJobFailed, u"another instance is changing this PC"_s};
    settleBrokenOff();
}

Pc::~Pc()
{
    lock_.reset();
    setPlatform(nullptr);
}

void Pc::open(const Arguments &arguments)
{
    if (arguments.has("machine"_L1)) {
        MachineOptions machine;
        machine.elevated = !arguments.has("not-elevated"_L1);
        machine.pace = 0;
        machine.tools = toolsWithin();
        const QString folder = absoluteFolder(arguments.value("machine"_L1));
        Machine::open(folder); // throws where it is none; below it would be made
        if (machine.elevated && !QFileInfo(folder + u"/machine.sqlite"_s).isWritable())
            throw Failure{ExitJobFailed, u"%1: the machine is read-only"_s.arg(folder)};
        setPlatform(openMachinePlatform(folder, machine));
        const QString user = qEnvironmentVariable("USERNAME");
        otherAccount_ = otherAccountOf(user == "SYSTEM"_L1, user == qEnvironmentVariable("KESTRUNE_SIGNED_IN", user));
    } else {
        if (arguments.has("not-elevated"_L1))
            throw UsageError{u"--not-elevated is for --machine"_s};
#ifdef Q_OS_WIN
        setPlatform(openRealPlatform());
        otherAccount_ = otherAccountOf(sidOfUser() == "S-1-5-18"_L1, isUserOfSession());
#else
        throw Failure{ExitBadArguments, u"this is no Windows; name a rehearsal machine with --machine"_s};
#endif
    }
    if (const Journal *journal = journalInForce()) {
        for (const QString &sentence : journal->putAside())
            qWarning("%s", qUtf8Printable(sentence));
        system_ = &journal->system();
        return;
    }
#ifdef Q_OS_WIN
    if (!arguments.has("machine"_L1))
        ownSystem_ = std::make_unique<WindowsSystem>();
#endif
    if (!ownSystem_)
        ownSystem_ = std::make_unique<MachineSystem>(static_cast<MachinePlatform &>(platform()).machine());
    system_ = ownSystem_.get();
}
