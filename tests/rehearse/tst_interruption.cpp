// SPDX-License-Identifier: GPL-3.0-or-later
// Breaking kestrune-rehearse off by signals, at any moment of what it does.

#include "support/rehearsing.h"
#include "support/smallmachine.h"
#include "support/suite.h"

#include <QCryptographicHash>
#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <functional>

#include <signal.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr auto everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
constexpr int brokenOff = 128 + SIGINT;

QString temporaryFolder(const QTemporaryDir &place)
{
    return place.filePath(u"temporary"_s);
}

/** kestrune-rehearse with a folder of its own for what is temporary, and in a process group of its own. */
class Rehearsal
{
public:
    Rehearsal(const QTemporaryDir &place, const QStringList &arguments)
    {
        QDir().mkpath(temporaryFolder(place));
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TMPDIR"_s, temporaryFolder(place));
        process_.setProcessEnvironment(environment);
        process_.setChildProcessModifier([] {
            setpgid(0, 0);
            // Whoever runs the tests in the background may ignore these.
            for (const int number : {SIGINT, SIGTERM, SIGHUP})
                signal(number, SIG_DFL);
        });
        process_.start(builtProgram(u"kestrune-rehearse"_s), arguments);
        if (!process_.waitForStarted())
            qFatal("kestrune-rehearse can't be started");
        group_ = static_cast<pid_t>(process_.processId());
    }

    /** To the one process, as "kill" does. */
    void signalProcess(int number) const { kill(group_, number); }
    /** To all that it runs as well, as a terminal does. */
    void signalGroup(int number) const { kill(-group_, number); }

    /** Waits so long at most. */
    bool hasEnded(int milliseconds)
    {
        process_.waitForFinished(milliseconds);
        return process_.state() == QProcess::NotRunning;
    }
    /** Its exit code. A process that a signal ended before it could look at one reads as in a shell. */
    int exitCode()
    {
        if (process_.state() != QProcess::NotRunning && !process_.waitForFinished())
            qFatal("kestrune-rehearse doesn't end");
        return process_.exitCode() + (process_.exitStatus() == QProcess::CrashExit ? 128 : 0);
    }
    QByteArray errors() { return process_.readAllStandardError(); }
    QByteArray output() { return process_.readAllStandardOutput(); }
    /** Whether anything that it ran still does. On a busy computer an ended process is there for a while yet. */
    bool isAnyoneLeft() const
    {
        constexpr int moment = 60000;
        for (int waited = 0; waited < moment && kill(-group_, 0) == 0; waited += 20)
            QThread::msleep(20);
        return kill(-group_, 0) == 0;
    }

private:
    QProcess process_;
    pid_t group_ = 0;
};

/** Names, kinds, sizes and contents of all that is in a folder. */
QByteArray fingerprint(const QString &folder)
{
    QStringList paths;
    QDirIterator walk(folder, everything, QDirIterator::Subdirectories);
    while (walk.hasNext())
        paths.append(walk.next());
    paths.sort();
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const QString &path : std::as_const(paths)) {
        const QFileInfo info(path);
        hash.addData(u"%1 %2 %3\n"_s.arg(path).arg(info.size()).arg(info.lastModified().toMSecsSinceEpoch()).toUtf8());
        // What is larger is a hole.
        if (info.isFile() && info.size() < 16 * 1024 * 1024)
            hash.addData(readFile(path));
    }
    return hash.result();
}

/** What is in a folder, but for its subfolders' content. */
QStringList leftIn(const QString &folder)
{
    return QDir(folder).entryList(everything);
}

QString newMachine(const QTemporaryDir &place, const QString &sources = smallSources())
{
    const QString machine = place.filePath(u"pc"_s);
    const Ended ended = rehearse({u"new"_s, machine, u"--from"_s, sources});
    if (ended.exitCode != done)
        qFatal("no machine: %s", ended.errors.constData());
    return machine;
}

