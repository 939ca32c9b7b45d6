// SPDX-License-Identifier: GPL-3.0-or-later
// What the window makes of the lines of the ordinary jobs.

#include "support/suite.h"
#include "support/windowdriver.h"

#include <QApplication>
#include <QTest>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace {

/** What stands before a service's name. */
QString label(int job)
{
    return job == JobSvcDisable ? u"Stop service:  "_s : u"Start service:  "_s;
}

QString finishedText(int job)
{
    return job == JobSvcDisable ? u"Disable checked services finished  "_s : u"Enable checked services finished  "_s;
}

void send(const WindowDriver &driver, int job, const QString &line)
{
    driver.worker().job = job;
    driver.window().onWorkThreadValueChanged(line);
}

QString automatizerText(const WindowDriver &driver)
{
    return driver.get<QTextEdit>(u"txtAutomatizer"_s)->toPlainText();
}

} // namespace

class TestDispatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void maximumLineSetsTheMaximumAndLeavesTheBarHidden_data() { jobs(); }
    void maximumLineSetsTheMaximumAndLeavesTheBarHidden();
    void valueLineShowsTheBarAndLeavesItsDigitInTheStatus_data() { jobs(); }
    void valueLineShowsTheBarAndLeavesItsDigitInTheStatus();
    void numberThatDoesNotParseSetsZero_data();
    void numberThatDoesNotParseSetsZero();
    void nameStandsAfterItsLabel_data() { jobs(); }
    void nameStandsAfterItsLabel();
    void unknownBarLineShowsTheBarAndLeavesTheStatus_data() { jobs(); }
    void unknownBarLineShowsTheBarAndLeavesTheStatus();
    void finishedStaysUpWhereNothingCanBeRefreshed_data() { jobs(); }
    void finishedStaysUpWhereNothingCanBeRefreshed();
    void finishedRefreshesTheServicesPage_data() { jobs(); }
    void finishedRefreshesTheServicesPage();
    void finishedWithoutItsPrefixIsAName();
    void maximumAfterAMaximumIsReadOnce();

    void anyLineOfAListingFillsTheTable_data();
    void anyLineOfAListingFillsTheTable();
    void jobsWithoutAReaderHaveNoEffect_data();
    void jobsWithoutAReaderHaveNoEffect();
    void textLineIsAppendedWithItsPrefixDuringAnyJob_data();
    void textLineIsAppendedWithItsPrefixDuringAnyJob();
    void markupInALineStaysText();
    void textLineIsLookedForInWhatANumberLineLeaves();
    void lineThatHoldsTheTextPrefixElsewhereIsNotAppended();

private:
    void jobs();
};

void TestDispatch::jobs()
{
    QTest::addColumn<int>("job");
    QTest::newRow("disable") << int(JobSvcDisable);
    QTest::newRow("enable") << int(JobSvcEnable);
}

void TestDispatch::maximumLineSetsTheMaximumAndLeavesTheBarHidden()
{
    QFETCH(const int, job);
    const WindowOnPc driver;
    send(driver, job, u"pgr:max:12"_s);
    QCOMPARE(driver.bar()->maximum(), 12);
    QVERIFY(driver.bar()->isHidden());
    QCOMPARE(driver.status(), label(job) + u"12"_s);
}

void TestDispatch::valueLineShowsTheBarAndLeavesItsDigitInTheStatus()
{
    QFETCH(const int, job);
    const WindowOnPc driver;
    send(driver, job, u"pgr:max:12"_s);
    send(driver, job, u"pgr:value:3"_s);
    QVERIFY(!driver.bar()->isHidden());
    QCOMPARE(driver.bar()->value(), 3);
    QCOMPARE(driver.status(), label(job) + u"3"_s);
}

void TestDispatch::numberThatDoesNotParseSetsZero_data()
{
    QTest::addColumn<QString>("number");
    QTest::newRow("a word") << u"many"_s;
    QTest::newRow("nothing") << QString();
    QTest::newRow("too big") << u"99999999999999999999"_s;
    QTest::newRow("a fraction") << u"3.5"_s;
}

