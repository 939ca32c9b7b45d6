// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-cli undo and why: what is asked of the journal

#include "commands.h"
#include "console/printable.h"
#include "journal/takeback.h"
#include "machine/machineerror.h"
#include "pc.h"
#include "rehearse/subcommands.h"
#include "work/keepfeatures.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

int runUndo(const Arguments &arguments)
{
    // The journal is for administrators alone, also to look at.
    const Pc pc(arguments, PcUse::Change);
    return undoBy(*journalInForce(), arguments);
}

QString undoHelp()
{
    return u"Needs administrator rights. Every change that this program and Kestrune's window make is noted in the\n"
           "journal, with what was there before. Without --since, --session or --item everything is taken back.\n"
           "What something else has changed since is left alone, and reported. Taking back is a session too, and can\n"
           "be taken back.\n\n"
           "Columns: number, verdict, what it is, how it was before, how it is now, and why where it isn't back.\n"
           "Exit status: 0 everything is as it was; 1 something isn't.\n"_s;
}

/** What people call a thing, and parts of the names that have to do with it. */
struct SymptomRow
{
    QLatin1StringView word;
    QLatin1StringView parts; ///< with blanks between them
};

// clang-format off
constexpr SymptomRow symptoms[] = {
    {"bluetooth"_L1,  "bth bluetooth btag headset audio"_L1},
    {"printer"_L1,    "printer printing printjob printprov spooler"_L1},
    {"print"_L1,      "printer printing printjob printprov spooler"_L1},
    {"scanner"_L1,    "stisvc wia scan"_L1},
    {"network"_L1,    "lanman lmhosts fdres upnp ssdp netbt share"_L1},
    {"sharing"_L1,    "lanman lmhosts fdres share"_L1},
    {"vpn"_L1,        "rasman sstp vpn proxy mobility"_L1},
    {"xbox"_L1,       "xbox xbl xbgm gaming gamebar"_L1},
    {"game"_L1,       "xbox xbl xbgm gaming game"_L1},
    {"search"_L1,     "search wsearch cortana index"_L1},
    {"update"_L1,     "update wuauserv dosvc usosvc"_L1},
    {"store"_L1,      "store appx"_L1},
    {"video"_L1,      "av1 vp9 hevc avc mpeg codec video"_L1},
    {"location"_L1,   "lfsvc location"_L1},
    {"touch"_L1,      "tabletinput touch pen"_L1},
    {"phone"_L1,      "phone mobile"_L1},
    {"camera"_L1,     "camera frame"_L1},
    {"sleep"_L1,      "hibern power"_L1},
    {"hibernate"_L1,  "hibern"_L1},
    {"clipboard"_L1,  "clipboard cbdhsvc"_L1},
    {"onedrive"_L1,   "onedrive skydrive"_L1},
    {"nfc"_L1,        "semgr nfc"_L1},
};
// clang-format on

/** The parts of names that the words stand for; the words themselves are among them. */
QStringList partsOf(const QStringList &words)
{
    QStringList parts;
    for (const QString &word : words) {
        parts.append(word.toLower());
        for (const SymptomRow &row : symptoms) {
            if (word.compare(row.word, Qt::CaseInsensitive) == 0)
                parts += QString(row.parts).split(u' ');
        }
    }
    return parts;
}

/** The services that need a service, at whatever remove. */
void addDependants(const SystemState &system, const QStringList &services, const QString &service, QStringList &found)
{
    for (const QString &each : services) {
        if (found.contains(each, Qt::CaseInsensitive))
            continue;
        const auto needed = system.value(WindowsKey::services + u'\\' + each, u"DependOnService"_s);
        if (!needed || !textsOf(needed->data).contains(service, Qt::CaseInsensitive))
            continue;
        found.append(each);
        addDependants(system, services, each, found);
    }
}

