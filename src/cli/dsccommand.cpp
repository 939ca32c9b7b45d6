// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-cli dsc: a resource of Microsoft Desired State Configuration 3. Its properties are those of a profile.

#include "commands.h"
#include "console/printable.h"
#include "trial.h"
#include "work/keepfeatures.h"
#include "work/settings.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSysInfo>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

/** Of the instance, what a resource gives and doesn't take; DSC hands it back where one writes what it has exported. */
constexpr QLatin1StringView inDesiredState("_inDesiredState");
constexpr QLatin1StringView notInForce("_notInForce");
constexpr QLatin1StringView metadata("_metadata");

constexpr qint64 largestInstance = qint64(1) << 20;

QByteArray readInput()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        throw Failure{ExitBadArguments, u"standard input can't be read"_s};
    QByteArray json;
    while (json.size() <= largestInstance) {
        const QByteArray more = input.read(largestInstance);
        if (more.isEmpty())
            break;
        json += more;
    }
    if (json.size() > largestInstance)
        throw Failure{ExitBadArguments, u"standard input: larger than 1 MiB, which no profile is"_s};
    return json;
}

/** What DSC asks for, without what isn't a profile's. */
QJsonObject desiredInstance()
{
    const QByteArray json = readInput();
    if (json.trimmed().isEmpty())
        throw Failure{ExitBadArguments, u"standard input: no instance, such as {\"formatVersion\": 1}"_s};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(json, &error);
    if (!document.isObject())
        throw Failure{ExitBadArguments, u"standard input: no JSON object: "_s + error.errorString()};
    QJsonObject instance = document.object();
    for (const QLatin1StringView own : {inDesiredState, notInForce, metadata})
        instance.remove(own);
    return instance;
}

Profile profileOf(const QJsonObject &instance, const Pc &pc)
{
    Profile profile =
        checkedProfile(QJsonDocument(instance).toJson(QJsonDocument::Compact), u"instance"_s, &pc.system());
    profile.leavesOutUser = !pc.otherAccount().isEmpty();
    // Nobody is there to agree to it, and afterwards nothing could tell that it is in force.
    if (profile.tweaks.value(u"ssd8"_s))
        throw Failure{ExitBadArguments, u"instance: 'ssd8' walks over all files, and is for 'apply --yes' alone"_s};
    return profile;
}

QList<Aim> presentAims(const Profile &profile, const Pc &pc)
{
    WorkThread worker;
    applyProfile(worker, profile);
    return aimsOf(worker, pc.system(), profile);
}

/** The thing of that name, as a profile names it; case doesn't matter. */
bool isOff(const QList<Aim> &aims, const QString &group, const QString &name)
{
    return std::any_of(aims.cbegin(), aims.cend(), [&](const Aim &aim) {
        return groupWord(aim.group) == group && aim.name.compare(name, Qt::CaseInsensitive) == 0
               && (aim.state == AimState::InForce || aim.state == AimState::NotNeeded || aim.state == AimState::Absent);
    });
}

/** The instance as it is: of what is named only what is in force, and what of all that is asked for isn't. */
QJsonObject actualInstance(const QJsonObject &desired, const QList<Aim> &aims)
{
    QJsonObject actual = desired;
    for (const QString &group : {u"services"_s, u"tasks"_s, u"packages"_s, u"startup"_s}) {
        if (!desired.contains(group))
            continue;
        QJsonArray names;
        for (const QJsonValue name : desired.value(group).toArray()) {
            if (isOff(aims, group, name.toString()))
                names.append(name);
        }
        actual.insert(group, names);
    }
    QJsonObject tweaks = desired.value("tweaks"_L1).toObject();
    for (const QString &name : tweaks.keys()) {
        if (tweaks.value(name).toBool())
            tweaks.insert(name, isOff(aims, u"tweaks"_s, name));
    }
    if (!tweaks.isEmpty())
        actual.insert(u"tweaks"_s, tweaks);
    QJsonArray missing;
    for (const Aim &aim : aims) {
        if (aim.state == AimState::Open || aim.state == AimState::Refused)
            missing.append(groupWord(aim.group) + u'/' + aim.name);
    }
    actual.insert(notInForce, missing);
    actual.insert(inDesiredState, areInForce(aims));
    return actual;
}

