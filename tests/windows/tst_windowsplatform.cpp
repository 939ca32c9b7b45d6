// SPDX-License-Identifier: GPL-3.0-or-later
// The seam on the Windows that the test runs on, beside the registry.

#include "platform/windows/windowsplatform.h"
#include "support/files.h"
#include "support/suite.h"
#include "work/command.h"
#include "work/workthread.h"

#include <QElapsedTimer>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <windows.h>

#include <shlobj.h>

using namespace Qt::StringLiterals;

namespace {

const wchar_t *wide(const QString &text)
{
    return reinterpret_cast<const wchar_t *>(text.utf16());
}

QString exitWith()
{
    return QCoreApplication::applicationDirPath() + u"/exitwith.exe"_s;
}

QStringList walked(const QString &folder)
{
    QStringList entries;
    platform().walk(folder, [&](const WalkEntry &entry) {
        entries.append(entry.path.mid(folder.size()) + u' ' + QString::number(entry.size));
        return true;
    });
    entries.sort();
    return entries;
}

} // namespace

class TestWindowsPlatform : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { setPlatform(std::make_unique<WindowsPlatform>()); }
    void cleanupTestCase() { setPlatform(nullptr); }

    void windowsPathIsItsOwnHostPath();
    void programAndResourceFoldersHoldTheProgram();
    void elevationIsThatOfTheToken();

    void fixedDriveHasWhatIsThere();
    void stringsAreThoseOfTheDll_data();
    void stringsAreThoseOfTheDll();
    void missingDllGivesTheSystemsError();
    void fileThatIsNoDllGivesTheSystemsError();

    void wmiGivesTextsAndNumbers();
    void wmiPropertyThatIsntThereReadsAsANumber();
    void wmiClassThatIsntThereGivesNothing();
    void wmiIsAskedFromTwoThreadsAtOnce();

    void processIdsHoldThisProcess();
    void freeSpaceIsThatOfTheSystemDrive();
    void monitorTellsTheSystemsFigures();
    void reportTellsTheSystemsTexts();

    void bareNamesAreTheSystemsOwn_data();
    void bareNamesAreTheSystemsOwn();
    void onlyFullPathsArePrograms_data();
    void onlyFullPathsArePrograms();
    void plantedToolsAreNotStarted();

    void exitCodesHave32Bits_data();
    void exitCodesHave32Bits();
    void programInQuotesStarts();
    void programThatIsntThereFailsAtOnce();
    void hangingProgramIsEnded();

    void walkNamesAllButWhatIsHidden();
    void walkEndsWhereTheVisitorHasEnough();
    void walkOverABareDriveBeginsAtItsRoot();
    void walkOverNothingGivesNothing();

    void attributesAreThoseOfTheSystem();

    void pauseLastsAsLongAsAsked();
    void pauseEndsWithTheInterruption();
    void shellStartsAProgramWithParameters();
};

void TestWindowsPlatform::windowsPathIsItsOwnHostPath()
{
    QCOMPARE(platform().hostPath(u"C:\\Windows\\System32\\x.dll"_s), u"C:\\Windows\\System32\\x.dll"_s);
}

void TestWindowsPlatform::programAndResourceFoldersHoldTheProgram()
{
    QVERIFY(QFile::exists(platform().programFolder() + u"/exitwith.exe"_s));
    QCOMPARE(platform().resourceFolder(), platform().programFolder());
}

void TestWindowsPlatform::elevationIsThatOfTheToken()
{
    HANDLE token = nullptr;
    QVERIFY(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token));
    TOKEN_ELEVATION_TYPE type{};
    DWORD size = sizeof(type);
    QVERIFY(GetTokenInformation(token, TokenElevationType, &type, size, &size));
    CloseHandle(token);
    // Without a divided account it is elevated if the user is an administrator.
    const bool expected = type == TokenElevationTypeDefault ? IsUserAnAdmin() != FALSE : type == TokenElevationTypeFull;
    QCOMPARE(platform().isElevated(), expected);
}