/** What of a change the words are looked for in. */
QString textOfChange(const SystemState &system, const TakenItem &item, const QStringList &dependants)
{
    QStringList texts{item.item.subject, item.item.name, itemTitle(item.item)};
    texts += dependants;
    if (const auto service = serviceOfKey(item.item.subject))
        texts.append(textOf(system.value(item.item.subject, u"DisplayName"_s).value_or(RegistryValue()).data));
    return texts.join(u' ').toLower();
}

int runWhy(const Arguments &arguments)
{
    // The journal is for administrators alone, also to look at.
    const Pc pc(arguments, PcUse::Change);
    const Journal &journal = *journalInForce();
    const QStringList services = pc.system().key(WindowsKey::services).subkeys;
    const QStringList parts = partsOf(arguments.operands());
    QString text;
    QJsonArray json;
    for (const TakenItem &item : planWayBack(journal, {})) {
        if (item.own || !item.wasChanged || item.verdict == WayBack::AsItWas)
            continue;
        QStringList dependants;
        const auto ofKey = serviceOfKey(item.item.subject);
        const bool isService = ofKey.has_value() || item.item.kind == ItemKind::RunState;
        if (isService)
            addDependants(pc.system(), services, ofKey.value_or(item.item.subject), dependants);
        const QString words = textOfChange(pc.system(), item, dependants);
        if (std::none_of(parts.cbegin(), parts.cend(), [&words](const QString &part) { return words.contains(part); }))
            continue;
        const QString command = u"kestrune-cli undo --item %1"_s.arg(item.id);
        QStringList columns{itemTitle(item.item), stateText(item.item, item.before), stateText(item.item, item.now)};
        columns.append(dependants.isEmpty() ? QString() : u"needed by %1"_s.arg(dependants.join(", "_L1)));
        columns.append(item.verdict == WayBack::Impossible ? whyText(item) : command);
        std::transform(columns.cbegin(), columns.cend(), columns.begin(), printable);
        text += columns.join(u'\t') + u'\n';
        json.append(QJsonObject{{u"item"_s, item.id},
                                {u"what"_s, itemTitle(item.item)},
                                {u"was"_s, stateText(item.item, item.before)},
                                {u"now"_s, stateText(item.item, item.now)},
                                {u"neededBy"_s, QJsonArray::fromStringList(dependants)},
                                {u"undo"_s, item.verdict == WayBack::Impossible ? QString() : command},
                                {u"why"_s, whyText(item)}});
    }
    if (arguments.has(jsonOption.name))
        writeReportFile(arguments.value(jsonOption.name),
                        printableJson(QJsonDocument(QJsonObject{{u"formatVersion"_s, 1}, {u"items"_s, json}})));
    if (arguments.value(jsonOption.name) != "-"_L1)
        print(json.isEmpty() ? u"no recorded change has to do with that\n"_s : text);
    return json.isEmpty() ? ExitJobFailed : ExitDone;
}

constexpr OptionRow whyOptions[] = {jsonOption};

QString whyHelp()
{
    constexpr qsizetype width = 90;

    QString words;
    for (const SymptomRow &row : symptoms) {
        const bool isFull = words.size() - words.lastIndexOf(u'\n') > width;
        words += (words.isEmpty() ? ""_L1 : isFull ? ",\n  "_L1 : ", "_L1) + row.word;
    }
    return u"Needs administrator rights, to read the journal. A word is a part of a name, or one of these, which "
           u"stand\n"
           "for several:\n  %1.\n"
           "Columns: what was changed, how it was, how it is now, which services need it, and the command that takes\n"
           "it back. Exit status: 0 something was found, 1 nothing.\n"_s.arg(words);
}

} // namespace

const Subcommand whySubcommand{
    "why"_L1, "WORD..."_L1, "show which changes may have caused a symptom"_L1, whyOptions, 1, -1, runWhy, whyHelp,
};

const Subcommand undoPcSubcommand{
    "undo"_L1, {}, "take changes back, exactly, by the journal"_L1, undoOptions(), 0, 0, runUndo, undoHelp,
};