void printInstance(const QJsonObject &instance)
{
    print(printableJson(QJsonDocument(instance), QJsonDocument::Compact) + '\n');
}

int getOrTest(const Arguments &arguments)
{
    const QJsonObject desired = desiredInstance();
    const Pc pc(arguments, PcUse::Look);
    printInstance(actualInstance(desired, presentAims(profileOf(desired, pc), pc)));
    return ExitDone;
}

/** DSC passes on what is written to standard error as lines of JSON. */
void tellRefusals(const QList<Aim> &aims)
{
    for (const Aim &aim : aims) {
        if (aim.state != AimState::Refused)
            continue;
        const QJsonObject line{{u"error"_s, u"%1 '%2' was refused: %3"_s.arg(thingText(aim.group), aim.name, aim.why)}};
        std::fprintf(stderr, "%s\n", printableJson(QJsonDocument(line), QJsonDocument::Compact).constData());
    }
}

int set(const Arguments &arguments)
{
    const QJsonObject desired = desiredInstance();
    const Pc pc(arguments, PcUse::Change);
    const Applied applied = applyTo(pc, profileOf(desired, pc), u"DSC"_s, false);
    QJsonObject actual = actualInstance(desired, applied.aims);
    if (applied.wantsRestart) {
        const QJsonArray restart{QJsonObject{{u"system"_s, QSysInfo::machineHostName()}}};
        actual.insert(metadata, QJsonObject{{u"_restartRequired"_s, restart}});
    }
    printInstance(actual);
    tellRefusals(applied.aims);
    if (!applied.failure.isEmpty())
        throw Failure{ExitJobFailed, u"not everything was done: "_s + applied.failure};
    return areInForce(applied.aims) ? ExitDone : ExitJobFailed;
}

bool isDisabled(const SystemState &system, const QString &service)
{
    const auto start = system.value(WindowsKey::services + u'\\' + service, u"Start"_s);
    return start && !start->data.isEmpty() && start->data.front() == StartDisabled;
}

/** A profile that this PC is as it asks for: what Optimize does but for what isn't in force here. */
int exportState(const Arguments &arguments)
{
    const Pc pc(arguments, PcUse::Look);
    Profile all;
    for (const TweakBox &box : tweakBoxes())
        all.tweaks.insert(tweakName(box.name), true);
    WorkThread worker;
    applyProfile(worker, all);
    QJsonObject keep;
    for (const KeepFeature &feature : keepFeatures)
        keep.insert(feature.name, feature.isKept(worker));
    QJsonObject tweaks;
    QStringList never;
    for (const Aim &aim : aimsOf(worker, pc.system(), all)) {
        if (boxOf(aim) != nullptr)
            tweaks.insert(aim.name, aim.state == AimState::InForce);
        else if (aim.state == AimState::Open || aim.state == AimState::Unknown)
            never.append(aim.name);
    }
    never.sort(Qt::CaseInsensitive);
    never.removeDuplicates();
    QStringList services;
    tryOut(pc.system(), [&] { services = recordedNames(u"SVC"_s); });
    services.removeIf([&](const QString &name) { return !isDisabled(pc.system(), name) || never.contains(name); });
    printInstance({{u"formatVersion"_s, 1},
                   {u"keep"_s, keep},
                   {u"tweaks"_s, tweaks},
                   {u"services"_s, QJsonArray::fromStringList(services)},
                   {u"never"_s, QJsonArray::fromStringList(never)}});
    return ExitDone;
}

/** The schema of an instance: a profile's, and what only comes out. */
int schema(const Arguments &)
{
    QJsonObject schema = QJsonDocument::fromJson(profileSchema()).object();
    QJsonObject properties = schema.value("properties"_L1).toObject();
    properties.insert(inDesiredState, QJsonObject{{u"type"_s, QJsonArray{u"boolean"_s, u"null"_s}},
                                                  {u"readOnly"_s, true},
                                                  {u"description"_s, u"Whether all that is asked for is in force"_s}});
    properties.insert(notInForce, QJsonObject{{u"type"_s, u"array"_s},
                                              {u"items"_s, QJsonObject{{u"type"_s, u"string"_s}}},
                                              {u"readOnly"_s, true},
                                              {u"description"_s, u"What isn't, such as \"services/Spooler\""_s}});
    properties.insert(metadata, QJsonObject{{u"type"_s, u"object"_s},
                                            {u"readOnly"_s, true},
                                            {u"description"_s, u"Whether a restart is wanted"_s}});
    schema.insert(u"title"_s, u"Kestrune/Profile"_s);
    schema.insert(u"properties"_s, properties);
    print(printableJson(QJsonDocument(schema)));
    return ExitDone;
}

