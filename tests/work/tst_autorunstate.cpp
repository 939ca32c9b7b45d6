// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of switching a program started at logon off and on.

#include "joblines.h"
#include "machine/source/regfile.h"
#include "support/files.h"
#include "support/packageplaces.h"
#include "support/suite.h"
#include "work/autorun/autorun.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString program = u"C:\\Program Files\\App\\app.exe"_s;
const QString command = u"\"C:\\Program Files\\App\\app.exe\" --quiet"_s;

AutorunEntry runValue(const QString &name, const QString &text, const QString &key = userRunKey)
{
    return {name, key + u'\\' + name, text};
}

AutorunEntry task(const QString &key)
{
    return {key.section(u'\\', -1), key, key};
}

} // namespace

class TestAutorunState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tasksAreToldByTheirName_data();
    void tasksAreToldByTheirName();

    void runValueIsRemovedAndRecorded_data();
    void runValueIsRemovedAndRecorded();
    void recordHoldsTheCommandAsItWasHandedOver_data();
    void recordHoldsTheCommandAsItWasHandedOver();
    void removedValueIsKeptExactly_data();
    void removedValueIsKeptExactly();
    void removedValueIsKeptByTheRegistrysName_data();
    void removedValueIsKeptByTheRegistrysName();
    void removedValuesAreAddedInTheirOrder();
    void aValueIsAddedOnce();
    void aValueThatCannotBeKeptStays_data();
    void aValueThatCannotBeKeptStays();
    void aBackupThatWasCutOffIsRenamed();
    void valueThatCannotComeBackIsLogged();
    void otherValuesOfTheKeyStay();
    void valueThatIsGoneIsRecordedAllTheSame();
    void refusedRemovalIsRecordedAllTheSame();
    void twoProgramsOfOneNameShareARecord();
    void taskIsSwitchedOffAndRecorded_data();
    void taskIsSwitchedOffAndRecorded();
    void noToolIsStarted();

    void commandInQuotesComesBackWhileItsProgramIsThere_data();
    void commandInQuotesComesBackWhileItsProgramIsThere();
    void taskIsSwitchedOnAgain_data();
    void taskIsSwitchedOnAgain();
    void switchingOnLeavesTheRecord();
    void refusedWriteGoesUnnoticed();
    void taskLeavesTheListAndComesBack();
};

void TestAutorunState::tasksAreToldByTheirName_data()
{
    addColumns<QString, bool>("name", "isTask");
    QTest::newRow("Terminal") << u"StartTerminalOnLoginTask"_s << true;
    QTest::newRow("Xbox") << u"Xbox.App.Tasks.FullTrustComponent"_s << true;
    QTest::newRow("in another case") << u"startterminalonlogintask"_s << true;
    QTest::newRow("within a name") << u"My Xbox.App.Tasks.FULLTRUSTComponent 2"_s << true;
    QTest::newRow("a part of it") << u"StartTerminal"_s << false;
    QTest::newRow("another") << u"OneDrive"_s << false;
    QTest::newRow("empty") << QString() << false;
}

void TestAutorunState::tasksAreToldByTheirName()
{
    QFETCH(const QString, name);
    QFETCH(const bool, isTask);
    QCOMPARE(isPackagedTask(name), isTask);
}

void TestAutorunState::runValueIsRemovedAndRecorded_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("user") << userRunKey;
    QTest::newRow("machine") << machineRunKey;
    QTest::newRow("machine, 32 bits") << machineRunKey32;
}

void TestAutorunState::runValueIsRemovedAndRecorded()
{
    QFETCH(const QString, key);
    TestMachine machine;
    machine.write(key, u"My app"_s, command);
    disableAutorun(runValue(u"My app"_s, command, key));
    QCOMPARE(machine.names(key), QStringList());
    QCOMPARE(machine.names(autorunRecordsKey), QStringList{u"My app"_s});
    QCOMPARE(machine.read(autorunRecordsKey, u"My app"_s), QVariant(command + u'=' + key + u"\\My app"_s));
}

