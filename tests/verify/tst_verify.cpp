// SPDX-License-Identifier: GPL-3.0-or-later
// kestrune-rehearse verify: what of the recorded changes holds.

#include "preview/previewwords.h"
#include "support/registryvalues.h"
#include "support/rehearsing.h"
#include "support/smallmachine.h"
#include "support/suite.h"

#include "machine/compare/machinediff.h"
#include "machine/machine.h"
#include "platform/taskdocument.h"
#include "verify/verify.h"
#include "work/settings.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int notAllInForce = 1;

const QString servicesKey = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Services\\"_s;
const QString packagesKey = u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\"
                            "CurrentVersion\\AppModel\\Repository\\Packages\\"_s;
const QString userRunKey = u"HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Run"_s;
const QString desktopKey = u"HKEY_CURRENT_USER\\Control Panel\\Desktop"_s;
const QString consolidator = u"\\Microsoft\\Windows\\Customer Experience Improvement Program\\Consolidator"_s;

/** Gives a value what another machine has there. */
void takeValue(Machine &machine, Machine &from, const QString &key, const QString &name)
{
    RegistryStore &store = machine.registry();
    store.setValue(*store.make(key), *from.registry().value(*from.registry().find(key), name));
}

/** A built-in PC as it was, and optimized by the Automatizer. */
class OptimizedPc
{
public:
    explicit OptimizedPc(const QString &builtIn, const QMap<QString, ToolFault> &faults = {})
    {
        if (rehearse({u"new"_s, before(), u"--from"_s, builtIn}).exitCode != done)
            qFatal("no machine could be made");
        copyMachine(*Machine::open(before()), now());
        for (auto it = faults.begin(); it != faults.end(); ++it)
            Machine::open(now())->setFault(it.key(), it.value());
        if (rehearse({u"run"_s, now(), u"optimize"_s}).exitCode != done)
            qFatal("it couldn't be optimized");
    }

    QString before() const { return folder_.filePath(u"before"_s); }
    QString now() const { return folder_.filePath(u"now"_s); }

private:
    QTemporaryDir folder_;
};

/** What has become of an optimized PC since. */
class Later
{
public:
    enum class Log { Kept, None, Journal };

    explicit Later(const OptimizedPc &pc, Log log = Log::Kept)
        : before(Machine::open(pc.before()))
    {
        copyMachine(*Machine::open(pc.now()), folder());
        if (log == Log::Kept && !QFile::copy(pc.now() + u"/commands.log"_s, folder() + u"/commands.log"_s))
            qFatal("there is no log");
        const QString journal = u"/journal/changes.sqlite"_s;
        if (log == Log::Journal
            && !(QDir().mkpath(folder() + u"/journal"_s) && QFile::copy(pc.now() + journal, folder() + journal)))
            qFatal("there is no journal");
        now = Machine::open(folder());
    }

    QString folder() const { return folder_.filePath(u"later"_s); }
    VerifiedItem item(const QString &name)
    {
        for (const VerifiedItem &item : verifySwitches(*before, *now)) {
            if (item.name == name)
                return item;
        }
        qFatal("%s isn't told", qPrintable(name));
    }
    /** By the real program. */
    QJsonObject verified(int exitCode = notAllInForce)
    {
        const Ended ended = rehearse({u"verify"_s, before->folder(), folder(), u"--json"_s});
        if (ended.exitCode != exitCode)
            qFatal("exit code %d: %s", ended.exitCode, ended.errors.constData());
        return QJsonDocument::fromJson(ended.output).object();
    }
    QJsonObject option(const QString &box)
    {
        for (const QJsonValue value : verified()[u"items"_s].toArray()) {
            if (value[u"name"_s] == box)
                return value.toObject();
        }
        qFatal("%s isn't told", qPrintable(box));
    }

private:
    QTemporaryDir folder_;

public:
    std::unique_ptr<Machine> before;
    std::unique_ptr<Machine> now;
};

/** Names of all that has a verdict, in their order. */
QStringList namesOf(const QJsonObject &json, const QString &verdict)
{
    QStringList names;
    for (const QJsonValue item : json[u"items"_s].toArray()) {
        if (item[u"verdict"_s] == verdict)
            names.append(item[u"name"_s].toString());
    }
    return names;
}

} // namespace

Q_DECLARE_METATYPE(Verdict)

