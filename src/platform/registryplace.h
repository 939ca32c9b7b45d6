// SPDX-License-Identifier: GPL-3.0-or-later
// Where a name of RegistryKey leads, in the registry's own words.

#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>

/** Slashes and backslashes change their parts between a name here and one in the registry. */
inline QString swapSlashes(QString name)
{
    for (QChar &unit : name) {
        if (unit == u'\\')
            unit = u'/';
        else if (unit == u'/')
            unit = u'\\';
    }
    return name;
}

/** Without the slashes at both ends, and one where there are several. */
inline QString normalisedName(const QString &name)
{
    return name.split(u'/', Qt::SkipEmptyParts).join(u'/');
}

/** A value's place in the registry. */
struct RegistryPlace
{
    QString key;  ///< below the opened key, backslashes between levels; empty for the opened key itself
    QString name; ///< of the value, empty for the unnamed one
};

/** @param name normalised */
inline RegistryPlace registryPlaceOf(const QString &name)
{
    const QString path = swapSlashes(name);
    const qsizetype end = path.lastIndexOf(u'\\');
    RegistryPlace place{path.left(std::max<qsizetype>(end, 0)), path.mid(end + 1)};
    if (place.name == u"Default" || place.name == u".")
        place.name.clear();
    return place;
}
