// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever was done, all of it taken back leaves the machine as it was, to the last value and type.

#include "journaling.h"
#include "support/processes.h"
#include "support/suite.h"
#include "work/automatizerruns.h"
#include "work/autorun/autorun.h"
#include "work/keepfeatures.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QRandomGenerator>
#include <QTest>

#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *endVariable = "KESTRUNE_END_AT";
constexpr int ended = 77;

/** Asked for by `./dev journal`: every moment and many more seeds, which take many minutes. */
bool isThorough()
{
    return qEnvironmentVariableIsSet("KESTRUNE_THOROUGH");
}

void optimizeAll(WorkThread &worker)
{
    worker.automatizerTweak = 1;
    worker.automatizerProgram = 1;
    optimize(worker);
}

void restoreAll(WorkThread &worker)
{
    worker.automatizerTweak = 1;
    worker.automatizerProgram = 1;
    restore(worker);
    worker.restoreRunning = 0;
}

/** Counts changes, and ends this process without a word right before one of them, or right after. */
class Countdown
{
public:
    /** @param moment 2n: before the n-th change, from 0; 2n + 1: after it */
    explicit Countdown(int moment)
        : left_(moment)
    {
    }

    void pass() const
    {
        if (left_-- == 0)
            std::_Exit(ended);
    }

private:
    mutable std::atomic<int> left_;
};

class EndingKey final : public RegistryKey
{
public:
    EndingKey(std::unique_ptr<RegistryKey> key, const Countdown &countdown)
        : key_(std::move(key))
        , countdown_(countdown)
    {
    }

    QVariant value(const QString &name, const QVariant &fallback) const override { return key_->value(name, fallback); }
    void setValue(const QString &name, const QVariant &value) override
    {
        countdown_.pass();
        key_->setValue(name, value);
        countdown_.pass();
    }
    void remove(const QString &name) override
    {
        countdown_.pass();
        key_->remove(name);
        countdown_.pass();
    }
    bool contains(const QString &name) const override { return key_->contains(name); }
    QVariant ownValue(const QString &name) const override { return key_->ownValue(name); }
    void setOwnValue(const QString &name, const QString &text) override
    {
        countdown_.pass();
        key_->setOwnValue(name, text);
        countdown_.pass();
    }
    void removeOwnValue(const QString &name) override
    {
        countdown_.pass();
        key_->removeOwnValue(name);
        countdown_.pass();
    }
    QStringList allKeys() const override { return key_->allKeys(); }
    QStringList childKeys() const override { return key_->childKeys(); }
    QStringList childGroups() const override { return key_->childGroups(); }
    void flush() override { key_->flush(); }
    void beginGroup(const QString &name) override { key_->beginGroup(name); }
    void endGroup() override { key_->endGroup(); }

private:
    std::unique_ptr<RegistryKey> key_;
    const Countdown &countdown_;
};

/** The machine itself, behind the journal. */
class EndingPlatform final : public ForwardingPlatform
{
public:
    EndingPlatform(std::unique_ptr<Platform> inner, int moment)
        : ForwardingPlatform(std::move(inner))
        , countdown_(moment)
    {
    }

    std::unique_ptr<RegistryKey> openKey(const QString &path) const override
    {
        return std::make_unique<EndingKey>(inner().openKey(path), countdown_);
    }
    void setAllFileAttributes(const QList<FileAttributes> &files) const override
    {
        countdown_.pass();
        inner().setAllFileAttributes(files);
        countdown_.pass();
    }
    bool renameFile(const QString &from, const QString &to) const override
    {
        countdown_.pass();
        const bool done = inner().renameFile(from, to);
        countdown_.pass();
        return done;
    }
    bool removeFile(const QString &file) const override
    {
        countdown_.pass();
        const bool done = inner().removeFile(file);
        countdown_.pass();
        return done;
    }
    bool writeFile(const QString &folder, const QString &name, const QByteArray &content,
                   IfThere ifThere) const override
    {
        countdown_.pass();
        const bool done = inner().writeFile(folder, name, content, ifThere);
        countdown_.pass();
        return done;
    }
    int exitCode(qint64 processId, int reported) const override
    {
        countdown_.pass(); // a tool has changed something, and nobody has been told
        return inner().exitCode(processId, reported);
    }
    void pause(int) const override {}

private:
    Countdown countdown_;
};

