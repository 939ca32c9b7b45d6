// SPDX-License-Identifier: GPL-3.0-or-later
// Tests of the boxes of the Features page as a table, and of what is stored of them, above all after a run of the
// Automatizer.

#include "joblines.h"
#include "support/suite.h"
#include "support/testmachine.h"
#include "work/tweaks/tweakcatalogue.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString tweakKey = settingsKey + u"\\Tweak"_s;
const QString windows10 = u"Windows 10 Pro"_s;

QStringList allNames()
{
    QStringList names;
    for (const TweakBox &box : tweakBoxes())
        names.append(box.name);
    return names;
}

/** What all runs record; the rest depends. */
QStringList alwaysRecorded()
{
    QStringList names = allNames();
    for (const QString &name : {u"chkSsd7"_s, u"chkGaming2"_s, u"chkGaming6"_s, u"chkGaming7"_s, u"chkGaming8"_s,
                                u"chkGaming12"_s, u"chkWindows5"_s, u"chkWindows10"_s})
        names.removeOne(name);
    return names;
}

QStringList sorted(QStringList names)
{
    names.sort();
    return names;
}

/** Names and values in the group, as they stand in the registry. */
QMap<QString, QVariant> stored(const TestMachine &machine)
{
    QMap<QString, QVariant> values;
    for (const QString &name : machine.names(tweakKey))
        values.insert(name, machine.read(tweakKey, name));
    return values;
}

} // namespace

class TestTweakRecord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The table
    void tableHasThirtyFourBoxesNamedAfterTheirTweaks();
    void onlyThreeBoxesAreAppliedOnWindows11Alone();

    // The plain state
    void nothingStoredReadsAsUncheckedAndTheFourthEntry();
    void boxesAreStoredAsText();
    void storedTextsAreReadAsTruthOrNot_data();
    void storedTextsAreReadAsTruthOrNot();
    void storingSomeBoxesLeavesTheOthers();

    // After a run of the Automatizer
    void recordGoesByTheRun_data();
    void recordGoesByTheRun();
    void recordAfterOptimizeSaysTrue();
    void recordAfterRestoreSaysFalse();
    void recordKeepsWhatItDoesNotStandFor();
    void optimizeAfterARestoreStillSaysFalse();
};

void TestTweakRecord::tableHasThirtyFourBoxesNamedAfterTheirTweaks()
{
    QStringList expected;
    const auto add = [&expected](const QString &block, int last) {
        for (int id = 1; id <= last; ++id)
            expected.append(block + QString::number(id));
    };
    add(u"chkSsd"_s, 9);
    add(u"chkGaming"_s, 14);
    add(u"chkWindows"_s, 12);
    expected.removeOne(u"chkWindows11"_s);
    QCOMPARE(expected.size(), 34);
    QCOMPARE(allNames(), expected);

    for (const TweakBox &box : tweakBoxes()) {
        const QString block = box.tweak == &WorkThread::TweakSSD      ? u"chkSsd"_s
                              : box.tweak == &WorkThread::TweakGaming ? u"chkGaming"_s
                                                                      : u"chkWindows"_s;
        QCOMPARE(QString(box.name), block + QString::number(box.id));
    }
}

void TestTweakRecord::onlyThreeBoxesAreAppliedOnWindows11Alone()
{
    QStringList windows11Only;
    QStringList asJob;
    for (const TweakBox &box : tweakBoxes()) {
        if (box.apply == When::Windows11)
            windows11Only.append(box.name);
        if (box.apply == When::AsJob)
            asJob.append(box.name);
    }
    QCOMPARE(windows11Only, (QStringList{u"chkGaming8"_s, u"chkWindows5"_s, u"chkWindows9"_s}));
    QCOMPARE(asJob, QStringList{u"chkSsd8"_s});
}

void TestTweakRecord::nothingStoredReadsAsUncheckedAndTheFourthEntry()
{
    TestMachine machine;
    const TweakState state = storedTweaks();
    QCOMPARE(QStringList(state.boxes.keys()), sorted(allNames()));
    QVERIFY(!state.boxes.values().contains(true));
    QCOMPARE(state.priorityIndex, 3);
}

void TestTweakRecord::boxesAreStoredAsText()
{
    TestMachine machine;
    storeTweaks({.boxes = {{u"chkSsd1"_s, true}, {u"chkWindows12"_s, false}}, .priorityIndex = 5});
    QCOMPARE(stored(machine),
             (QMap<QString, QVariant>{
                 {u"chkSsd1"_s, u"true"_s}, {u"chkWindows12"_s, u"false"_s}, {u"cbWin32PrioritySeparation"_s, 5}}));
    const TweakState state = storedTweaks();
    QCOMPARE(state.boxes.keys(true), QStringList{u"chkSsd1"_s});
    QCOMPARE(state.priorityIndex, 5);
}

void TestTweakRecord::storedTextsAreReadAsTruthOrNot_data()
{
    addColumns<QVariant, bool>("value", "checked");
    QTest::newRow("true") << QVariant(u"true"_s) << true;
    QTest::newRow("false") << QVariant(u"false"_s) << false;
    QTest::newRow("number one") << QVariant(1) << true;
    QTest::newRow("number 0") << QVariant(0) << false;
    QTest::newRow("empty") << QVariant(QString()) << false;
}

