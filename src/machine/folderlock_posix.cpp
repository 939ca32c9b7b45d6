// SPDX-License-Identifier: GPL-3.0-or-later

#include "folderlock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Descriptor
{
    explicit Descriptor(int opened)
        : number(opened)
    {
    }
    ~Descriptor()
    {
        if (number >= 0)
            ::close(number);
    }
    Q_DISABLE_COPY_MOVE(Descriptor)

    int number;
};

/** Locks the folder itself: nothing is left in it, and nothing that lies in it can be in the way. */
std::shared_ptr<void> locked(const QString &folder, int operation)
{
    const auto opened =
        std::make_shared<Descriptor>(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened->number >= 0 && flock(opened->number, operation | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return nullptr;
    return opened;
}

} // namespace

std::shared_ptr<void> lockFolder(const QString &folder)
{
    return locked(folder, LOCK_EX);
}

std::shared_ptr<void> lockOwnFolder(const QString &folder)
{
    const auto opened = std::make_shared<Descriptor>(
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    struct stat status
    {
    };
    const bool isOwn = opened->number >= 0 && fstat(opened->number, &status) == 0 && status.st_uid == geteuid();
    if (!isOwn || flock(opened->number, LOCK_EX | LOCK_NB) != 0)
        return nullptr;
    return opened;
}

std::shared_ptr<void> holdFolder(const QString &folder)
{
    return locked(folder, LOCK_SH);
}
