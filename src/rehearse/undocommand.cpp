// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse undo

#include "console/printable.h"
#include "jobrunner.h"
#include "journal/machinejournal.h"
#include "journal/programrecords.h"
#include "journal/takeback.h"
#include "progress.h"
#include "subcommands.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QScopeGuard>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString timeText(const QDateTime &time)
{
    return time.toString(u"yyyy-MM-dd HH:mm:ss"_s);
}

/** Reads "2026-11-22", or that with a time of day after a blank or a "T". */
QDateTime parseTime(const QString &text)
{
    const QDateTime time = QDateTime::fromString(QString(text).replace(u' ', u'T'), Qt::ISODate);
    if (!time.isValid())
        throw UsageError{u"'%1' isn't a time, such as 2026-11-22T09:30"_s.arg(text)};
    return time;
}

qint64 parseNumber(const QString &text, const QString &option)
{
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    if (!isNumber || number < 1)
        throw UsageError{u"invalid argument '%1' for '--%2'"_s.arg(text, option)};
    return number;
}

/** What the options ask for. */
struct Request
{
    std::optional<QDateTime> since{};
    std::optional<qint64> session{};
    QList<qint64> items{};
    bool evenChanged = false;
};

Request parseRequest(const Arguments &arguments)
{
    Request request;
    if (arguments.has("since"_L1) && arguments.has("session"_L1))
        throw UsageError{u"--since and --session can't be given together"_s};
    if (arguments.has("since"_L1))
        request.since = parseTime(arguments.value("since"_L1));
    if (arguments.has("session"_L1))
        request.session = parseNumber(arguments.value("session"_L1), u"session"_s);
    if (arguments.has("item"_L1)) {
        for (const QString &number : arguments.value("item"_L1).split(u','))
            request.items.append(parseNumber(number, u"item"_s));
    }
    request.evenChanged = arguments.has("force"_L1);
    return request;
}

/** A Failure where there is no such session. */
Selection selectionOf(const Request &request, const QList<Session> &sessions)
{
    Selection selection;
    selection.items = request.items;
    selection.evenChanged = request.evenChanged;
    if (request.session) {
        const bool isKnown = std::any_of(sessions.cbegin(), sessions.cend(),
                                         [&request](const Session &each) { return each.id == *request.session; });
        if (!isKnown)
            throw Failure{ExitBadArguments, u"there is no session %1"_s.arg(*request.session)};
        selection.firstSession = selection.lastSession = *request.session;
    }
    if (request.since) {
        const auto first = std::find_if(sessions.cbegin(), sessions.cend(),
                                        [&request](const Session &each) { return each.begun >= *request.since; });
        selection.firstSession = first != sessions.cend() ? first->id : sessions.isEmpty() ? 1 : sessions.last().id + 1;
    }
    return selection;
}

/** A Failure where one of the chosen changes isn't among those of the chosen sessions. */
void checkItems(const Journal &journal, const Selection &selection)
{
    Selection all = selection;
    all.items.clear();
    const QList<TakenItem> known = selection.items.isEmpty() ? QList<TakenItem>() : planWayBack(journal, all);
    for (const qint64 item : selection.items) {
        if (std::none_of(known.cbegin(), known.cend(), [item](const TakenItem &each) { return each.id == item; }))
            throw Failure{ExitBadArguments, u"there is no change %1"_s.arg(item)};
    }
}

QString lineOf(QStringList columns)
{
    std::transform(columns.cbegin(), columns.cend(), columns.begin(), printable);
    return columns.join(u'\t') + u'\n';
}

QString sessionsText(const QList<Session> &sessions)
{
    QString text;
    for (const Session &each : sessions)
        text += lineOf({QString::number(each.id), timeText(each.begun), each.what, sessionStateText(each.state),
                        u"%1 changes"_s.arg(each.changes)});
    return text;
}

QString itemsText(const QList<TakenItem> &items)
{
    QString text;
    for (const TakenItem &each : items) {
        if (each.own)
            continue;
        QStringList columns{QString::number(each.id), verdictText(each.verdict), itemTitle(each.item),
                            stateText(each.item, each.before), stateText(each.item, each.now)};
        if (!each.why.isEmpty())
            columns.append(whyText(each));
        text += lineOf(columns);
    }
    return text;
}

QJsonArray sessionsJson(const QList<Session> &sessions)
{
    QJsonArray array;
    for (const Session &each : sessions) {
        array.append(QJsonObject{{u"session"_s, each.id},
                                 {u"begun"_s, each.begun.toUTC().toString(Qt::ISODateWithMs)},
                                 {u"what"_s, each.what},
                                 {u"page"_s, pageOfSession(each.what)},
                                 {u"user"_s, each.user},
                                 {u"version"_s, each.version},
                                 {u"windows"_s, each.windows},
                                 {u"state"_s, sessionStateText(each.state)},
                                 {u"changes"_s, each.changes}});
    }
    return array;
}

