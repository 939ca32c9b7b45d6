// SPDX-License-Identifier: GPL-3.0-or-later
// The rest of the seam on a rehearsal machine: walks, programs, exit codes, pauses, DLL strings and WMI.

#include "contractplatform.h"

#include "machine/seam/scriptopener.h"
#include "support/files.h"
#include "support/suite.h"

#include <QDesktopServices>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QRegularExpression>
#include <QTest>
#include <QThread>
#include <QUrl>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

using namespace Qt::StringLiterals;

namespace {

const char *const recordVariable = "KESTRUNE_TEST_RECORD";

/** Tells what a started process was given; the file appears as a whole. */
void record(const QString &file)
{
    const QStringList lines = QStringList{QFileInfo(QString::fromLocal8Bit(qgetenv("KESTRUNE_MACHINE"))).fileName(),
                                          QString::fromLocal8Bit(qgetenv("KESTRUNE_ELEVATED"))}
                              + QCoreApplication::arguments().mid(1);
    writeFile(file + u".part"_s, lines.join(u'|').toUtf8());
    QFile::rename(file + u".part"_s, file);
}

} // namespace

class TestPlatform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void notElevatedWritesTheUsersHiveAlone();
    void walkNamesEverythingBelow();
    void walkTakesABareDriveAsItsRoot();
    void walkLeavesOutHiddenEntries();
    void walkNamesLinksAndDoesntFollow();
    void walkLeavesOutWhatLeadsOut();
    void walkEndsWhenTheVisitorHasEnough();
    void walkOfWhatIsntThereGivesNothing();
    void walkOfADeepTree();

    void sizesOfFiles();
    void attributesOfFilesAndFolders();
    void attributesOfALinkAreItsOwn();
    void attributesSetDuringAWalkLastWhenItIsOver();
    void attributesSetForWhatAWalkHasYetToComeTo();

    void programFiles_data();
    void programFiles();
    void aProgramThatIsMissingByAFault();
    void unsignedProgramsAreNotForElevatedProcesses();
    void programsNeverComeFromTheHost();
    void exitCodesHave32Bits();
    void whatTheMachineCouldNotDoIsSaid();
    void foldersOfTheProgram();

    void launcherIsAskedInstead();
    void startsToolsOfTheMachine();
    void startsItselfElevated();
    void startsNothingOfTheHost();

    void environmentInEverySpelling();
    void variablesThatNobodyAsksForStayOut();
    void environmentOfAFormerMachineGoes();
    void opensRegistryScripts();
    void opensNoPageOfTheWeb();

    void fixedDriveHasWhatIsThereWithoutALink();
    void dllStrings();
    void wmiTexts();
    void wmiOfAnUnknownClass();

    void pausesAreRecorded();
    void pausesAreSleptByPace();
    void pausesEndWhenInterrupted();

private:
    QString drive() const { return contract_->machine().driveFolder(); }
    QMap<QString, qint64> walked(const QString &windowsPath) const;
    QString recorded() const;

    std::unique_ptr<ContractPlatform> contract_;
    std::unique_ptr<QTemporaryDir> temporary_;
};

void TestPlatform::init()
{
    MachineOptions options;
    options.stockTool = QCoreApplication::applicationFilePath();
    options.opener = ScriptOpener::make;
    contract_ = std::make_unique<ContractPlatform>(options);
    temporary_ = std::make_unique<QTemporaryDir>();
    qunsetenv(recordVariable);
}

