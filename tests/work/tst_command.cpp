// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of how stock tools are run, with real processes.

#include "fakeplatform.h"
#include "support/processes.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/command.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QElapsedTimer>
#include <QTest>
#include <QThread>

#include <limits>
#include <thread>

#ifndef Q_OS_WIN
#include <csignal>
#include <sys/syscall.h>
#include <unistd.h>
#endif

using namespace Qt::StringLiterals;

namespace {

const QString startFailure = u"Process failed to start: The system cannot find the file specified."_s;

/** Runs a command to its end. */
int exitCodeOf(Command &command, const QString &program, const QStringList &arguments)
{
    command.start(program, arguments);
    command.waitForFinished();
    return command.exitCode();
}

/** The tools of a machine that run, by their ids. */
QList<qint64> toolsOf(const QString &machine)
{
    QList<qint64> programs;
    for (const QString &process : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        QFile file(u"/proc/"_s + process + u"/cmdline"_s);
        if (file.open(QIODevice::ReadOnly)
            && file.readAll().startsWith(stockTool().toLocal8Bit() + '\0' + machine.toLocal8Bit() + '\0'))
            programs.append(process.toLongLong());
    }
    return programs;
}

/** How many tools of the machine run; -1 where that is unknown. */
int runningTools(const TestMachine &machine)
{
    if (!QDir(u"/proc/self"_s).exists())
        return -1;
    return static_cast<int>(toolsOf(machine.folder()).size());
}

/** Every program is there when it is looked for. */
class PromisingPlatform : public FakePlatform
{
public:
    QString programFile(const QString &program) const override { return program; }
};

/** Carries programs out itself. */
class AnsweringPlatform : public PromisingPlatform
{
public:
    std::optional<AdmittedProgram> admitProgram(const QString &program, const QStringList &arguments) const override
    {
        return AdmittedProgram{program, {}, {}, [arguments] {
                                   return ProgramAnswer{int(arguments.size()), arguments.join(u' ').toUtf8()};
                               }};
    }
};

std::atomic<bool> nothingCanBeKilled = false;

void forceToEnd([[maybe_unused]] qint64 process)
{
#ifndef Q_OS_WIN
    kill(static_cast<pid_t>(process), SIGKILL);
#endif
}

/** Ends the machine's tools after a time, if it is still there then: whoever waits for ever is freed. */
class Rescue
{
public:
    explicit Rescue(const TestMachine &machine)
        : thread_([folder = machine.folder()](const std::stop_token &stop) {
            for (const QDeadlineTimer deadline(20000); !deadline.hasExpired() && !stop.stop_requested();)
                QThread::msleep(10);
            nothingCanBeKilled = false;
            if (!stop.stop_requested()) {
                for (const qint64 tool : toolsOf(folder))
                    forceToEnd(tool);
            }
        })
    {
    }

private:
    std::jthread thread_;
};

} // namespace

#ifndef Q_OS_WIN
/** Stands before the system's own, for the whole program: what QProcess calls. */
extern "C" Q_DECL_EXPORT int kill(pid_t process, int signal) noexcept
{
    if (signal == SIGKILL && nothingCanBeKilled)
        return 0;
    return static_cast<int>(syscall(SYS_kill, process, signal));
}
#endif

class TestCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        Command::timeLimit = 30000;
        Command::killLimit = 5000;
    }

    void theTimeLimitIs30Seconds();
    void aProgramThatIsMissingIsKnownRightAfterTheStart_data();
    void aProgramThatIsMissingIsKnownRightAfterTheStart();
    void aProgramThatGoesBeforeItsStartFailsToStart();
    void noProgramOfTheHostIsEverStarted_data();
    void noProgramOfTheHostIsEverStarted();
    void aProgramMayStandInQuotes_data();
    void aProgramMayStandInQuotes();
    void aQuotedProgramThatIsMissingFailsToStart();
    void exitCodesHave32Bits_data();
    void exitCodesHave32Bits();
    void theExitCodeReads0WhileTheProgramRuns();
    void theExitCodeStaysWhenItIsReadAgain();
    void argumentsArriveAsTheyAre_data();
    void argumentsArriveAsTheyAre();
#ifndef Q_OS_WIN
    void aProgramThatSomebodyElseEndsSaysSo();
