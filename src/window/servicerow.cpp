// SPDX-License-Identifier: GPL-3.0-or-later

#include "servicerow.h"

#include "kestrune.h"
#include "work/services/servicecatalogue.h"

using namespace Qt::StringLiterals;

QString startModeText(const QString &start)
{
    if (start == "2"_L1)
        return Kestrune::tr("Auto");
    if (start == "3"_L1)
        return Kestrune::tr("Manual");
    if (start == "4"_L1)
        return Kestrune::tr("Disabled");
    return {};
}

bool isCriticalService(const ServiceRow &row)
{
    // 224 is a per-user service's instance, which can't be disabled by itself.
    return criticalServices.contains(row.name) || row.type == "224"_L1;
}
