// SPDX-License-Identifier: GPL-3.0-or-later
// Each part of a name is opened in the folder that is open already, so that nothing can be put in its way meanwhile.

#include "filebelow.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <utility>

namespace {

/** What open() gave. */
class Descriptor
{
public:
    explicit Descriptor(int number)
        : number_(number)
    {
    }
    ~Descriptor() { close(); }
    Descriptor(Descriptor &&other) noexcept
        : number_(std::exchange(other.number_, -1))
    {
    }
    Descriptor &operator=(Descriptor &&other) noexcept
    {
        std::swap(number_, other.number_);
        return *this;
    }
    Q_DISABLE_COPY(Descriptor)

    int get() const { return number_; }
    bool isOpen() const { return number_ >= 0; }
    /** False where what was written didn't get through. */
    bool close() { return number_ >= 0 && ::close(std::exchange(number_, -1)) == 0; }

private:
    int number_;
};

/** The file's own name, and the open folder that it is in. */
struct Place
{
    Descriptor folder;
    QByteArray name;
};

Place placeOf(const QString &folder, const QString &name)
{
    Descriptor at(open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    QStringList parts = name.split(u'/');
    const QByteArray last = QFile::encodeName(parts.takeLast());
    for (const QString &part : std::as_const(parts)) {
        const QByteArray below = QFile::encodeName(part);
        mkdirat(at.get(), below.constData(), 0777); // mostly it is there
        at = Descriptor(openat(at.get(), below.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    }
    return {std::move(at), last};
}

bool writeAll(const Descriptor &file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = write(file.get(), bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno != EINTR)
            return false;
        bytes = bytes.sliced(std::max<ssize_t>(written, 0));
    }
    return true;
}

/** Writes a file that wasn't there; after a failure it isn't either. */
bool writeNew(const Descriptor &folder, const QByteArray &name, const QByteArray &content)
{
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    Descriptor file(openat(folder.get(), name.constData(), flags, 0666));
    if (!file.isOpen())
        return false;
    if (writeAll(file, content) && file.close())
        return true;
    unlinkat(folder.get(), name.constData(), 0);
    return false;
}

/** What is there, which may be a link; nothing where nothing is. */
std::optional<struct stat> whatIsThere(const Place &place)
{
    struct stat found;
    const int result = fstatat(place.folder.get(), place.name.constData(), &found, AT_SYMLINK_NOFOLLOW);
    return result == 0 ? std::optional(found) : std::nullopt;
}

} // namespace

bool writeFileBelow(const QString &folder, const QString &name, const QByteArray &content, IfThere ifThere)
{
    const Place place = placeOf(folder, name);
    const int at = place.folder.get();
    if (ifThere == IfThere::Replace) {
        unlinkat(at, place.name.constData(), 0);
        return writeNew(place.folder, place.name, content);
    }
    const std::optional<struct stat> former = whatIsThere(place);
    if (ifThere == IfThere::Keep && former)
        return false;
    // Under another name until it is whole
    const QByteArray making = place.name + ".new";
    unlinkat(at, making.constData(), 0);
    if (!writeNew(place.folder, making, content))
        return false;
    if (former && S_ISREG(former->st_mode))
        fchmodat(at, making.constData(), former->st_mode & 07777, 0);
    const unsigned int flags = ifThere == IfThere::Keep ? RENAME_NOREPLACE : 0;
    if (renameat2(at, making.constData(), at, place.name.constData(), flags) == 0)
        return true;
    unlinkat(at, making.constData(), 0);
    return false;
}

bool appendLineBelow(const QString &folder, const QString &name, const QString &line)
{
    constexpr int flags = O_WRONLY | O_APPEND | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const Place place = placeOf(folder, name);
    Descriptor file(openat(place.folder.get(), place.name.constData(), flags, 0666));
    struct stat found;
    // A second name is a link as well.
    if (!file.isOpen() || fstat(file.get(), &found) != 0 || !S_ISREG(found.st_mode) || found.st_nlink != 1)
        return false;
    return writeAll(file, line.toUtf8() + '\n') && file.close();
}