/** A script so large that carrying it out takes its time. */
QString makeLargeSources(const QTemporaryDir &place)
{
    constexpr int keys = 3000;
    constexpr int values = 20;

    QByteArray script = "Windows Registry Editor Version 5.00\n\n";
    for (int key = 0; key < keys; ++key) {
        script += "[HKEY_LOCAL_MACHINE\\SOFTWARE\\Many\\" + QByteArray::number(key) + "]\n";
        for (int value = 0; value < values; ++value)
            script += "\"" + QByteArray::number(value) + "\"=\"a text\"\n";
        script += '\n';
    }
    const QString sources = place.filePath(u"sources"_s);
    QDir().mkpath(sources);
    writeFile(sources + u"/registry.reg"_s, script);
    return sources;
}

/**
 * Breaks a command off again and again, at moments spread over its length, and looks each time at what it leaves. A run
 * that is over by its moment tells that the command takes less time now.
 * @param undisturbed what it ends with when nobody disturbs it
 * @param look looks at what it leaves besides processes and temporary files; it gets the run and its exit code
 */
void breakOff(const QTemporaryDir &place, const QStringList &arguments, int moments, int undisturbed,
              const std::function<void(Rehearsal &, int)> &look)
{
    QElapsedTimer clock;
    clock.start();
    Rehearsal whole(place, arguments);
    QCOMPARE(whole.exitCode(), undisturbed);
    qint64 duration = clock.elapsed();
    look(whole, undisturbed);

    int broken = 0;
    for (int attempt = 0; broken < moments && !QTest::currentTestFailed(); ++attempt) {
        const qint64 moment = duration * (attempt % moments) / moments;
        Rehearsal run(place, arguments);
        run.hasEnded(static_cast<int>(moment));
        // The one process alone, or all of them, as a terminal does.
        attempt % 2 == 0 ? run.signalProcess(SIGINT) : run.signalGroup(SIGINT);
        const int code = run.exitCode();
        QVERIFY2(code == brokenOff || code == undisturbed, qPrintable(u"after %1 ms: %2"_s.arg(moment).arg(code)));
        code == brokenOff ? ++broken : duration = moment;
        QCOMPARE(run.errors(), QByteArray());
        QVERIFY2(!run.isAnyoneLeft(), qPrintable(QString::number(moment)));
        QCOMPARE(leftIn(temporaryFolder(place)), QStringList());
        look(run, code);
    }
}

/** Kills a preview as soon as it has its folder with a copy in it, and gives that folder. */
QString leftByAKilledPreview(const QTemporaryDir &place, const QString &machine)
{
    Machine::open(machine)->setFault(u"schtasks"_s, {.hang = true});
    Rehearsal run(place, {u"preview"_s, machine});
    QString folder;
    while (folder.isEmpty() && !run.hasEnded(5)) {
        for (const QString &name : leftIn(temporaryFolder(place))) {
            const QString path = temporaryFolder(place) + u'/' + name;
            if (QFileInfo::exists(path + u"/optimized/program"_s))
                folder = path;
        }
    }
    run.signalGroup(SIGKILL);
    run.exitCode();
    run.isAnyoneLeft();
    Machine::open(machine)->clearFault(u"schtasks"_s);
    return folder;
}

} // namespace

class TestInterruption : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void previewAtAnyMoment_data();
    void previewAtAnyMoment();
    void previewByEachSignal_data();
    void previewByEachSignal();
    void newAtAnyMoment();
    void newInPlaceOfAMachineKeepsIt();
    void importLeavesTheMachineAsItWas();
    void runEndsItsTools_data();
    void runEndsItsTools();
    void previewEndsAToolThatHangs();
    void verifyAtAnyMoment();
    void tourAtAnyMoment();
    void ignoredSignalStaysIgnored();
    void readerThatGoesAwayLeavesNothingTemporary();
    void leftoverOfAKilledPreviewGoesAtTheNextStart();
    void leftoverOfAKilledNewGoesAtTheNextStart();
    void folderOfARunningPreviewStays();
    void whatOnlyLooksLikeALeftoverStays();
};

void TestInterruption::previewAtAnyMoment_data()
{
    addColumns<QString, int>("sources", "moments");
    QTest::newRow("a small PC") << smallSources() << 12;
    QTest::newRow("a whole PC") << u"windows10"_s << 3;
}

