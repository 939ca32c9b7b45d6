// SPDX-License-Identifier: GPL-3.0-or-later
// Registry texts that stand for a string in a DLL.

#include "registrydisplay.h"

#include "machine.h"

using namespace Qt::StringLiterals;

namespace {

/** Puts values for %names%; an unknown name stays as it is. */
QString expandVariables(const Machine &machine, const QString &text)
{
    const QMap<QString, QString> variables = machine.environment();
    QString result = text;
    for (auto it = variables.begin(); it != variables.end(); ++it)
        result.replace(u'%' + it.key() + u'%', it.value(), Qt::CaseInsensitive);
    return result;
}

} // namespace

QString resolveResourceText(const Machine &machine, const QString &text)
{
    const qsizetype comma = text.lastIndexOf(",-"_L1);
    if (!text.startsWith(u'@') || comma < 0)
        return text;
    // "@x.inf,%name%;The text itself" carries its own fallback, and so may a reference into a DLL.
    const qsizetype semicolon = text.indexOf(u';', comma);
    const QString number = text.mid(comma + 2, semicolon < 0 ? -1 : semicolon - comma - 2);
    bool isNumber = false;
    const uint id = number.toUInt(&isNumber);
    if (!isNumber)
        return text;

    QString dll = expandVariables(machine, text.mid(1, comma - 1));
    if (!dll.contains(u'\\') && !dll.contains(u'/'))
        dll.prepend("C:\\Windows\\System32\\"_L1);
    const auto string = machine.dllString(dll, id);
    if (string && *string)
        return **string;
    return semicolon < 0 ? text : text.mid(semicolon + 1);
}
