// SPDX-License-Identifier: GPL-3.0-or-later
// What the next start makes of a session that was broken off, what can't be taken back, and how long notes are kept.

#include "journal/programrecords.h"

#include "journaling.h"
#include "machine/database.h"
#include "platform/windowsfacts.h"
#include "support/registryvalues.h"
#include "support/suite.h"
#include "work/command.h"
#include "work/settings.h"
#include "work/workthread.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString taskPath = u"Example\\Some task"_s;
const QString packageName = u"Microsoft.ZuneMusic"_s;
const QString packageFullName = u"Microsoft.ZuneMusic_10.0_x64__8wekyb3d8bbwe"_s;

/** A machine with a service, a task and a package. */
class Pc
{
public:
    Pc()
    {
        machine_.add({.name = u"Svc"_s, .start = StartAutomatic, .running = true});
        machine_.machine().setTask(
            {u'\\' + taskPath, u"<Task><RegistrationInfo><URI>\\"_s + taskPath
                                   + u"</URI></RegistrationInfo><Settings></Settings></Task>"_s});
        machine_.addFile(u"C:\\Windows\\system32\\WindowsPowerShell\\v1.0\\powershell.exe"_s);
        for (const QString &key : {WindowsKey::userPackages, WindowsKey::machinePackages})
            setText(machine_.machine(), key + u'\\' + packageFullName, u"Path"_s, u"C:\\x\\AppXManifest.xml"_s);
        journaled_.emplace(machine_);
    }

    Journaled &journaled() { return *journaled_; }
    QString folder() const { return machine_.folder(); }

    /** Lets the next start find a session in which a tool ran and nothing was recorded. */
    void breakOff(const QString &session, const QString &program, const QStringList &arguments)
    {
        platform().beginChanges(session);
        runTool(program, arguments);
        platform().endChanges(false);
        journaled_->open();
    }

private:
    TestMachine machine_;
    std::optional<Journaled> journaled_;
};

const QStringList disableService{u"config"_s, u"Svc"_s, u"start=disabled"_s};
const QStringList disableTask{u"/CHANGE"_s, u"/TN"_s, taskPath, u"/DISABLE"_s};
const QStringList removePackage{u"-Command"_s, u"Get-AppxPackage"_s, packageName, u"| Remove-AppxPackage"_s};
const QString powerShell = u"C:\\Windows/system32/WindowsPowerShell/v1.0/powershell.exe"_s;

QString recordText(const QString &group, const QString &name)
{
    return openRecords(group)->contains(name) ? openRecords(group)->value(name).toString() : u"none"_s;
}

} // namespace

class TestSettle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMissingRecordIsMade_data();
    void aMissingRecordIsMade();
    void itBelongsToTheSession();
    void aChangeThatNeverCameGetsNone();
    void aSessionIsLookedAtOnce();
    void whatWasLeftIsWrittenDown();

    void recordsOfEarlierTimesAreTakenOver();
    void onlyWhatTheyTellOfTodayIs();
    void theyAreTakenOverOnce();
    void withoutRecordsNothingIsMade();

    void aPackageWithoutFilesIsNamed();
    void anotherUserHoldsThem();
    void aCleanUpIsNamed();
    void sessionsAreKeptAsLongAsTheUserWants_data();
    void sessionsAreKeptAsLongAsTheUserWants();
    void aClockThatWasWrongRemovesNoSession();
};