void TestInterruption::previewAtAnyMoment()
{
    QFETCH(QString, sources);
    QFETCH(int, moments);
    const QTemporaryDir place;
    const QString machine = newMachine(place, sources);
    const QByteArray before = fingerprint(machine);
    const QStringList preview{u"preview"_s, machine};
    breakOff(place, preview, moments, done, [&](Rehearsal &run, int code) {
        QCOMPARE(run.output().isEmpty(), code == brokenOff);
        QCOMPARE(fingerprint(machine), before);
    });
    QCOMPARE(Rehearsal(place, preview).exitCode(), done); // works as if nothing had been
}

void TestInterruption::previewByEachSignal_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("terminate") << SIGTERM;
    QTest::newRow("hang up") << SIGHUP;
}

void TestInterruption::previewByEachSignal()
{
    QFETCH(int, number);
    const QTemporaryDir place;
    const QString machine = newMachine(place);
    const QByteArray before = fingerprint(machine);

    Rehearsal run(place, {u"preview"_s, machine});
    while (leftIn(temporaryFolder(place)).isEmpty())
        QVERIFY(!run.hasEnded(5));
    run.signalProcess(number);
    QCOMPARE(run.exitCode(), 128 + number);
    QVERIFY(!run.isAnyoneLeft());
    QCOMPARE(leftIn(temporaryFolder(place)), QStringList());
    QCOMPARE(fingerprint(machine), before);
}

void TestInterruption::newAtAnyMoment()
{
    const QTemporaryDir place;
    const QString machine = place.filePath(u"pc"_s);
    const QStringList making{u"new"_s, machine, u"--from"_s, makeLargeSources(place)};
    QDir().mkpath(temporaryFolder(place));
    const QStringList others = leftIn(place.path());
    breakOff(place, making, 12, done, [&](Rehearsal &, int code) {
        if (code == done)
            QVERIFY(QDir(machine).removeRecursively());
        QCOMPARE(leftIn(place.path()), others);
    });
}

void TestInterruption::newInPlaceOfAMachineKeepsIt()
{
    const QTemporaryDir place;
    const QString machine = newMachine(place);
    const QString sources = makeLargeSources(place);
    const QByteArray before = fingerprint(machine);

    Rehearsal run(place, {u"new"_s, machine, u"--from"_s, sources, u"--force"_s});
    QVERIFY(!run.hasEnded(50));
    run.signalProcess(SIGINT);
    QCOMPARE(run.exitCode(), brokenOff);
    QCOMPARE(fingerprint(machine), before);
    QCOMPARE(leftIn(place.path()), QStringList({u"pc"_s, u"sources"_s, u"temporary"_s}));
}

void TestInterruption::importLeavesTheMachineAsItWas()
{
    const QTemporaryDir place;
    const QString machine = newMachine(place);
    const QString sources = makeLargeSources(place);
    const QString key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Many"_s;

    Rehearsal run(place, {u"import"_s, machine, sources + u"/registry.reg"_s});
    QVERIFY(!run.hasEnded(50));
    run.signalProcess(SIGINT);
    QCOMPARE(run.exitCode(), brokenOff);
    const Ended left = rehearse({u"export"_s, machine, key});
    QVERIFY2(left.errors.contains("there is no key"), left.errors.constData());
    QVERIFY(!QFileInfo::exists(machine + u"/machine.sqlite-wal"_s));
}

void TestInterruption::runEndsItsTools_data()
{
    addColumns<QStringList, QString>("job", "tool");
    QTest::newRow("a job") << QStringList{u"tasks"_s} << u"schtasks"_s;
    QTest::newRow("a tweak") << QStringList{u"tweak"_s, u"ssd"_s, u"7"_s, u"on"_s} << u"powercfg"_s;
}