#endif
    void aHangingProgramReads0BeforeItIsClosedAndAFailureAfter();
    void closingEndsTheProgram();
    void destroyingEndsTheProgram();
    void closingGivesUpOnAProgramThatCannotBeKilled();
    void aProgramThatIsLeftRunningReads0AndRunsOn();
    void aProgramThatHasEndedIsNotLeftRunning();
    void closingAProgramThatHasEndedKeepsItsExitCode();
    void whatThePlatformCarriesOutItselfReadsLikeAProgram();
    void whatThePlatformCarriesOutItselfIsOverWhenItWasWaitedFor();
    void theNextCommandRunsThoughTheFirstOneHangs();
    void theLastCommandsExitCodeCounts();
    void aMissingProgramAfterAFailureReads0();
    void whatAHangingProgramHasPrintedCanBeRead();
    void tenMegabytesOfOutputArriveWhole();
    void theNextCommandDoesNotGetTheFirstOnesOutput();
    void waitingForOutputOfAProgramThatHasEndedIsDoneAtOnce();
    void waitingForOutputOfASilentProgramEndsAtTheTimeLimit();
    void waitingForOutputEndsWhenThereIsSome();
};

void TestCommand::theTimeLimitIs30Seconds()
{
    QCOMPARE(Command::timeLimit.load(), 30000);
}

void TestCommand::aProgramThatIsMissingIsKnownRightAfterTheStart_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("unknown name") << u"nosuchtool"_s;
    QTest::newRow("stock tool that this machine lacks") << u"sc"_s;
    QTest::newRow("full path") << u"C:\\Windows\\System32\\nosuchtool.exe"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("two quotes") << u"\"\""_s;
    QTest::newRow("blank") << u" "_s;
}

void TestCommand::aProgramThatIsMissingIsKnownRightAfterTheStart()
{
    QFETCH(const QString, program);
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.missing = true});
    Command command;
    command.start(program, {u"query"_s});
    QVERIFY(command.failedToStart());
    QCOMPARE(command.errorString(), startFailure);
    QCOMPARE(command.exitCode(), 0);
    command.waitForFinished();
    command.waitForReadyRead();
    QCOMPARE(command.readAllStandardOutput(), QByteArray());
    QCOMPARE(command.exitCode(), 0);
    command.close();
    QCOMPARE(command.exitCode(), 0);
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
}

void TestCommand::aProgramThatGoesBeforeItsStartFailsToStart()
{
    const PlatformInForce<PromisingPlatform> platform;
    Command command;
    command.start(QDir::tempPath() + u"/gone/sc.exe"_s, {u"query"_s});
    QVERIFY(command.failedToStart());
    QVERIFY(!command.errorString().isEmpty()); // in the system's words
    command.waitForFinished();
    QCOMPARE(command.exitCode(), 0);
}

void TestCommand::noProgramOfTheHostIsEverStarted_data()
{
    QTest::addColumn<QString>("program");
    for (const char *program : {"ls", "sh", "true", "/bin/sh", "\"/bin/sh\"", "\\bin\\sh", "../../../../../bin/sh",
                                "C:\\..\\..\\..\\..\\bin\\sh", "/usr/bin/env", "notepad", "explorer.exe"})
        QTest::newRow(program) << QString::fromLatin1(program);
}

void TestCommand::noProgramOfTheHostIsEverStarted()
{
    QFETCH(const QString, program);
    const TestMachine machine;
    Command command;
    command.start(program, {});
    QVERIFY(command.failedToStart());
}

void TestCommand::aProgramMayStandInQuotes_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("bare name") << u"sc"_s;
    QTest::newRow("bare name in quotes") << u"\"sc\""_s;
    QTest::newRow("path") << u"C:\\Windows\\System32\\sc.exe"_s;
    QTest::newRow("path in quotes") << u"\"C:\\Windows\\System32\\sc.exe\""_s;
    QTest::newRow("path with a blank in quotes") << u"\"C:\\Program Files\\Tools\\sc.exe\""_s;
}

void TestCommand::aProgramMayStandInQuotes()
{
    QFETCH(const QString, program);
    TestMachine machine;
    machine.addFile(u"C:\\Windows\\System32\\sc.exe"_s);
    machine.addFile(u"C:\\Program Files\\Tools\\sc.exe"_s);
    machine.machine().setFault(u"sc"_s, {.exitCode = 1062});
    Command command;
    QCOMPARE(exitCodeOf(command, program, {u"stop"_s, u"x"_s}), 1062);
    QVERIFY(!command.failedToStart());
    QCOMPARE(machine.commands(), (QList<LoggedCommand>{{u"sc"_s, {u"stop"_s, u"x"_s}, 1062}}));
}