void TestSettle::aMissingRecordIsMade_data()
{
    addColumns<int, QString, QStringList, QString, QString, QString>("job", "program", "arguments", "group", "name",
                                                                     "value");
    const QString none = u"none"_s;
    QTest::newRow("a service of the page")
        << int(JobSvcDisable) << u"sc"_s << disableService << u"SVC"_s << u"Svc"_s << u"1"_s;
    QTest::newRow("a service of Optimize")
        << int(JobAutomatizerOptimize) << u"sc"_s << disableService << u"SVC"_s << u"Svc"_s << u"1"_s;
    QTest::newRow("set to start on demand")
        << int(JobAutomatizerOptimize) << u"sc"_s << QStringList{u"config"_s, u"Svc"_s, u"start=demand"_s} << u"SVC"_s
        << u"Svc"_s << none;
    QTest::newRow("stopped only") << int(JobSvcDisable) << u"sc"_s << QStringList{u"stop"_s, u"Svc"_s} << u"SVC"_s
                                  << u"Svc"_s << none;
    QTest::newRow("of another session") << int(JobAutomatizerRestore) << u"sc"_s << disableService << u"SVC"_s
                                        << u"Svc"_s << none;
    QTest::newRow("a task of the page") << int(JobTaskStopOrStart) << u"schtasks"_s << disableTask << u"Task"_s
                                        << taskPath << u"1"_s;
    QTest::newRow("a task of Optimize") << int(JobAutomatizerOptimize) << u"schtasks"_s << disableTask << u"Task"_s
                                        << taskPath << u"1"_s;
    QTest::newRow("a package of the page")
        << int(JobPackageSetState) << powerShell << removePackage << u"Packages"_s << packageName << u"1"_s;
    QTest::newRow("a package of Optimize")
        << int(JobAutomatizerOptimize) << powerShell << removePackage << u"Packages"_s << packageName << u"1"_s;
}

void TestSettle::aMissingRecordIsMade()
{
    QFETCH(int, job);
    QFETCH(QString, program);
    QFETCH(QStringList, arguments);
    QFETCH(QString, group);
    QFETCH(QString, name);
    Pc pc;
    pc.breakOff(changesOf(job), program, arguments);
    QVERIFY(!pc.journaled().differences().isEmpty());
    QCOMPARE(recordText(group, name), u"none"_s);

    settleBrokenOff();

    QTEST(recordText(group, name), "value");
}

void TestSettle::itBelongsToTheSession()
{
    Pc pc;
    pc.breakOff(changesOf(JobSvcDisable), u"sc"_s, disableService);
    settleBrokenOff();
    QCOMPARE(pc.journaled().journal().store().sessions().size(), 1);
    QCOMPARE(pc.journaled().takeAllBack(), QStringList());
    QCOMPARE(recordText(u"SVC"_s, u"Svc"_s), u"none"_s);
    QCOMPARE(pc.journaled().differences(), QStringList());
}

void TestSettle::aChangeThatNeverCameGetsNone()
{
    Pc pc;
    pc.breakOff(changesOf(JobSvcDisable), u"sc"_s, disableService);
    runTool(u"sc"_s, {u"config"_s, u"Svc"_s, u"start=auto"_s}); // as if the tool had never come that far
    settleBrokenOff();
    QCOMPARE(recordText(u"SVC"_s, u"Svc"_s), u"none"_s);
}

void TestSettle::aSessionIsLookedAtOnce()
{
    Pc pc;
    pc.breakOff(changesOf(JobSvcDisable), u"sc"_s, disableService);
    settleBrokenOff();
    openRecords(u"SVC"_s)->remove(u"Svc"_s);
    pc.journaled().open();
    settleBrokenOff();
    QCOMPARE(recordText(u"SVC"_s, u"Svc"_s), u"none"_s);
}

/** So that what something else changes from then on is known as such. */
void TestSettle::whatWasLeftIsWrittenDown()
{
    Pc pc;
    pc.breakOff(changesOf(JobSvcDisable), u"sc"_s, disableService);
    settleBrokenOff();
    setNumber(pc.journaled().machine(), servicesKey + u"\\Svc"_s, u"Start"_s, StartOnDemand);
    const QList<TakenItem> items = takeBack(pc.journaled().journal(), {});
    const auto start =
        std::find_if(items.cbegin(), items.cend(), [](const TakenItem &item) { return item.item.name == "Start"_L1; });
    QVERIFY(start != items.cend());
    QCOMPARE(start->verdict, WayBack::Changed);
}

