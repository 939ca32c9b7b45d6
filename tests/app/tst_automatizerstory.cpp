// SPDX-License-Identifier: GPL-3.0-or-later
// A person's way through the Optimizer page on the built-in Windows 11 PC: Analyze, Optimize with its question, and
// both kinds of Restore; what label, log and bar show at each step, and what the PC is like in the end.

#include "support/automatizerview.h"
#include "support/boxes.h"
#include "support/machinepair.h"
#include "support/packageplaces.h"
#include "support/suite.h"
#include "work/settings.h"

#include <QApplication>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString tweakRecordsKey = settingsKey + u"\\Tweak"_s;
const QString restartText = u"Features: applied successfully. Restart your PC!"_s;

/** The different texts that the status shows, in their order. */
class Statuses
{
public:
    explicit Statuses(const WindowDriver &driver)
    {
        // Connected after the window, which has set its status by then.
        QObject::connect(&driver.worker(), &WorkThread::automatizerValueChanged, &driver.window(), [this, &driver] {
            if (shown_.isEmpty() || shown_.constLast() != driver.status())
                shown_.append(driver.status());
        });
    }
    QStringList take() { return std::exchange(shown_, {}); }

private:
    QStringList shown_;
};

bool waitForStatus(const WindowDriver &driver, const QString &status)
{
    constexpr int longPatience = 60000;
    return QTest::qWaitFor([&] { return driver.status() == status && !driver.worker().isRunning(); }, longPatience);
}

/** Whether each of these begins some line of the log, in this order. */
bool haveOrder(const QStringList &log, const QStringList &beginnings)
{
    qsizetype line = 0;
    for (const QString &beginning : beginnings) {
        while (line < log.size() && !log.at(line).startsWith(beginning))
            ++line;
        if (line == log.size()) {
            qWarning("the log lacks %s", qUtf8Printable(beginning));
            return false;
        }
    }
    return true;
}

QString heading(const QString &phase)
{
    return u"Optimize :  "_s + phase;
}

QStringList withBeginning(const QStringList &rows, const QString &beginning)
{
    QStringList result;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(result),
                 [&beginning](const QString &row) { return row.startsWith(beginning); });
    return result;
}

} // namespace

class TestAutomatizerStory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pcIsOptimizedAndRestored_data();
    void pcIsOptimizedAndRestored();

private:
    static void verifyWhatStaysChanged(MachinePair &pair, const QStringList &backups, const QStringList &needless);
};

/** What a Restore doesn't bring back, beside the values of the features. */
void TestAutomatizerStory::verifyWhatStaysChanged(MachinePair &pair, const QStringList &backups,
                                                  const QStringList &needless)
{
    const QStringList differences = pair.differences();
    // All services run as before, all tasks are on again.
    QCOMPARE(withBeginning(differences, u"service "_s) + withBeginning(differences, u"task "_s), QStringList());
    // The encoder stays off, the backups stay, and OneDrive's installer of 32 bits isn't there to bring it back.
    QStringList files = backups;
    files.append(u"file "_s + qEnvironmentVariable("LOCALAPPDATA") + u"\\Microsoft\\OneDrive\\OneDrive.exe"_s);
    files.append(u"file program\\backup_autorun\\Run.reg"_s);
    files.append(u"file C:\\Program Files (x86)\\RivaTuner Statistics Server\\Profiles\\config"_s);
    files.sort();
    QCOMPARE(withBeginning(differences, u"file "_s), files);
    // Programs without quotes in their command, or without their file.
    QCOMPARE(
        withBeginning(differences, u"registry "_s + userRunKey + u" | "_s)
            + withBeginning(differences, u"registry "_s + machineRunKey32 + u" | "_s)
            + withBeginning(differences, u"registry "_s + machineRunKey + u" | "_s),
        (QStringList{u"registry "_s + userRunKey + u" | LogiOptionsPlus"_s,
                     u"registry "_s + userRunKey + u" | Old Player"_s, u"registry "_s + userRunKey + u" | OneDrive"_s,
                     u"registry "_s + machineRunKey32 + u" | ArmouryCrate Helper"_s,
                     u"registry "_s + machineRunKey32 + u" | RTSS"_s}));
    // Services come back as automatic ones; those set to manual stay that.
    for (const QString &service : needless)
        QCOMPARE(pair.machine.read(servicesKey + u'\\' + service, u"Start"_s), QVariant(2));
    for (const QString &service : {u"edgeupdate"_s, u"MapsBroker"_s})
        QCOMPARE(pair.machine.read(servicesKey + u'\\' + service, u"Start"_s), QVariant(3));
}

void TestAutomatizerStory::pcIsOptimizedAndRestored_data()
{
    QTest::addColumn<QMessageBox::StandardButton>("walk");
    QTest::newRow("without the walk") << QMessageBox::No;
    QTest::newRow("with the walk") << QMessageBox::Yes;
}

