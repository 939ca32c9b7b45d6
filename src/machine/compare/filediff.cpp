// SPDX-License-Identifier: GPL-3.0-or-later

#include "machinediff.h"

#include "console/programinterruption.h"
#include "machine/machine.h"
#include "platform/windowsfacts.h"
#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>

#include <array>

using namespace Qt::StringLiterals;

namespace {

/** Contents are compared up to this size; of what is larger there is mostly nothing to be read. */
constexpr qint64 largestContent = qint64{1024} * 1024;

struct Entry
{
    QString shownPath;
    QString hostPath;
    bool folder = false;
    bool emptyFolder = false;
    qint64 size = 0;
    QString target{}; ///< of a link, which isn't followed
};

/** Files and folders by their path without regard to case. */
using Tree = QMap<QString, Entry>;

/** Where a link leads, told alike for a machine and its copy. */
QString targetOf(const QFileInfo &link, const QString &machine)
{
    const QString target = link.symLinkTarget();
    return target.startsWith(machine + u'/') ? target.mid(machine.size() + 1) : target;
}

/** Everything below a folder of a machine. @p shown is the folder's own name in what is shown. */
Tree treeOf(const Machine &machine, const QString &name, const QString &shown)
{
    constexpr auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

    const QString folder = machine.folder() + u'/' + name;
    const QHash<QString, qint64> sizes = machine.givenSizes();
    Tree tree;
    QDirIterator walk(folder, everything, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        stopIfInterrupted();
        walk.next();
        const QFileInfo info = walk.fileInfo();
        Entry entry;
        entry.hostPath = info.filePath();
        entry.shownPath = shown + entry.hostPath.mid(folder.size()).replace(u'/', u'\\');
        const bool isLink = info.isSymbolicLink();
        entry.folder = info.isDir() && !isLink;
        entry.emptyFolder = entry.folder && QDir(entry.hostPath).isEmpty(everything);
        if (isLink)
            entry.target = targetOf(info, machine.folder());
        else if (!entry.folder)
            entry.size = std::max(info.size(), sizes.value(machine.pathKey(entry.hostPath)));
        tree.insert(foldName(entry.shownPath), entry);
    }
    return tree;
}

/** Names of the folders that hold drives, "drive_c" and so on. */
QStringList drivesOf(const QStringList &machineFolders)
{
    QStringList drives;
    for (const QString &folder : machineFolders)
        drives += QDir(folder).entryList({u"drive_*"_s}, QDir::Dirs, QDir::Name);
    drives.removeDuplicates();
    return drives;
}

std::optional<QByteArray> contentOf(const Entry &entry)
{
    if (!entry.target.isEmpty())
        return entry.target.toUtf8();
    QFile file(entry.hostPath);
    if (entry.size > largestContent || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

QString sizeText(const Entry &entry)
{
    if (!entry.target.isEmpty())
        return u"link to "_s + entry.target;
    return entry.folder ? u"folder"_s : u"%1 bytes"_s.arg(entry.size);
}

QString contentText(const Entry &entry, const QByteArray &content)
{
    const QByteArray sum = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex().first(8);
    return sizeText(entry) + u", sha256 "_s + QString::fromLatin1(sum);
}

/** The row of an entry that both machines have, if it differs. */
std::optional<DiffRow> compareBoth(const Entry &before, const Entry &after)
{
    DiffRow row{DiffKind::File, before.shownPath, QString(), sizeText(before), sizeText(after)};
    if (row.before != row.after)
        return row;
    if (before.folder)
        return std::nullopt;
    const std::optional<QByteArray> left = contentOf(before);
    const std::optional<QByteArray> right = contentOf(after);
    if (left == right)
        return std::nullopt;
    row.before = left ? contentText(before, *left) : u"unreadable"_s;
    row.after = right ? contentText(after, *right) : u"unreadable"_s;
    return row;
}

void compareTrees(const Tree &before, const Tree &after, QList<DiffRow> &rows)
{
    Tree all = after;
    all.insert(before);
    for (auto it = all.begin(); it != all.end(); ++it) {
        stopIfInterrupted();
        const auto left = before.find(it.key());
        const auto right = after.find(it.key());
        if (left != before.end() && right != after.end()) {
            if (const std::optional<DiffRow> row = compareBoth(*left, *right))
                rows.append(*row);
        } else if (!it->folder || it->emptyFolder) {
            DiffRow row{DiffKind::File, it->shownPath, QString(), QString(), QString()};
            (left != before.end() ? row.before : row.after) = sizeText(*it);
            rows.append(row);
        }
    }
}

struct AttributeWord
{
    quint32 bit;
    QLatin1StringView name;
};

// clang-format off
constexpr std::array attributeWords{
    AttributeWord{AttributeReadOnly,   "readonly"_L1},
    AttributeWord{AttributeHidden,     "hidden"_L1},
    AttributeWord{AttributeSystem,     "system"_L1},
    AttributeWord{AttributeArchive,    "archive"_L1},
    AttributeWord{0x00080,             "normal"_L1},
    AttributeWord{0x00100,             "temporary"_L1},
    AttributeWord{0x00200,             "sparse"_L1},
    AttributeWord{0x00400,             "reparse-point"_L1},
    AttributeWord{0x00800,             "compressed"_L1},
    AttributeWord{0x01000,             "offline"_L1},
    AttributeWord{AttributeNotIndexed, "not-indexed"_L1},
    AttributeWord{0x04000,             "encrypted"_L1},
    AttributeWord{0x20000,             "no-scrub"_L1},
    AttributeWord{0x80000,             "pinned"_L1},
};
// clang-format on

/** "hidden system", with bits that have no word as one number at the end. */
QString attributeText(quint32 word)
{
    QStringList words;
    quint32 rest = word & ~AttributeFolder;
    for (const AttributeWord &attribute : attributeWords) {
        if (rest & attribute.bit)
            words.append(attribute.name);
        rest &= ~attribute.bit;
    }
    if (rest != 0)
        words.append(u"0x%1"_s.arg(rest, 0, 16));
    return words.isEmpty() ? u"plain"_s : words.join(u' ');
}

/** Windows paths of everything that has an attribute which must have been set. */
QMap<QString, QString> pathsWithAttributes(const Machine &machine)
{
    QMap<QString, QString> paths;
    for (const AttributeWord &attribute : attributeWords) {
        for (const QString &host : machine.pathsWithAttribute(attribute.bit)) {
            const QString path = machine.windowsPath(host);
            paths.insert(foldName(path), path);
        }
    }
    return paths;
}

void compareAttributes(const Machine &before, const Machine &after, QList<DiffRow> &rows)
{
    QMap<QString, QString> paths = pathsWithAttributes(after);
    paths.insert(pathsWithAttributes(before));
    for (const QString &path : paths) {
        // A file on one side only has its row already.
        if (!QFileInfo::exists(before.hostPath(path)) || !QFileInfo::exists(after.hostPath(path)))
            continue;
        const quint32 left = before.attributes(path);
        const quint32 right = after.attributes(path);
        if (left != right)
            rows.append({DiffKind::Attribute, path, QString(), attributeText(left), attributeText(right)});
    }
}

} // namespace

void compareFiles(const Machine &before, const Machine &after, QList<DiffRow> &rows)
{
    for (const QString &drive : drivesOf({before.folder(), after.folder()})) {
        const QString shown = drive.mid(6).toUpper() + u':';
        compareTrees(treeOf(before, drive, shown), treeOf(after, drive, shown), rows);
    }
    const QString program = u"program"_s;
    compareTrees(treeOf(before, program, program), treeOf(after, program, program), rows);
    compareAttributes(before, after, rows);
}
