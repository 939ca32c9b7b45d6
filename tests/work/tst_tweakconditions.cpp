// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of when each tweak runs and is recorded: by the Apply button, Optimize, Restore, and the record after a run.

#include "platform/forwardingplatform.h"
#include "support/suite.h"
#include "support/tweakprobes.h"
#include "tweakruns.h"
#include "work/automatizer/automatizer.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/** What the conditions go by. */
struct Pc
{
    bool windows11 = true;
    bool battery = false;
    QStringList cards;
    bool keepsGameBar = true;
    bool restored = false; ///< a Restore with its tweaks runs, or has run since the program was started
};

using Condition = bool (*)(const Pc &pc);

bool always(const Pc &)
{
    return true;
}
bool never(const Pc &)
{
    return false;
}
bool eleven(const Pc &pc)
{
    return pc.windows11;
}
bool noBattery(const Pc &pc)
{
    return !pc.battery;
}
bool barGone(const Pc &pc)
{
    return !pc.keepsGameBar;
}
bool barGoneOrRestored(const Pc &pc)
{
    return !pc.keepsGameBar || pc.restored;
}
bool batteryOrAmd(const Pc &pc)
{
    return pc.battery || pc.cards.value(0).contains("AMD"_L1);
}

struct Conditions
{
    QLatin1StringView box;
    Condition apply, optimize, restore, record;
};

// clang-format off
constexpr Conditions conditions[] = {
    // box               apply   optimize      restore record
    {"chkSsd1"_L1,       always, always,       always, always},
    {"chkSsd2"_L1,       always, always,       always, always},
    {"chkSsd3"_L1,       always, always,       always, always},
    {"chkSsd4"_L1,       always, always,       always, always},
    {"chkSsd5"_L1,       always, always,       always, always},
    {"chkSsd6"_L1,       always, always,       always, always},
    {"chkSsd7"_L1,       always, never,        always, noBattery}, // Optimize runs chkGaming7 in its place
    {"chkSsd8"_L1,       never,  never,        never,  always},    // the walk, which is a job of its own
    {"chkSsd9"_L1,       always, always,       eleven, always},
    {"chkGaming1"_L1,    always, always,       always, always},
    {"chkGaming2"_L1,    always, noBattery,    always, noBattery},
    {"chkGaming3"_L1,    always, always,       always, always},
    {"chkGaming4"_L1,    always, always,       always, always},
    {"chkGaming5"_L1,    always, always,       always, always},
    {"chkGaming6"_L1,    always, barGone,      always, barGoneOrRestored},
    {"chkGaming7"_L1,    always, noBattery,    always, noBattery},
    {"chkGaming8"_L1,    eleven, eleven,       eleven, eleven},
    {"chkGaming9"_L1,    always, always,       always, always},
    {"chkGaming10"_L1,   always, always,       always, always},
    {"chkGaming11"_L1,   always, always,       always, always},
    {"chkGaming12"_L1,   always, always,       always, never},
    {"chkGaming13"_L1,   always, batteryOrAmd, always, always},
    {"chkGaming14"_L1,   always, never,        never,  always},
    {"chkWindows1"_L1,   always, always,       always, always},
    {"chkWindows2"_L1,   always, always,       always, always},
    {"chkWindows3"_L1,   always, always,       always, always},
    {"chkWindows4"_L1,   always, always,       always, always},
    {"chkWindows5"_L1,   eleven, eleven,       eleven, eleven},
    {"chkWindows6"_L1,   always, always,       always, always},
    {"chkWindows7"_L1,   always, always,       always, always},
    {"chkWindows8"_L1,   always, always,       always, always},
    {"chkWindows9"_L1,   eleven, eleven,       always, always},
    {"chkWindows10"_L1,  always, always,       always, eleven},
    {"chkWindows12"_L1,  always, never,        never,  always},
};
// clang-format on

