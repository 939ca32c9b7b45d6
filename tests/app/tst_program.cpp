// SPDX-License-Identifier: GPL-3.0-or-later
// The program itself, as a process of its own: how it starts, what it refuses, and how it gives way to an elevated one.

#include "machine/database.h"
#include "machine/source/machinesource.h"
#include "support/processes.h"
#include "support/suite.h"
#include "support/testmachine.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QScopeGuard>
#include <QTest>

#include <algorithm>
#include <csignal>

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20000; // milliseconds
constexpr int noMachine = 3;

QString program()
{
    return QCoreApplication::applicationDirPath() + u"/kestrune"_s;
}

/** The program, started on a machine, and what it said when it ended by itself. */
class Run
{
public:
    explicit Run(const QString &machine, const QString &elevated = QString(), const QStringList &arguments = {})
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.remove(u"KESTRUNE_MACHINE"_s);
        environment.remove(u"KESTRUNE_ELEVATED"_s);
        environment.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        // Without one of its own Qt takes another folder, and says so.
        environment.insert(u"XDG_RUNTIME_DIR"_s, runtimeFolder_.path());
        if (!machine.isEmpty())
            environment.insert(u"KESTRUNE_MACHINE"_s, machine);
        if (!elevated.isEmpty())
            environment.insert(u"KESTRUNE_ELEVATED"_s, elevated);
        process.setProcessEnvironment(environment);
        process.start(program(), arguments);
    }
    ~Run()
    {
        process.kill();
        process.waitForFinished();
    }
    Q_DISABLE_COPY_MOVE(Run)

    bool ends() { return process.waitForFinished(patience) && process.exitStatus() == QProcess::NormalExit; }
    QString errors() { return QString::fromUtf8(process.readAllStandardError()); }

    QProcess process;

private:
    QTemporaryDir runtimeFolder_;
};

/** Process ids of the program's instances on a machine, by their environment. */
QList<pid_t> instances(const QString &machine, const QByteArray &elevated)
{
    QList<pid_t> found;
    for (const QString &name : QDir(u"/proc"_s).entryList(QDir::Dirs)) {
        bool isProcess = false;
        const pid_t id = name.toInt(&isProcess);
        const QString folder = u"/proc/"_s + name;
        if (!isProcess || QFileInfo(folder + u"/exe"_s).symLinkTarget() != QFileInfo(program()).canonicalFilePath())
            continue;
        QFile environment(folder + u"/environ"_s);
        if (!environment.open(QIODevice::ReadOnly))
            continue;
        const QList<QByteArray> variables = environment.readAll().split('\0');
        if (variables.contains("KESTRUNE_MACHINE=" + machine.toLocal8Bit())
            && variables.contains("KESTRUNE_ELEVATED=" + elevated))
            found.append(id);
    }
    return found;
}

bool hasOpen(pid_t process, const QString &file)
{
    const QDir descriptors(u"/proc/"_s + QString::number(process) + u"/fd"_s);
    const QFileInfoList links = descriptors.entryInfoList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    return std::any_of(
        links.cbegin(), links.cend(),
        [path = QFileInfo(file).canonicalFilePath()](const QFileInfo &link) { return link.symLinkTarget() == path; });
}

/** Ends the instances that the program under test has left behind. */
void endInstances(const QString &machine)
{
    for (const QByteArray elevated : {"0", "1"}) {
        for (const pid_t id : instances(machine, elevated))
            ::kill(id, SIGKILL);
    }
}

/** What a machine's database holds, put out of order. */
enum class Damage { Letter, NewerVersion };

void damage(const QString &machine, Damage how)
{
    if (how == Damage::NewerVersion) {
        Machine::open(machine)->database().execute("UPDATE meta SET value = 1000 WHERE name = 'version'");
        return;
    }
    QFile file(machine + u"/machine.sqlite"_s);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("can't write %s", qUtf8Printable(file.fileName()));
    file.write("This is no database, but a letter to an aunt. ");
    file.write(QByteArray(4000, 'x'));
}

} // namespace

class TestProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAMachineItSaysWhatItNeeds();
    void damagedMachineIsToldAndLeftAlone_data();
    void damagedMachineIsToldAndLeftAlone();
    void folderThatIsNoMachineIsToldAndLeftAlone();
    void elevatedProgramStaysThoughStartAsAdminIsSet();
    void unelevatedProgramGivesWayToAnElevatedOne();
    void changesInForceAreToldByTheExitCode();
};

void TestProgram::withoutAMachineItSaysWhatItNeeds()
{
    Run run{QString()};
    QVERIFY(run.ends());
    QCOMPARE(run.process.exitCode(), noMachine);
    const QString errors = run.errors();
    QVERIFY2(errors.contains("rehearsal machine"_L1) && errors.contains("kestrune-rehearse gui"_L1),
             qPrintable(errors));
}

