// SPDX-License-Identifier: GPL-3.0-or-later
// The folder of a rehearsal machine: making and opening it, its paths, what it keeps, and many writers at once.

#include "machine/database.h"
#include "machine/workfolder.h"
#include "platform/contractplatform.h"
#include "support/files.h"
#include "support/processes.h"
#include "support/suite.h"

#include <QDirIterator>
#include <QJsonDocument>
#include <QProcess>
#include <QTest>
#include <QThread>

#include <thread>

using namespace Qt::StringLiterals;

namespace {

const QString counterKey = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Counter"_s;
constexpr int rounds = 150;

/** What each of several writers does: counts one value up, writes values of its own, and logs. */
void writeRounds(Machine &machine, const QString &writer)
{
    RegistryStore &registry = machine.registry();
    for (int round = 0; round < rounds; ++round) {
        {
            Database::Transaction transaction(machine.database());
            const auto key = registry.make(counterKey).value();
            const auto before = registry.value(key, u"n"_s);
            const quint32 number = before ? textOf(before->data).toUInt() : 0;
            registry.setValue(key, {u"n"_s, RegistryType::String, registryText(QString::number(number + 1))});
            transaction.commit();
        }
        const auto own = registry.make(u"%1\\%2\\%3"_s.arg(counterKey, writer).arg(round)).value();
        registry.setValue(own, {u"v"_s, RegistryType::DWord, registryDWord(quint32(round))});
        machine.logCommand(u"sc"_s, {u"query"_s, writer, QString(200, u'x')}, round);
    }
}

/** All files below a folder with what they hold. */
QMap<QString, QByteArray> contents(const QString &folder)
{
    QMap<QString, QByteArray> result;
    QDirIterator files(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        result.insert(path, readFile(path));
    }
    return result;
}

QString problemOfOpening(const QString &folder)
{
    try {
        Machine::open(folder);
    } catch (const MachineError &error) {
        return error.message;
    }
    return {};
}

} // namespace

class TestMachine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { temporary_ = std::make_unique<QTemporaryDir>(); }

    void createsTheFolders();
    void createRefusesWhatIsThere();
    void createRefusesWhatItCantWrite();
    void openTakesWhatWasWritten();
    void openMakesLostFolders();
    void openRefuses_data();
    void openRefuses();
    void damageInsideIsAnErrorAndNoCrash();
    void theRegistryOfADamagedMachineGivesDefaults();

    void findsFilesWithoutRegardToCase_data();
    void findsFilesWithoutRegardToCase();
    void anExactNameWinsOverAnother();
    void neverLeavesTheMachine_data();
    void neverLeavesTheMachine();
    void linksOutLeadNowhere_data();
    void linksOutLeadNowhere();
    void linksWithinAreFollowed();
    void ownFilesAreNoLinks_data();
    void ownFilesAreNoLinks();
    void hostPathsStayThemselves();
    void windowsPathIsTheInverse();

    void keepsNameEnvironmentAndProcesses();
    void keepsRunStates();
    void keepsDllStrings();
    void keepsWmiInstances();
    void keepsAttributes();
    void faultsOfToolsAndOfTheirArguments();
    void exitCodesAreTakenOnce();
    void openingItTwiceKeepsItForOtherProcesses();
    void logsOneLineForEachCommand();

    void controlSetsAreOneKey();
    void aHiveCanOnlyBeEmptied();
    void aKeyThatIsGoneTakesNothing();
    void pathsAreToldAsMade();

    void nestedTransactions();
    void aQueryInsideTheSameQuery();
    void threadsLoseNothing();
    void tasksKeepTheirOrderAndAreFoundWithoutCase();
    void processesLoseNothing();
    void aWorkFolderThatGoesIsNoLeftover();

private:
    QString folder() const { return temporary_->filePath(u"m"_s); }

    std::unique_ptr<QTemporaryDir> temporary_;
};

void TestMachine::createsTheFolders()
{
    const auto machine = Machine::create(folder() + u"/deep/er/"_s);
    QCOMPARE(machine->folder(), folder() + u"/deep/er"_s);
    for (const QString &each : {machine->driveFolder(), machine->programFolder()})
        QVERIFY2(QFileInfo(each).isDir(), qUtf8Printable(each));
    QVERIFY(QFileInfo(machine->folder() + u"/machine.sqlite"_s).isFile());
    QVERIFY(machine->processes().isEmpty() && machine->environment().isEmpty() && machine->name().isEmpty());
    QVERIFY(machine->registry().find(u"HKLM"_s) && machine->registry().find(u"HKCU"_s)
            && machine->registry().find(u"HKU"_s));
}

