// SPDX-License-Identifier: GPL-3.0-or-later
// The Windows group, the telemetry values among it.

#include "support/suite.h"
#include "tweaktrial.h"

#include "work/command.h"
#include "work/tweaks/tweakvalues.h"

using namespace Qt::StringLiterals;

namespace {

const QString menuKey =
    u"HKEY_CURRENT_USER\\Software\\Classes\\CLSID\\{86ca1aa0-34aa-4e8b-a509-50c905bae2a2}\\InprocServer32"_s;
const QString cloudService = u"CloudBackupRestoreSvc_5cbba"_s;
const QString searchHost = u"C:\\Windows\\SystemApps\\MicrosoftWindows.Client.CBS_cw5n1h2txyewy\\SearchHost.exe"_s;
const QString searchApp = u"C:\\Windows\\SystemApps\\Microsoft.Windows.Search_cw5n1h2txyewy\\SearchApp.exe"_s;
const QString cloudTasks = u"\\Microsoft\\Windows\\CloudRestore\\"_s;

const QString group = u"chkWindows"_s; // of its boxes

const QString taskDocument = u"<Task version=\"1.4\" xmlns=\"http://schemas.microsoft.com/windows/2004/02/mit/task\">\n"
                             "  <Settings>\n    <Enabled>%1</Enabled>\n  </Settings>\n</Task>"_s;

QString disabledName(const QString &file)
{
    return file.chopped(4) + u"_disable.exe"_s;
}

QString searchProgram(TestMachine::Windows windows)
{
    return windows == TestMachine::Windows::Eleven ? searchHost : searchApp;
}

/** Both search programs, a disabled one of which is there, and the service with its tasks. */
void prepare(TestMachine &machine)
{
    for (const QString &file : {searchHost, searchApp}) {
        machine.addFile(file);
        machine.machine().setFileSize(file, 700);
    }
    machine.machine().setProcesses({u"SearchHost.exe"_s, u"SearchApp.exe"_s});
    machine.write(servicesKey + u'\\' + cloudService, u"Start"_s, u"before"_s);
    machine.write(servicesKey + u'\\' + cloudService, u"Type"_s, 0xe0);
    for (const QString &task : {u"Backup"_s, u"Restore"_s})
        machine.machine().setTask({cloudTasks + task, taskDocument.arg(u"true"_s)});
}

void expectSearch(Outcome &result, const Forms &forms, TestMachine::Windows windows)
{
    const QString file = searchProgram(windows);
    const QString process = file.section(u'\\', -1);
    if (forms.first() != 1)
        return; // nothing is disabled: no command runs at all
    result.commands = {u"takeown /f "_s + file, u"icacls "_s + file + u" /grant:r TESTPC\\Test:F /L"_s,
                       u"taskkill /im "_s + process + u" /f /t"_s};
    if (forms == applyThenReset) {
        result.commands.append(u"icacls "_s + file + u" /reset"_s);
        result.changes = {changeLine(u"rights"_s, file, u"as installed"_s, u"owner TESTPC\\Test"_s)};
        return;
    }
    result.changes = {
        changeLine(u"rights"_s, file, u"as installed"_s, u"owner TESTPC\\Test, granted TESTPC\\Test:F"_s),
        changeLine(u"file"_s, file, u"700 bytes"_s, {}),
        changeLine(u"file"_s, disabledName(file), {}, u"700 bytes"_s),
    };
}

void expectCloudBackup(Outcome &result, const Forms &forms)
{
    const bool ends = forms.last() == 1;
    for (const quint8 form : forms) {
        const QString word = form == 1 ? u" /DISABLE"_s : u" /ENABLE"_s;
        for (const QString &task : {u"Backup"_s, u"Restore"_s})
            result.commands.append(u"schtasks /CHANGE /TN "_s + cloudTasks + task + word);
        result.pauses.append(350);
    }
    result.changes = {registryLine(servicesKey + u'\\' + cloudService, u"Start"_s, valueBefore(),
                                   ends ? u"dword 4"_s : u"dword 3"_s)};
    if (ends) {
        for (const QString &task : {u"Backup"_s, u"Restore"_s})
            result.changes.append(changeLine(u"task"_s, cloudTasks + task, u"enabled"_s, u"disabled"_s));
    }
}

Outcome expected(quint32 id, const Forms &forms, TestMachine::Windows windows)
{
    Outcome result{.changes = valueChanges(group + QString::number(id), forms), .needReboot = id == 1 ? 1 : 0};
    if (id == 5 && windows == TestMachine::Windows::Eleven) {
        // Taken back alone it makes the key, and no value in it.
        result.changes = {forms.first() == 1 ? registryLine(menuKey, u"(default)"_s, {}, u"\"\""_s)
                                             : registryLine(menuKey, {}, {}, u"key"_s)};
        result.needReboot = 1;
    }
    if (id == 10)
        expectSearch(result, forms, windows);
    if (id == 12)
        expectCloudBackup(result, forms);
    return result;
}

} // namespace

