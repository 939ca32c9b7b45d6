// SPDX-License-Identifier: GPL-3.0-or-later
// Restore's phase of programs started at logon.

#include "work/autorun/autorun.h"
#include "work/settings.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

/** The key of a Run value's path, up to the first place where its name stands. */
QString runKey(const QString &path, const QString &name)
{
    return path.left(path.indexOf(u'\\' + name));
}

/** Brings back what a record tells. False for a record that tells nothing. */
bool bringBack(const QString &name, const QString &record)
{
    const QStringList parts = record.split(u'=');
    if (parts.size() < 2)
        return false;
    if (parts.at(1).isEmpty())
        enablePackagedTask(parts.first());
    else
        enableRunValue(runKey(parts.at(1), name), name, parts.first());
    return true;
}

} // namespace

void WorkThread::restoreAutoruns()
{
    const QStringList names = recordedNames(u"Autorun"_s);
    // A single one stays off, without a word.
    if (names.size() < 2)
        return;
    reportPhase(tr("Autorun"));
    reportMaximum(names.size());
    reportStep(0);
    const auto records = openRecords(u"Autorun"_s);
    int counter = 1;
    for (const QString &name : names) {
        // Also told of one that can't be brought back.
        if (bringBack(name, records->value(name).toString()))
            reportToAutomatizer(tr("Autorun program: enable %1 done").replace(u"%1"_s, name));
        reportStep(counter);
        ++counter;
    }
    reportStep(names.size());
    reportBreak();
}
