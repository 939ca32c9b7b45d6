// SPDX-License-Identifier: GPL-3.0-or-later

#include "packagerecord.h"

#include "work/settings.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

void recordPackageLine(const QString &line, bool install)
{
    const QString mark = WorkThread::tr("package: ");
    const QString done = WorkThread::tr("done");
    if (!line.contains(mark) || !line.endsWith(done))
        return;
    const QString name = line.split(mark).at(1).split(u": "_s + done).first();
    if (name.isEmpty())
        return; // names the whole group
    const auto records = openRecords(u"Packages"_s);
    if (install)
        records->remove(name);
    else
        records->setValue(name, 1);
}
