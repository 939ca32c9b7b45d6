// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse capture: a PC, which a rehearsal machine stands for here, becomes a machine that behaves alike.

#include "capture/capturesteps.h"
#include "capture/neutralnames.h"
#include "capturing.h"
#include "machine/compare/machinediff.h"
#include "machine/database.h"
#include "machine/machine.h"
#include "recordingplatform.h"
#include "support/processes.h"
#include "support/suite.h"
#include "support/undoing.h"
#include "work/automatizerruns.h"
#include "work/tweaks/tweakcatalogue.h"
#include "work/windowsname.h"

#include <QDirIterator>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString noneKept = u"printer=0,bluetooth-audio=0,files-sharing=0,xbox-app=0,upnp=0,proxy-vpn=0,nfc=0,"
                         "xbox-game-bar=0,codecs=0"_s;

Ended rehearse(const QStringList &arguments)
{
    constexpr int patience = 150000; // milliseconds
    QProcess process;
    process.start(builtProgram(u"kestrune-rehearse"_s), arguments);
    process.waitForFinished(patience);
    return {0, process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

/** A preview's lines, without what differs for good reasons. */
QStringList comparableLines(const QString &previewFile)
{
    QJsonObject report = QJsonDocument::fromJson(readFile(previewFile)).object();
    QJsonArray items;
    for (const QJsonValue item : report[u"items"_s].toArray()) {
        // The export of tasks and its backup are smaller by what the tasks are given.
        if (!QJsonDocument(item.toObject()).toJson().contains("tasks.xml"))
            items.append(item);
    }
    report[u"items"_s] = items;
    // Keys are spelled as the program does, which the registry doesn't care for, and the console has no such dash.
    const QString text = QString::fromUtf8(QJsonDocument(report).toJson()).replace(u'–', u'?').toLower();
    return text.split(u'\n');
}

/** Everything that the window and the Automatizer do, some of it twice. */
void runEverything(const QString &folder, Questions &questions)
{
    setPlatform(
        std::make_unique<RecordingPlatform>(std::make_unique<MachinePlatform>(folder, MachineOptions()), questions));
    {
        WorkThread worker;
        const WindowsName windows = readWindowsName();
        worker.winName = windows.product;
        worker.winBuild = windows.build;
        for (auto keep : {&WorkThread::keepPrinter, &WorkThread::keepXboxApp, &WorkThread::keepXboxGameBar})
            worker.*keep = 0;
        worker.GetSystemInfo();
        optimize(worker);
        restore(worker);
        for (const int job : {JobSvcMakeList, JobTaskMakeList, JobPackageGetList, JobWinSxsSize, JobMonitor})
            runJob(worker, job);
        worker.AutorunGetList();
        for (const TweakBox &box : tweakBoxes()) {
            if (box.apply == When::AsJob)
                continue; // walks over all files, which aren't taken
            (worker.*box.tweak)(1, box.id);
            (worker.*box.tweak)(0, box.id);
        }
    }
    setPlatform(nullptr);
}

bool isWindowsFile(const QString &path)
{
    // The export of tasks is written before it is read; no drive stands within a path.
    return path.size() > 3 && path.at(1) == u':' && path.indexOf(u':', 2) < 0
           && !path.endsWith("tasks.xml"_L1, Qt::CaseInsensitive);
}

/** Puts in place what was asked for and isn't there, so that it can be seen whether it is taken. */
void plantAll(Machine &machine, const Questions &questions)
{
    RegistryStore &store = machine.registry();
    for (const auto &[key, name] : questions.values) {
        const auto id = store.make(key);
        if (id && !store.value(*id, name))
            store.setValue(*id, {name, RegistryType::ExpandString, registryText(u"planted"_s)});
    }
    for (const QString &path : questions.files) {
        const QString file = machine.hostPath(path);
        if (isWindowsFile(path) && !QFileInfo::exists(file)) {
            QDir().mkpath(QFileInfo(file).path());
            writeFile(file, "planted");
        }
    }
}

QStringList foundMissing(Machine &pc, Machine &captured, const Questions &questions)
{
    QStringList missing;
    const auto valueOf = [](Machine &machine, const QString &key, const QString &name) {
        const auto id = machine.registry().find(key);
        return id ? machine.registry().value(*id, name) : std::nullopt;
    };
    for (const auto &[key, name] : questions.values) {
        if (valueOf(pc, key, name) != valueOf(captured, key, name))
            missing.append(u"value "_s + key + u" | "_s + name);
    }
    const auto listed = [](Machine &machine, const QString &key, bool subkeys) {
        const auto id = machine.registry().find(key);
        if (!id)
            return QStringList(u"no key"_s);
        return subkeys ? QStringList(machine.registry().subkeys(*id)) : machine.registry().valueNames(*id);
    };
    for (const QString &key : questions.listedSubkeys) {
        if (listed(pc, key, true) != listed(captured, key, true))
            missing.append(u"subkeys of "_s + key);
    }
    for (const QString &key : questions.listedValues) {
        if (listed(pc, key, false) != listed(captured, key, false))
            missing.append(u"values of "_s + key);
    }
    for (const QString &key : questions.keys) {
        if (pc.registry().find(key).has_value() != captured.registry().find(key).has_value())
            missing.append(u"key "_s + key);
    }
    for (const QString &path : questions.files) {
        const QFileInfo file(pc.hostPath(path));
        const QFileInfo taken(captured.hostPath(path));
        if (isWindowsFile(path)
            && (file.exists() != taken.exists() || (file.isFile() && pc.fileSize(path) != captured.fileSize(path))))
            missing.append(u"file "_s + path);
        else if (isWindowsFile(path) && pc.attributes(path) != captured.attributes(path))
            missing.append(u"attributes of "_s + path);
    }
    for (const auto &[dll, id] : questions.strings) {
        if (pc.dllString(dll, id) != captured.dllString(dll, id))
            missing.append(u"string %1 of %2"_s.arg(id).arg(dll));
    }
    return missing;
}

/** What the seam tells of hardware and the like. */
QStringList seamAnswers(const QString &folder, const Questions &questions)
{
    const MachinePlatform pc(folder, {});
    QStringList answers{pc.processNames().join(u','),
                        QString::number(pc.screenSize().width()),
                        QString::number(pc.screenSize().height()),
                        QString::number(pc.colorSpace().value_or(-1)),
                        QString::number(pc.threadCount()),
                        QString::number(pc.freeMemory()),
                        pc.rootDrive().path,
                        QString::number(pc.rootDrive().freeBytes),
                        QString::number(pc.seekPenalty(u"C:\\Windows"_s).value_or(true))};
    for (const auto &[className, properties] : questions.wmi) {
        for (const QStringList &instance : pc.queryWmi(className, properties).instances)
            answers.append(className + u": "_s + instance.join(u','));
    }
    answers.sort();
    for (const QString &walked : questions.walks) {
        qint64 bytes = 0;
        pc.walk(walked, [&bytes](const WalkEntry &entry) {
            bytes += entry.size;
            return true;
        });
        answers.append(walked + u' ' + QString::number(bytes));
    }
    return answers;
}

} // namespace

class TestCapture : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void previewIsThatOfThePcAndUndoTakesItBack_data();
    void previewIsThatOfThePcAndUndoTakesItBack();
    void allThatIsAskedForIsTaken_data() { machines(); }
    void allThatIsAskedForIsTaken();
    void pcIsNotChanged();
    void commandsOnlyRead();
    void namesAreReplacedAndPathsStillFindTheirFiles();
    void replacedNamesGiveNoWayBack();
    void tasksLoseWhatTheyAreGiven();
    void packageComesBackByItsName();
    void withoutElevation();
    void keyThatMayNotBeReadIsTold();
    void brokenOffLeavesNothing();
    void placeIsChecked();
#ifndef Q_OS_WIN
    void programSaysThatThisIsNoWindows();
#endif
    void accountsInBytesAreReplacedAlike();
    void shortNameOfTheUsersFolder();
    void boundsOfNames_data();
    void boundsOfNames();

private:
    static void machines();
    QTemporaryDir folder_;
    QString make(const QString &builtIn);
    QString place(const QString &name) const
    {
        return folder_.filePath(name);
    }
};