class TestTweakWindows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachAlone_data() { eachTweak(12); }
    void eachAlone();

    void telemetryHas82WritesInEachForm();
    void telemetryTakenBackWhereItNeverWasMakesTheQuotedKeys();
    void telemetryWithoutRightsChangesTheUsersValuesAlone();

    void menuKeepsItsKeyWhenTakenBack();

    void formerDisabledSearchIsDeletedFirst();
    void searchThatWasRenamedBeforeIsLeftAlone();
    void searchThatCantBeRenamedKeepsItsName();
    void failingRightsDontStopTheSteps_data();
    void failingRightsDontStopTheSteps();
    void otherGenerationsHaveNoSearch();

    void noCloudServiceNoChange_data();
    void noCloudServiceNoChange();
    void cloudServiceWithAValueAfterType();
    void cloudTasksThatAreMissingGoUnnoticed();
};

void TestTweakWindows::eachAlone()
{
    QFETCH(const TestMachine::Windows, windows);
    QFETCH(const quint32, id);
    QFETCH(const Forms, forms);
    TweakTrial trial(windows, group);
    prepare(trial.machine);
    trial.begin();
    trial.run(&WorkThread::TweakWindows, id, forms);
    COMPARE_OUTCOMES(trial.outcome(), expected(id, forms, windows));
}

void TestTweakWindows::telemetryHas82WritesInEachForm()
{
    int applied = 0, reset = 0, deletedByApply = 0, deletedByReset = 0;
    for (const TweakValue &row : telemetryValues()) {
        QCOMPARE(row.id, 7u);
        applied += std::holds_alternative<NotTouched>(row.apply) ? 0 : 1;
        reset += std::holds_alternative<NotTouched>(row.reset) ? 0 : 1;
        deletedByApply += std::holds_alternative<Deleted>(row.apply) ? 1 : 0;
        deletedByReset += std::holds_alternative<Deleted>(row.reset) ? 1 : 0;
    }
    QCOMPARE(applied, 82);
    QCOMPARE(reset, 82);
    QCOMPARE(deletedByApply, 1);
    QCOMPARE(deletedByReset, 49);
}

void TestTweakWindows::telemetryTakenBackWhereItNeverWasMakesTheQuotedKeys()
{
    TweakTrial trial(TestMachine::Windows::Eleven);
    trial.run(&WorkThread::TweakWindows, 7, resetAlone);
    const QString policies = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\"_s;
    QCOMPARE(trial.machine.read(policies + u"AppCompat\""_s, u"AITEnable"_s), QVariant(1));
    QCOMPARE(trial.machine.read(policies + u"AppCompat"_s, u"AITEnable"_s), QVariant());
    QCOMPARE(trial.machine.read(policies + u"System\""_s, u"PublishUserActivities"_s), QVariant(1));
    QCOMPARE(trial.machine.read(u"HKEY_LOCAL_MACHINE\\SYSTEM\\ControlSet001\\Services\\DiagTrack\""_s, u"Start"_s),
             QVariant(4));
    QCOMPARE(trial.worker.needReboot, 0);
}

