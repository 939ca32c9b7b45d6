// SPDX-License-Identifier: GPL-3.0-or-later

#include "capturesteps.h"
#include "platform/platform.h"
#include "platform/windowsfacts.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSet>

using namespace Qt::StringLiterals;

namespace {

struct FileRow
{
    const char *folderVariable;
    QLatin1StringView file;
};

// clang-format off
constexpr FileRow fileRows[] = {
    {"windir",       "\\System32\\cmd.exe"_L1},
    {"windir",       "\\system32\\WindowsPowerShell\\v1.0\\powershell.exe"_L1},
    {"windir",       "\\System32\\OneDriveSetup.exe"_L1},
    {"windir",       "\\SysWOW64\\OneDriveSetup.exe"_L1},
    {"LOCALAPPDATA", "\\Microsoft\\OneDrive\\OneDrive.exe"_L1},
    {"windir",       "\\SystemApps\\MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost.exe"_L1},
    {"windir",       "\\SystemApps\\MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost_disable.exe"_L1},
    {"windir",       "\\SystemApps\\Microsoft.Windows.Search_cw5n1h2txyewy\\SearchApp.exe"_L1},
    {"windir",       "\\SystemApps\\Microsoft.Windows.Search_cw5n1h2txyewy\\SearchApp_disable.exe"_L1},
    {"systemdrive",  "\\hiberfil.sys"_L1},
};
// clang-format on
constexpr FileRow encoderConfig{"ProgramFiles(x86)", "\\RivaTuner Statistics Server\\Profiles\\config"_L1};

/** Empty where the variable is: below no folder there is no file. */
QString pathOf(const FileRow &row)
{
    const QString folder = qEnvironmentVariable(row.folderVariable);
    return folder.isEmpty() ? QString() : folder + row.file;
}

/** The program of a command in double quotes; others are never looked for. */
QString quotedProgram(const QString &command)
{
    return command.section(u'"', 1, 1);
}

/** As the list of packages takes it out of its command. */
QString oneDriveUninstaller(const SystemReader &system)
{
    const QString key =
        u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\OneDriveSetup.exe"_s;
    const QString command = registryTextOf(system, key, u"UninstallString"_s);
    return command.isEmpty() ? QString() : command.section(u".exe"_s, 0, 0).remove(u'"') + u".exe"_s;
}

QString radeonInstaller(const SystemReader &system)
{
    const QString folder = registryTextOf(system, WindowsKey::radeonSoftware, u"InstallDir"_s);
    return folder.isEmpty() ? QString() : folder + u"\\Bin64\\AMDSoftwareInstaller.exe"_s;
}

std::optional<FileDescription> describe(const QString &path)
{
    const QString host = platform().hostPath(path);
    const QFileInfo info(host);
    if (!info.exists())
        return std::nullopt;
    FileDescription file;
    file.path = path;
    file.folder = info.isDir();
    if (!file.folder)
        file.size = platform().fileSize(host);
    if (const quint32 word = platform().fileAttributes(host); word != invalidAttributes)
        file.attributes = word;
    return file;
}

/** The content of the file in which the encoder is switched, which Optimize writes anew. */
std::optional<QByteArray> contentOf(const QString &path)
{
    constexpr qint64 most = qint64{1024} * 1024; // a file of settings has some hundred bytes
    QFile file(platform().hostPath(path));
    if (path != pathOf(encoderConfig) || file.size() > most || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

} // namespace

bool isWholePath(const QString &path)
{
    static const QRegularExpression whole(u"^[A-Za-z]:\\\\[^:*?\"<>|]+$"_s);
    return whole.match(path).hasMatch() && !path.contains("\\.."_L1) && !path.endsWith(u'\\');
}

QStringList filesOfProgram(const SystemReader &system, const QStringList &commands)
{
    QStringList paths{pathOf(encoderConfig), oneDriveUninstaller(system), radeonInstaller(system)};
    for (const FileRow &row : fileRows)
        paths.append(pathOf(row));
    for (const QString &command : commands)
        paths.append(quotedProgram(command));
    return paths;
}

QList<FileDescription> captureFiles(const QStringList &windowsPaths)
{
    QList<FileDescription> files;
    QSet<QString> seen;
    for (QString path : windowsPaths) {
        path.replace(u'/', u'\\');
        if (!isWholePath(path) || seen.contains(foldName(path)))
            continue;
        seen.insert(foldName(path));
        if (std::optional<FileDescription> file = describe(path)) {
            file->content = contentOf(path);
            files.append(*file);
        }
    }
    return files;
}

QList<FileDescription> captureFolders(const std::function<void()> &goOn)
{
    constexpr int step = 500; // files

    QList<FileDescription> files;
    QString folder = qEnvironmentVariable("temp");
    folder.replace(u'/', u'\\');
    if (isWholePath(folder))
        files.append({folder, true, {}, {}, {}, {}});

    const QString store = qEnvironmentVariable("windir") + u"\\WinSxS"_s;
    qint64 bytes = 0;
    int count = 0;
    platform().walk(store, [&](const WalkEntry &entry) {
        if (++count % step == 0)
            goOn();
        bytes += entry.size;
        return true;
    });
    if (isWholePath(store) && bytes > 0)
        files.append({store + u"\\all-components"_s, false, bytes, {}, {}, {}});
    return files;
}