/** The boxes that a column names on a PC, each with what the probes say of it. */
QStringList boxes(Condition Conditions::*column, const Pc &pc, const QString &form = {})
{
    QStringList names;
    for (const Conditions &row : conditions) {
        // On Windows 10 this one does nothing, and leaves no trace.
        const bool traceless = !form.isEmpty() && row.box == "chkGaming7"_L1 && !pc.windows11;
        if ((row.*column)(pc) && !traceless)
            names.append(row.box + form);
    }
    names.sort();
    return names;
}

TestMachine::Windows windowsOf(const Pc &pc)
{
    return pc.windows11 ? TestMachine::Windows::Eleven : TestMachine::Windows::Ten;
}

void setCards(Machine &machine, const QStringList &cards)
{
    QList<QJsonObject> adapters;
    for (const QString &card : cards)
        adapters.append(QJsonObject{{u"Caption"_s, card}});
    machine.setWmiInstances(u"Win32_VideoController"_s, adapters);
}

/** Sets a worker up that has nothing to do but its tweaks. */
void prepare(WorkThread &worker, const Pc &pc)
{
    worker.winName = pc.windows11 ? u"Windows 11 Home"_s : u"Windows 10 Home"_s;
    worker.batteryCharge = pc.battery ? u"80"_s : u"-1"_s;
    worker.keepXboxGameBar = pc.keepsGameBar ? 2 : 0;
    worker.restoreRunning = pc.restored ? 1 : 0;
    encoderServerFound = 0;
}

/** Battery, Windows, graphics card, game bar, and whether a Restore came before. */
void eachPc()
{
    const std::pair<const char *, QStringList> cards[] = {
        {"AMD", {u"AMD Radeon RX 7800 XT"_s, u"NVIDIA GeForce"_s}},
        {"AMD second", {u"NVIDIA GeForce"_s, u"AMD Radeon RX 7800 XT"_s}},
        {"no card", {}},
    };

    QTest::addColumn<Pc>("pc");
    for (const bool windows11 : {true, false}) {
        for (const bool battery : {false, true}) {
            for (const auto &[card, names] : cards) {
                for (const bool keepsGameBar : {true, false}) {
                    for (const bool restored : {false, true}) {
                        QTest::addRow("Windows %d, %s, %s, game bar %s%s", windows11 ? 11 : 10,
                                      battery ? "battery" : "no battery", card, keepsGameBar ? "kept" : "given up",
                                      restored ? ", restored" : "")
                            << Pc{windows11, battery, names, keepsGameBar, restored};
                    }
                }
            }
        }
    }
}

/** Writes down pauses and questions for graphics cards in their order. */
class ListeningPlatform final : public ForwardingPlatform
{
public:
    ListeningPlatform(std::unique_ptr<Platform> inner, QStringList &heard)
        : ForwardingPlatform(std::move(inner))
        , heard_(heard)
    {
    }

    WmiAnswer queryWmi(const QString &className, const QStringList &properties) const override
    {
        if (className == "Win32_VideoController"_L1)
            heard_.append(u"card"_s);
        return ForwardingPlatform::queryWmi(className, properties);
    }
    void pause(int milliseconds) const override
    {
        heard_.append(QString::number(milliseconds));
        ForwardingPlatform::pause(milliseconds);
    }

private:
    QStringList &heard_;
};

} // namespace

class TestTweakConditions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tableHasEachBoxOnceInTheOrderOfApply();
    void applyGoesByTheTable();
    void optimizeGoesByTheTable_data() { eachPc(); }
    void optimizeGoesByTheTable();
    void restoreGoesByTheTable_data() { eachPc(); }
    void restoreGoesByTheTable();
    void recordGoesByTheTable_data() { eachPc(); }
    void recordGoesByTheTable();
    void graphicsCardIsAskedForGaming13Alone_data();
    void graphicsCardIsAskedForGaming13Alone();
};

void TestTweakConditions::tableHasEachBoxOnceInTheOrderOfApply()
{
    QStringList expected, found;
    for (const Conditions &row : conditions)
        expected.append(row.box);
    for (const TweakBox &box : tweakBoxes())
        found.append(box.name);
    QCOMPARE(found, expected);
}

