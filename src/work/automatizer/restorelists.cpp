// SPDX-License-Identifier: GPL-3.0-or-later
// What a Restore takes in before its job starts, and what is done after its closing line.

#include "automatizer.h"

#include "records.h"
#include "work/settings.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

const QString optimizedSetting = u"optimized"_s;
const QString begunSetting = u"optimizeBegun"_s;

void forgetRecords(const QString &group, const QStringList &names)
{
    const auto records = openRecords(group);
    for (const QString &name : names)
        records->removeOwnValue(name);
}

} // namespace

bool wasOptimized()
{
    return openSettings()->value(optimizedSetting, 0).toInt() == 1;
}

void setOptimized(bool optimized)
{
    openSettings()->setValue(optimizedSetting, optimized ? 1 : 0);
}

void markOptimizeBegun()
{
    const auto settings = openSettings();
    settings->setValue(begunSetting, 1);
    settings->flush();
}

void clearOptimizeBegun()
{
    openSettings()->remove(begunSetting);
}

bool canRestore()
{
    return wasOptimized() || openSettings()->value(begunSetting, 0).toInt() == 1;
}

void fillRestoreLists(WorkThread &worker)
{
    worker.servicesToChange = trustedServices();
    worker.tasksToChange.clear();
    for (const QString &path : recordedNames(u"Task"_s)) {
        // These belong to the tasks' own backup.
        if (!path.startsWith("Backup"_L1))
            worker.tasksToChange.append({path, {}, path.sliced(path.lastIndexOf(u'\\') + 1), {}, 0});
    }
}

void closeRestore()
{
    forgetRecords(u"Autorun"_s, trustedAutoruns());
    forgetRecords(u"Tweak"_s, recordedNames(u"Tweak"_s));
    setOptimized(false);
}
