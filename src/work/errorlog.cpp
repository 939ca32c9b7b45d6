// SPDX-License-Identifier: GPL-3.0-or-later

#include "errorlog.h"

#include "platform/platform.h"
#include "settings.h"

#include <QDateTime>
#include <QFile>

#include <mutex>

using namespace Qt::StringLiterals;

void LogError(const QString &message)
{
    if (openSettings()->value(u"LogError"_s, 0).toInt() != 1)
        return;
    // On Windows appending is finding the end and writing there, and two workers may find the same end.
    static std::mutex oneAtATime;
    const std::lock_guard lock(oneAtATime);
    QFile file(platform().programFolder() + u"/log.txt"_s);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Text))
        return;
    // One write for a line, so that two workers' lines don't mix within a line.
    file.write(QString(QDate::currentDate().toString(Qt::TextDate) + u" - "_s
                       + QTime::currentTime().toString(Qt::TextDate) + u": "_s + message + u'\n')
                   .toUtf8());
}
