// SPDX-License-Identifier: GPL-3.0-or-later

#include "waybackwork.h"

#include "machine/machineerror.h"
#include "work/interruption.h"

void WayBackWork::look(const Selection &selection)
{
    begin([this, selection] { items = planWayBack(journal_, selection); });
}

void WayBackWork::take(const Selection &selection)
{
    begin([this, selection] { takeSelection(selection); });
}

void WayBackWork::save(const Selection &selection, const QString &folder)
{
    begin([this, selection, folder] { written = writeWayBack(journal_, selection, folder); });
}

void WayBackWork::begin(const std::function<void()> &work)
{
    work_ = work;
    items.clear();
    written = {};
    failure.clear();
    start(QThread::InheritPriority);
}

void WayBackWork::takeSelection(const Selection &selection)
{
    items = takeBack(journal_, selection, [this](qsizetype step, qsizetype steps) {
        Q_EMIT stepped(static_cast<int>(step), static_cast<int>(steps));
    });
    failure = journal_.takeFailure();
}

void WayBackWork::run()
{
    try {
        work_();
    } catch (const MachineError &error) {
        failure = error.message;
    } catch (const JobInterrupted &) {
        // Whoever broke it off knows.
    }
}