/** As an older program left them, with no journal beside them. */
void TestSettle::recordsOfEarlierTimesAreTakenOver()
{
    const QString run = WindowsKey::runKeys.first();
    Pc pc;
    pc.journaled().close();
    {
        // The same machine without a journal, on which things are switched off and recorded.
        setPlatform(std::make_unique<MachinePlatform>(pc.folder(), MachineOptions()));
        runTool(u"sc"_s, disableService);
        runTool(u"sc"_s, {u"stop"_s, u"Svc"_s});
        runTool(u"schtasks"_s, disableTask);
        runTool(powerShell, removePackage);
        record(u"SVC"_s, u"Svc"_s, 1);
        record(u"Task"_s, taskPath, 1);
        record(u"Packages"_s, packageName, 1);
        record(u"Autorun"_s, u"Player"_s, u"C:\\player.exe="_s + run + u"\\Player"_s);
        setPlatform(nullptr);
    }
    pc.journaled().open();

    settleBrokenOff();

    const Journal &journal = pc.journaled().journal();
    QCOMPARE(journal.store().sessions().size(), 1);
    QCOMPARE(journal.store().sessions().first().what, beforeTheJournal);
    QCOMPARE(journal.store().sessions().first().changes, 5); // two of the service
    QCOMPARE(pc.journaled().takeAllBack(), QStringList());
    QStringList left = pc.journaled().differences();
    left.removeIf([](const QString &line) { return line.contains(packageFullName); }); // as the tool registers it
    QCOMPARE(left.size(), 1);
    QVERIFY2(left.first().contains(u" Player:  -> "_s), qPrintable(left.first()));
    for (const QString &group : {u"SVC"_s, u"Task"_s, u"Packages"_s, u"Autorun"_s})
        QCOMPARE(recordedNames(group), QStringList());
}

/** What isn't there any more, or is on again, is nothing to take back. */
void TestSettle::onlyWhatTheyTellOfTodayIs()
{
    Pc pc;
    pc.journaled().close();
    setPlatform(std::make_unique<MachinePlatform>(pc.folder(), MachineOptions()));
    record(u"SVC"_s, u"Svc"_s, 1);   // on again
    record(u"SVC"_s, u"Gone"_s, 1);  // not there
    record(u"Task"_s, u"Gone"_s, 1); // not there
    record(u"Task"_s, taskPath, 0);  // switched on
    record(u"Packages"_s, u"Gone"_s, 1);
    record(u"Autorun"_s, u"Evil"_s, u"C:\\evil.exe=HKEY_LOCAL_MACHINE\\SOFTWARE\\Evil"_s);
    setPlatform(nullptr);
    pc.journaled().open();
    settleBrokenOff();
    QCOMPARE(pc.journaled().journal().store().sessions().size(), 0);
    QCOMPARE(pc.journaled().differences(), QStringList());
}

void TestSettle::withoutRecordsNothingIsMade()
{
    Pc pc;
    settleBrokenOff();
    QCOMPARE(pc.journaled().journal().store().sessions().size(), 0);
    QVERIFY(!pc.journaled().machine().registry().find(programKey));
}

void TestSettle::theyAreTakenOverOnce()
{
    Pc pc;
    pc.breakOff(u"Something"_s, u"sc"_s, disableService);
    record(u"Task"_s, taskPath, 1);
    runTool(u"schtasks"_s, disableTask);
    pc.journaled().open();
    settleBrokenOff();
    for (const Session &session : pc.journaled().journal().store().sessions())
        QVERIFY(session.what != beforeTheJournal);
}

void TestSettle::aPackageWithoutFilesIsNamed()
{
    Pc pc;
    {
        const ChangeSession session(changesOf(JobPackageSetState));
        runTool(powerShell, removePackage);
    }
    RegistryStore &store = pc.journaled().machine().registry();
    store.removeKey(*store.find(WindowsKey::machinePackages + u'\\' + packageFullName));

    for (const QList<TakenItem> &items :
         {planWayBack(pc.journaled().journal(), {}), takeBack(pc.journaled().journal(), {})}) {
        QCOMPARE(items.size(), 1);
        QCOMPARE(items.first().verdict, WayBack::Impossible);
        QCOMPARE(items.first().storeLink, u"ms-windows-store://pdp/?PFN=Microsoft.ZuneMusic_8wekyb3d8bbwe"_s);
    }
}

void TestSettle::anotherUserHoldsThem()
{
    Pc pc;
    {
        const ChangeSession session(changesOf(JobPackageSetState));
        runTool(powerShell, removePackage);
    }
    RegistryStore &store = pc.journaled().machine().registry();
    store.removeKey(*store.find(WindowsKey::machinePackages + u'\\' + packageFullName));
    const QString users = WindowsKey::machinePackages.section(u'\\', 0, -2);
    store.make(users + u"\\S-1-5-21-1-2-3-1002\\"_s + packageFullName);
    const QList<TakenItem> plan = planWayBack(pc.journaled().journal(), {});
    QCOMPARE(plan.size(), 1);
    QCOMPARE(plan.first().verdict, WayBack::Open);
}