void TestTweakRecord::storedTextsAreReadAsTruthOrNot()
{
    QFETCH(const QVariant, value);
    QFETCH(const bool, checked);
    TestMachine machine;
    machine.write(tweakKey, u"chkGaming3"_s, value);
    QCOMPARE(storedTweaks().boxes.value(u"chkGaming3"_s), checked);
}

void TestTweakRecord::storingSomeBoxesLeavesTheOthers()
{
    TestMachine machine;
    machine.write(tweakKey, u"chkSsd2"_s, u"true"_s);
    storeTweaks({.boxes = {{u"chkSsd1"_s, true}}});
    QCOMPARE(storedTweaks().boxes.keys(true), (QStringList{u"chkSsd1"_s, u"chkSsd2"_s}));
}

void TestTweakRecord::recordGoesByTheRun_data()
{
    addColumns<QString, QString, int, int, QStringList>("winName", "battery", "gameBar", "restoring", "beyondTheRest");

    const QStringList ofWindows11{u"chkGaming8"_s, u"chkWindows10"_s, u"chkWindows5"_s};
    const QStringList ofMains{u"chkGaming2"_s, u"chkGaming7"_s, u"chkSsd7"_s};
    const QStringList gameBar{u"chkGaming6"_s};
    const auto row = [](const char *title, const QString &winName, const QString &battery, int keep, int restoring,
                        const QStringList &beyond) {
        QTest::newRow(title) << winName << battery << keep << restoring << beyond;
    };
    row("Windows 11", onEleven, u"-1"_s, 2, 0, ofWindows11 + ofMains);
    row("Windows 10", windows10, u"-1"_s, 2, 0, ofMains);
    row("another Windows", u"unknown"_s, u"-1"_s, 2, 0, ofMains);
    row("a battery", onEleven, u"80"_s, 2, 0, ofWindows11);
    row("an empty battery text", onEleven, QString(), 2, 0, ofWindows11);
    row("game bar given up", onEleven, u"-1"_s, 0, 0, ofWindows11 + ofMains + gameBar);
    row("game bar in part", onEleven, u"-1"_s, 1, 0, ofWindows11 + ofMains);
    row("restore with a kept game bar", onEleven, u"-1"_s, 2, 1, ofWindows11 + ofMains + gameBar);
    row("restore on Windows 10 with a battery", windows10, u"80"_s, 0, 1, gameBar);
}

void TestTweakRecord::recordGoesByTheRun()
{
    QFETCH(const QString, winName);
    QFETCH(const QString, battery);
    QFETCH(const int, gameBar);
    QFETCH(const int, restoring);
    QFETCH(const QStringList, beyondTheRest);
    TestMachine machine;
    WorkerOn worker(winName);
    worker.batteryCharge = battery;
    worker.keepXboxGameBar = gameBar;
    worker.restoreRunning = restoring;
    recordTweaksOfAutomatizer(worker, 3);
    QCOMPARE(sorted(machine.names(tweakKey)),
             sorted(alwaysRecorded() + beyondTheRest + QStringList{u"cbWin32PrioritySeparation"_s}));
}

void TestTweakRecord::recordAfterOptimizeSaysTrue()
{
    TestMachine machine;
    WorkerOn worker(onEleven);
    recordTweaksOfAutomatizer(worker, 6);
    QMap<QString, QVariant> values = stored(machine);
    QCOMPARE(values.take(u"cbWin32PrioritySeparation"_s), QVariant(6));
    QCOMPARE(values.value(u"chkSsd8"_s), QVariant(u"true"_s));
    QCOMPARE(values.value(u"chkWindows12"_s), QVariant(u"true"_s));
    QCOMPARE(values.keys(QVariant(u"true"_s)), values.keys());
}

void TestTweakRecord::recordAfterRestoreSaysFalse()
{
    TestMachine machine;
    WorkerOn worker(onEleven);
    worker.restoreRunning = 1;
    recordTweaksOfAutomatizer(worker, 0);
    QMap<QString, QVariant> values = stored(machine);
    QCOMPARE(values.take(u"cbWin32PrioritySeparation"_s), QVariant(0));
    QCOMPARE(values.value(u"chkSsd8"_s), QVariant(u"false"_s));
    QCOMPARE(values.keys(QVariant(u"false"_s)), values.keys());
}

void TestTweakRecord::recordKeepsWhatItDoesNotStandFor()
{
    TestMachine machine;
    for (const QString &name : {u"chkGaming12"_s, u"chkGaming8"_s, u"chkGaming1"_s})
        machine.write(tweakKey, name, u"true"_s);
    WorkerOn worker(windows10);
    worker.restoreRunning = 1;
    recordTweaksOfAutomatizer(worker, 3);
    QCOMPARE(machine.read(tweakKey, u"chkGaming12"_s), QVariant(u"true"_s));
    QCOMPARE(machine.read(tweakKey, u"chkGaming8"_s), QVariant(u"true"_s));
    QCOMPARE(machine.read(tweakKey, u"chkGaming1"_s), QVariant(u"false"_s));
}

void TestTweakRecord::optimizeAfterARestoreStillSaysFalse()
{
    // A restore with features never clears its flag, so that the record of a later Optimize is one of a restore.
    TestMachine machine;
    WorkerOn worker(onEleven);
    worker.restoreRunning = 1;
    worker.optimizeRunning = 1;
    recordTweaksOfAutomatizer(worker, 3);
    QCOMPARE(machine.read(tweakKey, u"chkSsd1"_s), QVariant(u"false"_s));
}

KESTRUNE_SUITE(TestTweakRecord)
#include "tst_tweakrecord.moc"
