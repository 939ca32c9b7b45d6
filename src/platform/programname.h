// SPDX-License-Identifier: GPL-3.0-or-later
// How a program to start is named.

#pragma once

#include <QString>

#include <algorithm>

/** The path of a program that may stand in double quotes. */
inline QString withoutQuotes(const QString &program)
{
    const bool quoted = program.size() > 1 && program.startsWith(u'"') && program.endsWith(u'"');
    return quoted ? program.sliced(1).chopped(1) : program;
}

/** Whether it is a name alone, which says nothing of where the program is. */
inline bool isBareName(const QString &program)
{
    return std::none_of(program.cbegin(), program.cend(),
                        [](QChar unit) { return unit == u'/' || unit == u'\\' || unit == u':'; });
}
