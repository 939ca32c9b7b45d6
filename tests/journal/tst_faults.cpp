// SPDX-License-Identifier: GPL-3.0-or-later
// A disk that fails at any moment of an Optimize, or on which somebody else is writing: the program says so or does all
// of it, and what was done comes back.

#include "faultydisk.h"
#include "journaling.h"
#include "support/suite.h"
#include "work/automatizerruns.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** Asked for by `./dev faults`: every operation, which takes an hour. */
bool isThorough()
{
    return qEnvironmentVariableIsSet("KESTRUNE_THOROUGH");
}

void optimizeAll(WorkerOn &worker)
{
    worker.automatizerTweak = 1;
    worker.automatizerProgram = 1;
    optimize(worker);
}

} // namespace

class TestFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anOptimizeOnAFailingDisk_data();
    void anOptimizeOnAFailingDisk();
    void anOptimizeOnALockedDisk_data();
    void anOptimizeOnALockedDisk();

private:
    QStringList whole_; ///< what an Optimize changes on a good disk
    int operations_ = 0;
};

void TestFaults::initTestCase()
{
    FaultyDisk::install();
    const AutomatizerMachine pc;
    const Journaled journaled(pc);
    WorkerOn worker(onEleven);
    FaultyDisk::failAt(INT_MAX, FaultyDisk::Fault::Once);
    optimizeAll(worker);
    operations_ = FaultyDisk::stop();
    whole_ = journaled.differences();
    QCOMPARE(platform().takeFailure(), QString());
    QVERIFY(operations_ > 500);
    QVERIFY(whole_.size() > 100);
}

void TestFaults::anOptimizeOnAFailingDisk_data()
{
    addColumns<bool, int>("forGood", "operation");
    constexpr int some = 7;
    const int step = isThorough() ? 1 : operations_ / some;
    for (const bool forGood : {false, true}) {
        for (int operation = 1; operation <= operations_; operation += step)
            QTest::addRow("%s %d", forGood ? "from" : "at", operation) << forGood << operation;
    }
}

void TestFaults::anOptimizeOnAFailingDisk()
{
    QFETCH(const bool, forGood);
    QFETCH(const int, operation);
    const AutomatizerMachine pc;
    Journaled journaled(pc);
    WorkerOn worker(onEleven);
    FaultyDisk::failAt(operation, forGood ? FaultyDisk::Fault::ForGood : FaultyDisk::Fault::Once);
    optimizeAll(worker);
    FaultyDisk::stop();

    const QString failure = platform().takeFailure();
    if (failure.isEmpty())
        QCOMPARE(journaled.differences().join(u'\n'), whole_.join(u'\n'));
    journaled.open();
    QCOMPARE(journaled.takeAllBack().join(u'\n'), QString());
    QCOMPARE(journaled.differences().join(u'\n'), QString());
}

void TestFaults::anOptimizeOnALockedDisk_data()
{
    addColumns<int, bool>("seconds", "isLeftOut");
    // A change waits ten seconds for its turn.
    QTest::newRow("5 seconds") << 5 << false;
    QTest::newRow("30 seconds") << 30 << true;
    QTest::newRow("90 seconds") << 90 << true;
}

void TestFaults::anOptimizeOnALockedDisk()
{
    QFETCH(const int, seconds);
    QFETCH(const bool, isLeftOut);
    const AutomatizerMachine pc;
    Journaled journaled(pc);
    WorkerOn worker(onEleven);
    FaultyDisk::lockFor(seconds * 1000);
    optimizeAll(worker);
    QVERIFY(FaultyDisk::waited() >= seconds * 1000);

    const QString failure = platform().takeFailure();
    QCOMPARE(failure.contains("database is locked"_L1), isLeftOut);
    if (!isLeftOut)
        QCOMPARE(journaled.differences().join(u'\n'), whole_.join(u'\n'));
    QCOMPARE(unaccounted(journaled.machine()), QStringList());
    journaled.open();
    QCOMPARE(journaled.takeAllBack().join(u'\n'), QString());
    QCOMPARE(journaled.differences().join(u'\n'), QString());
}

KESTRUNE_SUITE(TestFaults)
#include "tst_faults.moc"
