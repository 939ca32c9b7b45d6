// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of Restore: what comes back, and what doesn't.

#include "joblines.h"
#include "support/suite.h"
#include "tweakruns.h"
#include "work/automatizer/automatizer.h"
#include "work/settings.h"

#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QStringList features{u"pgr: Features"_s, u"pgr:max:3"_s,
                           u"pgr:value:0"_s,   u"Features: reset SSD optimizations"_s,
                           u"pgr:value:1"_s,   u"Features: reset Gaming optimizations"_s,
                           u"pgr:value:2"_s,   u"Features: reset Windows optimizations"_s,
                           u"pgr:value:3"_s,   u"tweaksDone"_s};
const QString finished = u"AutomatizerRestore:finished"_s;

/** A worker whose Restore leaves the features out. */
void withoutFeatures(WorkThread &worker)
{
    worker.winName = u"Windows 11 Home"_s;
    worker.automatizerTweak = 0;
    encoderServerFound = 0;
}

} // namespace

class TestAutomatizerRestore : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void allLinesInTheirOrder();
    void whatComesBackAndWhatDoesNot();
    void whatOptimizeBroughtBackStaysUnlessRecorded();
    void listsAreFilledFromTheRecords();
    void theTimeoutIsWrittenOnlyWithARecordedService();
    void tasksComeBackWithoutARecordBeingWritten();
    void packagesStayRecorded();

    void aSingleAutorunStaysOffWithoutAWord();
    void autorunsComeBack_data();
    void autorunsComeBack();
    void theFirstPlaceOfAProgramsNameCounts();
    void programsComeBackByTheirOwnNames();
    void withoutProgramsServicesAndTasksComeBack();

    void theFlagStaysSetAfterFeatures();
    void tweaksGoByTheGeneration_data();
    void tweaksGoByTheGeneration();
    void theLockScreenComesBackOnBothGenerations_data();
    void theLockScreenComesBackOnBothGenerations();

    void theCloseForgetsAutorunsAndTweaks();
};

void TestAutomatizerRestore::allLinesInTheirOrder()
{
    AutomatizerMachine machine;
    WorkerOn worker(onEleven);
    optimize(worker);
    machine.platform().takePauses();
    QCOMPARE(restore(worker), (QStringList{
                                   u"pgr: Services"_s,
                                   u"pgr:max:2"_s,
                                   u"Service: enable and start FontCache done"_s,
                                   u"pgr:value:1"_s,
                                   u"Service: enable and start PcaSvc done"_s,
                                   u"pgr:value:2"_s,
                                   u"page: pgr:SvcStopOrStart=finished"_s,
                                   u""_s,
                                   u"pgr: Tasks"_s,
                                   u"pgr:max:2"_s,
                                   u"Task: Enable and start Proxy done"_s,
                                   u"pgr:value:0"_s,
                                   u"Task: Enable and start OneDrive Standalone Update Task-S-1-5-21 done"_s,
                                   u"pgr:value:1"_s,
                                   u"page: pgr:TaskSetState=finished"_s,
                                   u""_s,
                                   u"pgr: Autorun"_s,
                                   u"pgr:max:5"_s,
                                   u"pgr:value:0"_s,
                                   u"Autorun program: enable Gone done"_s,
                                   u"pgr:value:1"_s,
                                   u"Autorun program: enable Quoted done"_s,
                                   u"pgr:value:2"_s,
                                   u"Autorun program: enable StartTerminalOnLoginTask done"_s,
                                   u"pgr:value:3"_s,
                                   u"Autorun program: enable Unquoted done"_s,
                                   u"pgr:value:4"_s,
                                   u"Autorun program: enable WithEquals done"_s,
                                   u"pgr:value:5"_s,
                                   u"pgr:value:5"_s,
                                   u""_s,
                                   u"pgr: Windows applications"_s,
                                   u"pgr:value:0"_s,
                                   u"pgr:max:1"_s,
                                   u"Windows application: install Microsoft.BingNews done"_s,
                                   u"pgr:value:1"_s,
                                   u"page:    Install   packages finished  "_s,
                                   u""_s,
                               }
                               + features));
    // Two services with two steps each, two tasks and a package.
    QCOMPARE(machine.platform().takePauses().mid(0, 4 + 2 + 1), QList<int>(4 + 2 + 1, 300));
}

