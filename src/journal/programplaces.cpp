// SPDX-License-Identifier: GPL-3.0-or-later

#include "programplaces.h"

#include "work/settings.h"

using namespace Qt::StringLiterals;

OwnPlace placeInProgram(const QString &key, const QString &name)
{
    static const QStringList records{u"optimized"_s, u"optimizeBegun"_s};

    if (programKey.startsWith(key + u'\\', Qt::CaseInsensitive)) // made with it, and staying with it
        return OwnPlace::Setting;
    if (key.compare(programKey, Qt::CaseInsensitive) == 0)
        return records.contains(name, Qt::CaseInsensitive) ? OwnPlace::Record : OwnPlace::Setting;
    return key.startsWith(programKey + u'\\', Qt::CaseInsensitive) ? OwnPlace::Record : OwnPlace::None;
}
