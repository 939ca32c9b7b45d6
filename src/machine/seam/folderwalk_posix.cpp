// SPDX-License-Identifier: GPL-3.0-or-later
// The walk with the system's own calls, as fast as the disk gives the entries; QDirIterator takes half as long again.

#include "folderwalk.h"

#include <QFile>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <vector>

namespace {

struct Entry
{
    QByteArray name;
    qint64 size = 0;
    bool isFolder = false;
};

struct FolderCloser
{
    void operator()(DIR *folder) const { closedir(folder); }
};

bool isDots(const char *name)
{
    return name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0));
}

/** All entries at once, so that a deep tree doesn't hold a file open for each of its levels. */
std::vector<Entry> entriesOf(const QByteArray &path, const std::function<bool(const QString &)> &leadsOut)
{
    std::vector<Entry> entries;
    const std::unique_ptr<DIR, FolderCloser> folder(opendir(path.constData()));
    if (!folder)
        return entries;
    const int descriptor = dirfd(folder.get());
    while (const dirent *each = readdir(folder.get())) {
        struct stat status = {};
        if (isDots(each->d_name) || fstatat(descriptor, each->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            continue;
        const bool isFolder = S_ISDIR(status.st_mode);
        if (S_ISLNK(status.st_mode)
            && (leadsOut(QFile::decodeName(path + '/' + each->d_name))
                || fstatat(descriptor, each->d_name, &status, 0) != 0))
            continue;
        if (S_ISREG(status.st_mode) || S_ISDIR(status.st_mode))
            entries.push_back({each->d_name, S_ISDIR(status.st_mode) ? 0 : status.st_size, isFolder});
    }
    return entries;
}

/** False where the visitor has had enough. */
bool walkBelow(const QByteArray &folder, const QString &folderPath, const QSet<QString> &hidden,
               const std::function<bool(const QString &)> &leadsOut,
               const std::function<bool(const WalkEntry &)> &visit)
{
    for (const Entry &entry : entriesOf(folder, leadsOut)) {
        const QString path = folderPath + u'/' + QFile::decodeName(entry.name);
        if (!hidden.isEmpty() && hidden.contains(path))
            continue;
        if (!visit({path, entry.size}))
            return false;
        if (entry.isFolder && !walkBelow(folder + '/' + entry.name, path, hidden, leadsOut, visit))
            return false;
    }
    return true;
}

} // namespace

void walkFolder(const QString &folder, const QSet<QString> &hidden,
                const std::function<bool(const QString &)> &leadsOut,
                const std::function<bool(const WalkEntry &)> &visit)
{
    walkBelow(QFile::encodeName(folder), folder, hidden, leadsOut, visit);
}
