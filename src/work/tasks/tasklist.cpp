// SPDX-License-Identifier: GPL-3.0-or-later
// The list of scheduled tasks, cut out of the export that schtasks prints.

#include "tasks.h"

#include "platform/platform.h"
#include "work/backups.h"
#include "work/command.h"
#include "work/interruption.h"
#include "work/services/services.h"
#include "work/settings.h"
#include "work/statusline.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

/** What stands between the first @p begin and the @p end after it; nothing where either is missing. */
QStringView between(QStringView text, QStringView begin, QStringView end)
{
    const qsizetype start = text.indexOf(begin);
    if (start < 0)
        return {};
    text = text.sliced(start + begin.size());
    const qsizetype stop = text.indexOf(end);
    return stop < 0 ? text : text.first(stop);
}

const QString exportName = u"tasks.xml"_s;

/** Leaves the export in the user's folder for temporary files, in place of an earlier one. */
bool leaveBehind(const QByteArray &exported)
{
    const QString folder = platform().hostPath(qEnvironmentVariable("temp") + u'/');
    return platform().writeFile(folder, exportName, exported, IfThere::Replace);
}

/** One document for all tasks or one for each, closed by their last tag: no line end need follow it. */
bool isCompleteExport(const QString &text)
{
    const QString end = text.trimmed();
    return text.contains("<?xml"_L1) && (end.endsWith("</Tasks>"_L1) || end.endsWith("</Task>"_L1));
}

/** Keeps the first export, for the user; nothing reads it. */
void backUp(const QByteArray &exported)
{
    const QString name = u"backup_tasks/"_s + exportName;
    const QString file = platform().programFolder() + u'/' + name;
    // What looks cut off to this program, though the tool has ended by itself, takes no place of another one.
    if (backupState(file, isCompleteExport) == BackupState::CutOff
        && !(isCompleteExport(textOfFile(exported)) && setAside(file)))
        return;
    platform().writeFile(platform().programFolder(), name, exported, IfThere::Keep);
}

} // namespace

std::optional<TaskExport> exportedTasks()
{
    Command schtasks;
    if (!startLogged(schtasks, u"TaskMakeList"_s, u"schtasks"_s, {u"/xml"_s}))
        return std::nullopt;
    schtasks.waitForFinished();
    // From the tool itself: anybody can put something else in the place of the file.
    const QByteArray bytes = schtasks.readAllStandardOutput();
    if (const int code = schtasks.exitCode(); code != 0) {
        LogError(u"TaskMakeList: schtasks process error: "_s + QString::number(code));
        return std::nullopt;
    }
    return TaskExport{bytes, schtasks.hasEndedByItself()};
}

QList<TaskRow> tasksOf(const TaskExport &exported)
{
    QString text = textOfFile(exported.bytes);
    return tasksOf(text.replace("\r\n"_L1, "\n"_L1));
}

void WorkThread::TaskMakeList()
try {
    tasks.clear();

    const std::optional<TaskExport> exported = exportedTasks();
    if (!exported || !leaveBehind(exported->bytes))
        return;
    if (platform().isElevated() && exported->isWhole)
        backUp(exported->bytes);
    tasks = tasksOf(*exported);
    if (analyzeRunning == 0)
        report(StatusLine::tasksListed);
} catch (const JobInterrupted &) {
    throw;
} catch (...) {
    const quint32 code = lastSystemError();
    LogError(u"TaskMakeList: schtasks process error: "_s + QString::number(code));
}

QList<TaskRow> tasksOf(const QString &exported)
{
    QList<TaskRow> tasks;
    QList<QStringView> parts = QStringView(exported).split(u"</Task>"_s);
    // After the last task there is at most the list's own closing tag.
    parts.removeLast();
    for (const QStringView part : std::as_const(parts)) {
        endIfInterrupted();
        const QStringView uri = between(part, u"<URI>", u"</URI>");
        if (uri.isEmpty())
            continue;
        TaskRow row;
        row.path = uri.sliced(1).toString(); // without the leading backslash
        row.name = row.path.sliced(row.path.lastIndexOf(u'\\') + 1);
        // The tag stands only where someone has switched the task, so its presence counts and not its value.
        row.disabled = part.contains(u"<Enabled>") ? 1 : 0;
        if (part.contains(u"<Description>")) {
            row.description = between(part, u"<Description>", u"</Description>").toString();
            if (row.description.startsWith("$(@"_L1))
                row.description = expandResourceString(row.description);
        } else {
            row.description = WorkThread::tr("no description");
        }
        tasks.append(row);
    }
    return tasks;
}
