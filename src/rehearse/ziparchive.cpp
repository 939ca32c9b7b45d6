// SPDX-License-Identifier: GPL-3.0-or-later

#include "ziparchive.h"

#include "console/programinterruption.h"
#include "machine/machineerror.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QStringDecoder>

#include <minizip/unzip.h>
#include <minizip/zip.h>

#include <algorithm>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype blockSize = qsizetype{64} * 1024;
constexpr uLong namesAreUtf8 = 1 << 11; // these two are bits of an entry's flags
constexpr uLong isEncrypted = 1;
constexpr uLong madeOnUnix = 3 << 8;
constexpr uLong longestName = 4096; // bytes

[[noreturn]] void fail(const QString &name, const QString &reason)
{
    throw MachineError{u"%1: %2"_s.arg(name, reason)};
}

QIODevice &deviceOf(voidpf stream)
{
    return *static_cast<QIODevice *>(stream);
}

/** The library reads and writes by these: it would open files by names that Windows has no letters for. */
zlib_filefunc64_def functionsOf(QIODevice &device)
{
    zlib_filefunc64_def functions{};
    functions.opaque = &device;
    functions.zopen64_file = [](voidpf opaque, const void *, int) { return opaque; };
    functions.zread_file = [](voidpf, voidpf stream, void *bytes, uLong count) {
        return static_cast<uLong>(
            qMax(qint64{0}, deviceOf(stream).read(static_cast<char *>(bytes), static_cast<qint64>(count))));
    };
    functions.zwrite_file = [](voidpf, voidpf stream, const void *bytes, uLong count) {
        return static_cast<uLong>(
            qMax(qint64{0}, deviceOf(stream).write(static_cast<const char *>(bytes), static_cast<qint64>(count))));
    };
    functions.ztell64_file = [](voidpf, voidpf stream) { return static_cast<ZPOS64_T>(deviceOf(stream).pos()); };
    functions.zseek64_file = [](voidpf, voidpf stream, ZPOS64_T offset, int origin) {
        QIODevice &of = deviceOf(stream);
        const qint64 start = origin == ZLIB_FILEFUNC_SEEK_CUR   ? of.pos()
                             : origin == ZLIB_FILEFUNC_SEEK_END ? of.size()
                                                                : 0;
        const quint64 place = static_cast<quint64>(start) + offset;
        return place <= static_cast<quint64>(of.size()) && of.seek(static_cast<qint64>(place)) ? 0L : -1L;
    };
    functions.zclose_file = [](voidpf, voidpf) { return 0; };
    functions.zerror_file = [](voidpf, voidpf) { return 0; };
    return functions;
}

void addEntry(zipFile zip, const QString &name, QIODevice *content)
{
    const zip_fileinfo info{}; // without a time: the same files give the same archive
    const bool isLarge = content != nullptr && content->size() >= 0xFFFFFFFF;
    if (zipOpenNewFileInZip4_64(zip, name.toUtf8().constData(), &info, nullptr, 0, nullptr, 0, nullptr,
                                content == nullptr ? 0 : Z_DEFLATED, Z_DEFAULT_COMPRESSION, 0, -MAX_WBITS, 8,
                                Z_DEFAULT_STRATEGY, nullptr, 0, madeOnUnix, namesAreUtf8, isLarge ? 1 : 0)
        != ZIP_OK)
        fail(name, u"can't be packed"_s);
    while (content != nullptr && !content->atEnd()) {
        stopIfInterrupted();
        const QByteArray block = content->read(blockSize);
        if (block.isEmpty())
            fail(name, content->errorString());
        if (zipWriteInFileInZip(zip, block.constData(), static_cast<unsigned>(block.size())) != ZIP_OK)
            fail(name, u"can't be packed"_s);
    }
    if (zipCloseFileInZip(zip) != ZIP_OK)
        fail(name, u"can't be packed"_s);
}