void TestAutomatizerStory::pcIsOptimizedAndRestored()
{
    QFETCH(const QMessageBox::StandardButton, walk);
    MachinePair pair(u"windows11"_s);
    const TestMachine &machine = pair.machine;
    const WindowDriver driver;
    Statuses statuses(driver);
    Boxes boxes;

    // At first there is nothing to restore, and nothing to optimize.
    boxes.answer(QMessageBox::Ok);
    driver.click(u"btnAutomatizerRestore"_s);
    driver.click(u"btnAutomatize"_s);
    QVERIFY(!driver.worker().isRunning());
    QCOMPARE(pair.differences(true), QStringList());

    // Analyze finds something of each kind, and changes nothing but its own backups.
    driver.click(u"btnAutomatizerAnalyze"_s);
    const WorkThread &worker = driver.worker();
    QVERIFY(
        QTest::qWaitFor([&] { return driver.status().startsWith("Services:"_L1) && !worker.isRunning(); }, patience));
    const AutomatizerView analyzed(driver);
    QVERIFY(haveOrder(analyzed.log, {u"Service: can be disable: DiagTrack"_s, u"Service: can be set to manual: "_s,
                                     u"Task: can be disable: "_s, u"Package: can be uninstalled: "_s,
                                     u"Autorun: can be disabled:  "_s, u"Process: can be disable: EncoderServer"_s}));
    QCOMPARE(analyzed.log.constLast(), u"Features: 32 improvements can be applied"_s);
    QVERIFY(analyzed.shown && analyzed.isFull());
    QCOMPARE(analyzed.status,
             u"Services: %1  |  Tasks: %2  |  Packages: %3  |  Autorun: %4"_s.arg(worker.analyzeServiceCount)
                 .arg(worker.analyzeTaskCount)
                 .arg(worker.analyzePackageCount)
                 .arg(worker.analyzeAutorunCount));
    QCOMPARE(statuses.take(), (QStringList{QString(), analyzed.status}));
    const QStringList backups = pair.differences();
    QCOMPARE(withBeginning(backups, u"file "_s), backups);

    // Optimize goes through all phases and asks its question.
    QStringList needless;
    for (const ServiceRow &row : worker.automatizerServices)
        needless.append(row.name);
    boxes.answer(walk);
    driver.click(u"btnAutomatize"_s);
    const bool walks = walk == QMessageBox::Yes;
    const QString ending = walks ? u"Features applied successfully. Restart your PC!"_s : u"Optimization finished"_s;
    QVERIFY(waitForStatus(driver, ending));
    QStringList shown{heading(u"Services"_s), heading(u"Tasks"_s), heading(u"Windows applications"_s),
                      heading(u"Autorun"_s), heading(u"Features"_s)};
    if (walks)
        shown.append(u"Remove indexing attribute of C:"_s);
    shown.append(ending);
    QCOMPARE(statuses.take(), shown);
    const AutomatizerView optimized(driver);
    QVERIFY(optimized.isFull());
    QStringList log{restartText, QString(), u"Optimization finished"_s};
    if (walks)
        log = QStringList{u"Features: Remove indexing attribute of C:"_s,
                          u"Features: Remove indexing attribute of C: finished"_s}
              + log;
    QCOMPARE(optimized.log.last(log.size()), log);
    QCOMPARE(worker.optimizeRunning.load(), 0);
    QCOMPARE(machine.read(settingsKey, u"optimized"_s), QVariant(1));
    QCOMPARE(machine.read(tweakRecordsKey, u"chkSsd1"_s), QVariant(u"true"_s));
    for (const QString &service : needless)
        QCOMPARE(machine.read(servicesKey + u'\\' + service, u"Start"_s), QVariant(4));
    QCOMPARE(recordedNames(u"Autorun"_s).size(), worker.autoruns.size());
    QVERIFY(!withBeginning(pair.differences(), u"task "_s).isEmpty());

    // Restore with features brings back what is recorded; it asks the same question, and forgets little.
    boxes.answer(QMessageBox::Yes);
    boxes.answer(QMessageBox::No);
    driver.click(u"btnAutomatizerRestore"_s);
    QVERIFY(waitForStatus(driver, u"Restoration finished"_s));
    QCOMPARE(statuses.take(),
             (QStringList{heading(u"Services"_s), heading(u"Tasks"_s), heading(u"Autorun"_s),
                          heading(u"Windows applications"_s), heading(u"Features"_s), u"Restoration finished"_s}));
    const AutomatizerView restored(driver);
    QVERIFY(restored.isFull());
    QCOMPARE(restored.log.last(3), (QStringList{restartText, QString(), u"Restoration finished"_s}));
    QCOMPARE(machine.read(settingsKey, u"optimized"_s), QVariant(1));
    QCOMPARE(machine.read(tweakRecordsKey, u"chkSsd1"_s), QVariant(u"false"_s));
    QCOMPARE(recordedNames(u"SVC"_s), QStringList());
    QCOMPARE(recordedNames(u"Autorun"_s).size(), worker.autoruns.size());
    verifyWhatStaysChanged(pair, backups, needless);

    // Restore without them forgets the rest, and there is nothing to restore any more.
    driver.get<QCheckBox>(u"chkAutomatizerTweak"_s)->setChecked(false);
    const QString last = u"Restoration finished: Restart your PC!"_s;
    boxes.answer(QMessageBox::Yes);
    driver.click(u"btnAutomatizerRestore"_s);
    QVERIFY(waitForStatus(driver, last));
    QCOMPARE(statuses.take(),
             (QStringList{heading(u"Tasks"_s), heading(u"Autorun"_s), heading(u"Windows applications"_s), last}));
    const AutomatizerView ended(driver);
    QVERIFY(ended.isFull());
    QCOMPARE(ended.log.last(2), (QStringList{QString(), last}));
    QCOMPARE(recordedNames(u"Autorun"_s) + recordedNames(u"Tweak"_s), QStringList());
    verifyWhatStaysChanged(pair, backups, needless);
    boxes.answer(QMessageBox::Ok);
    driver.click(u"btnAutomatizerRestore"_s);
    QCOMPARE(boxes.shown().constLast().text, u"Cannot restore if you have not yet optimized!"_s);
}

KESTRUNE_WINDOW_SUITE(TestAutomatizerStory)
#include "tst_automatizerstory.moc"
