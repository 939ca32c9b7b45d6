// SPDX-License-Identifier: GPL-3.0-or-later
// Records that the program never wrote: whoever can write to the user's registry wants an elevated Restore to go by
// them.

#include "automatizerruns.h"
#include "support/suite.h"

#include "work/automatizer/records.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString packageRecords = settingsKey + u"\\Packages"_s;
const QString imageOptions = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion\\"
                             "Image File Execution Options\\sethc.exe"_s;
const QString spooler = servicesKey + u"\\Spooler"_s;
const QString evil = u"\"C:\\Tools\\a.exe\""_s;

/** A machine with a program that a record may name. */
class RecordsMachine : public LoggingMachine
{
public:
    RecordsMachine()
    {
        addFile(u"C:\\Tools\\a.exe"_s);
        addFile(u"C:\\Windows\\SysWOW64\\OneDriveSetup.exe"_s);
        addFile(u"C:\\Windows\\System32\\WindowsPowerShell\\v1.0\\powershell.exe"_s);
        add({.name = u"Spooler"_s, .start = 4});
        add({.name = u"ACPI"_s, .type = 1, .start = 0});
    }
};

QStringList restoredBy(const TestMachine &machine)
{
    ToolRuns runs(machine);
    WorkerOn worker(onEleven);
    worker.automatizerProgram = 1;
    worker.automatizerTweak = 0;
    restore(worker);
    return runs.next();
}

} // namespace

class TestForeignRecords : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void programsComeBackToTheRunKeysAlone_data();
    void programsComeBackToTheRunKeysAlone();
    void restoreWritesNowhereElse();
    void tasksAreSwitchedOnByTheirOwnKeysAlone();
    void driversAndPathsAreNoServices();
    void aServiceThatIsNotThereIsTried();
    void pieceOfACommandIsNoPackage_data();
    void pieceOfACommandIsNoPackage();
    void whatIsPassedOverIsLoggedNamedAndStays();
};

void TestForeignRecords::programsComeBackToTheRunKeysAlone_data()
{
    addColumns<QString, QString, bool>("name", "record", "trusted");
    const auto row = [](const char *title, const QString &name, const QString &record, bool trusted) {
        QTest::newRow(title) << name << record << trusted;
    };
    row("the user's", u"App"_s, evil + u'=' + userRunKey + u"\\App"_s, true);
    row("in another case", u"App"_s, evil + u'=' + userRunKey.toUpper() + u"\\APP"_s, true);
    row("the machine's", u"App"_s, evil + u'=' + machineRunKey + u"\\App"_s, true);
    row("another name", u"App"_s, evil + u'=' + machineRunKey + u"\\Other"_s, false);
    row("below a Run key", u"App"_s, evil + u'=' + machineRunKey + u"\\Sub\\App"_s, false);
    row("elsewhere", u"Debugger"_s, evil + u'=' + imageOptions + u"\\Debugger"_s, false);
    row("a service's program", u"ImagePath"_s, evil + u'=' + spooler + u"\\ImagePath"_s, false);
    row("the Terminal's task", u"StartTerminalOnLoginTask"_s, terminalTaskKey + u'=', true);
    row("another key for a task", u"StartTerminalOnLoginTask"_s, spooler + u'=', false);
    row("no path", u"App"_s, u"app.exe"_s, true);
}

void TestForeignRecords::programsComeBackToTheRunKeysAlone()
{
    QFETCH(const QString, name);
    QFETCH(const QString, record);
    QFETCH(const bool, trusted);
    RecordsMachine machine;
    machine.write(autorunRecordsKey, name, record);
    QCOMPARE(trustedAutoruns(), trusted ? QStringList{name} : QStringList());
    QCOMPARE(distrustedRecords(), trusted ? QStringList() : QStringList{u"Autorun\\"_s + name});
}

void TestForeignRecords::restoreWritesNowhereElse()
{
    RecordsMachine machine;
    machine.write(autorunRecordsKey, u"App"_s, evil + u'=' + userRunKey + u"\\App"_s);
    machine.write(autorunRecordsKey, u"Other"_s, evil + u'=' + userRunKey + u"\\Other"_s);
    machine.write(autorunRecordsKey, u"Debugger"_s, evil + u'=' + imageOptions + u"\\Debugger"_s);
    machine.write(autorunRecordsKey, u"ImagePath"_s, evil + u'=' + spooler + u"\\ImagePath"_s);
    restoredBy(machine);
    QCOMPARE(machine.names(userRunKey), (QStringList{u"App"_s, u"Other"_s}));
    QVERIFY(!machine.machine().registry().find(imageOptions));
    QVERIFY(!machine.names(spooler).contains(u"ImagePath"_s));
}