void TestMachine::createRefusesWhatIsThere()
{
    writeFile(folder() + u"/letter.txt"_s, "mine");
    QVERIFY_THROWS_EXCEPTION(MachineError, Machine::create(folder()));
    QCOMPARE(contents(folder()).size(), 1);
    QVERIFY_THROWS_EXCEPTION(MachineError, Machine::create(folder() + u"/letter.txt"_s));
    QCOMPARE(readFile(folder() + u"/letter.txt"_s), QByteArray("mine"));
    const QString hidden = temporary_->filePath(u"h"_s);
    writeFile(hidden + u"/.hidden"_s, "x");
    QVERIFY_THROWS_EXCEPTION(MachineError, Machine::create(hidden));
    const QString twice = temporary_->filePath(u"t"_s);
    Machine::create(twice)->setName(u"first"_s);
    QVERIFY_THROWS_EXCEPTION(MachineError, Machine::create(twice));
    QCOMPARE(Machine::open(twice)->name(), u"first"_s);
}

void TestMachine::createRefusesWhatItCantWrite()
{
    writeFile(temporary_->filePath(u"file"_s), "x");
    QVERIFY_THROWS_EXCEPTION(MachineError, Machine::create(temporary_->filePath(u"file/below"_s)));
}

void TestMachine::openTakesWhatWasWritten()
{
    {
        const auto machine = Machine::create(folder());
        machine->setName(u"Küche"_s);
        machine->registry().setValue(machine->registry().make(counterKey).value(),
                                     {u"v"_s, RegistryType::QWord, registryQWord(7)});
    }
    const auto machine = Machine::open(folder());
    QCOMPARE(machine->name(), u"Küche"_s);
    QCOMPARE(machine->registry().value(*machine->registry().find(counterKey), u"V"_s)->data, registryQWord(7));
}

void TestMachine::openMakesLostFolders()
{
    Machine::create(folder());
    QVERIFY(QDir(folder()).rmdir(u"drive_c"_s));
    QVERIFY(QFileInfo(Machine::open(folder())->driveFolder()).isDir());
}

void TestMachine::openRefuses_data()
{
    QTest::addColumn<QByteArray>("statements"); // carried out in a good machine's database
    QTest::addColumn<int>("size");              // that its file is cut to, or negative
    QTest::addColumn<QByteArray>("bytes");      // that its file begins with
    QTest::addColumn<QString>("reason");
    const QByteArray none;
    QTest::newRow("newer version") << QByteArray("UPDATE meta SET value = 2 WHERE name = 'version'") << -1 << none
                                   << u"version 2"_s;
    QTest::newRow("version is no number")
        << QByteArray("UPDATE meta SET value = 'x' WHERE name = 'version'") << -1 << none << u"damaged"_s;
    QTest::newRow("no version") << QByteArray("DELETE FROM meta") << -1 << none << u"not a rehearsal machine"_s;
    QTest::newRow("another database") << QByteArray("DROP TABLE meta") << -1 << none << u"not a rehearsal machine"_s;
    QTest::newRow("empty file") << none << 0 << none << u"damaged"_s;
    QTest::newRow("tiny file") << none << 100 << none << u"damaged"_s;
    QTest::newRow("cut in the first page") << none << 3000 << none << u"malformed"_s;
    QTest::newRow("cut in the middle") << none << 20000 << none << u"malformed"_s;
    QTest::newRow("text") << none << -1 << QByteArray("This is a letter to my aunt.") << u"damaged"_s;
    QTest::newRow("damaged header") << none << -1 << QByteArray("SQLite format 3\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF", 23)
                                    << u"not a database"_s;
    QTest::newRow("damaged first page") << none << -1 << QByteArray("SQLite format 3\0", 16) + QByteArray(600, '\7')
                                        << u"not a database"_s;
}

void TestMachine::openRefuses()
{
    QFETCH(const QByteArray, statements);
    QFETCH(const int, size);
    QFETCH(const QByteArray, bytes);
    QFETCH(const QString, reason);
    Machine::create(folder())->database().execute(statements.constData());
    QFile file(folder() + u"/machine.sqlite"_s);
    QVERIFY(file.open(QIODevice::ReadWrite));
    QCOMPARE(file.write(bytes), bytes.size());
    QVERIFY(size < 0 || file.resize(size));
    file.close();
    QVERIFY(QDir(folder()).rmdir(u"program"_s));

    const QMap<QString, QByteArray> before = contents(folder());
    const QString problem = problemOfOpening(folder());
    QVERIFY2(problem.contains(reason), qUtf8Printable(problem));
    QVERIFY2(problem.contains(u"machine.sqlite"_s) && !problem.contains(u'\n'), qUtf8Printable(problem));
    QCOMPARE(contents(folder()), before);
    QVERIFY(problemOfOpening(temporary_->filePath(u"nowhere"_s)).contains(u"there is no such folder"_s));
    QVERIFY(!QFileInfo::exists(temporary_->filePath(u"nowhere"_s)));
    QVERIFY(problemOfOpening(temporary_->path()).contains(u"not a rehearsal machine"_s));
    QVERIFY(!QFileInfo::exists(temporary_->filePath(u"machine.sqlite"_s)));
}

