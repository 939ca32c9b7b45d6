// SPDX-License-Identifier: GPL-3.0-or-later

#include "windowsplatform.h"

#include "changelock.h"
#include "heldfile.h"
#include "nativekey.h"
#include "platform/filebelow.h"
#include "platform/programname.h"
#include "processtoken.h"
#include "systemfolders.h"
#include "systemobjects.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
#include <QThread>

#include <psapi.h>
#include <shellapi.h>

#include <span>

using namespace Qt::StringLiterals;

namespace {

struct ModuleCloser
{
    void operator()(HMODULE module) const { FreeLibrary(module); }
};
using Module = std::unique_ptr<std::remove_pointer_t<HMODULE>, ModuleCloser>;

/** The file name of a process's program; empty where it is unknown. */
QString programName(DWORD processId)
{
    const Handle process(OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, processId));
    HMODULE program = nullptr; // the first of a process's modules
    DWORD needed = 0;
    if (!process || !K32EnumProcessModules(process.get(), &program, sizeof(program), &needed))
        return {};
    wchar_t name[MAX_PATH];
    const DWORD length = K32GetModuleBaseNameW(process.get(), program, name, MAX_PATH);
    return QString::fromWCharArray(name, static_cast<qsizetype>(length));
}

/** A stock tool's own file: by its name Windows would look in the program's and in the current folder first. */
QString systemProgram(const QString &name)
{
    const bool isPowerShell = name.compare("powershell"_L1, Qt::CaseInsensitive) == 0;
    return (isPowerShell ? powerShellFolder() : systemFolder()) + u'\\' + name;
}

/** With its drive or computer. What is relative to the current folder, or to that of a drive, depends on the starter.
 */
bool isFullPath(const QString &path)
{
    const auto isSeparator = [&path](qsizetype at) { return path.at(at) == u'\\' || path.at(at) == u'/'; };
    return isDrivePath(path) || (path.size() > 2 && isSeparator(0) && isSeparator(1));
}

/** Of a file or folder itself, whatever it leads to. */
bool isThereAndNoLink(const QString &path)
{
    const DWORD attributes = GetFileAttributesW(wide(path));
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0)
        return attributes != INVALID_FILE_ATTRIBUTES;
    // Files that are packed or lie elsewhere for other reasons have such marks too.
    WIN32_FIND_DATAW found;
    const HANDLE search = FindFirstFileW(wide(path), &found);
    if (search == INVALID_HANDLE_VALUE)
        return false;
    FindClose(search);
    return !IsReparseTagNameSurrogate(found.dwReserved0);
}