void TestAutomatizerRestore::whatComesBackAndWhatDoesNot()
{
    AutomatizerMachine machine;
    WorkThread worker;
    withoutFeatures(worker);
    worker.keepPrinter = 0;
    optimize(worker);
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(4));
    QCOMPARE(restore(worker).last(), finished);

    const auto start = [&machine](const char *name) {
        return machine.read(servicesKey + u'\\' + QString::fromLatin1(name), u"Start"_s).toInt();
    };
    const auto isOn = [&machine](const char *path) {
        return !machine.machine().task(QString::fromLatin1(path))->document.contains("<Enabled>false"_L1);
    };
    // Services come back as automatic ones and run, and are forgotten; those set to manual stay so.
    QCOMPARE(start("FontCache"), 2);
    QCOMPARE(start("Spooler"), 2);
    QCOMPARE(machine.machine().isRunning(u"PcaSvc"_s), std::optional(true));
    QCOMPARE(machine.names(serviceRecordsKey), QStringList());
    QCOMPARE(start("StiSvc"), 3);
    // A number, and neither the text before nor Optimize's.
    QCOMPARE(machine.read(controlKey, u"WaitToKillServiceTimeout"_s), QVariant(2000));
    QVERIFY(isOn("\\Microsoft\\Windows\\Autochk\\Proxy"));
    QVERIFY(isOn("\\Microsoft\\Windows\\Printing\\EduPrintProv"));
    // Was off before.
    QVERIFY(!isOn("\\Microsoft\\Windows\\Printing\\PrintJobCleanupTask"));
    QVERIFY(machine.machine().registry().find(repositoryKey + u"\\Microsoft.BingNews_1.0.0.0_x64__8wekyb3d8bbwe"_s));
    QCOMPARE(machine.read(terminalTaskKey, u"State"_s), QVariant(2));
    // Without quotes, or without its file, a command doesn't come back; after its first "=" it is lost.
    QCOMPARE(machine.names(userRunKey), QStringList{u"Quoted"_s});
    QCOMPARE(machine.read(machineRunKey, u"WithEquals"_s), QVariant(u"\"C:\\Tools\\a.exe\" --mode"_s));
    QFile config(machine.platform().hostPath(encoderConfig));
    QVERIFY(config.open(QIODevice::ReadOnly));
    QVERIFY(config.readAll().contains("EnableEncoderServer=0"));
    // Only the window's close takes this back.
    QCOMPARE(machine.read(settingsKey, u"optimized"_s), QVariant(1));
}

void TestAutomatizerRestore::whatOptimizeBroughtBackStaysUnlessRecorded()
{
    AutomatizerMachine machine;
    machine.write(servicesKey + u"\\Spooler"_s, u"Start"_s, 4);
    machine.machine().setRunning(u"Spooler"_s, false);
    machine.write(settingsKey, u"optimized"_s, 1);
    WorkThread worker;
    withoutFeatures(worker);
    const QString task = u"\\Microsoft\\Windows\\Printing\\PrintJobCleanupTask"_s;
    const auto isOn = [&] { return !machine.machine().task(task)->document.contains("<Enabled>false"_L1); };
    QVERIFY(!isOn());
    optimize(worker);
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(2));
    QVERIFY(isOn());
    // They were off before; nothing has recorded that, and Restore doesn't name them.
    const QStringList lines = restore(worker);
    QCOMPARE(lines.filter(u"Spooler"_s) + lines.filter(u"PrintJobCleanupTask"_s), QStringList());
    QCOMPARE(machine.read(servicesKey + u"\\Spooler"_s, u"Start"_s), QVariant(2));
    QVERIFY(isOn());
}

void TestAutomatizerRestore::listsAreFilledFromTheRecords()
{
    TestMachine machine;
    for (const char *name : {"B", "A"})
        openRecords(u"SVC"_s)->setValue(QString::fromLatin1(name), 1);
    openRecords(u"SVC"_s)->setValue(u"."_s, 1);
    for (const char *name : {"Folder\\Task", "Backup1", "Backup\\Task", "backup", "Root"})
        openRecords(u"Task"_s)->setValue(QString::fromLatin1(name), 1);
    openRecords(u"Task"_s)->setValue(u"."_s, 1);
    WorkThread worker;
    worker.servicesToChange = {u"Earlier"_s};
    worker.tasksToChange = {{u"Earlier"_s, {}, {}, {}, 1}};
    fillRestoreLists(worker);
    QCOMPARE(worker.servicesToChange, (QStringList{u"A"_s, u"B"_s}));
    QStringList rows;
    for (const TaskRow &row : std::as_const(worker.tasksToChange)) {
        rows.append(row.path + u'|' + row.name);
        QCOMPARE(row.disabled, 0);
        QVERIFY(row.description.isEmpty() && row.extra.isEmpty());
    }
    QCOMPARE(rows, (QStringList{u"Folder\\Task|Task"_s, u"Root|Root"_s, u"backup|backup"_s}));
}