void TestDispatch::numberThatDoesNotParseSetsZero()
{
    QFETCH(const QString, number);
    const WindowOnPc driver;
    for (const int job : {JobSvcDisable, JobSvcEnable}) {
        send(driver, job, u"pgr:max:12"_s);
        send(driver, job, u"pgr:value:3"_s);
        send(driver, job, u"pgr:value:"_s + number);
        QCOMPARE(driver.bar()->value(), 0);
        QCOMPARE(driver.status(), label(job) + number);
        send(driver, job, u"pgr:max:"_s + number);
        QCOMPARE(driver.bar()->maximum(), 0);
        QCOMPARE(driver.status(), label(job) + number);
    }
}

void TestDispatch::nameStandsAfterItsLabel()
{
    QFETCH(const int, job);
    const WindowOnPc driver;
    send(driver, job, u"DiagTrack"_s);
    QCOMPARE(driver.status(), label(job) + u"DiagTrack"_s);
    send(driver, job, QString());
    QCOMPARE(driver.status(), label(job));
    QVERIFY(driver.bar()->isHidden());
}

void TestDispatch::unknownBarLineShowsTheBarAndLeavesTheStatus()
{
    QFETCH(const int, job);
    const WindowOnPc driver;
    send(driver, job, u"Alpha"_s);
    send(driver, job, u"pgr:something"_s);
    QVERIFY(!driver.bar()->isHidden());
    QCOMPARE(driver.status(), label(job) + u"Alpha"_s);
}

void TestDispatch::finishedStaysUpWhereNothingCanBeRefreshed()
{
    QFETCH(const int, job);
    const WindowOnPc driver;
    // The guard of the page switch stands for a worker that is still in its last instructions.
    driver.worker().analyzeRunning = 1;
    send(driver, job, u"pgr:SvcStopOrStart=finished"_s);
    QCOMPARE(driver.status(), finishedText(job));
    QVERIFY(!driver.bar()->isHidden());
}

void TestDispatch::finishedRefreshesTheServicesPage()
{
    QFETCH(const int, job);
    TestMachine machine;
    machine.add({.name = u"Alpha"_s, .running = true});
    const ServicesPage driver;
    machine.add({.name = u"Beta"_s, .running = true});
    send(driver, job, u"pgr:SvcStopOrStart=finished"_s);
    QCOMPARE(driver.status(), QString());
    QVERIFY(driver.bar()->isHidden());
    QVERIFY(driver.waitForList());
    QCOMPARE(driver.listed(), QStringList({u"Alpha"_s, u"Beta"_s}));
}

void TestDispatch::finishedWithoutItsPrefixIsAName()
{
    const WindowOnPc driver;
    send(driver, JobSvcDisable, u"SvcStopOrStart=finished"_s);
    QCOMPARE(driver.status(), u"Stop service:  SvcStopOrStart=finished"_s);
}

void TestDispatch::maximumAfterAMaximumIsReadOnce()
{
    // Each form is looked for in what the one before it has left of the line.
    const WindowOnPc driver;
    send(driver, JobSvcDisable, u"pgr:max:5"_s);
    send(driver, JobSvcDisable, u"pgr:max:pgr:value:7"_s);
    QCOMPARE(driver.bar()->maximum(), 0);
    QVERIFY(!driver.bar()->isHidden());
    QCOMPARE(driver.status(), u"Stop service:  7"_s);
}

void TestDispatch::anyLineOfAListingFillsTheTable_data()
{
    QTest::addColumn<QString>("line");
    QTest::newRow("its own") << u"WorkThread::SvcMakeList"_s;
    QTest::newRow("another") << u"anything"_s;
    QTest::newRow("empty") << QString();
    QTest::newRow("a bar line") << u"pgr:value:3"_s;
}

