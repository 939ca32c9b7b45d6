// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-cli plan

#include "commands.h"
#include "console/printable.h"
#include "console/programinterruption.h"
#include "journal/machinejournal.h"
#include "machine/machine.h"
#include "machine/machineerror.h"
#include "machine/workfolder.h"
#include "platform/processground.h"
#include "preview/preview.h"
#include "preview/previewtexts.h"
#include "rehearse/progress.h"
#include "rehearse/subcommands.h"
#include "stocktool/machinetoolhost.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

/** Runs a command of this program on a copy, in a process of its own: a process has one machine. The JSON it writes. */
QByteArray runOnCopy(const QStringList &words, const QString &copy, const QString &report)
{
    QProcess process;
    carryToolsOutWithin(process);
    process.start(QCoreApplication::applicationFilePath(),
                  words + QStringList{u"--machine"_s, copy, u"--json"_s, report});
    if (!waitForEnd(process))
        throw Failure{ExitJobFailed, u"%1: %2"_s.arg(words.constFirst(), process.errorString())};
    // First: elsewhere than on Windows the exit code of a restart that is wanted reads like that of a signal.
    QFile file(report);
    if (file.open(QIODevice::ReadOnly))
        return file.readAll();
    if (tellsInterruption(process.exitCode()))
        throw Interrupted{process.exitCode()};
    const QString errors = QString::fromUtf8(process.readAllStandardError()).trimmed();
    throw Failure{process.exitCode() == ExitBadArguments ? ExitBadArguments : ExitJobFailed,
                  errors.section(u": "_s, 1)};
}

/** With its journal: 'undo' goes by that, as on the PC itself. */
std::unique_ptr<Machine> copyOf(const Machine &machine, const QString &folder)
{
    copyMachine(machine, folder);
    copyMachineJournal(machine.folder(), folder);
    return Machine::open(folder);
}

/** A copy of the PC that this runs on, as far as its user may read it. */
QString captured(const WorkFolder &work)
{
    const QString program = siblingProgram(u"kestrune-rehearse"_s);
    if (program.isEmpty())
        throw Failure{ExitJobFailed, u"the program kestrune-rehearse is missing, which makes the copy of this PC"_s};
    const QString folder = work.filePath(u"captured"_s);
    QProcess process;
    process.start(program, {u"capture"_s, folder, u"--with-names"_s});
    if (!waitForEnd(process))
        throw Failure{ExitJobFailed, u"%1: %2"_s.arg(program, process.errorString())};
    if (tellsInterruption(process.exitCode()))
        throw Interrupted{process.exitCode()};
    if (process.exitCode() != ExitDone)
        throw Failure{static_cast<ExitCode>(process.exitCode()),
                      QString::fromUtf8(process.readAllStandardError()).trimmed().section(u": "_s, 1)};
    return folder;
}

/** The items of an apply, as they would be: what it has changed on the copy is open here. */
QJsonArray plannedItems(const QByteArray &applied, QJsonObject &counts)
{
    QJsonArray planned;
    const QJsonArray items = QJsonDocument::fromJson(applied).object().value("items"_L1).toArray();
    for (const QJsonValue each : items) {
        QJsonObject item = each.toObject();
        if (item.value("changed"_L1).toBool())
            item.insert(u"state"_s, u"would-change"_s);
        else if (item.value("state"_L1) == "refused"_L1)
            item.insert(u"state"_s, u"would-be-refused"_s);
        item.remove(u"changed"_s);
        const QString state = item.value("state"_L1).toString();
        counts.insert(state, counts.value(state).toInt() + 1);
        planned.append(item);
    }
    return planned;
}

/** Takes back on the copy what an apply has done there, and nothing older; what couldn't be brought back. */
QJsonArray lostItems(const QByteArray &applied, const QString &copy, const QString &report)
{
    const auto session = QJsonDocument::fromJson(applied).object().value("session"_L1).toInteger();
    if (session == 0)
        return {};
    const QByteArray undone = runOnCopy({u"undo"_s, u"--session"_s, QString::number(session)}, copy, report);
    QJsonArray lost;
    for (const QJsonValue each : QJsonDocument::fromJson(undone).object().value("items"_L1).toArray()) {
        const QJsonObject item = each.toObject();
        if (item.value("verdict"_L1) != "as it was"_L1)
            lost.append(QJsonObject{{u"what"_s, item.value("what"_L1)}, {u"why"_s, item.value("why"_L1)}});
    }
    return lost;
}

/** "service" for the group "services". */
QString thingOf(const QString &group)
{
    const auto found = std::find_if(allGroups().begin(), allGroups().end(),
                                    [&group](const GroupTexts &each) { return groupWord(each.group) == group; });
    return found == allGroups().end() ? group : thingText(found->group);
}