/** The other process: an Optimize on a machine that ends at a moment. */
std::optional<int> optimizeUntil(int argc, char **argv)
{
    const QStringList moment = qEnvironmentVariable(endVariable).split(u'|');
    if (moment.size() != 2)
        return std::nullopt;
    QCoreApplication application(argc, argv);
    auto onMachine = std::make_unique<MachinePlatform>(moment.at(1), MachineOptions());
    auto system = std::make_unique<MachineSystem>(onMachine->machine());
    auto ending = std::make_unique<EndingPlatform>(std::move(onMachine), moment.at(0).toInt());
    setPlatform(std::make_unique<Journal>(std::move(ending), std::move(system), journalOptions(moment.at(1))));
    {
        WorkerOn worker(onEleven);
        optimizeAll(worker);
    }
    setPlatform(nullptr);
    return 0;
}

const SuiteHelper optimizing(optimizeUntil);

/** Lets another process optimize the machine. Its exit code. */
int optimizeElsewhere(const QString &machine, int moment)
{
    return runProgram(QCoreApplication::applicationFilePath(), {},
                      {{QString::fromLatin1(endVariable), QString::number(moment) + u'|' + machine}})
        .exitCode;
}

QString anyOf(const QStringList &names, QRandomGenerator &random)
{
    return names.at(random.bounded(static_cast<int>(names.size())));
}

/** One of the things that a person can do, by chance. */
void doSomething(WorkThread &worker, QRandomGenerator &random)
{
    const bool on = random.bounded(2) == 1;
    switch (random.bounded(8)) {
    case 0:
        worker.automatizerTweak = random.bounded(2);
        worker.automatizerProgram = random.bounded(2);
        for (const KeepFeature &feature : keepFeatures)
            worker.*feature.keep = random.bounded(2) * 2;
        optimize(worker);
        break;
    case 1:
        restoreAll(worker);
        break;
    case 2:
    case 3: {
        const TweakBox &box =
            tweakBoxes()[static_cast<std::size_t>(random.bounded(static_cast<int>(tweakBoxes().size())))];
        const ChangeSession session(u"Apply features"_s);
        (worker.*box.tweak)(on ? 1 : 0, box.id);
        break;
    }
    case 4:
        worker.servicesToChange = {anyOf({u"FontCache"_s, u"Spooler"_s, u"WerSvc"_s, u"lfsvc"_s, u"Useful"_s}, random)};
        runJob(worker, on ? JobSvcEnable : JobSvcDisable);
        break;
    case 5:
        worker.tasksToChange = {
            {anyOf({u"Vendor\\Useful"_s, u"Microsoft\\Windows\\Autochk\\Proxy"_s}, random), {}, {}, {}, on ? 1 : 0}};
        worker.taskRestoreMode = on;
        runJob(worker, JobTaskStopOrStart);
        break;
    case 6:
        worker.packagesToChange = {{anyOf({u"Vendor.Useful"_s, u"Microsoft.BingNews"_s}, random), {}, {}}};
        worker.packageInstall = on;
        runJob(worker, JobPackageSetState);
        break;
    default: {
        const ChangeSession session(u"Disable programs"_s);
        const QList<AutorunRow> rows = autorunRows();
        if (!rows.isEmpty())
            disableAutorun(autorunEntry(rows.at(random.bounded(static_cast<int>(rows.size())))));
        break;
    }
    }
}

/** The values that Optimize and all tweaks touch, by their keys. */
const QList<std::pair<QString, QString>> &touchedValues()
{
    static const QList<std::pair<QString, QString>> places = [] {
        const AutomatizerMachine pc;
        const QTemporaryDir beside;
        copyMachine(pc.machine(), beside.filePath(u"before"_s));
        WorkerOn worker(onEleven);
        optimizeAll(worker);
        for (const TweakBox &box : tweakBoxes())
            (worker.*box.tweak)(1, box.id);
        QList<std::pair<QString, QString>> found;
        const auto before = Machine::open(beside.filePath(u"before"_s));
        eachRegistryDifference(before->registry(), pc.machine().registry(), [&found](const RegistryDifference &each) {
            const bool isOwn = each.key.startsWith(settingsKey);
            const bool isTold = each.before || each.after;
            if (isTold && !isOwn)
                found.append({each.key, each.before ? each.before->name : each.after->name});
        });
        return found;
    }();
    return places;
}

/** A value of any type, with bytes that needn't fit it. */
RegistryValue anyValue(const QString &name, QRandomGenerator &random)
{
    constexpr RegistryType types[] = {RegistryType::String, RegistryType::ExpandString, RegistryType::Binary,
                                      RegistryType::DWord,  RegistryType::MultiString,  RegistryType::QWord};
    QByteArray bytes(random.bounded(12), 0);
    for (char &byte : bytes)
        byte = static_cast<char>(random.bounded(256));
    return {name, types[random.bounded(static_cast<int>(std::size(types)))], bytes};
}

