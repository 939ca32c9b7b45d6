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

/** Whether a path begins with a drive's letter and a separator: it doesn't depend on anybody's current folder. */
inline bool isDrivePath(const QString &path)
{
    const auto isLetter = [](QChar unit) { return unit.unicode() < 128 && unit.isLetter(); };
    return path.size() > 2 && isLetter(path.at(0)) && path.at(1) == u':' && (path.at(2) == u'\\' || path.at(2) == u'/');
}

/** Whether it is a name alone, which says nothing of where the program is. */
inline bool isBareName(const QString &program)
{
    return std::none_of(program.cbegin(), program.cend(),
                        [](QChar unit) { return unit == u'/' || unit == u'\\' || unit == u':'; });
}