QJsonObject call(const QString &verb, const QJsonObject &more = {})
{
    QJsonObject method = more;
    method.insert(u"executable"_s, u"kestrune-cli"_s);
    method.insert(u"args"_s, QJsonArray{u"dsc"_s, verb});
    return method;
}

/** What DSC finds in the folders of PATH, as kestrune.dsc.resource.json. */
int manifest(const Arguments &)
{
    const QJsonObject byInput{{u"input"_s, u"stdin"_s}};
    const QJsonObject byState{{u"input"_s, u"stdin"_s}, {u"return"_s, u"state"_s}};
    QJsonObject bySetting = byState;
    bySetting.insert(u"implementsPretest"_s, true);
    const QJsonObject manifest{
        {u"$schema"_s, u"https://aka.ms/dsc/schemas/v3/bundled/resource/manifest.json"_s},
        {u"type"_s, u"Kestrune/Profile"_s},
        {u"version"_s, QCoreApplication::applicationVersion()},
        {u"description"_s,
         u"Services, scheduled tasks, packages, programs at logon and options of Windows, by a profile"_s},
        {u"tags"_s, QJsonArray{u"Windows"_s}},
        {u"get"_s, call(u"get"_s, byInput)},
        {u"set"_s, call(u"set"_s, bySetting)},
        {u"test"_s, call(u"test"_s, byState)},
        {u"export"_s, call(u"export"_s)},
        {u"schema"_s, QJsonObject{{u"command"_s, call(u"schema"_s)}}},
        {u"exitCodes"_s, QJsonObject{{u"0"_s, u"Success"_s},
                                     {u"1"_s, u"Something isn't as wished"_s},
                                     {u"2"_s, u"A mistake in the instance"_s},
                                     {u"3"_s, u"The PC can't be read"_s},
                                     {u"5"_s, u"Administrator rights are needed"_s},
                                     {u"130"_s, u"Interrupted"_s}}},
    };
    print(printableJson(QJsonDocument(manifest)));
    return ExitDone;
}

struct Verb
{
    QLatin1StringView name;
    int (*run)(const Arguments &arguments);
};

// clang-format off
constexpr Verb verbs[] = {
    {"get"_L1,      getOrTest},
    {"set"_L1,      set},
    {"test"_L1,     getOrTest},
    {"export"_L1,   exportState},
    {"schema"_L1,   schema},
    {"manifest"_L1, manifest},
};
// clang-format on

int runDsc(const Arguments &arguments)
{
    for (const Verb &verb : verbs) {
        if (arguments.operand(0) == verb.name)
            return verb.run(arguments);
    }
    throw UsageError{u"'%1' is none of get, set, test, export, schema and manifest"_s.arg(arguments.operand(0))};
}

QString moreHelp()
{
    return u"For Microsoft Desired State Configuration 3, whose resource Kestrune/Profile this is; get, set and test "
           u"read\n"
           "an instance, which is a profile, from standard input.\n"
           "  get       print the instance reduced to what is in force, with the rest in \"_notInForce\"\n"
           "  set       carry it out, as 'apply' does; needs administrator rights\n"
           "  test      the same as get; \"_inDesiredState\" tells whether all of it is in force\n"
           "  export    print an instance that asks for what is in force here, and leaves alone what isn't\n"
           "  schema    print the JSON Schema of instances\n"
           "  manifest  print the manifest, which DSC looks for in the folders of PATH\n"_s;
}

} // namespace

const Subcommand dscSubcommand{
    "dsc"_L1,
    "get|set|test|export|schema|manifest"_L1,
    "act as a resource of Desired State Configuration"_L1,
    {},
    1,
    1,
    runDsc,
    moreHelp,
};
