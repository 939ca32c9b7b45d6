// SPDX-License-Identifier: GPL-3.0-or-later
// The walk on Windows, where QDirIterator gets names and sizes in one go.

#include "folderwalk.h"

#include <QDirIterator>

void walkFolder(const QString &folder, const QSet<QString> &hidden,
                const std::function<bool(const QString &)> &leadsOut,
                const std::function<bool(const WalkEntry &)> &visit)
{
    QDirIterator entries(folder, QDir::AllEntries | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QFileInfo info = entries.fileInfo();
        const QString path = info.filePath();
        const bool isLink = info.isSymbolicLink() || info.isJunction();
        if (hidden.contains(path) || (isLink && leadsOut(path)))
            continue;
        bool goOn = visit({path, info.isDir() ? 0 : info.size()});
        const auto inner = [&goOn, &visit](const WalkEntry &entry) {
            goOn = visit(entry);
            return goOn;
        };
        if (goOn && info.isDir() && !isLink && !info.isSymLink())
            walkFolder(path, hidden, leadsOut, inner);
        if (!goOn)
            return;
    }
}
