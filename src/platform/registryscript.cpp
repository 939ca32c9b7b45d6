// SPDX-License-Identifier: GPL-3.0-or-later

#include "registryscript.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype lineWidth = 77; // of the registry editor, before the comma and the backslash at a line's end

QString quoted(const QString &text)
{
    QString result = text;
    result.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
    return u'"' + result + u'"';
}

/** Whether a text comes back as the same data: one zero at its end, no line breaks, no halves of characters. */
bool isPlainText(const RegistryValue &value)
{
    const QString text = textOf(value.data);
    return value.type == RegistryType::String && registryText(text) == value.data && !text.contains(u'\n')
           && !text.contains(u'\r') && QString::fromUtf8(text.toUtf8()) == text;
}

QString bytesText(const QString &start, const QByteArray &data)
{
    QString lines;
    QString line = start;
    for (qsizetype i = 0; i < data.size(); ++i) {
        const bool last = i + 1 == data.size();
        line += QString::number(quint8(data.at(i)), 16).rightJustified(2, u'0');
        line += last ? u""_s : u","_s;
        if (!last && line.size() + 2 > lineWidth) {
            lines += line + u"\\\n"_s;
            line = u"  "_s;
        }
    }
    return lines + line;
}

} // namespace

bool fitsRegistryScript(const QString &name)
{
    return std::none_of(name.begin(), name.end(), [](QChar unit) { return unit.category() == QChar::Other_Control; });
}

QString registryScriptName(const RegistryValue &value)
{
    return (value.name.isEmpty() ? u"@"_s : quoted(value.name)) + u'=';
}

QString registryScriptValue(const RegistryValue &value)
{
    const QString start = registryScriptName(value);
    if (isPlainText(value))
        return start + quoted(textOf(value.data));
    if (value.type == RegistryType::DWord && value.data.size() == 4) {
        QByteArray digits = value.data;
        std::reverse(digits.begin(), digits.end());
        return start + u"dword:"_s + QString::fromLatin1(digits.toHex());
    }
    if (value.type == RegistryType::Binary)
        return bytesText(start + u"hex:"_s, value.data);
    return bytesText(start + u"hex(%1):"_s.arg(quint32(value.type), 0, 16), value.data);
}
