// SPDX-License-Identifier: GPL-3.0-or-later
// What the subcommands share.

#include "subcommands.h"

#include "console/programinterruption.h"
#include "machine/machine.h"
#include "machine/workfolder.h"
#include "platform/processground.h"
#include "wayback/waybackscript.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QSaveFile>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr const Subcommand *subcommands[] = {
    &newSubcommand,    &captureSubcommand, &listSubcommand, &runSubcommand,  &undoSubcommand,   &previewSubcommand,
    &verifySubcommand, &diffSubcommand,    &guiSubcommand,  &tourSubcommand, &exportSubcommand, &importSubcommand,
};

constexpr QLatin1StringView standardOutput("-");

/** Lets it end what it runs itself; a console's Ctrl-C has reached it anyway. */
void end(QProcess &process)
{
    constexpr int patience = 5000;

    process.terminate();
    if (!process.waitForFinished(patience)) {
        process.kill();
        process.waitForFinished(-1);
    }
}

[[noreturn]] void fail(const QString &path, const QString &reason)
{
    throw Failure{ExitJobFailed, u"%1: %2"_s.arg(QDir::toNativeSeparators(path), reason)};
}

/** A saved file takes the place of what was there, and a device mustn't be replaced. */
bool isDevice(const QString &path)
{
    const QFileInfo info(absolutePath(path));
    return info.exists() && !info.isFile() && !info.isDir();
}

void open(QFileDevice &file, const QString &path)
{
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        fail(path, file.errorString());
}

void write(QFileDevice &file, const QString &path, const QByteArray &report)
{
    if (file.write(report) != report.size())
        fail(path, file.errorString());
}

} // namespace

std::span<const Subcommand *const> allSubcommands()
{
    return subcommands;
}

std::unique_ptr<Machine> openMachine(const QString &folder)
{
    const QString place = absoluteFolder(folder);
    removeLeftovers(QFileInfo(place).path());
    try {
        return Machine::open(place);
    } catch (const MachineError &error) {
        throw Failure{ExitMachineUnreadable, error.message};
    }
}

std::unique_ptr<Machine> openMachineToChange(const QString &folder)
{
    const QString place = absoluteFolder(folder);
    const QFileInfo database(place + u"/machine.sqlite"_s);
    if (database.exists() && !(database.isWritable() && QFileInfo(place).isWritable()))
        throw Failure{ExitJobFailed, u"%1: the machine is read-only"_s.arg(QDir::toNativeSeparators(place))};
    return openMachine(folder);
}

qint64 requireKey(const RegistryStore &store, const QString &path)
{
    if (!RegistryStore::isHivePath(path))
        throw Failure{
            ExitBadArguments,
            u"'%1' has no root: a key begins with HKLM, HKCU, HKCR or HKU, such as HKCU\\Software"_s.arg(path)};
    const std::optional<qint64> key = store.find(path);
    if (!key)
        throw Failure{ExitBadArguments, u"there is no key '%1'"_s.arg(path)};
    return *key;
}

QString absoluteFolder(const QString &folder)
{
    return QDir::cleanPath(absolutePath(folder));
}

bool isSteered(const Arguments &arguments)
{
    const bool steered = arguments.has(steeredOption.name);
    if (steered)
        watchStandardInput();
    return steered;
}

void print(const QString &text)
{
    print(text.toUtf8());
}

void print(const QByteArray &utf8)
{
    std::fwrite(utf8.constData(), 1, static_cast<std::size_t>(utf8.size()), stdout);
}

bool waitForEnd(QProcess &process)
{
    process.waitForStarted(-1);
    while (process.state() != QProcess::NotRunning && !process.waitForFinished(interruptionSlice)) {
        if (isInterrupted())
            end(process);
    }
    stopIfInterrupted();
    return process.error() != QProcess::FailedToStart && process.exitStatus() == QProcess::NormalExit;
}

void checkReportFile(const QString &path)
{
    if (path.isEmpty())
        throw UsageError{u"a report needs a file's name"_s};
    // What waits for a reader would wait here already.
    if (path == standardOutput || isDevice(path))
        return;
    QSaveFile file(absolutePath(path));
    open(file, path);
    file.cancelWriting();
}

void checkReportFiles(const QString &path)
{
    if (path == standardOutput || isDevice(path))
        fail(path, u"not a file"_s);
    checkReportFile(path);
}

void writeReportFile(const QString &path, const QByteArray &report)
{
    if (path == standardOutput) {
        print(report);
        return;
    }
    if (isDevice(path)) {
        QFile device(absolutePath(path));
        open(device, path);
        write(device, path, report);
        return;
    }
    QSaveFile file(absolutePath(path));
    open(file, path);
    write(file, path, report);
    if (!file.commit())
        fail(path, file.errorString());
}

void printWritten(const WrittenWayBack &wayBack)
{
    for (const QString &file : wayBack.files)
        print(file + u'\n');
    for (const QString &what : wayBack.leftOut)
        print(u"left out: %1\n"_s.arg(what));
}