void TestPlatform::notElevatedWritesTheUsersHiveAlone()
{
    platform().openKey(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\There"_s)->setValue(u"a"_s, 1);
    MachineOptions options;
    options.elevated = false;
    contract_->restart(options);
    QVERIFY(!platform().isElevated());
    for (const QString &hive : {u"HKEY_LOCAL_MACHINE"_s, u"HKLM"_s}) {
        const auto key = platform().openKey(hive + u"\\SOFTWARE\\There"_s);
        QCOMPARE(key->value(u"a"_s), QVariant(1));
        key->setValue(u"a"_s, 2);
        key->setValue(u"b/c"_s, 2);
        key->remove(u"a"_s);
        key->setOwnValue(u"a"_s, u"x"_s);
        key->removeOwnValue(u"a"_s);
        QCOMPARE(key->value(u"a"_s), QVariant(1));
        QCOMPARE(key->allKeys(), QStringList{u"a"_s});
    }
    for (const QString &hive :
         {u"HKEY_LOCAL_MACHINE"_s, u"HKEY_CLASSES_ROOT"_s, u"HKCR"_s, u"HKEY_USERS"_s, u"HKU"_s}) {
        const auto key = platform().openKey(hive + u"\\New"_s);
        QVERIFY(!key->contains(u"a"_s)); // which would make the key
        key->setValue(u"a"_s, 1);
        QCOMPARE(key->value(u"a"_s, 7), QVariant(7));
        QVERIFY(!contract_->hasKey(hive + u"\\New"_s));
    }
    for (const QString &hive : {u"HKEY_CURRENT_USER"_s, u"HKCU"_s}) {
        platform().openKey(hive + u"\\New"_s)->setValue(hive, 1);
        QCOMPARE(platform().openKey(hive + u"\\New"_s)->value(hive), QVariant(1));
    }
}

QMap<QString, qint64> TestPlatform::walked(const QString &windowsPath) const
{
    QMap<QString, qint64> entries;
    QStringList doubles;
    platform().walk(windowsPath, [&](const WalkEntry &entry) {
        if (entries.contains(entry.path))
            doubles << entry.path;
        entries.insert(entry.path, entry.size);
        return true;
    });
    return doubles.isEmpty() ? entries : QMap<QString, qint64>{{u"named twice: "_s + doubles.join(u' '), -1}};
}

void TestPlatform::walkNamesEverythingBelow()
{
    writeFile(drive() + u"/Windows/a.txt"_s, "12345");
    writeFile(drive() + u"/Windows/Sub Folder/ü.bin"_s, QByteArray(70000, 'x'));
    writeFile(drive() + u"/Windows/.dotted/empty"_s, "");
    writeFile(drive() + u"/other.txt"_s, "x");
    QVERIFY(QDir().mkpath(drive() + u"/Windows/void"_s));
    const QString windows = drive() + u"/Windows"_s;
    QCOMPARE(walked(u"C:\\WINDOWS"_s), (QMap<QString, qint64>{{windows + u"/a.txt"_s, 5},
                                                              {windows + u"/Sub Folder"_s, 0},
                                                              {windows + u"/Sub Folder/ü.bin"_s, 70000},
                                                              {windows + u"/.dotted"_s, 0},
                                                              {windows + u"/.dotted/empty"_s, 0},
                                                              {windows + u"/void"_s, 0}}));
    QStringList order;
    platform().walk(u"C:\\Windows"_s, [&order](const WalkEntry &entry) {
        order << entry.path;
        return true;
    });
    QCOMPARE(order.indexOf(windows + u"/Sub Folder/ü.bin"_s), order.indexOf(windows + u"/Sub Folder"_s) + 1);
}

void TestPlatform::walkTakesABareDriveAsItsRoot()
{
    writeFile(drive() + u"/a/b"_s, "x");
    const QMap<QString, qint64> all{{drive() + u"/a"_s, 0}, {drive() + u"/a/b"_s, 1}};
    QCOMPARE(walked(u"C:"_s), all);
    QCOMPARE(walked(u"c:\\"_s), all);
    QCOMPARE(walked(u"C:/"_s), all);
}

void TestPlatform::walkLeavesOutHiddenEntries()
{
    writeFile(drive() + u"/seen/file"_s, "x");
    writeFile(drive() + u"/Hidden/below/file"_s, "x");
    writeFile(drive() + u"/seen/hidden.sys"_s, "x");
    writeFile(drive() + u"/seen/system.sys"_s, "x");
    contract_->machine().setAttributes(u"c:\\HIDDEN"_s, 0x2);
    contract_->machine().setAttributes(u"C:\\seen\\hidden.sys"_s, 0x26);
    contract_->machine().setAttributes(u"C:\\seen\\system.sys"_s, 0x24);
    QCOMPARE(walked(u"C:"_s).keys(),
             (QStringList{drive() + u"/seen"_s, drive() + u"/seen/file"_s, drive() + u"/seen/system.sys"_s}));
    // A walk that starts in it isn't kept out.
    QCOMPARE(walked(u"C:\\Hidden"_s).size(), 2);
}

void TestPlatform::walkNamesLinksAndDoesntFollow()
{
#ifdef Q_OS_UNIX
    writeFile(drive() + u"/folder/big"_s, QByteArray(1234, 'x'));
    QVERIFY(QFile::link(drive() + u"/folder"_s, drive() + u"/tofolder"_s));
    QVERIFY(QFile::link(drive() + u"/folder/big"_s, drive() + u"/tofile"_s));
    QVERIFY(QFile::link(drive(), drive() + u"/folder/loop"_s));
    QVERIFY(QFile::link(drive() + u"/absent"_s, drive() + u"/dangling"_s));
    QCOMPARE(mkfifo(QFile::encodeName(drive() + u"/pipe"_s).constData(), 0600), 0);
    QCOMPARE(walked(u"C:"_s), (QMap<QString, qint64>{{drive() + u"/folder"_s, 0},
                                                     {drive() + u"/folder/big"_s, 1234},
                                                     {drive() + u"/folder/loop"_s, 0},
                                                     {drive() + u"/tofolder"_s, 0},
                                                     {drive() + u"/tofile"_s, 1234}}));
#else
    QSKIP("links need a right of their own here");
#endif
}

void TestPlatform::walkEndsWhenTheVisitorHasEnough()
{
    for (int i = 0; i < 20; ++i)
        writeFile(drive() + u"/a/b%1/c"_s.arg(i), "x");
    for (int limit = 1; limit <= 41; limit += 5) {
        int count = 0;
        platform().walk(u"C:"_s, [&count, limit](const WalkEntry &) { return ++count < limit; });
        QCOMPARE(count, limit);
    }
}

void TestPlatform::walkOfWhatIsntThereGivesNothing()
{
    writeFile(drive() + u"/file"_s, "x");
    QVERIFY(walked(u"C:\\absent"_s).isEmpty());
    QVERIFY(walked(u"C:\\file"_s).isEmpty());
    QVERIFY(walked(u"D:"_s).isEmpty());
    QVERIFY(walked(u"/etc"_s).isEmpty());
}

void TestPlatform::walkOfADeepTree()
{
    const QString deep = u"/x"_s.repeated(250);
    QVERIFY(QDir().mkpath(drive() + deep));
    const QMap<QString, qint64> entries = walked(u"C:"_s);
    QCOMPARE(entries.size(), 250);
    QVERIFY(entries.contains(drive() + deep));
}

void TestPlatform::sizesOfFiles()
{
    const QString file = drive() + u"/Folder/file.txt"_s;
    writeFile(file, "three");
    QCOMPARE(platform().fileSize(file), 5);
    QCOMPARE(platform().fileSize(drive() + u"/missing"_s), 0);
}

void TestPlatform::attributesOfFilesAndFolders()
{
    const QString file = drive() + u"/Folder/file.txt"_s;
    writeFile(file, "x");
    QCOMPARE(platform().fileAttributes(file), 0x20u);
    QCOMPARE(platform().fileAttributes(drive() + u"/Folder"_s), 0x10u);
    platform().setFileAttributes(file, 0x22);
    QCOMPARE(platform().fileAttributes(file), 0x22u);
    QCOMPARE(walked(u"C:"_s).size(), 1);
    // What isn't there can't be read or changed, and no file takes the word that says so.
    const QString missing = drive() + u"/missing"_s;
    QCOMPARE(platform().fileAttributes(missing), invalidAttributes);
    platform().setFileAttributes(missing, 0x22);
    writeFile(missing, "x");
    QCOMPARE(platform().fileAttributes(missing), 0x20u);
    platform().setFileAttributes(missing, invalidAttributes);
    QCOMPARE(platform().fileAttributes(missing), 0x20u);
}

void TestPlatform::walkLeavesOutWhatLeadsOut()
{
#ifdef Q_OS_UNIX
    const QString outside = temporary_->filePath(u"outside"_s);
    writeFile(outside + u"/secret"_s, QByteArray(1234, 'x'));
    QVERIFY(QFile::link(outside, drive() + u"/folder"_s));
    QVERIFY(QFile::link(outside + u"/secret"_s, drive() + u"/file"_s));
    QVERIFY(walked(u"C:"_s).isEmpty());
    QVERIFY(walked(u"C:\\folder"_s).isEmpty());
#else
    QSKIP("links need a right of their own here");
#endif
}

void TestPlatform::attributesOfALinkAreItsOwn()
{
    const QString file = drive() + u"/file.txt"_s;
    const QString link = drive() + u"/link"_s;
    writeFile(file, "x");
    if (!QFile::link(file, link))
        QSKIP("no links here");
    platform().setFileAttributes(link, 0x2020);
    QCOMPARE(platform().fileAttributes(link), 0x2020u);
    QCOMPARE(platform().fileAttributes(file), 0x20u);
}

void TestPlatform::attributesSetDuringAWalkLastWhenItIsOver()
{
    const QString file = drive() + u"/file.txt"_s;
    writeFile(file, "x");
    platform().walk(u"C:"_s, [](const WalkEntry &entry) {
        platform().setFileAttributes(entry.path, 0x2020);
        return false;
    });
    QCOMPARE(Machine::open(contract_->folder())->attributes(file), 0x2020u);
}

void TestPlatform::attributesSetForWhatAWalkHasYetToComeTo()
{
    constexpr int count = 600; // more than a walk reads ahead
    QHash<QString, quint32> expected;
    QStringList files;
    for (int i = 0; i < count; ++i) {
        files << drive() + u"/file%1.txt"_s.arg(i);
        writeFile(files.last(), "x");
        expected.insert(files.last(), 0x20);
    }
    int visits = 0;
    QStringList wrong;
    platform().walk(u"C:"_s, [&](const WalkEntry &entry) {
        if (platform().fileAttributes(entry.path) != expected.value(entry.path, 0x10))
            wrong << entry.path;
        const QString &other = files.at(visits++ * 7 % count);
        platform().setFileAttributes(other, 0x2020);
        expected[other] = 0x2020;
        return true;
    });
    QCOMPARE(wrong, QStringList());
    QVERIFY(visits >= count);
}

void TestPlatform::programFiles_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("tool"); // empty where there is no such program
    QTest::newRow("name") << u"sc"_s << u"sc"_s;
    QTest::newRow("name in capitals") << u"SC"_s << u"sc"_s;
    QTest::newRow("with its end") << u"sc.exe"_s << u"sc"_s;
    QTest::newRow("in quotes") << u"\"cmd.EXE\""_s << u"cmd"_s;
    QTest::newRow("path") << u"C:\\Windows\\System32\\sc.exe"_s << u"sc"_s;
    QTest::newRow("path in another case, in quotes") << u"\"c:\\windows/SYSTEM32\\SC.EXE\""_s << u"sc"_s;
    QTest::newRow("path without its end") << u"C:\\Windows\\System32\\sc"_s << u"sc"_s;
    QTest::newRow("path that isn't there") << u"C:\\Windows\\sc.exe"_s << QString();
    QTest::newRow("tool that isn't there") << u"C:\\Windows\\System32\\cmd.exe"_s << QString();
    QTest::newRow("a folder of that name") << u"C:\\Windows\\folder\\sc"_s << QString();
    QTest::newRow("file that is no tool") << u"C:\\Windows\\System32\\notepad.exe"_s << QString();
    QTest::newRow("unknown name") << u"notepad"_s << QString();
    QTest::newRow("program of the host") << u"sh"_s << QString();
    QTest::newRow("path of the host") << u"/bin/sh"_s << QString();
    QTest::newRow("other end") << u"sc.bat"_s << QString();
    QTest::newRow("only one quote") << u"\"sc"_s << QString();
    QTest::newRow("two pairs of quotes") << u"\"\"sc\"\""_s << QString();
    QTest::newRow("nothing") << QString() << QString();
    QTest::newRow("empty quotes") << u"\"\""_s << QString();
    QTest::newRow("end alone") << u".exe"_s << QString();
    QTest::newRow("relative") << u"..\\sc.exe"_s << QString();
    QTest::newRow("bare drive") << u"C:sc"_s << QString();
}