void TestMachine::damageInsideIsAnErrorAndNoCrash()
{
    {
        const auto machine = Machine::create(folder());
        for (int i = 0; i < 2000; ++i)
            machine->registry().make(counterKey + u"\\"_s + QString::number(i));
    }
    const QByteArray good = readFile(folder() + u"/machine.sqlite"_s);
    int told = 0;
    for (qsizetype at = 4096; at < good.size(); at += 4096) {
        QByteArray damaged = good;
        damaged.replace(at, 100, QByteArray(100, '\xA5'));
        writeFile(folder() + u"/machine.sqlite"_s, damaged);
        try {
            const auto machine = Machine::open(folder());
            const auto key = machine->registry().find(counterKey);
            if (key)
                machine->registry().valuePaths(*key);
            machine->registry().make(counterKey + u"\\new"_s);
            machine->setName(u"x"_s);
        } catch (const MachineError &error) {
            ++told;
            QVERIFY2(error.message.contains(u"machine.sqlite: "_s), qUtf8Printable(error.message));
        }
    }
    QVERIFY(told > 5);
}

void TestMachine::theRegistryOfADamagedMachineGivesDefaults()
{
    Machine::create(folder());
    MachinePlatform damaged(folder(), {});
    damaged.machine().database().execute("DROP TABLE value");
    const auto key = damaged.openKey(u"HKEY_CURRENT_USER\\a"_s);
    const QRegularExpression complaint(u"no such table: value"_s);
    QTest::ignoreMessage(QtWarningMsg, complaint);
    QCOMPARE(key->value(u"x"_s, 5), QVariant(5));
    QTest::ignoreMessage(QtWarningMsg, complaint);
    key->setValue(u"x"_s, 1);
    QTest::ignoreMessage(QtWarningMsg, complaint);
    QVERIFY(key->allKeys().isEmpty());
}

void TestMachine::findsFilesWithoutRegardToCase_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected"); // below the machine's folder
    const QString dll = u"drive_c/Windows/System32/Größe.DLL"_s;
    QTest::newRow("exact") << u"C:\\Windows\\System32\\Größe.DLL"_s << dll;
    QTest::newRow("lower case") << u"c:\\windows\\system32\\größe.dll"_s << dll;
    QTest::newRow("upper case") << u"C:/WINDOWS/SYSTEM32/GRÖßE.DLL"_s << dll;
    QTest::newRow("mixed separators") << u"C:/Windows\\system32//größe.dll"_s << dll;
    QTest::newRow("no drive") << u"\\windows\\system32\\größe.dll"_s << dll;
    QTest::newRow("no separator first") << u"windows\\system32\\größe.dll"_s << dll;
    QTest::newRow("dots") << u"C:\\Users\\..\\windows\\.\\system32\\größe.dll"_s << dll;
    QTest::newRow("long path's mark") << u"\\\\?\\C:\\windows\\system32\\größe.dll"_s << dll;
    QTest::newRow("drive") << u"C:"_s << u"drive_c"_s;
    QTest::newRow("drive's root") << u"c:\\"_s << u"drive_c"_s;
    QTest::newRow("root") << u"\\"_s << u"drive_c"_s;
    QTest::newRow("nothing") << QString() << u"drive_c"_s;
    QTest::newRow("folder") << u"C:\\WINDOWS\\"_s << u"drive_c/Windows"_s;
    QTest::newRow("missing file") << u"C:\\windows\\SYSTEM32\\New.txt"_s << u"drive_c/Windows/System32/New.txt"_s;
    QTest::newRow("missing folders") << u"C:\\WINDOWS\\Some\\Where\\x.TXT"_s << u"drive_c/Windows/Some/Where/x.TXT"_s;
    QTest::newRow("below a file") << u"C:\\windows\\system32\\größe.dll\\x"_s << dll + u"/x"_s;
    QTest::newRow("leading dot") << u"C:\\users\\.CONFIG"_s << u"drive_c/Users/.config"_s;
    QTest::newRow("other drive") << u"D:\\Windows\\x"_s << u"drive_d/Windows/x"_s;
}

void TestMachine::findsFilesWithoutRegardToCase()
{
    QFETCH(const QString, path);
    QFETCH(const QString, expected);
    const auto machine = Machine::create(folder());
    writeFile(machine->driveFolder() + u"/Windows/System32/Größe.DLL"_s, "x");
    writeFile(machine->driveFolder() + u"/Users/.config"_s, "x");
    QCOMPARE(machine->hostPath(path), machine->folder() + u'/' + expected);
}

void TestMachine::anExactNameWinsOverAnother()
{
    const auto machine = Machine::create(folder());
    writeFile(machine->driveFolder() + u"/A.txt"_s, "upper");
    writeFile(machine->driveFolder() + u"/a.txt"_s, "lower");
    if (QDir(machine->driveFolder()).count() < 4)
        QSKIP("this file system has no case");
    QCOMPARE(readFile(machine->hostPath(u"C:\\a.txt"_s)), QByteArray("lower"));
    QCOMPARE(readFile(machine->hostPath(u"C:\\A.txt"_s)), QByteArray("upper"));
    QCOMPARE(readFile(machine->hostPath(u"C:\\A.TXT"_s)), QByteArray("upper"));
}

