// SPDX-License-Identifier: GPL-3.0-or-later

#include "wmi.h"

#include "errorlog.h"
#include "platform/platform.h"

using namespace Qt::StringLiterals;

namespace {

QString failureText(WmiStep step)
{
    switch (step) {
    case WmiStep::InitializeCom:
        return u" Failed to initialize COM library.Error code "_s;
    case WmiStep::CreateLocator:
        return u" Failed to create IWbemLocator object. Error code"_s;
    case WmiStep::Connect:
        return u" Could not connect. Error code"_s;
    case WmiStep::SetBlanket:
        return u" Could not set proxy blanket. Error code"_s;
    case WmiStep::Query:
        break;
    }
    return u"WmiQuery: Query failed! Error code"_s;
}

} // namespace

QString WmiQuery(const QString &className, const QStringList &properties)
{
    const WmiAnswer answer = platform().queryWmi(className, properties);
    for (const WmiFailure &failure : answer.failures) {
        const QString prefix = u"WmiQuery: "_s + className + u"->"_s + properties.first();
        LogError((failure.step == WmiStep::Query ? QString() : prefix) + failureText(failure.step)
                 + QString::number(failure.code));
    }
    QString result;
    for (const QStringList &values : answer.instances) {
        for (qsizetype i = 0; i < properties.size(); ++i)
            result += u"\r\n"_s + properties.at(i) + u'=' + values.at(i);
    }
    return result;
}
