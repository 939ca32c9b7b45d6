// SPDX-License-Identifier: GPL-3.0-or-later

#include "records.h"

#include "platform/platform.h"
#include "platform/windowsfacts.h"
#include "work/packages/packages.h"
#include "work/services/services.h"
#include "work/settings.h"

#include <QRegularExpression>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool areSame(const QString &left, const QString &right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

bool hasSeparator(const QString &name)
{
    return name.contains(u'\\') || name.contains(u'/');
}

bool isServiceOrNothing(const QString &name, const QString &)
{
    if (name.isEmpty() || hasSeparator(name))
        return false;
    // Opened above the service: opening the key of one that isn't there would make it.
    const auto services = platform().openKey(WindowsKey::services);
    return !services->childGroups().contains(name, Qt::CaseInsensitive)
           || isListedServiceType(services->value(name + u"/Type"_s).toString());
}

/** See Restore and the page: "<command>=<path>", or "<key of the task>=". */
bool isProgram(const QString &name, const QString &record)
{
    const QStringList parts = record.split(u'=');
    if (parts.size() < 2)
        return true;
    if (parts.at(1).isEmpty())
        return areSame(parts.first(), WindowsKey::terminalTask) || areSame(parts.first(), WindowsKey::xboxTask);
    return std::any_of(std::begin(WindowsKey::runKeys), std::end(WindowsKey::runKeys),
                       [&](const QString &run) { return areSame(parts.at(1), run + u'\\' + name); });
}

bool isPackage(const QString &name, const QString &)
{
    static const QRegularExpression plain(u"\\A[A-Za-z0-9._-]+\\z"_s);
    return name == oneDriveName || plain.match(recordedPackage(name)).hasMatch();
}

struct Group
{
    QString name;
    bool (*isTrusted)(const QString &name, const QString &record);
};

const Group services{u"SVC"_s, isServiceOrNothing};
const Group autoruns{u"Autorun"_s, isProgram};
const Group packages{u"Packages"_s, isPackage};

QStringList namesIn(const Group &group, bool trusted)
{
    QStringList names;
    const auto records = openRecords(group.name);
    for (const QString &name : recordedNames(group.name)) {
        if (group.isTrusted(name, records->ownValue(name).toString()) == trusted)
            names.append(name);
    }
    return names;
}

QStringList trustedIn(const Group &group)
{
    for (const QString &name : namesIn(group, false))
        LogError(u"records: "_s + group.name + u'\\' + name + u" isn't the program's own and is passed over"_s);
    return namesIn(group, true);
}

} // namespace

QStringList trustedServices()
{
    return trustedIn(services);
}

QStringList trustedAutoruns()
{
    return trustedIn(autoruns);
}

QStringList trustedPackages()
{
    return trustedIn(packages);
}

QStringList distrustedRecords()
{
    QStringList names;
    for (const Group *group : {&services, &autoruns, &packages}) {
        for (const QString &name : namesIn(*group, false))
            names.append(group->name + u'\\' + name);
    }
    return names;
}