void TestInterruption::runEndsItsTools()
{
    QFETCH(QStringList, job);
    QFETCH(QString, tool);
    const QTemporaryDir place;
    const QString machine = newMachine(place);
    Machine::open(machine)->setFault(tool, {.hang = true});

    Rehearsal run(place, QStringList{u"run"_s, machine} + job);
    QVERIFY(!run.hasEnded(300));
    run.signalProcess(SIGINT);
    QCOMPARE(run.exitCode(), brokenOff);
    QVERIFY(!run.isAnyoneLeft());
}

void TestInterruption::previewEndsAToolThatHangs()
{
    const QTemporaryDir place;
    const QString machine = newMachine(place);
    Machine::open(machine)->setFault(u"schtasks"_s, {.hang = true});

    Rehearsal run(place, {u"preview"_s, machine});
    QVERIFY(!run.hasEnded(500));
    run.signalProcess(SIGINT);
    QCOMPARE(run.exitCode(), brokenOff);
    QVERIFY(!run.isAnyoneLeft());
}

void TestInterruption::verifyAtAnyMoment()
{
    const QTemporaryDir place;
    const QString machine = newMachine(place);
    QCOMPARE(Rehearsal(place, {u"run"_s, machine, u"optimize"_s}).exitCode(), done);
    const QStringList verify{u"verify"_s, machine, machine};
    const int verdict = Rehearsal(place, verify).exitCode();
    const QByteArray before = fingerprint(machine);
    breakOff(place, verify, 8, verdict, [&](Rehearsal &, int) { QCOMPARE(fingerprint(machine), before); });
}

void TestInterruption::tourAtAnyMoment()
{
    constexpr int moments = 4;
    constexpr int step = 250; // milliseconds

    const QTemporaryDir place;
    const QString machine = newMachine(place);
    const QByteArray before = fingerprint(machine);
    for (int moment = 0; moment < moments; ++moment) {
        Rehearsal run(place, {u"tour"_s, machine, u"--out"_s, place.filePath(u"pictures"_s)});
        run.hasEnded(step * moment);
        run.signalProcess(SIGINT);
        QCOMPARE(run.exitCode(), brokenOff);
        QVERIFY(!run.isAnyoneLeft());
        QCOMPARE(leftIn(temporaryFolder(place)), QStringList());
        QCOMPARE(fingerprint(machine), before);
    }
}

void TestInterruption::ignoredSignalStaysIgnored()
{
    const QTemporaryDir place;
    const QString sources = makeLargeSources(place);
    const QString machine = place.filePath(u"pc"_s);
    QProcess shell;
    shell.start(u"/bin/sh"_s, {u"-c"_s, u"trap '' HUP; exec \"$@\""_s, u"sh"_s, builtProgram(u"kestrune-rehearse"_s),
                               u"new"_s, machine, u"--from"_s, sources});
    QVERIFY(shell.waitForStarted());
    QVERIFY(!shell.waitForFinished(100));
    kill(static_cast<pid_t>(shell.processId()), SIGHUP);
    QVERIFY(shell.waitForFinished());
    QCOMPARE(shell.exitStatus(), QProcess::NormalExit);
    QCOMPARE(shell.exitCode(), done);
}

void TestInterruption::readerThatGoesAwayLeavesNothingTemporary()
{
#ifdef __SANITIZE_THREAD__
    QSKIP("the thread sanitizer hands signals on when the call that brought them has failed");
#endif
    const QTemporaryDir place;
    const QString code = place.filePath(u"code"_s);
    const QString machine = newMachine(place);
    QDir().mkpath(temporaryFolder(place));
    const Ended ended = runProgram(u"/bin/sh"_s,
                                   {u"-c"_s, u"{ \"$@\"; echo $? >'%1'; } | :"_s.arg(code), u"sh"_s,
                                    builtProgram(u"kestrune-rehearse"_s), u"preview"_s, machine},
                                   {{u"TMPDIR"_s, temporaryFolder(place)}});
    QCOMPARE(readFile(code).trimmed().toInt(), 128 + SIGPIPE);
    QCOMPARE(ended.errors, QByteArray());
    QCOMPARE(leftIn(temporaryFolder(place)), QStringList());
}