void TestAutorunState::recordHoldsTheCommandAsItWasHandedOver_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("without quotes") << u"C:\\app.exe /x"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("equals sign") << u"a.exe --x=1"_s;
    QTest::newRow("32 kB") << QString(16000, u'x');
    QTest::newRow("other letters") << u"\"C:\\服务.exe\""_s;
}

void TestAutorunState::recordHoldsTheCommandAsItWasHandedOver()
{
    QFETCH(const QString, text);
    TestMachine machine;
    machine.write(userRunKey, u"A"_s, text);
    disableAutorun(runValue(u"A"_s, text));
    QCOMPARE(machine.read(autorunRecordsKey, u"A"_s), QVariant(text + u'=' + userRunKey + u"\\A"_s));
}

void TestAutorunState::removedValueIsKeptExactly_data()
{
    addColumns<RegistryType, QByteArray>("type", "data");
    QTest::newRow("text") << RegistryType::String << registryText(command);
    QTest::newRow("text with an equals sign") << RegistryType::String << registryText(u"a.exe --x=1 \"b\""_s);
    QTest::newRow("text with a variable") << RegistryType::ExpandString << registryText(u"%windir%\\a.exe"_s);
    QTest::newRow("text without its end") << RegistryType::String << registryText(u"a.exe"_s).chopped(2);
    QTest::newRow("two lines") << RegistryType::String << registryText(u"a.exe\r\n[HKEY_LOCAL_MACHINE\\X]"_s);
    QTest::newRow("other letters") << RegistryType::String << registryText(u"C:\\服务.exe"_s);
    QTest::newRow("bytes") << RegistryType::Binary << QByteArray(300, '\x5a');
    QTest::newRow("number") << RegistryType::DWord << registryDWord(7);
    QTest::newRow("nothing") << RegistryType::None << QByteArray();
}

void TestAutorunState::removedValueIsKeptExactly()
{
    QFETCH(const RegistryType, type);
    QFETCH(const QByteArray, data);
    const TestMachine machine;
    const RegistryValue value{u"My \"app\" 服"_s, type, data};
    machine.machine().registry().setValue(*machine.machine().registry().make(machineRunKey32), value);
    disableAutorun(runValue(value.name, u"shown"_s, machineRunKey32));
    QCOMPARE(machine.names(machineRunKey32), QStringList());
    const QList<RegistryEdit> edits = parseRegistryScript(readFile(runBackupFile()), u"Run.reg"_s);
    QCOMPARE(edits.size(), 2);
    QCOMPARE(edits.last().key, machineRunKey32);
    QCOMPARE(edits.last().value, value);
}

void TestAutorunState::removedValueIsKeptByTheRegistrysName_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"ATI/AMD Tray", "ATI\\AMD Tray", "/", "\\", "a/b\\c"})
        QTest::newRow(name) << QString::fromLatin1(name);
}

void TestAutorunState::removedValueIsKeptByTheRegistrysName()
{
    QFETCH(const QString, name);
    const TestMachine machine;
    const RegistryValue value{name, RegistryType::ExpandString, registryText(u"\"%windir%\\a.exe\" x=1"_s)};
    machine.machine().registry().setValue(*machine.machine().registry().make(userRunKey), value);
    const QList<AutorunRow> rows = autorunRows();
    QCOMPARE(rows.size(), 1);
    disableAutorun(autorunEntry(rows.first()));
    QCOMPARE(machine.names(userRunKey), QStringList());
    const QList<RegistryEdit> edits = parseRegistryScript(readFile(runBackupFile()), u"Run.reg"_s);
    QCOMPARE(edits.size(), 2);
    QCOMPARE(edits.last().value, value);
}

