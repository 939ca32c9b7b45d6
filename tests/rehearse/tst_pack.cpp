// SPDX-License-Identifier: GPL-3.0-or-later
// Rehearsal machines as one file: what comes back, how small it is, and archives that mean harm.

#include "machine/compare/machinediff.h"
#include "machine/machineerror.h"
#include "rehearse/ziparchive.h"
#include "support/rehearsing.h"
#include "support/smallmachine.h"
#include "support/suite.h"

#include <QBuffer>
#include <QDirIterator>
#include <QTest>

#include <minizip/zip.h>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 megabyte = 1024 * 1024;

/** A file of an archive, as whoever makes one by hand wishes it. */
struct Member
{
    QByteArray name;
    QByteArray content{};
    uLong attributes = 0; ///< the mode of a file on Unix is the upper half
};

QByteArray archiveOf(const QList<Member> &members)
{
    const QTemporaryDir place;
    const QByteArray path = place.filePath(u"archive.zip"_s).toLocal8Bit();
    zipFile zip = zipOpen64(path.constData(), APPEND_STATUS_CREATE);
    for (const Member &member : members) {
        zip_fileinfo info{};
        info.external_fa = member.attributes;
        zipOpenNewFileInZip4_64(zip, member.name.constData(), &info, nullptr, 0, nullptr, 0, nullptr, Z_DEFLATED, 9, 0,
                                -MAX_WBITS, 8, Z_DEFAULT_STRATEGY, nullptr, 0, 3 << 8, 1 << 11, 0);
        zipWriteInFileInZip(zip, member.content.constData(), static_cast<unsigned>(member.content.size()));
        zipCloseFileInZip(zip);
    }
    zipClose(zip, nullptr);
    return readFile(QString::fromLocal8Bit(path));
}

/** What is below a folder, links as such. */
QStringList namesBelow(const QString &folder)
{
    QStringList names;
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext())
        names.append(walk.next().sliced(folder.size() + 1));
    names.sort();
    return names;
}

/** A folder in a folder, so that what leads out of it is seen. */
class Target
{
public:
    /** Why the archive was refused; empty where it wasn't. */
    QString unpack(QByteArray archive, qint64 mostBytes = megabyte, qsizetype mostEntries = 100)
    {
        QBuffer buffer(&archive);
        if (!buffer.open(QIODevice::ReadOnly))
            return u"a buffer can't be opened"_s;
        const QStringList wanted{u"machine.sqlite"_s, u"drive_?"_s, u"program"_s};
        return errorOf([&] {
            unwanted_ = unpackFolder(buffer, {folder(), u"machine.sqlite"_s, wanted, mostBytes, mostEntries});
        });
    }

    QString folder() const { return place_.filePath(u"deep/er"_s); }
    QStringList unwanted() const { return unwanted_; }
    /** All names beside and above the folder. */
    QStringList outside() const
    {
        QStringList names = namesBelow(place_.path());
        names.removeIf([](const QString &name) { return name.startsWith("deep/er"_L1) || name == "deep"_L1; });
        return names;
    }

private:
    QTemporaryDir place_;
    QStringList unwanted_;
};

/** How long all files below a folder are for a program that follows links. */
qint64 sizeBelow(const QString &folder)
{
    qint64 size = 0;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        walk.next();
        size += walk.fileInfo().size();
    }
    return size;
}

} // namespace

class TestPack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comesBackWithAllThatBelongsToIt();
    void isSmallHoweverItIsCopied_data();
    void isSmallHoweverItIsCopied();
    void sameMachineGivesTheSameFile();
    void linksAreLeftOut();
    void placesAreChecked();

    void archivesOfOtherProgramsAreTaken();
    void whatIsNoPartOfAMachineIsLeftOut();
    void namesThatLeadOutAreRefused_data();
    void namesThatLeadOutAreRefused();
    void linksAreRefused();
    void whatIsThereTwiceIsRefused();
    void tooMuchIsRefused();
    void damageIsFound();
    void aForeignDatabaseIsNoMachine();
};