void TestPlatform::programFiles()
{
    QFETCH(const QString, program);
    QFETCH(const QString, tool);
    writeFile(drive() + u"/Windows/System32/sc.exe"_s, "");
    writeFile(drive() + u"/Windows/System32/notepad.exe"_s, "");
    QVERIFY(QDir().mkpath(drive() + u"/Windows/folder/sc"_s));
    const QString file = platform().programFile(program);
    if (tool.isEmpty()) {
        QCOMPARE(file, QString());
        return;
    }
    QVERIFY(QFileInfo(file).isExecutable());
    const std::optional<AdmittedProgram> admitted = platform().admitProgram(program, {});
    QVERIFY(admitted);
    QCOMPARE(admitted->file, file);
    QCOMPARE(admitted->leading, QStringList({contract_->folder(), tool}));
}

void TestPlatform::aProgramThatIsMissingByAFault()
{
    writeFile(drive() + u"/Windows/System32/sc.exe"_s, "");
    ToolFault fault;
    fault.missing = true;
    contract_->machine().setFault(u"sc"_s, fault);
    QCOMPARE(platform().programFile(u"SC.exe"_s), QString());
    QCOMPARE(platform().programFile(u"C:\\Windows\\System32\\sc.exe"_s), QString());
    QVERIFY(!platform().programFile(u"cmd"_s).isEmpty());
    contract_->machine().clearFault(u"sc"_s);
    QVERIFY(!platform().programFile(u"sc"_s).isEmpty());
    fault.missing = false;
    fault.exitCode = 5; // fails, but is there
    contract_->machine().setFault(u"sc"_s, fault);
    QVERIFY(!platform().programFile(u"sc"_s).isEmpty());
}

