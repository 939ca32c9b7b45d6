// SPDX-License-Identifier: GPL-3.0-or-later

#include "startmodescript.h"

#include "platform/windowsfacts.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace {

constexpr std::string_view header = "Windows Registry Editor Version 5.00";
const std::string sectionBegin = '[' + WindowsKey::services.toStdString() + '\\';
constexpr std::string_view startMode = "\"Start\"=dword:";

/** A name of one key, in letters that are themselves in every code page that the editor may read the file by. */
bool isKeyName(std::string_view name)
{
    return !name.empty() && std::all_of(name.begin(), name.end(), [](char letter) {
        return letter >= ' ' && letter <= '~' && letter != '\\' && letter != '[' && letter != ']';
    });
}

bool isServiceSection(std::string_view line)
{
    return line.starts_with(sectionBegin) && line.ends_with(']')
           && isKeyName(line.substr(sectionBegin.size(), line.size() - sectionBegin.size() - 1));
}

/** With no digits where a service has no start mode. */
bool isStartMode(std::string_view line)
{
    constexpr std::string_view digits = "0123456789abcdefABCDEF";
    constexpr std::size_t mostDigits = 8;

    if (!line.starts_with(startMode))
        return false;
    line.remove_prefix(startMode.size());
    return line.size() <= mostDigits && line.find_first_not_of(digits) == std::string_view::npos;
}

/** The next line that isn't empty, which is taken away; the editor takes either character for the end of one. */
std::string_view nextLine(std::string_view &text)
{
    text.remove_prefix(std::min(text.find_first_not_of("\r\n"), text.size()));
    const std::string_view line = text.substr(0, text.find_first_of("\r\n"));
    text.remove_prefix(line.size());
    return line;
}

} // namespace

bool setsStartModesOnly(const QByteArray &script)
{
    std::string_view text(script.constData(), static_cast<std::size_t>(script.size()));
    if (!text.starts_with(header) || nextLine(text) != header)
        return false;
    bool inService = false;
    for (std::string_view line = nextLine(text); !line.empty(); line = nextLine(text)) {
        if (isServiceSection(line))
            inService = true;
        else if (!inService || !isStartMode(line))
            return false;
    }
    return true;
}
