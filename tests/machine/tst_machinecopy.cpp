// SPDX-License-Identifier: GPL-3.0-or-later
// Copies of machines.

#include "support/smallmachine.h"
#include "support/suite.h"

#include "machine/compare/machinediff.h"
#include "machine/database.h"
#include "machine/machine.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

class TestMachineCopy : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void copyDiffersInNothing();
    void copyIsAMachineOfItsOwn();
    void builtInMachine();
    void aCopyMakesNoFileAtEachChange();
    void linksAndHiddenFilesComeToo();
    void linksWithinLeadToTheCopysOwnFiles();
    void largeFilesKeepTheirSize();
    void whatAnotherConnectionJustWroteIsInIt();
    void logOfCommandsStaysBehind();
    void folderThatCannotBeMadeIsTold();
};

void TestMachineCopy::copyDiffersInNothing()
{
    SmallMachine source;
    copyMachine(*source, source.beside(u"copy"_s));

    const auto copy = Machine::open(source.beside(u"copy"_s));
    QCOMPARE(compareMachines(*source, *copy), QList<DiffRow>());
    QCOMPARE(copy->environment(), source->environment());
    QCOMPARE(copy->processes(), source->processes());
    QCOMPARE(copy->name(), source->name());
}

void TestMachineCopy::copyIsAMachineOfItsOwn()
{
    SmallMachine source;
    copyMachine(*source, source.beside(u"copy"_s));
    const auto copy = Machine::open(source.beside(u"copy"_s));

    copy->registry().make(u"HKEY_CURRENT_USER\\Software\\OnlyThere"_s);
    copy->setRunning(u"OnlyThere"_s, true);

    QVERIFY(!source->registry().find(u"HKEY_CURRENT_USER\\Software\\OnlyThere"_s));
    QVERIFY(!source->isRunning(u"OnlyThere"_s));
}

void TestMachineCopy::builtInMachine()
{
    const QTemporaryDir folder;
    makeMachine(folder.filePath(u"pc"_s), QCoreApplication::applicationDirPath() + u"/machines/windows11"_s,
                Existing::Keep);
    const auto source = Machine::open(folder.filePath(u"pc"_s));

    copyMachine(*source, folder.filePath(u"copy"_s));

    const auto copy = Machine::open(folder.filePath(u"copy"_s));
    QCOMPARE(compareMachines(*source, *copy), QList<DiffRow>());
    QVERIFY(!copy->tasks().isEmpty());
}

void TestMachineCopy::aCopyMakesNoFileAtEachChange()
{
    SmallMachine source;

    copyMachine(*source, source.beside(u"copy"_s));

    const auto copy = Machine::open(source.beside(u"copy"_s));
    auto mode = copy->database().query("PRAGMA journal_mode");
    QVERIFY(mode.next());
    QCOMPARE(mode.text(0), u"wal"_s);
}

void TestMachineCopy::linksAndHiddenFilesComeToo()
{
    SmallMachine source;
    const QString target = source.beside(u"outside.txt"_s);
    writeFile(target, "outside");
    writeFile(source->driveFolder() + u"/.hidden"_s, "dot");
    QVERIFY(QFile::link(target, source->driveFolder() + u"/link"_s));

    copyMachine(*source, source.beside(u"copy"_s));

    const QString drive = source.beside(u"copy/drive_c"_s);
    QCOMPARE(QFileInfo(drive + u"/link"_s).symLinkTarget(), target);
    QVERIFY(QFileInfo::exists(drive + u"/.hidden"_s));
}

void TestMachineCopy::linksWithinLeadToTheCopysOwnFiles()
{
#ifndef Q_OS_UNIX
    QSKIP("links need a right of their own here");
#endif
    SmallMachine source;
    const QString drive = source->driveFolder();
    writeFile(drive + u"/file"_s, "as it was");
    QVERIFY(QFile::link(drive + u"/file"_s, drive + u"/absolute"_s));
    QVERIFY(QFile::link(u"file"_s, drive + u"/relative"_s));

    copyMachine(*source, source.beside(u"copy"_s));

    const auto copy = Machine::open(source.beside(u"copy"_s));
    QCOMPARE(compareMachines(*source, *copy), QList<DiffRow>());
    for (const QString &link : {u"C:\\absolute"_s, u"C:\\relative"_s})
        writeFile(copy->hostPath(link), "changed");
    QCOMPARE(readFile(copy->hostPath(u"C:\\file"_s)), QByteArray("changed"));
    QCOMPARE(readFile(drive + u"/file"_s), QByteArray("as it was"));
}

void TestMachineCopy::largeFilesKeepTheirSize()
{
    constexpr qint64 size = qint64(40) * 1024 * 1024 * 1024;

    SmallMachine source;
    const QString large = u"C:\\large.sys"_s;
    writeFile(source->hostPath(large), "head");
    source->setFileSize(large, size);
    // One of a machine made earlier, which is long on the disk itself.
    QFile file(source->driveFolder() + u"/empty.sys"_s);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.resize(size / 256));
    QVERIFY(file.seek(size / 512) && file.write("middle") == 6);
    file.close();

    copyMachine(*source, source.beside(u"copy"_s));

    const auto copy = Machine::open(source.beside(u"copy"_s));
    QCOMPARE(copy->fileSize(large), size);
    QCOMPARE(readFile(copy->hostPath(large)), QByteArray("head"));
    QFile other(copy->hostPath(u"C:\\empty.sys"_s));
    QVERIFY(other.open(QIODevice::ReadOnly) && other.size() == size / 256);
    QVERIFY(other.seek(size / 512));
    QCOMPARE(other.read(6), "middle");
}

void TestMachineCopy::whatAnotherConnectionJustWroteIsInIt()
{
    SmallMachine source;
    const auto other = Machine::open(source.folder());
    other->setRunning(u"JustStarted"_s, true);

    copyMachine(*source, source.beside(u"copy"_s));

    QCOMPARE(Machine::open(source.beside(u"copy"_s))->isRunning(u"JustStarted"_s), std::optional(true));
}

void TestMachineCopy::logOfCommandsStaysBehind()
{
    SmallMachine source;
    source->logCommand(u"sc"_s, {u"query"_s}, 0);

    copyMachine(*source, source.beside(u"copy"_s));

    QVERIFY(!QFileInfo::exists(source.beside(u"copy/commands.log"_s)));
}

void TestMachineCopy::folderThatCannotBeMadeIsTold()
{
    SmallMachine source;
    writeFile(source.beside(u"file"_s), "x");

    QVERIFY(errorOf([&] { copyMachine(*source, source.beside(u"file/copy"_s)); }).contains(u"can't be made"_s));
}

KESTRUNE_SUITE(TestMachineCopy)
#include "tst_machinecopy.moc"