void TestPlatform::unsignedProgramsAreNotForElevatedProcesses()
{
    const QString setup = u"C:\\Users\\Test\\OneDriveSetup.exe"_s;
    writeFile(drive() + u"/Users/Test/OneDriveSetup.exe"_s, "");
    contract_->machine().setUnsigned(setup, true);
    for (const bool elevated : {true, false}) {
        MachineOptions options;
        options.stockTool = QCoreApplication::applicationFilePath();
        options.elevated = elevated;
        contract_->restart(options);
        for (const QString &spelling :
             {setup, u'"' + setup + u'"', setup.toUpper(), u"C:/Users/Test/OneDriveSetup.exe"_s}) {
            QVERIFY(!platform().programFile(spelling).isEmpty());
            QCOMPARE(platform().admitProgram(spelling, {}).has_value(), !elevated);
        }
        const std::optional<AdmittedProgram> sc = platform().admitProgram(u"sc"_s, {});
        QVERIFY(sc);
        QCOMPARE(sc->file, platform().programFile(u"sc"_s));
    }
    contract_->machine().setUnsigned(setup, false);
    MachineOptions options;
    options.stockTool = QCoreApplication::applicationFilePath();
    contract_->restart(options);
    QCOMPARE(platform().admitProgram(setup, {})->file, platform().programFile(setup));
}

