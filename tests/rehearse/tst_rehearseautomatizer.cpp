// SPDX-License-Identifier: GPL-3.0-or-later
// The Automatizer in kestrune-rehearse: all its lines on the built-in machines, its options and refusals, and what is
// left when the process is killed.

#include "support/automatizermachine.h"
#include "support/rehearsing.h"
#include "support/suite.h"
#include "work/automatizer/automatizer.h"
#include "work/settings.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString givenUp = u"printer=0,bluetooth-audio=0,files-sharing=0,xbox-app=0,upnp=0,proxy-vpn=0,nfc=0,"
                        "xbox-game-bar=0,codecs=0"_s;

Ended runOn(const TestMachine &machine, const QStringList &arguments)
{
    return rehearse(QStringList{u"run"_s, machine.folder()} + arguments);
}

/** The recorded lines of a built-in machine. */
QByteArray recorded(const QString &name)
{
    return readFile(QStringLiteral(KESTRUNE_TEST_DATA "/automatizer/") + name + u".txt"_s);
}

/** Line by line, so that the first one that differs is told. */
void compareLines(const QByteArray &actual, const QByteArray &expected)
{
    const QList<QByteArray> actualLines = actual.split('\n');
    const QList<QByteArray> expectedLines = expected.split('\n');
    for (qsizetype i = 0; i < qMin(actualLines.size(), expectedLines.size()); ++i)
        QCOMPARE(actualLines.at(i), expectedLines.at(i));
    QCOMPARE(actualLines.size(), expectedLines.size());
}

} // namespace

class TestRehearseAutomatizer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void linesOfTheBuiltInMachines_data();
    void linesOfTheBuiltInMachines();
    void refusals();
    void recordsPassedOverAreNamed();
    void programsThatDoNotComeBackAreNamed_data();
    void programsThatDoNotComeBackAreNamed();
    void oneInstanceAtATimeChangesAMachine_data();
    void oneInstanceAtATimeChangesAMachine();
    void anInstanceThatWasKilledKeepsNobodyOut();
    void nothingFoundIsAFailure();
    void choicesLeaveOutWhatTheySay();
    void storedKeepStatesAreTheDefault();
    void theWalkIsRunOnlyWhenAskedFor_data();
    void theWalkIsRunOnlyWhenAskedFor();
    void aWalkAfterRestoreTellsThePage();
    void differencesOfTheBuiltInMachines_data();
    void differencesOfTheBuiltInMachines();
    void theWindowsClosingStepsAreDone();
#ifndef Q_OS_WIN
    void aKilledOptimizeLeavesNothingUnaccounted_data();
    void aKilledOptimizeLeavesNothingUnaccounted();
#endif
};

void TestRehearseAutomatizer::linesOfTheBuiltInMachines_data()
{
    addColumns<QString, QString, QList<QStringList>>("builtIn", "file", "runs");
    const QList<QStringList> kept{{u"optimize"_s}, {u"restore"_s}};
    const QList<QStringList> twice{{u"optimize"_s, u"--no-features"_s, u"--keep"_s, givenUp},
                                   {u"optimize"_s, u"--no-features"_s},
                                   {u"restore"_s, u"--no-features"_s}};
    for (const char *name : {"windows11", "windows10"}) {
        const QString builtIn = QString::fromLatin1(name);
        QTest::addRow("%s, all kept", name) << builtIn << u"%1-kept"_s.arg(builtIn) << kept;
        QTest::addRow("%s, given up and kept again", name) << builtIn << u"%1-givenup"_s.arg(builtIn) << twice;
    }
    QTest::newRow("windows11-25h2, all kept") << u"windows11-25h2"_s << u"windows11-25h2-kept"_s << kept;
}

void TestRehearseAutomatizer::linesOfTheBuiltInMachines()
{
    QFETCH(const QString, builtIn);
    QFETCH(const QString, file);
    QFETCH(const QList<QStringList>, runs);
    const QTemporaryDir folder;
    const QString machine = folder.filePath(u"m"_s);
    QCOMPARE(rehearse({u"new"_s, machine, u"--from"_s, builtIn}).exitCode, done);
    QByteArray lines;
    for (const QStringList &run : runs) {
        const Ended ended = rehearse(QStringList{u"run"_s, machine} + run);
        QCOMPARE(ended.exitCode, done);
        lines += ended.output;
    }
    compareLines(lines, recorded(file));
}