void TestCapture::machines()
{
    QTest::addColumn<QString>("builtIn");
    QTest::newRow("Windows 11") << u"windows11"_s;
    QTest::newRow("Windows 10") << u"windows10"_s;
}

QString TestCapture::make(const QString &builtIn)
{
    const QString path = place(builtIn);
    makeMachine(path, QCoreApplication::applicationDirPath() + u"/machines/"_s + builtIn, Existing::Replace);
    return path;
}

void TestCapture::previewIsThatOfThePcAndUndoTakesItBack_data()
{
    machines();
}

void TestCapture::previewIsThatOfThePcAndUndoTakesItBack()
{
    QFETCH(QString, builtIn);
    const QString pc = make(builtIn);
    const QString captured = place(builtIn + u"-captured"_s);
    captureMachine(pc, captured);
    const QStringList options{u"--keep"_s, noneKept, u"--json"_s};
    Ended ended = rehearse(QStringList{u"preview"_s, pc} + options + QStringList{place(u"pc.json"_s)});
    QVERIFY2(ended.exitCode == 0, ended.errors);
    ended = rehearse(QStringList{u"preview"_s, captured} + options
                     + QStringList{place(u"captured.json"_s), u"--undo"_s, place(u"undo.reg"_s)});
    QVERIFY2(ended.exitCode == 0, ended.errors);
    const QStringList expected = comparableLines(place(u"pc.json"_s));
    const QStringList lines = comparableLines(place(u"captured.json"_s));
    QVERIFY(expected.size() > 1000);
    for (qsizetype i = 0; i < std::min(expected.size(), lines.size()); ++i)
        QCOMPARE(lines.at(i), expected.at(i));
    QCOMPARE(lines.size(), expected.size());

    const QString asCaptured = place(builtIn + u"-as-captured"_s);
    copyMachine(*Machine::open(captured), asCaptured);
    ended = rehearse({u"run"_s, captured, u"optimize"_s, u"--keep"_s, noneKept});
    QVERIFY2(ended.exitCode == 0, ended.errors);
    const auto before = Machine::open(asCaptured);
    const auto optimized = Machine::open(captured);
    QVERIFY(!compareMachines(*before, *optimized).isEmpty());
    QCOMPARE(undo(*optimized, place(u"undo.reg"_s)), QString());
    for (const DiffRow &row : compareMachines(*before, *optimized))
        QVERIFY2(row.path.startsWith("program\\"_L1), qPrintable(row.path + u' ' + row.name));
}