void TestWindowsPlatform::fixedDriveHasWhatIsThere()
{
    for (const QString &path : {u"C:\\Windows\\System32\\kernel32.dll"_s, u"c:/windows/system32/KERNEL32.DLL"_s,
                                u"C:\\Windows"_s, u"C:\\Windows\\..\\Windows\\System32"_s})
        QVERIFY2(platform().isOnFixedDrive(path), qPrintable(path));
    for (const QString &path :
         {QString(), u"C:"_s, u"C:Windows"_s, u"\\Windows"_s, u"kernel32.dll"_s, u"\\\\localhost\\C$\\Windows"_s,
          u"\\\\?\\C:\\Windows"_s, u"C:\\Windows\\nosuchthing.dll"_s, u"1:\\Windows"_s, u"C:\\Windows\\*"_s})
        QVERIFY2(!platform().isOnFixedDrive(path), qPrintable(path));
}

void TestWindowsPlatform::stringsAreThoseOfTheDll_data()
{
    QTest::addColumn<QString>("dll");
    QTest::newRow("user32") << u"C:\\Windows\\System32\\user32.dll"_s;
    QTest::newRow("shell32") << u"C:\\Windows\\System32\\shell32.dll"_s;
    QTest::newRow("slashes") << u"C:/windows/system32/shell32.dll"_s;
}

void TestWindowsPlatform::stringsAreThoseOfTheDll()
{
    QFETCH(const QString, dll);
    // This one has them loaded as code anyway, so that the system itself can be asked.
    const HMODULE module = GetModuleHandleW(wide(dll.section(QChar(dll.at(2)), -1)));
    QVERIFY(module != nullptr);
    int count = 0;
    for (uint id = 0; id < 1200; ++id) {
        wchar_t buffer[2048];
        const int length = LoadStringW(module, id, buffer, 2048);
        const DllString read = platform().dllString(dll, id);
        QVERIFY(read.loaded);
        QCOMPARE(read.text.has_value(), length > 0);
        if (read.text)
            QCOMPARE(*read.text, QString::fromWCharArray(buffer, length));
        count += length > 0 ? 1 : 0;
    }
    QVERIFY(count > 0);
}

void TestWindowsPlatform::missingDllGivesTheSystemsError()
{
    const DllString read = platform().dllString(u"C:\\Windows\\System32\\nosuchthing.dll"_s, 1);
    QVERIFY(!read.loaded);
    QVERIFY(!read.text);
    QVERIFY(read.error == ERROR_FILE_NOT_FOUND || read.error == ERROR_MOD_NOT_FOUND);
}

void TestWindowsPlatform::fileThatIsNoDllGivesTheSystemsError()
{
    const QTemporaryDir folder;
    writeFile(folder.filePath(u"text.dll"_s), "no DLL");
    const DllString read = platform().dllString(folder.filePath(u"text.dll"_s), 1);
    QVERIFY(!read.loaded);
    QCOMPARE(read.error, quint32(ERROR_BAD_EXE_FORMAT));
}

void TestWindowsPlatform::wmiGivesTextsAndNumbers()
{
    const WmiAnswer system =
        platform().queryWmi(u"Win32_OperatingSystem"_s, {u"FreePhysicalMemory"_s, u"BuildNumber"_s});
    QVERIFY(system.failures.isEmpty());
    QCOMPARE(system.instances.size(), 1);
    QVERIFY(system.instances.at(0).at(0).toLongLong() > 0);
    QVERIFY(system.instances.at(0).at(1).toInt() >= 10240);
    const WmiAnswer memory = platform().queryWmi(u"Win32_ComputerSystem"_s, {u"TotalPhysicalMemory"_s});
    QCOMPARE(memory.instances.size(), 1);
    QVERIFY(memory.instances.at(0).at(0).toLongLong() > 0);
}

void TestWindowsPlatform::wmiPropertyThatIsntThereReadsAsANumber()
{
    const WmiAnswer answer = platform().queryWmi(u"Win32_OperatingSystem"_s, {u"NoSuchProperty"_s});
    QCOMPARE(answer.instances, QList<QStringList>{{u"0"_s}});
}

void TestWindowsPlatform::wmiClassThatIsntThereGivesNothing()
{
    QVERIFY(platform().queryWmi(u"Win32_NoSuchClass"_s, {u"Caption"_s}).instances.isEmpty());
}