void TestMachine::neverLeavesTheMachine_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("up") << u"C:\\..\\..\\..\\..\\..\\..\\etc\\passwd"_s;
    QTest::newRow("up from below") << u"C:\\Windows/../../../../../../../etc/passwd"_s;
    QTest::newRow("host path") << u"/etc/passwd"_s;
    QTest::newRow("other drive") << u"Z:\\..\\..\\..\\..\\..\\..\\etc\\passwd"_s;
    QTest::newRow("share") << u"\\\\server\\..\\..\\..\\..\\..\\..\\..\\etc\\passwd"_s;
    QTest::newRow("from the machine's folder") << u"%1/drive_c/../../../../../../../../etc/passwd"_s;
    QTest::newRow("from it with backslashes") << u"%1\\..\\..\\..\\..\\..\\..\\..\\etc\\passwd"_s;
    QTest::newRow("neighbour") << u"%1x/etc/passwd"_s;
}

void TestMachine::neverLeavesTheMachine()
{
    QFETCH(const QString, path);
    const auto machine = Machine::create(folder());
    const QString host = machine->hostPath(QString(path).replace(u"%1"_s, machine->folder()));
    QVERIFY2(host.startsWith(machine->folder() + u'/') && !host.contains(u".."_s), qUtf8Printable(host));
    QVERIFY(host.endsWith(u"/etc/passwd"_s));
    QVERIFY(!QFileInfo::exists(host));
}

void TestMachine::linksOutLeadNowhere_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("file") << u"C:\\file"_s;
    QTest::newRow("in another case") << u"c:\\FILE"_s;
    QTest::newRow("folder") << u"C:\\folder"_s;
    QTest::newRow("file in a folder") << u"C:\\folder\\secret.txt"_s;
    QTest::newRow("new file in a folder") << u"C:\\folder\\new.txt"_s;
    QTest::newRow("new file in a new folder") << u"C:\\folder\\new\\new.txt"_s;
    QTest::newRow("link without a target") << u"C:\\new"_s;
    QTest::newRow("link to a link") << u"C:\\twice\\secret.txt"_s;
    QTest::newRow("relative link") << u"C:\\relative\\secret.txt"_s;
    QTest::newRow("host path") << u"%1/drive_c/folder/secret.txt"_s;
}

void TestMachine::linksOutLeadNowhere()
{
#ifndef Q_OS_UNIX
    QSKIP("links need a right of their own here");
#endif
    QFETCH(const QString, path);
    const auto machine = Machine::create(folder());
    const QString drive = machine->driveFolder() + u'/';
    const QString outside = temporary_->filePath(u"outside"_s);
    writeFile(outside + u"/secret.txt"_s, "secret");
    QVERIFY(QFile::link(outside + u"/secret.txt"_s, drive + u"file"_s));
    QVERIFY(QFile::link(outside, drive + u"folder"_s));
    QVERIFY(QFile::link(outside + u"/absent"_s, drive + u"new"_s));
    QVERIFY(QFile::link(drive + u"folder"_s, drive + u"twice"_s));
    QVERIFY(QFile::link(u"../../outside"_s, drive + u"relative"_s));
    QVERIFY(QFileInfo::exists(drive + u"relative/secret.txt"_s));
    const QMap<QString, QByteArray> before = contents(outside);

    const QString host = machine->hostPath(QString(path).replace(u"%1"_s, machine->folder()));
    QVERIFY2(host.startsWith(machine->folder() + u'/'), qUtf8Printable(host));
    QVERIFY2(!QFileInfo::exists(host), qUtf8Printable(host));
    QVERIFY(!QFile(host).open(QIODevice::WriteOnly));
    QVERIFY(!QDir().mkpath(host));
    QVERIFY(!QFile::remove(host));
    QCOMPARE(contents(outside), before);
}

void TestMachine::linksWithinAreFollowed()
{
#ifndef Q_OS_UNIX
    QSKIP("links need a right of their own here");
#endif
    const auto machine = Machine::create(folder());
    const QString drive = machine->driveFolder() + u'/';
    writeFile(drive + u"Users/Me/letter.txt"_s, "dear");
    QVERIFY(QFile::link(drive + u"Users"_s, drive + u"Documents and Settings"_s));
    QCOMPARE(readFile(machine->hostPath(u"C:\\documents and settings\\me\\LETTER.TXT"_s)), QByteArray("dear"));
}