void TestTweakConditions::applyGoesByTheTable()
{
    for (const bool windows11 : {true, false}) {
        WorkThread worker;
        prepare(worker, {.windows11 = windows11, .cards = {}});
        QStringList suiting;
        for (const TweakBox &box : tweakBoxes()) {
            if (holds(box.apply, worker))
                suiting.append(box.name);
        }
        suiting.sort();
        QCOMPARE(suiting, boxes(&Conditions::apply, {.windows11 = windows11, .cards = {}}));
    }
}

void TestTweakConditions::optimizeGoesByTheTable()
{
    QFETCH(const Pc, pc);
    TestMachine machine(windowsOf(pc));
    setCards(machine.machine(), pc.cards);
    const TweakProbes probes(machine, pc.windows11);
    WorkThread worker;
    prepare(worker, pc);
    linesOf(worker, JobAutomatizerOptimize);
    QCOMPARE(probes.ran(), boxes(&Conditions::optimize, pc, u" on"_s));

    // The dynamic tick goes by two numbers, its own and the one of hibernation.
    const qsizetype ticks = pc.windows11 && !pc.battery ? 2 : 0;
    QCOMPARE(ToolRuns(machine).next().count(u"bcdedit|/set|disabledynamictick|Yes"_s), ticks);
    // One for each number of the three groups, also of those that don't run or aren't there; the dynamic tick and, on
    // Windows 11, the platform clock pause likewise.
    const QList<int> pauses = machine.platform().takePauses();
    QCOMPARE(pauses.count(30), 9 + 13 + 11 + ticks + (pc.windows11 ? 1 : 0));
    QCOMPARE(pauses.count(300), pc.windows11 ? 0 : 1);
    QCOMPARE(pauses.size(), pauses.count(30) + pauses.count(300));
}

void TestTweakConditions::restoreGoesByTheTable()
{
    QFETCH(const Pc, pc);
    TestMachine machine(windowsOf(pc));
    setCards(machine.machine(), pc.cards);
    const TweakProbes probes(machine, pc.windows11);
    WorkThread worker;
    prepare(worker, pc);
    linesOf(worker, JobAutomatizerRestore);
    QCOMPARE(probes.ran(), boxes(&Conditions::restore, pc, u" off"_s));
    QCOMPARE(machine.platform().takePauses().count(10), 9 + 13 + 10);
}

void TestTweakConditions::recordGoesByTheTable()
{
    QFETCH(const Pc, pc);
    TestMachine machine(windowsOf(pc));
    setCards(machine.machine(), pc.cards);
    WorkThread worker;
    prepare(worker, pc);
    recordTweaksOfAutomatizer(worker, 3);
    QStringList names = machine.names(settingsKey + u"\\Tweak"_s);
    QVERIFY(names.removeOne(u"cbWin32PrioritySeparation"_s));
    names.sort();
    QCOMPARE(names, boxes(&Conditions::record, pc));
}

void TestTweakConditions::graphicsCardIsAskedForGaming13Alone_data()
{
    addColumns<bool, bool>("battery", "asked");
    QTest::newRow("no battery") << false << true;
    QTest::newRow("battery") << true << false;
}

void TestTweakConditions::graphicsCardIsAskedForGaming13Alone()
{
    QFETCH(const bool, battery);
    QFETCH(const bool, asked);
    const TestMachine machine;
    QStringList heard;
    setPlatform(nullptr); // one at a time
    setPlatform(std::make_unique<ListeningPlatform>(
        std::make_unique<MachinePlatform>(machine.folder(), MachineOptions()), heard));
    WorkThread worker;
    prepare(worker, {.battery = battery, .cards = {}});
    linesOf(worker, JobAutomatizerOptimize);

    QCOMPARE(heard.count(u"card"_s), asked ? 1 : 0);
    if (!asked)
        return;
    // After it come the pauses of Gaming 13 and of the 11 numbers of the Windows group.
    QCOMPARE(heard.size() - 1 - heard.indexOf(u"card"_s), 1 + 11);
}

KESTRUNE_SUITE(TestTweakConditions)
#include "tst_tweakconditions.moc"
