// SPDX-License-Identifier: GPL-3.0-or-later

#include "workfolder.h"

#include "folderlock.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

const QString inTemporaryFiles = u"kestrune-rehearse-"_s;
const QString besideAMachine = u".kestrune-"_s;
const QString mark = u"work-in-progress"_s;

QString pattern(const QString &parent, const QString &start)
{
    return QDir(parent).filePath(start + u"XXXXXX"_s);
}

} // namespace

WorkFolder::WorkFolder()
    : folder_(pattern(QDir::tempPath(), inTemporaryFiles))
{
    hold();
}

WorkFolder::WorkFolder(const QString &parent)
    : folder_(pattern(parent, besideAMachine))
{
    hold();
}

WorkFolder::~WorkFolder()
{
    // While it is held: a program that starts now would take it for a leftover, and both would remove it. What is open
    // stays on some systems until the hold is given up, and goes with the folder then.
    if (isValid())
        QDir(path()).removeRecursively();
    hold_.reset();
}

/** The mark comes last: a folder with one is held, or its program is gone. One that can't be held gets none. */
void WorkFolder::hold()
{
    if (!isValid())
        return;
    hold_ = lockOwnFolder(path());
    QFile file(filePath(mark));
    if (hold_)
        file.open(QIODevice::WriteOnly);
}

void removeLeftovers(const QString &parent)
{
    const QFileInfoList folders = QDir(parent).entryInfoList(
        {inTemporaryFiles + u"??????"_s, besideAMachine + u"??????"_s}, QDir::Dirs | QDir::Hidden | QDir::NoSymLinks);
    for (const QFileInfo &folder : folders) {
        const QFileInfo marked(folder.filePath() + u'/' + mark);
        const bool isMarked = marked.isFile() && !marked.isSymbolicLink() && marked.size() == 0;
        if (folder.isJunction() || !isMarked)
            continue;
        // Nobody takes it up again, so it is nobody's once it could be held.
        if (lockOwnFolder(folder.filePath()))
            QDir(folder.filePath()).removeRecursively();
    }
}

void removeLeftovers()
{
    removeLeftovers(QDir::tempPath());
}