class TestVerify : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void optimizedPcIsInForceButForWhatIsOnlyRecorded_data();
    void optimizedPcIsInForceButForWhatIsOnlyRecorded();
    void nothingIsChangedByIt();
    void theJournalKnowsWhatWasInForce();
    void theJournalKnowsWhatAnOptionChanged();
    void serviceSetBack_data();
    void serviceSetBack();
    void serviceThatStillRunsIsTold();
    void serviceThatATweakSwitchesTooIsInForce();
    void taskEnabledAgainByHand();
    void taskEnabledAgainByTool();
    void taskSwitchedOnByThePageIsInForceWhereItIsOn();
    void backupOfTasksIsNoRecord();
    void packageThatCameBack_data();
    void packageThatCameBack();
    void oneDriveThatCameBack();
    void programAtLogonThatCameBack();
    void packagedTaskThatCameBack();
    void optionValueChanged_data();
    void optionValueChanged();
    void refusedServiceIsToldWithoutARecord();
    void refusedBootOption();
    void recordsOfWhatIsGone();
    void emptyKeysAreNoChange();
    void differentPcsAreRefused();
    void replacedNamesAreNotHeldAgainstRealOnes();
    void damagedMachines();
    void nothingRecorded();
    void longListsAreCutInTheText();

private:
    std::unique_ptr<OptimizedPc> pc_;
};

void TestVerify::initTestCase()
{
    pc_ = std::make_unique<OptimizedPc>(u"windows11"_s);
}

void TestVerify::optimizedPcIsInForceButForWhatIsOnlyRecorded_data()
{
    addColumns<QString, QStringList>("builtIn", "onlyRecorded");

    // Recorded by the Automatizer, which never runs them: hibernation, the walk, the power state of display adapters,
    // and the cloud backup. Multiplane overlays go by the card, and the lock screen by the Windows.
    QTest::newRow("windows11") << u"windows11"_s
                               << QStringList{u"chkSsd7"_s, u"chkSsd8"_s, u"chkGaming13"_s, u"chkGaming14"_s,
                                              u"chkWindows12"_s};
    QTest::newRow("windows10") << u"windows10"_s
                               << QStringList{u"chkSsd7"_s, u"chkSsd8"_s, u"chkGaming14"_s, u"chkWindows9"_s,
                                              u"chkWindows12"_s};
}

void TestVerify::optimizedPcIsInForceButForWhatIsOnlyRecorded()
{
    QFETCH(QString, builtIn);
    QFETCH(QStringList, onlyRecorded);
    std::unique_ptr<OptimizedPc> other;
    if (builtIn != "windows11"_L1)
        other = std::make_unique<OptimizedPc>(builtIn);
    Later later(other ? *other : *pc_);

    const QJsonObject json = later.verified();
    QCOMPARE(namesOf(json, u"as-before"_s), onlyRecorded);
    const QByteArray text = rehearse({u"verify"_s, later.before->folder(), later.folder()}).output;
    QCOMPARE(text.count(" -- recorded by Optimize, which doesn't apply it on this PC\n"), onlyRecorded.size());
    QCOMPARE(namesOf(json, u"refused"_s), QStringList());
    QCOMPARE(namesOf(json, u"changed-back"_s), QStringList());
    QCOMPARE(namesOf(json, u"gone"_s), QStringList());
    const QStringList inForce = namesOf(json, u"in-force"_s);
    for (const QString &name : {u"DiagTrack"_s, consolidator, u"Microsoft.BingNews"_s, u"OneDrive"_s, u"chkWindows8"_s})
        QVERIFY2(inForce.contains(name), qPrintable(name));
    QVERIFY2(inForce.size() > 100, qPrintable(QString::number(inForce.size())));
    QCOMPARE(json[u"counts"_s][u"in-force"_s].toInt(), inForce.size());
    QMap<QString, QString> told;
    for (const QJsonValue item : json[u"items"_s].toArray())
        told.insert(item[u"name"_s].toString(), item[u"without"_s].toString());
    for (const QString &name : {u"DiagTrack"_s, consolidator, u"Microsoft.BingNews"_s})
        QVERIFY2(text.contains("\n      Without it: " + told.value(name).toUtf8() + '\n'), qPrintable(name));
    QCOMPARE(told.value(u"chkWindows8"_s), QString());
}

