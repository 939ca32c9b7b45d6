// SPDX-License-Identifier: GPL-3.0-or-later
// The program behind the search, which is renamed to keep it from starting.

#include "platform/platform.h"
#include "tweakcommand.h"
#include "windowstweaks.h"

#include <QFile>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct SearchProgram
{
    QLatin1StringView generation; ///< in the name of Windows
    QLatin1StringView file;       ///< below the Windows folder
    QLatin1StringView disabledFile;
    QLatin1StringView process;
};

// clang-format off
constexpr SearchProgram programs[] = {
    {"11"_L1, "\\SystemApps\\MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost.exe"_L1,
     "\\SystemApps\\MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost_disable.exe"_L1, "SearchHost.exe"_L1},
    {"10"_L1, "\\SystemApps\\Microsoft.Windows.Search_cw5n1h2txyewy\\SearchApp.exe"_L1,
     "\\SystemApps\\Microsoft.Windows.Search_cw5n1h2txyewy\\SearchApp_disable.exe"_L1,     "SearchApp.exe"_L1},
};
// clang-format on

QString hostFile(const char *folderVariable, QLatin1StringView file)
{
    return platform().hostPath(qEnvironmentVariable(folderVariable) + file);
}

void disable(const SearchProgram &program)
{
    if (!QFile::exists(hostFile("WinDir", program.file)))
        return;
    // One that an update left behind.
    if (const QString former = hostFile("WinDir", program.disabledFile); QFile::exists(former))
        QFile::remove(former);
    const QString file = qEnvironmentVariable("windir") + program.file;
    const QString user = qEnvironmentVariable("USERDOMAIN") + u'\\' + qEnvironmentVariable("USERNAME");
    // The rights first: the rename must come right behind the kill, since the system starts the program anew.
    runTweakTool(u"takeown"_s, {u"/f"_s, file});
    runTweakTool(u"icacls"_s, {file, u"/grant:r"_s, user + u":F"_s, u"/L"_s});
    runTweakTool(u"taskkill"_s, {u"/im"_s, program.process, u"/f"_s, u"/t"_s});
    QFile::rename(hostFile("windir", program.file), hostFile("windir", program.disabledFile));
}

void enable(const SearchProgram &program)
{
    if (!QFile::exists(hostFile("WinDir", program.disabledFile)))
        return;
    QFile::rename(hostFile("windir", program.disabledFile), hostFile("windir", program.file));
    // The owner stays who it is.
    runTweakTool(u"icacls"_s, {qEnvironmentVariable("windir") + program.file, u"/reset"_s});
}

} // namespace

void setSearchTweak(bool apply, const QString &winName)
{
    const auto program = std::find_if(std::begin(programs), std::end(programs), [&winName](const SearchProgram &each) {
        return winName.contains(each.generation);
    });
    if (program != std::end(programs))
        apply ? disable(*program) : enable(*program);
}