void TestAutomatizerRestore::theTimeoutIsWrittenOnlyWithARecordedService()
{
    TestMachine machine;
    machine.add({.name = u"A"_s, .start = 4});
    WorkThread worker;
    withoutFeatures(worker);
    QCOMPARE(restore(worker), QStringList{finished});
    QVERIFY(!machine.read(controlKey, u"WaitToKillServiceTimeout"_s).isValid());
    machine.write(serviceRecordsKey, u"A"_s, 1);
    QCOMPARE(restore(worker).size(), 7);
    QCOMPARE(machine.read(controlKey, u"WaitToKillServiceTimeout"_s), QVariant(2000));
}

void TestAutomatizerRestore::tasksComeBackWithoutARecordBeingWritten()
{
    TestMachine machine;
    addTask(machine, u"\\A"_s, false);
    openRecords(u"Task"_s)->setValue(u"A"_s, 1);
    WorkThread worker;
    withoutFeatures(worker);
    restore(worker);
    QVERIFY(!machine.machine().task(u"\\A"_s)->document.contains("<Enabled>false"_L1));
    QCOMPARE(machine.read(taskRecordsKey, u"A"_s), QVariant(1));
}

void TestAutomatizerRestore::packagesStayRecorded()
{
    PowerShellMachine machine;
    machine.write(packageRecordsKey, u"A"_s, 1);
    machine.write(packageRecordsKey, u"B"_s, 1);
    WorkThread worker;
    withoutFeatures(worker);
    const QStringList lines = restore(worker);
    QCOMPARE(lines.first(3), (QStringList{u"pgr: Windows applications"_s, u"pgr:value:0"_s, u"pgr:max:2"_s}));
    QCOMPARE(machine.names(packageRecordsKey), (QStringList{u"A"_s, u"B"_s}));
}

void TestAutomatizerRestore::aSingleAutorunStaysOffWithoutAWord()
{
    LoggingMachine machine;
    machine.addFile(u"C:\\a.exe"_s);
    machine.write(autorunRecordsKey, u"A"_s, u"\"C:\\a.exe\"="_s + userRunKey + u"\\A"_s);
    WorkThread worker;
    withoutFeatures(worker);
    QCOMPARE(restore(worker), QStringList{finished});
    QCOMPARE(machine.errorLog(), QStringList{u"restoreAutoruns: A isn't brought back"_s});
    QCOMPARE(machine.names(userRunKey), QStringList());
    QCOMPARE(machine.names(autorunRecordsKey), QStringList{u"A"_s});
}

void TestAutomatizerRestore::autorunsComeBack_data()
{
    addColumns<QString, QString, QVariant, bool>("record", "key", "written", "told");
    const QString user = userRunKey + u"\\A"_s;
    const auto row = [](const char *name, const QString &record, const QString &key, const QVariant &written,
                        bool told = true) { QTest::newRow(name) << record << key << written << told; };
    row("in quotes", u"\"C:\\a.exe\" -x="_s + user, userRunKey, u"\"C:\\a.exe\" -x"_s);
    row("of the machine", u"\"C:\\a.exe\"="_s + machineRunKey32 + u"\\A"_s, machineRunKey32, u"\"C:\\a.exe\""_s);
    row("a quote in the middle", u"start \"C:\\a.exe\"="_s + user, userRunKey, u"start \"C:\\a.exe\""_s);
    row("no quotes", u"C:\\a.exe="_s + user, userRunKey, {});
    row("file gone", u"\"C:\\gone.exe\"="_s + user, userRunKey, {});
    row("nothing in the quotes", u"\"\"="_s + user, userRunKey, {});
    row("one quote", u"\"C:\\a.exe="_s + user, userRunKey, u"\"C:\\a.exe"_s);
    row("no command", u'=' + user, userRunKey, {});
    row("no equals sign", u"\"C:\\a.exe\""_s, userRunKey, {}, false);
}

