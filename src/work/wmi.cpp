// SPDX-License-Identifier: GPL-3.0-or-later

#include "wmi.h"

#include "platform/platform.h"
#include "settings.h"

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

std::optional<QString> wmiField(const QString &answer, const QString &property, FieldEnd end)
{
    if (!answer.contains(property, Qt::CaseInsensitive))
        return {};
    QString value = answer;
    value.remove(0, value.indexOf(property) + property.size() + 1);
    if (end == FieldEnd::Line) {
        // -1 without a line break: the last character goes, on purpose.
        const qsizetype lineEnd = value.indexOf(u"\r\n"_s);
        value.remove(lineEnd, value.size() - lineEnd);
    }
    return value;
}

QString wmiDate(const QString &value)
{
    constexpr qsizetype shortestDate = 21;

    if (value.size() < shortestDate)
        return value;
    QString date = value;
    date.remove(u' ');
    for (const qsizetype position : {4, 7, 10})
        date.insert(position, u'/');
    return date.split(u'/').first(3).join(u'/');
}

std::optional<QString> firstDisplayAdapter()
{
    const QString name = u"Caption"_s;
    const QString answer = WmiQuery(u"Win32_VideoController"_s, {name});
    const qsizetype found = answer.indexOf(name, 0, Qt::CaseInsensitive);
    if (found < 0)
        return {};
    // The "=" follows the name.
    return answer.mid(found + name.size() + 1).section(u"\r\n"_s, 0, 0);
}
