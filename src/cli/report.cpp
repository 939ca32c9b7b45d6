// SPDX-License-Identifier: GPL-3.0-or-later

#include "commands.h"

#include "console/printable.h"
#include "work/packages/packages.h"
#include "work/tasks/tasks.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestProfile = qint64(1) << 20;

/** Of the profile that is read at the moment. */
SystemState *systemOfProfile = nullptr;

bool isOnPc(const QString &key, const QString &name)
{
    if (systemOfProfile == nullptr)
        return false;
    if (key == "services"_L1)
        return systemOfProfile->hasKey(WindowsKey::services + u'\\' + name);
    if (key == "tasks"_L1)
        return systemOfProfile->isTaskEnabled(name.startsWith(u'\\') ? name : u'\\' + name).has_value();
    if (key == "packages"_L1) {
        const QStringList packages = systemOfProfile->key(WindowsKey::userPackages).subkeys;
        return std::any_of(packages.cbegin(), packages.cend(), [&name](const QString &fullName) {
            return packageNameOf(fullName).compare(name, Qt::CaseInsensitive) == 0;
        });
    }
    return false;
}

} // namespace

QString profileFile(const Arguments &arguments)
{
    return arguments.value(profileOption.name);
}

Profile readProfile(const QString &name, SystemState *system)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        throw Failure{ExitBadArguments, u"%1: %2"_s.arg(name, file.errorString())};
    const QByteArray json = file.read(largestProfile + 1);
    if (json.size() > largestProfile)
        throw Failure{ExitBadArguments, u"%1: larger than 1 MiB, which no profile is"_s.arg(name)};
    return checkedProfile(json, name, system);
}

Profile checkedProfile(const QByteArray &json, const QString &name, SystemState *system)
{
    ProfileMistakes mistakes;
    systemOfProfile = system;
    Profile profile = parseProfile(json, name, mistakes, isOnPc);
    systemOfProfile = nullptr;
    if (!mistakes.isEmpty())
        throw Failure{ExitBadArguments, mistakes.join(u'\n')};
    return profile;
}

Profile profileOf(const Arguments &arguments, const Pc &pc)
{
    Profile profile = arguments.has(profileOption.name) ? readProfile(profileFile(arguments), &pc.system()) : Profile();
    profile.leavesOutUser = !pc.otherAccount().isEmpty();
    return profile;
}

QByteArray aimsDocument(const QString &command, const QString &profile, const QList<Aim> &aims, QJsonObject more)
{
    QJsonObject counts;
    for (const Aim &aim : aims) {
        const QString word = aimStateWord(aim.state);
        counts.insert(word, counts.value(word).toInt() + 1);
    }
    more.insert(u"formatVersion"_s, 1);
    more.insert(u"command"_s, command);
    more.insert(u"profile"_s, profile);
    more.insert(u"counts"_s, counts);
    more.insert(u"items"_s, aimsJson(aims));
    return printableJson(QJsonDocument(more));
}

void reportAims(const QString &command, const Arguments &arguments, const QList<Aim> &aims, bool all,
                const QJsonObject &more)
{
    const bool isJsonPrinted = arguments.value(jsonOption.name) == "-"_L1;
    if (!isJsonPrinted && !arguments.has("quiet"_L1))
        print(aimsText(aims, all));
    if (arguments.has(jsonOption.name))
        writeReportFile(arguments.value(jsonOption.name), aimsDocument(command, profileFile(arguments), aims, more));
}