void TestWindowsPlatform::wmiIsAskedFromTwoThreadsAtOnce()
{
    WmiAnswer answers[2];
    std::unique_ptr<QThread> threads[2];
    for (int i = 0; i < 2; ++i) {
        threads[i].reset(QThread::create(
            [&answer = answers[i]] { answer = platform().queryWmi(u"win32_process"_s, {u"HandleCount"_s}); }));
        threads[i]->start();
    }
    for (int i = 0; i < 2; ++i) {
        QVERIFY(threads[i]->wait(20000));
        QVERIFY(answers[i].failures.isEmpty());
        QVERIFY(!answers[i].instances.isEmpty());
    }
}

void TestWindowsPlatform::processIdsHoldThisProcess()
{
    QVERIFY(platform().processIds().contains(GetCurrentProcessId()));
}

void TestWindowsPlatform::freeSpaceIsThatOfTheSystemDrive()
{
    constexpr qint64 tolerance = 1 << 30; // others write at the same time
    ULARGE_INTEGER freeBytes{};
    QVERIFY(GetDiskFreeSpaceExW(wide(platform().rootDrive().path), nullptr, nullptr, &freeBytes));
    QVERIFY(qAbs(static_cast<qint64>(freeBytes.QuadPart - platform().rootDrive().freeBytes)) < tolerance);
}

void TestWindowsPlatform::monitorTellsTheSystemsFigures()
{
    static const QRegularExpression pattern(u"^cpu -?\\d+% \\| processes [1-9]\\d* \\| threads [1-9]\\d* \\| "
                                            "handles \\d+ \\| free memory [1-9]\\d* Mo \\| free on C: \\d+Go$"_s);
    WorkThread worker;
    QString line;
    connect(&worker, &WorkThread::valueChanged, &worker, [&line](const QString &text) { line = text; });
    worker.monitorThreadAndHandle = 1;
    worker.startJob(JobMonitor);
    QTRY_VERIFY_WITH_TIMEOUT(!line.isEmpty(), 20000);
    QVERIFY(worker.wait(20000));
    QVERIFY2(pattern.match(line).hasMatch(), qUtf8Printable(line));
}

void TestWindowsPlatform::reportTellsTheSystemsTexts()
{
    WorkThread worker;
    QStringList lines;
    connect(&worker, &WorkThread::valueChanged, &worker, [&lines](const QString &text) { lines.append(text); });
    worker.startJob(JobGetSystemInfo);
    QTRY_COMPARE_WITH_TIMEOUT(lines.value(lines.size() - 1), u"pgr:value:7"_s, 60000);
    QVERIFY(worker.wait(20000));
    QVERIFY2(worker.winName.contains(u"Windows"_s), qUtf8Printable(worker.winName));
    QVERIFY2(worker.winBuild.toInt() >= 10240, qUtf8Printable(worker.winBuild));
    QVERIFY(worker.winOnSsd == u"Yes" || worker.winOnSsd == u"No");
    for (const QString &text : {worker.memTotal, worker.memFree})
        QVERIFY2(text.endsWith(u" Go"_s), qUtf8Printable(text));
    bool isNumber = false; // 0 where Wine can't count them
    worker.cpuCore.toInt(&isNumber);
    QVERIFY2(isNumber, qUtf8Printable(worker.cpuCore));
    QVERIFY(worker.cpuThread.toInt() >= worker.cpuCore.toInt());
    const QSize screen(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN));
    QCOMPARE(worker.gpuDesktopSize, u"%1 x %2"_s.arg(screen.width()).arg(screen.height()));
}

void TestWindowsPlatform::bareNamesAreTheSystemsOwn_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &tool : {u"sc"_s, u"schtasks"_s, u"taskkill"_s, u"reg"_s, u"cmd"_s, u"CMD.EXE"_s}) {
        const QString name = tool.endsWith(u".EXE") ? tool : tool + u".exe"_s;
        QTest::newRow(qPrintable(tool)) << u"C:\\windows\\system32\\"_s + name;
    }
    QTest::newRow("powershell") << u"C:\\windows\\system32\\WindowsPowerShell\\v1.0\\powershell.exe"_s;
}

void TestWindowsPlatform::bareNamesAreTheSystemsOwn()
{
    QFETCH(const QString, file);
    QCOMPARE(platform().programFile(QString::fromLatin1(QTest::currentDataTag())).toLower(), file.toLower());
}