void TestCapture::allThatIsAskedForIsTaken()
{
    QFETCH(QString, builtIn);
    Questions questions;
    runEverything(make(builtIn), questions);
    QVERIFY(questions.values.size() > 1000);
    // What the window asks for by itself
    questions.files += {u"C:\\hiberfil.sys"_s, u"C:\\Windows\\System32\\cmd.exe"_s};

    const QString pc = make(builtIn);
    plantAll(*Machine::open(pc), questions);
    const QString captured = place(builtIn + u"-planted"_s);
    captureMachine(pc, captured);
    const QStringList missing = foundMissing(*Machine::open(pc), *Machine::open(captured), questions);
    QVERIFY2(missing.isEmpty(), qPrintable(missing.join(u'\n')));
    // The walk over the whole drive isn't among them: its files aren't taken.
    QCOMPARE(questions.walks, QSet<QString>{u"C:\\Windows\\WinSxS"_s});
    QCOMPARE(seamAnswers(captured, questions), seamAnswers(pc, questions));
}

void TestCapture::pcIsNotChanged()
{
    const QString pc = make(u"windows11"_s);
    copyMachine(*Machine::open(pc), place(u"untouched"_s));
    captureMachine(pc, place(u"unchanging"_s));
    QCOMPARE(compareMachines(*Machine::open(place(u"untouched"_s)), *Machine::open(pc)), QList<DiffRow>());
}

void TestCapture::commandsOnlyRead()
{
    const QString pc = make(u"windows10"_s);
    captureMachine(pc, place(u"reading"_s));
    QCOMPARE(readFile(pc + u"/commands.log"_s),
             QByteArray("{\"program\":\"bcdedit\",\"arguments\":[\"/enum\",\"{current}\"],\"exitCode\":0}\n"
                        "{\"program\":\"schtasks\",\"arguments\":[\"/query\",\"/xml\"],\"exitCode\":0}\n"));
}