void TestPlatform::programsNeverComeFromTheHost()
{
    // Without the stock tool the machine has no programs, even if the host has one of the name on its path.
    const QByteArray path = qgetenv("PATH");
    writeFile(temporary_->filePath(u"sc"_s), "#!/bin/sh\n");
    QVERIFY(QFile::setPermissions(temporary_->filePath(u"sc"_s), QFile::ReadOwner | QFile::ExeOwner));
    qputenv("PATH", temporary_->path().toLocal8Bit() + ':' + path);
    MachineOptions options;
    options.stockTool = temporary_->filePath(u"absent"_s);
    contract_->restart(options);
    const QString file = platform().programFile(u"sc"_s);
    qputenv("PATH", path);
    QCOMPARE(file, QString());
}

void TestPlatform::exitCodesHave32Bits()
{
    contract_->machine().leaveExitCode(4711, 1056);
    QCOMPARE(platform().exitCode(4712, 3), 3);
    QCOMPARE(platform().exitCode(4711, 1056 & 0xFF), 1056);
    QCOMPARE(platform().exitCode(4711, 32), 32); // taken
    contract_->machine().leaveExitCode(4711, -1);
    QCOMPARE(platform().exitCode(4711, 255), -1);
}

void TestPlatform::whatTheMachineCouldNotDoIsSaid()
{
    platform().takeFailure();
    platform().startFailed(u"sc"_s, u"no memory"_s);
    QCOMPARE(platform().takeFailure(), u"sc can't be started: no memory"_s);
    // It ended without leaving its exit code.
    QCOMPARE(platform().exitCode(4712, 3), 3);
    QCOMPARE(platform().takeFailure(), u"a tool ended without having done its work"_s);
    QCOMPARE(platform().takeFailure(), QString());
}

void TestPlatform::foldersOfTheProgram()
{
    QCOMPARE(platform().programFolder(), contract_->folder() + u"/program"_s);
    QCOMPARE(platform().resourceFolder(), QCoreApplication::applicationDirPath());
    MachineOptions options;
    options.resourceFolder = temporary_->path();
    contract_->restart(options);
    QCOMPARE(platform().resourceFolder(), temporary_->path());
    QVERIFY(platform().isElevated());
}

void TestPlatform::launcherIsAskedInstead()
{
    QList<ShellStart> starts;
    MachineOptions options;
    options.launcher = [&starts](const ShellStart &start) { starts << start; };
    contract_->restart(options);
    platform().shellExecute({u"runas"_s, u"C:\\x.exe"_s, u"-a \"b c\""_s});
    QCOMPARE(starts.size(), 1);
    QCOMPARE(starts.first().verb, u"runas"_s);
    QCOMPARE(starts.first().file, u"C:\\x.exe"_s);
    QCOMPARE(starts.first().parameters, u"-a \"b c\""_s);
}

