// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse preview where something is in its way: one clear line, nothing left behind, the machine untouched.

#include "support/smallmachine.h"
#include "support/suite.h"

#include "machine/compare/machinediff.h"
#include "machine/database.h"
#include "machine/machine.h"

#include <QDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <functional>
#include <linux/securebits.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

using Damage = std::function<void(const QString &machine)>;

/** No file grows beyond the limit, as if the disk were full. */
void limitFiles(rlim_t bytes)
{
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

/** As any user: for root nothing is read-only. */
void giveUpRoot()
{
    ::prctl(PR_SET_SECUREBITS, SECBIT_NOROOT | SECBIT_NOROOT_LOCKED);
}

/** A preview that runs, with a folder of its own for what is temporary. */
class Preview
{
public:
    Preview(const QString &machine, const QStringList &options, std::function<void()> inChild = {})
        : Preview(QStringList{u"preview"_s, machine} + options, std::move(inChild))
    {
    }
    /** @param arguments of another subcommand */
    explicit Preview(const QStringList &arguments, std::function<void()> inChild = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"TMPDIR"_s, temporary_.path());
        process_.setProcessEnvironment(environment);
        if (inChild)
            process_.setChildProcessModifier(inChild);
        process_.start(builtProgram(u"kestrune-rehearse"_s), arguments);
    }

    int end()
    {
        constexpr int patience = 120000; // milliseconds
        // It may have been seen to end before anybody waits for that.
        const bool gone = process_.state() == QProcess::NotRunning || process_.waitForFinished(patience);
        const bool ended = gone && process_.exitStatus() == QProcess::NormalExit;
        errors_ = process_.readAllStandardError();
        return ended ? process_.exitCode() : -1;
    }

    QByteArray errors() const { return errors_; }
    bool hasToldOneLine() const { return errors_.startsWith("kestrune-rehearse: ") && errors_.count('\n') == 1; }
    bool hasLeftNothing() const { return QDir(temporary_.path()).isEmpty(); }

private:
    QTemporaryDir temporary_;
    QProcess process_;
    QByteArray errors_;
};

void copyFiles(const QString &from, const QString &to)
{
    QVERIFY(QDir().mkpath(to));
    for (const QFileInfo &file : QDir(from).entryInfoList(QDir::Files))
        QVERIFY(QFile::copy(file.filePath(), to + u'/' + file.fileName()));
}

void executeIn(const QString &machine, const char *statements)
{
    Database(machine + u"/machine.sqlite"_s).execute(statements);
}

QByteArray readAvailable(int pipe)
{
    QByteArray block(65536, '\0');
    return block.first(qMax<qsizetype>(0, ::read(pipe, block.data(), static_cast<std::size_t>(block.size()))));
}

const QStringList quick{u"--no-programs"_s, u"--no-features"_s};

} // namespace

class TestPreviewTrouble : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void damagedMachineIsTold_data();
    void damagedMachineIsTold();
    void foldersThatHoldNothingOfThePcMayBeMissing();
    void leftOverLogOfTheDatabaseBelongsToTheMachine();
    void machineThatCannotBeWrittenIsPreviewed();
    void machineThatCannotBeWrittenIsNotChanged();
    void reportThatCannotBeWrittenIsToldFirst_data();
    void reportThatCannotBeWrittenIsToldFirst();
    void fullDiskWhileCopying();
    void fullDiskWhileReportsAreWritten();
    void aJobThatWasNotDoneToItsEndFails();
    void severalAtOnce();

private:
    QString copyOf(const QString &machine, const QString &name);

    QTemporaryDir folder_;
    QString pc_;
};

void TestPreviewTrouble::initTestCase()
{
    pc_ = folder_.filePath(u"pc"_s);
    makeMachine(pc_, QCoreApplication::applicationDirPath() + u"/machines/windows11"_s, Existing::Keep);
}

QString TestPreviewTrouble::copyOf(const QString &machine, const QString &name)
{
    const QString copy = folder_.filePath(name);
    copyMachine(*Machine::open(machine), copy);
    return copy;
}