/** A file or folder of an archive. */
struct Entry
{
    QString name;
    bool isLink = false;
    bool isEncrypted = false;
    quint64 size = 0; ///< as the archive has it
};

/** The one at which the library stands. */
Entry entryOf(unzFile zip)
{
    unz_file_info64 info{};
    QByteArray name(longestName, '\0');
    if (unzGetCurrentFileInfo64(zip, &info, name.data(), longestName, nullptr, 0, nullptr, 0) != UNZ_OK)
        throw MachineError{u"the archive is damaged"_s};
    if (info.size_filename >= longestName)
        throw MachineError{u"a name in the archive is longer than %1 bytes"_s.arg(longestName)};
    name.truncate(static_cast<qsizetype>(info.size_filename));
    QStringDecoder decode(QStringConverter::Utf8);
    QString text = decode(name);
    if (decode.hasError())
        text = QString::fromLatin1(name); // an old program's; what of it isn't ASCII isn't a machine's
    constexpr uLong kindOfFile = 0xF000;
    constexpr uLong link = 0xA000;
    return {text, (info.version & 0xFF00) == madeOnUnix && (info.external_fa >> 16 & kindOfFile) == link,
            (info.flag & isEncrypted) != 0, info.uncompressed_size};
}

/** Whether a name can be put below a folder on any system, and stays there. */
bool isBelow(const QString &name)
{
    // Windows takes these for devices, in whatever folder and with whatever ending.
    static const QRegularExpression device(u"^(con|prn|aux|nul|com[0-9]|lpt[0-9])(\\..*)?$"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression forbidden(u"[\\x00-\\x1f<>:\"\\\\|?*]"_s);

    const QStringList parts = (name.endsWith(u'/') ? name.chopped(1) : name).split(u'/');
    return std::all_of(parts.cbegin(), parts.cend(), [](const QString &part) {
        return !part.isEmpty() && !part.endsWith(u'.') && !part.endsWith(u' ') && !part.contains(forbidden)
               && !part.contains(device);
    });
}

bool isWanted(const QString &name, const QStringList &patterns)
{
    const QString first = name.section(u'/', 0, 0);
    return std::any_of(patterns.cbegin(), patterns.cend(), [&first](const QString &pattern) {
        return QRegularExpression(QRegularExpression::wildcardToRegularExpression(pattern)).match(first).hasMatch();
    });
}

/** Writes the file at which the library stands; what may still be written is taken off. */
void unpackFile(unzFile zip, const Entry &entry, const QString &path, qint64 &mayWrite)
{
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        fail(entry.name, QFileInfo::exists(path) ? u"twice in the archive"_s : u"can't be written"_s);
    if (unzOpenCurrentFile(zip) != UNZ_OK)
        fail(entry.name, u"can't be unpacked"_s);
    QByteArray block(blockSize, Qt::Uninitialized);
    int count = 0;
    quint64 written = 0;
    while ((count = unzReadCurrentFile(zip, block.data(), static_cast<unsigned>(block.size()))) > 0) {
        stopIfInterrupted();
        mayWrite -= count;
        written += static_cast<quint64>(count);
        if (mayWrite < 0)
            throw MachineError{u"more in the archive than this program takes"_s};
        if (file.write(block.constData(), count) != count)
            fail(entry.name, file.errorString());
    }
    // The checksum is looked at here, but of a file that ends too early.
    if (unzCloseCurrentFile(zip) != UNZ_OK || count < 0 || written != entry.size)
        fail(entry.name, u"damaged"_s);
    if (!file.flush())
        fail(entry.name, file.errorString());
}

/** Calls for each entry, with the library at it. */
template<typename Visit>
void forEachEntry(unzFile zip, Visit visit)
{
    int step = unzGoToFirstFile(zip);
    for (; step == UNZ_OK; step = unzGoToNextFile(zip)) {
        stopIfInterrupted();
        visit(entryOf(zip));
    }
    if (step != UNZ_END_OF_LIST_OF_FILE)
        throw MachineError{u"the archive is damaged"_s};
}

/** The folder in the archive, with a slash at its end, in which the file of that name lies, nearest to the top. */
QString folderOf(unzFile zip, const Unpacking &unpacking)
{
    std::optional<QString> folder;
    qsizetype entries = 0;
    forEachEntry(zip, [&](const Entry &entry) {
        if (++entries > unpacking.mostEntries)
            throw MachineError{u"more in the archive than this program takes"_s};
        const QString place = entry.name.chopped(qMin(entry.name.size(), unpacking.landmark.size()));
        if ((u'/' + entry.name).endsWith(u'/' + unpacking.landmark) && (!folder || place.size() < folder->size()))
            folder = place;
    });
    if (!folder)
        throw MachineError{u"there is no %1 in the archive"_s.arg(unpacking.landmark)};
    return *folder;
}

} // namespace

