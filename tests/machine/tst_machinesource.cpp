// SPDX-License-Identifier: GPL-3.0-or-later
// Making machines from sources, and importing into them.

#include "support/smallmachine.h"
#include "support/suite.h"

#include "machine/compare/machinediff.h"
#include "machine/source/regfile.h"
#include "machine/source/toolreport.h"

#include <QDir>
#include <QJsonArray>
#include <QStringEncoder>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QByteArray germanReport = "\r\n"
                                "SERVICE_NAME: Appinfo\r\n"
                                "DISPLAY_NAME: Anwendungsinformationen: neu\r\n"
                                "        TYP                : 30  WIN32  \r\n"
                                "        STATUS             : 4  RUNNING \r\n"
                                "                                (STOPPABLE, NOT_PAUSABLE, IGNORES_SHUTDOWN)\r\n"
                                "        WIN32_EXIT_CODE    : 0  (0x0)\r\n"
                                "        SERVICE_EXIT_CODE  : 0  (0x0)\r\n"
                                "        PR\x9a"
                                "FPUNKT          : 0x0\r\n"
                                "        WARTEHINWEIS       : 0x0\r\n"
                                "\r\n"
                                "NOMBRE_SERVICIO: DiagTrack\r\n"
                                "DISPLAY_NAME: Telemetrie\r\n"
                                "        TYP                : 10  WIN32_OWN_PROCESS  \r\n"
                                "        STATUS             : 1  STOPPED \r\n"
                                "        WIN32_EXIT_CODE    : 1077  (0x435)\r\n"
                                "        SERVICE_EXIT_CODE  : 0  (0x0)\r\n"
                                "\r\n"
                                "SERVICE_NAME: Off\r\n"
                                "DISPLAY_NAME: Off\r\n"
                                "        STATUS             : 1  STOPPED \r\n"
                                "        WIN32_EXIT_CODE    : 1077  (0x435)\r\n";

/** Everything of a machine that imports can change, for a look before and after. */
struct Snapshot
{
    explicit Snapshot(SmallMachine &machine)
        : localMachine(writeRegistryScript(machine->registry(), u"HKEY_LOCAL_MACHINE"_s))
        , currentUser(writeRegistryScript(machine->registry(), u"HKEY_CURRENT_USER"_s))
        , runStates(machine->runStates())
        , environment(machine->environment())
        , processes(machine->processes())
        , name(machine->name())
        , files(QDir(machine->driveFolder() + u"/Users/Public"_s).entryList())
        , notes(readFile(machine->driveFolder() + u"/Users/Public/notes.txt"_s))
    {
    }
    friend bool operator==(const Snapshot &, const Snapshot &) = default;

    QString localMachine, currentUser;
    QMap<QString, bool> runStates;
    QMap<QString, QString> environment;
    QStringList processes;
    QString name;
    QStringList files;
    QByteArray notes;
};

QByteArray json(const char *body)
{
    return QByteArray("{ \"formatVersion\": 1, ") + body + " }";
}

} // namespace

class TestMachineSource : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void machineHoldsWhatItsSourcesSay();
    void filesOfSourcesAreImportedInOrder();
    void largeFilesTakeNoRoom();
    void emptyMachine();
    void malformedJsonIsToldWithItsPlace_data();
    void malformedJsonIsToldWithItsPlace();
    void hardwareIsImportedPartByPart();
    void brokenSourcesLeaveNothing_data();
    void brokenSourcesLeaveNothing();
    void existingFoldersAreKept();
    void onlyMachinesAreReplaced();
    void failedReplacementKeepsTheMachine();
    void importSetsWhatItNamesAndLeavesTheRest();
    void failedImportChangesNothing_data();
    void failedImportChangesNothing();
    void importsTogetherOrNotAtAll();
    void scReportInEnglish();
    void scReportInAnotherLanguage();
    void scReportInUtf16();
    void scReportOfAllStates();
    void scReportMakesTheServicesThatAreMissing();
    void namedCodePageCounts();
    void ownReportComesBack();
    void unknownFilesAreRefused();
};

