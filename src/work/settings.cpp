// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings.h"

#include "platform/platform.h"

using namespace Qt::StringLiterals;

namespace {

const QString rootPath = u"HKEY_CURRENT_USER\\Software\\Kestrune\\Ondrevale"_s;

} // namespace

std::unique_ptr<RegistryKey> openSettings()
{
    return platform().openKey(rootPath);
}

std::unique_ptr<RegistryKey> openRecords(const QString &group)
{
    return platform().openKey(rootPath + u'\\' + group);
}

QStringList recordedNames(const QString &group)
{
    QStringList names = openRecords(group)->childKeys();
    names.removeAll(u"."_s);
    return names;
}