void TestWindowsPlatform::onlyFullPathsArePrograms_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<bool>("found");
    const QString own = QDir::toNativeSeparators(exitWith());
    QTest::newRow("a full path") << own << true;
    QTest::newRow("with slashes") << exitWith() << true;
    QTest::newRow("in quotes") << u'"' + own + u'"' << true;
    QTest::newRow("without its suffix") << own.chopped(4) << true;
    // Which lies beside the program, where Windows looks first
    QTest::newRow("a name that isn't the system's") << u"exitwith"_s << false;
    QTest::newRow("the same with its suffix") << u"exitwith.exe"_s << false;
    QTest::newRow("in the current folder") << u".\\exitwith.exe"_s << false;
    QTest::newRow("of the drive's current folder") << own.first(2) + u"exitwith.exe"_s << false;
    QTest::newRow("of the current drive") << own.sliced(2) << false;
    QTest::newRow("above the system's folder") << u"..\\explorer.exe"_s << false;
    QTest::newRow("a folder") << u"C:\\Windows"_s << false;
    QTest::newRow("what isn't there") << u"C:\\Windows\\nosuchprogram.exe"_s << false;
    QTest::newRow("nothing") << QString() << false;
}

void TestWindowsPlatform::onlyFullPathsArePrograms()
{
    QFETCH(const QString, program);
    QFETCH(const bool, found);
    const QString current = QDir::currentPath();
    QVERIFY(QDir::setCurrent(QCoreApplication::applicationDirPath()));
    const QString file = platform().programFile(program);
    QVERIFY(QDir::setCurrent(current));
    QCOMPARE(!file.isEmpty(), found);
}

/** Beside the program and in the current folder, which Windows would look into before its own. */
void TestWindowsPlatform::plantedToolsAreNotStarted()
{
    constexpr int planted = 4711;
    const QString current = QDir::currentPath();
    const QTemporaryDir folder;
    const QStringList places{folder.path(), QCoreApplication::applicationDirPath()};
    QVERIFY(QDir::setCurrent(folder.path()));
    for (const QString &place : places) {
        QVERIFY(QFile::copy(exitWith(), place + u"/schtasks.exe"_s));
        Command command;
        command.start(u"schtasks"_s, {QString::number(planted)});
        QVERIFY(!command.failedToStart());
        command.waitForFinished();
        QVERIFY(command.exitCode() != planted);
        QVERIFY(QFile::remove(place + u"/schtasks.exe"_s));
    }
    QVERIFY(QDir::setCurrent(current));
}

void TestWindowsPlatform::exitCodesHave32Bits_data()
{
    addColumns<QString, int>("argument", "code");
    QTest::newRow("success") << u"0"_s << 0;
    QTest::newRow("already running") << u"1056"_s << 1056;
    QTest::newRow("no such service") << u"1060"_s << 1060;
    QTest::newRow("negative") << u"-2147217392"_s << -2147217392;
}

void TestWindowsPlatform::exitCodesHave32Bits()
{
    QFETCH(const QString, argument);
    QFETCH(const int, code);
    Command command;
    command.start(exitWith(), {argument});
    QVERIFY(!command.failedToStart());
    command.waitForFinished();
    QCOMPARE(command.exitCode(), code);
    command.close();
    QCOMPARE(command.exitCode(), code);
}

void TestWindowsPlatform::programInQuotesStarts()
{
    Command command;
    command.start(u'"' + exitWith() + u'"', {u"1062"_s});
    QVERIFY(!command.failedToStart());
    command.waitForFinished();
    QCOMPARE(command.exitCode(), 1062);
}

void TestWindowsPlatform::programThatIsntThereFailsAtOnce()
{
    Command command;
    command.start(u"nosuchprogram"_s, {});
    QVERIFY(command.failedToStart());
    QCOMPARE(command.exitCode(), 0);
    command.start(QString(), {});
    QVERIFY(command.failedToStart());
}

void TestWindowsPlatform::hangingProgramIsEnded()
{
    Command::timeLimit = 200;
    Command command;
    command.start(exitWith(), {u"7"_s, u"60000"_s});
    command.waitForFinished();
    Command::timeLimit = 30000;
    QCOMPARE(command.exitCode(), 0);
    command.close();
    QCOMPARE(command.exitCode(), Command::endedByForce);
}

