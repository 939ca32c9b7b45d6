// SPDX-License-Identifier: GPL-3.0-or-later

#include "previewwords.h"

#include "featurewords.h"
#include "rehearsal/resourcetext.h"
#include "rehearsal/taskdocument.h"

using namespace Qt::StringLiterals;

namespace {

constexpr auto servicesKey = "HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\"_L1;
constexpr auto recordsKey = "HKEY_CURRENT_USER\\Software\\Kestrune"_L1;
constexpr auto packagesKey = "\\AppModel\\Repository\\Packages\\"_L1;
constexpr auto packagedTasksKey = "\\AppModel\\SystemAppData\\"_L1;
const QString oneDrive = u"OneDrive"_s;
const QString startModeDetail = u"start mode"_s;
constexpr auto runKey = "\\Microsoft\\Windows\\CurrentVersion\\Run"_L1;

std::optional<QString> registryTextAt(const Machine &machine, const RegistryStore &store, const QString &key,
                                      const QString &name)
{
    const auto id = store.find(key);
    const std::optional<RegistryValue> value = id ? store.value(*id, name) : std::nullopt;
    if (!value)
        return std::nullopt;
    return resolveResourceText(machine, textOf(value->data));
}

/** The text behind a prefix up to the next backslash; empty where the path doesn't begin so. */
QString partBehind(const QString &path, QLatin1StringView prefix)
{
    return path.startsWith(prefix, Qt::CaseInsensitive) ? path.mid(prefix.size()).section(u'\\', 0, 0) : QString();
}

QString valuePath(const DiffRow &row)
{
    return row.name.isEmpty() ? row.path : row.path + u'\\' + row.name;
}

PreviewWords serviceWords(Machine &machine, const QString &service, const QString &detail)
{
    const QString title =
        registryTextAt(machine, machine.registry(), servicesKey + service, u"DisplayName"_s).value_or(service);
    return {PreviewGroup::Services, foldName(service), title, service, detail};
}

PreviewWords taskWords(const Machine &machine, const DiffRow &row)
{
    PreviewWords words{PreviewGroup::Tasks, foldName(row.path), row.path.section(u'\\', -1), row.path, u"state"_s};
    if (const std::optional<ScheduledTask> task = machine.task(row.path)) {
        const QString description = resolveResourceText(machine, taskFacts(task->document).description);
        if (!description.isEmpty() && !description.startsWith(u'$') && !description.startsWith(u'@'))
            words.title += u": "_s + description.simplified();
    }
    return words;
}

PreviewWords packageWords(const DiffRow &row, const QString &fullName)
{
    const QString family = fullName.section(u'_', 0, 0);
    return {PreviewGroup::Packages, foldName(family), family, fullName, valuePath(row)};
}

PreviewWords registryWords(Machine &before, const DiffRow &row)
{
    const QString &path = row.path;
    if (path.startsWith(recordsKey, Qt::CaseInsensitive))
        return {PreviewGroup::Records, u"settings"_s, u"What Kestrune remembers of its changes"_s, {}, valuePath(row)};
    if (const qsizetype at = path.indexOf(packagesKey, 0, Qt::CaseInsensitive); at >= 0)
        return packageWords(row, path.mid(at + packagesKey.size()).section(u'\\', 0, 0));
    if (path.endsWith(runKey, Qt::CaseInsensitive))
        return {PreviewGroup::Autorun, foldName(row.name), row.name, path, valuePath(row)};
    if (const qsizetype at = path.indexOf(packagedTasksKey, 0, Qt::CaseInsensitive); at >= 0) {
        const QString task = path.section(u'\\', -1);
        return {PreviewGroup::Autorun, foldName(task), task, path, valuePath(row)};
    }
    if (const QString service = partBehind(path, servicesKey); path.size() == servicesKey.size() + service.size())
        return serviceWords(before, service, row.name == "Start"_L1 ? startModeDetail : row.name);
    if (path.endsWith("\\Uninstall\\OneDriveSetup.exe"_L1, Qt::CaseInsensitive))
        return {PreviewGroup::Packages, oneDrive, oneDrive, {}, valuePath(row)};
    return {PreviewGroup::Registry, foldName(path), path, {}, row.name.isEmpty() ? u"key"_s : row.name};
}

PreviewWords fileWords(const DiffRow &row)
{
    if (row.path.startsWith("program\\"_L1))
        return {PreviewGroup::Records, u"files"_s, u"Files beside the program"_s, {}, row.path};
    if (row.path.contains("\\Microsoft\\OneDrive\\"_L1, Qt::CaseInsensitive))
        return {PreviewGroup::Packages, oneDrive, oneDrive, {}, row.path};
    return {PreviewGroup::Files, foldName(row.path), row.path, {}, kindName(row.kind)};
}

} // namespace

QString sideInWords(const PreviewWords &words, const QString &side)
{
    static const QMap<QString, QString> modes{{u"dword 0"_s, u"boot"_s},
                                              {u"dword 1"_s, u"system"_s},
                                              {u"dword 2"_s, u"automatic"_s},
                                              {u"dword 3"_s, u"manual"_s},
                                              {u"dword 4"_s, u"disabled"_s}};
    return words.group == PreviewGroup::Services && words.detail == startModeDetail ? modes.value(side, side) : side;
}

PreviewWords previewWords(Machine &before, Machine &optimized, const DiffRow &row)
{
    if (const QString feature = featureWords(row); !feature.isEmpty())
        return {PreviewGroup::Features, feature, feature, {}, valuePath(row)};
    switch (row.kind) {
    case DiffKind::Service:
        return serviceWords(before, row.path, u"state"_s);
    case DiffKind::Task:
        return taskWords(before.task(row.path) ? before : optimized, row);
    case DiffKind::Registry:
        return registryWords(before, row);
    case DiffKind::File:
    case DiffKind::Attribute:
    case DiffKind::Security:
        return fileWords(row);
    case DiffKind::BootOption:
        return {PreviewGroup::Registry, foldName(row.path), u"Boot option "_s + row.path, {}, u"boot"_s};
    }
    return {};
}
