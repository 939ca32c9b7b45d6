// SPDX-License-Identifier: GPL-3.0-or-later

#include "memorysize.h"

#include "work/workthread.h"

using namespace Qt::StringLiterals;

std::optional<qint64> memoryUnits(const QString &bytes)
{
    constexpr qint64 bytesInUnit = 1068000000; // neither 2 to the 30th nor 10 to the 9th

    bool isNumber = false;
    const qint64 number = bytes.toLongLong(&isNumber);
    return isNumber ? std::optional(number / bytesInUnit) : std::nullopt;
}

QString memoryText(std::optional<qint64> units)
{
    return units ? QString::number(*units) + u" Go"_s : WorkThread::tr("unknown");
}