void TestRehearseAutomatizer::refusals()
{
    TestMachine machine;
    fillServices(machine);
    for (const char *job : {"analyze", "optimize", "restore"}) {
        const Ended ended = runOn(machine, {QString::fromLatin1(job), u"--not-elevated"_s});
        QCOMPARE(ended.exitCode, jobFailed);
        QVERIFY(ended.output.isEmpty());
        QVERIFY(ended.errors.contains("administrator rights"));
    }
    const Ended tooEarly = runOn(machine, {u"restore"_s});
    QCOMPARE(tooEarly.exitCode, jobFailed);
    QVERIFY(tooEarly.output.isEmpty());
    QVERIFY(tooEarly.errors.contains("not yet been optimized"));
    QCOMPARE(machine.names(settingsKey), QStringList());
}

void TestRehearseAutomatizer::recordsPassedOverAreNamed()
{
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    machine.write(autorunRecordsKey, u"Debugger"_s, u"\"C:\\a.exe\"=HKEY_LOCAL_MACHINE\\SOFTWARE\\Other\\Debugger"_s);
    const Ended ended = runOn(machine, {u"restore"_s, u"--no-features"_s});
    QCOMPARE(ended.exitCode, done);
    QVERIFY2(ended.output.startsWith("passed over\tAutorun\\Debugger\n"), ended.output.constData());
}

void TestRehearseAutomatizer::programsThatDoNotComeBackAreNamed_data()
{
    addColumns<QStringList, QByteArray>("names", "output");
    QTest::newRow("one of two") << QStringList{u"Bare"_s, u"Quoted"_s} << QByteArray("\nnot brought back\tBare\n");
    QTest::newRow("one of two whose name parts")
        << QStringList{u"ATI\\Bare"_s, u"ATI\\Quoted"_s} << QByteArray("\nnot brought back\tATI\\Bare\n");
    QTest::newRow("a single one") << QStringList{u"Quoted"_s} << QByteArray("\nnot brought back\tQuoted\n");
}

void TestRehearseAutomatizer::programsThatDoNotComeBackAreNamed()
{
    QFETCH(const QStringList, names);
    QFETCH(const QByteArray, output);
    TestMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    machine.addFile(u"C:\\a.exe"_s);
    for (const QString &name : names) {
        const QString command = name.endsWith("Quoted"_L1) ? u"\"C:\\a.exe\""_s : u"C:\\a.exe"_s;
        machine.write(autorunRecordsKey, QString(name).replace(u'\\', u'/'),
                      command + u'=' + userRunKey + u'\\' + name);
    }
    const Ended ended = runOn(machine, {u"restore"_s, u"--no-features"_s});
    QCOMPARE(ended.exitCode, done);
    QVERIFY2(('\n' + ended.output).endsWith(output), ended.output.constData());
    QCOMPARE(ended.output.count("not brought back"), 1);
}

void TestRehearseAutomatizer::oneInstanceAtATimeChangesAMachine_data()
{
    QTest::addColumn<QStringList>("job");
    QTest::newRow("optimize") << QStringList{u"optimize"_s};
    QTest::newRow("restore") << QStringList{u"restore"_s, u"--no-features"_s};
    QTest::newRow("tweak") << QStringList{u"tweak"_s, u"ssd"_s, u"1"_s, u"on"_s};
}

void TestRehearseAutomatizer::oneInstanceAtATimeChangesAMachine()
{
    QFETCH(const QStringList, job);
    AutomatizerMachine machine;
    machine.write(settingsKey, u"optimized"_s, 1);
    std::shared_ptr<void> lock = machine.platform().lockOthersOut();
    QVERIFY(lock);
    QVERIFY(!machine.platform().lockOthersOut());
    const Ended second = runOn(machine, job);
    QCOMPARE(second.exitCode, jobFailed);
    QCOMPARE(second.output, QByteArray());
    QVERIFY2(second.errors.endsWith("kestrune-rehearse: another instance is changing this machine\n"),
             second.errors.constData());
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
    // A list is for anyone.
    QCOMPARE(runOn(machine, {u"services"_s}).exitCode, done);
    lock.reset();
    QCOMPARE(runOn(machine, job).exitCode, done);
    QVERIFY(machine.platform().lockOthersOut());
}