QString planText(const QJsonArray &items, const QJsonObject &counts, const QJsonArray &lost)
{
    QString text;
    for (const QJsonValue each : items) {
        const QString state = each["state"_L1].toString();
        if (!state.startsWith("would"_L1))
            continue;
        QStringList columns{QString(state).replace(u'-', u' '), thingOf(each["group"_L1].toString()),
                            each["name"_L1].toString(), each["wish"_L1].toString()};
        if (const QString why = each["why"_L1].toString(); !why.isEmpty())
            columns.append(why);
        if (const QString without = each["without"_L1].toString(); !without.isEmpty() && state == "would-change"_L1)
            columns.append(withoutText(without));
        std::transform(columns.cbegin(), columns.cend(), columns.begin(), printable);
        text += columns.join(u'\t') + u'\n';
    }
    for (const QJsonValue each : lost) {
        text += u"wouldn't come back\t%1\t%2\n"_s.arg(printable(each["what"_L1].toString()),
                                                      printable(each["why"_L1].toString()));
    }
    QStringList sums;
    for (auto count = counts.constBegin(); count != counts.constEnd(); ++count)
        sums.append(u"%1 %2"_s.arg(count.value().toInt()).arg(count.key().replace(u'-', u' ')));
    text += sums.isEmpty() ? u"nothing is asked for\n"_s : sums.join(", "_L1) + u'\n';
    return text
           + (lost.isEmpty() ? u"'undo' would bring all of it back\n"_s
                             : u"'undo' would bring back all but %1\n"_s.arg(lost.size()));
}

/** The PC, and what was asked for. */
QString describedPc(const Machine &machine, const Arguments &arguments)
{
    return arguments.has(profileOption.name) ? u"%1, profile %2"_s.arg(machine.name(), profileFile(arguments))
                                             : machine.name();
}

constexpr OptionRow htmlOption{"html"_L1, "FILE"_L1, "write a web page that has every single value"_L1};

int runPlan(const Arguments &arguments)
{
    // Nothing that lies in a machine, which may come from anybody, is handled with an administrator's rights.
    if (const auto code = runWithoutRights())
        return *code;
    if (arguments.has("not-elevated"_L1))
        throw UsageError{u"--not-elevated isn't for plan, which shows what an administrator would change"_s};
    for (const QLatin1StringView report : {htmlOption.name, jsonOption.name}) {
        if (arguments.has(report))
            checkReportFile(arguments.value(report));
    }
    QStringList words{u"apply"_s, u"--quiet"_s, u"--yes"_s};
    if (arguments.has(profileOption.name))
        words << u"--profile"_s << absolutePath(profileFile(arguments));

    constexpr int steps = 4;
    Progress progress;
    const WorkFolder work;
    if (!work.isValid())
        throw Failure{ExitJobFailed, work.errorString()};
    progress.show(u"copying the PC"_s, 0, steps);
    const QString pc = arguments.has("machine"_L1) ? arguments.value("machine"_L1) : captured(work);
    const auto before = copyOf(*openMachine(pc), work.filePath(u"before"_s));
    const auto applied = copyOf(*before, work.filePath(u"applied"_s));
    progress.show(u"apply"_s, 1, steps);
    const QByteArray result = runOnCopy(words, applied->folder(), work.filePath(u"applied.json"_s));
    progress.show(u"copying the PC"_s, 2, steps);
    const auto undone = copyOf(*applied, work.filePath(u"undone"_s));
    progress.show(u"undo"_s, 3, steps);
    const QJsonArray lost = lostItems(result, undone->folder(), work.filePath(u"undone.json"_s));
    progress.clear();

    QJsonObject counts;
    const QJsonArray items = plannedItems(result, counts);
    if (arguments.value(jsonOption.name) != "-"_L1 && arguments.value(htmlOption.name) != "-"_L1)
        print(planText(items, counts, lost));
    if (arguments.has(htmlOption.name)) {
        const QString page = previewHtml(previewItems(*before, *applied, *undone), describedPc(*before, arguments),
                                         PreviewWay::ApplyAndUndo);
        writePage(arguments, page);
    }
    if (arguments.has(jsonOption.name)) {
        const QJsonObject document{
            {u"formatVersion"_s, 1}, {u"command"_s, u"plan"_s}, {u"profile"_s, profileFile(arguments)},
            {u"counts"_s, counts},   {u"items"_s, items},       {u"notBack"_s, lost}};
        writeReportFile(arguments.value(jsonOption.name), printableJson(QJsonDocument(document)));
    }
    return ExitDone;
}

constexpr OptionRow options[] = {profileOption, htmlOption, jsonOption};

QString moreHelp()
{
    return u"Does it all on a copy of this PC, or of --machine, and takes it back there. Nothing is changed. It gives "
           u"up\n"
           "administrator rights first, so a copy of this PC lacks what only an administrator may read;\n"
           "'kestrune-rehearse capture', run by an administrator, makes a copy that has it.\n"
           "Columns: what would become of it, kind of thing, name, what is asked for, why, and what stops working\n"
           "without it.\n"_s;
}

} // namespace

const Subcommand planSubcommand{
    "plan"_L1, {}, "show what an apply would do, and what 'undo' would bring back"_L1, options, 0, 0, runPlan, moreHelp,
};
