// SPDX-License-Identifier: GPL-3.0-or-later

#include "item.h"

#include "machine/registrystore.h"
#include "platform/systemstate.h"
#include "platform/windowsfacts.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** "sc" of "C:\Windows\System32\SC.EXE". */
QString toolName(const QString &program)
{
    QString name = program;
    name.remove(u'"').replace(u'/', u'\\');
    name = name.section(u'\\', -1).toLower();
    if (name.endsWith(".exe"_L1))
        name.chop(4);
    return name;
}

Item serviceValue(const QString &service, const QString &name)
{
    return {ItemKind::Value, WindowsKey::services + u'\\' + service, name};
}

/** The service and all that it needs, which the service manager starts before it. */
void addWithDependencies(const QString &service, const SystemState &system, QList<Item> &items)
{
    const Item item{ItemKind::RunState, service};
    if (std::any_of(items.cbegin(), items.cend(),
                    [&item](const Item &each) { return foldedItem(each) == foldedItem(item); }))
        return;
    items.append(item);
    const auto needed = system.value(WindowsKey::services + u'\\' + service, u"DependOnService"_s);
    for (const QString &name : needed ? textsOf(needed->data) : QStringList()) {
        if (!name.startsWith(u'+')) // a group of drivers
            addWithDependencies(name, system, items);
    }
}

QList<Item> ofService(const QStringList &arguments, const SystemState &system)
{
    const QString verb = arguments.value(0).toLower();
    const QString service = arguments.value(1);
    if (service.isEmpty())
        return {};
    if (verb == "config"_L1)
        return {serviceValue(service, u"Start"_s), serviceValue(service, u"DelayedAutostart"_s)};
    if (verb == "stop"_L1)
        return {{ItemKind::RunState, service}};
    QList<Item> items;
    if (verb == "start"_L1)
        addWithDependencies(service, system, items);
    return items;
}

QList<Item> ofTask(const QStringList &arguments, const SystemState &)
{
    if (arguments.value(0).compare("/CHANGE"_L1, Qt::CaseInsensitive) != 0)
        return {};
    const qsizetype option = arguments.indexOf(u"/TN"_s);
    const QString path = option < 0 ? QString() : arguments.value(option + 1);
    if (path.isEmpty())
        return {};
    return {{ItemKind::Task, path.startsWith(u'\\') ? path : u'\\' + path}};
}

QList<Item> ofBootOption(const QStringList &arguments, const SystemState &)
{
    const QString verb = arguments.value(0).toLower();
    if (verb != "/set"_L1 && verb != "/deletevalue"_L1)
        return {};
    return {{ItemKind::BootOption, arguments.value(1).toLower()}};
}

QList<Item> ofHibernation(const QStringList &, const SystemState &)
{
    const QString key = WindowsKey::control + u"\\Power"_s;
    return {{ItemKind::Hibernation}, {ItemKind::Key, key}, {ItemKind::Value, key, u"HibernateEnabled"_s}};
}

QList<Item> ofOwner(const QStringList &arguments, const SystemState &)
{
    return {{ItemKind::Security, arguments.value(1)}};
}

QList<Item> ofRights(const QStringList &arguments, const SystemState &)
{
    return {{ItemKind::Security, arguments.value(0)}};
}

QList<Item> ofPackage(const QStringList &arguments, const SystemState &)
{
    const qsizetype verb = arguments.indexOf(u"Get-AppxPackage"_s);
    const bool forAll = arguments.value(verb + 1) == "-allusers"_L1;
    const QString name = verb < 0 ? QString() : arguments.value(verb + (forAll ? 2 : 1));
    return name.isEmpty() ? QList<Item>() : QList<Item>{{ItemKind::Package, name}};
}

QList<Item> ofOneDrive(const QStringList &, const SystemState &)
{
    return {{ItemKind::Package, oneDriveName}, {ItemKind::Value, WindowsKey::userRun, u"OneDrive"_s}};
}

struct ToolRow
{
    QLatin1StringView tool;
    QList<Item> (*subjects)(const QStringList &arguments, const SystemState &system);
};

// clang-format off
constexpr ToolRow tools[] = {
    {"sc"_L1,            ofService},
    {"schtasks"_L1,      ofTask},
    {"bcdedit"_L1,       ofBootOption},
    {"powercfg"_L1,      ofHibernation},
    {"takeown"_L1,       ofOwner},
    {"icacls"_L1,        ofRights},
    {"powershell"_L1,    ofPackage},
    {"onedrivesetup"_L1, ofOneDrive},
};
// clang-format on

} // namespace

QList<Item> subjectsOf(const QString &program, const QStringList &arguments, const SystemState &system)
{
    const QString tool = toolName(program);
    const auto row =
        std::find_if(std::begin(tools), std::end(tools), [&tool](const ToolRow &each) { return each.tool == tool; });
    return row == std::end(tools) ? QList<Item>() : row->subjects(arguments, system);
}

std::optional<QString> serviceOfKey(const QString &key)
{
    const QString prefix = WindowsKey::services + u'\\';
    if (!key.startsWith(prefix, Qt::CaseInsensitive))
        return std::nullopt;
    const QString service = key.sliced(prefix.size());
    return service.isEmpty() || service.contains(u'\\') ? std::nullopt : std::optional(service);
}