void TestCommand::aQuotedProgramThatIsMissingFailsToStart()
{
    const TestMachine machine;
    Command command;
    command.start(u"\"C:\\Windows\\SysWOW64\\sc.exe\""_s, {});
    QVERIFY(command.failedToStart());
    QCOMPARE(command.exitCode(), 0);
}

void TestCommand::exitCodesHave32Bits_data()
{
    QTest::addColumn<int>("code");
    for (const int code : {0, 1, 5, 128, 255, 256, 1051, 1056, 1058, 1060, 1062, 1072, 65536, -1, -1073741510,
                           std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        QTest::addRow("%d", code) << code;
}

void TestCommand::exitCodesHave32Bits()
{
    QFETCH(const int, code);
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = code});
    Command command;
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"query"_s}), code);
    QVERIFY(!command.failedToStart());
}

void TestCommand::theExitCodeReads0WhileTheProgramRuns()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = 1060});
    Command command;
    command.start(u"sc"_s, {u"query"_s});
    QCOMPARE(command.exitCode(), 0);
    // Even when it has ended meanwhile: nobody has waited for it yet.
    // (Events aren't processed here, as on a worker.)
    for (const QDeadlineTimer deadline(20000); machine.commands().isEmpty() && !deadline.hasExpired();)
        QTest::qSleep(10);
    QTest::qSleep(50);
    QCOMPARE(machine.commands().size(), 1);
    QCOMPARE(command.exitCode(), 0);
    command.waitForFinished();
    QCOMPARE(command.exitCode(), 1060);
}

void TestCommand::theExitCodeStaysWhenItIsReadAgain()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = 1056});
    Command command;
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"query"_s}), 1056);
    QCOMPARE(command.exitCode(), 1056);
    QCOMPARE(command.exitCode(), 1056);
}

void TestCommand::argumentsArriveAsTheyAre_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::newRow("listing") << QStringList{u"query"_s, u"state="_s, u"all"_s};
    QTest::newRow("blanks") << QStringList{u"stop"_s, u" My  Service "_s};
    QTest::newRow("quotes") << QStringList{u"stop"_s, u"My \"own\" 'Service'"_s, u"\""_s};
    QTest::newRow("colon") << QStringList{u"stop"_s, u"Vendor: Updater"_s};
    QTest::newRow("backslashes") << QStringList{u"stop"_s, u"a\\"_s, u"\\\\b\\\""_s};
    QTest::newRow("an empty one") << QStringList{u"stop"_s, QString(u""_s), u"x"_s};
    QTest::newRow("other letters") << QStringList{u"stop"_s, u"Dienst für Überprüfung"_s, u"服务"_s};
    QTest::newRow("signs of shells") << QStringList{u"stop"_s, u"$HOME %windir% `x` | > & ; *"_s};
}

void TestCommand::argumentsArriveAsTheyAre()
{
    QFETCH(const QStringList, arguments);
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = 0});
    Command command;
    QCOMPARE(exitCodeOf(command, u"sc"_s, arguments), 0);
    QCOMPARE(machine.commands(), (QList<LoggedCommand>{{u"sc"_s, arguments, 0}}));
}

#ifndef Q_OS_WIN
void TestCommand::aProgramThatSomebodyElseEndsSaysSo()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.hang = true});
    const Rescue rescue(machine);
    Command command;
    command.start(u"sc"_s, {u"query"_s});
    QTRY_COMPARE(runningTools(machine), 1);
    forceToEnd(toolsOf(machine.folder()).first());
    command.waitForFinished();
    QVERIFY(!command.hasEndedByItself());
    QCOMPARE(command.errorString(), u"Process crashed"_s);
}
#endif

void TestCommand::aHangingProgramReads0BeforeItIsClosedAndAFailureAfter()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.hang = true});
    Command::timeLimit = 200;
    Command command;
    QElapsedTimer timer;
    timer.start();
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"query"_s}), 0);
    QVERIFY(timer.elapsed() >= 200);
    QVERIFY(!command.failedToStart());
    command.close();
    QCOMPARE(command.exitCode(), 0xf291); // what Qt ends programs with on Windows
    command.close();
    QCOMPARE(command.exitCode(), 0xf291);
}

