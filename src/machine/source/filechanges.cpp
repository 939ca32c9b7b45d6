// SPDX-License-Identifier: GPL-3.0-or-later

#include "filechanges.h"

#include "machine/machineerror.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

FileChanges::~FileChanges()
{
    if (committed_) {
        for (const SetAside &entry : setAside_)
            QFile::remove(entry.aside);
        return;
    }
    for (auto path = made_.crbegin(); path != made_.crend(); ++path) {
        if (QFileInfo(*path).isDir())
            QDir().rmdir(*path);
        else
            QFile::remove(*path);
    }
    for (const SetAside &entry : setAside_)
        QFile::rename(entry.aside, entry.file);
}

void FileChanges::makeFolder(const QString &folder)
{
    QStringList missing;
    for (QString path = QDir::cleanPath(folder); !QFileInfo(path).isDir(); path = QFileInfo(path).path()) {
        if (QFileInfo::exists(path))
            throw MachineError{u"%1: a file, not a folder"_s.arg(path)};
        missing.prepend(path);
    }
    for (const QString &path : missing) {
        if (!QDir().mkdir(path))
            throw MachineError{u"%1: the folder can't be made"_s.arg(path)};
        made_.append(path);
    }
}

void FileChanges::write(const QString &file, const QByteArray &content)
{
    makeFolder(QFileInfo(file).path());
    if (QFileInfo(file).isDir())
        throw MachineError{u"%1: a folder, not a file"_s.arg(file)};
    if (QFileInfo::exists(file) && !made_.contains(file)) {
        const QString aside = file + u".before-import"_s;
        QFile::remove(aside);
        if (!QFile::rename(file, aside))
            throw MachineError{u"%1: can't be replaced"_s.arg(file)};
        setAside_.append({file, aside});
    }
    made_.append(file);
    QFile output(file);
    if (!output.open(QIODevice::WriteOnly) || output.write(content) != content.size() || !output.flush())
        throw MachineError{u"%1: %2"_s.arg(file, output.errorString())};
}

void FileChanges::commit()
{
    committed_ = true;
}