void TestAutorunState::removedValuesAreAddedInTheirOrder()
{
    TestMachine machine;
    machine.write(userRunKey, u"B"_s, u"b.exe"_s);
    machine.write(machineRunKey, u"A"_s, u"a.exe"_s);
    disableAutorun(runValue(u"B"_s, u"b.exe"_s));
    disableAutorun(runValue(u"A"_s, u"a.exe"_s, machineRunKey));
    // As the registry editor writes it
    const QString script = u"Windows Registry Editor Version 5.00\r\n\r\n["_s + userRunKey
                           + u"]\r\n\"B\"=\"b.exe\"\r\n\r\n["_s + machineRunKey + u"]\r\n\"A\"=\"a.exe\"\r\n"_s;
    QCOMPARE(readFile(runBackupFile()), QByteArray("\xff\xfe") + registryText(script).chopped(2));
    QCOMPARE(runBackupFile(), machine.platform().programFolder() + u"/backup_autorun/Run.reg"_s);
}

void TestAutorunState::aValueIsAddedOnce()
{
    TestMachine machine;
    const auto removeOnce = [&](const QString &text) {
        machine.write(userRunKey, u"A"_s, text);
        disableAutorun(runValue(u"A"_s, text));
        return readFile(runBackupFile());
    };
    const QByteArray first = removeOnce(u"a.exe --x=1"_s);
    QCOMPARE(removeOnce(u"a.exe --x=1"_s), first);
    // Another command is the only copy of its own.
    const QByteArray second = removeOnce(u"a.exe --x=2"_s);
    QVERIFY(second.startsWith(first) && second.size() > first.size());
}

void TestAutorunState::aValueThatCannotBeKeptStays_data()
{
    addColumns<QString, bool>("name", "blocked");
    QTest::newRow("no folder for it") << u"A"_s << true;
    QTest::newRow("a line break in its name") << u"A\n\"B\"=\"b.exe\""_s << false;
}

void TestAutorunState::aValueThatCannotBeKeptStays()
{
    QFETCH(const QString, name);
    QFETCH(const bool, blocked);
    LoggingMachine machine;
    if (blocked)
        writeFile(QFileInfo(runBackupFile()).path(), "in the way");
    const RegistryValue value{name, RegistryType::String, registryText(u"a.exe"_s)};
    machine.machine().registry().setValue(*machine.machine().registry().make(userRunKey), value);
    disableAutorun(runValue(value.name, u"a.exe"_s));
    QCOMPARE(machine.names(userRunKey), QStringList{value.name});
    QCOMPARE(machine.names(autorunRecordsKey), QStringList());
    QVERIFY(machine.errorLog().last().endsWith(u" can't be backed up and stays"_s));
}

void TestAutorunState::aBackupThatWasCutOffIsRenamed()
{
    TestMachine machine;
    for (const QString &name : {u"A"_s, u"B"_s}) {
        writeFile(runBackupFile(), "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURR");
        machine.write(userRunKey, name, u"a.exe"_s);
        disableAutorun(runValue(name, u"a.exe"_s));
        QCOMPARE(machine.names(userRunKey), QStringList());
    }
    QCOMPARE(QDir(QFileInfo(runBackupFile()).path()).entryList(QDir::Files),
             (QStringList{u"Run-cut.reg"_s, u"Run-cut2.reg"_s, u"Run.reg"_s}));
    QCOMPARE(parseRegistryScript(readFile(runBackupFile()), u"Run.reg"_s).size(), 2);
}

void TestAutorunState::valueThatCannotComeBackIsLogged()
{
    const LoggingMachine machine;
    enableAutorun(runValue(u"A"_s, u"a.exe"_s));
    QCOMPARE(machine.errorLog(), QStringList{u"enableRunValue: "_s + userRunKey + u"\\A can't be brought back"_s});
}

