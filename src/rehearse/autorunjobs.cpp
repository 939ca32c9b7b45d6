// SPDX-License-Identifier: GPL-3.0-or-later

#include "jobs.h"

#include "platform/platform.h"
#include "work/automatizer/records.h"
#include "work/autorun/autorun.h"
#include "work/settings.h"

using namespace Qt::StringLiterals;

namespace {

const QString group = u"Autorun"_s;

bool areSame(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

/** The entry of a record, "<command>=<path>", or "<path>=" of a packaged task. */
AutorunEntry recordedEntry(const QString &name)
{
    const QStringList parts = openRecords(group)->value(name).toString().split(u'=');
    const QString path = parts.value(1).isEmpty() ? parts.at(0) : parts.value(1);
    return {name, path, parts.at(0)};
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

} // namespace

void disableAutoruns(WorkThread &, const QStringList &names)
{
    if (!platform().isElevated())
        return;
    const QList<AutorunRow> rows = autorunRows();
    for (const QString &name : names) {
        for (const AutorunRow &row : rows) {
            if (const AutorunEntry entry = autorunEntry(row); areSame(entry.name, name))
                disableAutorun(entry);
        }
    }
}

void enableAutoruns(WorkThread &, const QStringList &names)
{
    if (!platform().isElevated())
        return;
    for (const QString &recorded : trustedAutoruns()) {
        if (!names.contains(recorded, Qt::CaseInsensitive))
            continue;
        enableAutorun(recordedEntry(recorded));
        // Also where it could not be brought back.
        openRecords(group)->remove(recorded);
    }
}

QStringList autorunsNotDisabled(const QStringList &names)
{
    const QStringList records = recordedNames(group);
    QStringList left;
    for (const QString &name : names) {
        if (isListed(name) || !records.contains(name, Qt::CaseInsensitive))
            left.append(name);
    }
    return left;
}

QStringList autorunsNotEnabled(const QStringList &names)
{
    QStringList left;
    for (const QString &name : names) {
        if (!isListed(name))
            left.append(name);
    }
    return left;
}
