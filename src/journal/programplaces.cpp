// SPDX-License-Identifier: GPL-3.0-or-later

#include "programplaces.h"

#include "work/settings.h"

#include <QtEndian>

#include <algorithm>

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

int keptDays(const SystemState &system)
{
    constexpr quint32 fewest = 90;
    constexpr quint32 most = 36'500;

    const std::optional<RegistryValue> setting = system.value(programKey, u"JournalDays"_s);
    if (!setting || setting->type != RegistryType::DWord || setting->data.size() != sizeof(quint32))
        return 0;
    const auto days = qFromLittleEndian<quint32>(setting->data.constData());
    return days == 0 ? 0 : static_cast<int>(std::clamp(days, fewest, most));
}
