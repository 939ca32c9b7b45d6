// SPDX-License-Identifier: GPL-3.0-or-later
// What hardly any PC has: tools that fail at any moment of an Optimize, a machine that goes meanwhile, thousands of
// entries, huge values, and names that say more than a name. Nothing is changed without a note, and what wasn't done is
// said.

#include "journaling.h"
#include "support/allocations.h"
#include "support/suite.h"
#include "work/automatizerruns.h"

#include "machine/database.h"
#include "platform/forwardingplatform.h"
#include "platform/registryscript.h"
#include "platform/taskdocument.h"

#include <QDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** Lets the start of a tool go wrong, by its number from 1. */
class FailingTools final : public ForwardingPlatform
{
public:
    enum Way {
        DoesNotStart,
        EndsAtOnce,  ///< as one that couldn't read its machine
        MachineGoes, ///< which holds the tool
    };

    using ForwardingPlatform::ForwardingPlatform;

    static std::unique_ptr<Platform> around(std::unique_ptr<Platform> machine)
    {
        return std::make_unique<FailingTools>(std::move(machine));
    }
    static void failAt(int start, Way way, const QString &folder = {})
    {
        starts_ = 0;
        first_ = start;
        way_ = way;
        folder_ = folder;
    }
    /** Ends that. How many starts there were since. */
    static int stop()
    {
        first_ = 0;
        return starts_;
    }

    std::optional<AdmittedProgram> admitProgram(const QString &program, const QStringList &arguments) const override
    {
        std::optional<AdmittedProgram> admitted = inner().admitProgram(program, arguments);
        if (++starts_ != first_)
            return admitted;
        if (way_ == MachineGoes)
            QDir(folder_).removeRecursively();
        else if (admitted)
            admitted->file = way_ == DoesNotStart ? u"/dev/null"_s : u"/bin/false"_s;
        return admitted;
    }

private:
    static inline int starts_ = 0;
    static inline int first_ = 0;
    static inline Way way_ = DoesNotStart;
    static inline QString folder_;
};

void optimizeAll(WorkThread &worker)
{
    worker.automatizerTweak = 1;
    worker.automatizerProgram = 1;
    optimize(worker);
}

/** Names that would say something else in a command, a script, a list or a path. */
QStringList oddNames()
{
    return {u"quotes \" and '"_s, u"$(calc) `calc`"_s,   u"%TEMP% & calc; | >"_s,
            u"line\nbreak"_s,     u"mark \u202e back"_s, u"\u65e5\u672c\u8a9e \u00fc\u00df \U0001F600"_s};
}

} // namespace

class TestExtremes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anOptimizeWithAFailingTool_data();
    void anOptimizeWithAFailingTool();
    void aMachineThatGoesIsMissed_data();
    void aMachineThatGoesIsMissed();
    void thousandsOfEntriesTakeTheirStepsOnce_data();
    void thousandsOfEntriesTakeTheirStepsOnce();
    void hugeValuesComeBack();
    void oddNamesAreOptimizedAndRestored();
    void oddNamesAreTakenBack();

private:
    static int startsOfAnOptimize();
};

int TestExtremes::startsOfAnOptimize()
{
    const AutomatizerMachine pc;
    const Journaled journaled(pc, FailingTools::around);
    WorkerOn worker(onEleven);
    FailingTools::failAt(0, FailingTools::DoesNotStart);
    optimizeAll(worker);
    return FailingTools::stop();
}

void TestExtremes::anOptimizeWithAFailingTool_data()
{
    addColumns<int, int>("way", "start");
    const int starts = startsOfAnOptimize();
    QVERIFY(starts > 10);
    for (int start = 1; start <= starts; ++start) {
        QTest::addRow("not started %d", start) << int(FailingTools::DoesNotStart) << start;
        QTest::addRow("ended at once %d", start) << int(FailingTools::EndsAtOnce) << start;
    }
}

void TestExtremes::anOptimizeWithAFailingTool()
{
    QFETCH(const int, way);
    QFETCH(const int, start);
    const AutomatizerMachine pc;
    Journaled journaled(pc, FailingTools::around);
    WorkerOn worker(onEleven);
    FailingTools::failAt(start, FailingTools::Way(way));
    optimizeAll(worker);
    QVERIFY(FailingTools::stop() >= start);

    QVERIFY(!platform().takeFailure().isEmpty());
    journaled.open();
    QCOMPARE(journaled.takeAllBack().join(u'\n'), QString());
    QCOMPARE(journaled.differences().join(u'\n'), QString());
}

void TestExtremes::aMachineThatGoesIsMissed_data()
{
    addColumns<int>("start");
    const int starts = startsOfAnOptimize();
    for (const int start : {1, 2, starts / 2, starts})
        QTest::addRow("at start %d", start) << start;
}

void TestExtremes::aMachineThatGoesIsMissed()
{
    QFETCH(const int, start);
    const AutomatizerMachine pc;
    const Journaled journaled(pc, FailingTools::around);
    WorkerOn worker(onEleven);
    FailingTools::failAt(start, FailingTools::MachineGoes, pc.folder());
    optimizeAll(worker);
    QVERIFY(FailingTools::stop() >= start);
    QVERIFY(!platform().takeFailure().isEmpty());
}

/** Fills a machine with so many of something. */
using Fill = void (*)(TestMachine &machine, int count);

