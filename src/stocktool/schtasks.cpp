// SPDX-License-Identifier: GPL-3.0-or-later
// schtasks: the task scheduler's own tool.

#include "console/console.h"
#include "machine/source/toolreport.h"
#include "platform/taskdocument.h"
#include "tools.h"

#include <variant>

using namespace Qt::StringLiterals;

namespace {

constexpr int exitFailed = 1;

/** The bytes of a text, with the line ends of Windows. */
QByteArray printed(QString text)
{
    return toConsoleBytes(text.replace(u'\n', u"\r\n"_s));
}

ToolResult failed(const QString &reason)
{
    return {exitFailed, {}, printed(u"ERROR: "_s + reason + u'\n')};
}

ToolResult badUsage(const QString &reason, const QString &verb = {})
{
    const QString command = verb.isEmpty() ? u"SCHTASKS"_s : u"SCHTASKS "_s + verb;
    return failed(u"Invalid syntax. %1\nType \"%2 /?\" for usage."_s.arg(reason, command));
}

/** Prints the documents of all tasks that the user may see. */
ToolResult query(ToolHost &host, const QStringList &arguments)
{
    const bool asOne = arguments.size() == 2 && arguments.at(1).compare("one"_L1, Qt::CaseInsensitive) == 0;
    const bool asList = arguments.size() == 1;
    if ((!asOne && !asList) || arguments.at(0).compare("/xml"_L1, Qt::CaseInsensitive) != 0)
        return badUsage(u"Only /XML is known on a rehearsal machine."_s, u"/QUERY"_s);

    QString text = asOne ? u"<?xml version=\"1.0\" ?>\n<Tasks>\n"_s : QString();
    for (const ScheduledTask &task : host.tasks()) {
        if (!host.isElevated() && taskFacts(task.document).forAdministrators)
            continue;
        if (asOne)
            text += u"\n<!-- "_s + task.path + u" -->\n"_s + task.document + u'\n';
        else
            text += u'\n' + taskExportText(task);
    }
    if (asOne)
        text += u"\n</Tasks>\n"_s;
    return {0, printed(text)};
}

/** What "/CHANGE" is asked to do. */
struct Change
{
    QString path;
    std::optional<bool> enable;
};

/** A text instead of the change says what is wrong with the arguments. */
std::variant<Change, QString> parseChange(const QStringList &arguments)
{
    Change change;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString option = arguments.at(i).toLower();
        if (option == "/tn"_L1) {
            if (++i == arguments.size())
                return u"Value expected for '/tn'."_s;
            change.path = arguments.at(i);
        } else if (option == "/disable"_L1 || option == "/enable"_L1) {
            if (change.enable)
                return u"/ENABLE and /DISABLE exclude each other."_s;
            change.enable = option == "/enable"_L1;
        } else {
            return u"Invalid argument/option - '%1'."_s.arg(arguments.at(i));
        }
    }
    if (change.path.isEmpty())
        return u"Mandatory option '/tn' is missing."_s;
    if (!change.enable)
        return u"There is nothing to change."_s;
    return change;
}

ToolResult change(ToolHost &host, const QStringList &arguments)
{
    const auto parsed = parseChange(arguments);
    if (const QString *problem = std::get_if<QString>(&parsed))
        return badUsage(*problem, u"/CHANGE"_s);
    const Change asked = std::get<Change>(parsed);
    const QString path = asked.path.startsWith(u'\\') ? asked.path : u'\\' + asked.path;
    std::optional<ScheduledTask> task = host.task(path);
    if (!task)
        return failed(u"The specified task name \"%1\" does not exist in the system."_s.arg(asked.path));
    if (!host.isElevated())
        return failed(u"Access is denied."_s);
    task->document = withTaskEnabled(task->document, *asked.enable);
    host.setTask(*task);
    return {0, printed(u"SUCCESS: The parameters of scheduled task \"%1\" have been changed.\n"_s.arg(asked.path))};
}

} // namespace

ToolResult runSchtasks(ToolHost &host, const QStringList &arguments)
{
    const QString verb = arguments.isEmpty() ? QString() : arguments.at(0).toLower();
    if (verb == "/xml"_L1) // short for /query /xml
        return query(host, arguments);
    if (verb == "/query"_L1)
        return query(host, arguments.mid(1));
    if (verb == "/change"_L1)
        return change(host, arguments.mid(1));
    return badUsage(verb.isEmpty() ? u"A verb is missing."_s : u"Invalid argument/option - '%1'."_s.arg(verb));
}
