// SPDX-License-Identifier: GPL-3.0-or-later

#include "reportfile.h"

#include "subcommands.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fail(const QString &path, const QString &reason)
{
    throw Failure{ExitJobFailed, u"%1: %2"_s.arg(QDir::toNativeSeparators(path), reason)};
}

/** A saved file takes the place of what was there, and a device mustn't be replaced. */
bool isDevice(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() && !info.isFile() && !info.isDir();
}

void open(QFileDevice &file)
{
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        fail(file.fileName(), file.errorString());
}

void write(QFileDevice &file, const QByteArray &report)
{
    if (file.write(report) != report.size())
        fail(file.fileName(), file.errorString());
}

} // namespace

void checkReportFile(const QString &path)
{
    if (path.isEmpty())
        throw UsageError{u"a report needs a file's name"_s};
    // What waits for a reader would wait here already.
    if (isDevice(path))
        return;
    QSaveFile file(path);
    open(file);
    file.cancelWriting();
}

void checkReportFiles(const QString &path)
{
    if (isDevice(path))
        fail(path, u"is no file"_s);
    checkReportFile(path);
}

void writeReportFile(const QString &path, const QByteArray &report)
{
    if (isDevice(path)) {
        QFile device(path);
        open(device);
        write(device, report);
        return;
    }
    QSaveFile file(path);
    open(file);
    write(file, report);
    if (!file.commit())
        fail(path, file.errorString());
}
