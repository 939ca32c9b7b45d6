// SPDX-License-Identifier: GPL-3.0-or-later

#include "folderlock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
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

std::shared_ptr<void> holdFolder(const QString &folder)
{
    return locked(folder, LOCK_SH);
}
