// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs.h"

#include "platform/platform.h"
#include "work/automatizer/records.h"
#include "work/autorun/autorun.h"
#include "work/settings.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString group = u"Autorun"_s;

bool areSame(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/** Whether a record's entry is meant by one of the names: as it is shown, or with what stands before a backslash. */
bool isNamed(const QString &recorded, const QStringList &names)
{
    return names.contains(recorded, Qt::CaseInsensitive) || names.contains(shownAutorun(recorded), Qt::CaseInsensitive);
}

QStringList listedNames()
{
    QStringList names;
    for (const AutorunRow &row : autorunRows())
        names.append(autorunEntry(row).name);
    return names;
}

bool isListed(const QString &name)
{
    return listedNames().contains(name, Qt::CaseInsensitive);
}

bool isShownAsRecorded(const QString &name)
{
    const QStringList recorded = recordedNames(group);
    return std::any_of(recorded.cbegin(), recorded.cend(),
                       [&name](const QString &each) { return areSame(shownAutorun(each), name); });
}

} // namespace

void disableAutoruns(WorkThread &, const QStringList &names)
{
    if (!platform().isElevated())
        return;
    const ChangeSession session(u"Disable programs"_s);
    const QList<AutorunRow> rows = autorunRows();
    for (const QString &name : names) {
        for (const AutorunRow &row : rows) {
            if (const AutorunEntry entry = shownAutorunEntry(row); areSame(entry.name, name))
                disableAutorun(entry);
        }
    }
}

void enableAutoruns(WorkThread &, const QStringList &names)
{
    if (!platform().isElevated())
        return;
    const ChangeSession session(u"Enable programs"_s);
    for (const QString &recorded : trustedAutoruns()) {
        if (!isNamed(recorded, names))
            continue;
        enableAutorun(recordedAutorun(recorded));
        // Also where it could not be brought back.
        openRecords(group)->removeOwnValue(recorded);
    }
}

QStringList autorunsNotDisabled(const WorkThread &, const QStringList &names)
{
    QStringList left;
    for (const QString &name : names) {
        if (isListed(name) || !isShownAsRecorded(name))
            left.append(name);
    }
    return left;
}

bool isKnownAutorun(const QString &name)
{
    return isListed(name) || isShownAsRecorded(name);
}

QStringList autorunsNotEnabled(const WorkThread &, const QStringList &names)
{
    QStringList left;
    for (const QString &name : names) {
        if (!isListed(name))
            left.append(name);
    }
    return left;
}
