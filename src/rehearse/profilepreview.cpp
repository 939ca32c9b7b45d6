// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse preview with a profile, or of many machines: kestrune-cli tries it on copies.

#include "console/printable.h"
#include "console/programinterruption.h"
#include "machine/compare/webpage.h"
#include "machine/machine.h"
#include "platform/processground.h"
#include "progress.h"
#include "subcommands.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/** A file as another process finds it, whose current folder isn't the one that this program was started in. */
QString fileForAnother(const QString &path)
{
    return path == "-"_L1 ? path : absolutePath(path);
}

/** Runs 'kestrune-cli plan' and gives what it prints. Throws what it says where it fails. */
QByteArray runPlan(const QString &folder, const Arguments &arguments, const QStringList &reports)
{
    const QString program = siblingProgram(u"kestrune-cli"_s);
    if (program.isEmpty())
        throw Failure{ExitJobFailed, u"the program kestrune-cli is missing, which carries a profile out"_s};
    QStringList words{u"plan"_s, u"--machine"_s, folder};
    if (arguments.has("profile"_L1))
        words << u"--profile"_s << fileForAnother(arguments.value("profile"_L1));
    QProcess process;
    process.start(program, words + reports);
    if (!waitForEnd(process))
        throw Failure{ExitJobFailed, u"%1: %2"_s.arg(program, process.errorString())};
    if (tellsInterruption(process.exitCode()))
        throw Interrupted{process.exitCode()};
    const QString errors = QString::fromUtf8(process.readAllStandardError()).trimmed();
    if (process.exitCode() != ExitDone)
        throw Failure{static_cast<ExitCode>(process.exitCode()), errors.section(u": "_s, 1)};
    return process.readAllStandardOutput();
}

void refuseOthers(const Arguments &arguments)
{
    for (const QLatin1StringView option : {"keep"_L1, "no-programs"_L1, "no-features"_L1, "undo"_L1}) {
        if (arguments.has(option))
            throw UsageError{u"--%1 can't be given with --profile or --all"_s.arg(option)};
    }
}

/** A machine in the folder, and what became of the profile on a copy of it. */
struct TriedPc
{
    QString folder; ///< its name
    QString name{};
    QString failure{}; ///< empty where it could be tried
    QJsonObject plan{};
};

struct Column
{
    QLatin1StringView title;
    QLatin1StringView groups; ///< as a plan has them, with blanks between them
};

// clang-format off
constexpr std::array columns{
    Column{"services"_L1,     "services"_L1},
    Column{"tasks"_L1,        "tasks"_L1},
    Column{"applications"_L1, "packages"_L1},
    Column{"at logon"_L1,     "startup"_L1},
    Column{"options"_L1,      "tweaks"_L1},
    Column{"others"_L1,       "files registry"_L1},
};
// clang-format on

/** The rehearsal machines right below a folder, by name. */
QStringList machinesIn(const QString &folder)
{
    const QDir place(absoluteFolder(folder));
    QStringList machines = place.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase);
    erase_if(machines, [&place](const QString &name) {
        return !QFileInfo(place.filePath(name + u"/machine.sqlite"_s)).isFile();
    });
    return machines;
}

TriedPc triedPc(const QString &folder, const QString &name, const Arguments &arguments)
{
    TriedPc pc{.folder = name};
    const QString place = absoluteFolder(folder) + u'/' + name;
    try {
        pc.name = openMachine(place)->name();
        pc.plan = QJsonDocument::fromJson(runPlan(place, arguments, {u"--json"_s, u"-"_s})).object();
    } catch (const Failure &failure) {
        pc.failure = failure.message;
    }
    return pc;
}

qsizetype countOf(const QJsonObject &plan, QLatin1StringView state, QLatin1StringView groups)
{
    const QJsonArray items = plan.value("items"_L1).toArray();
    const QStringList names = QString(groups).split(u' ', Qt::SkipEmptyParts);
    return std::count_if(items.begin(), items.end(), [state, &names](const QJsonValue &item) {
        return item["state"_L1] == state && (names.isEmpty() || names.contains(item["group"_L1].toString()));
    });
}

QStringList notBack(const TriedPc &pc)
{
    QStringList names;
    for (const QJsonValue each : pc.plan.value("notBack"_L1).toArray())
        names.append(each["what"_L1].toString());
    return names;
}

QStringList headline()
{
    QStringList cells{u"PC"_s};
    for (const Column &column : columns)
        cells.append(column.title);
    return cells << u"refused"_s << u"not back"_s << u"what doesn't come back"_s;
}

QStringList cellsOf(const TriedPc &pc)
{
    QStringList cells{pc.folder};
    for (const Column &column : columns)
        cells.append(QString::number(countOf(pc.plan, "would-change"_L1, column.groups)));
    const QStringList lost = notBack(pc);
    return cells << QString::number(countOf(pc.plan, "would-be-refused"_L1, {})) << QString::number(lost.size())
                 << lost.join(u", "_s);
}