void TestVerify::nothingIsChangedByIt()
{
    Later later(*pc_);
    Later same(*pc_);
    later.verified();
    QCOMPARE(compareMachines(*same.now, *later.now), QList<DiffRow>());
    QCOMPARE(readFile(later.folder() + u"/commands.log"_s), readFile(same.folder() + u"/commands.log"_s));
}

void TestVerify::theJournalKnowsWhatWasInForce()
{
    Later later(*pc_, Later::Log::Journal);
    setNumber(*later.now, servicesKey + u"DiagTrack"_s, u"Start"_s, 2);
    const QString change = later.item(u"DiagTrack"_s).why;
    QVERIFY2(change.startsWith(u"it was in force after Optimize on 20"_s), qPrintable(change));

    // A record of what was never done.
    setNumber(*later.now, recordKey(u"SVC"_s), u"RpcSs"_s, 1);
    const VerifiedItem item = later.item(u"RpcSs"_s);
    QCOMPARE(item.verdict, Verdict::AsBefore);
    QCOMPARE(item.why, u"the journal knows of no change"_s);
}

void TestVerify::theJournalKnowsWhatAnOptionChanged()
{
    Later later(*pc_, Later::Log::Journal);
    const QList<DiffRow> rows = compareMachines(*later.before, *later.now);
    const auto written = std::find_if(rows.cbegin(), rows.cend(), [](const DiffRow &row) {
        return row.kind == DiffKind::Registry && tweakBoxOf(row) == "chkWindows8"_L1 && !row.before.isEmpty()
               && !row.after.isEmpty();
    });
    QVERIFY(written != rows.cend());
    RegistryStore &store = later.now->registry();
    store.setValue(*store.find(written->path), *later.before->registry().value(written->path, written->name));
    const QJsonObject option = later.option(u"chkWindows8"_s);
    QCOMPARE(option[u"verdict"_s].toString(), u"changed-back"_s);
    QVERIFY(option[u"why"_s].toString().startsWith(u"it was in force after Optimize"_s));
}

void TestVerify::serviceSetBack_data()
{
    addColumns<Later::Log, int, Verdict>("log", "start", "verdict");
    // It started by itself before.
    QTest::newRow("to what it was, after sc had switched it off") << Later::Log::Kept << 2 << Verdict::ChangedBack;
    QTest::newRow("to something else, after sc had switched it off") << Later::Log::Kept << 3 << Verdict::ChangedBack;
    QTest::newRow("to what it was, without a log") << Later::Log::None << 2 << Verdict::AsBefore;
    QTest::newRow("to what it was, by the journal") << Later::Log::Journal << 2 << Verdict::ChangedBack;
    QTest::newRow("to something else, without a log") << Later::Log::None << 3 << Verdict::ChangedBack;
    QTest::newRow("not at all") << Later::Log::None << 4 << Verdict::InForce;
}

void TestVerify::serviceSetBack()
{
    QFETCH(Later::Log, log);
    QFETCH(int, start);
    QFETCH(Verdict, verdict);
    Later later(*pc_, log);
    setNumber(*later.now, servicesKey + u"DiagTrack"_s, u"Start"_s, static_cast<quint32>(start));

    const VerifiedItem item = later.item(u"DiagTrack"_s);
    QCOMPARE(item.verdict, verdict);
    QCOMPARE(item.details.isEmpty(), verdict == Verdict::InForce);
    if (!item.details.isEmpty()) {
        QCOMPARE(item.details.first().before, u"automatic"_s);
        QCOMPARE(item.details.first().now, start == 2 ? u"automatic"_s : u"manual"_s);
        QCOMPARE(item.details.first().recorded, u"disabled"_s);
    }
}

void TestVerify::serviceThatStillRunsIsTold()
{
    Later later(*pc_);
    QCOMPARE(later.item(u"DiagTrack"_s).why, QString());
    later.now->setRunning(u"DiagTrack"_s, true);
    QCOMPARE(later.item(u"DiagTrack"_s).verdict, Verdict::InForce);
    QCOMPARE(later.item(u"DiagTrack"_s).why, u"runs until Windows starts the next time"_s);
}

