// SPDX-License-Identifier: GPL-3.0-or-later
// powercfg: of all it can do, hibernation.

#include "tools.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int exitFailed = 1;

ToolResult invalidParameters()
{
    return {exitFailed, {}, "Invalid Parameters -- try \"/?\" for help\r\n"};
}

bool isHibernateOption(const QString &option)
{
    static const QStringList spellings{u"-h"_s, u"/h"_s, u"-hibernate"_s, u"/hibernate"_s};
    return spellings.contains(option, Qt::CaseInsensitive);
}

} // namespace

ToolResult runPowercfg(ToolHost &host, const QStringList &arguments)
{
    if (arguments.size() != 2 || !isHibernateOption(arguments.at(0)))
        return invalidParameters();
    const QString state = arguments.at(1).toLower();
    if (state != "on"_L1 && state != "off"_L1)
        return invalidParameters();
    if (!host.isElevated()) {
        return {exitFailed,
                {},
                "Unable to perform operation. An unexpected error (0x65b) has occurred: Function failed during "
                "execution.\r\n"};
    }
    const bool on = state == "on"_L1;
    if (!host.setHiberfile(on))
        return {exitFailed};
    host.openKey(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control\\Power"_s)
        ->setValue(u"HibernateEnabled"_s, on ? 1 : 0);
    return {};
}