void TestProgram::damagedMachineIsToldAndLeftAlone_data()
{
    QTest::addColumn<Damage>("how");
    QTest::newRow("no database") << Damage::Letter;
    QTest::newRow("of a newer version") << Damage::NewerVersion;
}

void TestProgram::damagedMachineIsToldAndLeftAlone()
{
    QFETCH(const Damage, how);
    const QTemporaryDir folder;
    const QString machine = folder.path() + u"/machine"_s;
    Machine::create(machine).reset();
    damage(machine, how);
    const QString database = machine + u"/machine.sqlite"_s;
    const QByteArray before = readFile(database);

    Run run(machine);
    QVERIFY(run.ends());
    QCOMPARE(run.process.exitCode(), noMachine);
    const QString errors = run.errors();
    QVERIFY2(errors.startsWith("kestrune: "_L1) && errors.contains(machine), qPrintable(errors));
    QCOMPARE(errors.trimmed().count(u'\n'), 0);
    QCOMPARE(readFile(database), before);
}

void TestProgram::folderThatIsNoMachineIsToldAndLeftAlone()
{
    const QTemporaryDir folder;
    for (const QString &machine : {folder.path(), folder.path() + u"/missing"_s}) {
        Run run(machine);
        QVERIFY(run.ends());
        QCOMPARE(run.process.exitCode(), noMachine);
        QVERIFY(run.errors().contains(machine));
    }
    QVERIFY(QDir(folder.path()).isEmpty());
}

/** Without a window, for whoever removes the program. */
void TestProgram::changesInForceAreToldByTheExitCode()
{
    const auto answer = [](const QString &machine, const QString &elevated) {
        Run run(machine, elevated, {u"--changes-in-force"_s});
        return run.ends() ? run.process.exitCode() : -1;
    };
    const QTemporaryDir folder;
    const QString machine = folder.filePath(u"machine"_s);
    makeMachine(machine, QCoreApplication::applicationDirPath() + u"/machines/windows11"_s, Existing::Keep);
    QCOMPARE(answer(machine, u"1"_s), 0);
    QCOMPARE(runProgram(builtProgram(u"kestrune-rehearse"_s), {u"run"_s, machine, u"svc-disable"_s, u"DiagTrack"_s})
                 .exitCode,
             0);
    QCOMPARE(answer(machine, u"1"_s), 1);
    QCOMPARE(answer(machine, u"0"_s), 2); // the journal is the administrators'
    QCOMPARE(runProgram(builtProgram(u"kestrune-rehearse"_s), {u"undo"_s, machine}).exitCode, 0);
    QCOMPARE(answer(machine, u"1"_s), 0);
}

void TestProgram::elevatedProgramStaysThoughStartAsAdminIsSet()
{
    TestMachine machine;
    machine.write(settingsKey, u"StartAsAdmin"_s, 1);
    machine.write(settingsKey, u"lastPage"_s, 1);
    Run run(machine.folder(), u"1"_s);
    // The listing of the Services page is its first sign of life.
    QTRY_COMPARE_WITH_TIMEOUT(machine.commands().size(), 1, patience);
    QCOMPARE(machine.commands().at(0).arguments, QStringList({u"query"_s, u"state="_s, u"all"_s}));
    QVERIFY(!run.process.waitForFinished(500));
    QCOMPARE(instances(machine.folder(), "1"), QList<pid_t>{pid_t(run.process.processId())});
    QVERIFY(!machine.names(settingsKey).contains(u"lastPage"_s));
    QCOMPARE(run.errors(), QString());
}

void TestProgram::unelevatedProgramGivesWayToAnElevatedOne()
{
    QVERIFY2(QFileInfo::exists(u"/proc/self/environ"_s), "instances are counted by what /proc tells of them");
    TestMachine machine;
    const QString folder = machine.folder();
    const auto tidyUp = qScopeGuard([&folder] { endInstances(folder); });
    machine.write(settingsKey, u"StartAsAdmin"_s, 1);
    machine.write(settingsKey, u"lastPage"_s, 7);
    Run run(folder, u"0"_s);
    const auto first = pid_t(run.process.processId());
    QVERIFY(run.ends());
    QCOMPARE(run.process.exitCode(), 0);

    QTRY_COMPARE_WITH_TIMEOUT(instances(folder, "1").size(), 1, patience);
    const pid_t second = instances(folder, "1").at(0);
    QVERIFY(second != first);
    QCOMPARE(instances(folder, "0"), QList<pid_t>());

    QTRY_VERIFY_WITH_TIMEOUT(hasOpen(second, folder + u"/machine.sqlite"_s), patience);
    // Elevated, it has no wish for a third one. There is nothing to wait for but time.
    QTest::qWait(500);
    QCOMPARE(instances(folder, "1"), QList<pid_t>{second});
}

KESTRUNE_WINDOW_SUITE(TestProgram)
#include "tst_program.moc"