void TestMachineSource::machineHoldsWhatItsSourcesSay()
{
    SmallMachine machine;
    QCOMPARE(machine->name(), u"A small PC for tests"_s);
    QCOMPARE(machine->environment().value(u"windir"_s), u"C:\\Windows"_s);
    QCOMPARE(machine->processes(), QStringList({u"explorer.exe"_s, u"svchost.exe"_s}));
    QCOMPARE(machine->isRunning(u"diagtrack"_s), std::optional(true));
    QCOMPARE(machine->isRunning(u"Appinfo"_s), std::nullopt);
    QCOMPARE(machine->wmiInstances(u"Win32_BIOS"_s).value(0).value("Manufacturer"_L1).toString(), u"Example"_s);
    QCOMPARE(machine->fileSize(u"c:\\windows\\EXPLORER.exe"_s), 2097152);
    QCOMPARE(readFile(machine->hostPath(u"C:\\Users\\Public\\notes.txt"_s)), QByteArray("hello\n"));
    QCOMPARE(machine->attributes(u"C:\\Users\\Public\\secret.ini"_s), 0x26u);
    QCOMPARE(machine->attributes(u"C:\\Users\\Public\\notes.txt"_s), 0x20u);
    // A DLL is a file, too.
    QVERIFY(QFileInfo(machine->hostPath(u"C:\\Windows\\System32\\appinfo.dll"_s)).isFile());
    QCOMPARE(machine->dllString(u"C:\\Windows\\System32\\appinfo.dll"_s, 100).value_or(QString()).value_or(QString()),
             u"Application Information"_s);
    const auto key = machine->registry().find(u"HKEY_CURRENT_USER\\Software\\Types"_s);
    QVERIFY(key);
    QCOMPARE(machine->registry().value(*key, u"Big"_s).value_or(RegistryValue()).type, RegistryType::QWord);
}

void TestMachineSource::filesOfSourcesAreImportedInOrder()
{
    const QTemporaryDir folder;
    const QByteArray head = "Windows Registry Editor Version 5.00\r\n\r\n[HKEY_CURRENT_USER\\Software\\X]\r\n";
    writeFile(folder.filePath(u"2.reg"_s), head + "\"Last\"=\"2\"\r\n");
    writeFile(folder.filePath(u"1.reg"_s), head + "\"Last\"=\"1\"\r\n");
    writeFile(folder.filePath(u"README.txt"_s), "not a source");
    makeMachine(folder.filePath(u"m"_s), folder.path(), Existing::Keep);
    const auto machine = Machine::open(folder.filePath(u"m"_s));
    const auto key = machine->registry().find(u"HKEY_CURRENT_USER\\Software\\X"_s);
    QVERIFY(key);
    QCOMPARE(textOf(machine->registry().value(*key, u"Last"_s).value_or(RegistryValue()).data), u"2"_s);
}

void TestMachineSource::largeFilesTakeNoRoom()
{
    constexpr qint64 size = 1LL << 33;

    SmallMachine machine;
    writeFile(machine.beside(u"large.json"_s),
              json(R"("files": [{ "path": "C:\\hiberfil.sys", "size": 8589934592 }])"));
    importFile(*machine, machine.beside(u"large.json"_s));
    const QString file = machine->hostPath(u"C:\\hiberfil.sys"_s);
    QCOMPARE(machine->fileSize(u"c:\\HIBERFIL.sys"_s), size);
    QCOMPARE(machine->fileSize(file), size);
    // So that the folder is small wherever it is copied.
    QCOMPARE(QFileInfo(file).size(), 0);

    // What is imported later counts, and what is really there is never less.
    writeFile(machine.beside(u"small.json"_s), json(R"("files": [{ "path": "C:\\hiberfil.sys", "text": "four" }])"));
    importFile(*machine, machine.beside(u"small.json"_s));
    QCOMPARE(machine->fileSize(file), 4);
    writeFile(machine.beside(u"both.json"_s),
              json(R"("files": [{ "path": "C:\\hiberfil.sys", "text": "four", "size": 40 }])"));
    importFile(*machine, machine.beside(u"both.json"_s));
    QCOMPARE(machine->fileSize(file), 40);
    QCOMPARE(readFile(file), QByteArray("four"));
}