void TestAutomatizerRestore::autorunsComeBack()
{
    QFETCH(const QString, record);
    QFETCH(const QString, key);
    QFETCH(const QVariant, written);
    QFETCH(const bool, told);
    TestMachine machine;
    machine.addFile(u"C:\\a.exe"_s);
    machine.write(autorunRecordsKey, u"A"_s, record);
    machine.write(autorunRecordsKey, u"B"_s, terminalTaskKey + u'=');
    WorkThread worker;
    withoutFeatures(worker);
    QStringList expected{u"pgr: Autorun"_s, u"pgr:max:2"_s, u"pgr:value:0"_s};
    if (told)
        expected << u"Autorun program: enable A done"_s;
    expected << u"pgr:value:1"_s << u"Autorun program: enable B done"_s << u"pgr:value:2"_s << u"pgr:value:2"_s << u""_s
             << finished;
    QCOMPARE(restore(worker), expected);
    QCOMPARE(machine.read(key, u"A"_s), written);
    // The second part is empty: whatever its name, it is a task.
    QCOMPARE(machine.read(terminalTaskKey, u"State"_s), QVariant(2));
    QCOMPARE(machine.names(autorunRecordsKey), (QStringList{u"A"_s, u"B"_s}));
}

void TestAutomatizerRestore::theFirstPlaceOfAProgramsNameCounts()
{
    TestMachine machine;
    machine.addFile(u"C:\\a.exe"_s);
    machine.write(autorunRecordsKey, u"Run"_s, u"\"C:\\a.exe\"="_s + userRunKey + u"\\Run"_s);
    machine.write(autorunRecordsKey, u"B"_s, terminalTaskKey + u'=');
    WorkThread worker;
    withoutFeatures(worker);
    restore(worker);
    // The key's own name is the first.
    QCOMPARE(machine.read(userRunKey.chopped(4), u"Run"_s), QVariant(u"\"C:\\a.exe\""_s));
    QCOMPARE(machine.names(userRunKey), QStringList());
}

void TestAutomatizerRestore::programsComeBackByTheirOwnNames()
{
    TestMachine machine;
    machine.addFile(u"C:\\Tools\\a.exe"_s);
    RegistryStore &registry = machine.machine().registry();
    const auto key = registry.make(userRunKey).value();
    const QList<RegistryValue> values{
        {u"/"_s, RegistryType::String, registryText(u"\"C:\\Tools\\a.exe\" 1"_s)},
        {u"ATI/AMD Tray"_s, RegistryType::String, registryText(u"\"C:\\Tools\\a.exe\" 2"_s)},
        {u"a\\b"_s, RegistryType::String, registryText(u"\"C:\\Tools\\a.exe\" 3"_s)},
    };
    for (const RegistryValue &value : values)
        registry.setValue(key, value);
    WorkerOn worker(onEleven);
    worker.automatizerTweak = 0;
    const QStringList off = optimize(worker);
    QCOMPARE(off.filter(u"Autorun program"_s),
             (QStringList{u"Autorun program: disable AMD Tray done"_s, u"Autorun program: disable  done"_s,
                          u"Autorun program: disable a/b done"_s}));
    QCOMPARE(registry.values(key), QList<RegistryValue>());
    const QStringList on = restore(worker);
    QCOMPARE(on.filter(u"Autorun program"_s).size(), 3);
    QVERIFY(on.contains(u"Autorun program: enable AMD Tray done"_s));
    QCOMPARE(registry.values(key), values);
    closeRestore();
    QCOMPARE(recordedNames(u"Autorun"_s), QStringList());
}

void TestAutomatizerRestore::withoutProgramsServicesAndTasksComeBack()
{
    AutomatizerMachine machine;
    WorkThread worker;
    withoutFeatures(worker);
    optimize(worker);
    worker.automatizerProgram = 0;
    const QStringList lines = restore(worker);
    QVERIFY(lines.contains(u"pgr: Services"_s) && lines.contains(u"pgr: Tasks"_s));
    QVERIFY(!lines.contains(u"pgr: Autorun"_s) && !lines.contains(u"pgr: Windows applications"_s));
    QCOMPARE(machine.names(userRunKey), QStringList());
}