void TestCapture::namesAreReplacedAndPathsStillFindTheirFiles()
{
    const QString pc = make(u"windows11"_s);
    {
        const auto machine = Machine::open(pc);
        RegistryStore &store = machine->registry();
        const auto run = store.make(u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s);
        store.setValue(*run, {u"Notes of Alex"_s, RegistryType::ExpandString,
                              registryText(u"\"C:\\Users\\Alex\\notes.exe\" alex-desktop\\alex"_s)});
        machine->setTask({u"\\Sync-S-1-5-21-11-22-33-1001"_s,
                          u"<Task><RegistrationInfo><Author>Alexandra Q.</Author><URI>\\Sync-S-1-5-21-11-22-33-1001"
                          "</URI></RegistrationInfo><Principals><Principal><UserId>ALEX-DESKTOP\\Alex</UserId>"
                          "</Principal></Principals></Task>"_s});
        QVERIFY(QDir().mkpath(machine->hostPath(u"C:\\Users\\Alex"_s)));
        writeFile(machine->hostPath(u"C:\\Users\\Alex\\notes.exe"_s), "12345");
        QVERIFY(QDir().mkpath(QFileInfo(machine->hostPath(encoderConfig)).path()));
        writeFile(machine->hostPath(encoderConfig),
                  "[RTSS]\r\nLog=C:\\Users\\Alex\\log \xe9\r\nEnableEncoderServer=1\r\n");
    }
    const QString captured = place(u"neutral"_s);
    captureMachine(pc, captured, Names::Replace);

    const auto machine = Machine::open(captured);
    const RegistryStore &store = machine->registry();
    const auto run = store.find(u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s);
    QCOMPARE(store.value(*run, u"Notes of User"_s), (RegistryValue{u"Notes of User"_s, RegistryType::ExpandString,
                                                                   registryText(u"\"C:\\Users\\User\\notes.exe\""_s)}));
    QCOMPARE(machine->fileSize(u"C:\\Users\\User\\notes.exe"_s), 5);
    QVERIFY(QFileInfo::exists(machine->hostPath(u"C:\\Users\\User\\AppData\\Local\\Discord\\Update.exe"_s)));
    QCOMPARE(readFile(machine->hostPath(encoderConfig)),
             QByteArray("[RTSS]\r\nLog=C:\\Users\\User\\log \xe9\r\nEnableEncoderServer=1\r\n"));
    QCOMPARE(machine->environment().value(u"LOCALAPPDATA"_s), u"C:\\Users\\User\\AppData\\Local"_s);
    QString sync;
    for (const ScheduledTask &task : machine->tasks()) {
        if (task.path.startsWith("\\Sync-"_L1))
            sync = task.path;
    }
    QVERIFY2(sync.startsWith("\\Sync-S-1-5-21-1000000000-1000000000-100000000"_L1) && sync.endsWith("-1001"_L1),
             qPrintable(sync));
    QCOMPARE(machine->task(sync)->document, u"<Task>\n  <RegistrationInfo>\n    <URI>"_s + sync
                                                + u"</URI>\n  </RegistrationInfo>\n  <Principals>\n    <Principal>\n"
                                                  "    </Principal>\n  </Principals>\n</Task>"_s);

    // The name of the wireless network is gone, and a tweak still finds its key.
    QVERIFY(store.find(u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\Tcpip\\Parameters\\Interfaces\\"
                       "{7be1c6a0-3f6b-4a53-8d0c-91d7b02f5a42}\\444444444444"_s));

    machine->database().execute("VACUUM");
    QDirIterator files(captured, QDir::Files | QDir::Dirs | QDir::Hidden | QDir::NoDotAndDotDot,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        QVERIFY2(!files.next().contains("alex"_L1, Qt::CaseInsensitive), qPrintable(files.filePath()));
    for (const QString &name : {u"machine.sqlite"_s, u"machine.sqlite-wal"_s}) {
        const QByteArray bytes = readFile(captured + u'/' + name).toLower();
        for (const QString &word : {u"alex"_s, u"11-22-33"_s, u"6485d796f6d6"_s, u"192.168."_s}) {
            QVERIFY2(!bytes.contains(word.toUtf8()), qPrintable(word));
            QVERIFY2(!bytes.contains(registryText(word).chopped(2)), qPrintable(word));
        }
    }
}

void TestCapture::replacedNamesGiveNoWayBack()
{
    captureMachine(make(u"windows11"_s), place(u"strangers"_s), Names::Replace);
    const Ended ended = rehearse({u"preview"_s, place(u"strangers"_s), u"--undo"_s, place(u"strangers.reg"_s)});
    QCOMPARE(ended.exitCode, 2);
    QVERIFY2(ended.errors.contains("capture it with --with-names"), ended.errors);
    QVERIFY(!QFileInfo::exists(place(u"strangers.reg"_s)));
    // It stays so on copies, and a look at what would change is allowed.
    copyMachine(*Machine::open(place(u"strangers"_s)), place(u"copy"_s));
    QVERIFY(Machine::open(place(u"copy"_s))->hasReplacedNames());
    QCOMPARE(rehearse({u"preview"_s, place(u"copy"_s), u"--html"_s, place(u"strangers.html"_s)}).exitCode, 0);
}

void TestCapture::tasksLoseWhatTheyAreGiven()
{
    const QString pc = make(u"windows10"_s);
    Machine::open(pc)->setTask({u"\\Backup"_s,
                                u"<Task>\n  <RegistrationInfo>\n    <Author>Kim</Author>\n    <URI>\\Backup</URI>\n"
                                "  </RegistrationInfo>\n  <Actions>\n    <Exec>\n      <Command>C:\\b.exe</Command>\n"
                                "      <Arguments>--password <![CDATA[x]]></Arguments>\n    </Exec>\n  </Actions>\n"
                                "</Task>"_s});
    captureMachine(pc, place(u"tasks"_s));
    QCOMPARE(Machine::open(place(u"tasks"_s))->task(u"\\Backup"_s)->document,
             u"<Task>\n  <RegistrationInfo>\n    <URI>\\Backup</URI>\n  </RegistrationInfo>\n</Task>"_s);
}

void TestCapture::packageComesBackByItsName()
{
    const QString pc = make(u"windows11"_s);
    const QString package = u"\\Microsoft.BingNews_4.55.62231.0_x64__8wekyb3d8bbwe"_s;
    std::optional<RegistryValue> name;
    {
        const auto machine = Machine::open(pc);
        RegistryStore &store = machine->registry();
        name = store.value(*store.find(WindowsKey::userPackages + package), u"DisplayName"_s);
        QVERIFY(name);
        // As on a real PC, where the name stands in the package.
        store.removeValue(*store.find(WindowsKey::machinePackages + package), u"DisplayName"_s);
    }
    captureMachine(pc, place(u"named"_s));
    const auto captured = Machine::open(place(u"named"_s));
    const RegistryStore &store = captured->registry();
    QVERIFY(store.value(*store.find(WindowsKey::machinePackages + package), u"DisplayName"_s) == name);
}

void TestCapture::withoutElevation()
{
    const QString pc = make(u"windows11"_s);
    Machine::open(pc)->setBootOption(u"useplatformclock"_s, u"Yes"_s);
    const CaptureReport elevated = captureMachine(pc, place(u"elevated"_s));
    QVERIFY(elevated.elevated);
    QVERIFY(elevated.notRead.isEmpty());
    QCOMPARE(Machine::open(place(u"elevated"_s))->bootOptions(),
             (QMap<QString, QString>{{u"useplatformclock"_s, u"Yes"_s}}));

    const CaptureReport report =
        captureMachine(pc, place(u"not-elevated"_s), Names::Keep, MachineOptions{.elevated = false});
    QVERIFY(!report.elevated);
    QCOMPARE(report.notRead.size(), 1);
    QCOMPARE(report.notRead.first().what, u"boot options"_s);
    QCOMPARE(report.notRead.first().reason, u"they need administrator rights"_s);
    const auto less = Machine::open(place(u"not-elevated"_s));
    QVERIFY(less->bootOptions().isEmpty());
    QVERIFY(less->tasks().size() < Machine::open(place(u"elevated"_s))->tasks().size());
}

void TestCapture::keyThatMayNotBeReadIsTold()
{
    /** Guards one key and doesn't tell of services. */
    class Guarded final : public SystemReader
    {
    public:
        KeyContent key(const QString &path) const override
        {
            return path.endsWith("CentralProcessor\\0"_L1) ? KeyContent{true, true} : KeyContent{};
        }
        std::optional<QList<ServiceReport>> serviceReports() const override { return std::nullopt; }
        QStringList namesOfUser() const override { return {}; }
    };

    const TestMachine pc;
    auto reading = std::make_unique<ReadingPlatform>(std::make_unique<MachinePlatform>(pc.folder(), MachineOptions()));
    const ReadingPlatform &platform = *reading;
    setPlatform(std::move(reading));
    CaptureReport report;
    const MachineContents contents = readPc(platform, Guarded(), Names::Keep, report);
    QStringList told;
    for (const NotRead &part : report.notRead)
        told.append(part.what + u": "_s + part.reason);
    const QString key = u"HKEY_LOCAL_MACHINE\\HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0"_s;
    QVERIFY2(told.contains(u"registry key "_s + key + u": access denied"_s), qPrintable(told.join(u'\n')));
    QVERIFY2(told.contains(u"which services run: the service manager doesn't tell"_s), qPrintable(told.join(u'\n')));
    QVERIFY2(told.contains(u"scheduled tasks: schtasks printed none"_s), qPrintable(told.join(u'\n')));
    QVERIFY2(told.contains(u"Win32_Processor of the management instrumentation: error 0x80041010"_s),
             qPrintable(told.join(u'\n')));
    QCOMPARE(contents.registry.size(), 1);
    QCOMPARE(contents.registry.first().key, key);
}

void TestCapture::brokenOffLeavesNothing()
{
    const QString pc = make(u"windows10"_s);
    QVERIFY(QDir(folder_.path()).mkdir(u"broken-off"_s));
    const QString target = place(u"broken-off/pc"_s);
    bool thrown = false;
    try {
        captureMachine(pc, target, Names::Keep, {}, Existing::Keep, [](const QString &step, int, int) {
            if (step == "files"_L1)
                throw MachineError{u"enough"_s};
        });
    } catch (const MachineError &) {
        thrown = true;
    }
    QVERIFY(thrown);
    QVERIFY(QDir(place(u"broken-off"_s)).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

void TestCapture::placeIsChecked()
{
    const QString pc = make(u"windows10"_s);
    const QString target = place(u"occupied"_s);
    QVERIFY(QDir().mkdir(target));
    writeFile(target + u"/letter.txt"_s, "Dear");
    QVERIFY_THROWS_EXCEPTION(MachineError, captureMachine(pc, target, Names::Keep, {}, Existing::Replace));
    QVERIFY(QFile::remove(target + u"/letter.txt"_s));
    captureMachine(pc, target);
    QVERIFY_THROWS_EXCEPTION(MachineError, captureMachine(pc, target));
    captureMachine(pc, target, Names::Keep, {}, Existing::Replace);
}

#ifndef Q_OS_WIN
void TestCapture::programSaysThatThisIsNoWindows()
{
    const Ended ended = rehearse({u"capture"_s, place(u"nowhere"_s)});
    QCOMPARE(ended.exitCode, 2);
    QCOMPARE(ended.errors,
             QByteArray("kestrune-rehearse: capture reads the Windows that it runs on, and this is none\n"));
    QVERIFY(!QFileInfo::exists(place(u"nowhere"_s)));
}
#endif

void TestCapture::accountsInBytesAreReplacedAlike()
{
    const QByteArray before = QByteArray::fromHex("0b00010500000000000515000000010000000200000003000000e9030000ff");
    const QString key = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\x"_s;
    MachineContents contents;
    contents.registry = {
        {RegistryEdit::Kind::SetValue, key, {u"Security"_s, RegistryType::Binary, before}},
        {RegistryEdit::Kind::SetValue,
         key,
         {u"Account"_s, RegistryType::String, registryText(u"S-1-5-21-1-2-3-1001"_s)}},
        {RegistryEdit::Kind::SetValue, key, {u"Cut"_s, RegistryType::Binary, before.first(20)}},
    };
    NeutralNames({}).replaceIn(contents);
    // 1000000000 is 3b9aca00.
    QCOMPARE(contents.registry.at(0).value.data.toHex(),
             QByteArray("0b0001050000000000051500000000ca9a3b00ca9a3b01ca9a3be9030000ff"));
    QCOMPARE(textOf(contents.registry.at(1).value.data), u"S-1-5-21-1000000000-1000000000-1000000001-1001"_s);
    QCOMPARE(contents.registry.at(2).value.data, before.first(20));
}

void TestCapture::shortNameOfTheUsersFolder()
{
    NeutralNames names({{u"USERNAME"_s, u"kimberley.q"_s},
                        {u"USERPROFILE"_s, u"D:\\Users\\Kimberley Q"_s},
                        {u"TEMP"_s, u"D:\\Users\\KIMBER~1\\AppData\\Local\\Temp"_s}});
    QCOMPARE(names.text(u"D:\\Users\\kimber~1\\x D:\\Users\\Kimberley Q\\x Kimberley.Q"_s),
             u"D:\\Users\\User\\x D:\\Users\\User\\x User"_s);
}

void TestCapture::boundsOfNames_data()
{
    addColumns<QString, QString, QString>("user", "text", "neutral");
    QTest::newRow("a path") << u"kim"_s << u"C:\\Users\\Kim\\x"_s << u"C:\\Users\\User\\x"_s;
    QTest::newRow("a path with slashes") << u"Kim"_s << u"c:/users/kim/x"_s << u"c:/users/User/x"_s;
    QTest::newRow("another user's path") << u"Kim"_s << u"C:\\Users\\Lee B\\x"_s << u"C:\\Users\\Other\\x"_s;
    QTest::newRow("the public folder") << u"Kim"_s << u"C:\\Users\\Public\\x"_s << u"C:\\Users\\Public\\x"_s;
    QTest::newRow("account and PC") << u"Kim"_s << u"(box-7\\KIM)"_s << u"(PC\\User)"_s;
    QTest::newRow("a word") << u"Kim"_s << u"Hello_kim, kimono"_s << u"Hello_User, kimono"_s;
    QTest::newRow("a word of Windows") << u"System"_s << u"C:\\System\\x BOX-7\\system \\Users\\system"_s
                                       << u"C:\\System\\x PC\\User \\Users\\User"_s;
    QTest::newRow("a name with signs of expressions") << u"K.m (1)"_s << u"K.m (1) Kim 1"_s << u"User Kim 1"_s;
    QTest::newRow("accounts of two PCs") << u"Kim"_s << u"S-1-5-21-1-2-3-500 S-1-5-21-4-5-6-1 S-1-5-21-1-2-3-501"_s
                                         << u"S-1-5-21-1000000000-1000000000-1000000001-500 "
                                            "S-1-5-21-1000000000-1000000000-1000000002-1 "
                                            "S-1-5-21-1000000000-1000000000-1000000001-501"_s;
    QTest::newRow("an account in the cloud")
        << u"Kim"_s << u"S-1-12-1-9-8-7-6"_s << u"S-1-12-1-1000000000-1000000000-1000000000-1000000001"_s;
    QTest::newRow("the system's accounts") << u"Kim"_s << u"S-1-5-18 S-1-5-20"_s << u"S-1-5-18 S-1-5-20"_s;
}

void TestCapture::boundsOfNames()
{
    QFETCH(QString, user);
    QFETCH(QString, text);
    QFETCH(QString, neutral);
    NeutralNames names(
        {{u"USERNAME"_s, user}, {u"COMPUTERNAME"_s, u"BOX-7"_s}, {u"USERPROFILE"_s, u"C:\\Users\\"_s + user}});
    QCOMPARE(names.text(text), neutral);
}

KESTRUNE_SUITE(TestCapture)
#include "platform/windowsfacts.h"
#include "tst_capture.moc"
