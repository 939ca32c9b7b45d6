// SPDX-License-Identifier: GPL-3.0-or-later
// The Features page on a real registry: some boxes are put in force and taken back.

#include "journal/realjournal.h"
#include "journal/takeback.h"
#include "platform/platform.h"
#include "support/featuresview.h"
#include "support/suite.h"
#include "windows/trialpc.h"

#include <QApplication>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/** A value that the tweak of a box leaves behind; one that is not valid is gone. */
struct Trace
{
    QString box;
    QString key;
    QString name;
    QVariant applied;
    QVariant reset;
};

const QString controlKey = u"HKEY_LOCAL_MACHINE\\SYSTEM\\CurrentControlSet\\Control"_s;
const QString prefetchKey = controlKey + u"\\Session Manager\\Memory Management\\PrefetchParameters"_s;
const QString desktopKey = u"HKEY_CURRENT_USER\\Control Panel\\Desktop"_s;
const QString tweakKey = settingsKey + u"\\Tweak"_s;

const QList<Trace> traces{
    {u"chkSsd1"_s, controlKey + u"\\FileSystem"_s, u"DisableWriteCacheFlush"_s, 1, 0},
    {u"chkGaming3"_s, u"HKEY_CURRENT_USER\\Software\\Microsoft\\GameBar"_s, u"AllowAutoGameMode"_s, 1, 0},
    {u"chkWindows1"_s, controlKey, u"SvcHostSplitThresholdInKB"_s, 251658240, 380000},
    {u"chkWindows6"_s,
     u"HKEY_USERS\\S-1-5-20\\Software\\Microsoft\\Windows\\CurrentVersion\\DeliveryOptimization\\Settings"_s,
     u"DownloadModeProvider"_s, 8, QVariant()},
    {u"chkWindows8"_s, desktopKey, u"MenuShowDelay"_s, u"0"_s, u"400"_s},
    {u"chkWindows8"_s, desktopKey, u"AutoEndTasks"_s, u"3000"_s, QVariant()},
};
// These two run a tool instead, or on Windows 10 partly.
const QStringList boxes{u"chkSsd1"_s,     u"chkSsd7"_s,     u"chkGaming3"_s, u"chkGaming5"_s,
                        u"chkWindows1"_s, u"chkWindows6"_s, u"chkWindows8"_s};

QVariant valueOf(const QString &key, const QString &name)
{
    return platform().openKey(key)->value(name);
}

/** With types and bytes. */
QList<RegistryValue> storedTraces(const Journal &journal)
{
    QList<RegistryValue> values;
    for (const Trace &trace : traces)
        values.append(journal.system().value(trace.key, trace.name).value_or(RegistryValue{u"absent"_s, {}, {}}));
    return values;
}

} // namespace

class TestRealFeatures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void checkedBoxesArePutInForce();
    void uncheckedBoxesAreTakenBack();
    void bothComeBackByTheJournal();

private:
    /** Clicks the boxes and Apply, and looks at what came of it. */
    void clickAndApply(bool inForce) const;

    std::unique_ptr<TrialPc> pc_;
    std::unique_ptr<WindowDriver> driver_;
    QList<RegistryValue> before_;
    qint64 lastSession_ = 0; ///< before the tests
};

void TestRealFeatures::initTestCase()
{
    pc_ = std::make_unique<TrialPc>();
    QVERIFY(platform().isElevated());
    platform().openKey(settingsKey)->setValue(u"GetWinSxsSize"_s, 0);
    emptyKey(tweakKey);
    platform().openKey(prefetchKey)->setValue(u"EnablePrefetcher"_s, 2);
    driver_ = std::make_unique<WindowDriver>();
    QVERIFY(QTest::qWaitForWindowExposed(&driver_->window()));
    driver_->click(u"btnMenuTweak"_s);
    before_ = storedTraces(pc_->journal());
    const QList<Session> sessions = pc_->journal().store().sessions();
    lastSession_ = sessions.isEmpty() ? 0 : sessions.constLast().id;
}

void TestRealFeatures::cleanupTestCase()
{
    driver_.reset();
    pc_.reset();
}

void TestRealFeatures::clickAndApply(bool inForce) const
{
    forgetCommands();
    for (const QString &box : boxes)
        clickBox(*driver_, box);
    ::apply(*driver_);
    QCOMPARE(driver_->status(), u"Apply features finished successfully. Need reboot!"_s);
    for (const Trace &trace : traces)
        QCOMPARE(valueOf(trace.key, trace.name), inForce ? trace.applied : trace.reset);
    QCOMPARE(commandsOf(u"powercfg"_s), QList<QStringList>(1, {u"-h"_s, inForce ? u"OFF"_s : u"ON"_s}));
    if (isWindows11Pc()) {
        const QStringList clock{u"/set"_s, u"useplatformclock"_s, inForce ? u"False"_s : u"True"_s};
        QCOMPARE(commandsOf(u"bcdedit"_s), QList<QStringList>(1, clock));
    } else {
        QCOMPARE(valueOf(servicesKey + u"\\Hpet"_s, u"Start"_s).toInt(), inForce ? 4 : 2);
    }
    // The state of the page, and what was not touched
    for (const QString &box : boxes)
        QCOMPARE(valueOf(tweakKey, box), QVariant(inForce ? u"true"_s : u"false"_s));
    QCOMPARE(valueOf(tweakKey, u"chkSsd4"_s), QVariant(u"false"_s));
    QCOMPARE(valueOf(prefetchKey, u"EnablePrefetcher"_s).toInt(), 2);
}

void TestRealFeatures::checkedBoxesArePutInForce()
{
    clickAndApply(true);
    takePicture(u"features-applied"_s);
}

void TestRealFeatures::uncheckedBoxesAreTakenBack()
{
    clickAndApply(false);
}

void TestRealFeatures::bothComeBackByTheJournal()
{
    QVERIFY(QFileInfo(realJournalFolder() + u"\\changes.sqlite"_s).isFile());
    int applied = 0;
    for (const Session &session : pc_->journal().store().sessions())
        applied += session.id > lastSession_ && session.what == "Apply features"_L1 && session.changes > 0 ? 1 : 0;
    QCOMPARE(applied, 2);
    QVERIFY(storedTraces(pc_->journal()) != before_);
    Selection since;
    since.firstSession = lastSession_ + 1;
    for (const TakenItem &item : takeBack(pc_->journal(), since))
        QVERIFY2(item.verdict == WayBack::AsItWas, qPrintable(item.item.subject + u'|' + item.item.name + item.why));
    QCOMPARE(storedTraces(pc_->journal()), before_);
    QCOMPARE(platform().takeFailure(), QString());
}

KESTRUNE_WINDOW_SUITE(TestRealFeatures)
#include "tst_realfeatures.moc"