void TestRehearseAutomatizer::anInstanceThatWasKilledKeepsNobodyOut()
{
    constexpr int patience = 250000; // milliseconds
    const AutomatizerMachine machine;
    QProcess process;
    process.start(builtProgram(u"kestrune-rehearse"_s),
                  {u"run"_s, machine.folder(), u"optimize"_s, u"--pace"_s, u"1000"_s});
    QVERIFY(process.waitForReadyRead(patience));
    QVERIFY(!machine.platform().lockOthersOut());
    process.kill();
    QVERIFY(process.waitForFinished(patience));
    // A tool that it was just starting is a copy of it, with the lock, until the tool's own program is loaded.
    QTRY_VERIFY_WITH_TIMEOUT(machine.platform().lockOthersOut(), patience);
}

void TestRehearseAutomatizer::nothingFoundIsAFailure()
{
    const TestMachine machine;
    const Ended ended = runOn(machine, {u"optimize"_s});
    QCOMPARE(ended.exitCode, jobFailed);
    QVERIFY(ended.output.endsWith("\tAutomatizerAnalyze:finished\n"));
    QVERIFY(ended.errors.contains("no optimizations found"));
    QVERIFY(!wasOptimized());
}

void TestRehearseAutomatizer::choicesLeaveOutWhatTheySay()
{
    AutomatizerMachine machine;
    const Ended ended =
        runOn(machine, {u"optimize"_s, u"--no-programs"_s, u"--no-features"_s, u"--keep"_s, u"nfc=0"_s});
    QCOMPARE(ended.exitCode, done);
    QVERIFY(ended.output.endsWith("\tautomatizerEnd\n"));
    QVERIFY(ended.output.contains("Service: disable and stop SEMgrSvc done"));
    QVERIFY(!ended.output.contains("Spooler"));
    QVERIFY(!ended.output.contains("pgr: Autorun") && !ended.output.contains("pgr: Features"));
    QCOMPARE(machine.names(userRunKey).size(), 3);
    QVERIFY(recordedNames(u"Tweak"_s).isEmpty());
}

void TestRehearseAutomatizer::theWindowsClosingStepsAreDone()
{
    AutomatizerMachine machine;
    QCOMPARE(runOn(machine, {u"optimize"_s, u"--no-walk"_s}).exitCode, done);
    QCOMPARE(machine.read(settingsKey + u"\\Tweak"_s, u"chkSsd1"_s), QVariant(u"true"_s));
    QVERIFY(wasOptimized());
    // With the features the records stay, and the tweaks are recorded as off.
    QVERIFY(runOn(machine, {u"restore"_s}).output.contains("\ttweaksDone\n"));
    QCOMPARE(machine.read(settingsKey + u"\\Tweak"_s, u"chkSsd1"_s), QVariant(u"false"_s));
    QVERIFY(wasOptimized());
    QVERIFY(!recordedNames(u"Autorun"_s).isEmpty());
    // Without them they go.
    QVERIFY(runOn(machine, {u"restore"_s, u"--no-features"_s}).output.contains("\tAutomatizerRestore:finished\n"));
    QVERIFY(!wasOptimized());
    for (const char *group : {"Autorun", "Tweak"})
        QVERIFY(recordedNames(QString::fromLatin1(group)).isEmpty());
    QVERIFY(!recordedNames(u"Packages"_s).isEmpty());
}

void TestRehearseAutomatizer::storedKeepStatesAreTheDefault()
{
    TestMachine machine;
    fillServices(machine);
    const auto lines = [&machine](const QStringList &options) {
        return runOn(machine, QStringList{u"analyze"_s} + options).output;
    };
    QVERIFY(!lines({}).contains("can be disable: Spooler"));
    machine.write(settingsKey, u"Keep_1"_s, 0);
    machine.write(settingsKey, u"Keep_7"_s, 0);
    machine.write(settingsKey, u"Keep_5"_s, 1); // neither of the two states
    QVERIFY(lines({}).contains("can be disable: Spooler\n"));
    QVERIFY(lines({}).contains("can be disable: SEMgrSvc\n"));
    QVERIFY(!lines({}).contains("SSDPSRV"));
    // The option is for this run alone.
    const QByteArray chosen = lines({u"--keep"_s, u"printer=2,bluetooth-audio=0"_s});
    QVERIFY(!chosen.contains("Spooler"));
    QVERIFY(chosen.contains("can be disable: BthAvctpSvc\n"));
    QVERIFY(chosen.contains("can be disable: SEMgrSvc\n"));
    QCOMPARE(machine.read(settingsKey, u"Keep_1"_s), QVariant(0));
    QVERIFY(!machine.names(settingsKey).contains(u"Keep_2"_s));
}