void TestPreviewTrouble::damagedMachineIsTold_data()
{
    addColumns<Damage, QString>("damage", "told");

    const auto databaseOf = [](const QString &machine) { return machine + u"/machine.sqlite"_s; };
    const auto inDatabase = [databaseOf](const QString &machine, qint64 place, const QByteArray &bytes) {
        QFile file(databaseOf(machine));
        QVERIFY(file.open(QIODevice::ReadWrite) && file.seek(place) && file.write(bytes) == bytes.size());
    };
    QTest::newRow("cut off") << Damage([=](const QString &machine) {
        QVERIFY(QFile::resize(databaseOf(machine), QFileInfo(databaseOf(machine)).size() / 2));
    }) << u"damaged"_s;
    QTest::newRow("empty") << Damage([=](const QString &machine) { QVERIFY(QFile::resize(databaseOf(machine), 0)); })
                           << u"damaged"_s;
    QTest::newRow("overwritten from its start")
        << Damage([=](const QString &machine) { inDatabase(machine, 0, QByteArray(4096, 'x')); }) << u"damaged"_s;
    QTest::newRow("overwritten in its middle")
        << Damage([=](const QString &machine) { inDatabase(machine, 16384, QByteArray(262144, '\xe5')); })
        << u"damaged"_s;
    QTest::newRow("a table is missing") << Damage([](const QString &machine) {
        executeIn(machine, "DROP TABLE bootoption");
    }) << u"'bootoption'"_s;
    QTest::newRow("database of something else") << Damage([=](const QString &machine) {
        QVERIFY(QFile::remove(databaseOf(machine)));
        executeIn(machine, "CREATE TABLE bookmarks (name)");
    }) << u"not a rehearsal machine"_s;
    QTest::newRow("of a later version") << Damage([](const QString &machine) {
        executeIn(machine, "UPDATE meta SET value = 99 WHERE name = 'version'");
    }) << u": version 99"_s;
    QTest::newRow("without its files") << Damage([](const QString &machine) {
        QVERIFY(QDir(machine + u"/drive_c"_s).removeRecursively());
    }) << u"drive_c"_s;
    QTest::newRow("without its database")
        << Damage([=](const QString &machine) { QVERIFY(QFile::remove(databaseOf(machine))); })
        << u"not a rehearsal machine"_s;
}

void TestPreviewTrouble::damagedMachineIsTold()
{
    QFETCH(Damage, damage);
    QFETCH(QString, told);
    const QString machine = folder_.filePath(u"damaged"_s);
    QDir(machine).removeRecursively();
    copyOf(pc_, u"damaged"_s);
    damage(machine);
    const QString page = folder_.filePath(u"damaged.html"_s);

    Preview preview(machine, quick + QStringList{u"--html"_s, page});
    QCOMPARE(preview.end(), 3);
    QVERIFY2(preview.hasToldOneLine(), preview.errors().constData());
    QVERIFY2(preview.errors().contains(machine.toUtf8()), preview.errors().constData());
    QVERIFY2(preview.errors().contains(told.toUtf8()), preview.errors().constData());
    QVERIFY(preview.hasLeftNothing());
    QVERIFY(!QFile::exists(page));
}

void TestPreviewTrouble::foldersThatHoldNothingOfThePcMayBeMissing()
{
    const QString machine = copyOf(pc_, u"bare"_s);
    QDir(machine + u"/program"_s).removeRecursively();
    const QString report = folder_.filePath(u"bare.json"_s);
    Preview preview(machine, quick + QStringList{u"--json"_s, report});
    QCOMPARE(preview.end(), 0);
    Preview ofWhole(pc_, quick + QStringList{u"--json"_s, folder_.filePath(u"whole.json"_s)});
    QCOMPARE(ofWhole.end(), 0);
    QCOMPARE(readFile(report), readFile(folder_.filePath(u"whole.json"_s)));
    QVERIFY(readFile(report).size() > 10000);
}