/** Whether a file lies in a folder that only the system's installers write to, as the stock tools do. */
bool isOfTheSystem(const QString &place)
{
    const qsizetype end = place.lastIndexOf(u'\\');
    // Behind a colon there would be a stream of a folder, which others may well write.
    if (end < 0 || place.indexOf(u':', end) >= 0)
        return false;
    for (const QString &folder : {systemFolder(), systemFolder32(), powerShellFolder()}) {
        if (place.first(end).compare(placeOfFile(folder), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

std::unique_ptr<RegistryKey> WindowsPlatform::openKey(const QString &path) const
{
    return std::make_unique<NativeKey>(path);
}

QList<RegistryValue> WindowsPlatform::registryValues(const QString &keyPath) const
{
    return WindowsReader().key(keyPath).values;
}

QString WindowsPlatform::hostPath(const QString &windowsPath) const
{
    return windowsPath;
}

bool WindowsPlatform::isOnFixedDrive(const QString &windowsPath) const
{
    const QString path = QDir::toNativeSeparators(windowsPath);
    if (!isDrivePath(path) || GetDriveTypeW(wide(path.first(3))) != DRIVE_FIXED)
        return false;
    // Part by part: asked for the whole, Windows would follow links on the way.
    for (qsizetype end = 3; end >= 0;) {
        end = path.indexOf(u'\\', end + 1);
        if (!isThereAndNoLink(end < 0 ? path : path.first(end)))
            return false;
    }
    return true;
}

QString WindowsPlatform::programFolder() const
{
    return QCoreApplication::applicationDirPath();
}

QString WindowsPlatform::resourceFolder() const
{
    return QCoreApplication::applicationDirPath();
}

bool WindowsPlatform::writeFile(const QString &folder, const QString &name, const QByteArray &content,
                                IfThere ifThere) const
{
    return writeFileBelow(folder, name, content, ifThere);
}

bool WindowsPlatform::appendLine(const QString &folder, const QString &name, const QString &line) const
{
    return appendLineBelow(folder, name, line);
}

void WindowsPlatform::walk(const QString &windowsPath, const std::function<bool(const WalkEntry &)> &visit) const
{
    // A bare drive would be read as that drive's current folder.
    const bool bareDrive = windowsPath.size() == 2 && windowsPath.endsWith(u':');
    QDirIterator entries(bareDrive ? windowsPath + u'/' : windowsPath, QDir::AllEntries | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const QFileInfo info = entries.fileInfo();
        if (!visit({path, info.isDir() ? 0 : info.size()}))
            return;
    }
}

quint32 WindowsPlatform::fileAttributes(const QString &file) const
{
    static_assert(invalidAttributes == INVALID_FILE_ATTRIBUTES);
    return GetFileAttributesW(wide(QDir::toNativeSeparators(file)));
}

void WindowsPlatform::setFileAttributes(const QString &file, quint32 word) const
{
    SetFileAttributesW(wide(QDir::toNativeSeparators(file)), word);
}

QString WindowsPlatform::programFile(const QString &program) const
{
    const QString named = withoutQuotes(program);
    const QString path = isBareName(named) ? systemProgram(named) : named;
    if (!isFullPath(path))
        return {};
    for (const QString &file : {path, path + u".exe"_s}) {
        if (QFileInfo(file).isFile())
            return file;
    }
    return {};
}

std::optional<AdmittedProgram> WindowsPlatform::admitProgram(const QString &program, const QStringList &) const
{
    const QString file = programFile(program);
    if (!isElevated())
        return AdmittedProgram{file, {}};
    if (const QString place = placeOfFile(file); isOfTheSystem(place))
        return AdmittedProgram{place, {}};
    const auto held = std::make_shared<HeldFile>(file);
    if (held->place().isEmpty() || !isSignedByMicrosoft(*held))
        return {};
    return AdmittedProgram{held->place(), held};
}

int WindowsPlatform::exitCode(qint64, int reported) const
{
    return reported;
}

bool WindowsPlatform::isElevated() const
{
    return isElevatedProcess();
}

std::shared_ptr<void> WindowsPlatform::lockOthersOut() const
{
    return lockChanges();
}

void WindowsPlatform::shellExecute(const ShellStart &start) const
{
    const QString file = QDir::toNativeSeparators(start.file);
    ShellExecuteW(nullptr, wide(start.verb), wide(file), start.parameters.isEmpty() ? nullptr : wide(start.parameters),
                  nullptr, SW_SHOW);
}

QStringList WindowsPlatform::processNames() const
{
    constexpr std::size_t room = 1024;
    DWORD ids[room];
    DWORD size = 0;
    if (!K32EnumProcesses(ids, sizeof(ids), &size))
        return {};
    QStringList names;
    for (const DWORD id : std::span(ids).first(size / sizeof(DWORD))) {
        if (id == 0) // the idle process
            continue;
        if (const QString name = programName(id); !name.isEmpty())
            names.append(name);
    }
    return names;
}

DllString WindowsPlatform::dllString(const QString &windowsPath, uint id) const
{
    // As data: loading it as code would run its start-up code, with this process's rights.
    const Module module(
        LoadLibraryExW(wide(windowsPath), nullptr, LOAD_LIBRARY_AS_DATAFILE | LOAD_LIBRARY_AS_IMAGE_RESOURCE));
    DllString result;
    result.loaded = module != nullptr;
    if (!module) {
        result.error = GetLastError();
        return result;
    }
    wchar_t buffer[2048];
    if (const int length = LoadStringW(module.get(), id, buffer, static_cast<int>(std::size(buffer))); length > 0)
        result.text = QString::fromWCharArray(buffer, length);
    return result;
}

void WindowsPlatform::pause(int milliseconds) const
{
    constexpr qint64 slice = 10;
    const QThread *thread = QThread::currentThread();
    for (const QDeadlineTimer deadline(milliseconds); !deadline.hasExpired() && !thread->isInterruptionRequested();)
        QThread::msleep(static_cast<unsigned long>(qMin(deadline.remainingTime(), slice)));
}
