// SPDX-License-Identifier: GPL-3.0-or-later

#include "previewwords.h"

#include "machine/compare/machinediff.h"
#include "machine/machine.h"
#include "machine/registrydisplay.h"
#include "platform/taskdocument.h"
#include "platform/windowsfacts.h"
#include "work/knowledge.h"
#include "work/settings.h"

using namespace Qt::StringLiterals;

namespace {

const QString servicePrefix = WindowsKey::services + u'\\';
const QString recordsPrefix = programKey.section(u'\\', 0, -2);
const QString packagesPart = WindowsKey::packagesPart + u'\\';
const QString packagedTasksPart = WindowsKey::packagedTasksPart + u'\\';
const QString oneDrive = u"OneDrive"_s;
const QString keyDetail = u"the key itself"_s;

/** A text for people: one that stands elsewhere, where this machine can't read it, says nothing. */
QString readable(const QString &text)
{
    for (const QLatin1StringView reference : {"@"_L1, "$("_L1, "ms-resource:"_L1}) {
        if (text.startsWith(reference))
            return QString();
    }
    return text.simplified();
}

QString registryTextAt(const Machine &machine, const RegistryStore &store, const QString &key, const QString &name)
{
    const std::optional<RegistryValue> value = store.value(key, name);
    return value ? readable(resolveResourceText(machine, textOf(value->data))) : QString();
}

/** The text after a prefix up to the next backslash; empty where the path doesn't begin so. */
QString partAfter(const QString &path, const QString &prefix)
{
    return path.startsWith(prefix, Qt::CaseInsensitive) ? path.mid(prefix.size()).section(u'\\', 0, 0) : QString();
}

/** The text, or the other one where it is empty. */
QString orElse(const QString &text, const QString &other)
{
    return text.isEmpty() ? other : text;
}

/** What a registry value is called, and where it stands. */
void putValue(PreviewWords &words, const DiffRow &row)
{
    words.detail = orElse(row.name, keyDetail);
    words.place = row.path;
}

PreviewWords serviceWords(Machine &machine, const QString &service)
{
    return {.group = PreviewGroup::Services,
            .item = foldName(service),
            .title = serviceTitle(machine, service),
            .about = registryTextAt(machine, machine.registry(), servicePrefix + service, u"Description"_s),
            .name = service};
}

PreviewWords serviceStateWords(Machine &machine, const DiffRow &row)
{
    PreviewWords words = serviceWords(machine, row.path);
    words.detail = runStateDetail;
    return words;
}

PreviewWords serviceValueWords(Machine &machine, const QString &service, const DiffRow &row)
{
    PreviewWords words = serviceWords(machine, service);
    putValue(words, row);
    const QString name = foldName(row.name);
    if (name == "START"_L1)
        words.detail = startModeDetail;
    else if (name == "DELAYEDAUTOSTART"_L1)
        words.detail = delayedStartDetail;
    if (words.detail != row.name)
        words.place += u'\\' + row.name;
    return words;
}

PreviewWords taskWords(const Machine &machine, const DiffRow &row)
{
    PreviewWords words{.group = PreviewGroup::Tasks,
                       .item = foldName(row.path),
                       .title = row.path.section(u'\\', -1),
                       .name = row.path,
                       .detail = u"state"_s};
    if (const std::optional<ScheduledTask> task = machine.task(row.path))
        words.about = readable(resolveResourceText(machine, taskFacts(task->document).description));
    return words;
}

PreviewWords packageWords(Machine &machine, const DiffRow &row)
{
    const qsizetype start = row.path.indexOf(packagesPart, 0, Qt::CaseInsensitive) + packagesPart.size();
    const QString fullName = row.path.mid(start).section(u'\\', 0, 0);
    const QString family = packageNameOf(fullName);
    const QString title =
        registryTextAt(machine, machine.registry(), row.path.first(start) + fullName, u"DisplayName"_s);
    PreviewWords words{
        .group = PreviewGroup::Packages, .item = foldName(family), .title = orElse(title, family), .name = family};
    words.store = storePageOf(fullName);
    putValue(words, row);
    return words;
}

PreviewWords oneDriveWords(const QString &detail, const QString &place)
{
    return {.group = PreviewGroup::Packages,
            .item = oneDrive,
            .title = u"Microsoft OneDrive"_s,
            .name = oneDrive,
            .detail = detail,
            .place = place};
}

/** An entry of a Run key, told by its command. */
PreviewWords runValueWords(const DiffRow &row)
{
    const QString &command = orElse(row.before, row.after);
    PreviewWords words{.group = PreviewGroup::Autorun, .item = foldName(row.path + row.name), .title = row.name};
    words.about = command.mid(1, command.size() - 2);
    putValue(words, row);
    return words;
}

PreviewWords packagedTaskWords(const DiffRow &row)
{
    const QString task = row.path.section(u'\\', -1);
    PreviewWords words{.group = PreviewGroup::Autorun,
                       .item = foldName(row.path),
                       .title = task,
                       .about = u"Registered by a Windows application: "_s
                                + row.path.section(u'\\', -2, -2).section(u'_', 0, 0)};
    putValue(words, row);
    return words;
}

PreviewWords registryWords(Machine &before, Machine &optimized, const DiffRow &row)
{
    const QString &path = row.path;
    if (path.startsWith(recordsPrefix, Qt::CaseInsensitive)) {
        PreviewWords words{.group = PreviewGroup::Records, .item = u"notes"_s, .title = u"Records of what was done"_s};
        putValue(words, row);
        return words;
    }
    if (path.contains(packagesPart, Qt::CaseInsensitive))
        return packageWords(before.registry().find(path) ? before : optimized, row);
    // A key that listing has made starts nothing.
    const bool ofValue = !row.name.isEmpty();
    if (ofValue && path.endsWith(WindowsKey::runPart, Qt::CaseInsensitive))
        return runValueWords(row);
    if (ofValue && path.contains(packagedTasksPart, Qt::CaseInsensitive))
        return packagedTaskWords(row);
    if (const QString service = partAfter(path, servicePrefix); path.size() == servicePrefix.size() + service.size())
        return serviceValueWords(before, service, row);
    if (path.endsWith("\\Uninstall\\OneDriveSetup.exe"_L1, Qt::CaseInsensitive))
        return oneDriveWords(orElse(row.name, keyDetail), path);
    PreviewWords words{.group = PreviewGroup::Registry, .item = foldName(path), .title = path};
    words.detail = orElse(row.name, keyDetail);
    return words;
}

struct FileAbout
{
    QLatin1StringView end; ///< of its path, in upper case
    QLatin1StringView about;
};

// clang-format off
constexpr FileAbout fileAbouts[] = {
    {"\\RIVATUNER STATISTICS SERVER\\PROFILES\\CONFIG"_L1,
     "The settings of RivaTuner Statistics Server, which shows figures over games: its video encoder is switched off"_L1},
    {"\\TASKS.XML"_L1, "The list of scheduled tasks that Kestrune asked Windows for"_L1},
};
// clang-format on

QString aboutFile(const QString &path)
{
    for (const FileAbout &file : fileAbouts) {
        if (foldName(path).endsWith(file.end))
            return file.about;
    }
    return QString();
}

PreviewWords fileWords(const DiffRow &row)
{
    static const QMap<DiffKind, QString> details{{DiffKind::File, u"the file"_s},
                                                 {DiffKind::Attribute, u"its attributes"_s},
                                                 {DiffKind::Security, u"its owner and permissions"_s}};
    const QString detail = details.value(row.kind);
    if (row.path.startsWith("program\\"_L1)) {
        return {.group = PreviewGroup::Records,
                .item = u"files"_s,
                .title = u"Log and backups beside the program"_s,
                .detail = detail,
                .place = row.path};
    }
    if (row.path.contains("\\Microsoft\\OneDrive\\"_L1, Qt::CaseInsensitive))
        return oneDriveWords(detail, row.path);
    return {.group = PreviewGroup::Files,
            .item = foldName(row.path),
            .title = row.path.section(u'\\', -1),
            .about = aboutFile(row.path),
            .name = row.path,
            .detail = detail};
}

PreviewWords tweakValueWords(const TweakWords &tweak, const DiffRow &row)
{
    PreviewWords words{.group = PreviewGroup::Tweaks,
                       .item = tweak.title,
                       .title = tweak.title,
                       .about = tweak.about,
                       .after = tweak.takingBack};
    putValue(words, row);
    if (row.kind == DiffKind::Registry)
        return words;
    words.detail = fileWords(row).detail;
    if (row.kind == DiffKind::BootOption) {
        words.detail = u"boot option "_s + row.path;
        words.place.clear();
    } else if (row.kind == DiffKind::Task || row.kind == DiffKind::Service) {
        words.detail = kindName(row.kind);
    }
    return words;
}

} // namespace

