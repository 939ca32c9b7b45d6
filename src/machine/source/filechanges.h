// SPDX-License-Identifier: GPL-3.0-or-later
// Files that are written together or not at all.

#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

/** Writes files and makes folders on this computer; puts back what was there unless commit() is called. */
class FileChanges
{
public:
    FileChanges() = default;
    ~FileChanges();
    Q_DISABLE_COPY_MOVE(FileChanges)

    /** Makes a folder and those above it. Throws MachineError. */
    void makeFolder(const QString &folder);
    /** Throws MachineError. */
    void write(const QString &file, const QByteArray &content);
    void commit();

private:
    struct SetAside
    {
        QString file;
        QString aside;
    };

    QList<QString> made_; ///< in the order of making
    QList<SetAside> setAside_;
    bool committed_ = false;
};