void TestInterruption::leftoverOfAKilledPreviewGoesAtTheNextStart()
{
    const QTemporaryDir place;
    const QString machine = newMachine(place);
    const QString folder = leftByAKilledPreview(place, machine);
    QVERIFY(QFileInfo(folder).isDir());
    QCOMPARE(Rehearsal(place, {u"list"_s, machine, u"services"_s}).exitCode(), done);
    QCOMPARE(leftIn(temporaryFolder(place)), QStringList());
}

void TestInterruption::leftoverOfAKilledNewGoesAtTheNextStart()
{
    const QTemporaryDir place;
    const QStringList making{u"new"_s, place.filePath(u"pc"_s), u"--from"_s, makeLargeSources(place)};
    QDir().mkpath(temporaryFolder(place));
    const auto beside = [&] { return QDir(place.path()).entryList({u".kestrune-*"_s}, everything); };
    {
        Rehearsal run(place, making);
        while (beside().isEmpty() || !QFileInfo::exists(place.filePath(beside().constFirst() + u"/machine"_s)))
            QVERIFY(!run.hasEnded(5));
        run.signalProcess(SIGKILL);
        run.exitCode();
    }
    QCOMPARE(beside().size(), 1);
    QCOMPARE(Rehearsal(place, {u"new"_s, place.filePath(u"other"_s)}).exitCode(), done);
    QCOMPARE(beside(), QStringList());
}

void TestInterruption::folderOfARunningPreviewStays()
{
    const QTemporaryDir place;
    const QString machine = newMachine(place);
    const QString other = place.filePath(u"other"_s);
    Machine::create(other);
    Machine::open(machine)->setFault(u"schtasks"_s, {.hang = true});
    Rehearsal run(place, {u"preview"_s, machine});
    while (leftIn(temporaryFolder(place)).isEmpty())
        QVERIFY(!run.hasEnded(5));
    const QStringList held = leftIn(temporaryFolder(place));
    for (int i = 0; i < 10; ++i) {
        QCOMPARE(Rehearsal(place, {u"list"_s, other, u"services"_s}).exitCode(), done);
        QCOMPARE(leftIn(temporaryFolder(place)), held);
    }
    run.signalProcess(SIGINT);
    QCOMPARE(run.exitCode(), brokenOff);
    QCOMPARE(leftIn(temporaryFolder(place)), QStringList());
}

void TestInterruption::whatOnlyLooksLikeALeftoverStays()
{
#ifdef __SANITIZE_THREAD__
    QSKIP("the thread sanitizer makes a file of its own in the temporary folder");
#endif
    const QTemporaryDir place;
    const QString machine = newMachine(place);
    const QString folder = leftByAKilledPreview(place, machine);
    const QString temporary = temporaryFolder(place);

    // Somebody's own folder, and a link to a folder that would be removed if it were one.
    const QString aside = place.filePath(u"aside"_s);
    QVERIFY(QDir().rename(folder, aside));
    QVERIFY(QFile::link(aside, temporary + u"/kestrune-rehearse-abcdef"_s));
    writeFile(temporary + u"/kestrune-rehearse-backup/my.reg"_s, "mine");
    writeFile(temporary + u"/kestrune-rehearse-marked/work-in-progress"_s, "notes");
    // One of another user's, to whom only root can give it
    const QString foreign = temporary + u"/kestrune-rehearse-others"_s;
    writeFile(foreign + u"/work-in-progress"_s, {});
    const bool given = chown(QFile::encodeName(foreign).constData(), 1, 1) == 0;
    const QByteArray before = fingerprint(place.path());

    QCOMPARE(Rehearsal(place, {u"--version"_s}).exitCode(), done);

    if (given)
        QCOMPARE(fingerprint(place.path()), before);
    QVERIFY(QFileInfo::exists(aside + u"/before/machine.sqlite"_s));
    QVERIFY(QFileInfo::exists(temporary + u"/kestrune-rehearse-backup/my.reg"_s));
    QVERIFY(QFileInfo(temporary + u"/kestrune-rehearse-abcdef"_s).isSymbolicLink());
}

KESTRUNE_SUITE(TestInterruption)
#include "tst_interruption.moc"