void TestMachine::ownFilesAreNoLinks_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name :
         {"drive_c", "drive_d", "program", "commands.log", "machine.sqlite", "machine.sqlite-wal", "program/log.txt",
          "program/backup_svc", "program/backup_tasks/tasks.xml", "journal", "journal/changes.sqlite"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestMachine::ownFilesAreNoLinks()
{
#ifndef Q_OS_UNIX
    QSKIP("links need a right of their own here");
#endif
    QFETCH(const QString, name);
    Machine::create(folder());
    const QString file = folder() + u'/' + name;
    const QString elsewhere = temporary_->filePath(u"elsewhere"_s);
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    if (QFileInfo::exists(file))
        QVERIFY(QFile::rename(file, elsewhere));
    else
        writeFile(elsewhere, "x");
    QVERIFY(QFile::link(elsewhere, file));
    const QMap<QString, QByteArray> before = contents(temporary_->path());
    const QString problem = problemOfOpening(folder());
    QVERIFY2(problem.contains(name + u": a link"_s) && !problem.contains(u'\n'), qUtf8Printable(problem));
    QCOMPARE(contents(temporary_->path()), before);
}

void TestMachine::hostPathsStayThemselves()
{
    const auto machine = Machine::create(folder());
    writeFile(machine->driveFolder() + u"/Users/Me/a.txt"_s, "x");
    const QString file = machine->driveFolder() + u"/Users/Me/a.txt"_s;
    QCOMPARE(machine->hostPath(file), file);
    QCOMPARE(machine->hostPath(machine->driveFolder()), machine->driveFolder());
    QCOMPARE(machine->hostPath(machine->folder()), machine->folder());
    const QString backup = machine->programFolder() + u"/backup_svc/StartMode.reg"_s;
    QCOMPARE(machine->hostPath(backup), backup);
    QCOMPARE(machine->hostPath(machine->programFolder() + u"/backup_svc\\StartMode.reg"_s), backup);
    QCOMPARE(machine->hostPath(machine->driveFolder() + u"\\users\\ME\\A.TXT"_s), file);
    QCOMPARE(machine->hostPath(machine->hostPath(u"C:\\users\\me\\a.txt"_s)), file);
#ifndef Q_OS_WIN
    const QString odd = machine->driveFolder() + u"/back\\slash"_s;
    writeFile(odd, "x");
    QCOMPARE(machine->hostPath(odd), odd);
#endif
}

void TestMachine::windowsPathIsTheInverse()
{
    const auto machine = Machine::create(folder());
    QCOMPARE(machine->windowsPath(machine->driveFolder() + u"/Windows/x.dll"_s), u"C:\\Windows\\x.dll"_s);
    QCOMPARE(machine->windowsPath(machine->driveFolder()), u"C:\\"_s);
    for (const QString &path : {u"C:\\Program Files (x86)\\a b\\ü.exe"_s, u"D:\\x"_s, u"C:\\"_s})
        QCOMPARE(machine->windowsPath(machine->hostPath(path)), path);
    QCOMPARE(machine->windowsPath(machine->programFolder() + u"/log.txt"_s), machine->programFolder() + u"/log.txt"_s);
}

void TestMachine::keepsNameEnvironmentAndProcesses()
{
    const auto machine = Machine::create(folder());
    machine->setName(u"A \"PC\""_s);
    machine->setName(u"B"_s);
    QCOMPARE(machine->name(), u"B"_s);
    const QMap<QString, QString> variables{{u"SystemRoot"_s, u"C:\\Windows"_s}, {u"Empty"_s, QString()}};
    machine->setEnvironment({{u"old"_s, u"x"_s}});
    machine->setEnvironment(variables);
    QCOMPARE(machine->environment(), variables);
    const QStringList processes{u"System"_s, u"svchost.exe"_s, u"svchost.exe"_s, u"Ätherisch.exe"_s};
    machine->setProcesses({u"gone.exe"_s});
    machine->setProcesses(processes);
    QCOMPARE(machine->processes(), processes);
}

void TestMachine::keepsRunStates()
{
    const auto machine = Machine::create(folder());
    QVERIFY(!machine->isRunning(u"DiagTrack"_s).has_value());
    machine->setRunning(u"DiagTrack"_s, true);
    QCOMPARE(machine->isRunning(u"DIAGTRACK"_s), std::optional(true));
    machine->setRunning(u"diagtrack"_s, false);
    machine->setRunning(u"Spooler"_s, true);
    QCOMPARE(machine->isRunning(u"DiagTrack"_s), std::optional(false));
    QCOMPARE(machine->runStates(), (QMap<QString, bool>{{u"DiagTrack"_s, false}, {u"Spooler"_s, true}}));
}

void TestMachine::keepsDllStrings()
{
    const auto machine = Machine::create(folder());
    const QString dll = u"C:\\Windows\\System32\\x.dll"_s;
    QVERIFY(!machine->dllString(dll, 1).has_value());
    machine->setDllStrings(dll, {{1, u"one"_s}, {70000, u"ü"_s}, {3, QString()}});
    QCOMPARE(machine->dllString(u"c:/windows/SYSTEM32/X.dll"_s, 1).value(), std::optional(u"one"_s));
    QCOMPARE(machine->dllString(machine->hostPath(dll), 70000).value(), std::optional(u"ü"_s));
    QCOMPARE(machine->dllString(dll, 3).value(), std::optional(QString()));
    QVERIFY(!machine->dllString(dll, 2).value().has_value());
    machine->setDllStrings(dll, {});
    QVERIFY(machine->dllString(dll, 1).has_value() && !machine->dllString(dll, 1).value().has_value());
}

void TestMachine::keepsWmiInstances()
{
    const auto machine = Machine::create(folder());
    QVERIFY(!machine->hasWmiClass(u"Win32_DiskDrive"_s));
    const QList<QJsonObject> disks{{{u"Model"_s, u"A"_s}, {u"Size"_s, 512}}, {{u"Model"_s, QJsonValue::Null}}};
    machine->setWmiInstances(u"Win32_DiskDrive"_s, disks);
    QCOMPARE(machine->wmiInstances(u"WIN32_DISKDRIVE"_s), disks);
    machine->setWmiInstances(u"win32_diskdrive"_s, {});
    QVERIFY(machine->wmiInstances(u"Win32_DiskDrive"_s).isEmpty());
    QVERIFY(machine->hasWmiClass(u"Win32_DiskDrive"_s));
}

void TestMachine::keepsAttributes()
{
    const auto machine = Machine::create(folder());
    writeFile(machine->driveFolder() + u"/Folder/file.txt"_s, "x");
    QCOMPARE(machine->attributes(u"C:\\folder\\FILE.txt"_s), 0x20U);
    QCOMPARE(machine->attributes(u"C:\\folder"_s), 0x10U);
    machine->setAttributes(u"C:\\FOLDER\\file.txt"_s, 0x22);
    machine->setAttributes(machine->driveFolder() + u"/Folder"_s, 0x6);
    QCOMPARE(machine->attributes(u"c:/folder/file.txt"_s), 0x22U);
    QCOMPARE(machine->attributes(machine->driveFolder() + u"/Folder/file.txt"_s), 0x22U);
    QCOMPARE(machine->attributes(u"C:\\Folder\\"_s), 0x16U);
    QCOMPARE(machine->pathsWithAttribute(0x2),
             (QStringList{machine->driveFolder() + u"/Folder"_s, machine->driveFolder() + u"/Folder/file.txt"_s}));
    QCOMPARE(machine->pathsWithAttribute(0x6), QStringList{machine->driveFolder() + u"/Folder"_s});
    machine->setAttributes(u"C:\\Folder"_s, 0);
    QVERIFY(machine->pathsWithAttribute(0x4).isEmpty());
}

void TestMachine::faultsOfToolsAndOfTheirArguments()
{
    const auto machine = Machine::create(folder());
    QVERIFY(!machine->fault(u"sc"_s));
    ToolFault whole;
    whole.exitCode = 5;
    ToolFault part;
    part.hang = true;
    part.output = u"garbage\n"_s;
    part.repeat = 3;
    machine->setFault(u"sc"_s, whole);
    machine->setFault(u"sc  STOP DiagTrack"_s, part);
    QCOMPARE(machine->fault(u"SC.exe"_s, {u"query"_s})->exitCode, std::optional(5));
    QVERIFY(!machine->fault(u"sc"_s, {u"stop"_s})->hang);
    const auto found = machine->fault(u"sc"_s, {u"stop"_s, u"diagtrack"_s, u"more"_s});
    QVERIFY(found->hang && !found->missing && !found->exitCode);
    QCOMPARE(found->output, std::optional(u"garbage\n"_s));
    QCOMPARE(found->repeat, 3);
    machine->clearFault(u"sc stop diagtrack"_s);
    QVERIFY(!machine->fault(u"sc"_s, {u"stop"_s, u"diagtrack"_s})->hang);
    machine->clearFault(u"SC.EXE"_s);
    QVERIFY(!machine->fault(u"sc"_s, {u"stop"_s}));
}

void TestMachine::exitCodesAreTakenOnce()
{
    const auto machine = Machine::create(folder());
    machine->leaveExitCode(77, 1056);
    machine->leaveExitCode(77, -2147023838);
    machine->leaveExitCode(78, 0);
    QCOMPARE(Machine::open(folder())->takeExitCode(77), std::optional(-2147023838));
    QVERIFY(!machine->takeExitCode(77));
    machine->dropExitCode(78);
    QVERIFY(!machine->takeExitCode(78));
}

/** A process lets go of all locks of a file when it closes that once, whoever in it has them. */
void TestMachine::openingItTwiceKeepsItForOtherProcesses()
{
    const auto machine = Machine::create(folder());
    QVERIFY(!machine->takeExitCode(1));
    Machine::open(folder());
    for (int i = 0; i < 2; ++i) {
        const Ended tool = runProgram(stockTool(), {folder(), u"taskkill"_s, u"/im"_s, u"x.exe"_s});
        QVERIFY(machine->takeExitCode(tool.processId));
    }
}

void TestMachine::logsOneLineForEachCommand()
{
    const auto machine = Machine::create(folder());
    machine->logCommand(u"sc"_s, {u"stop"_s, u"DiagTrack"_s}, 0);
    machine->logCommand(u"powershell"_s, {u"a \"b\"\n\\ü"_s}, -5);
    machine->logCommand(u"cmd"_s, {}, 1056);
    QCOMPARE(readFile(folder() + u"/commands.log"_s),
             QByteArray("{\"program\":\"sc\",\"arguments\":[\"stop\",\"DiagTrack\"],\"exitCode\":0}\n"
                        "{\"program\":\"powershell\",\"arguments\":[\"a \\\"b\\\"\\n\\\\ü\"],\"exitCode\":-5}\n"
                        "{\"program\":\"cmd\",\"arguments\":[],\"exitCode\":1056}\n"));
}

void TestMachine::controlSetsAreOneKey()
{
    const auto machine = Machine::create(folder());
    RegistryStore &registry = machine->registry();
    const auto key = registry.make(u"HKLM\\SYSTEM\\ControlSet001\\Services\\X"_s);
    QCOMPARE(registry.find(u"HKEY_LOCAL_MACHINE\\System\\currentcontrolset\\services\\x"_s), key);
    QCOMPARE(registry.path(*key), u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\X"_s);
    const auto system = registry.find(u"HKLM\\SYSTEM"_s);
    QCOMPARE(registry.subkeys(*system), QList<QString>{u"CurrentControlSet"_s});
    QCOMPARE(registry.find(*system, u"controlset001\\Services\\X"_s), key);
    // Elsewhere it is a name like any other.
    const auto other = registry.make(u"HKCU\\SYSTEM\\ControlSet001"_s);
    QCOMPARE(registry.path(*other), u"HKEY_CURRENT_USER\\SYSTEM\\ControlSet001"_s);
    const auto type = registry.make(u"HKCR\\.txt"_s);
    QCOMPARE(registry.find(u"HKLM\\software\\CLASSES\\.TXT"_s), type);
}

void TestMachine::aHiveCanOnlyBeEmptied()
{
    const auto machine = Machine::create(folder());
    RegistryStore &registry = machine->registry();
    const auto hive = registry.find(u"HKCU"_s);
    registry.setValue(*hive, {u"v"_s, RegistryType::DWord, registryDWord(1)});
    registry.make(u"HKCU\\a\\b"_s);
    registry.make(u"HKLM\\a\\b"_s);
    registry.removeKey(*hive);
    QCOMPARE(registry.find(u"HKEY_CURRENT_USER"_s), hive);
    QVERIFY(registry.subkeys(*hive).isEmpty() && registry.values(*hive).isEmpty());
    QVERIFY(registry.find(u"HKLM\\a\\b"_s));
    QVERIFY(!registry.make(u"HKEY_NOWHERE\\x"_s) && !registry.find(u"x"_s) && !registry.make(QString()));
    QVERIFY(!RegistryStore::isHivePath(u"HKEY_LOCAL"_s) && RegistryStore::isHivePath(u"hkcr\\x"_s));
}

void TestMachine::aKeyThatIsGoneTakesNothing()
{
    const auto machine = Machine::create(folder());
    RegistryStore &registry = machine->registry();
    const auto gone = registry.make(u"HKCU\\gone\\sub"_s).value();
    registry.setValue(gone, {u"v"_s, RegistryType::DWord, registryDWord(1)});
    registry.removeKey(registry.find(u"HKCU\\gone"_s).value());
    registry.setValue(gone, {u"v"_s, RegistryType::DWord, registryDWord(1)});
    QVERIFY(!registry.value(gone, u"v"_s));
    const auto below = registry.make(gone, u"x\\y"_s);
    registry.setValue(below, {u"v"_s, RegistryType::DWord, registryDWord(1)});
    QVERIFY(!registry.value(below, u"v"_s));
    // A later key doesn't get the old one's id.
    QVERIFY(registry.make(u"HKCU\\gone\\sub"_s).value() != gone);
    auto orphans = machine->database().query("SELECT count(*) FROM value WHERE key NOT IN (SELECT id FROM key)");
    QVERIFY(orphans.next());
    QCOMPARE(orphans.integer(0), 0);
}

void TestMachine::pathsAreToldAsMade()
{
    const auto machine = Machine::create(folder());
    const auto key = machine->registry().make(u"hkcu\\Soft\\WARE\\"_s);
    QCOMPARE(machine->registry().make(u"HKEY_CURRENT_USER\\soft\\\\ware"_s), key);
    QCOMPARE(machine->registry().path(*key), u"HKEY_CURRENT_USER\\Soft\\WARE"_s);
    QCOMPARE(machine->registry().path(-1), QString());
}

void TestMachine::nestedTransactions()
{
    const auto machine = Machine::create(folder());
    Database &database = machine->database();
    {
        Database::Transaction outer(database);
        machine->setName(u"outer"_s);
        {
            Database::Transaction undone(database);
            machine->setName(u"undone"_s);
            Database::Transaction deeper(database);
            machine->setRunning(u"deep"_s, true);
            deeper.commit();
        }
        QCOMPARE(machine->name(), u"outer"_s);
        Database::Transaction kept(database);
        machine->setProcesses({u"kept"_s});
        kept.commit();
        outer.commit();
    }
    QCOMPARE(machine->name(), u"outer"_s);
    QCOMPARE(machine->processes(), QStringList{u"kept"_s});
    QVERIFY(!machine->isRunning(u"deep"_s));
    {
        Database::Transaction outer(database);
        Database::Transaction inner(database);
        machine->setName(u"never"_s);
        inner.commit();
    }
    QCOMPARE(Machine::open(folder())->name(), u"outer"_s);
}

void TestMachine::aQueryInsideTheSameQuery()
{
    const auto machine = Machine::create(folder());
    machine->setProcesses({u"a"_s, u"b"_s, u"c"_s});
    QStringList pairs;
    const auto query = [&machine]() { return machine->database().query("SELECT name FROM process ORDER BY id"); };
    auto outer = query();
    while (outer.next()) {
        auto inner = query();
        while (inner.next())
            pairs << outer.text(0) + inner.text(0);
    }
    QCOMPARE(pairs.join(u' '), u"aa ab ac ba bb bc ca cb cc"_s);
}

void TestMachine::threadsLoseNothing()
{
    const auto machine = Machine::create(folder());
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&machine, i] { writeRounds(*machine, QString::number(i)); });
    for (std::thread &thread : threads)
        thread.join();
    const auto key = machine->registry().find(counterKey).value();
    QCOMPARE(textOf(machine->registry().value(key, u"n"_s)->data).toInt(), 4 * rounds);
    QCOMPARE(machine->registry().valuePaths(key).size(), 1 + 4 * rounds);
}

