// SPDX-License-Identifier: GPL-3.0-or-later
// bcdedit: options of the boot configuration that are switches.

#include "tools.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int exitFailed = 1;
constexpr const char *succeeded = "The operation completed successfully.\r\n";

// clang-format off
constexpr QLatin1StringView switches[] = {
    "disabledynamictick"_L1, "quietboot"_L1, "testsigning"_L1, "useplatformclock"_L1, "useplatformtick"_L1,
};
// clang-format on

bool isSwitch(const QString &name)
{
    return std::any_of(std::begin(switches), std::end(switches),
                       [&name](QLatin1StringView each) { return name.compare(each, Qt::CaseInsensitive) == 0; });
}

/** As the tool lists it; nothing where the text is no state of a switch. */
std::optional<QString> stateOf(const QString &text)
{
    static const QStringList yes{u"yes"_s, u"true"_s, u"on"_s, u"1"_s};
    static const QStringList no{u"no"_s, u"false"_s, u"off"_s, u"0"_s};
    if (yes.contains(text, Qt::CaseInsensitive))
        return u"Yes"_s;
    if (no.contains(text, Qt::CaseInsensitive))
        return u"No"_s;
    return std::nullopt;
}

ToolResult invalid(const char *verb)
{
    return {exitFailed,
            QByteArray("The ") + verb
                + " command specified is not valid.\r\nRun \"bcdedit /?\" for command line assistance.\r\n"};
}

ToolResult set(ToolHost &host, const QStringList &operands)
{
    if (operands.size() != 2)
        return invalid("set");
    const std::optional<QString> state = stateOf(operands.at(1));
    if (!isSwitch(operands.at(0)))
        return {exitFailed, "The element data type specified is not recognized, or does not apply to the\r\n"
                            "specified entry.\r\nRun \"bcdedit /?\" for command line assistance.\r\n"
                            "Element not found.\r\n"};
    if (!state)
        return {exitFailed, "The boolean data specified is not valid.\r\n"
                            "Run \"bcdedit /?\" for command line assistance.\r\nThe parameter is incorrect.\r\n"};
    host.setBootOption(operands.at(0), state);
    return {0, succeeded};
}

ToolResult deleteValue(ToolHost &host, const QStringList &operands)
{
    if (operands.size() != 1)
        return invalid("delete");
    if (!host.bootOptions().contains(operands.at(0).toLower()))
        return {exitFailed, "An error occurred while attempting to delete the specified data element.\r\n"
                            "Element not found.\r\n"};
    host.setBootOption(operands.at(0), std::nullopt);
    return {0, succeeded};
}

/** The entry that the system was started by, with the options that were set. */
ToolResult enumerate(ToolHost &host, const QStringList &operands)
{
    constexpr qsizetype column = 24;

    if (operands != QStringList(u"{current}"_s))
        return invalid("enum");
    QString text = u"\r\nWindows Boot Loader\r\n-------------------\r\n"_s;
    const auto addLine = [&text](const QString &name, const QString &value) {
        text += name.leftJustified(column) + value + u"\r\n"_s;
    };
    addLine(u"identifier"_s, operands.at(0));
    addLine(u"device"_s, u"partition=C:"_s);
    addLine(u"path"_s, u"\\Windows\\system32\\winload.efi"_s);
    const QMap<QString, QString> options = host.bootOptions();
    for (auto it = options.begin(); it != options.end(); ++it)
        addLine(it.key(), it.value());
    return {0, text.toUtf8()};
}

} // namespace

ToolResult runBcdedit(ToolHost &host, const QStringList &arguments)
{
    if (!host.isElevated())
        return {exitFailed, "The boot configuration data store could not be opened.\r\nAccess is denied.\r\n"};
    const QString verb = arguments.value(0).toLower();
    if (verb == "/set"_L1)
        return set(host, arguments.mid(1));
    if (verb == "/deletevalue"_L1)
        return deleteValue(host, arguments.mid(1));
    if (verb == "/enum"_L1)
        return enumerate(host, arguments.mid(1));
    return {exitFailed, "Invalid command line switch: " + arguments.value(0).toUtf8()
                            + "\r\nRun \"bcdedit /?\" for command line assistance.\r\nThe parameter is incorrect.\r\n"};
}
