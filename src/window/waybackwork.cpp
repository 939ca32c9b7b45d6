// SPDX-License-Identifier: GPL-3.0-or-later

#include "waybackwork.h"

#include "machine/machineerror.h"
#include "work/interruption.h"

void WayBackWork::look(const Selection &selection)
{
    begin(selection, false);
}

void WayBackWork::take(const Selection &selection)
{
    begin(selection, true);
}

void WayBackWork::begin(const Selection &selection, bool takes)
{
    selection_ = selection;
    takes_ = takes;
    items.clear();
    failure.clear();
    brokenOff = false;
    start(QThread::InheritPriority);
}

void WayBackWork::run()
{
    try {
        if (!takes_) {
            items = planWayBack(journal_, selection_);
            return;
        }
        items = takeBack(journal_, selection_, [this](qsizetype step, qsizetype steps) {
            Q_EMIT stepped(static_cast<int>(step), static_cast<int>(steps));
        });
        failure = journal_.takeFailure();
    } catch (const MachineError &error) {
        failure = error.message;
    } catch (const JobInterrupted &) {
        brokenOff = true;
    }
}
