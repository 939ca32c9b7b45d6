// SPDX-License-Identifier: GPL-3.0-or-later

#include "tools.h"

using namespace Qt::StringLiterals;

namespace {

struct Tool
{
    QLatin1StringView name;
    ToolResult (*run)(ToolHost &host, const QStringList &arguments);
};

// clang-format off
constexpr Tool tools[] = {
    {"sc"_L1,            runSc},
    {"schtasks"_L1,      runSchtasks},
    {"powershell"_L1,    runPowerShell},
    {"taskkill"_L1,      runTaskkill},
    {"onedrivesetup"_L1, runOneDriveSetup},
    {"cmd"_L1,           runCmd},
    {"powercfg"_L1,      runPowercfg},
    {"bcdedit"_L1,       runBcdedit},
    {"takeown"_L1,       runTakeown},
    {"icacls"_L1,        runIcacls},
};
// clang-format on

} // namespace

ToolResult runTool(const QString &name, ToolHost &host, const QStringList &arguments)
{
    for (const Tool &tool : tools) {
        if (name == tool.name)
            return tool.run(host, arguments);
    }
    return {exitNoSuchProgram};
}