void TestCommand::closingEndsTheProgram()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.hang = true});
    Command command;
    command.start(u"sc"_s, {u"query"_s});
    if (runningTools(machine) < 0)
        QSKIP("this system doesn't list its processes as files");
    QTRY_COMPARE(runningTools(machine), 1);
    command.close();
    QCOMPARE(runningTools(machine), 0);
}

void TestCommand::destroyingEndsTheProgram()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.hang = true});
    {
        Command command;
        command.start(u"sc"_s, {u"query"_s});
        if (runningTools(machine) < 0)
            QSKIP("this system doesn't list its processes as files");
        QTRY_COMPARE(runningTools(machine), 1);
    }
    QCOMPARE(runningTools(machine), 0);
}

void TestCommand::closingGivesUpOnAProgramThatCannotBeKilled()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.hang = true});
    QCOMPARE(Command::killLimit.load(), 5000);
    Command::killLimit = 100;
    Command command;
    command.start(u"sc"_s, {u"query"_s});
    {
        nothingCanBeKilled = true;
        const Rescue rescue(machine);
        command.close();
        QCOMPARE(runningTools(machine), 1);
    }
    QCOMPARE(command.exitCode(), Command::endedByForce);
    // And the next command is none of its business.
    machine.machine().setFault(u"sc stop"_s, {.exitCode = 1062});
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"stop"_s}), 1062);
    machine.machine().clearFault(u"sc"_s);
    QTRY_COMPARE_WITH_TIMEOUT(runningTools(machine), 0, 60000);
}

void TestCommand::aProgramThatIsLeftRunningReads0AndRunsOn()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.hang = true, .exitCode = 5});
    Command::timeLimit = 200;
    {
        Command command;
        command.discardOutput();
        command.start(u"sc"_s, {u"query"_s});
        command.waitForFinished();
        QVERIFY(command.leaveRunning());
        QCOMPARE(command.exitCode(), 0);
        command.close();
        QCOMPARE(command.exitCode(), 0);
    }
    QCOMPARE(runningTools(machine), 1);
    machine.machine().clearFault(u"sc"_s);
    QTRY_COMPARE_WITH_TIMEOUT(machine.commands(), (QList<LoggedCommand>{{u"sc"_s, {u"query"_s}, 5}}), 60000);
}

void TestCommand::aProgramThatHasEndedIsNotLeftRunning()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = 7});
    Command command;
    QVERIFY(!command.leaveRunning());
    command.start(u"sc"_s, {});
    command.waitForFinished();
    QVERIFY(!command.leaveRunning());
    QCOMPARE(command.exitCode(), 7);
}

void TestCommand::whatThePlatformCarriesOutItselfReadsLikeAProgram()
{
    setPlatform(std::make_unique<AnsweringPlatform>());
    const ToolListener listener;
    Command command;
    command.start(u"sc"_s, {u"query"_s, u"state="_s, u"all"_s});
    QVERIFY(!command.failedToStart());
    QCOMPARE(command.exitCode(), 0);
    QVERIFY(!command.hasEndedByItself());
    command.waitForReadyRead();
    QCOMPARE(command.readAllStandardOutput(), QByteArray("query state= all"));
    QCOMPARE(command.exitCode(), 0);
    command.waitForFinished();
    QCOMPARE(command.exitCode(), 3);
    QVERIFY(command.hasEndedByItself());
    QCOMPARE(command.errorString(), u"Unknown error"_s);
    QCOMPARE(command.readAllStandardOutput(), QByteArray());
    command.close();
    QCOMPARE(command.exitCode(), 3);
    QCOMPARE(listener.answers().size(), 1);
    QCOMPARE(listener.answers().constFirst().exitCode, 3);

    command.discardOutput();
    command.start(u"sc"_s, {u"stop"_s});
    command.waitForFinished();
    QCOMPARE(command.readAllStandardOutput(), QByteArray());
    QCOMPARE(command.exitCode(), 1);
}

void TestCommand::whatThePlatformCarriesOutItselfIsOverWhenItWasWaitedFor()
{
    setPlatform(std::make_unique<AnsweringPlatform>());
    Command command;
    command.start(u"sc"_s, {u"query"_s});
    QVERIFY(command.leaveRunning());
    QCOMPARE(command.exitCode(), 0);
    QVERIFY(!command.leaveRunning());
    command.start(u"sc"_s, {u"query"_s});
    command.close();
    QCOMPARE(command.exitCode(), Command::endedByForce);
    QVERIFY(!command.hasEndedByItself());
    command.start(u"sc"_s, {});
    command.waitForReadyRead();
    QVERIFY(command.hasEndedByItself());
}