void TestPack::comesBackWithAllThatBelongsToIt()
{
    SmallMachine machine;
    copyMachine(*machine, machine.beside(u"before"_s));
    QCOMPARE(rehearse({u"run"_s, machine.folder(), u"svc-disable"_s, u"DiagTrack"_s}).exitCode, done);
    QVERIFY(QDir().mkpath(machine->driveFolder() + u"/empty/folder"_s));
    const QString file = machine.beside(u"packed.zip"_s);
    const Ended packed = rehearse({u"pack"_s, machine.folder(), file});
    QCOMPARE(packed.errors, QByteArray());
    QCOMPARE(packed.exitCode, done);
    QCOMPARE(packed.output, u"%1: %2 bytes\n"_s.arg(file).arg(QFileInfo(file).size()).toUtf8());

    const QString again = machine.beside(u"again"_s);
    const Ended unpacked = rehearse({u"unpack"_s, file, again});
    QCOMPARE(unpacked.output + unpacked.errors, QByteArray());
    QCOMPARE(unpacked.exitCode, done);
    QCOMPARE(rehearse({u"diff"_s, machine.folder(), again}).output, QByteArray());
    QVERIFY(QFileInfo(again + u"/drive_c/empty/folder"_s).isDir());
    QCOMPARE(readFile(again + u"/commands.log"_s), readFile(machine.folder() + u"/commands.log"_s));
    // The way back is in it, too.
    QCOMPARE(rehearse({u"undo"_s, again}).exitCode, done);
    QVERIFY(rehearse({u"list"_s, again, u"services"_s}).output
            == rehearse({u"list"_s, machine.beside(u"before"_s), u"services"_s}).output);
}

void TestPack::isSmallHoweverItIsCopied_data()
{
    QTest::addColumn<QString>("builtIn");
    for (const QString &name : QDir(builtProgram(u"machines"_s)).entryList(QDir::Dirs | QDir::NoDotAndDotDot))
        QTest::newRow(qPrintable(name)) << name;
}

void TestPack::isSmallHoweverItIsCopied()
{
    QFETCH(const QString, builtIn);
    const QTemporaryDir place;
    const QString machine = place.filePath(u"machine"_s);
    const QString file = place.filePath(u"machine.zip"_s);
    QCOMPARE(rehearse({u"new"_s, machine, u"--from"_s, builtIn}).exitCode, done);
    QVERIFY2(sizeBelow(machine) < 4 * megabyte, qPrintable(QString::number(sizeBelow(machine))));
    // A tool of it was run, and a job has changed something.
    QCOMPARE(rehearse({u"run"_s, machine, u"svc-disable"_s, u"Spooler"_s}).exitCode, done);
    QVERIFY2(sizeBelow(machine) < 8 * megabyte, qPrintable(QString::number(sizeBelow(machine))));
    QCOMPARE(rehearse({u"pack"_s, machine, file}).exitCode, done);
    QVERIFY2(QFileInfo(file).size() < 2 * megabyte, qPrintable(QString::number(QFileInfo(file).size())));
}

void TestPack::sameMachineGivesTheSameFile()
{
    SmallMachine machine;
    QCOMPARE(rehearse({u"pack"_s, machine.folder(), machine.beside(u"a.zip"_s)}).exitCode, done);
    QCOMPARE(rehearse({u"pack"_s, machine.folder(), machine.beside(u"b.zip"_s)}).exitCode, done);
    QVERIFY(readFile(machine.beside(u"a.zip"_s)) == readFile(machine.beside(u"b.zip"_s)));
}

void TestPack::linksAreLeftOut()
{
#ifndef Q_OS_UNIX
    QSKIP("links need a right of their own here");
#endif
    SmallMachine machine;
    writeFile(machine.beside(u"private.txt"_s), "of the computer that the machine lies on");
    QVERIFY(QFile::link(machine.beside(u"private.txt"_s), machine->driveFolder() + u"/link"_s));
    QVERIFY(QFile::link(machine.beside({}), machine->driveFolder() + u"/folder"_s));
    const QString file = machine.beside(u"packed.zip"_s);
    const Ended packed = rehearse({u"pack"_s, machine.folder(), file});
    QCOMPARE(packed.exitCode, done);
    QVERIFY(packed.output.startsWith("left out: machine/drive_c/folder, a link\nleft out: machine/drive_c/link, a "));
    QCOMPARE(rehearse({u"unpack"_s, file, machine.beside(u"again"_s)}).exitCode, done);
    QVERIFY(!QFileInfo::exists(machine.beside(u"again/drive_c/link"_s)));
}

