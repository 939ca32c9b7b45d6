// SPDX-License-Identifier: GPL-3.0-or-later

#include "settings.h"

#include "platform/platform.h"

using namespace Qt::StringLiterals;

QString recordKey(const QString &group)
{
    return programKey + u'\\' + group;
}

std::unique_ptr<RegistryKey> openSettings()
{
    return platform().openKey(programKey);
}

std::unique_ptr<RegistryKey> openRecords(const QString &group)
{
    return platform().openKey(recordKey(group));
}

void record(const QString &group, const QString &name, const QVariant &value)
{
    const auto records = openRecords(group);
    records->setValue(name, value);
    records->flush();
}

QStringList recordedNames(const QString &group)
{
    QStringList names = openRecords(group)->childKeys();
    names.removeAll(u"."_s);
    return names;
}