void TestExtremes::thousandsOfEntriesTakeTheirStepsOnce_data()
{
    addColumns<Fill>("fill");
    QTest::newRow("packages") << Fill([](TestMachine &machine, int count) {
        for (int i = 0; i < count; ++i)
            addPackage(machine, u"Vendor.App%1_1.0.0.0_x64__8wekyb3d8bbwe"_s.arg(i));
    });
    QTest::newRow("packages that can be removed") << Fill([](TestMachine &machine, int count) {
        for (int i = 0; i < count; ++i)
            addPackage(machine, u"Microsoft.BingNews_1.%1.0.0_x64__8wekyb3d8bbwe"_s.arg(i));
    });
    QTest::newRow("programs at logon") << Fill([](TestMachine &machine, int count) {
        for (int i = 0; i < count; ++i)
            machine.write(userRunKey, u"Entry %1"_s.arg(i), u"C:\\Tools\\a%1.exe -x"_s.arg(i));
    });
}

void TestExtremes::thousandsOfEntriesTakeTheirStepsOnce()
{
    QFETCH(const Fill, fill);
    const auto steps = [fill](int count) {
        TestMachine machine;
        {
            Database::Transaction together(machine.machine().database());
            fill(machine, count);
            together.commit();
        }
        WorkerOn worker(onEleven);
        const std::size_t before = bytesAllocated();
        linesOf(worker, JobAutomatizerAnalyze);
        worker.PackageGetList();
        worker.AutorunGetList();
        return bytesAllocated() - before;
    };
    steps(1); // what is made once and kept
    const std::size_t once = steps(5000);
    const std::size_t twice = steps(10'000);
    QVERIFY2(twice < once * 5 / 2, qUtf8Printable(u"%1 bytes became %2"_s.arg(once).arg(twice)));
}

void TestExtremes::hugeValuesComeBack()
{
    // Letters of two bytes: 64 MiB, with which an Optimize takes minutes
    const qsizetype letters = qEnvironmentVariableIsSet("KESTRUNE_THOROUGH") ? 32 * 1024 * 1024 : 1024 * 1024;
    AutomatizerMachine pc;
    const QString text = u"\"C:\\Tools\\a.exe\" "_s + QString(letters, u'x');
    pc.write(userRunKey, u"Huge"_s, text);
    Journaled journaled(pc);
    WorkerOn worker(onEleven);
    optimizeAll(worker);
    QCOMPARE(platform().takeFailure(), QString());
    QVERIFY(!platform().openKey(userRunKey)->contains(u"Huge"_s));
    journaled.open();
    QCOMPARE(journaled.takeAllBack().join(u'\n'), QString());
    QCOMPARE(journaled.differences().join(u'\n'), QString());
    QVERIFY(platform().openKey(userRunKey)->value(u"Huge"_s).toString() == text);
}

namespace {

/** With services, tasks and programs at logon of all odd names. */
class OddMachine : public AutomatizerMachine
{
public:
    OddMachine()
    {
        for (const QString &name : oddNames()) {
            add({.name = name, .start = 2, .running = true});
            machine().setTask({taskOf(name), taskElement({.uri = taskOf(name).toHtmlEscaped()}).remove(u'\r')});
            write(userRunKey, name, u"\"C:\\Tools\\a.exe\" -x"_s);
        }
    }

    /** Whose name begins like those that Optimize switches off. */
    static QString taskOf(const QString &name) { return u"\\OneDrive "_s + name; }
};

/** What is switched off of the odd names now, each by its kind. */
QStringList switchedOff(Machine &machine)
{
    QStringList off;
    const auto services = platform().openKey(servicesKey);
    const auto run = platform().openKey(userRunKey);
    for (const QString &name : oddNames()) {
        if (services->value(name + u"/Start"_s).toInt() == 4 && machine.isRunning(name) == std::optional(false))
            off.append(u"service "_s + name);
        if (!taskFacts(machine.task(OddMachine::taskOf(name))->document).enabled)
            off.append(u"task "_s + name);
        if (!run->contains(name))
            off.append(u"program "_s + name);
    }
    return off;
}

QStringList allOfOddNames()
{
    QStringList all;
    for (const QString &name : oddNames()) {
        all.append(u"service "_s + name);
        // On purpose, a task is looked for by its name as the tool prints it: with "&amp;", in the console's code page.
        if (name.toHtmlEscaped() == name && QString::fromLatin1(name.toLatin1()) == name)
            all.append(u"task "_s + name);
        // A value that no script brings back stays, and the log says so.
        if (fitsRegistryScript(name))
            all.append(u"program "_s + name);
    }
    return all;
}

/** An Optimize, and the services one by one, since no catalogue has them. */
void optimizeOddNames()
{
    WorkerOn worker(onEleven);
    optimizeAll(worker);
    worker.servicesToChange = oddNames();
    linesOf(worker, JobSvcDisable);
}

} // namespace

void TestExtremes::oddNamesAreOptimizedAndRestored()
{
    const OddMachine pc;
    const Journaled journaled(pc);
    optimizeOddNames();
    QCOMPARE(platform().takeFailure(), QString());
    QCOMPARE(switchedOff(journaled.machine()).join(u"; "_s), allOfOddNames().join(u"; "_s));
    WorkerOn worker(onEleven);
    worker.automatizerProgram = 1;
    restore(worker);
    QCOMPARE(switchedOff(journaled.machine()), QStringList());
}

void TestExtremes::oddNamesAreTakenBack()
{
    const OddMachine pc;
    const Journaled journaled(pc);
    optimizeOddNames();
    QCOMPARE(switchedOff(journaled.machine()).join(u"; "_s), allOfOddNames().join(u"; "_s));
    QCOMPARE(journaled.takeAllBack().join(u'\n'), QString());
    QCOMPARE(journaled.differences().join(u'\n'), QString());
}

KESTRUNE_SUITE(TestExtremes)
#include "tst_extremes.moc"
