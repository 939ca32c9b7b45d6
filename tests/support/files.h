// SPDX-License-Identifier: GPL-3.0-or-later
// Whole files, read and written at once.

#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>

/** Writes a file, with the folders above it. */
inline void writeFile(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s can't be written", qPrintable(path));
}

/** What stands in a file; nothing where it can't be read. */
inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