void TestVerify::serviceThatATweakSwitchesTooIsInForce()
{
    const QString service = u"CloudBackupRestoreSvc_5cbba"_s;
    Later later(*pc_);
    setNumber(*later.now, recordKey(u"SVC"_s), service, 1);
    setNumber(*later.now, servicesKey + service, u"Start"_s, 4);
    QCOMPARE(later.item(service).verdict, Verdict::InForce);
}

void TestVerify::taskEnabledAgainByHand()
{
    Later later(*pc_);
    ScheduledTask task = *later.now->task(consolidator);
    task.document = withTaskEnabled(task.document, true);
    later.now->setTask(task);

    const VerifiedItem item = later.item(consolidator);
    QCOMPARE(item.verdict, Verdict::ChangedBack);
    QCOMPARE(item.why, u"schtasks had switched it off"_s);
}

void TestVerify::taskEnabledAgainByTool()
{
    Later later(*pc_);
    runProgram(stockTool(), {later.now->folder(), u"schtasks"_s, u"/CHANGE"_s, u"/TN"_s, consolidator, u"/ENABLE"_s});

    const VerifiedItem item = later.item(consolidator);
    QCOMPARE(item.verdict, Verdict::ChangedBack);
    QCOMPARE(item.why, u"schtasks was told to change it back"_s);
}

void TestVerify::taskSwitchedOnByThePageIsInForceWhereItIsOn()
{
    Later later(*pc_, Later::Log::None);
    // As the program writes it: the registry's backslashes are no part of a value's name there.
    const QString name = QString(consolidator).sliced(1).replace(u'\\', u'/');
    setNumber(*later.now, recordKey(u"Task"_s), name, 0);
    const VerifiedItem off = later.item(consolidator);
    QCOMPARE(off.verdict, Verdict::ChangedBack);
    QCOMPARE(off.details.first().recorded, u"enabled"_s);

    ScheduledTask task = *later.now->task(consolidator);
    task.document = withTaskEnabled(task.document, true);
    later.now->setTask(task);
    QCOMPARE(later.item(consolidator).verdict, Verdict::InForce);
}

void TestVerify::backupOfTasksIsNoRecord()
{
    Later later(*pc_);
    const qsizetype count = verifySwitches(*later.before, *later.now).size();
    setNumber(*later.now, recordKey(u"Task"_s), u"Backup_1"_s, 1);
    QCOMPARE(verifySwitches(*later.before, *later.now).size(), count);
}

void TestVerify::packageThatCameBack_data()
{
    addColumns<Later::Log, QString, Verdict>("log", "fullName", "verdict");
    const QString newer = u"Microsoft.BingNews_99.0.0.0_x64__8wekyb3d8bbwe"_s;
    QTest::newRow("the same version, after it had been removed")
        << Later::Log::Kept << QString() << Verdict::ChangedBack;
    QTest::newRow("the same version, without a log") << Later::Log::None << QString() << Verdict::AsBefore;
    QTest::newRow("a newer version") << Later::Log::None << newer << Verdict::ChangedBack;
}

void TestVerify::packageThatCameBack()
{
    QFETCH(Later::Log, log);
    QFETCH(QString, fullName);
    QFETCH(Verdict, verdict);
    Later later(*pc_, log);
    RegistryStore &before = later.before->registry();
    for (const QString &name : before.subkeys(*before.find(packagesKey.chopped(1)))) {
        if (fullName.isEmpty() && name.startsWith("Microsoft.BingNews_"_L1))
            fullName = name;
    }
    QVERIFY(!fullName.isEmpty());
    setText(*later.now, packagesKey + fullName, u"PackageID"_s, fullName);

    const VerifiedItem item = later.item(u"Microsoft.BingNews"_s);
    QCOMPARE(item.verdict, verdict);
    QCOMPARE(item.details.first().now, fullName);
}

void TestVerify::oneDriveThatCameBack()
{
    Later later(*pc_);
    QCOMPARE(later.item(u"MS OneDrive"_s).verdict, Verdict::InForce);
    const QString program =
        later.now->hostPath(u"C:\\Users\\Alex\\AppData\\Local\\Microsoft\\OneDrive\\OneDrive.exe"_s);
    QVERIFY(QDir().mkpath(QFileInfo(program).path()));
    writeFile(program, "MZ");
    QCOMPARE(later.item(u"MS OneDrive"_s).verdict, Verdict::ChangedBack);
}