void TestMachineSource::emptyMachine()
{
    const QTemporaryDir folder;
    makeMachine(folder.filePath(u"m"_s), QString(), Existing::Keep);
    QVERIFY(Machine::open(folder.filePath(u"m"_s))->runStates().isEmpty());
    QCOMPARE(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot), {u"m"_s});
}

void TestMachineSource::malformedJsonIsToldWithItsPlace_data()
{
    addColumns<QByteArray, QString>("document", "message");
    // clang-format off
    QTest::newRow("syntax")          << QByteArray("{\n  \"formatVersion\": 1,\n  \"name\" 2\n}") << u":3: missing name separator"_s;
    QTest::newRow("cut off")         << QByteArray("{\n  \"formatVersion\": 1,\n  \"running\": [") << u":3: unterminated array"_s;
    QTest::newRow("empty")           << QByteArray() << u":1: illegal value"_s;
    QTest::newRow("an array")        << QByteArray("[]") << u":1: not an object"_s;
    QTest::newRow("no version")      << QByteArray("{}") << u": formatVersion: missing"_s;
    QTest::newRow("newer version")   << QByteArray(R"({ "formatVersion": 2, "unheard": 1 })") << u": formatVersion: made for a newer version of this program"_s;
    QTest::newRow("odd version")     << QByteArray(R"({ "formatVersion": "1" })") << u": formatVersion: must be a whole number"_s;
    QTest::newRow("unknown key")     << json(R"("nme": "x")") << u": nme: unknown key"_s;
    QTest::newRow("name")            << json(R"("name": 3)") << u": name: must be a text"_s;
    QTest::newRow("variable")        << json(R"("environment": { "A": 1 })") << u": environment.A: must be a text"_s;
    QTest::newRow("running")         << json(R"("running": "RpcSs")") << u": running: must be an array"_s;
    QTest::newRow("process")         << json(R"("processes": ["a", ""])") << u": processes[1]: must not be empty"_s;
    QTest::newRow("wmi")             << json(R"("wmi": { "Win32_BIOS": [1] })") << u": wmi.Win32_BIOS[0]: must be an object"_s;
    QTest::newRow("facts")           << json(R"("facts": "x")") << u": facts: must be an array"_s;
    QTest::newRow("hardware")        << json(R"("hardware": { "fans": 2 })") << u": hardware.fans: unknown key"_s;
    QTest::newRow("drive")           << json(R"("hardware": { "volumes": { "C": {} } })") << u": hardware.volumes.C: not a drive, such as C:"_s;
    QTest::newRow("seek penalty")    << json(R"("hardware": { "volumes": { "C:": { "seekPenalty": 0 } } })") << u": hardware.volumes.C:.seekPenalty: must be true or false"_s;
    QTest::newRow("free bytes")      << json(R"("hardware": { "volumes": { "C:": { "freeBytes": -1 } } })") << u": hardware.volumes.C:.freeBytes: must be at least 0"_s;
    QTest::newRow("volume's key")    << json(R"("hardware": { "volumes": { "C:": { "label": "x" } } })") << u": hardware.volumes.C:.label: unknown key"_s;
    QTest::newRow("screen")          << json(R"("hardware": { "screen": { "width": "wide" } })") << u": hardware.screen.width: must be a whole number"_s;
    QTest::newRow("threads")         << json(R"("hardware": { "threads": 4294967296 })") << u": hardware.threads: must be between 0 and 2147483647"_s;
    QTest::newRow("free memory")     << json(R"("hardware": { "freeMemory": 0.5 })") << u": hardware.freeMemory: must be a whole number"_s;
    QTest::newRow("processor times") << json(R"("hardware": { "processorTimes": [{ "idle": 1, "kernel": 1, "user": 0 }, { "idle": 1, "kernel": 1 }] })") << u": hardware.processorTimes[1].user: must be a whole number"_s;
    QTest::newRow("no path")         << json(R"("files": [{ "size": 1 }])") << u": files[0].path: must be a text"_s;
    QTest::newRow("path")            << json(R"("files": [{ "path": "Windows\\x" }])") << u": files[0].path: not a path with a drive, such as C:\\Windows\\explorer.exe"_s;
    QTest::newRow("path that leaves") << json(R"("files": [{ "path": "C:\\..\\x" }])") << u": files[0].path: the part \"..\" can't be in a path"_s;
    QTest::newRow("negative size")   << json(R"("files": [{ "path": "C:\\x", "size": -1 }])") << u": files[0].size: must be between 0 and 1099511627776"_s;
    QTest::newRow("broken size")     << json(R"("files": [{ "path": "C:\\x", "size": 1.5 }])") << u": files[0].size: must be a whole number"_s;
    QTest::newRow("size under text") << json(R"("files": [{ "path": "C:\\x", "size": 1, "text": "ab" }])") << u": files[0].size: must be between 2 and 1099511627776"_s;
    QTest::newRow("file key")        << json(R"("files": [{ "path": "C:\\x", "colour": 1 }])") << u": files[0].colour: unknown key"_s;
    QTest::newRow("attribute")       << json(R"("files": [{ "path": "C:\\x", "attributes": ["hidden", "blue"] }])") << u": files[0].attributes[1]: unknown attribute \"blue\""_s;
    QTest::newRow("signed")          << json(R"("files": [{ "path": "C:\\x", "signed": "no" }])") << u": files[0].signed: must be true or false"_s;
    QTest::newRow("folder")          << json(R"("files": [{ "path": "C:\\x\\", "size": 1 }])") << u": files[0]: a folder has neither text nor size"_s;
    QTest::newRow("string number")   << json(R"("dlls": { "C:\\a.dll": { "x": "y" } })") << u": dlls.C:\\a.dll.x: not the number of a string"_s;
    QTest::newRow("string")          << json(R"("dlls": { "C:\\a.dll": { "1": 2 } })") << u": dlls.C:\\a.dll.1: must be a text"_s;
    QTest::newRow("fault")           << json(R"("faults": { "sc": { "hang": 1 } })") << u": faults.sc.hang: must be true or false"_s;
    QTest::newRow("fault's key")     << json(R"("faults": { "sc": { "explode": true } })") << u": faults.sc.explode: unknown key"_s;
    QTest::newRow("repeat")          << json(R"("faults": { "sc": { "repeat": 0 } })") << u": faults.sc.repeat: must be between 1 and 2147483647"_s;
    // clang-format on
}

