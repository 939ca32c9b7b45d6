// SPDX-License-Identifier: GPL-3.0-or-later

#include "displayadapter.h"

#include "wmi.h"

using namespace Qt::StringLiterals;

std::optional<QString> firstDisplayAdapter()
{
    const QString name = u"Caption"_s;
    const QString answer = WmiQuery(u"Win32_VideoController"_s, {name});
    const qsizetype found = answer.indexOf(name, 0, Qt::CaseInsensitive);
    if (found < 0)
        return {};
    // Behind the name stands the "=".
    return answer.mid(found + name.size() + 1).section(u"\r\n"_s, 0, 0);
}