void TestForeignRecords::tasksAreSwitchedOnByTheirOwnKeysAlone()
{
    RecordsMachine machine;
    machine.write(autorunRecordsKey, u"App"_s, evil + u'=' + userRunKey + u"\\App"_s);
    machine.write(autorunRecordsKey, u"StartTerminalOnLoginTask"_s, terminalTaskKey + u'=');
    machine.write(autorunRecordsKey, u"Xbox.App.Tasks.FullTrustComponent"_s, spooler + u'=');
    restoredBy(machine);
    QCOMPARE(machine.read(terminalTaskKey, u"State"_s), QVariant(2));
    QVERIFY(!machine.names(spooler).contains(u"State"_s));
}

void TestForeignRecords::driversAndPathsAreNoServices()
{
    RecordsMachine machine;
    for (const QString &name : {u"Spooler"_s, u"ACPI"_s})
        machine.write(serviceRecordsKey, name, 1);
    // The registry's own name has the slash, which the settings show as a backslash.
    RegistryStore &registry = machine.machine().registry();
    registry.setValue(*registry.make(serviceRecordsKey),
                      {u"Tcpip/Parameters"_s, RegistryType::DWord, registryDWord(1)});
    QCOMPARE(trustedServices(), QStringList{u"Spooler"_s});
    QCOMPARE(restoredBy(machine), (QStringList{u"sc|config|Spooler|start=auto"_s, u"sc|start|Spooler"_s}));
    QCOMPARE(machine.read(servicesKey + u"\\ACPI"_s, u"Start"_s), QVariant(0));
}

void TestForeignRecords::aServiceThatIsNotThereIsTried()
{
    RecordsMachine machine;
    machine.write(serviceRecordsKey, u"Removed"_s, 1);
    QCOMPARE(trustedServices(), QStringList{u"Removed"_s});
    restoredBy(machine);
    QCOMPARE(machine.names(serviceRecordsKey), QStringList());
}

void TestForeignRecords::pieceOfACommandIsNoPackage_data()
{
    addColumns<QString, bool>("name", "trusted");
    QTest::newRow("a package") << u"Microsoft.BingNews"_s << true;
    QTest::newRow("OneDrive") << u"MS OneDrive"_s << true;
    QTest::newRow("the old Xbox app as the page has it")
        << u"Microsoft.XboxApp (Old Xbox App, no longer supported!) "_s << true;
    QTest::newRow("the same with something else") << u"Microsoft.XboxApp (calc.exe) "_s << false;
    QTest::newRow("another command") << u"x; Start-Process evil.exe #"_s << false;
    QTest::newRow("a variable") << u"$env:x"_s << false;
    QTest::newRow("another line") << u"Microsoft.BingNews\n"_s << false;
    QTest::newRow("other letters") << u"Microsoft.B\u00efngNews"_s << false;
}

void TestForeignRecords::pieceOfACommandIsNoPackage()
{
    QFETCH(const QString, name);
    QFETCH(const bool, trusted);
    RecordsMachine machine;
    machine.write(packageRecords, name, 1);
    QCOMPARE(trustedPackages(), trusted ? QStringList{name} : QStringList());
    const QStringList runs = restoredBy(machine);
    QCOMPARE(runs.isEmpty(), !trusted);
    QVERIFY(!runs.join(u'\n').contains("(Old"_L1));
}

void TestForeignRecords::whatIsPassedOverIsLoggedNamedAndStays()
{
    RecordsMachine machine;
    const QString record = evil + u'=' + imageOptions + u"\\Debugger"_s;
    machine.write(autorunRecordsKey, u"Debugger"_s, record);
    machine.write(serviceRecordsKey, u"ACPI"_s, 1);
    QCOMPARE(distrustedRecords(), (QStringList{u"SVC\\ACPI"_s, u"Autorun\\Debugger"_s}));
    restoredBy(machine);
    closeRestore();
    QCOMPARE(machine.read(autorunRecordsKey, u"Debugger"_s), QVariant(record));
    QCOMPARE(machine.names(serviceRecordsKey), QStringList{u"ACPI"_s});
    const QStringList log = machine.errorLog();
    QVERIFY(log.contains(u"records: SVC\\ACPI isn't the program's own and is passed over"_s));
    QVERIFY(log.contains(u"records: Autorun\\Debugger isn't the program's own and is passed over"_s));
}

KESTRUNE_SUITE(TestForeignRecords)
#include "tst_foreignrecords.moc"