void TestDispatch::anyLineOfAListingFillsTheTable()
{
    QFETCH(const QString, line);
    const WindowOnPc driver;
    ServiceRow row;
    row.name = u"Alpha"_s;
    row.running = true;
    driver.worker().services = {row};
    driver.services()->setSortingEnabled(false);
    send(driver, JobSvcMakeList, line);
    QCOMPARE(driver.listed(), QStringList(u"Alpha"_s));
    QCOMPARE(driver.status(), u"Services: 1  |  started: 1  |  stopped: 0  |  disabled: 0  "_s);
    QVERIFY(driver.services()->isSortingEnabled());
    QVERIFY(driver.bar()->isHidden());
}

void TestDispatch::jobsWithoutAReaderHaveNoEffect_data()
{
    QTest::addColumn<int>("job");
    for (const int job : {int(JobWinSxsSize), 6, int(JobAutomatizerAnalyze), int(JobAutomatizerOptimize),
                          int(JobAutomatizerRestore), int(JobMonitor), 16, -1})
        QTest::addRow("job %d", job) << job;
}

void TestDispatch::jobsWithoutAReaderHaveNoEffect()
{
    QFETCH(const int, job);
    const WindowOnPc driver;
    driver.get<QLabel>(u"lblStatus"_s)->setText(u"untouched"_s);
    const int maximum = driver.bar()->maximum();
    const int value = driver.bar()->value();
    for (const char *line : {"pgr:max:12", "pgr:value:3", "pgr:SvcStopOrStart=finished", "DiagTrack", ""})
        send(driver, job, QString::fromLatin1(line));
    QCOMPARE(driver.status(), u"untouched"_s);
    QCOMPARE(driver.bar()->maximum(), maximum);
    QCOMPARE(driver.bar()->value(), value);
    QVERIFY(driver.bar()->isHidden());
    QCOMPARE(automatizerText(driver), QString());
    QVERIFY(!driver.worker().isRunning());
}

void TestDispatch::textLineIsAppendedWithItsPrefixDuringAnyJob_data()
{
    QTest::addColumn<int>("job");
    for (int job = -1; job <= 16; ++job)
        QTest::addRow("job %d", job) << job;
}

void TestDispatch::textLineIsAppendedWithItsPrefixDuringAnyJob()
{
    QFETCH(const int, job);
    const WindowOnPc driver;
    driver.get<QTextEdit>(u"txtAutomatizer"_s)->setPlainText(u"first"_s);
    send(driver, job, u"txt:second"_s);
    QCOMPARE(automatizerText(driver), u"first\ntxt:second"_s);
}

void TestDispatch::markupInALineStaysText()
{
    const QString name = u"<img src=\"file://host/share/x.png\">"_s;
    const WindowOnPc driver;
    send(driver, JobAutomatizerAnalyze, u"txt:"_s + name);
    QCOMPARE(automatizerText(driver), u"txt:"_s + name);
    send(driver, JobSvcDisable, name);
    QCOMPARE(driver.status(), label(JobSvcDisable) + name);
    QCOMPARE(driver.get<QLabel>(u"lblStatus"_s)->textFormat(), Qt::PlainText);
}

void TestDispatch::textLineIsLookedForInWhatANumberLineLeaves()
{
    const WindowOnPc driver;
    send(driver, JobSvcEnable, u"pgr:value:txt:5"_s);
    QCOMPARE(automatizerText(driver), u"txt:5"_s);
    QCOMPARE(driver.status(), u"Start service:  txt:5"_s);
}

void TestDispatch::lineThatHoldsTheTextPrefixElsewhereIsNotAppended()
{
    const WindowOnPc driver;
    send(driver, JobSvcDisable, u" txt:5"_s);
    send(driver, JobSvcDisable, u"TXT:5"_s);
    QCOMPARE(automatizerText(driver), QString());
}

KESTRUNE_WINDOW_SUITE(TestDispatch)
#include "tst_dispatch.moc"