void TestCommand::closingAProgramThatHasEndedKeepsItsExitCode()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = 1060});
    Command command;
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"query"_s}), 1060);
    command.close();
    QCOMPARE(command.exitCode(), 1060);
}

void TestCommand::theNextCommandRunsThoughTheFirstOneHangs()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc stop"_s, {.hang = true});
    machine.machine().setFault(u"sc config"_s, {.exitCode = 1072});
    Command::timeLimit = 200;
    Command command;
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"stop"_s, u"x"_s}), 0);
    Command::timeLimit = 30000;
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"config"_s, u"x"_s}), 1072);
    QCOMPARE(machine.commands(), (QList<LoggedCommand>{{u"sc"_s, {u"config"_s, u"x"_s}, 1072}}));
    QVERIFY(runningTools(machine) <= 0);
}

void TestCommand::theLastCommandsExitCodeCounts()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc stop"_s, {.exitCode = 1062});
    machine.machine().setFault(u"sc config"_s, {.exitCode = 0});
    Command command;
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"stop"_s, u"x"_s}), 1062);
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"config"_s, u"x"_s}), 0);
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"stop"_s, u"x"_s}), 1062);
}

void TestCommand::aMissingProgramAfterAFailureReads0()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.exitCode = 5});
    Command command;
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"stop"_s, u"x"_s}), 5);
    QCOMPARE(exitCodeOf(command, u"nosuchtool"_s, {}), 0);
    QVERIFY(command.failedToStart());
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"stop"_s, u"x"_s}), 5);
    QVERIFY(!command.failedToStart());
}

void TestCommand::whatAHangingProgramHasPrintedCanBeRead()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.hang = true, .output = u"SERVICE_NAME: Spo"_s});
    Command::timeLimit = 500;
    Command command;
    command.start(u"sc"_s, {u"query"_s});
    command.waitForFinished();
    command.waitForReadyRead();
    QCOMPARE(command.readAllStandardOutput(), "SERVICE_NAME: Spo"_ba);
}

void TestCommand::tenMegabytesOfOutputArriveWhole()
{
    constexpr int lines = 10 * 1024 * 1024 / 16;
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.output = u"0123456789abcd\r\n"_s, .repeat = lines});
    Command command;
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"query"_s}), 0);
    command.waitForReadyRead();
    const QByteArray output = command.readAllStandardOutput();
    QCOMPARE(output.size(), lines * 16);
    QVERIFY(output == "0123456789abcd\r\n"_ba.repeated(lines));
}

void TestCommand::theNextCommandDoesNotGetTheFirstOnesOutput()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc stop"_s, {.output = u"first"_s});
    machine.machine().setFault(u"sc config"_s, {.output = u"second"_s});
    Command command;
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"stop"_s}), 0);
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"config"_s}), 0);
    QCOMPARE(command.readAllStandardOutput(), "second"_ba);
}

void TestCommand::waitingForOutputOfAProgramThatHasEndedIsDoneAtOnce()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.output = QString()});
    Command command;
    QCOMPARE(exitCodeOf(command, u"sc"_s, {u"query"_s}), 0);
    Command::timeLimit = std::numeric_limits<int>::max();
    command.waitForReadyRead();
    QCOMPARE(command.readAllStandardOutput(), QByteArray());
}

void TestCommand::waitingForOutputOfASilentProgramEndsAtTheTimeLimit()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.hang = true});
    Command::timeLimit = 200;
    Command command;
    command.start(u"sc"_s, {u"query"_s});
    QElapsedTimer timer;
    timer.start();
    command.waitForReadyRead();
    QVERIFY(timer.elapsed() >= 200);
    QCOMPARE(command.readAllStandardOutput(), QByteArray());
}

void TestCommand::waitingForOutputEndsWhenThereIsSome()
{
    const TestMachine machine;
    machine.machine().setFault(u"sc"_s, {.hang = true, .output = u"text"_s});
    Command command;
    command.start(u"sc"_s, {u"query"_s});
    Command::timeLimit = std::numeric_limits<int>::max();
    command.waitForReadyRead();
    QCOMPARE(command.readAllStandardOutput(), "text"_ba);
}

KESTRUNE_SUITE(TestCommand)
#include "tst_command.moc"