void TestTweakWindows::telemetryWithoutRightsChangesTheUsersValuesAlone()
{
    TweakTrial trial(TestMachine::Windows::Eleven, group, {.elevated = false});
    trial.begin();
    trial.run(&WorkThread::TweakWindows, 7, applyAlone);
    QStringList changes = valueChanges(group + u"7"_s, applyAlone);
    changes.removeIf([](const QString &line) { return !line.startsWith(u"registry HKEY_CURRENT_USER\\"); });
    QVERIFY(changes.size() > 30);
    COMPARE_OUTCOMES(trial.outcome(), Outcome{.changes = changes});
}

void TestTweakWindows::menuKeepsItsKeyWhenTakenBack()
{
    TweakTrial trial(TestMachine::Windows::Eleven);
    trial.run(&WorkThread::TweakWindows, 5, applyThenReset);
    QCOMPARE(trial.machine.names(menuKey), QStringList(QString()));
    QCOMPARE(trial.machine.read(menuKey, u"Default"_s), QVariant(QString()));
    QCOMPARE(trial.worker.needReboot, 1);
}

void TestTweakWindows::formerDisabledSearchIsDeletedFirst()
{
    TweakTrial trial(TestMachine::Windows::Eleven);
    prepare(trial.machine);
    const QString former = trial.machine.addFile(disabledName(searchHost), "an older one");
    trial.run(&WorkThread::TweakWindows, 10, applyAlone);
    QCOMPARE(trial.machine.machine().fileSize(former), 700);
    QVERIFY(!QFile::exists(trial.machine.machine().hostPath(searchHost)));
    QCOMPARE(trial.machine.machine().processes(), QStringList(u"SearchApp.exe"_s));
}

void TestTweakWindows::searchThatWasRenamedBeforeIsLeftAlone()
{
    TweakTrial trial(TestMachine::Windows::Ten);
    trial.machine.addFile(disabledName(searchApp));
    trial.begin();
    trial.run(&WorkThread::TweakWindows, 10, applyAlone);
    COMPARE_OUTCOMES(trial.outcome(), (Outcome{.changes = {registryLine(servicesKey, {}, {}, u"key"_s)}}));
}

void TestTweakWindows::searchThatCantBeRenamedKeepsItsName()
{
    TweakTrial trial(TestMachine::Windows::Eleven);
    prepare(trial.machine);
    // A folder of the disabled name is neither deleted nor replaced.
    trial.machine.addFile(disabledName(searchHost) + u"\\file"_s);
    trial.run(&WorkThread::TweakWindows, 10, applyAlone);
    QVERIFY(QFile::exists(trial.machine.machine().hostPath(searchHost)));
    QCOMPARE(trial.machine.commands().size(), 3);
}

void TestTweakWindows::failingRightsDontStopTheSteps_data()
{
    addColumns<QStringList, ToolFault, QString>("failing", "fault", "rights");
    const QStringList both{u"takeown"_s, u"icacls"_s};
    QTest::newRow("both missing") << both << ToolFault{.missing = true} << QString();
    QTest::newRow("both failing") << both << ToolFault{.exitCode = 5} << QString();
    QTest::newRow("both hanging") << both << ToolFault{.hang = true} << QString();
    // Rights are the owner's to give.
    QTest::newRow("takeown failing") << QStringList{u"takeown"_s} << ToolFault{.exitCode = 5} << QString();
    QTest::newRow("icacls failing") << QStringList{u"icacls"_s} << ToolFault{.exitCode = 5} << u"owner TESTPC\\Test"_s;
}

