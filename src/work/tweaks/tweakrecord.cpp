// SPDX-License-Identifier: GPL-3.0-or-later
// The stored state of the Features page.

#include "tweakcatalogue.h"

#include "work/settings.h"

using namespace Qt::StringLiterals;

namespace {

const QString priorityName = u"cbWin32PrioritySeparation"_s;

} // namespace

TweakState storedTweaks()
{
    const auto records = openRecords(u"Tweak"_s);
    TweakState state;
    for (const TweakBox &box : tweakBoxes())
        state.boxes.insert(box.name, records->value(box.name).toBool());
    state.priorityIndex = records->value(priorityName, state.priorityIndex).toInt();
    return state;
}

void storeTweaks(const TweakState &state)
{
    const auto records = openRecords(u"Tweak"_s);
    for (auto box = state.boxes.cbegin(); box != state.boxes.cend(); ++box)
        records->setValue(box.key(), box.value());
    records->setValue(priorityName, state.priorityIndex);
}

void recordTweaksOfAutomatizer(const WorkThread &worker, int priorityIndex)
{
    TweakState state;
    state.priorityIndex = priorityIndex;
    for (const TweakBox &box : tweakBoxes()) {
        if (holds(box.record, worker))
            state.boxes.insert(box.name, worker.restoreRunning == 0);
    }
    storeTweaks(state);
}
