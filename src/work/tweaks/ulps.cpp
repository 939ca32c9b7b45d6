// SPDX-License-Identifier: GPL-3.0-or-later
// The ultra low power state of display adapters.

#include "gamingtweaks.h"
#include "platform/platform.h"

using namespace Qt::StringLiterals;

void setUlpsTweak(bool apply)
{
    const QString video = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Video"_s;
    for (const QString &adapter : platform().openKey(video)->childGroups()) {
        // All six, also those that the adapter doesn't have: the driver reads what it needs.
        for (const QString &instance : {u"0000"_s, u"0001"_s, u"0002"_s, u"0003"_s, u"0004"_s, u"0005"_s})
            platform().openKey(video + u'\\' + adapter + u'\\' + instance)->setValue(u"EnableUlps"_s, apply ? 0 : 1);
    }
}