void TestTweakWindows::failingRightsDontStopTheSteps()
{
    QFETCH(const QStringList, failing);
    QFETCH(const ToolFault, fault);
    QFETCH(const QString, rights);
    Command::timeLimit = 300;
    TweakTrial trial(TestMachine::Windows::Eleven);
    prepare(trial.machine);
    for (const QString &tool : failing)
        trial.machine.machine().setFault(tool, fault);
    trial.begin();
    trial.run(&WorkThread::TweakWindows, 10, applyAlone);
    Outcome expected;
    if (!rights.isEmpty())
        expected.changes = {changeLine(u"rights"_s, searchHost, u"as installed"_s, rights)};
    if (fault.exitCode)
        expected.commands = {u"takeown /f "_s + searchHost,
                             u"icacls "_s + searchHost + u" /grant:r TESTPC\\Test:F /L"_s};
    expected.commands.append(u"taskkill /im SearchHost.exe /f /t"_s);
    COMPARE_OUTCOMES(trial.outcome(), expected);
    // There is nothing to take back, and the next time starts over.
    trial.run(&WorkThread::TweakWindows, 10, resetAlone);
    COMPARE_OUTCOMES(trial.outcome(), expected);
    for (const QString &tool : failing)
        trial.machine.machine().clearFault(tool);
    Command::timeLimit = 30000;
    trial.run(&WorkThread::TweakWindows, 10, applyAlone);
    QVERIFY(!QFile::exists(trial.machine.machine().hostPath(searchHost)));
    QVERIFY(QFile::exists(trial.machine.machine().hostPath(disabledName(searchHost))));
}

void TestTweakWindows::otherGenerationsHaveNoSearch()
{
    TweakTrial trial(TestMachine::Windows::Eleven);
    prepare(trial.machine);
    trial.worker.winName = u"unknown"_s;
    trial.begin();
    trial.run(&WorkThread::TweakWindows, 10, applyAlone);
    COMPARE_OUTCOMES(trial.outcome(), Outcome{});
}

void TestTweakWindows::noCloudServiceNoChange_data()
{
    QTest::addColumn<QStringList>("services");
    QTest::newRow("no service at all") << QStringList();
    QTest::newRow("its template alone") << QStringList{u"CloudBackupRestoreSvc"_s, u"AarSvc"_s};
    // Found without regard to case, and then not taken.
    QTest::newRow("in another case") << QStringList{u"cloudbackuprestoresvc_1"_s, u"AarSvc"_s};
    // One that begins with D, whatever its case, ends the search.
    QTest::newRow("after the end of the search") << QStringList{u"BDESVC"_s, u"DPS"_s, u"cloudBackupRestoreSvc_1"_s};
}

void TestTweakWindows::noCloudServiceNoChange()
{
    QFETCH(const QStringList, services);
    TweakTrial trial(TestMachine::Windows::Eleven);
    trial.machine.write(servicesKey, u"one value"_s, 1);
    for (const QString &service : services)
        trial.machine.write(servicesKey + u'\\' + service, u"Type"_s, 0xe0);
    trial.begin();
    trial.run(&WorkThread::TweakWindows, 12, applyThenReset);
    COMPARE_OUTCOMES(trial.outcome(), Outcome{});
}

void TestTweakWindows::cloudServiceWithAValueAfterType()
{
    TweakTrial trial(TestMachine::Windows::Ten);
    prepare(trial.machine);
    trial.machine.write(servicesKey + u'\\' + cloudService, u"UserServiceFlags"_s, 3);
    trial.begin();
    trial.run(&WorkThread::TweakWindows, 12, resetAlone);
    Outcome expected;
    expectCloudBackup(expected, resetAlone);
    expected.changes = {
        registryLine(servicesKey + u'\\' + cloudService + u"/UserServiceFlags"_s, u"Start"_s, {}, u"dword 3"_s)};
    COMPARE_OUTCOMES(trial.outcome(), expected);
}

void TestTweakWindows::cloudTasksThatAreMissingGoUnnoticed()
{
    TweakTrial trial(TestMachine::Windows::Eleven);
    trial.machine.write(servicesKey + u'\\' + cloudService, u"Start"_s, 3);
    trial.machine.write(servicesKey + u'\\' + cloudService, u"Type"_s, 0xe0);
    trial.run(&WorkThread::TweakWindows, 12, applyAlone);
    QCOMPARE(trial.machine.read(servicesKey + u'\\' + cloudService, u"Start"_s), QVariant(4));
    QCOMPARE(trial.machine.commands().size(), 2);
    QCOMPARE(trial.machine.commands().constLast().exitCode, 1);
}

KESTRUNE_SUITE(TestTweakWindows)
#include "tst_tweakwindows.moc"