void TestMachineSource::malformedJsonIsToldWithItsPlace()
{
    QFETCH(QByteArray, document);
    QFETCH(QString, message);
    SmallMachine machine;
    const QString file = machine.beside(u"machine.json"_s);
    writeFile(file, document);
    const Snapshot before(machine);
    QCOMPARE(errorOf([&] { importFile(*machine, file); }), file + message);
    QVERIFY(Snapshot(machine) == before);
}

void TestMachineSource::hardwareIsImportedPartByPart()
{
    SmallMachine machine;
    const QString file = machine.beside(u"machine.json"_s);
    writeFile(file, json(R"("hardware": { "volumes": { "d:": { "seekPenalty": true, "freeBytes": 12 } }, "threads": 7,
                            "processorTimes": [{ "idle": 1, "kernel": 2, "user": 3 }] })"));
    importFile(*machine, file);
    writeFile(file,
              json(R"("hardware": { "threads": 8, "freeMemory": 9007199254740993, "screen": { "width": 800 } })"));
    importFile(*machine, file);
    const QJsonObject times{{u"idle"_s, 1}, {u"kernel"_s, 2}, {u"user"_s, 3}};
    const QJsonObject drive{{u"seekPenalty"_s, true}, {u"freeBytes"_s, 12}};
    QCOMPARE(machine->hardware(), (QJsonObject{{u"volumes"_s, QJsonObject{{u"D:"_s, drive}}},
                                               {u"threads"_s, 8},
                                               {u"processorTimes"_s, QJsonArray{times}},
                                               {u"freeMemory"_s, 9007199254740993LL},
                                               {u"screen"_s, QJsonObject{{u"width"_s, 800}}}}));
}