namespace {

/** A small machine with a file, whose attribute word tells whether a walk has come by. */
class WalkedMachine
{
public:
    WalkedMachine()
    {
        fillAutomatizerMachine(machine);
        machine.addFile(file_);
    }
    bool isWalked() const
    {
        constexpr quint32 notIndexed = 0x2000;
        return (machine.machine().attributes(file_) & notIndexed) != 0;
    }
    TestMachine machine;

private:
    const QString file_ = u"C:\\Users\\Test\\letter.txt"_s;
};

} // namespace

void TestRehearseAutomatizer::theWalkIsRunOnlyWhenAskedFor_data()
{
    addColumns<QStringList, bool>("options", "walked");
    QTest::newRow("nothing said") << QStringList() << false;
    QTest::newRow("yes") << QStringList{u"--yes"_s} << true;
    QTest::newRow("no walk") << QStringList{u"--no-walk"_s} << false;
    QTest::newRow("both") << QStringList{u"--yes"_s, u"--no-walk"_s} << false;
    // Without the features there is no question.
    QTest::newRow("yes without features") << QStringList{u"--yes"_s, u"--no-features"_s} << false;
}

void TestRehearseAutomatizer::theWalkIsRunOnlyWhenAskedFor()
{
    QFETCH(const QStringList, options);
    QFETCH(const bool, walked);
    WalkedMachine walk;
    const Ended ended = runOn(walk.machine, QStringList{u"optimize"_s} + options);
    QCOMPARE(ended.exitCode, done);
    QCOMPARE(walk.isWalked(), walked);
    QCOMPARE(ended.output.endsWith("automatizerValueChanged\ttweaksDone\n"
                                   "automatizerValueChanged\tRemoveIndexedAttrib_end\n"),
             walked);
}

void TestRehearseAutomatizer::aWalkAfterRestoreTellsThePage()
{
    WalkedMachine walk;
    QCOMPARE(runOn(walk.machine, {u"optimize"_s}).exitCode, done);
    const Ended ended = runOn(walk.machine, {u"restore"_s, u"--yes"_s});
    QCOMPARE(ended.exitCode, done);
    QVERIFY(walk.isWalked());
    QVERIFY(ended.output.contains("automatizerValueChanged\ttweaksDone\n"
                                  "valueChanged\tWorkThread::TweakSSD::RemoveIndexedAttrib\n"));
}

namespace {

/** What differs between two machines, without the program's own settings and the sizes of files. */
QByteArray differences(const QString &before, const QString &after)
{
    static const QRegularExpression columns(u" {2,}"_s);
    QByteArray lines;
    for (const QByteArray &line : rehearse({u"diff"_s, before, after}).output.split('\n')) {
        QStringList parts = QString::fromUtf8(line).split(columns);
        if (parts.size() < 3 || parts.at(1).contains("\\Kestrune\\Ondrevale"_L1))
            continue;
        if (parts.first() == "file"_L1)
            parts.resize(2);
        lines += parts.join(u'\t').toUtf8() + '\n';
    }
    return lines;
}

} // namespace

void TestRehearseAutomatizer::differencesOfTheBuiltInMachines_data()
{
    addColumns<QString, QStringList>("builtIn", "keep");
    QTest::newRow("all kept") << u"windows11"_s << QStringList();
    QTest::newRow("none kept") << u"windows10"_s << QStringList{u"--keep"_s, givenUp};
}

/** All that is changed but for the tweaks, which have tests of their own. */
void TestRehearseAutomatizer::differencesOfTheBuiltInMachines()
{
    QFETCH(const QString, builtIn);
    QFETCH(const QStringList, keep);
    const QTemporaryDir folder;
    const QString fresh = folder.filePath(u"fresh"_s);
    const QString machine = folder.filePath(u"m"_s);
    for (const QString &path : {fresh, machine})
        QCOMPARE(rehearse({u"new"_s, path, u"--from"_s, builtIn}).exitCode, done);
    for (const char *job : {"optimize", "restore"}) {
        const QString name = QString::fromLatin1(job);
        QCOMPARE(rehearse(QStringList{u"run"_s, machine, name, u"--no-features"_s} + keep).exitCode, done);
        compareLines(differences(fresh, machine), recorded(builtIn + u"-after-"_s + name));
        if (QTest::currentTestFailed())
            return;
    }
}