void TestAutorunState::otherValuesOfTheKeyStay()
{
    TestMachine machine;
    machine.write(machineRunKey, u"A"_s, u"a.exe"_s);
    machine.write(machineRunKey, u"AB"_s, u"b.exe"_s);
    machine.write(userRunKey, u"A"_s, u"a.exe"_s);
    machine.write(autorunRecordsKey, u"Before"_s, u"x=y"_s);
    disableAutorun(runValue(u"A"_s, u"a.exe"_s, machineRunKey));
    QCOMPARE(machine.names(machineRunKey), QStringList{u"AB"_s});
    QCOMPARE(machine.names(userRunKey), QStringList{u"A"_s});
    QCOMPARE(machine.names(autorunRecordsKey), (QStringList{u"A"_s, u"Before"_s}));
}

void TestAutorunState::valueThatIsGoneIsRecordedAllTheSame()
{
    TestMachine machine;
    disableAutorun(runValue(u"A"_s, u"a.exe"_s));
    QCOMPARE(machine.names(autorunRecordsKey), QStringList{u"A"_s});
}

void TestAutorunState::refusedRemovalIsRecordedAllTheSame()
{
    TestMachine machine(TestMachine::Windows::Eleven, {.elevated = false});
    machine.write(machineRunKey, u"A"_s, u"a.exe"_s);
    disableAutorun(runValue(u"A"_s, u"a.exe"_s, machineRunKey));
    QCOMPARE(machine.names(machineRunKey), QStringList{u"A"_s});
    QCOMPARE(machine.names(autorunRecordsKey), QStringList{u"A"_s});
}

void TestAutorunState::twoProgramsOfOneNameShareARecord()
{
    TestMachine machine;
    machine.write(userRunKey, u"App"_s, u"first.exe"_s);
    machine.write(machineRunKey, u"App"_s, u"second.exe"_s);
    disableAutorun(runValue(u"App"_s, u"first.exe"_s));
    disableAutorun(runValue(u"App"_s, u"second.exe"_s, machineRunKey));
    QCOMPARE(machine.names(userRunKey) + machine.names(machineRunKey), QStringList());
    QCOMPARE(machine.names(autorunRecordsKey), QStringList{u"App"_s});
    QCOMPARE(machine.read(autorunRecordsKey, u"App"_s), QVariant(u"second.exe="_s + machineRunKey + u"\\App"_s));
}

void TestAutorunState::taskIsSwitchedOffAndRecorded_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("Terminal") << terminalTaskKey;
    QTest::newRow("Xbox") << xboxTaskKey;
}

void TestAutorunState::taskIsSwitchedOffAndRecorded()
{
    QFETCH(const QString, key);
    TestMachine machine;
    machine.write(key, u"State"_s, 2);
    machine.write(key, u"LastDisabledTime"_s, 5);
    disableAutorun(task(key));
    QCOMPARE(machine.read(key, u"State"_s), QVariant(1));
    QCOMPARE(machine.read(key, u"LastDisabledTime"_s), QVariant(5));
    const QString name = key.section(u'\\', -1);
    QCOMPARE(machine.names(autorunRecordsKey), QStringList{name});
    QCOMPARE(machine.read(autorunRecordsKey, name), QVariant(key + u'='));
}

void TestAutorunState::noToolIsStarted()
{
    TestMachine machine;
    machine.addFile(program);
    disableAutorun(task(terminalTaskKey));
    disableAutorun(runValue(u"A"_s, command));
    enableAutorun(task(terminalTaskKey));
    enableAutorun(runValue(u"A"_s, command));
    QCOMPARE(machine.commands(), QList<LoggedCommand>());
    QCOMPARE(machine.platform().takePauses(), QList<int>());
}

