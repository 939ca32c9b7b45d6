// SPDX-License-Identifier: GPL-3.0-or-later
// taskkill: ends processes by the name of their program.

#include "console/console.h"
#include "tools.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int exitBadUsage = 1;
constexpr int exitNotFound = 128;

/** What the arguments ask for. */
struct Request
{
    QString name;
    bool tree = false;
};

/** Empty where an argument isn't known or no name is given. */
std::optional<Request> parse(const QStringList &arguments)
{
    Request request;
    for (qsizetype i = 0; i < arguments.size(); ++i) {
        const QString option = arguments.at(i).toLower();
        if (option == "/im"_L1 && i + 1 < arguments.size())
            request.name = arguments.at(++i);
        else if (option == "/t"_L1)
            request.tree = true;
        else if (option != "/f"_L1)
            return std::nullopt;
    }
    return request.name.isEmpty() ? std::nullopt : std::optional(request);
}

/** A process has no number on a rehearsal machine; its place in the list makes one, a multiple of 4 as they all are. */
int processNumber(qsizetype place)
{
    constexpr int first = 1000;
    return first + 4 * static_cast<int>(place);
}

QString successLine(const Request &request, const QString &process, int number)
{
    constexpr int starter = 996;
    if (request.tree)
        return u"SUCCESS: The process with PID %1 (child process of PID %2) has been terminated.\r\n"_s.arg(number).arg(
            starter);
    return u"SUCCESS: The process \"%1\" with PID %2 has been terminated.\r\n"_s.arg(process).arg(number);
}

} // namespace

ToolResult runTaskkill(ToolHost &host, const QStringList &arguments)
{
    const std::optional<Request> request = parse(arguments);
    if (!request)
        return {exitBadUsage, {}, "ERROR: Invalid syntax.\r\nType \"TASKKILL /?\" for usage.\r\n"};

    QString output;
    const QStringList processes = host.processes();
    for (qsizetype i = 0; i < processes.size(); ++i) {
        if (processes.at(i).compare(request->name, Qt::CaseInsensitive) == 0)
            output += successLine(*request, processes.at(i), processNumber(i));
    }
    if (output.isEmpty())
        return {exitNotFound, {}, toConsoleBytes(u"ERROR: The process \"%1\" not found.\r\n"_s.arg(request->name))};
    host.endProcesses(request->name);
    return {0, toConsoleBytes(output)};
}
