// SPDX-License-Identifier: GPL-3.0-or-later
// Files that may come from anybody: a machine's database, an archive, a journal, a profile, and paths that a machine
// names.

#include "cli/profile.h"
#include "fuzztarget.h"
#include "journal/journalstore.h"
#include "machine/compare/machinediff.h"
#include "machine/database.h"
#include "machine/machine.h"
#include "rehearse/ziparchive.h"

#include <QBuffer>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace {

/** Some bytes of a good file are other ones: four of each input are a place and a byte. */
QByteArray changed(QByteArray good, const QByteArray &input)
{
    for (qsizetype at = 0; at + 3 < input.size(); at += 4) {
        const auto unit = [&](qsizetype offset) { return qsizetype(quint8(input.at(at + offset))); };
        good[(unit(0) << 16 | unit(1) << 8 | unit(2)) % good.size()] = input.at(at + 3);
    }
    return good;
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    FUZZ_VERIFY(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    FUZZ_VERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

/** A machine in a folder of its own, with something of each table. */
class Pc
{
public:
    Pc()
    {
        const auto machine = Machine::create(folder());
        RegistryStore &registry = machine->registry();
        registry.setValue(*registry.make(u"HKEY_CURRENT_USER\\Software\\a\\b"_s),
                          {u"v"_s, RegistryType::String, registryText(u"a text"_s)});
        machine->setRunning(u"svc"_s, true);
        machine->setTask({u"\\task"_s, u"<Task><Settings/></Task>"_s});
        machine->setWmiInstances(u"Win32_BIOS"_s, {{}});
        machine->setAttributes(u"C:\\a"_s, 2);
        machine->setFault(u"sc"_s, {.output = u"no"_s, .repeat = 2});
        machine->database().execute("PRAGMA wal_checkpoint(TRUNCATE)");
    }

    QString folder() const { return temporary_.filePath(u"machine"_s); }
    QString database() const { return folder() + u"/machine.sqlite"_s; }
    QString beside(const QString &name) const { return temporary_.filePath(name); }

private:
    QTemporaryDir temporary_;
};

void removeLogs(const QString &database)
{
    for (const QLatin1StringView end : {"-wal"_L1, "-shm"_L1, "-journal"_L1})
        QFile::remove(database + end);
}

} // namespace

/** A machine of a stranger is refused, or can be looked at as a whole. */
FUZZ_TARGET(machinefile)
{
    static const Pc pc;
    static const QByteArray good = contentOf(pc.database());
    removeLogs(pc.database());
    write(pc.database(), changed(good, input));
    try {
        const auto machine = Machine::open(pc.folder());
        compareMachines(*machine, *machine);
        machine->setRunning(u"other"_s, false);
        machine->registry().make(u"HKEY_CURRENT_USER\\Software\\c"_s);
    } catch (const MachineError &error) {
        FUZZ_VERIFY(!error.message.contains(u'\n'));
    }
}

/** A journal of a stranger is refused, or can be read as a whole. */
FUZZ_TARGET(journalfile)
{
    static const QTemporaryDir folder;
    static const QString file = folder.filePath(u"changes.sqlite"_s);
    static const bool isMade = [] {
        JournalStore store(file, Durability::ProcessEnd);
        Session session;
        session.what = u"Optimize"_s;
        const qint64 id = store.beginSession(session);
        Note note;
        note.session = id;
        note.item = Item{ItemKind::Value, u"HKEY_CURRENT_USER\\a"_s, u"v"_s};
        store.add(id, {note});
        store.endSession(id, SessionState::Finished);
        return true;
    }();
    Q_UNUSED(isMade)
    static const QByteArray good = contentOf(file);
    removeLogs(file);
    write(file, changed(good, input));
    try {
        readJournal(file);
        JournalStore store(file, Durability::ProcessEnd);
        store.notesSince(0);
    } catch (const MachineError &error) {
        FUZZ_VERIFY(!error.message.contains(u'\n'));
    }
}

/** A profile is told its mistakes, each with its place in a line of its own, or can be gone by. */
FUZZ_TARGET(archive)
{
    constexpr qint64 most = 64 * 1024;

    const QTemporaryDir place;
    const QString folder = place.filePath(u"deep/machine"_s);
    QByteArray bytes = input;
    QBuffer archive(&bytes);
    FUZZ_VERIFY(archive.open(QIODevice::ReadOnly));
    try {
        unpackFolder(archive, {folder, u"machine.sqlite"_s, {u"machine.sqlite"_s, u"drive_?"_s}, most, 50});
    } catch (const MachineError &error) {
        FUZZ_VERIFY(!error.message.isEmpty());
    }
    qint64 written = 0;
    QDirIterator walk(place.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        FUZZ_VERIFY(!walk.fileInfo().isSymbolicLink());
        FUZZ_VERIFY(path == place.filePath(u"deep"_s) || (path + u'/').startsWith(folder + u'/'));
        written += walk.fileInfo().isFile() ? walk.fileInfo().size() : 0;
    }
    FUZZ_VERIFY(written <= most);
}

FUZZ_TARGET(profile)
{
    static const QRegularExpression told(uR"(^input:[1-9][0-9]*:[1-9][0-9]*: [^\n]+$)"_s);
    ProfileMistakes mistakes;
    const Profile profile = parseProfile(input, u"input"_s, mistakes);
    for (const QString &mistake : std::as_const(mistakes))
        FUZZ_VERIFY(told.match(mistake).hasMatch());
    if (!mistakes.isEmpty())
        return;
    for (const QStringList &names : {profile.services, profile.tasks, profile.packages, profile.startup}) {
        for (const QString &name : names)
            FUZZ_VERIFY(!profile.isLeftAlone(name));
    }
    for (const QString &name : profile.never)
        FUZZ_VERIFY(profile.isLeftAlone(name));
    for (auto each = profile.tweaks.cbegin(); each != profile.tweaks.cend(); ++each)
        FUZZ_VERIFY(!boxOfTweak(each.key()).isEmpty());
}

namespace {

/** Makes the links that an input asks for, two lines each: its name, and what it leads to, where "H" is outside. */
void makeLinks(const QString &folder, const QString &outside, const QStringList &lines)
{
    QDir(folder).removeRecursively();
    QDir().mkpath(folder);
    for (qsizetype i = 0; i + 1 < lines.size(); i += 2) {
        QString target = lines.at(i + 1);
        if (target.startsWith(u'H'))
            target.replace(0, 1, outside);
        if (!lines.at(i).contains(u'/'))
            QFile::link(target, folder + u'/' + lines.at(i));
    }
}

/** Reads a file as the program does, and adds nothing to it; one that wasn't there is gone again. */
QByteArray readAndWrite(const QString &path)
{
    const bool isNew = !QFileInfo::exists(path);
    QFile file(path);
    const QByteArray content = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    file.close();
    if (file.open(QIODevice::Append) && isNew)
        file.remove();
    return content;
}

} // namespace

/** No path leads out of a machine, whatever links and zeros are in it. The last line of the input is the path. */
FUZZ_TARGET(paths)
{
    static const Pc pc;
    static const bool isLinked = [] {
        const QString drive = pc.folder() + u"/drive_c/"_s;
        QDir().mkpath(drive + u"in/Deep"_s);
        QDir().mkpath(pc.beside(u"host"_s));
        write(pc.beside(u"host/file"_s), "of the host");
        QFile::link(pc.beside(u"host"_s), drive + u"o"_s);
        QFile::link(pc.beside(u"host/file"_s), drive + u"in/F"_s);
        QFile::link(u"in"_s, drive + u"l"_s);
        QFile::link(u"../../../host"_s, drive + u"in/Deep/u"_s);
        QFile::link(pc.beside(u"host/none"_s), drive + u"n"_s);
        return true;
    }();
    Q_UNUSED(isLinked)
    static const auto machine = Machine::open(pc.folder());
    static const QString home = QFileInfo(pc.folder()).canonicalFilePath() + u'/';

    QStringList lines = QString::fromUtf8(input).split(u'\n');
    const QString asked = lines.takeLast();
    makeLinks(pc.folder() + u"/drive_c/t"_s, pc.beside(u"host"_s), lines);
    for (const QString &path : {asked, u"C:\\"_s + asked, pc.folder() + u'/' + asked}) {
        const QString host = machine->hostPath(path);
        FUZZ_VERIFY(!host.contains(QChar(0)));
        FUZZ_VERIFY((QDir::cleanPath(host) + u'/').startsWith(pc.folder() + u'/'));
        // What is there, or would be made, by the system's own look at it.
        QString there = host;
        while (!QFileInfo::exists(there) && !QFileInfo(there).isSymbolicLink())
            there = QFileInfo(there).path();
        FUZZ_VERIFY((QFileInfo(there).canonicalFilePath() + u'/').startsWith(home));
        machine->windowsPath(host);
        FUZZ_VERIFY(!readAndWrite(host).contains("of the host"));
        FUZZ_VERIFY(QDir(pc.beside(u"host"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot)
                    == QStringList{u"file"_s});
    }
}