/** One that couldn't be tried has a reason in place of its figures. */
QList<QStringList> tableOf(const QList<TriedPc> &pcs)
{
    QList<QStringList> lines{headline()};
    for (const TriedPc &pc : pcs)
        lines.append(pc.failure.isEmpty() ? cellsOf(pc) : QStringList{pc.folder, u"not tried: "_s + pc.failure});
    return lines;
}

QString tableText(const QList<QStringList> &lines)
{
    QList<qsizetype> widths(headline().size());
    for (const QStringList &line : lines) {
        for (qsizetype i = 0; line.size() == widths.size() && i < line.size(); ++i)
            widths[i] = std::max(widths.at(i), line.at(i).size());
    }
    QString text;
    for (const QStringList &line : lines) {
        QString row = line.constFirst().leftJustified(widths.constFirst());
        for (qsizetype i = 1; i < line.size(); ++i) {
            const bool isNumber = line.size() == widths.size() && i + 1 < line.size();
            row += u"  "_s + (isNumber ? line.at(i).rightJustified(widths.at(i)) : line.at(i));
        }
        text += printable(row.trimmed()) + u'\n';
    }
    return text;
}

QString tableHtml(const QList<QStringList> &lines, const QString &profile)
{
    QString html =
        pageStart(u"What would change on each PC"_s)
        + u"<h1>What would change on each PC</h1>\n<p>%1, tried on a copy of each PC and taken back there. "
          "How many things of each kind would change, how many would be refused, and what wouldn't come back "
          "by itself.</p>\n<table>\n"_s.arg(profile.isEmpty() ? u"What Optimize does"_s
                                                              : u"Profile "_s + profile.toHtmlEscaped());
    for (const QStringList &line : lines) {
        const QString cell = line == lines.constFirst() ? u"th"_s : u"td"_s;
        html += u"<tr>"_s;
        for (qsizetype i = 0; i < line.size(); ++i) {
            const bool isReason = line.size() == 2 && i == 1;
            html += u"<%1%2>%3</%1>"_s.arg(cell, isReason ? u" colspan=\"%1\""_s.arg(headline().size() - 1) : QString(),
                                           line.at(i).toHtmlEscaped());
        }
        html += u"</tr>\n"_s;
    }
    return html + u"</table>\n"_s + pageEnd();
}

QByteArray tableJson(const QList<TriedPc> &pcs, const QString &profile)
{
    QJsonArray array;
    for (const TriedPc &pc : pcs) {
        array.append(QJsonObject{
            {u"pc"_s, pc.folder},
            {u"name"_s, pc.name},
            {u"failure"_s, pc.failure},
            {u"plan"_s, pc.failure.isEmpty() ? QJsonValue(pc.plan) : QJsonValue()},
        });
    }
    return printableJson(
        QJsonDocument(QJsonObject{{u"formatVersion"_s, 1}, {u"profile"_s, profile}, {u"pcs"_s, array}}));
}

int previewAll(const Arguments &arguments)
{
    const QString folder = arguments.value("all"_L1);
    const QStringList machines = machinesIn(folder);
    if (machines.isEmpty())
        throw Failure{ExitBadArguments, u"%1: there is no rehearsal machine in this folder"_s.arg(folder)};
    for (const QLatin1StringView report : {"html"_L1, "json"_L1}) {
        if (arguments.has(report))
            checkReportFile(arguments.value(report));
    }
    Progress progress(isSteered(arguments));
    QList<TriedPc> pcs;
    for (const QString &machine : machines) {
        progress.show(machine, static_cast<int>(pcs.size()), static_cast<int>(machines.size()));
        pcs.append(triedPc(folder, machine, arguments));
    }
    progress.clear();

    const QList<QStringList> table = tableOf(pcs);
    const QString profile = arguments.value("profile"_L1);
    if (arguments.has("html"_L1))
        writePage(arguments, tableHtml(table, profile));
    if (arguments.has("json"_L1))
        writeReportFile(arguments.value("json"_L1), tableJson(pcs, profile));
    if (arguments.value("html"_L1) != "-"_L1 && arguments.value("json"_L1) != "-"_L1)
        print(tableText(table));
    const bool isWhole = std::all_of(pcs.cbegin(), pcs.cend(), [](const TriedPc &pc) { return pc.failure.isEmpty(); });
    return isWhole ? ExitDone : ExitJobFailed;
}

} // namespace

int previewProfile(const Arguments &arguments)
{
    refuseOthers(arguments);
    if (arguments.has("all"_L1) != arguments.operands().isEmpty())
        throw UsageError{u"name a rehearsal machine, or a folder of them with --all"_s};
    if (arguments.has("all"_L1))
        return previewAll(arguments);
    QStringList reports;
    for (const QLatin1StringView report : {"html"_L1, "json"_L1}) {
        if (arguments.has(report))
            reports << u"--"_s + report << fileForAnother(arguments.value(report));
    }
    Progress progress(isSteered(arguments));
    progress.show(u"trying the profile"_s, 0, 1);
    const QByteArray printed = runPlan(absoluteFolder(arguments.operand(0)), arguments, reports);
    progress.clear();
    print(printed);
    return ExitDone;
}