void TestPack::placesAreChecked()
{
    SmallMachine machine;
    const QString file = machine.beside(u"packed.zip"_s);
    QCOMPARE(rehearse({u"pack"_s, machine.beside(u"none"_s), file}).exitCode, machineUnreadable);
    QVERIFY(!QFileInfo::exists(file));
    QVERIFY(rehearse({u"pack"_s, machine.folder(), machine.beside(u"no/such/folder.zip"_s)}).exitCode != done);
    QCOMPARE(rehearse({u"pack"_s, machine.folder(), file}).exitCode, done);

    QCOMPARE(rehearse({u"unpack"_s, machine.beside(u"none.zip"_s), machine.beside(u"x"_s)}).exitCode,
             machineUnreadable);
    QCOMPARE(rehearse({u"unpack"_s, machine.beside({}), machine.beside(u"x"_s)}).exitCode, machineUnreadable);
    const Ended occupied = rehearse({u"unpack"_s, file, machine.folder()});
    QCOMPARE(occupied.exitCode, jobFailed);
    QVERIFY(occupied.errors.contains("there is a machine already"));
    const QString other = machine.beside(u"other"_s);
    QCOMPARE(rehearse({u"new"_s, other}).exitCode, done);
    QCOMPARE(rehearse({u"unpack"_s, u"--force"_s, file, other}).exitCode, done);
    QCOMPARE(rehearse({u"diff"_s, machine.folder(), other}).exitCode, done);
}

void TestPack::archivesOfOtherProgramsAreTaken()
{
    // Without entries of folders, from the top or below one or two folders.
    for (const QByteArray &top : {QByteArray(), QByteArray("pc/"), QByteArray("pcs/Größe/")}) {
        Target target;
        QCOMPARE(target.unpack(archiveOf({{top + "program/log.txt", "a line"},
                                          {top + "machine.sqlite", "a database"},
                                          {top + "drive_c/Users/Ö/x.txt", "x"}})),
                 QString());
        QCOMPARE(target.unwanted(), QStringList());
        QCOMPARE(readFile(target.folder() + u"/machine.sqlite"_s), QByteArray("a database"));
        QCOMPARE(readFile(target.folder() + u"/program/log.txt"_s), QByteArray("a line"));
        QCOMPARE(readFile(target.folder() + u"/drive_c/Users/Ö/x.txt"_s), QByteArray("x"));
    }
}

void TestPack::whatIsNoPartOfAMachineIsLeftOut()
{
    Target target;
    QCOMPARE(target.unpack(archiveOf({{"pc/machine.sqlite", "a database"},
                                      {"pc/tools/sc", "a program"},
                                      {"other/machine.sqlite.txt", "x"},
                                      {"readme.txt", "x"}})),
             QString());
    QCOMPARE(target.unwanted(), QStringList({u"pc/tools/sc"_s, u"other/machine.sqlite.txt"_s, u"readme.txt"_s}));
    QCOMPARE(namesBelow(target.folder()), QStringList{u"machine.sqlite"_s});
}

void TestPack::namesThatLeadOutAreRefused_data()
{
    QTest::addColumn<QByteArray>("name");
    for (const char *name : {"program/../../x", "program/../x", "program/./x", "program//x", "drive_c/..\\..\\x",
                             "drive_c/C:x", "drive_c/a:stream", "drive_c/nul", "drive_c/COM1.txt", "drive_c/a\nb",
                             "drive_c/a.", "drive_c/a ", "drive_c/a*", "drive_c/<x>"})
        QTest::newRow(name) << QByteArray(name);
}

void TestPack::namesThatLeadOutAreRefused()
{
    QFETCH(const QByteArray, name);
    Target target;
    const QString refused = target.unpack(archiveOf({{"machine.sqlite", "a database"}, {name, "x"}}));
    QVERIFY2(refused.endsWith(u"not a name that a machine's files may have"_s), qPrintable(refused));
    QCOMPARE(target.outside(), QStringList());
    // As the top of a machine such a name isn't used at all.
    Target below;
    QCOMPARE(below.unpack(archiveOf({{name + "/machine.sqlite", "a database"}})), QString());
    QCOMPARE(namesBelow(below.folder()), QStringList{u"machine.sqlite"_s});
    QCOMPARE(below.outside(), QStringList());
}

