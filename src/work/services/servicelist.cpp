// SPDX-License-Identifier: GPL-3.0-or-later
// The list of services: the registry tells what there is, sc tells what runs.

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "services.h"
#include "work/command.h"
#include "work/interruption.h"
#include "work/statusline.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

/** Cuts everything up to and including the first @p mark; false where there is none. */
bool cutThrough(QStringView &text, QStringView mark)
{
    const qsizetype position = text.indexOf(mark);
    if (position < 0)
        return false;
    text = text.sliced(position + mark.size());
    return true;
}

/** Whether a record of sc's report says that the service runs: the digit 4 after the label of its state. */
bool saysRunning(QStringView record)
{
    return cutThrough(record, u"STATE ") && cutThrough(record, u": ") && record.startsWith(u'4');
}

} // namespace

QSet<QString> runningServices(const QString &report)
{
    const QString mark = u"SERVICE_NAME: "_s;

    QSet<QString> names;
    if (!report.contains(mark))
        return names;
    for (const QStringView record : QStringView(report).split(mark)) {
        if (saysRunning(record))
            names.insert(record.left(record.indexOf(u"\r\n"_s)).toString());
    }
    return names;
}

bool isListedServiceType(const QString &type)
{
    static const QStringList types{u"16"_s, u"32"_s, u"96"_s, u"224"_s, u"272"_s};
    return types.contains(type);
}

void WorkThread::SvcMakeList()
{
    WriteStartModeBackup();

    Command sc;
    if (!startLogged(sc, u"SvcMakeList"_s, u"sc"_s, {u"query"_s, u"state="_s, u"all"_s}))
        return;
    sc.waitForFinished();
    sc.waitForReadyRead();
    const QSet<QString> running = runningServices(QString::fromUtf8(sc.readAllStandardOutput()));

    services.clear();
    const auto key = platform().openKey(WindowsKey::services);
    for (const QString &name : key->childGroups()) {
        endIfInterrupted();
        key->beginGroup(name);
        if (const QString type = key->value(u"Type"_s).toString(); isListedServiceType(type)) {
            ServiceRow row;
            row.name = name;
            row.type = type;
            row.start = key->value(u"Start"_s).toString();
            row.displayName = expandResourceString(key->value(u"DisplayName"_s).toString());
            if (row.displayName.startsWith("error"_L1))
                row.displayName = name;
            row.description = expandResourceString(key->value(u"Description"_s).toString());
            if (row.description.startsWith("error"_L1) || row.description.isEmpty())
                row.description = tr("no description");
            row.running = running.contains(name);
            services.append(row);
        }
        key->endGroup();
    }
    if (analyzeRunning != 1)
        report(StatusLine::servicesListed);
}
