// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings.h"

#include "platform/platform.h"

#include <QDateTime>

#include <mutex>

using namespace Qt::StringLiterals;

QString recordKey(const QString &group)
{
    return programKey + u'\\' + group;
}

std::unique_ptr<RegistryKey> openSettings()
{
    return platform().openKey(programKey);
}

std::unique_ptr<RegistryKey> openRecords(const QString &group)
{
    return platform().openKey(recordKey(group));
}

void record(const QString &group, const QString &name, const QVariant &value)
{
    const auto records = openRecords(group);
    records->setValue(name, value);
    records->flush();
}

QStringList recordedNames(const QString &group)
{
    QStringList names = openRecords(group)->childKeys();
    names.removeAll(u"."_s);
    return names;
}

void LogError(const QString &message)
{
    if (openSettings()->value(u"LogError"_s, 0).toInt() != 1)
        return;
    // On Windows appending is finding the end and writing there, and two workers may find the same end.
    static std::mutex oneAtATime;
    const std::lock_guard lock(oneAtATime);
    const QDateTime now = QDateTime::currentDateTime();
    platform().appendLine(platform().programFolder(), u"log.txt"_s,
                          now.date().toString(Qt::TextDate) + u" - "_s + now.time().toString(Qt::TextDate) + u": "_s
                              + message);
}
