// SPDX-License-Identifier: GPL-3.0-or-later
// Folders for what is needed only while a program runs. They may hold a copy of somebody's PC, so that one whose
// program was killed is removed by a later one.

#pragma once

#include <QTemporaryDir>

#include <memory>

/**
 * A new folder that goes with the object. It is held as long as that is there, and has a mark in it, by both of which
 * removeLeftovers() knows it.
 */
class WorkFolder
{
public:
    /** One in the folder for temporary files. */
    WorkFolder();
    /** One beside a machine, on its disk, hidden. */
    explicit WorkFolder(const QString &parent);
    ~WorkFolder();
    Q_DISABLE_COPY_MOVE(WorkFolder)

    bool isValid() const { return folder_.isValid(); }
    QString errorString() const { return folder_.errorString(); }
    QString path() const { return folder_.path(); }
    QString filePath(const QString &name) const { return folder_.filePath(name); }

private:
    void hold();

    QTemporaryDir folder_;
    std::shared_ptr<void> hold_;
};

/**
 * Removes work folders that lie in a folder and whose program is gone: those that have the mark, belong to the user of
 * this process, and are held by nobody. A link of such a name stays, and so does what it leads to. What can't be
 * removed stays, without a word. On Windows a process with administrator rights neither marks nor removes any.
 */
void removeLeftovers(const QString &parent);
/** Those in the folder for temporary files. */
void removeLeftovers();
