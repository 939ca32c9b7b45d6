// SPDX-License-Identifier: GPL-3.0-or-later
// A rehearsal machine: its files, found as Windows finds them, and their attribute words.

#include "machine.h"

#include "database.h"
#include "platform/windowsfacts.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

#ifdef Q_OS_WIN
constexpr Qt::CaseSensitivity hostCase = Qt::CaseInsensitive;
#else
constexpr Qt::CaseSensitivity hostCase = Qt::CaseSensitive;
#endif
// Where it doesn't, that a file is there doesn't mean that it is spelled so.
constexpr bool hostTellsCase = hostCase == Qt::CaseSensitive;

// Before the key of a path, in the table of what is known of the machine: one made earlier has no table of its own for
// it.
const QString givenSize = u"size "_s;

bool isSeparator(QChar unit)
{
    return unit == u'\\' || unit == u'/';
}

/** The names of a path, without empty ones and "."; ".." takes one away and never leads out. */
QStringList namesOf(const QString &path)
{
    QStringList names;
    for (const QString &name : QString(path).replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts)) {
        if (name == u".." && !names.isEmpty())
            names.removeLast();
        else if (name != u"." && name != u"..")
            names << name;
    }
    return names;
}

bool isPresent(const QString &path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

bool isLink(const QFileInfo &entry)
{
    return entry.isSymbolicLink() || entry.isJunction();
}

/** The entry of a folder by its name in another case; the first in order where there are several. */
QString entryLike(const QString &folder, const QString &name)
{
    const QString fold = foldName(name);
    QString found;
    QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        const QString entry = entries.fileName();
        if (entry.size() == fold.size() && foldName(entry) == fold && (found.isEmpty() || entry < found))
            found = entry;
    }
    return found;
}

} // namespace

/** "/Windows/explorer.exe", empty for a path of another kind. */
QStringView Machine::belowDriveC(const QString &hostPath) const
{
    constexpr QStringView drive = u"/drive_c/";
    const QStringView path(hostPath);
    if (!path.startsWith(folder_) || !path.sliced(folder_.size()).startsWith(drive))
        return {};
    return path.sliced(folder_.size() + drive.size() - 1);
}

Machine::Location Machine::locate(const QString &path) const
{
    const bool inside =
        path.startsWith(folder_, hostCase) && (path.size() == folder_.size() || isSeparator(path.at(folder_.size())));
    if (inside) {
        QStringList names = namesOf(path.mid(folder_.size()));
        const QString top = names.isEmpty() ? QString() : names.takeFirst();
        return {top, names};
    }
    QString rest = path;
    if (rest.startsWith(u"\\\\?\\"))
        rest.remove(0, 4);
    if (rest.startsWith(u"\\\\")) // another computer's share
        return {u"drive_unc"_s, namesOf(rest)};
    if (rest.size() >= 2 && rest.at(1) == u':' && rest.at(0).isLetter())
        return {u"drive_"_s + rest.at(0).toLower(), namesOf(rest.mid(2))};
    return {u"drive_c"_s, namesOf(rest)};
}

QString Machine::hostPath(const QString &windowsPath) const
{
    // Below a file there is nothing, whoever asks.
    const QString outside = folder_ + u"/machine.sqlite/outside"_s;
    // The system ends a name at a zero, which a look at the file doesn't.
    if (windowsPath.contains(QChar(0)))
        return outside;
    const QString path = placeOf(windowsPath);
    return leadsOut(path) ? outside : path;
}

QFileInfoList Machine::linksOnTheWay(const QString &hostPath) const
{
    QFileInfoList links;
    for (qsizetype end = folder_.size(); end >= 0;) {
        end = hostPath.indexOf(u'/', end + 1);
        // One look at each; below what isn't there, there is no link.
        if (const QFileInfo entry(end < 0 ? hostPath : hostPath.first(end)); isLink(entry))
            links << entry;
    }
    return links;
}

bool Machine::leadsOut(const QString &hostPath) const
{
    const QFileInfoList links = linksOnTheWay(hostPath);
    return std::any_of(links.begin(), links.end(), [this](const QFileInfo &link) {
        // One without a target might get one outside.
        return !link.canonicalFilePath().startsWith(QFileInfo(folder_).canonicalFilePath() + u'/');
    });
}

