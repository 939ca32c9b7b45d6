// SPDX-License-Identifier: GPL-3.0-or-later

#include "machine.h"

#include "console/programinterruption.h"
#include "database.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fail(const QFileDevice &file)
{
    throw MachineError{u"%1: %2"_s.arg(QDir::toNativeSeparators(file.fileName()), file.errorString())};
}

struct MachineFolders
{
    QString source;
    QString copy;
};

void makeFolder(const QString &folder)
{
    if (!QDir().mkpath(folder))
        throw MachineError{u"%1: the folder can't be made"_s.arg(QDir::toNativeSeparators(folder))};
}

/** Copies a file; where it is empty for long, as on a machine made earlier, nothing is written. */
void copyFile(const QString &from, const QString &to)
{
    constexpr qint64 blockSize = qint64{64} * 1024;

    QFile source(from);
    QFile copy(to);
    if (!source.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        if (!source.exists())
            return; // another process has removed it meanwhile
        fail(source);
    }
    if (!copy.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || !copy.resize(source.size()))
        fail(copy);
    const QByteArray zeros(blockSize, 0);
    for (qint64 offset = 0; offset < source.size(); offset = source.pos()) {
        stopIfInterrupted();
        const QByteArray block = source.read(blockSize);
        if (block.isEmpty())
            fail(source);
        if (block != zeros.first(block.size()) && (!copy.seek(offset) || copy.write(block) != block.size()))
            fail(copy);
    }
}

/** One to a file of the machine leads to the copy's own. */
void copyLink(const QString &from, const QString &to, const MachineFolders &folders)
{
    std::error_code error;
    std::filesystem::path target = std::filesystem::read_symlink(QFileInfo(from).filesystemFilePath(), error);
    const QString named = QString::fromStdU16String(target.generic_u16string());
    if (named.startsWith(folders.source + u'/'))
        target = (folders.copy + named.mid(folders.source.size())).toStdU16String();
    if (!error)
        std::filesystem::create_symlink(target, QFileInfo(to).filesystemFilePath(), error);
    if (error)
        throw MachineError{
            u"%1: %2"_s.arg(QDir::toNativeSeparators(from), QString::fromLocal8Bit(error.message().c_str()))};
}

void copyTree(const QString &from, const QString &to, const MachineFolders &folders)
{
    makeFolder(to);
    QDirIterator walk(from, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        stopIfInterrupted();
        const QString path = walk.next();
        const QString place = to + path.mid(from.size());
        if (walk.fileInfo().isSymbolicLink())
            copyLink(path, place, folders);
        else if (walk.fileInfo().isDir())
            makeFolder(place);
        else
            copyFile(path, place);
    }
}

/** A snapshot, whatever other processes write meanwhile. */
void copyDatabase(const Machine &source, const QString &folder)
{
    try {
        source.database().query("VACUUM INTO ?").bind(folder + u"/machine.sqlite"_s).run();
        // Which gives a database that makes a file of its own at each change, and looks for one at each question.
        Database(folder + u"/machine.sqlite"_s).execute("PRAGMA journal_mode = WAL");
    } catch (const MachineError &error) {
        if (error.damaged)
            throw;
        // Most often the disk of the copy is full.
        throw MachineError{u"no copy can be made in %1: %2"_s.arg(QDir::toNativeSeparators(folder), error.message)};
    }
}

} // namespace

void copyMachine(const Machine &source, const QString &folder)
{
    makeFolder(folder);
    copyDatabase(source, folder);
    const QDir machine(source.folder());
    const QStringList tops = machine.entryList({u"drive_*"_s, u"program"_s}, QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &top : tops)
        copyTree(machine.filePath(top), folder + u'/' + top, {source.folder(), folder});
}