void TestVerify::programAtLogonThatCameBack()
{
    Later later(*pc_);
    takeValue(*later.now, *later.before, userRunKey, u"Steam"_s);

    const VerifiedItem item = later.item(u"Steam"_s);
    QCOMPARE(item.verdict, Verdict::ChangedBack);
    QCOMPARE(item.details.first().what, userRunKey + u"\\Steam"_s);
    QCOMPARE(item.details.first().now, item.details.first().before);
}

void TestVerify::packagedTaskThatCameBack()
{
    Later later(*pc_);
    QCOMPARE(later.item(u"StartTerminalOnLoginTask"_s).verdict, Verdict::InForce);
    setNumber(*later.now,
              u"HKEY_CURRENT_USER\\Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\"
              "AppModel\\SystemAppData\\Microsoft.WindowsTerminal_8wekyb3d8bbwe\\StartTerminalOnLoginTask"_s,
              u"State"_s, 2);
    QCOMPARE(later.item(u"StartTerminalOnLoginTask"_s).verdict, Verdict::ChangedBack);
}

void TestVerify::optionValueChanged_data()
{
    addColumns<QString, QString>("value", "verdict");
    QTest::newRow("to something else") << u"200"_s << u"changed-back"_s;
    QTest::newRow("to what it was") << QString() << u"as-before"_s;
}

void TestVerify::optionValueChanged()
{
    QFETCH(QString, value);
    QFETCH(QString, verdict);
    Later later(*pc_);
    if (value.isEmpty())
        takeValue(*later.now, *later.before, desktopKey, u"MenuShowDelay"_s);
    else
        setText(*later.now, desktopKey, u"MenuShowDelay"_s, value);

    const QJsonObject item = later.option(u"chkWindows8"_s);
    QCOMPARE(item[u"verdict"_s].toString(), verdict);
    QCOMPARE(item[u"title"_s].toString(), u"Reduces certain delays"_s);
    // The other values that it writes stand.
    const QJsonArray details = item[u"details"_s].toArray();
    QCOMPARE(details.size(), 1);
    QCOMPARE(details.at(0)[u"what"_s].toString(), desktopKey + u"\\MenuShowDelay"_s);
    QCOMPARE(details.at(0)[u"before"_s].toString(), u"\"400\""_s);
    QCOMPARE(details.at(0)[u"now"_s].toString(), value.isEmpty() ? u"\"400\""_s : u'"' + value + u'"');
    QCOMPARE(details.at(0)[u"recorded"_s].toString(), u"\"0\""_s);
}

void TestVerify::refusedServiceIsToldWithoutARecord()
{
    const OptimizedPc pc(u"windows11"_s,
                         {{u"sc config DiagTrack"_s, {.exitCode = 5}},
                          {u"schtasks /CHANGE /TN "_s + consolidator, {.exitCode = 1}},
                          {u"powershell -Command Get-AppxPackage Microsoft.BingNews"_s, {.exitCode = 1}}});
    Later later(pc);
    const QJsonObject json = later.verified();
    QCOMPARE(namesOf(json, u"refused"_s), QStringList({u"DiagTrack"_s, consolidator, u"Microsoft.BingNews"_s}));
    QCOMPARE(later.item(u"DiagTrack"_s).why, u"sc ended with 5"_s);
    QCOMPARE(later.item(u"DiagTrack"_s).details.first().now, u"automatic"_s);

    // Whoever disables it in another way has what was wanted, recorded or not.
    setNumber(*later.now, servicesKey + u"DiagTrack"_s, u"Start"_s, 4);
    QCOMPARE(namesOf(later.verified(), u"refused"_s), QStringList({consolidator, u"Microsoft.BingNews"_s}));
}

void TestVerify::refusedBootOption()
{
    Later later(*pc_);
    later.now->setBootOption(u"useplatformclock"_s, u"true"_s);
    later.now->logCommand(u"bcdedit"_s, {u"/set"_s, u"useplatformclock"_s, u"False"_s}, 1);
    const QJsonObject item = later.option(u"chkGaming5"_s);
    QCOMPARE(item[u"verdict"_s].toString(), u"refused"_s);
    QCOMPARE(item[u"why"_s].toString(), u"bcdedit ended with 1"_s);
}