#ifndef Q_OS_WIN
namespace {

/** A copy of kestrune-rehearse whose tools kill it at one of their calls. */
class Killer
{
public:
    Killer()
    {
        QFile::copy(builtProgram(u"kestrune-rehearse"_s), path("kestrune-rehearse"));
        writeFile(path("kestrune-stocktool"), "#!/bin/sh\n"
                                              "n=$(cat \"$COUNT\" 2>/dev/null)\n"
                                              "n=$((${n:-0} + 1))\n"
                                              "echo $n >\"$COUNT\"\n"
                                              "[ $n -ne $KILL_AT ] && exec \"$REAL\" \"$@\"\n"
                                              "[ $WHEN = before ] && kill -$SIGNAL $PPID\n"
                                              "[ $WHEN = before ] && [ $SIGNAL = KILL ] && exit\n"
                                              "\"$REAL\" \"$@\" >&2\n"
                                              "[ $WHEN = before ] || kill -$SIGNAL $PPID\n");
        QFile::setPermissions(path("kestrune-stocktool"), QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
    }

    Ended optimize(const TestMachine &machine, int killAt, const QString &when, const QString &signal) const
    {
        return runProgram(path("kestrune-rehearse"), {u"run"_s, machine.folder(), u"optimize"_s},
                          {{u"KILL_AT"_s, QString::number(killAt)},
                           {u"WHEN"_s, when},
                           {u"SIGNAL"_s, signal},
                           {u"REAL"_s, stockTool()},
                           {u"COUNT"_s, machine.folder() + u"/calls"_s}});
    }

private:
    QString path(const char *name) const { return folder_.filePath(QString::fromLatin1(name)); }
    QTemporaryDir folder_;
};

} // namespace

void TestRehearseAutomatizer::aKilledOptimizeLeavesNothingUnaccounted_data()
{
    addColumns<QString, QString>("when", "signal");
    QTest::newRow("before the tool has acted") << u"before"_s << u"KILL"_s;
    QTest::newRow("after it, before anyone knows") << u"after"_s << u"KILL"_s;
    QTest::newRow("while it acts, asked to end") << u"before"_s << u"TERM"_s;
    QTest::newRow("after it, asked to end") << u"after"_s << u"TERM"_s;
}

void TestRehearseAutomatizer::aKilledOptimizeLeavesNothingUnaccounted()
{
    QFETCH(const QString, when);
    QFETCH(const QString, signal);
    const Killer killer;
    int killed = 0;
    for (bool finished = false; !finished; ++killed) {
        TestMachine machine;
        fillAutomatizerMachine(machine);
        const Ended ended = killer.optimize(machine, killed + 1, when, signal);
        finished = ended.exitCode == done;
        // The single step in flight.
        const QStringList missing = unaccounted(machine.machine());
        QVERIFY2(missing.size() <= (finished ? 0 : 1), qPrintable(missing.join(u' ')));
        // One that is asked to end in its last step may have come to its end.
        QVERIFY(wasOptimized() == finished || (wasOptimized() && signal == "TERM"_L1));
        // Nothing has been changed while it still analyzed.
        QVERIFY(canRestore() || missing.isEmpty());
        // What it did before is taken back, and the next start does all of it.
        if (canRestore() && !finished) {
            const Ended restored = runOn(machine, {u"restore"_s});
            QVERIFY2(restored.exitCode == done, restored.errors.constData());
            // A Restore with the tweaks leaves that as it is.
            QCOMPARE(canRestore(), wasOptimized());
        }
        QVERIFY2(finished || runOn(machine, {u"optimize"_s}).exitCode == done, qPrintable(QString::number(killed)));
        QVERIFY(wasOptimized());
        QCOMPARE(machine.machine().isRunning(u"PcaSvc"_s), std::optional(false));
        QCOMPARE(machine.names(userRunKey), QStringList());
    }
    // The two listings, two services with two calls each, two tasks, a package, two ended programs, and the tools of
    // the tweaks: 60 moments in all four rows.
    QVERIFY(killed >= 15);
}
#endif

KESTRUNE_SUITE(TestRehearseAutomatizer)
#include "tst_rehearseautomatizer.moc"