/** Makes a PC of it that nobody has thought of: what will be changed is there or not, and of any kind. */
void disarrange(Machine &machine, QRandomGenerator &random)
{
    RegistryStore &registry = machine.registry();
    for (const auto &[key, name] : touchedValues()) {
        // What a service or a package is made of decides what the tools say; that has tests of its own.
        const bool isOfTool = key.contains("\\Services\\"_L1) || key.contains("\\Packages\\"_L1);
        if (isOfTool || random.bounded(3) == 0)
            continue;
        if (random.bounded(3) == 0) {
            if (const auto found = registry.find(key))
                registry.removeValue(*found, name);
        } else {
            registry.setValue(*registry.make(key), anyValue(name, random));
        }
    }
    for (const QString &service : registry.subkeys(*registry.find(servicesKey))) {
        const quint32 start = StartAutomatic + static_cast<quint32>(random.bounded(3));
        registry.setValue(*registry.find(servicesKey + u'\\' + service),
                          {u"Start"_s, RegistryType::DWord, registryDWord(start)});
        machine.setRunning(service, random.bounded(2) == 1);
    }
}

} // namespace

class TestTakeBack : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTweakComesBack_data();
    void everyTweakComesBack();
    void anOptimizeComesBack_data();
    void anOptimizeComesBack();
    void aRestoreComesBackToo();
    void whateverWasDoneComesBack_data();
    void whateverWasDoneComesBack();
    void anEarlierSessionComesBackOnceTheLaterOneIsBack();
    void aFileThatWasMovedBeforeItsWordComesBack();
    void atWhateverMomentItEnds();
};

/** Its word is noted by the name that it has only for a while. */
void TestTakeBack::aFileThatWasMovedBeforeItsWordComesBack()
{
    constexpr quint32 notIndexed = 0x2000;
    TestMachine pc;
    pc.addFile(u"C:\\Tools\\a.exe"_s);
    const Journaled journaled(pc);
    const QString file = platform().hostPath(u"C:\\Tools\\a.exe"_s);
    const QString moved = platform().hostPath(u"C:\\Tools\\a_disable.exe"_s);
    {
        const ChangeSession session(u"Tweaks"_s);
        QVERIFY(platform().renameFile(file, moved));
        platform().setFileAttributes(moved, platform().fileAttributes(moved) | notIndexed);
    }
    QCOMPARE(journaled.takeAllBack().join(u'\n'), QString());
    QCOMPARE(journaled.differences().join(u'\n'), QString());
    for (const TakenItem &item : planWayBack(journaled.journal(), {.lastSession = 1}))
        QVERIFY2(item.verdict == WayBack::AsItWas, qPrintable(foldedItem(item.item) + u' ' + item.why));
}

void TestTakeBack::everyTweakComesBack_data()
{
    addColumns<QString, int>("machine", "first");
    for (const QString &machine : {u"windows11"_s, u"windows10"_s}) {
        for (const int first : {1, 0})
            QTest::addRow("%s %s first", qPrintable(machine), first == 1 ? "on" : "off") << machine << first;
    }
}

void TestTakeBack::everyTweakComesBack()
{
    QFETCH(const QString, machine);
    QFETCH(const int, first);
    const TestMachine pc(machine);
    const Journaled journaled(pc);
    WorkerOn worker(machine == "windows10"_L1 ? onTen : onEleven);
    for (const TweakBox &box : tweakBoxes()) {
        for (const int apply : {first, 1 - first}) {
            const ChangeSession session(u"Tweaks"_s);
            (worker.*box.tweak)(static_cast<quint8>(apply), box.id);
        }
        if (first == 1) {
            const ChangeSession session(u"Tweaks"_s);
            (worker.*box.tweak)(1, box.id);
        }
    }
    QVERIFY(!journaled.differences().isEmpty());
    QCOMPARE(journaled.takeAllBack().join(u'\n'), QString());
    QCOMPARE(journaled.differences().join(u'\n'), QString());
}

void TestTakeBack::anOptimizeComesBack_data()
{
    addColumns<QString>("machine");
    for (const char *machine : {"", "windows11", "windows10"})
        QTest::addRow("%s", *machine == 0 ? "small" : machine) << QString::fromLatin1(machine);
}