QJsonArray itemsJson(const QList<TakenItem> &items)
{
    QJsonArray array;
    for (const TakenItem &each : items) {
        if (each.own)
            continue;
        array.append(QJsonObject{{u"item"_s, each.id},
                                 {u"verdict"_s, verdictText(each.verdict)},
                                 {u"what"_s, itemTitle(each.item)},
                                 {u"was"_s, stateText(each.item, each.before)},
                                 {u"now"_s, stateText(each.item, each.now)},
                                 {u"why"_s, whyText(each)}});
    }
    return array;
}

void report(const Arguments &arguments, const QString &text, const QString &key, const QJsonArray &json)
{
    if (!arguments.has("json"_L1))
        print(text);
    else
        writeReportFile(arguments.value("json"_L1),
                        printableJson(QJsonDocument(QJsonObject{{u"formatVersion"_s, 1}, {key, json}})));
}

bool isBack(const QList<TakenItem> &items)
{
    return std::all_of(items.cbegin(), items.cend(),
                       [](const TakenItem &each) { return each.verdict == WayBack::AsItWas; });
}

/** Takes back on a worker's thread, which can be broken off. */
QList<TakenItem> takeBackToEnd(const Journal &journal, const Selection &selection)
{
    Progress progress;
    QList<TakenItem> items;
    runToEnd([&] {
        items = takeBack(journal, selection, [&progress](qsizetype step, qsizetype steps) {
            progress.show(u"taking back"_s, static_cast<int>(step), static_cast<int>(steps));
        });
    });
    progress.clear();
    return items;
}

int runUndo(const Arguments &arguments)
{
    const QString folder = openMachine(arguments.operand(0))->folder();
    auto opened = openMachineJournal(folder);
    const Journal &journal = *opened;
    setPlatform(std::move(opened));
    const auto close = qScopeGuard([] { setPlatform(nullptr); });
    settleBrokenOff();
    return undoBy(journal, arguments);
}

// clang-format off
constexpr OptionRow options[] = {
    {"list"_L1,    {},          "only list: the sessions, or what those chosen have changed"_L1,
     "Changes nothing: lists the sessions or, with one of the next three options,\nwhat those have changed."_L1},
    {"since"_L1,   "TIME"_L1,   "take back what was changed since TIME, such as 2026-11-22T09:30"_L1},
    {"session"_L1, "N"_L1,      "take back what this session has changed"_L1},
    {"item"_L1,    "N,..."_L1,  "take back these changes alone, by their numbers in the list"_L1},
    {"force"_L1,   {},          "take back what something else has changed since, too"_L1},
    {"json"_L1,    "FILE"_L1,   "write JSON"_L1},
    {"files"_L1,   "FOLDER"_L1, "only write files: the way back for Windows' own tools"_L1,
     "Changes nothing: writes\n.I way-back.reg\nand a list of commands into the folder, for Windows' own tools; both can be "
     "used in Safe Mode.\nWhat can't be taken back this way is named.\n"
     "The ten newest sessions have theirs already, in\n.I DIR/journal/files."_L1},
};
// clang-format on

QString moreHelp()
{
    return u"Every change made by 'run' and 'gui' with administrator rights is noted in the machine's journal, with\n"
           "what was there before. Without --since, --session or --item everything is taken back. What something\n"
           "else has changed since is left alone, and reported. Taking back is a session too, and can be taken back.\n"
           "\n"
           "Columns: number, verdict, what it is, how it was before, how it is now, and why where it isn't back.\n"
           "Exit status: 0 where everything is as it was, 1 where something isn't.\n"_s;
}

} // namespace

int undoBy(const Journal &journal, const Arguments &arguments)
{
    const Request request = parseRequest(arguments);
    if (arguments.has("json"_L1))
        checkReportFile(arguments.value("json"_L1));
    const QList<Session> sessions = journal.store().sessions();
    const Selection selection = selectionOf(request, sessions);
    checkItems(journal, selection);
    if (arguments.has("list"_L1)) {
        if (request.session || request.since || !request.items.isEmpty()) {
            const QList<TakenItem> items = planWayBack(journal, selection);
            report(arguments, itemsText(items), u"items"_s, itemsJson(items));
        } else {
            report(arguments, sessionsText(sessions), u"sessions"_s, sessionsJson(sessions));
        }
        return ExitDone;
    }
    if (arguments.has("files"_L1)) {
        const WrittenWayBack written = writeWayBack(journal, selection, absoluteFolder(arguments.value("files"_L1)));
        printWritten(written);
        return written.leftOut.isEmpty() ? ExitDone : ExitJobFailed;
    }
    const QList<TakenItem> items = takeBackToEnd(journal, selection);
    report(arguments, itemsText(items), u"items"_s, itemsJson(items));
    if (const QString failure = journal.takeFailure(); !failure.isEmpty())
        throw Failure{ExitJobFailed, u"not everything was taken back: "_s + failure};
    return isBack(items) ? ExitDone : ExitJobFailed;
}

std::span<const OptionRow> undoOptions()
{
    return options;
}

const Subcommand undoSubcommand{
    "undo"_L1, "DIR"_L1, "take changes back, exactly, by the machine's journal"_L1, options, 1, 1, runUndo, moreHelp,
};