void TestAutomatizerRestore::theFlagStaysSetAfterFeatures()
{
    const TestMachine machine;
    WorkThread worker;
    withoutFeatures(worker);
    QCOMPARE(restore(worker), QStringList{finished});
    QCOMPARE(worker.restoreRunning, 0);
    worker.automatizerTweak = 1;
    QCOMPARE(restore(worker), features);
    QCOMPARE(worker.restoreRunning, 1);
}

void TestAutomatizerRestore::tweaksGoByTheGeneration_data()
{
    addColumns<QString, QString, QString>("winName", "battery", "tweaks");
    // clang-format off
    const QString eleven = u"S1 S2 S3 S4 S5 S6 S7 S9 G1 G2 G3 G4 G5 G6 G7 G8 G9 G10 G11 G12 G13 "
                           "W1 W2 W3 W4 W5 W6 W7 W8 W9 W10"_s;
    QTest::newRow("11") << u"Windows 11 Home"_s << u"-1"_s << eleven;
    QTest::newRow("11, battery") << u"Windows 11 Home"_s << u"80"_s << eleven;
    QTest::newRow("10") << u"Windows 10 Home"_s << u"-1"_s
        << u"S1 S2 S3 S4 S5 S6 S7 G1 G2 G3 G4 G5 G6 G7 G9 G10 G11 G12 G13 W1 W2 W3 W4 W6 W7 W8 W9 W10"_s;
    // clang-format on
}

void TestAutomatizerRestore::tweaksGoByTheGeneration()
{
    QFETCH(const QString, winName);
    QFETCH(const QString, battery);
    QFETCH(const QString, tweaks);
    const auto leftBy = [&](const std::function<void(WorkThread &)> &run) {
        const TestMachine machine(winName.contains("10"_L1) ? TestMachine::Windows::Ten : TestMachine::Windows::Eleven);
        WorkerOn worker(winName);
        worker.batteryCharge = battery;
        run(worker);
        return stateOf(machine);
    };
    const auto takePauses = [] { return static_cast<MachinePlatform &>(platform()).takePauses(); };
    QList<int> pauses, pausesOfTweaks;
    const QStringList restored = leftBy([&](WorkThread &worker) {
        restore(worker);
        pauses = takePauses();
    });
    QCOMPARE(restored, leftBy([&](WorkThread &worker) {
                 runTweaks(worker, tweaks, false);
                 pausesOfTweaks = takePauses();
             }));
    // After each number, also one that isn't reset; some tweaks pause by themselves.
    QCOMPARE(pauses.count(10) - pausesOfTweaks.count(10), 9 + 13 + 10);
    QCOMPARE(pauses.size() - pausesOfTweaks.size(), 9 + 13 + 10);
}

void TestAutomatizerRestore::theLockScreenComesBackOnBothGenerations_data()
{
    QTest::addColumn<QString>("winName");
    QTest::newRow("11") << u"Windows 11 Home"_s;
    QTest::newRow("10") << u"Windows 10 Home"_s; // where Optimize leaves it alone
}

void TestAutomatizerRestore::theLockScreenComesBackOnBothGenerations()
{
    // Its reset removes a value, which shows only where there is one.
    QFETCH(const QString, winName);
    const QString key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\Personalization"_s;
    TestMachine machine;
    machine.write(key, u"NoLockScreen"_s, 1);
    WorkerOn worker(winName);
    restore(worker);
    QCOMPARE(machine.names(key), QStringList());
}

void TestAutomatizerRestore::theCloseForgetsAutorunsAndTweaks()
{
    TestMachine machine;
    for (const char *group : {"SVC", "Task", "Packages", "Autorun", "Tweak"}) {
        machine.write(settingsKey + u'\\' + QString::fromLatin1(group), u"A"_s, 1);
        machine.write(settingsKey + u'\\' + QString::fromLatin1(group), u"B"_s, 1);
    }
    setOptimized(true);
    QVERIFY(wasOptimized());
    closeRestore();
    QVERIFY(!wasOptimized());
    QCOMPARE(machine.read(settingsKey, u"optimized"_s), QVariant(0));
    for (const char *group : {"SVC", "Task", "Packages"})
        QCOMPARE(recordedNames(QString::fromLatin1(group)), (QStringList{u"A"_s, u"B"_s}));
    for (const char *group : {"Autorun", "Tweak"})
        QCOMPARE(recordedNames(QString::fromLatin1(group)), QStringList());
}

KESTRUNE_SUITE(TestAutomatizerRestore)
#include "tst_automatizerrestore.moc"