QString TestPlatform::recorded() const
{
    QFile file(temporary_->filePath(u"record"_s));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void TestPlatform::startsToolsOfTheMachine()
{
    MachineOptions options;
    options.elevated = false;
    options.stockTool = QCoreApplication::applicationFilePath();
    contract_->restart(options);
    qputenv(recordVariable, temporary_->filePath(u"record"_s).toLocal8Bit());
    platform().shellExecute({u"open"_s, u"cmd.exe"_s, u"/c start \"a b\" c"_s});
    QTRY_COMPARE_WITH_TIMEOUT(recorded(), u"machine|0|%1|cmd|/c|start|a b|c"_s.arg(contract_->folder()), 20000);
}

void TestPlatform::startsItselfElevated()
{
    MachineOptions options;
    options.elevated = false;
    contract_->restart(options);
    qputenv(recordVariable, temporary_->filePath(u"record"_s).toLocal8Bit());
    platform().shellExecute({u"runas"_s, QCoreApplication::applicationFilePath(), QString()});
    QTRY_COMPARE_WITH_TIMEOUT(recorded(), u"machine|1"_s, 20000);
    QCOMPARE(qgetenv("KESTRUNE_ELEVATED"), QByteArray("0")); // this process stays as it is
}

void TestPlatform::startsNothingOfTheHost()
{
    const QString script = temporary_->filePath(u"evil.sh"_s);
    writeFile(script, "#!/bin/sh\ntouch \"$1\"\n");
    QVERIFY(QFile::setPermissions(script, QFile::ReadOwner | QFile::ExeOwner));
    platform().shellExecute({u"open"_s, script, temporary_->filePath(u"record"_s)});
    platform().shellExecute({u"open"_s, u"touch"_s, temporary_->filePath(u"record"_s)});
    QTest::qWait(300);
    QVERIFY(!QFileInfo::exists(temporary_->filePath(u"record"_s)));
}

void TestPlatform::environmentInEverySpelling()
{
    const QByteArray path = qgetenv("PATH");
    contract_->machine().setEnvironment({{u"SystemRoot"_s, u"C:\\Windows"_s},
                                         {u"WINDIR"_s, u"C:\\WINDOWS"_s},
                                         {u"ProgramFiles(x86)"_s, u"C:\\Program Files (x86)"_s},
                                         {u"LocalAppData"_s, u"C:\\Users\\Jörg\\AppData\\Local"_s},
                                         {u"Path"_s, u"C:\\Windows\\System32"_s}});
    contract_->restart({});
    for (const char *name : {"windir", "WINDIR", "WinDir"})
        QCOMPARE(qEnvironmentVariable(name), u"C:\\WINDOWS"_s);
    for (const char *name : {"SystemRoot", "SYSTEMROOT", "systemroot"})
        QCOMPARE(qEnvironmentVariable(name), u"C:\\Windows"_s);
    QCOMPARE(qEnvironmentVariable("ProgramFiles(x86)"), u"C:\\Program Files (x86)"_s);
    for (const char *name : {"LocalAppData", "LOCALAPPDATA", "localappdata"})
        QCOMPARE(qEnvironmentVariable(name), u"C:\\Users\\Jörg\\AppData\\Local"_s);
    QCOMPARE(qgetenv("PATH"), path);
    QCOMPARE(QString::fromLocal8Bit(qgetenv("KESTRUNE_MACHINE")), contract_->folder());
    QCOMPARE(qgetenv("KESTRUNE_ELEVATED"), QByteArray("1"));
}

void TestPlatform::environmentOfAFormerMachineGoes()
{
    contract_->machine().setEnvironment({{u"UserDomain"_s, u"x"_s}, {u"LocalAppData"_s, u"x"_s}});
    contract_->restart({});
    QCOMPARE(qgetenv("USERDOMAIN"), QByteArray("x"));
    contract_->machine().setEnvironment({{u"LocalAppData"_s, u"y"_s}});
    contract_->restart({});
    QVERIFY(!qEnvironmentVariableIsSet("UserDomain") && !qEnvironmentVariableIsSet("USERDOMAIN"));
    QCOMPARE(qgetenv("LOCALAPPDATA"), QByteArray("y"));
}

void TestPlatform::variablesThatNobodyAsksForStayOut()
{
    const char *const names[] = {"LD_PRELOAD", "LD_LIBRARY_PATH", "QT_PLUGIN_PATH", "PATHEXT", "ComSpec",
                                 "TMP",        "TMPDIR"};
    QMap<QString, QString> variables;
    QMap<QString, QByteArray> before;
    for (const char *name : names) {
        variables.insert(QString::fromLatin1(name), u"/nowhere"_s);
        before.insert(QString::fromLatin1(name), qgetenv(name));
    }
    contract_->machine().setEnvironment(variables);
    contract_->restart({});
    for (const char *name : names)
        QCOMPARE(qgetenv(name), before.value(QString::fromLatin1(name)));
}

void TestPlatform::opensNoPageOfTheWeb()
{
    // Where there is a browser, it would open now, and nothing would be said.
    QTest::ignoreMessage(QtInfoMsg, "A rehearsal opens no page of the web: https://kestrune.example/download.html");
    QVERIFY(QDesktopServices::openUrl(QUrl(u"https://kestrune.example/download.html"_s)));
}

void TestPlatform::opensRegistryScripts()
{
    const QString script = contract_->machine().programFolder() + u"/StartMode.reg"_s;
    writeFile(script, "Windows Registry Editor Version 5.00\r\r\n\r\r\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Opened]\r\r\n"
                      "\"a\"=dword:00000004\r\r\n");
    const QString key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Opened"_s;
    MachineOptions options;
    options.opener = ScriptOpener::make;
    options.elevated = false;
    contract_->restart(options);
    QDesktopServices::openUrl(QUrl::fromLocalFile(script));
    QVERIFY(!contract_->hasKey(key));
    options.elevated = true;
    contract_->restart(options); // the former handler goes after the new one has come
    QVERIFY(QDesktopServices::openUrl(QUrl::fromLocalFile(script)));
    QCOMPARE(contract_->readRaw(key, u"a"_s)->data, registryDWord(4));

    writeFile(script, "Windows Registry Editor Version 5.00\n[HKEY_LOCAL_MACHINE\\SOFTWARE\\Second]\nrubbish\n");
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"StartMode.reg:3: "_s));
    QDesktopServices::openUrl(QUrl::fromLocalFile(script));
    QVERIFY(!contract_->hasKey(u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Second"_s));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"absent.reg: "_s));
    QDesktopServices::openUrl(QUrl::fromLocalFile(contract_->machine().programFolder() + u"/absent.reg"_s));
}

void TestPlatform::fixedDriveHasWhatIsThereWithoutALink()
{
    writeFile(drive() + u"/Folder/file.dll"_s, "");
    writeFile(contract_->machine().folder() + u"/drive_unc/host/share/file.dll"_s, "");
    for (const QString &path :
         {u"C:\\Folder\\file.dll"_s, u"c:/folder/FILE.DLL"_s, u"C:\\Folder"_s, u"C:\\Folder\\..\\Folder\\file.dll"_s})
        QVERIFY2(platform().isOnFixedDrive(path), qPrintable(path));
    for (const QString &path :
         {QString(), u"C:"_s, u"C:Folder\\file.dll"_s, u"\\Folder\\file.dll"_s, u"Folder\\file.dll"_s,
          u"\\\\host\\share\\file.dll"_s, u"//host/share/file.dll"_s, u"\\\\?\\C:\\Folder\\file.dll"_s,
          u"C:\\Folder\\absent.dll"_s, u"D:\\Folder\\file.dll"_s})
        QVERIFY2(!platform().isOnFixedDrive(path), qPrintable(path));
#ifdef Q_OS_UNIX
    QVERIFY(QFile::link(drive() + u"/Folder"_s, drive() + u"/Linked"_s));
    QVERIFY(QFile::link(drive() + u"/Folder/file.dll"_s, drive() + u"/Folder/linked.dll"_s));
    QVERIFY(!platform().isOnFixedDrive(u"C:\\Linked\\file.dll"_s));
    QVERIFY(!platform().isOnFixedDrive(u"C:\\Folder\\linked.dll"_s));
#endif
}

void TestPlatform::dllStrings()
{
    writeFile(drive() + u"/Windows/System32/shell32.dll"_s, "");
    writeFile(drive() + u"/Windows/System32/letter.txt"_s, "");
    contract_->machine().setDllStrings(u"C:\\Windows\\System32\\SHELL32.dll"_s, {{21, u"Desktop"_s}});
    contract_->machine().setDllStrings(u"C:\\Windows\\System32\\gone.dll"_s, {{1, u"x"_s}});
    const DllString found = platform().dllString(u"c:\\windows\\system32\\shell32.dll"_s, 21);
    QVERIFY(found.loaded);
    QCOMPARE(found.text, std::optional(u"Desktop"_s));
    QCOMPARE(found.error, 0U);
    const DllString noText = platform().dllString(u"C:\\Windows\\System32\\shell32.dll"_s, 22);
    QVERIFY(noText.loaded && !noText.text);
    QCOMPARE(platform().dllString(u"shell32.dll"_s, 21).text, std::optional(u"Desktop"_s));
    const DllString missing = platform().dllString(u"C:\\Windows\\System32\\gone.dll"_s, 1);
    QVERIFY(!missing.loaded && !missing.text);
    QCOMPARE(missing.error, 126U);
    const DllString noDll = platform().dllString(u"C:\\Windows\\System32\\letter.txt"_s, 1);
    QVERIFY(!noDll.loaded && !noDll.text);
    QCOMPARE(noDll.error, 193U);
    QCOMPARE(platform().dllString(u"C:\\Windows\\System32"_s, 1).error, 126U);
}

void TestPlatform::wmiTexts()
{
    contract_->machine().setWmiInstances(u"Win32_Processor"_s, {
                                                                   {{u"Name"_s, u"AMD Ryzen 5"_s},
                                                                    {u"NumberOfCores"_s, 6},
                                                                    {u"Negative"_s, -3},
                                                                    {u"Large"_s, 4294967295.0},
                                                                    {u"Larger"_s, 4294967301.0},
                                                                    {u"Huge"_s, 1e300},
                                                                    {u"Yes"_s, true},
                                                                    {u"No"_s, false},
                                                                    {u"Nothing"_s, QJsonValue::Null},
                                                                    {u"Size"_s, u"512105932800"_s},
                                                                    {u"List"_s, QJsonArray{1}}},
                                                                   {{u"Name"_s, QString()}},
                                                               });
    contract_->machine().setWmiInstances(u"Win32_Fan"_s, {});
    const QStringList properties{u"Name"_s, u"NUMBEROFCORES"_s, u"Negative"_s, u"Large"_s, u"Larger"_s, u"Yes"_s,
                                 u"No"_s,   u"Nothing"_s,       u"Absent"_s,   u"Size"_s,  u"List"_s};
    const WmiAnswer answer = platform().queryWmi(u"win32_processor"_s, properties);
    QVERIFY(answer.failures.isEmpty());
    QCOMPARE(answer.instances.size(), 2);
    QCOMPARE(answer.instances.at(0).join(u'|'), u"AMD Ryzen 5|6|-3|-1|5|65535|0|0|0|512105932800|0"_s);
    QCOMPARE(answer.instances.at(1).join(u'|'), u"|0|0|0|0|0|0|0|0|0|0"_s);
    QCOMPARE(platform().queryWmi(u"Win32_Processor"_s, {}).instances, (QList<QStringList>{{}, {}}));
    const WmiAnswer none = platform().queryWmi(u"Win32_Fan"_s, {u"Name"_s});
    QVERIFY(none.instances.isEmpty() && none.failures.isEmpty());
}

void TestPlatform::wmiOfAnUnknownClass()
{
    const WmiAnswer answer = platform().queryWmi(u"Win32_NoSuchThing"_s, {u"Name"_s});
    QVERIFY(answer.instances.isEmpty());
    QCOMPARE(answer.failures.size(), 1);
    QCOMPARE(answer.failures.first().step, WmiStep::Query);
    QCOMPARE(answer.failures.first().code, qint32(0x80041010U));
}

void TestPlatform::pausesAreRecorded()
{
    constexpr int days = 24 * 60 * 60 * 1000;
    platform().pause(20 * days); // not slept
    platform().pause(0);
    platform().pause(100);
    QCOMPARE(contract_->machinePlatform().takePauses(), (QList<int>{20 * days, 0, 100}));
    QVERIFY(contract_->machinePlatform().takePauses().isEmpty());
}

void TestPlatform::pausesAreSleptByPace()
{
    MachineOptions options;
    options.pace = 0.5;
    contract_->restart(options);
    QElapsedTimer timer;
    timer.start();
    platform().pause(125);
    QVERIFY(timer.nsecsElapsed() >= 62'000'000);
}

void TestPlatform::pausesEndWhenInterrupted()
{
    MachineOptions options;
    options.pace = 1;
    contract_->restart(options);
    const std::unique_ptr<QThread> thread(QThread::create([] { platform().pause(600000); }));
    thread->start();
    QList<int> pauses;
    QTRY_VERIFY(!(pauses += contract_->machinePlatform().takePauses()).isEmpty());
    QCOMPARE(pauses, QList<int>{600000});
    QVERIFY(!thread->wait(50));
    thread->requestInterruption();
    QVERIFY(thread->wait(20000));
}

/** Where the environment names a file, the program was started by a test. */
static const SuiteHelper recorder([](int argc, char **argv) -> std::optional<int> {
    const QByteArray file = qgetenv(recordVariable);
    if (file.isEmpty())
        return std::nullopt;
    const QCoreApplication application(argc, argv);
    record(QString::fromLocal8Bit(file));
    return 0;
});

KESTRUNE_SUITE(TestPlatform)
#include "tst_platform.moc"