void TestTakeBack::anOptimizeComesBack()
{
    QFETCH(const QString, machine);
    const std::unique_ptr<TestMachine> pc(machine.isEmpty() ? new AutomatizerMachine : new TestMachine(machine));
    const Journaled journaled(*pc);
    WorkerOn worker(machine == "windows10"_L1 ? onTen : onEleven);
    optimizeAll(worker);
    QVERIFY(!journaled.differences().isEmpty());
    QCOMPARE(journaled.takeAllBack().join(u'\n'), QString());
    QCOMPARE(journaled.differences().join(u'\n'), QString());
}

void TestTakeBack::aRestoreComesBackToo()
{
    const AutomatizerMachine pc;
    const Journaled journaled(pc);
    WorkerOn worker(onEleven);
    optimizeAll(worker);
    optimizeAll(worker);
    restoreAll(worker);
    QCOMPARE(journaled.takeAllBack().join(u'\n'), QString());
    QCOMPARE(journaled.differences().join(u'\n'), QString());
}

void TestTakeBack::whateverWasDoneComesBack_data()
{
    addColumns<bool, quint32>("anyMachine", "seed");
    for (const bool anyMachine : {false, true}) {
        for (quint32 seed = 1; seed <= (isThorough() ? 100U : 6U); ++seed)
            QTest::addRow("%s machine, %u", anyMachine ? "any" : "one", seed) << anyMachine << seed;
    }
}

void TestTakeBack::whateverWasDoneComesBack()
{
    QFETCH(const bool, anyMachine);
    QFETCH(const quint32, seed);
    constexpr int deeds = 12;
    QRandomGenerator random(seed);
    QVERIFY(!anyMachine || touchedValues().size() > 100);
    const AutomatizerMachine pc;
    if (anyMachine)
        disarrange(pc.machine(), random);
    Journaled journaled(pc);
    for (int deed = 0; deed < deeds; ++deed) {
        WorkerOn worker(onEleven);
        doSomething(worker, random);
        if (random.bounded(4) == 0)
            journaled.open();
    }
    QCOMPARE(journaled.takeAllBack().join(u'\n'), QString());
    QCOMPARE(journaled.differences().join(u'\n'), QString());
}

void TestTakeBack::anEarlierSessionComesBackOnceTheLaterOneIsBack()
{
    TestMachine pc;
    pc.write(u"HKEY_CURRENT_USER\\Software\\Some"_s, u"Value"_s, 1);
    const Journaled journaled(pc);
    for (const int value : {2, 3}) {
        const ChangeSession session(u"Tweaks"_s);
        platform().openKey(u"HKEY_CURRENT_USER\\Software\\Some"_s)->setValue(u"Value"_s, value);
    }
    const QList<Session> sessions = journaled.journal().store().sessions();
    const auto only = [](const Session &session) {
        Selection selection;
        selection.firstSession = selection.lastSession = session.id;
        return selection;
    };
    QCOMPARE(planWayBack(journaled.journal(), only(sessions.at(0))).first().verdict, WayBack::Changed);
    QCOMPARE(takeBack(journaled.journal(), only(sessions.at(1))).first().verdict, WayBack::AsItWas);
    QCOMPARE(takeBack(journaled.journal(), only(sessions.at(0))).first().verdict, WayBack::AsItWas);
    QCOMPARE(journaled.differences(), QStringList());
}

void TestTakeBack::atWhateverMomentItEnds()
{
    const int step = isThorough() ? 1 : 9; // odd, so that moments before and after changes take turns
    int moment = 0;
    for (int exitCode = ended; exitCode == ended; moment += step) {
        const AutomatizerMachine pc;
        Journaled journaled(pc);
        journaled.close();
        exitCode = optimizeElsewhere(pc.folder(), moment);
        QVERIFY(exitCode == ended || exitCode == 0);
        journaled.open();
        const QList<Session> sessions = journaled.journal().store().sessions();
        QVERIFY(std::none_of(sessions.cbegin(), sessions.cend(),
                             [](const Session &each) { return each.state == SessionState::UnderWay; }));
        const QByteArray at = "moment " + QByteArray::number(moment) + ": ";
        const QString left = journaled.takeAllBack().join(u'\n');
        QVERIFY2(left.isEmpty(), at + left.toUtf8());
        const QString different = journaled.differences().join(u'\n');
        QVERIFY2(different.isEmpty(), at + different.toUtf8());
    }
    QVERIFY(moment > 270);
}

KESTRUNE_SUITE(TestTakeBack)
#include "tst_takeback.moc"
