// SPDX-License-Identifier: GPL-3.0-or-later
// The list of programs started at logon.

#include "platform/platform.h"
#include "work/workthread.h"

using namespace Qt::StringLiterals;

namespace {

struct RunKey
{
    QString path;
    bool hidesSecurityHealth; ///< the system's own icon of that name stays
};

const QString packagedTasks[] = {
    u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\AppModel\\"
    "SystemAppData\\Microsoft.WindowsTerminal_8wekyb3d8bbwe\\StartTerminalOnLoginTask"_s,
    u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\AppModel\\"
    "SystemAppData\\Microsoft.GamingApp_8wekyb3d8bbwe\\Xbox.App.Tasks.FullTrustComponent"_s,
};

// clang-format off
const RunKey runKeys[] = {
    {u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s,               false},
    {u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Run"_s,              true},
    {u"HKEY_LOCAL_MACHINE\\SOFTWARE\\WOW6432Node\\Microsoft\\Windows\\CurrentVersion\\Run"_s, false},
};
// clang-format on

} // namespace

void WorkThread::AutorunGetList()
{
    autoruns.clear();
    for (const RunKey &run : runKeys) {
        const auto key = platform().openKey(run.path);
        for (const QString &name : key->childKeys()) {
            const bool unnamed = name.isEmpty() || name == "."_L1;
            if (unnamed || (run.hidesSecurityHealth && name.contains("SecurityHealth"_L1, Qt::CaseInsensitive)))
                continue;
            autoruns.append(run.path + u'\\' + name + u'=' + key->value(name).toString());
        }
    }
    for (const QString &task : packagedTasks) {
        constexpr int on = 2;
        if (platform().openKey(task)->value(u"State"_s).toInt() == on)
            autoruns.append(task + u'=');
    }
}