void TestPreviewTrouble::leftOverLogOfTheDatabaseBelongsToTheMachine()
{
    const QString machine = copyOf(pc_, u"logged"_s);
    QDir(machine).remove(u"machine.sqlite"_s);
    const auto open = Machine::open(pc_);
    open->database().execute("PRAGMA wal_autocheckpoint = 0");
    const QString name = open->name();
    open->setName(u"written just before the copy"_s);
    copyFiles(pc_, machine);
    QVERIFY(QFile::exists(machine + u"/machine.sqlite-wal"_s));
    QFile::remove(machine + u"/machine.sqlite-shm"_s);
    open->setName(name);

    const QString page = folder_.filePath(u"logged.html"_s);
    Preview preview(machine, quick + QStringList{u"--html"_s, page});
    QCOMPARE(preview.end(), 0);
    QVERIFY(readFile(page).contains("written just before the copy"));
}

void TestPreviewTrouble::machineThatCannotBeWrittenIsPreviewed()
{
    const QString machine = copyOf(pc_, u"locked"_s);
    constexpr auto readable = QFileDevice::ReadOwner | QFileDevice::ReadUser;
    QVERIFY(QFile::setPermissions(machine + u"/machine.sqlite"_s, readable));
    for (const QString &folder : {u"/program"_s, u"/drive_c"_s, QString()})
        QVERIFY(QFile::setPermissions(machine + folder, readable | QFileDevice::ExeOwner | QFileDevice::ExeUser));

    const QString page = folder_.filePath(u"locked.html"_s);
    Preview preview(machine, quick + QStringList{u"--html"_s, page}, giveUpRoot);
    const int code = preview.end();
    Preview inside(machine, quick + QStringList{u"--html"_s, machine + u"/preview.html"_s}, giveUpRoot);
    const int codeInside = inside.end();
    QFile::setPermissions(machine, readable | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
    QVERIFY2(code == 0, preview.errors().constData());
    QVERIFY(QFileInfo(page).size() > 10000);
    // What can't be written there is said.
    QCOMPARE(codeInside, 1);
    QVERIFY2(inside.hasToldOneLine(), inside.errors().constData());
}

void TestPreviewTrouble::machineThatCannotBeWrittenIsNotChanged()
{
    const QString machine = copyOf(pc_, u"locked for changes"_s);
    const QString script = folder_.filePath(u"any.reg"_s);
    writeFile(script, "Windows Registry Editor Version 5.00\n");
    constexpr auto readable = QFileDevice::ReadOwner | QFileDevice::ReadUser;
    QVERIFY(QFile::setPermissions(machine + u"/machine.sqlite"_s, readable));
    QVERIFY(QFile::setPermissions(machine, readable | QFileDevice::ExeOwner | QFileDevice::ExeUser));
    for (const QStringList &command : {QStringList{u"run"_s, machine, u"analyze"_s}, QStringList{u"gui"_s, machine},
                                       QStringList{u"import"_s, machine, script}}) {
        Preview run(command, giveUpRoot);
        const int code = run.end();
        QVERIFY2(code == 1, run.errors().constData());
        QCOMPARE(run.errors(), "kestrune-rehearse: " + machine.toUtf8() + ": the machine is read-only\n");
    }
    QFile::setPermissions(machine, readable | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

void TestPreviewTrouble::reportThatCannotBeWrittenIsToldFirst_data()
{
    addColumns<QString, QString>("option", "file");
    for (const QString &option : {u"--html"_s, u"--json"_s, u"--undo"_s}) {
        QTest::addRow("%s, no such folder", qPrintable(option)) << option << u"missing/report"_s;
        QTest::addRow("%s, a folder", qPrintable(option)) << option << u"."_s;
    }
    // The way back is several files; what isn't one is left as it is.
    QTest::newRow("--undo, a pipe") << u"--undo"_s << u"a pipe"_s;
    QCOMPARE(::mkfifo(QFile::encodeName(folder_.filePath(u"a pipe"_s)).constData(), 0600), 0);
}

void TestPreviewTrouble::reportThatCannotBeWrittenIsToldFirst()
{
    QFETCH(QString, option);
    QFETCH(QString, file);
    // Not even the machine is looked at.
    Preview preview(folder_.filePath(u"no machine"_s), {option, folder_.filePath(file)});
    QCOMPARE(preview.end(), 1);
    QVERIFY2(preview.hasToldOneLine(), preview.errors().constData());
    QVERIFY2(preview.errors().contains(folder_.path().toUtf8() + '/'), preview.errors().constData());
    QVERIFY2(!preview.errors().contains("no machine"), preview.errors().constData());
}

void TestPreviewTrouble::fullDiskWhileCopying()
{
    copyOf(pc_, u"as it was"_s);
    const QString page = folder_.filePath(u"full.html"_s);
    for (const rlim_t limit : std::initializer_list<rlim_t>{0, 4096, 65536, 400000, 1000000}) {
        Preview preview(pc_, {u"--html"_s, page}, [limit] { limitFiles(limit); });
        const int code = preview.end();
        // Without a byte to write not even the machine's own database opens, which needs a file beside it.
        QVERIFY2(code == 1 || (code == 3 && limit < 65536), preview.errors().constData());
        QVERIFY2(preview.hasToldOneLine(), preview.errors().constData());
        if (limit == 4096)
            QVERIFY2(preview.errors().contains("File too large"), preview.errors().constData());
        QVERIFY(preview.hasLeftNothing());
        QVERIFY(!QFile::exists(page));
    }
    QCOMPARE(compareMachines(*Machine::open(folder_.filePath(u"as it was"_s)), *Machine::open(pc_)), QList<DiffRow>());
}

void TestPreviewTrouble::aJobThatWasNotDoneToItsEndFails()
{
    const QString machine = copyOf(pc_, u"limited"_s);
    const auto size = static_cast<rlim_t>(QFileInfo(machine + u"/machine.sqlite"_s).size());
    Preview run({u"run"_s, machine, u"optimize"_s}, [size] { limitFiles(size); });
    QCOMPARE(run.end(), 1);
    const QByteArray last = run.errors().trimmed().split('\n').last();
    QVERIFY2(last.startsWith("kestrune-rehearse: not everything was done: "), run.errors().constData());
    // Why, and not only that something went wrong with the disk
    QVERIFY2(last.contains("the disk may be full"), last.constData());
}

void TestPreviewTrouble::fullDiskWhileReportsAreWritten()
{
    // A pipe is written to and stays a pipe; so the device below is safe.
    const QString pipe = folder_.filePath(u"pipe"_s);
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const int reader = ::open(QFile::encodeName(pipe).constData(), O_RDONLY | O_NONBLOCK);
    Preview piped(pc_, quick + QStringList{u"--html"_s, pipe});
    QByteArray read;
    // A line break still follows, and whoever writes it wants a reader.
    QTRY_VERIFY_WITH_TIMEOUT((read += readAvailable(reader)).endsWith("</html>\n"), 120000);
    QCOMPARE(piped.end(), 0);
    ::close(reader);
    struct stat status
    {
    };
    QCOMPARE(::stat(QFile::encodeName(pipe).constData(), &status), 0);
    QVERIFY(S_ISFIFO(status.st_mode));

    for (const QString &option : {u"--html"_s, u"--json"_s}) {
        Preview preview(pc_, quick + QStringList{option, u"/dev/full"_s});
        QCOMPARE(preview.end(), 1);
        QVERIFY2(preview.hasToldOneLine(), preview.errors().constData());
        QVERIFY2(preview.errors().contains("/dev/full: No space left on device"), preview.errors().constData());
        QVERIFY(preview.hasLeftNothing());
    }
}

void TestPreviewTrouble::severalAtOnce()
{
    const QString first = folder_.filePath(u"first.json"_s);
    const QString second = folder_.filePath(u"second.json"_s);
    Preview one(pc_, {u"--json"_s, first});
    Preview other(pc_, {u"--json"_s, second});
    QCOMPARE(one.end(), 0);
    QCOMPARE(other.end(), 0);
    QVERIFY(readFile(first).size() > 100000);
    QCOMPARE(readFile(first), readFile(second));

    // While one works on the machine, the other tells of it as it was at some moment.
    Preview meanwhile(pc_, {u"--json"_s, first});
    const Ended run = runProgram(builtProgram(u"kestrune-rehearse"_s), {u"run"_s, pc_, u"optimize"_s});
    QVERIFY2(run.exitCode == 0, run.errors.constData());
    const int code = meanwhile.end();
    QVERIFY2(code == 0, meanwhile.errors().constData());
    QVERIFY(meanwhile.hasLeftNothing());
}

KESTRUNE_SUITE(TestPreviewTrouble)
#include "tst_previewtrouble.moc"
