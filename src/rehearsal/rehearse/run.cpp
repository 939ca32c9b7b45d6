// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse run

#include "jobs.h"
#include "platform/simulated/simulatedplatform.h"
#include "progress.h"
#include "subcommands.h"
#include "tweakjobs.h"
#include "work/windowsname.h"

#include <QCoreApplication>
#include <QJsonDocument>

#include <algorithm>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

struct KeepRow
{
    QLatin1StringView name;
    std::atomic<int> WorkThread::*state;
};

// clang-format off
constexpr KeepRow keepRows[] = {
    {"printer"_L1,         &WorkThread::keepPrinter},
    {"bluetooth-audio"_L1, &WorkThread::keepBluetoothAudio},
    {"files-sharing"_L1,   &WorkThread::keepFilesSharing},
    {"xbox-app"_L1,        &WorkThread::keepXboxApp},
    {"upnp"_L1,            &WorkThread::keepUpnp},
    {"proxy-vpn"_L1,       &WorkThread::keepProxyVpn},
    {"nfc"_L1,             &WorkThread::keepNfc},
    {"xbox-game-bar"_L1,   &WorkThread::keepXboxGameBar},
    {"codecs"_L1,          &WorkThread::keepCodecs},
};
// clang-format on

const JobRow &findJob(const Arguments &arguments)
{
    const QString name = arguments.operand(1);
    const qsizetype operands = arguments.operands().size() - 2;
    for (const JobRow &row : jobRows()) {
        if (row.name != name)
            continue;
        if (operands < row.fewestOperands)
            throw UsageError{u"missing operand after '%1'"_s.arg(arguments.operands().last())};
        if (row.mostOperands >= 0 && operands > row.mostOperands)
            throw UsageError{u"extra operand '%1'"_s.arg(arguments.operand(2 + row.mostOperands))};
        return row;
    }
    throw UsageError{u"unknown job '%1'"_s.arg(name)};
}

double parsePace(const Arguments &arguments)
{
    if (!arguments.has("pace"_L1))
        return 0;
    bool isNumber = false;
    const double pace = arguments.value("pace"_L1).toDouble(&isNumber);
    if (!isNumber || !(pace >= 0 && pace <= 1000))
        throw UsageError{u"invalid argument '%1' for '--pace'"_s.arg(arguments.value("pace"_L1))};
    return pace;
}

/** "printer=0,nfc=2": check states of the Keep list. */
void applyKeep(WorkThread &worker, const QString &text)
{
    for (const QString &entry : text.split(u',', Qt::SkipEmptyParts)) {
        const QString name = entry.section(u'=', 0, 0);
        const QString state = entry.section(u'=', 1);
        const auto row = std::find_if(std::begin(keepRows), std::end(keepRows),
                                      [&name](const KeepRow &keep) { return keep.name == name; });
        if (row == std::end(keepRows) || (state != "0"_L1 && state != "2"_L1))
            throw UsageError{u"invalid argument '%1' for '--keep'"_s.arg(entry)};
        worker.*(row->state) = state.toInt();
    }
}

/** Prints the lines as they come, and remembers the last one. */
class LinePrinter
{
public:
    LinePrinter(bool json, Progress &progress)
        : json_(json)
        , progress_(progress)
    {
    }

    void take(QLatin1StringView signal, const QString &line)
    {
        lastLine_ = line;
        anyLine_ = true;
        printPair(u"signal"_s, signal, u"line"_s, line);
    }

    /** A text that the job left. Its line breaks are shown, so that it stays on its line. */
    void takeResult(const QString &name, const QString &text)
    {
        QString shown = text;
        if (!json_)
            shown.replace(u'\r', u"\\r"_s).replace(u'\n', u"\\n"_s);
        printPair(u"name"_s, name, u"text"_s, shown);
    }

    /** Whether what came ends as the row tells. */
    bool isClosed(const JobRow &row) const
    {
        return anyLine_ && (row.closingLine == anyLine || lastLine_ == row.closingLine);
    }

private:
    void printPair(const QString &firstKey, const QString &first, const QString &secondKey, const QString &second)
    {
        progress_.clear();
        if (json_)
            print(QJsonDocument(QJsonObject{{firstKey, first}, {secondKey, second}}).toJson(QJsonDocument::Compact)
                  + '\n');
        else
            print(first + u'\t' + second + u'\n');
        std::fflush(stdout);
    }

    bool json_;
    Progress &progress_;
    QString lastLine_;
    bool anyLine_ = false;
};