void TestMachineSource::brokenSourcesLeaveNothing_data()
{
    addColumns<QString, QByteArray>("file", "content");
    QTest::newRow("registry script") << u"z.reg"_s
                                     << QByteArray("Windows Registry Editor Version 5.00\r\n\r\nnonsense\r\n");
    QTest::newRow("machine.json") << u"machine.json"_s << QByteArray("{");
    QTest::newRow("impossible file")
        << u"machine.json"_s << json(R"("files": [{ "path": "C:\\a", "size": 1 }, { "path": "C:\\a\\b", "size": 1 }])");
}

void TestMachineSource::brokenSourcesLeaveNothing()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    const QTemporaryDir sources;
    const QTemporaryDir place;
    QVERIFY(QFile::copy(smallSources() + u"/10-services.reg"_s, sources.filePath(u"a.reg"_s)));
    writeFile(sources.filePath(file), content);
    QVERIFY(!errorOf([&] { makeMachine(place.filePath(u"m"_s), sources.path(), Existing::Keep); }).isEmpty());
    QVERIFY(QDir(place.path()).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

void TestMachineSource::existingFoldersAreKept()
{
    SmallMachine machine;
    QCOMPARE(errorOf([&] { makeMachine(machine.folder(), QString(), Existing::Keep); }),
             machine.folder() + u": there is a machine already"_s);
    const QTemporaryDir place;
    writeFile(place.filePath(u"photo"_s), "x");
    for (const Existing existing : {Existing::Keep, Existing::Replace})
        QCOMPARE(errorOf([&] { makeMachine(place.path(), QString(), existing); }),
                 place.path() + u": the folder isn't empty"_s);
    QCOMPARE(readFile(place.filePath(u"photo"_s)), QByteArray("x"));
    // An empty folder is as good as none.
    const QTemporaryDir empty;
    makeMachine(empty.path(), QString(), Existing::Keep);
    QVERIFY(Machine::open(empty.path()));
}

void TestMachineSource::onlyMachinesAreReplaced()
{
    SmallMachine machine;
    const QString place = machine.beside(u"other"_s);
    makeMachine(place, smallSources(), Existing::Keep);
    makeMachine(place, QString(), Existing::Replace);
    QVERIFY(Machine::open(place)->runStates().isEmpty());
    QVERIFY(!QFileInfo::exists(place + u"/drive_c/Users"_s));
}

void TestMachineSource::failedReplacementKeepsTheMachine()
{
    SmallMachine machine;
    const QString place = machine.beside(u"other"_s);
    makeMachine(place, smallSources(), Existing::Keep);
    const QTemporaryDir sources;
    writeFile(sources.filePath(u"machine.json"_s), "{");
    QVERIFY(!errorOf([&] { makeMachine(place, sources.path(), Existing::Replace); }).isEmpty());
    const auto kept = Machine::open(place);
    QCOMPARE(compareMachines(*machine, *kept), QList<DiffRow>());
}

void TestMachineSource::importSetsWhatItNamesAndLeavesTheRest()
{
    SmallMachine machine;
    const QString file = machine.beside(u"more.json"_s);
    writeFile(file, json(R"("environment": { "WINDIR": "D:\\W", "New": "1" }, "running": ["Appinfo"],
                            "files": [{ "path": "C:\\users\\PUBLIC\\Notes.txt", "text": "changed" },
                                      { "path": "C:\\Boxes\\setup.exe", "signed": false },
                                      { "path": "C:\\Boxes\\other.exe", "signed": true },
                                      { "path": "C:\\Boxes\\Empty\\", "attributes": ["hidden"] }],
                            "faults": { "sc": { "exitCode": 5 } })"));
    importFile(*machine, file);
    QCOMPARE(machine->name(), u"A small PC for tests"_s);
    QCOMPARE(machine->environment(), (QMap<QString, QString>{
                                         {u"New"_s, u"1"_s},
                                         {u"SystemRoot"_s, u"C:\\Windows"_s},
                                         {u"WINDIR"_s, u"D:\\W"_s},
                                     }));
    QCOMPARE(machine->runStates().keys(true).size(), 4);
    QCOMPARE(machine->processes().size(), 2);
    QCOMPARE(readFile(machine->driveFolder() + u"/Users/Public/notes.txt"_s), QByteArray("changed"));
    QCOMPARE(QDir(machine->driveFolder() + u"/Users/Public"_s).entryList(QDir::Files).size(), 2);
    QVERIFY(QFileInfo(machine->hostPath(u"C:\\Boxes\\Empty"_s)).isDir());
    QCOMPARE(machine->attributes(u"C:\\Boxes\\Empty"_s), 0x12u);
    const std::optional<ToolFault> fault = machine->fault(u"sc"_s);
    QVERIFY(fault);
    QCOMPARE(fault->exitCode, std::optional(5));
    QVERIFY(machine->isUnsigned(u"c:\\boxes\\SETUP.exe"_s));
    QVERIFY(!machine->isUnsigned(u"C:\\Boxes\\other.exe"_s));
    QVERIFY(!machine->isUnsigned(u"C:\\Windows\\System32\\OneDriveSetup.exe"_s));
    const QString copy = machine.beside(u"copy"_s);
    copyMachine(*machine, copy);
    QVERIFY(Machine::open(copy)->isUnsigned(u"C:\\Boxes\\setup.exe"_s));
    // An empty fault is an end to the fault.
    writeFile(file, json(R"("faults": { "sc": {} })"));
    importFile(*machine, file);
    QVERIFY(!machine->fault(u"sc"_s));
}

void TestMachineSource::failedImportChangesNothing_data()
{
    addColumns<QString, QByteArray>("name", "content");
    QTest::newRow("script with a broken line at its end")
        << u"x.reg"_s
        << QByteArray("Windows Registry Editor Version "
                      "5.00\r\n\r\n[HKEY_CURRENT_USER\\New]\r\n\"a\"=dword:1\r\n\"b\"=oops\r\n");
    QTest::newRow("file that can't be") << u"x.json"_s
                                        << json(R"("name": "other", "running": ["Off"], "environment": { "A": "B" },
           "files": [{ "path": "C:\\Users\\Public\\notes.txt", "text": "changed" },
                     { "path": "C:\\Users\\Public\\twice", "text": "1" },
                     { "path": "C:\\Users\\Public\\twice", "text": "2" },
                     { "path": "C:\\Users\\Public\\new\\file", "text": "new" },
                     { "path": "C:\\Users\\Public\\secret.ini\\x", "text": "impossible" }])");
    QTest::newRow("half a record") << u"x.txt"_s << germanReport + "\r\nSERVICE_NAME: RpcSs\r\nDISPLAY_NAME: x\r\n";
}

void TestMachineSource::failedImportChangesNothing()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    SmallMachine machine;
    const Snapshot before(machine);
    const QString file = machine.beside(name);
    writeFile(file, content);
    const QString message = errorOf([&] { importFile(*machine, file); });
    QVERIFY(!message.isEmpty());
    QVERIFY2(!message.contains(u'\n'), qPrintable(message));
    QVERIFY(Snapshot(machine) == before);
}

void TestMachineSource::importsTogetherOrNotAtAll()
{
    SmallMachine machine;
    const Snapshot before(machine);
    const QString good = machine.beside(u"good.json"_s);
    writeFile(good, json(R"("running": ["Off"])"));
    QCOMPARE(errorOf([&] {
                 importFiles(*machine, {good, machine.beside(u"missing.reg"_s)});
             }),
             machine.beside(u"missing.reg"_s) + u": No such file or directory"_s);
    QVERIFY(Snapshot(machine) == before);
}

void TestMachineSource::scReportInEnglish()
{
    const QList<ServiceReport> reports = parseServiceReport(u"\r\nSERVICE_NAME: Two words \r\nDISPLAY_NAME: x\r\n"
                                                            "        TYPE               : 20  WIN32_SHARE_PROCESS  \r\n"
                                                            "        STATE              : 1  STOPPED \r\n"
                                                            "        WIN32_EXIT_CODE    : 0  (0x0)\r\n"_s,
                                                            u"f"_s);
    QCOMPARE(reports.size(), 1);
    QCOMPARE(reports.at(0).name, u"Two words"_s);
    QVERIFY(!reports.at(0).running);
    QVERIFY(reports.at(0).everRan);
}

void TestMachineSource::scReportInAnotherLanguage()
{
    SmallMachine machine;
    writeFile(machine.beside(u"dienste.txt"_s), germanReport);
    importFile(*machine, machine.beside(u"dienste.txt"_s));
    QCOMPARE(machine->isRunning(u"Appinfo"_s), std::optional(true));
    // It had a run state here, so it is stopped now; the other one never ran anywhere.
    QCOMPARE(machine->isRunning(u"DiagTrack"_s), std::optional(false));
    QCOMPARE(machine->isRunning(u"Off"_s), std::nullopt);
    QCOMPARE(machine->isRunning(u"RpcSs"_s), std::optional(true));
}

void TestMachineSource::scReportInUtf16()
{
    SmallMachine machine;
    QStringEncoder encoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    writeFile(machine.beside(u"services"_s), encoder(QString::fromLatin1(germanReport)));
    importFile(*machine, machine.beside(u"services"_s));
    QCOMPARE(machine->isRunning(u"Appinfo"_s), std::optional(true));
}

void TestMachineSource::scReportOfAllStates()
{
    QString text;
    const QStringList states{u"STOPPED"_s,          u"START_PENDING"_s, u"STOP_PENDING"_s, u"RUNNING"_s,
                             u"CONTINUE_PENDING"_s, u"PAUSE_PENDING"_s, u"PAUSED"_s};
    for (qsizetype i = 0; i < states.size(); ++i)
        text += u"\nSERVICE_NAME: s%1\n        STATE  : %1  %2 \n"_s.arg(i + 1).arg(states.at(i));
    QList<bool> running;
    for (const ServiceReport &report : parseServiceReport(text, u"f"_s))
        running.append(report.running);
    QCOMPARE(running, QList<bool>({false, true, false, true, true, true, true}));
}

void TestMachineSource::scReportMakesTheServicesThatAreMissing()
{
    SmallMachine machine;
    const auto record = [](const QByteArray &name, const QByteArray &type, int state) {
        return "\r\nSERVICE_NAME: " + name + "\r\nDISPLAY_NAME: D\x82mon: " + name + "\r\n" + type
               + (state == 4 ? "        STATUS             : 4  RUNNING \r\n"
                             : "        STATUS             : 1  STOPPED \r\n");
    };
    const QByteArray shared = "        TYP                : e0  USER_SHARE_PROCESS INSTANCE  \r\n";
    writeFile(machine.beside(u"sc.txt"_s), record("New_1", shared, 4) + record("new 2", shared, 1)
                                               + record("Later", shared, 4) + record("DiagTrack", shared, 4)
                                               + record("No type", {}, 4) + record("..\\Up", shared, 4));
    writeFile(machine.beside(u"later.reg"_s),
              "Windows Registry Editor Version 5.00\r\n\r\n"
              "[HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Later]\r\n\"Type\"=dword:00000010\r\n");
    // Whatever comes first
    const QStringList told = importFiles(*machine, {machine.beside(u"sc.txt"_s), machine.beside(u"later.reg"_s)});
    QVERIFY(told.value(0).startsWith(machine.beside(u"sc.txt"_s) + u": taken for code page 850, which is a guess."_s));
    QCOMPARE(told.mid(1),
             (QStringList{u"New_1, new 2: made from what sc says. What they start by, need and say of themselves "
                          "isn't in that; they are taken to start on demand."_s}));

    const RegistryStore &registry = machine->registry();
    const QString services = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\"_s;
    for (const QString &name : {u"New_1"_s, u"new 2"_s}) {
        const auto key = registry.find(services + name);
        QVERIFY(key);
        QCOMPARE(registry.value(*key, u"Type"_s)->data, registryDWord(0xe0));
        QCOMPARE(registry.value(*key, u"Start"_s)->data, registryDWord(3));
        QCOMPARE(textOf(registry.value(*key, u"DisplayName"_s)->data), u"D\u00e9mon: "_s + name);
        QCOMPARE(registry.valueNames(*key).size(), 3);
    }
    QCOMPARE(machine->isRunning(u"New_1"_s), std::optional(true));
    QCOMPARE(machine->isRunning(u"new 2"_s), std::optional(false));
    // One that has its key is as that says, and what is no service's name makes none.
    QCOMPARE(registry.value(*registry.find(services + u"DiagTrack"_s), u"Type"_s)->data, registryDWord(0x10));
    QCOMPARE(registry.valueNames(*registry.find(services + u"Later"_s)), QStringList{u"Type"_s});
    QVERIFY(!registry.find(services + u"No type"_s));
    QVERIFY(!registry.find(services + u".."_s));
    const Ended ended = runProgram(stockTool(), {machine.folder(), u"sc"_s, u"query"_s, u"New_1"_s});
    QVERIFY2(ended.output.contains("STATE              : 4  RUNNING"), ended.output);
}

void TestMachineSource::namedCodePageCounts()
{
    SmallMachine machine;
    writeFile(machine.beside(u"sc.txt"_s), "\r\nSERVICE_NAME: New\r\nDISPLAY_NAME: \xc3\xfb\xb3\xc6\r\n"
                                           "        TYPE               : 10  WIN32_OWN_PROCESS  \r\n"
                                           "        STATE              : 4  RUNNING \r\n");
    writeFile(machine.beside(u"tasks.txt"_s),
              "<!-- \\\xc3\xfb -->\r\n<Task version=\"1.2\" xmlns=\"http://x\"></Task>\r\n");
    // One with its mark says itself what it is.
    QStringEncoder encode(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom);
    writeFile(machine.beside(u"marked.txt"_s),
              encode(u"<!-- \\Größe -->\r\n<Task version=\"1.2\" xmlns=\"http://x\"></Task>\r\n"_s));
    const QStringList files{machine.beside(u"sc.txt"_s), machine.beside(u"tasks.txt"_s),
                            machine.beside(u"marked.txt"_s)};
    const QStringList told = importFiles(*machine, files, {}, 936);
    QCOMPARE(told.size(), 1); // of the service that was made
    const auto key = machine->registry().find(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\New"_s);
    QCOMPARE(textOf(machine->registry().value(*key, u"DisplayName"_s)->data), u"名称"_s);
    QVERIFY(machine->task(u"\\名"_s));
    QVERIFY(machine->task(u"\\Größe"_s));

    const QStringList guessed = importFiles(*machine, files);
    QCOMPARE(guessed.size(), 2);
    for (int i = 0; i < 2; ++i)
        QVERIFY(guessed.at(i).startsWith(files.at(i) + u": taken for code page 850, which is a guess."_s));
}

void TestMachineSource::ownReportComesBack()
{
    SmallMachine machine;
    const QMap<QString, bool> states = machine->runStates();
    const Ended ended = runProgram(stockTool(), {machine.folder(), u"sc"_s, u"query"_s, u"state="_s, u"all"_s});
    writeFile(machine.beside(u"report.txt"_s), ended.output);
    machine->setRunning(u"DiagTrack"_s, false);
    importFile(*machine, machine.beside(u"report.txt"_s));
    QCOMPARE(machine->runStates(), states);
}

void TestMachineSource::unknownFilesAreRefused()
{
    SmallMachine machine;
    const QString file = machine.beside(u"photo.jpg"_s);
    writeFile(file, "\xff\xd8\xff\xe0 SERVICE_NAME");
    QCOMPARE(errorOf([&] { importFile(*machine, file); }),
             file
                 + u": neither a registry script, nor scheduled tasks, nor a machine.json, nor a list of services by "
                   "sc"_s);
    QCOMPARE(errorOf([&] { importFile(*machine, machine.folder()); }), machine.folder() + u": a folder, not a file"_s);
}

KESTRUNE_SUITE(TestMachineSource)
#include "tst_machinesource.moc"