void TestVerify::recordsOfWhatIsGone()
{
    Later later(*pc_);
    RegistryStore &store = later.now->registry();
    store.removeKey(*store.find(servicesKey + u"DiagTrack"_s));
    later.now->removeTask(consolidator);
    QCOMPARE(later.item(u"DiagTrack"_s).verdict, Verdict::Gone);
    QCOMPARE(later.item(consolidator).verdict, Verdict::Gone);
    // Nothing of it can act any more.
    QVERIFY(allInForce(verifySwitches(*later.before, *later.now)));
}

void TestVerify::emptyKeysAreNoChange()
{
    const QString key = u"HKEY_LOCAL_MACHINE\\SOFTWARE\\Policies\\Microsoft\\Windows\\Personalization"_s;
    Later later(*pc_);
    RegistryStore &store = later.now->registry();
    store.removeKey(*store.find(key));
    const QJsonObject item = later.option(u"chkWindows9"_s);
    QCOMPARE(item[u"details"_s].toArray().size(), 1);
    QCOMPARE(item[u"details"_s][0][u"what"_s].toString(), key + u"\\NoLockScreen"_s);
}

void TestVerify::differentPcsAreRefused()
{
    const QTemporaryDir folder;
    QCOMPARE(rehearse({u"new"_s, folder.filePath(u"other"_s), u"--from"_s, u"windows10"_s}).exitCode, done);
    const Ended ended = rehearse({u"verify"_s, folder.filePath(u"other"_s), pc_->now()});
    QCOMPARE(ended.exitCode, badArguments);
    QVERIFY2(ended.errors.startsWith("kestrune-rehearse: these two can't be compared: one has the mainboard "),
             ended.errors.constData());
    QCOMPARE(ended.errors.count('\n'), 1);
}

void TestVerify::replacedNamesAreNotHeldAgainstRealOnes()
{
    const QTemporaryDir folder;
    const QString captured = folder.filePath(u"captured"_s);
    copyMachine(*Machine::open(pc_->now()), captured);
    Machine::open(captured)->setReplacedNames();
    const Ended ended = rehearse({u"verify"_s, captured, pc_->now()});
    QCOMPARE(ended.exitCode, badArguments);
    QVERIFY2(ended.errors.contains("the names of one were replaced when it was captured"), ended.errors.constData());
}

void TestVerify::damagedMachines()
{
    const QTemporaryDir folder;
    const QString damaged = folder.filePath(u"damaged"_s);
    QVERIFY(QDir().mkpath(damaged));
    writeFile(damaged + u"/machine.sqlite"_s, "SQLite format 3");
    for (const QStringList &pair : {QStringList{damaged, pc_->now()}, QStringList{pc_->before(), damaged}}) {
        const Ended ended = rehearse(QStringList{u"verify"_s} + pair);
        QCOMPARE(ended.exitCode, machineUnreadable);
        QVERIFY2(ended.errors.endsWith(": damaged\n"), ended.errors.constData());
    }
    QCOMPARE(rehearse({u"verify"_s, pc_->now()}).exitCode, badArguments);
}

void TestVerify::nothingRecorded()
{
    const Ended ended = rehearse({u"verify"_s, pc_->before(), pc_->before()});
    QCOMPARE(ended.exitCode, done);
    QCOMPARE(ended.output, QByteArray("Nothing is recorded as done.\n"));
}

void TestVerify::longListsAreCutInTheText()
{
    const Ended ended = rehearse({u"verify"_s, pc_->before(), pc_->now()});
    QCOMPARE(ended.exitCode, notAllInForce);
    const QString text = QString::fromUtf8(ended.output);
    QVERIFY2(text.startsWith(u"  141 in force        as it is recorded\n    0 refused "_s), qPrintable(text.left(200)));
    const qsizetype walk = text.indexOf(u"  as before       Remove the indexed attribute"_s);
    QVERIFY(walk > 0);
    const QStringList lines = text.sliced(walk).split(u'\n');
    QVERIFY2(lines.at(1).endsWith(u": now plain, should be not-indexed, was plain before"_s), qPrintable(lines.at(1)));
    QVERIFY2(lines.at(13).startsWith(u"      and "_s) && lines.at(13).endsWith(u" more"_s), qPrintable(lines.at(13)));
    QVERIFY2(text.size() < 30000, qPrintable(QString::number(text.size())));
}

KESTRUNE_SUITE(TestVerify)
#include "tst_verify.moc"