void TestMachine::tasksKeepTheirOrderAndAreFoundWithoutCase()
{
    const QTemporaryDir folder;
    const ScheduledTask last{u"\\Microsoft\\Größe"_s, u"<Task>1</Task>"_s};
    const ScheduledTask first{u"\\a"_s, u"<Task>2</Task>"_s};
    {
        const auto machine = Machine::create(folder.filePath(u"m"_s));
        QVERIFY(machine->tasks().isEmpty());
        machine->setTask(last);
        machine->setTask(first);
    }
    const auto machine = Machine::open(folder.filePath(u"m"_s));
    QCOMPARE(machine->tasks(), QList<ScheduledTask>({last, first}));
    QCOMPARE(machine->task(u"\\MICROSOFT\\GRÖSSE"_s), std::nullopt);
    QCOMPARE(machine->task(u"\\microsoft\\GRÖßE"_s), std::optional(last));

    // A document that is set anew keeps the task's place and the case of its path.
    machine->setTask({u"\\MICROSOFT\\größe"_s, u"<Task>3</Task>"_s});
    QCOMPARE(machine->tasks(), QList<ScheduledTask>({{last.path, u"<Task>3</Task>"_s}, first}));
    machine->removeTask(u"\\A"_s);
    machine->removeTask(u"\\none"_s);
    QCOMPARE(machine->tasks().size(), 1);
}