void TestAutorunState::commandInQuotesComesBackWhileItsProgramIsThere_data()
{
    addColumns<QString, bool>("text", "comesBack");
    const auto row = [](const char *title, const QString &text, bool comesBack) {
        QTest::newRow(title) << text << comesBack;
    };
    row("quotes", u"\"C:\\Program Files\\App\\app.exe\""_s, true);
    row("quotes and arguments", command, true);
    row("in another case", u"\"c:\\program files\\APP\\App.exe\" -x"_s, true);
    row("more quotes after", command + u" \"C:\\missing\""_s, true);
    row("text before the quotes", u"start \"C:\\Program Files\\App\\app.exe\" x"_s, true);
    row("quote without an end", u"\"C:\\Program Files\\App\\app.exe"_s, true);
    row("quote without an end, and arguments", u"\"C:\\Program Files\\App\\app.exe -x"_s, false);
    row("without quotes", program, false);
    row("without quotes, with arguments", program + u" --quiet"_s, false);
    row("program without quotes, argument in quotes", program + u" \"--quiet\""_s, false);
    row("program is gone", u"\"C:\\Program Files\\App\\gone.exe\" -x"_s, false);
    row("nothing in the quotes", u"\"\" C:\\Program Files\\App\\app.exe"_s, false);
    row("quote at the end", program + u'"', false);
    row("variable in the quotes", u"\"%ProgramFiles%\\App\\app.exe\""_s, false);
    row("empty", QString(), false);
}

void TestAutorunState::commandInQuotesComesBackWhileItsProgramIsThere()
{
    QFETCH(const QString, text);
    QFETCH(const bool, comesBack);
    TestMachine machine;
    machine.addFile(program);
    for (const QString &key : {userRunKey, machineRunKey, machineRunKey32}) {
        enableAutorun(runValue(u"My app"_s, text, key));
        QCOMPARE(machine.names(key), comesBack ? QStringList{u"My app"_s} : QStringList());
        if (comesBack)
            QCOMPARE(machine.read(key, u"My app"_s), QVariant(text));
    }
}

void TestAutorunState::taskIsSwitchedOnAgain_data()
{
    QTest::addColumn<QString>("key");
    QTest::newRow("Terminal") << terminalTaskKey;
    QTest::newRow("Xbox") << xboxTaskKey;
}

void TestAutorunState::taskIsSwitchedOnAgain()
{
    QFETCH(const QString, key);
    TestMachine machine;
    machine.write(key, u"State"_s, 1);
    enableAutorun(task(key));
    QCOMPARE(machine.read(key, u"State"_s), QVariant(2));
    QCOMPARE(machine.names(key), QStringList{u"State"_s});
}

void TestAutorunState::switchingOnLeavesTheRecord()
{
    TestMachine machine;
    machine.addFile(program);
    machine.write(userRunKey, u"A"_s, command);
    disableAutorun(runValue(u"A"_s, command));
    disableAutorun(task(terminalTaskKey));
    enableAutorun(runValue(u"A"_s, command));
    enableAutorun(task(terminalTaskKey));
    QCOMPARE(machine.names(autorunRecordsKey), (QStringList{u"A"_s, u"StartTerminalOnLoginTask"_s}));
    QCOMPARE(machine.read(userRunKey, u"A"_s), QVariant(command));
}

void TestAutorunState::refusedWriteGoesUnnoticed()
{
    TestMachine machine(TestMachine::Windows::Eleven, {.elevated = false});
    machine.logErrors();
    machine.addFile(program);
    enableAutorun(runValue(u"A"_s, command, machineRunKey));
    QCOMPARE(machine.names(machineRunKey), QStringList());
    QCOMPARE(machine.errorLog(), QStringList());
}

void TestAutorunState::taskLeavesTheListAndComesBack()
{
    TestMachine machine;
    machine.write(terminalTaskKey, u"State"_s, 2);
    WorkThread worker;
    const auto listed = [&worker] {
        worker.AutorunGetList();
        return worker.autoruns;
    };
    QCOMPARE(listed(), QStringList{terminalTaskKey + u'='});
    disableAutorun(task(terminalTaskKey));
    QCOMPARE(listed(), QStringList());
    enableAutorun(task(terminalTaskKey));
    QCOMPARE(listed(), QStringList{terminalTaskKey + u'='});
}

KESTRUNE_SUITE(TestAutorunState)
#include "tst_autorunstate.moc"