void TestSettle::aCleanUpIsNamed()
{
    Pc pc;
    platform().shellExecute(
        {u"open"_s, u"C:\\Windows\\System32\\cmd.exe"_s, u"/k dism /online /Cleanup-Image /StartComponentCleanup"_s});
    platform().shellExecute({u"open"_s, u"C:\\Windows\\System32\\mspaint.exe"_s, {}});
    const QList<Session> sessions = pc.journaled().journal().store().sessions();
    QCOMPARE(sessions.size(), 1);
    QCOMPARE(sessions.first().what, u"Clean-up of the WinSxS folder"_s);
    QCOMPARE(sessions.first().changes, 1);
    QCOMPARE(pc.journaled().takeAllBack().size(), 1);
    QVERIFY(pc.journaled().takeAllBack().first().endsWith(u"Windows keeps no copy of what this removes"_s));
}

void TestSettle::sessionsAreKeptAsLongAsTheUserWants_data()
{
    addColumns<QVariant, int, bool>("setting", "age", "kept");
    QTest::newRow("no setting") << QVariant() << 10'000 << true;
    QTest::newRow("for ever") << QVariant(0) << 10'000 << true;
    QTest::newRow("a year, younger") << QVariant(365) << 364 << true;
    QTest::newRow("a year, older") << QVariant(365) << 366 << false;
    QTest::newRow("never less than 90 days") << QVariant(1) << 89 << true;
    QTest::newRow("90 days") << QVariant(1) << 91 << false;
}

void TestSettle::sessionsAreKeptAsLongAsTheUserWants()
{
    QFETCH(QVariant, setting);
    QFETCH(int, age);
    QFETCH(bool, kept);
    const TestMachine machine;
    if (setting.isValid())
        setNumber(machine.machine(), settingsKey, u"JournalDays"_s, setting.toUInt());
    const MachineSystem system(machine.machine());
    const QString file = machine.folder() + u"/journal/changes.sqlite"_s;
    {
        JournalStore store(file, Durability::ProcessEnd);
        Note note;
        note.item = {ItemKind::Task, u"\\X"_s};
        const qint64 session = store.beginSession({.what = u"Tasks"_s});
        store.add(session, {note});
        store.endSession(session, SessionState::Finished);
        Database(file)
            .query("UPDATE session SET begun = ?")
            .bind(QDateTime::currentDateTimeUtc().addDays(-age).toMSecsSinceEpoch())
            .run();
    }
    JournalStore store(file, Durability::ProcessEnd);
    store.keepDays(keptDays(system));
    QCOMPARE(store.sessions().size(), kept ? 1 : 0);
    QCOMPARE(store.notesSince(0).size(), kept ? 1 : 0);
}

void TestSettle::aClockThatWasWrongRemovesNoSession()
{
    const TestMachine machine;
    const QString file = machine.folder() + u"/journal/changes.sqlite"_s;
    // Days ago; the clock of the second session was set back by years, and put right before the third one.
    constexpr std::array ages{200, 10, 9000, 5};
    {
        JournalStore store(file, Durability::ProcessEnd);
        for (const int age : ages) {
            const qint64 session = store.beginSession({.what = u"%1"_s.arg(age)});
            store.endSession(session, SessionState::Finished);
            Database(file)
                .query("UPDATE session SET begun = ? WHERE id = ?")
                .bind(QDateTime::currentDateTimeUtc().addDays(-age).toMSecsSinceEpoch())
                .bind(session)
                .run();
        }
    }
    JournalStore store(file, Durability::ProcessEnd);
    store.keepDays(90);
    QStringList kept;
    for (const Session &session : store.sessions())
        kept.append(session.what);
    QCOMPARE(kept, (QStringList{u"10"_s, u"9000"_s, u"5"_s})); // in the order in which they were
}

KESTRUNE_SUITE(TestSettle)
#include "tst_settle.moc"