void TestPack::linksAreRefused()
{
    constexpr uLong link = 0xA1FFUL << 16;
    Target target;
    const QString refused = target.unpack(
        archiveOf({{"machine.sqlite", "a database"}, {"drive_c/out", "../../..", link}, {"drive_c/out/x", "x"}}));
    QVERIFY2(refused.endsWith(u"a link, where a machine has none"_s), qPrintable(refused));
    QCOMPARE(target.outside(), QStringList());
    QVERIFY(!namesBelow(target.folder()).contains(u"drive_c/out"_s));
}

void TestPack::whatIsThereTwiceIsRefused()
{
    Target target;
    const QString refused = target.unpack(archiveOf({{"machine.sqlite", "a database"}, {"machine.sqlite", "another"}}));
    QVERIFY2(refused.endsWith(u"twice in the archive"_s), qPrintable(refused));
    QCOMPARE(readFile(target.folder() + u"/machine.sqlite"_s), QByteArray("a database"));
}

void TestPack::tooMuchIsRefused()
{
    const QByteArray bomb = archiveOf({{"machine.sqlite", QByteArray(2 * megabyte, 'x')}});
    QVERIFY(bomb.size() < 8192);
    Target target;
    QVERIFY(target.unpack(bomb).contains(u"more in the archive than this program takes"_s));
    QVERIFY(sizeBelow(target.folder()) <= megabyte);
    // What an entry says of its length is no matter: 2 MB are said to be 1 byte, in both places.
    QByteArray lying = bomb;
    QByteArray length(4, '\0');
    length[2] = 0x20;
    lying.replace(length, QByteArray("\1\0\0\0", 4));
    QVERIFY(lying != bomb);
    Target other;
    QVERIFY(!other.unpack(lying).isEmpty());
    QVERIFY(sizeBelow(other.folder()) <= megabyte);

    QList<Member> many{{"machine.sqlite", "a database"}};
    for (int i = 0; i < 100; ++i)
        many.append({"program/" + QByteArray::number(i), {}});
    Target third;
    QVERIFY(third.unpack(archiveOf(many)).contains(u"more in the archive than this program takes"_s));
    QCOMPARE(namesBelow(third.folder()), QStringList());
}

void TestPack::damageIsFound()
{
    QByteArray content;
    for (int i = 0; i < 300; ++i)
        content += QByteArray::number(i * 7919);
    const QByteArray whole = archiveOf({{"pc/machine.sqlite", content}, {"pc/program/log.txt", content}});
    for (qsizetype length = 0; length < whole.size(); length += 7) {
        Target target;
        QVERIFY2(!target.unpack(whole.first(length)).isEmpty(), qPrintable(QString::number(length)));
        QCOMPARE(target.outside(), QStringList());
    }
    // A byte that was changed is found by the checksum, or changes nothing that is unpacked.
    for (qsizetype at = 0; at < whole.size(); at += 3) {
        QByteArray damaged = whole;
        damaged[at] = static_cast<char>(damaged.at(at) ^ 0x41);
        Target target;
        const bool isTaken = target.unpack(damaged).isEmpty();
        QVERIFY2(!isTaken || readFile(target.folder() + u"/machine.sqlite"_s) == content,
                 qPrintable(QString::number(at)));
        QCOMPARE(target.outside(), QStringList());
    }
    Target target;
    QCOMPARE(target.unpack("no archive at all"), u"not a ZIP file"_s);
    QCOMPARE(target.unpack(archiveOf({{"program/log.txt", "a line"}})), u"there is no machine.sqlite in the archive"_s);
}

void TestPack::aForeignDatabaseIsNoMachine()
{
    const QTemporaryDir place;
    const QString file = place.filePath(u"bad.zip"_s);
    writeFile(file, archiveOf({{"machine.sqlite", QByteArray("SQLite format 3\0", 16) + QByteArray(2000, 'x')}}));
    const Ended ended = rehearse({u"unpack"_s, file, place.filePath(u"machine"_s)});
    QVERIFY2(ended.exitCode == machineUnreadable || ended.exitCode == jobFailed, ended.errors.constData());
    QVERIFY(ended.errors.contains("machine.sqlite"));
    QCOMPARE(namesBelow(place.path()), QStringList{u"bad.zip"_s});
}

KESTRUNE_SUITE(TestPack)
#include "tst_pack.moc"