/** Runs the job to its end. */
void runToEnd(WorkThread &worker, int job, const JobRow &row, LinePrinter &printer)
{
    QObject::connect(&worker, &WorkThread::valueChanged, &worker, [&](const QString &line) {
        printer.take("valueChanged"_L1, line);
        if (row.record != nullptr)
            row.record(line);
    });
    QObject::connect(&worker, &WorkThread::automatizerValueChanged, &worker,
                     [&printer](const QString &line) { printer.take("automatizerValueChanged"_L1, line); });
    // Queued behind the lines that are under way.
    QObject::connect(
        &worker, &QThread::finished, &worker, [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
    worker.startJob(job);
    QCoreApplication::exec();
    worker.wait();
}

/** Prints what starts at logon now. */
void printAutorun(WorkThread &worker, LinePrinter &printer)
{
    worker.AutorunGetList();
    for (const AutorunRow &entry : std::as_const(worker.autoruns))
        printer.take("autorun"_L1, entry);
}

/** A tweak tells nothing of itself; what is left to do for the user is said. */
void runTweak(WorkThread &worker, const JobRow &row, const TweakRequest &tweak, LinePrinter &printer)
{
    if (const std::optional<int> job = tweak.job())
        runToEnd(worker, *job, row, printer);
    else
        (worker.*tweak.run)(tweak.apply ? 1 : 0, tweak.id);
    printer.take("tweak"_L1, u"%1 %2 %3"_s.arg(tweak.group).arg(tweak.id).arg(tweak.apply ? "on"_L1 : "off"_L1));
    if (worker.needReboot == 1)
        printer.take("tweak"_L1, u"restart needed"_s);
}

/** Runs what the row says on a worker that has its input. A Failure where the job didn't come to its end. */
void runRow(WorkThread &worker, const JobRow &row, const QStringList &operands, bool json)
{
    Progress progress;
    progress.show(u"running %1 ..."_s.arg(row.name), 0, 0);
    LinePrinter printer(json, progress);
    if (row.job == jobAutorun) {
        printAutorun(worker, printer);
        return;
    }
    if (row.job == jobTweak) {
        runTweak(worker, row, parseTweak(operands), printer);
        return;
    }
    runToEnd(worker, row.job, row, printer);
    progress.clear();
    if (!printer.isClosed(row))
        throw Failure{ExitJobFailed, u"the job %1 ended without its closing line"_s.arg(row.name)};
    if (row.results != nullptr) {
        for (const auto &[name, text] : row.results(worker))
            printer.takeResult(name, text);
    }
}

int runJob(const Arguments &arguments)
{
    const JobRow &row = findJob(arguments);
    const QStringList operands = arguments.operands().mid(2);
    if (row.job == jobTweak)
        parseTweak(operands); // before anything is opened
    SimulatedOptions simulated;
    simulated.elevated = !arguments.has("not-elevated"_L1);
    simulated.pace = parsePace(arguments);
    WorkThread worker;
    applyKeep(worker, arguments.value("keep"_L1));

    const QString folder = openMachine(arguments.operand(0))->folder();
    setPlatform(std::make_unique<SimulatedPlatform>(folder, simulated));
    const WindowsName windows = readWindowsName();
    worker.winName = windows.product;
    worker.winBuild = windows.build;
    if (row.prepare != nullptr)
        row.prepare(worker, operands);

    runRow(worker, row, operands, arguments.has("json"_L1));
    if (row.unreached != nullptr) {
        if (const QStringList left = row.unreached(operands); !left.isEmpty())
            throw Failure{ExitJobFailed, u"%1 failed for %2"_s.arg(row.name, left.join(", "_L1))};
    }
    return ExitDone;
}

QString moreHelp()
{
    QString text = u"Jobs:\n"_s;
    for (const JobRow &row : jobRows())
        text += u"  "_s + (QString(row.name) + u' ' + row.operands).leftJustified(28) + row.help + u'\n';
    QStringList names;
    for (const KeepRow &row : keepRows)
        names.append(row.name);
    return text
           + u"\nFeatures for --keep, each with 2 to keep it or 0 to give it up:\n  %1.\n"_s.arg(names.join(", "_L1));
}

// clang-format off
constexpr OptionRow options[] = {
    {"not-elevated"_L1, {},                   "run it as a user without administrator rights"_L1},
    {"pace"_L1,         "FACTOR"_L1,          "sleep this many times each pause of the job (default 0)"_L1},
    {"keep"_L1,         "FEATURE=STATE,..."_L1, "say which features are kept"_L1},
    {"json"_L1,         {},                   "print each line as a JSON object"_L1},
};
// clang-format on

} // namespace

const Subcommand runSubcommand{
    "run"_L1, "DIR JOB [ARG]..."_L1, "run a job without a window and print its lines"_L1, options, 2, -1, runJob,
    moreHelp,
};