QString serviceTitle(Machine &machine, const QString &service)
{
    return orElse(registryTextAt(machine, machine.registry(), servicePrefix + service, u"DisplayName"_s), service);
}

QString withoutOf(PreviewGroup group, const QString &name)
{
    switch (group) {
    case PreviewGroup::Services:
        return withoutService(name);
    case PreviewGroup::Tasks:
        return withoutTask(name);
    case PreviewGroup::Packages:
        return withoutPackage(name == oneDrive ? oneDriveName : name);
    default:
        return {};
    }
}

QString startModeInWords(const QString &value)
{
    static const QMap<QString, QString> modes{{u"dword 0"_s, u"boot"_s},
                                              {u"dword 1"_s, u"system"_s},
                                              {u"dword 2"_s, u"automatic"_s},
                                              {u"dword 3"_s, u"manual"_s},
                                              {u"dword 4"_s, u"disabled"_s}};
    return modes.value(value, value);
}

QString sideInWords(const PreviewWords &words, const QString &side)
{
    static const QMap<QString, QString> answers{{u"dword 0"_s, u"no"_s}, {u"dword 1"_s, u"yes"_s}};
    if (words.group == PreviewGroup::Services && words.detail == startModeDetail)
        return startModeInWords(side);
    if (words.group == PreviewGroup::Services && words.detail == delayedStartDetail)
        return answers.value(side, side);
    return words.detail == keyDetail && !side.isEmpty() ? u"an empty key"_s : side;
}

PreviewWords previewWords(Machine &before, Machine &optimized, const DiffRow &row)
{
    if (const TweakWords tweak = tweakWords(tweakBoxOf(row)); !tweak.title.isEmpty())
        return tweakValueWords(tweak, row);
    switch (row.kind) {
    case DiffKind::Service:
        return serviceStateWords(before, row);
    case DiffKind::Task:
        return taskWords(before.task(row.path) ? before : optimized, row);
    case DiffKind::Registry:
        return registryWords(before, optimized, row);
    case DiffKind::File:
    case DiffKind::Attribute:
    case DiffKind::Security:
        return fileWords(row);
    case DiffKind::BootOption:
        return {.group = PreviewGroup::Registry,
                .item = foldName(row.path),
                .title = u"Boot option "_s + row.path,
                .detail = u"in the boot configuration"_s};
    }
    return {};
}