void TestWindowsPlatform::walkNamesAllButWhatIsHidden()
{
    const QTemporaryDir folder;
    QVERIFY(QDir(folder.path()).mkpath(u"sub/deep"_s) && QDir(folder.path()).mkpath(u"hidden"_s));
    writeFile(folder.filePath(u"a.txt"_s), "abc");
    writeFile(folder.filePath(u".dot"_s), "1");
    writeFile(folder.filePath(u"sub/deep/b.txt"_s), "12345");
    writeFile(folder.filePath(u"hidden/c.txt"_s), "1");
    writeFile(folder.filePath(u"d.txt"_s), "1");
    for (const QString &name : {u"hidden"_s, u"d.txt"_s})
        QVERIFY(SetFileAttributesW(wide(folder.filePath(name)), FILE_ATTRIBUTE_HIDDEN));
    QCOMPARE(walked(folder.path()),
             (QStringList{u"/.dot 1"_s, u"/a.txt 3"_s, u"/sub 0"_s, u"/sub/deep 0"_s, u"/sub/deep/b.txt 5"_s}));
}

void TestWindowsPlatform::walkEndsWhereTheVisitorHasEnough()
{
    int visits = 0;
    platform().walk(u"C:\\Windows"_s, [&visits](const WalkEntry &) { return ++visits < 3; });
    QCOMPARE(visits, 3);
}

void TestWindowsPlatform::walkOverABareDriveBeginsAtItsRoot()
{
    QStringList first;
    platform().walk(u"C:"_s, [&first](const WalkEntry &entry) {
        if (entry.path.count(u'/') == 1)
            first.append(entry.path.toLower());
        return first.size() < 50 && !first.contains(u"c:/windows"_s);
    });
    QVERIFY(first.contains(u"c:/windows"_s));
}

void TestWindowsPlatform::walkOverNothingGivesNothing()
{
    QVERIFY(walked(u"C:\\no such folder"_s).isEmpty());
}

void TestWindowsPlatform::attributesAreThoseOfTheSystem()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(u"file.txt"_s);
    writeFile(file, "x");
    QCOMPARE(platform().fileAttributes(folder.path()) & FILE_ATTRIBUTE_DIRECTORY, quint32(FILE_ATTRIBUTE_DIRECTORY));
    platform().setFileAttributes(file, FILE_ATTRIBUTE_HIDDEN);
    QCOMPARE(platform().fileAttributes(file) & FILE_ATTRIBUTE_HIDDEN, quint32(FILE_ATTRIBUTE_HIDDEN));
    platform().setFileAttributes(file, FILE_ATTRIBUTE_NORMAL);
    QCOMPARE(platform().fileAttributes(file) & FILE_ATTRIBUTE_HIDDEN, 0u);
    QCOMPARE(platform().fileAttributes(folder.filePath(u"missing"_s)), invalidAttributes);
    platform().setFileAttributes(folder.filePath(u"missing"_s), FILE_ATTRIBUTE_HIDDEN);
    platform().setFileAttributes(file, invalidAttributes);
    QVERIFY(QFile::exists(file));
}

void TestWindowsPlatform::pauseLastsAsLongAsAsked()
{
    QElapsedTimer timer;
    timer.start();
    platform().pause(120);
    QVERIFY(timer.elapsed() >= 119);
}

void TestWindowsPlatform::pauseEndsWithTheInterruption()
{
    const std::unique_ptr<QThread> thread(QThread::create([] { platform().pause(600000); }));
    thread->start();
    QThread::msleep(30);
    QVERIFY(thread->isRunning());
    thread->requestInterruption();
    QVERIFY(thread->wait(20000));
}

void TestWindowsPlatform::shellStartsAProgramWithParameters()
{
    const QTemporaryDir folder;
    const QString file = QDir::toNativeSeparators(folder.filePath(u"started"_s));
    platform().shellExecute({u"open"_s, u"C:\\Windows\\System32\\cmd.exe"_s, u"/c echo yes>"_s + file});
    QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(file) && QFile(file).size() > 0, 20000);
    // The folder goes when nobody holds the file any more.
    QTRY_VERIFY_WITH_TIMEOUT(QFile::remove(file) || !QFile::exists(file), 20000);
}

KESTRUNE_SUITE(TestWindowsPlatform)
#include "tst_windowsplatform.moc"