void TestMachine::processesLoseNothing()
{
    const auto machine = Machine::create(folder());
    std::vector<std::unique_ptr<QProcess>> processes;
    for (int i = 0; i < 3; ++i) {
        processes.push_back(std::make_unique<QProcess>());
        processes.back()->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        processes.back()->start(QCoreApplication::applicationFilePath(), {u"--write"_s, folder(), u"p%1"_s.arg(i)});
    }
    writeRounds(*machine, u"own"_s);
    for (const auto &process : processes) {
        QVERIFY(process->waitForFinished(120000));
        QCOMPARE(process->exitStatus(), QProcess::NormalExit);
        QCOMPARE(process->exitCode(), 0);
    }
    const auto key = machine->registry().find(counterKey).value();
    QCOMPARE(textOf(machine->registry().value(key, u"n"_s)->data).toInt(), 4 * rounds);
    QCOMPARE(machine->registry().valuePaths(key).size(), 1 + 4 * rounds);
    QCOMPARE(machine->registry().subkeys(key), (QList<QString>{u"own"_s, u"p0"_s, u"p1"_s, u"p2"_s}));
    const QList<QByteArray> lines = readFile(folder() + u"/commands.log"_s).trimmed().split('\n');
    QCOMPARE(lines.size(), 4 * rounds);
    for (const QByteArray &line : lines)
        QVERIFY2(QJsonDocument::fromJson(line).object().value(u"program"_s) == u"sc"_s, line.constData());
}

/** One of the processes that write at once. */
static const SuiteHelper writer([](int argc, char **argv) -> std::optional<int> {
    if (argc < 4 || QByteArrayView(argv[1]) != "--write")
        return std::nullopt;
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    try {
        writeRounds(*Machine::open(arguments.at(2)), arguments.at(3));
    } catch (const MachineError &error) {
        qCritical("%s", qUtf8Printable(error.message));
        return 1;
    }
    return 0;
});

/** Two that remove the same folder are in each other's way, and what is left then nobody takes away. */
void TestMachine::aWorkFolderThatGoesIsNoLeftover()
{
    const QString parent = temporary_->path();
    std::jthread starts([&parent](const std::stop_token &stop) {
        while (!stop.stop_requested())
            removeLeftovers(parent);
    });
    for (int i = 0; i < 50; ++i) {
        const WorkFolder work(parent);
        QVERIFY(work.isValid());
        for (int file = 0; file < 50; ++file)
            writeFile(work.filePath(QString::number(file)), {});
    }
    starts = {};
    QCOMPARE(QDir(parent).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), QStringList());
}

KESTRUNE_SUITE(TestMachine)
#include "tst_machine.moc"