QStringList packFolder(const QString &folder, const QString &top, QIODevice &archive, const ProgressCallback &progress)
{
    zlib_filefunc64_def functions = functionsOf(archive);
    std::unique_ptr<void, int (*)(zipFile)> zip(zipOpen2_64(nullptr, APPEND_STATUS_CREATE, nullptr, &functions),
                                                [](zipFile each) { return zipClose(each, nullptr); });
    if (!zip)
        throw MachineError{archive.errorString()};
    QStringList paths;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext())
        paths.append(walk.next());
    paths.sort();
    QStringList links;
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const QFileInfo info(paths.at(i));
        const QString name = top + paths.at(i).sliced(folder.size());
        if (progress)
            progress(name, static_cast<int>(i), static_cast<int>(paths.size()));
        if (info.isSymbolicLink() || info.isJunction()) {
            links.append(name);
        } else if (info.isDir()) {
            addEntry(zip.get(), name + u'/', nullptr);
        } else {
            QFile file(paths.at(i));
            if (!file.open(QIODevice::ReadOnly))
                fail(name, file.errorString());
            addEntry(zip.get(), name, &file);
        }
    }
    // The list of all entries is written here.
    if (zipClose(zip.release(), nullptr) != ZIP_OK)
        throw MachineError{u"the archive can't be written: %1"_s.arg(archive.errorString())};
    return links;
}

QStringList unpackFolder(QIODevice &archive, const Unpacking &unpacking, const ProgressCallback &progress)
{
    zlib_filefunc64_def functions = functionsOf(archive);
    const std::unique_ptr<void, int (*)(unzFile)> zip(unzOpen2_64(nullptr, &functions), unzClose);
    if (!zip)
        throw MachineError{u"not a ZIP file"_s};
    const QString top = folderOf(zip.get(), unpacking);
    QStringList unwanted;
    qint64 mayWrite = unpacking.mostBytes;
    int done = 0;
    forEachEntry(zip.get(), [&](const Entry &entry) {
        if (progress)
            progress(entry.name, done, done + 1);
        ++done;
        const QString name = entry.name.startsWith(top) ? entry.name.sliced(top.size()) : QString();
        if (name.isEmpty() ? !top.startsWith(entry.name) : !isWanted(name, unpacking.wanted)) {
            unwanted.append(entry.name);
            return;
        }
        if (name.isEmpty())
            return;
        if (entry.isLink)
            fail(entry.name, u"a link, where a machine has none"_s);
        if (entry.isEncrypted)
            fail(entry.name, u"encrypted"_s);
        if (!isBelow(name))
            fail(entry.name, u"not a name that a machine's files may have"_s);
        const QString path = unpacking.folder + u'/' + name;
        if (!name.endsWith(u'/'))
            unpackFile(zip.get(), entry, path, mayWrite);
        else if (!QDir().mkpath(path))
            fail(entry.name, u"can't be made"_s);
    });
    return unwanted;
}