/** Where a file lies, whatever links are on the way. */
QString Machine::placeOf(const QString &windowsPath) const
{
    // A file that a walk named stays itself, even one with a backslash in its name.
    const bool below = hostTellsCase && windowsPath.startsWith(folder_ + u'/');
    if (below && !QStringView(windowsPath).sliced(folder_.size()).contains(u"/.") && isPresent(windowsPath))
        return QDir::cleanPath(windowsPath);

    const Location location = locate(windowsPath);
    QString path = location.top.isEmpty() ? folder_ : folder_ + u'/' + location.top;
    const QString exact = (QStringList(path) + location.names).join(u'/');
    if (hostTellsCase && isPresent(exact))
        return exact;
    for (qsizetype i = 0; i < location.names.size(); ++i) {
        const QString &name = location.names.at(i);
        if (hostTellsCase && isPresent(path + u'/' + name)) {
            path += u'/' + name;
            continue;
        }
        // What a link out leads to isn't even looked at.
        const QString entry = leadsOut(path) ? QString() : entryLike(path, name);
        if (entry.isEmpty())
            return (QStringList(path) + location.names.mid(i)).join(u'/');
        path += u'/' + entry;
    }
    return path;
}

QString Machine::windowsPath(const QString &hostPath) const
{
    // Nearly all that is asked for is named by a walk over drive C, and needs no tidying.
    const QStringView below = belowDriveC(hostPath);
    if (!below.isEmpty() && !below.contains(u'\\') && !below.contains("/."_L1) && !below.contains("//"_L1)
        && !below.endsWith(u'/'))
        return u"C:"_s + below.toString().replace(u'/', u'\\');

    const Location location = locate(hostPath);
    const QString drive = location.top.startsWith(u"drive_") ? location.top.mid(6) : QString();
    if (drive.size() != 1)
        return hostPath;
    return drive.toUpper() + u":\\"_s + location.names.join(u'\\');
}

QString Machine::pathKey(const QString &path) const
{
    return foldName(windowsPath(path));
}

quint32 Machine::attributeWord(const QString &path, bool isFolder) const
{
    auto query = database_->query("SELECT word FROM attribute WHERE fold = ?");
    const bool stored = query.bind(pathKey(path)).next();
    if (isFolder)
        return (stored ? quint32(query.integer(0)) : 0) | AttributeFolder;
    return stored ? quint32(query.integer(0)) & ~AttributeFolder : quint32(AttributeArchive);
}

quint32 Machine::attributes(const QString &windowsPath) const
{
    return attributeWord(windowsPath, QFileInfo(hostPath(windowsPath)).isDir());
}

std::optional<quint32> Machine::attributesOfFile(const QString &hostPath) const
{
    const QFileInfo file(hostPath);
    if (!file.exists())
        return std::nullopt;
    return attributeWord(hostPath, file.isDir());
}

void Machine::setAttributes(const QString &windowsPath, quint32 word)
{
    const QString path = this->windowsPath(windowsPath);
    database_
        ->query("INSERT INTO attribute (fold, path, word) VALUES (?, ?, ?) "
                "ON CONFLICT (fold) DO UPDATE SET word = excluded.word")
        .bind(foldName(path))
        .bind(path)
        .bind(word)
        .run();
}

qint64 Machine::fileSize(const QString &path) const
{
    auto query = database_->query("SELECT value FROM meta WHERE name = ?");
    const qint64 given = query.bind(givenSize + pathKey(path)).next() ? query.integer(0) : 0;
    return std::max(given, QFileInfo(hostPath(path)).size());
}

void Machine::setFileSize(const QString &path, qint64 size)
{
    const QString name = givenSize + pathKey(path);
    if (size > QFileInfo(hostPath(path)).size())
        database_->query("INSERT OR REPLACE INTO meta VALUES (?, ?)").bind(name).bind(size).run();
    else
        database_->query("DELETE FROM meta WHERE name = ?").bind(name).run();
}

void Machine::copyFileSize(const QString &from, const QString &to)
{
    database_->query("INSERT OR REPLACE INTO meta SELECT ?, value FROM meta WHERE name = ?")
        .bind(givenSize + pathKey(to))
        .bind(givenSize + pathKey(from))
        .run();
}

QHash<QString, qint64> Machine::givenSizes() const
{
    QHash<QString, qint64> sizes;
    auto query = database_->query("SELECT name, value FROM meta WHERE name GLOB 'size *'");
    while (query.next())
        sizes.insert(query.text(0).sliced(givenSize.size()), query.integer(1));
    return sizes;
}

QStringList Machine::pathsWithAttribute(quint32 bits) const
{
    QStringList windowsPaths;
    {
        auto query = database_->query("SELECT path FROM attribute WHERE (word & ?1) = ?1 ORDER BY fold");
        query.bind(bits);
        while (query.next())
            windowsPaths << query.text(0);
    }
    QStringList hostPaths;
    for (const QString &path : windowsPaths)
        hostPaths << hostPath(path);
    return hostPaths;
}
