// SPDX-License-Identifier: GPL-3.0-or-later

#include "wmifield.h"

using namespace Qt::StringLiterals;

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
